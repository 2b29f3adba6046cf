#include "customize/Draft.h"

#include <cstddef>
#include <utility>
#include <vector>

#include "base/ByteText.h"
#include "base/Digest.h"
#include "core/MenuFolder.h"

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

FileStatus WriteBytes(FileSystem& files, const std::string& path, std::string_view bytes) {
  FileStatus written = files.Replace(path, bytes);
  // What a copied folder has made read-only is still this program's own file.
  if (!written && written.Error() == FileError::AccessDenied && files.ClearAttributes(path)) {
    written = files.Replace(path, bytes);
  }
  return written;
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
  if (!bytes.starts_with(kMark) || bytes.size() < kMark.size() + kDigestLength) return std::nullopt;
  const std::string_view body = bytes.substr(0, bytes.size() - kDigestLength);
  if (ByteReader(bytes.substr(body.size())).Number(kDigestLength) != DigestOf(body)) {
    return std::nullopt;
  }
  ByteReader reader(body.substr(kMark.size()));
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
  if (!reader.Good() || !reader.AtEnd()) return std::nullopt;
  return draft;
}

FileStatus WriteDraft(FileSystem& files, std::string_view menusPath, const MenusStamp& stamp,
                      const MenuSet& set) {
  return WriteBytes(files, PathOfDraft(menusPath), FormatDraft(stamp, set));
}

std::optional<MenuSet> OfferDraft(FileSystem& files, std::string_view menusPath,
                                  const MenuFiles& now) {
  const FileResult<std::string> bytes = files.Read(PathOfDraft(menusPath), 0, kLongestDraft + 1);
  if (!bytes || bytes->size() > kLongestDraft) return std::nullopt;
  std::optional<Draft> draft = ParseDraft(*bytes);
  if (!draft || draft->Files != now.Stamp || draft->Set == now.Set) return std::nullopt;
  return std::move(draft->Set);
}

FileStatus ForgetDraft(FileSystem& files, std::string_view menusPath) {
  const std::string path = PathOfDraft(menusPath);
  FileStatus removed = files.Remove(path);
  if (!removed && removed.Error() == FileError::AccessDenied && files.ClearAttributes(path)) {
    removed = files.Remove(path);
  }
  if (!removed && removed.Error() == FileError::NotFound) return Done();
  return removed;
}

FileStatus DraftKeeper::Keep(const MenusStamp& stamp, const MenuSet& set) {
  const std::string bytes = FormatDraft(stamp, set);
  const std::uint64_t digest = DigestOf(bytes);
  if (written_ == digest) return Done();
  const FileStatus written = WriteBytes(files_, PathOfDraft(menusPath_), bytes);
  if (written) written_ = digest;
  return written;
}

FileStatus DraftKeeper::Forget() {
  const FileStatus forgotten = ForgetDraft(files_, menusPath_);
  if (forgotten) written_.reset();
  return forgotten;
}

}  // namespace corvelle
