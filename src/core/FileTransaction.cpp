#include "core/FileTransaction.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <utility>

#include "base/ByteText.h"
#include "base/Text.h"

namespace corvelle {
namespace {

// The journal, numbers with their low byte first: kMark; how many files, 4 bytes; for each of them
// its name, what it held, and the length and the digest of what it is to hold; the digest of all
// that, 8 bytes. A text is its length in 8 bytes and its bytes. Before what a file holds, and is to
// hold, a byte says whether there is such a file (1) or not (0).
constexpr std::string_view kMark = "CVCHANGE1";

// Files of menus have a few thousand bytes. What is longer is no such file, and neither it nor a
// journal of such length is taken into memory.
constexpr std::size_t kLongestChanged = std::size_t{256} << 20U;
constexpr std::size_t kLongestJournal = std::size_t{1} << 30U;
constexpr std::uint32_t kMostFiles = 100'000;

using Content = std::optional<std::string>;  // nothing: there is no such file

std::uint64_t Digest(std::string_view bytes) noexcept {
  std::uint64_t hash = 0xCBF29CE484222325ULL;
  for (const char byte : bytes) {
    hash ^= static_cast<unsigned char>(byte);
    hash *= 0x100000001B3ULL;
  }
  return hash;
}

/// What a file is to hold, so that it can be told from anything else.
struct Print {
  bool There = false;
  std::uint64_t Length = 0;
  std::uint64_t Hash = 0;

  friend bool operator==(const Print&, const Print&) = default;
};

Print PrintOf(const Content& content) noexcept {
  if (!content) return {};
  return {true, content->size(), Digest(*content)};
}

struct JournalFile {
  std::string Name;
  Content Before;
  Print After;
};
using Journal = std::vector<JournalFile>;

std::string FormatJournal(const Journal& journal) {
  std::string out(kMark);
  PutNumber(out, journal.size(), 4);
  for (const JournalFile& file : journal) {
    PutText(out, file.Name);
    PutNumber(out, file.Before ? 1 : 0, 1);
    PutText(out, file.Before ? std::string_view(*file.Before) : std::string_view());
    PutNumber(out, file.After.There ? 1 : 0, 1);
    PutNumber(out, file.After.Length, 8);
    PutNumber(out, file.After.Hash, 8);
  }
  PutNumber(out, Digest(out), 8);
  return out;
}

/// True for the name of a file right in a folder: a journal must not reach any other.
bool IsPlainName(std::string_view name) {
  return !name.empty() && name != "." && name != ".." &&
         name.find_first_of("\\/:*?\"<>|") == std::string_view::npos &&
         std::none_of(name.begin(), name.end(),
                      [](char c) { return static_cast<unsigned char>(c) < ' '; }) &&
         !EqualNoCase(name, kJournalFileName);
}

/// Nothing for bytes that are not a whole journal.
std::optional<Journal> ParseJournal(std::string_view bytes) {
  constexpr std::size_t kDigestLength = 8;
  if (!bytes.starts_with(kMark) || bytes.size() < kMark.size() + kDigestLength) return std::nullopt;
  const std::string_view body = bytes.substr(0, bytes.size() - kDigestLength);
  if (ByteReader(bytes.substr(body.size())).Number(kDigestLength) != Digest(body)) {
    return std::nullopt;
  }
  ByteReader reader(body.substr(kMark.size()));
  const std::uint64_t count = reader.Number(4);
  if (count > kMostFiles) return std::nullopt;
  Journal journal;
  for (std::uint64_t i = 0; i < count && reader.Good(); ++i) {
    JournalFile file;
    file.Name = reader.Text();
    const bool wasThere = reader.Number(1) != 0;
    std::string before = reader.Text();
    if (wasThere) file.Before = std::move(before);
    file.After.There = reader.Number(1) != 0;
    file.After.Length = reader.Number(8);
    file.After.Hash = reader.Number(8);
    if (!IsPlainName(file.Name)) return std::nullopt;
    journal.push_back(std::move(file));
  }
  if (!reader.Good() || !reader.AtEnd()) return std::nullopt;
  return journal;
}

FileResult<Content> ReadContent(FileSystem& files, const std::string& path) {
  FileResult<std::string> bytes = files.Read(path, 0, kLongestChanged + 1);
  if (!bytes && bytes.Error() == FileError::NotFound) return Content();
  if (!bytes) return bytes.Error();
  if (bytes->size() > kLongestChanged) return FileError::Failed;
  return Content(*std::move(bytes));
}

FileStatus SetContent(FileSystem& files, const std::string& path, const Content& content) {
  if (content) return files.Replace(path, *content);
  const FileStatus removed = files.Remove(path);
  if (!removed && removed.Error() == FileError::NotFound) return Done();
  return removed;
}

// Held by another program, it can neither be removed nor replaced. Then it stays, and says at the
// next start that its change was done, or never begun.
void RemoveJournal(FileSystem& files, const std::string& path) {
  if (!files.Remove(path)) static_cast<void>(files.Replace(path, {}));
}

/// What the files of a journal hold now.
FileResult<std::vector<Content>> ReadAll(FileSystem& files, const std::string& folder,
                                         const Journal& journal) {
  std::vector<Content> contents;
  contents.reserve(journal.size());
  for (const JournalFile& file : journal) {
    FileResult<Content> content = ReadContent(files, folder + file.Name);
    if (!content) return content.Error();
    contents.push_back(*std::move(content));
  }
  return contents;
}

/// True if files were put back.
FileResult<bool> TakeBack(FileSystem& files, const std::string& folder) {
  const std::string path = folder + std::string(kJournalFileName);
  const FileResult<std::string> bytes = files.Read(path, 0, kLongestJournal);
  if (!bytes && bytes.Error() == FileError::NotFound) return false;
  if (!bytes) return bytes.Error();
  const Journal journal = ParseJournal(*bytes).value_or(Journal());
  const FileResult<std::vector<Content>> now = ReadAll(files, folder, journal);
  if (!now) return now.Error();
  bool done = true;
  bool known = true;
  for (std::size_t i = 0; i < journal.size(); ++i) {
    const bool after = PrintOf((*now)[i]) == journal[i].After;
    done = done && after;
    known = known && (after || (*now)[i] == journal[i].Before);
  }
  bool changed = false;
  if (known && !done) {
    for (std::size_t i = 0; i < journal.size(); ++i) {
      if ((*now)[i] == journal[i].Before) continue;
      const FileStatus put = SetContent(files, folder + journal[i].Name, journal[i].Before);
      if (!put) return put.Error();
      changed = true;
    }
  }
  RemoveJournal(files, path);
  return changed;
}

/// A file, what it holds and what it is to hold.
struct Change {
  std::string Path;
  Content Before;
  Content After;
};

/// The files that a change names, each once, with what they hold before any of it.
class ChangeList {
 public:
  ChangeList(FileSystem& files, std::string_view folder) : files_(files), folder_(folder) {}

