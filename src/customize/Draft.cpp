#include "customize/Draft.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "base/ByteText.h"
#include "base/Digest.h"
#include "core/MenuFolder.h"
#include "customize/TreeMerge.h"

namespace corvelle {
namespace {

constexpr std::string_view kMark = "CVDRAFT1";
constexpr std::size_t kDigestLength = 8;
// A thousand menus of a hundred entries take a few dozen megabytes.
constexpr std::size_t kLongestDraft = std::size_t{256} << 20U;

std::string PathOfDraft(std::string_view menusPath) {
  return std::string(menusPath) + std::string(kDraftFileName);
}

std::uint64_t DigestOf(std::string_view bytes) noexcept {
  Digest digest;
  digest.Add(bytes);
  return digest.Value();
}

void PutRecord(std::string& out, const MenuRecord& record) {
  PutText(out, record.FTitle);
  PutText(out, record.FIcon);
  PutText(out, record.FName);
}

void PutRow(std::string& out, const std::vector<MenuRecord>& row) {
  PutNumber(out, row.size(), 4);
  for (const MenuRecord& record : row) PutRecord(out, record);
}

MenuRecord TakeRecord(ByteReader& reader) {
  MenuRecord record;
  record.FTitle = reader.Text();
  record.FIcon = reader.Text();
  record.FName = reader.Text();
  return record;
}

/// The number before a row is only believed as far as the bytes reach.
std::vector<MenuRecord> TakeRow(ByteReader& reader) {
  std::vector<MenuRecord> row;
  const std::uint64_t count = reader.Number(4);
  for (std::uint64_t i = 0; i < count && reader.Good(); ++i) row.push_back(TakeRecord(reader));
  return row;
}

/// The draft at the front of bytes, which is taken from them.
std::optional<Draft> TakeDraft(std::string_view& bytes) {
  if (!bytes.starts_with(kMark)) return std::nullopt;
  ByteReader reader(bytes.substr(kMark.size()));
  Draft draft;
  draft.Files.Length = reader.Number(8);
  draft.Files.Hash = reader.Number(8);
  const std::uint64_t menus = reader.Number(4);
  for (std::uint64_t i = 0; i < menus && reader.Good(); ++i) {
    Menu menu;
    menu.Head = TakeRecord(reader);
    menu.Items = TakeRow(reader);
    draft.Set.Menus.push_back(std::move(menu));
  }
  draft.Set.Singles = TakeRow(reader);
  const std::string_view body = bytes.substr(0, bytes.size() - reader.Left());
  const std::uint64_t digest = reader.Number(kDigestLength);
  if (!reader.Good() || digest != DigestOf(body)) return std::nullopt;
  bytes.remove_prefix(body.size() + kDigestLength);
  return draft;
}

FileStatus RemoveFile(FileSystem& files, const std::string& path) {
  FileStatus removed = files.Remove(path);
  if (!removed && removed.Error() == FileError::AccessDenied && files.ClearAttributes(path)) {
    removed = files.Remove(path);
  }
  if (!removed && removed.Error() == FileError::NotFound) return Done();
  return removed;
}

FileStatus WriteBytes(FileSystem& files, const std::string& path, std::string_view bytes) {
  if (bytes.empty()) return RemoveFile(files, path);
  FileStatus written = files.Replace(path, bytes);
  // What a copied folder has made read-only is still this program's own file.
  if (!written && written.Error() == FileError::AccessDenied && files.ClearAttributes(path)) {
    written = files.Replace(path, bytes);
  }
  return written;
}

FileResult<std::string> ReadBytes(FileSystem& files, const std::string& path) {
  FileResult<std::string> bytes = files.Read(path, 0, kLongestDraft + 1);
  if (!bytes && (bytes.Error() == FileError::NotFound)) return std::string();
  // None of ours; it is written over.
  if (bytes && bytes->size() > kLongestDraft) return std::string();
  return bytes;
}

}  // namespace

std::string FormatDraft(const MenusStamp& stamp, const MenuSet& set) {
  std::string out(kMark);
  PutNumber(out, stamp.Length, 8);
  PutNumber(out, stamp.Hash, 8);
  PutNumber(out, set.Menus.size(), 4);
  for (const Menu& menu : set.Menus) {
    PutRecord(out, menu.Head);
    PutRow(out, menu.Items);
  }
  PutRow(out, set.Singles);
  PutNumber(out, DigestOf(out), kDigestLength);
  return out;
}

std::optional<Draft> ParseDraft(std::string_view bytes) {
  std::optional<Draft> draft = TakeDraft(bytes);
  if (!bytes.empty()) draft.reset();
  return draft;
}

std::string FormatDrafts(const Drafts& drafts) {
  std::string bytes;
  for (const Draft& draft : drafts) bytes += FormatDraft(draft.Files, draft.Set);
  return bytes;
}

Drafts ParseDrafts(std::string_view bytes) {
  Drafts drafts;
  while (std::optional<Draft> draft = TakeDraft(bytes)) drafts.push_back(*std::move(draft));
  return drafts;
}

FileResult<Drafts> ReadDrafts(FileSystem& files, std::string_view menusPath) {
  const FileResult<std::string> bytes = ReadBytes(files, PathOfDraft(menusPath));
  if (!bytes) return bytes.Error();
  return ParseDrafts(*bytes);
}

FileStatus WriteDrafts(FileSystem& files, std::string_view menusPath, const Drafts& drafts) {
  return WriteBytes(files, PathOfDraft(menusPath), FormatDrafts(drafts));
}

void DraftKeeper::Open(const MenuFiles& now) {
  stamp_ = now.Stamp;
  own_.reset();
  offered_.clear();
  others_.clear();
  written_.reset();
  late_ = false;
  const FileResult<Drafts> kept = ReadDrafts(files_, menusPath_);
  unread_ = !kept;
  if (unread_) return;
  for (const Draft& draft : *kept) {
    if (draft.Files != stamp_) {
      if (others_.size() < kMostOfOtherFiles) others_.push_back(draft);
    } else if (draft.Set != now.Set &&
               std::find(offered_.begin(), offered_.end(), draft.Set) == offered_.end()) {
      offered_.push_back(draft.Set);
    }
  }
  SetBase(now.Set);
}

FileStatus DraftKeeper::Keep(const MenuSet& tree) {
  own_ = tree;
  return Write();
}

FileStatus DraftKeeper::Forget() {
  own_.reset();
  return Write();
}

MenuSet DraftKeeper::Show(std::optional<MenuSet> unsaved) {
  own_ = std::move(offered_.front());
  offered_.erase(offered_.begin());
  if (unsaved && *unsaved != *own_) offered_.push_back(*std::move(unsaved));
  // Until that is written, it can get lost by an end of the program only.
  static_cast<void>(Write());
  return *own_;
}

FileStatus DraftKeeper::ForgetOffered() {
  if (!offered_.empty()) offered_.erase(offered_.begin());
  return Write();
}

FileStatus DraftKeeper::Offer(MenuSet set, const MenuSet& now) {
  own_.reset();
  offered_.insert(offered_.begin(), std::move(set));
  SetBase(now);
  return Write();
}

FileStatus DraftKeeper::Flush() { return late_ ? Write() : Done(); }

void DraftKeeper::SetBase(const MenuSet& now) { base_ = offered_.empty() ? MenuSet() : now; }

std::vector<MenuSet> DraftKeeper::Rebased(const MenuSet& now) const {
  std::vector<MenuSet> rebased;
  for (const MenuSet& draft : offered_) {
    // Where both have changed an entry the draft keeps its version, which is what it is there for.
    MenuSet set = MergeTrees(base_, draft, now).Set;
    if (set != now) rebased.push_back(std::move(set));
  }
  return rebased;
}

void DraftKeeper::FilesChanged(const MenuFiles& now) {
  if (now.Stamp == stamp_) return;
  late_ = late_ || own_ || !offered_.empty();
  offered_ = Rebased(now.Set);
  SetBase(now.Set);
  own_.reset();
  stamp_ = now.Stamp;
}

DraftsAround DraftKeeper::AroundSave(const MenuSet& tree) {
  // What cannot be read now cannot be written over either.
  static_cast<void>(ReadLate());
  DraftsAround around;
  for (const MenuSet& set : offered_) around.Before.push_back({stamp_, set});
  around.Others = others_;
  around.After = Rebased(tree);
  return around;
}

void DraftKeeper::Saved(DraftsAround around, const MenuFiles& now) {
  own_.reset();
  offered_ = std::move(around.After);
  SetBase(now.Set);
  stamp_ = now.Stamp;
  written_.reset();
  late_ = true;  // where the save could not
}

Drafts DraftKeeper::All() const {
  Drafts all;
  if (own_) all.push_back({stamp_, *own_});
  for (const MenuSet& set : offered_) all.push_back({stamp_, set});
  all.insert(all.end(), others_.begin(), others_.end());
  return all;
}

FileStatus DraftKeeper::ReadLate() {
  if (!unread_) return Done();
  FileResult<Drafts> kept = ReadDrafts(files_, menusPath_);
  if (!kept) return kept.Error();
  unread_ = false;
  others_ = *std::move(kept);
  return Done();
}

FileStatus DraftKeeper::Write() {
  // A file that was held when the window opened may hold what nobody has seen yet.
  late_ = true;
  if (const FileStatus read = ReadLate(); !read) return read;
  const std::string bytes = FormatDrafts(All());
  const std::uint64_t digest = DigestOf(bytes);
  if (written_ != digest) {
    const FileStatus written = WriteBytes(files_, PathOfDraft(menusPath_), bytes);
    if (!written) return written;
  }
  written_ = digest;
  late_ = false;
  return Done();
}

}  // namespace corvelle
