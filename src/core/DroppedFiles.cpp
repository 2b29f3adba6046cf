#include "core/DroppedFiles.h"

#include <algorithm>
#include <utility>

#include "base/CodePage.h"
#include "base/FieldText.h"
#include "base/Sort.h"
#include "base/Text.h"
#include "base/Utf8.h"
#include "base/WebAddress.h"
#include "core/MenuFile.h"

namespace corvelle {

namespace {

constexpr std::string_view kLineEnds("\r\n\0", 3);
constexpr std::string_view kGeneratedEnd = ".mfd";
constexpr std::string_view kStoredEnd = ".MNU";
constexpr int kFirstItem = 2;

std::string TemporaryBeside(std::string_view path) {
  const std::size_t slash = path.rfind('\\');
  const std::size_t folder = slash == std::string_view::npos ? 0 : slash + 1;
  return std::string(path.substr(0, folder)) + std::string(kDropFileName);
}

/// How the number of records keeps `more` out; nothing when it does not.
std::optional<EditOutcome> Obstacle(FileSystem& files, std::string_view path, std::size_t more) {
  if (more == 0) return EditOutcome::NothingToDo;
  if (!files.FileExists(path)) return EditOutcome::NothingToDo;
  const FileResult<int> count = CountRecords(files, path);
  if (!count) return EditOutcome::Refused(count.Error());
  const auto room = static_cast<std::size_t>(kMaxRecords - *count);
  if (*count < 1 || more > room) return EditOutcome::NothingToDo;
  return std::nullopt;
}

}  // namespace

forms::DropEffect EffectOfDrag(forms::MouseButton dragged) noexcept {
  return dragged == forms::MouseButton::Right ? forms::DropEffect::Link : forms::DropEffect::Copy;
}

bool IsOfUse(const forms::DragData& data) noexcept {
  return data.Files.has_value() || data.Text.has_value();
}

bool FitsRecord(const CodePage& ansi, std::string_view path) {
  const std::size_t length = IsPlain(path) ? path.size() : EncodeText(path, ansi).size();
  return length <= kNameWidth;
}

std::optional<std::string> PathForRecord(FileSystem& files, const CodePage& ansi,
                                         std::string_view path) {
  if (FitsRecord(ansi, path)) return std::string(path);
  std::string shorter = files.ShortPath(path);
  if (shorter.empty() || !FitsRecord(ansi, shorter)) return std::nullopt;
  return shorter;
}

DroppedEntries DroppedRecords(std::vector<std::string> names, const NamesOfDropped& namesOf) {
  SortTexts(names);
  const std::vector<DroppedName> known = namesOf(names);
  DroppedEntries dropped;
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (const auto& path = known[i].Stored) {
      dropped.Records.push_back({.FTitle = known[i].Title, .FIcon = *path, .FName = *path});
    } else {
      dropped.Refused.push_back(std::move(names[i]));
    }
  }
  return dropped;
}

std::string RefusedFilesText(const std::vector<std::string>& names) {
  constexpr std::size_t kMostNamed = 10;
  std::string text = names.size() == 1
                         ? "This file cannot be added, because its path is too long:"
                         : "These files cannot be added, because their paths are too long:";
  text += "\n";
  for (std::size_t i = 0; i < std::min(names.size(), kMostNamed); ++i) text += "\n" + names[i];
  if (names.size() > kMostNamed) {
    text += "\nand " + std::to_string(names.size() - kMostNamed) + " more";
  }
  return text;
}

std::optional<std::string> DroppedAddress(std::string_view text) {
  if (!IsPlainWebAddress(text)) return std::nullopt;
  return Trim(text.substr(0, text.find_first_of(kLineEnds)));
}

std::string StoredMenuFile(std::string_view menuFile) {
  if (!EndsWithNoCase(menuFile, kGeneratedEnd)) return std::string(menuFile);
  menuFile.remove_suffix(kGeneratedEnd.size());
  return std::string(menuFile) + std::string(kStoredEnd);
}

EditOutcome AppendDropped(FileSystem& files, const CodePage& ansi, std::string_view path,
                          const std::vector<MenuRecord>& records) {
  if (const auto obstacle = Obstacle(files, path, records.size())) return *obstacle;
  return OutcomeOf(AppendRecords(files, ansi, path, records));
}

EditOutcome InsertDropped(FileSystem& files, const CodePage& ansi, std::string_view path,
                          int position, const std::vector<MenuRecord>& records) {
  if (const auto obstacle = Obstacle(files, path, records.size())) return *obstacle;
  std::string added;
  added.reserve(records.size() * kRecordLength);
  for (const MenuRecord& record : records) added += FormatRecord(record, ansi);
  const int before = position < 1 ? kMaxRecords : std::max(RealRecord(position), kFirstItem);
  return OutcomeOf(RewriteMenuFileBy(files, TemporaryBeside(path), path, [&](std::string bytes) {
    return InsertOrAppendRecord(std::move(bytes), before, added);
  }));
}

}  // namespace corvelle