  /// The file of that path, valid until the next call. BadName for one outside the folder.
  FileResult<Change*> Find(const std::string& path) {
    const auto known = places_.find(UpperCase(path));
    if (known != places_.end()) return &changes_[known->second];
    if (!IsInFolder(path)) return FileError::BadName;
    FileResult<Content> content = ReadContent(files_, path);
    if (!content) return content.Error();
    places_[UpperCase(path)] = changes_.size();
    changes_.push_back({path, *content, *content});
    return &changes_.back();
  }

  /// Those that do not stay as they are. Files that go come last, so that their content stands
  /// somewhere else by then.
  std::vector<Change> Real() && {
    std::erase_if(changes_, [](const Change& change) { return change.Before == change.After; });
    std::stable_partition(changes_.begin(), changes_.end(),
                          [](const Change& change) { return change.After.has_value(); });
    return std::move(changes_);
  }

 private:
  [[nodiscard]] bool IsInFolder(std::string_view path) const {
    return StartsWithNoCase(path, folder_) && IsPlainName(path.substr(folder_.size()));
  }

  FileSystem& files_;
  std::string_view folder_;
  std::vector<Change> changes_;
  std::map<std::string, std::size_t> places_;
};

FileStatus WriteJournal(FileSystem& files, std::string_view folder, const std::string& path,
                        const std::vector<Change>& changes) {
  Journal journal;
  std::size_t length = 0;
  for (const Change& change : changes) {
    if (change.Before) length += change.Before->size();
    if (length > kLongestJournal / 2) return FileError::Failed;
    journal.push_back({change.Path.substr(folder.size()), change.Before, PrintOf(change.After)});
  }
  return files.Replace(path, FormatJournal(journal));
}

FileStatus CarryOut(FileSystem& files, const std::vector<Change>& changes,
                    const std::string& journalPath) {
  FileStatus status = Done();
  std::size_t done = 0;
  while (done < changes.size() && status) {
    status = SetContent(files, changes[done].Path, changes[done].After);
    if (status) ++done;
  }
  bool whole = true;
  if (!status) {
    while (done > 0) {
      --done;
      if (!SetContent(files, changes[done].Path, changes[done].Before)) whole = false;
    }
  }
  if (whole) RemoveJournal(files, journalPath);
  return status;
}

}  // namespace

void FileTransaction::Write(std::string_view path, std::string bytes) {
  steps_.push_back({std::string(path), std::move(bytes), {}});
}

void FileTransaction::Remove(std::string_view path) {
  steps_.push_back({std::string(path), std::nullopt, {}});
}

void FileTransaction::Rename(std::string_view from, std::string_view to) {
  steps_.push_back({std::string(to), std::nullopt, std::string(from)});
}

FileStatus FileTransaction::Commit() {
  const FileResult<bool> earlier = TakeBack(files_, folder_);
  if (!earlier) return earlier.Error();
  if (*earlier) return FileError::Failed;

  ChangeList list(files_, folder_);
  // Old names first, so that what another step puts there stays.
  for (const Step& step : steps_) {
    if (step.From.empty()) continue;
    const FileResult<Change*> from = list.Find(step.From);
    if (!from) return from.Error();
    if (!(*from)->Before) return FileError::NotFound;
    (*from)->After.reset();
  }
  for (const Step& step : steps_) {
    Content content = step.Bytes;
    if (!step.From.empty()) content = (*list.Find(step.From))->Before;
    const FileResult<Change*> file = list.Find(step.Path);
    if (!file) return file.Error();
    (*file)->After = std::move(content);
  }
  const std::vector<Change> changes = std::move(list).Real();
  if (changes.empty()) return Done();
  // One file changes in one step.
  if (changes.size() == 1) return SetContent(files_, changes[0].Path, changes[0].After);
  const std::string journal = folder_ + std::string(kJournalFileName);
  const FileStatus noted = WriteJournal(files_, folder_, journal, changes);
  if (!noted) return noted;
  return CarryOut(files_, changes, journal);
}

FileStatus RecoverFiles(FileSystem& files, std::string_view folder) {
  const FileResult<bool> done = TakeBack(files, std::string(folder));
  if (!done) return done.Error();
  return Done();
}

}  // namespace corvelle
