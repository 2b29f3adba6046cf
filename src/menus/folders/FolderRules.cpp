#include "menus/folders/FolderRules.h"

#include <algorithm>
#include <utility>

#include "base/Sort.h"
#include "base/Text.h"
#include "core/MenuRecord.h"
#include "core/SpecialFolders.h"

namespace corvelle {

namespace {

constexpr std::string_view kLinkEnd = ".LNK";
constexpr std::string_view kDirEnd = ".DIR";
constexpr std::string_view kDesktopName = "CSIDL_DESKTOP";
constexpr std::string_view kGeneratedEnd = "mfd";

std::string_view WithoutLinkEnd(std::string_view name) noexcept {
  if (EndsWithNoCase(name, kLinkEnd)) name.remove_suffix(kLinkEnd.size());
  return name;
}

/// The last point of a name and what follows it; empty when the name has none or starts with it.
std::string_view ExtensionOf(std::string_view name) noexcept {
  const std::size_t point = name.rfind('.');
  if (point == std::string_view::npos || point == 0) return {};
  return name.substr(point);
}

bool IsSetApart(const FileEntry& entry) noexcept {
  return entry.Hidden || entry.System || entry.Temporary;
}

}  // namespace

FolderItem ParseFolderItem(std::string_view name) {
  const std::string options = FolderOptions(name);
  const auto has = [&](char letter) { return options.find(letter) != std::string::npos; };
  FolderItem item;
  item.UpdateFolder = has('U');
  item.SubFolders = has('S');
  item.WithoutExtension = has('E');
  item.Merged = has('-') || has('_');
  const std::string path = FolderWithoutOptions(name);
  const std::size_t slash = path.rfind('\\');
  item.Folder = slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
  item.Mask = slash == std::string::npos ? path : path.substr(slash + 1);
  return item;
}

bool IsShownFile(const FileEntry& entry) {
  return !entry.IsFolder && !IsSetApart(entry) && !EndsWithNoCase(entry.Name, kDirEnd);
}

bool IsShownFolder(const FileEntry& entry) { return entry.IsFolder && !IsSetApart(entry); }

std::string NameWithoutExtension(std::string_view name) {
  const std::string_view base = WithoutLinkEnd(name);
  return std::string(base.substr(0, base.size() - ExtensionOf(base).size()));
}

std::string SortKeyOf(std::string_view name, const FolderItem& item) {
  return UpperCase(item.WithoutExtension || item.Merged ? NameWithoutExtension(name)
                                                        : std::string(name));
}

std::string FileTitleOf(std::string_view displayName, std::string_view name,
                        bool withoutExtension) {
  const std::string shown = StripAtNull(displayName);
  std::string_view title = WithoutLinkEnd(shown.empty() ? name : std::string_view(shown));
  if (withoutExtension) {
    const std::string_view extension = ExtensionOf(WithoutLinkEnd(name));
    if (extension.size() < title.size() && EndsWithNoCase(title, extension)) {
      title.remove_suffix(extension.size());
    }
  }
  return Trim(title);
}

std::string GeneratedFileName(std::string_view menuFile) {
  const std::size_t kept = menuFile.size() - std::min(menuFile.size(), kGeneratedEnd.size());
  return std::string(menuFile.substr(0, kept)) + std::string(kGeneratedEnd);
}

std::string ListCacheName(std::string_view menuFile, std::string_view folderName) {
  const std::size_t point = menuFile.rfind('.');
  const std::string_view stem = menuFile.substr(0, point);
  const std::string_view known = IsKnownSpecialFolder(folderName) ? folderName : kDesktopName;
  return std::string(stem) + "." + UpperCase(known.substr(kSpecialFolderStart.size()));
}

bool IsDesktopFolder(std::string_view folderName) noexcept {
  return StartsWithNoCase(folderName, kDesktopName);
}

std::vector<std::string> ShellFolderLines(const std::vector<ShellFolderEntry>& entries) {
  std::vector<std::string> lines;
  lines.reserve(entries.size());
  for (const ShellFolderEntry& entry : entries) {
    const std::string name = StripAtNull(entry.Name);
    if (!name.empty()) lines.push_back(name + "|" + std::to_string(entry.IconIndex));
  }
  SortTexts(lines);
  return lines;
}

ShellFolderLine ParseShellFolderLine(std::string_view line) {
  // The index comes last; a bar before it belongs to the name.
  const std::size_t bar = line.rfind('|');
  if (bar == std::string_view::npos) return {Trim(line), {}};
  return {Trim(line.substr(0, bar)), StripAtNull(line.substr(bar + 1))};
}

}  // namespace corvelle
