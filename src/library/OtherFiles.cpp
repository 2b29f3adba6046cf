#include "library/OtherFiles.h"

#include <algorithm>
#include <cstddef>

#include "base/Sort.h"
#include "base/Text.h"
#include "icons/LibraryFile.h"
#include "platform/ShellIcons.h"
#include "shell/LinkFiles.h"

namespace corvelle {

namespace {

constexpr std::string_view kShortcut = ".lnk";
constexpr std::string_view kNoTarget = "Cannot find a path for the selected shortcut.";
constexpr std::string_view kOfShortcut = " that the selected shortcut refers to";
constexpr std::string_view kAlreadyThere = " is already in the library.";
constexpr std::string_view kNoIcons = " does not contain icons.";

std::string Quoted(std::string_view name) { return "\"" + std::string(name) + "\""; }

int PlaceOf(const std::vector<std::string>& rows, std::string_view row) {
  const auto found = std::find_if(
      rows.begin(), rows.end(), [&](const std::string& other) { return EqualNoCase(other, row); });
  return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}

}  // namespace

AddedFile AddOtherFile(const OtherFileParts& with, std::vector<std::string>& rows,
                       std::string_view chosen) {
  const bool shortcut = EndsWithNoCase(chosen, kShortcut);
  const std::string path = Trim(ResolveChosenFile(with.Links, chosen));
  if (path.empty()) return {.Refusal = std::string(kNoTarget)};
  const std::string row = OtherFileRow(path);
  const std::string named =
      Quoted(OtherFileName(row)) + std::string(shortcut ? kOfShortcut : std::string_view());
  if (PlaceOf(rows, row) >= 0) return {.Refusal = named + std::string(kAlreadyThere)};
  if (with.Icons.IconCount(path) <= 0) {
    return {.Refusal = named + std::string(kNoIcons)};
  }
  rows.push_back(row);
  SortTexts(rows);
  with.Stored.Save(rows);
  return {.Row = PlaceOf(rows, row)};
}

std::string RemoveQuestion(std::string_view row) {
  return "Are you sure you want to remove " + Quoted(OtherFileName(row));
}

void RemoveOtherFile(const OtherIcons& stored, std::vector<std::string>& rows, int row) {
  if (row < 0 || static_cast<std::size_t>(row) >= rows.size()) return;
  rows.erase(rows.begin() + row);
  stored.Save(rows);
}

}  // namespace corvelle
