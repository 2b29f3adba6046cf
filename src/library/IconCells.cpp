#include "library/IconCells.h"

#include <cstdio>

#include "base/Text.h"
#include "base/Utf8.h"
#include "icons/LibraryFile.h"

namespace corvelle {

namespace {

constexpr std::size_t kWholeCharacters = 11;
constexpr std::size_t kKeptCharacters = 9;
constexpr std::string_view kCutMark = " ..";
constexpr std::string_view kIconsStart = "\\icons\\";

std::string IconNumber(int index) {
  char text[32];
  static_cast<void>(std::snprintf(text, sizeof text, "Icon: %03d", index));
  return text;
}

}  // namespace

std::string ReadableName(std::string_view fileName) {
  const std::string name = PlainCase(fileName);
  if (SkipCharacters(name, kWholeCharacters).empty()) return name;
  const std::size_t kept = name.size() - SkipCharacters(name, kKeptCharacters).size();
  return name.substr(0, kept) + std::string(kCutMark);
}

std::vector<IconCell> LibraryCells(const std::vector<std::string>& fileNames,
                                   std::string_view iconsPath) {
  std::vector<IconCell> cells;
  cells.reserve(fileNames.size());
  for (const std::string& name : fileNames) {
    cells.push_back({.Caption = ReadableName(name),
                     .Name = name,
                     .Text = std::string(kIconsStart) + name,
                     .File = std::string(iconsPath) + name});
  }
  return cells;
}

std::string FileIconText(std::string_view path, int index) {
  return std::string(path) + " |" + std::to_string(index);
}

std::vector<IconCell> FileCells(std::string_view path, int count) {
  std::vector<IconCell> cells;
  for (int index = 0; index < count; ++index) {
    const std::string caption = IconNumber(index);
    cells.push_back({.Caption = caption,
                     .Name = caption,
                     .Text = FileIconText(path, index),
                     .File = std::string(path),
                     .Index = index});
  }
  return cells;
}

std::vector<std::size_t> FilterCells(const std::vector<IconCell>& cells, std::string_view text) {
  const std::string wanted = Trim(text);
  std::vector<std::size_t> shown;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    if (wanted.empty() || ContainsNoCase(cells[i].Name, wanted)) shown.push_back(i);
  }
  return shown;
}

int CellByLetter(const std::vector<IconCell>& cells, const std::vector<std::size_t>& shown,
                 int current, char32_t character) {
  const char32_t wanted = UpperCharacter(character);
  const int count = static_cast<int>(shown.size());
  for (int step = 1; step <= count; ++step) {
    const int place = (current + step) % count;
    const std::string& name = cells[shown[static_cast<std::size_t>(place)]].Name;
    if (!name.empty() && UpperCharacter(NextCharacter(name, 0).Character) == wanted) return place;
  }
  return -1;
}

}  // namespace corvelle
