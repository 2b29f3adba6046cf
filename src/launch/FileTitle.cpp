#include "launch/FileTitle.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/Text.h"
#include "base/Utf8.h"
#include "core/OptionFlags.h"
#include "desk/LookupPlaces.h"
#include "launch/StartBeside.h"
#include "platform/FileSystem.h"
#include "platform/ShellIcons.h"

namespace corvelle {

namespace {

constexpr std::string_view kLinkStart = "Shortcut to";
constexpr std::size_t kShortestLinkTitle = 13;  // characters
constexpr std::string_view kFloppyRoot = "a:\\";

// Besides all extensions of three characters.
constexpr std::string_view kKnownExtensions[] = {"html", "jpeg", "jfif", "mhtml", "mpeg",
                                                 "aiff", "aifc", "ht",   "au",    "lz"};

bool HasCharacters(std::string_view text, std::size_t count) noexcept {
  return count == 0 || !SkipCharacters(text, count - 1).empty();
}

bool IsUsualExtension(std::string_view extension) noexcept {
  if (HasCharacters(extension, 3) && !HasCharacters(extension, 4)) return true;
  return std::any_of(std::begin(kKnownExtensions), std::end(kKnownExtensions),
                     [&](std::string_view known) { return EqualNoCase(extension, known); });
}

/// What the disk and the shell know of a file.
struct ShownFile {
  std::optional<std::string> Name;
  bool IsFolder = false;
  std::optional<std::string> Stored;
};

std::vector<ShownFile> LookAtFiles(const StartServices& services,
                                   const std::vector<std::string>& paths) {
  std::vector<ShownFile> found;
  found.reserve(paths.size());
  for (const std::string& path : paths)
    found.push_back({services.Icons.DisplayName(path), services.Files.FolderExists(path),
                     PathForRecord(services.Files, services.Ansi, path)});
  return found;
}

/// While nothing is known but the paths.
std::vector<ShownFile> NotKnown(const CodePage& ansi, const std::vector<std::string>& paths) {
  std::vector<ShownFile> files(paths.size());
  for (std::size_t i = 0; i < paths.size(); ++i) {
    if (FitsRecord(ansi, paths[i])) files[i].Stored = paths[i];
  }
  return files;
}

}  // namespace

std::string FileTitle(const FileTitleFacts& facts) {
  const std::string_view shown = facts.DisplayName.value_or(facts.Path);
  std::string title(shown.substr(0, shown.find('\0')));
  if (const std::size_t slash = title.rfind('\\'); slash != std::string::npos) {
    title.erase(0, slash + 1);
  }
  if (HasCharacters(title, kShortestLinkTitle) && StartsWithNoCase(title, kLinkStart)) {
    title = Trim(std::string_view(title).substr(kLinkStart.size()));
  }
  if (facts.KeepExtension || facts.IsFolder || EqualNoCase(facts.Path, kFloppyRoot)) return title;
  const std::size_t dot = title.rfind('.');
  if (dot == std::string::npos) return title;
  if (IsUsualExtension(std::string_view(title).substr(dot + 1))) title.erase(dot);
  return title;
}

std::string FileTitles::GetFileTitle(std::string_view path) const {
  return GetDroppedNames({std::string(path)}).front().Title;
}

std::vector<DroppedName> FileTitles::GetDroppedNames(const std::vector<std::string>& paths) const {
  // Each place by itself: one that hangs takes no name from the files of another.
  const std::string place = paths.empty() ? std::string() : desk::PlaceOfPath(paths.front());
  auto found = AtOnce<std::vector<ShownFile>>(
      starts_, "\"\"titles " + place,
      [paths](const StartServices& services) { return LookAtFiles(services, paths); });
  if (!found) found = NotKnown(ansi_, paths);
  const bool keep = options_.Is(Option::KeepExtension);
  std::vector<DroppedName> names;
  for (std::size_t i = 0; i < paths.size(); ++i) {
    ShownFile& file = (*found)[i];
    names.push_back({.Title = FileTitle({.Path = paths[i],
                                         .DisplayName = file.Name,
                                         .IsFolder = file.IsFolder,
                                         .KeepExtension = keep}),
                     .Stored = std::move(file.Stored)});
  }
  return names;
}

std::vector<DroppedName> FileTitles::GetTrimmedNames(const std::vector<std::string>& paths) const {
  std::vector<DroppedName> names = GetDroppedNames(paths);
  for (DroppedName& name : names) name.Title = Trim(name.Title);
  return names;
}

}  // namespace corvelle
