#include "launch/FileTitle.h"

#include <algorithm>
#include <iterator>

#include "base/Text.h"
#include "base/Utf8.h"
#include "core/Program.h"
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

std::string GetFileTitle(Program& program, std::string_view path) {
  const auto info = program.Services.Icons.FileInfo(path, IconList::Large);
  FileTitleFacts facts{.Path = path,
                       .IsFolder = program.Services.Files.FolderExists(path),
                       .KeepExtension = program.OptionFlags.Is(Option::KeepExtension)};
  if (info) facts.DisplayName = info->DisplayName;
  return FileTitle(facts);
}

}  // namespace corvelle
