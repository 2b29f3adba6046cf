#include "icons/IconQuestions.h"

#include <algorithm>
#include <iterator>

#include "base/Text.h"
#include "core/SpecialFolders.h"

namespace corvelle {

namespace {

constexpr std::string_view kBlankFile = "W95MBX02.ICO";

/// Kinds of files that have an icon each, in capitals.
constexpr std::string_view kOwnIcons[] = {".ANI", ".APPREF-MS", ".CPL", ".CUR",     ".DLL",
                                          ".EXE", ".ICO",       ".MSC", ".SCR",     ".LNK",
                                          ".PIF", ".URL",       ".VHD", ".WEBSITE", ".XBAP"};
constexpr std::string_view kPrograms[] = {".BAT", ".CMD", ".COM", ".EXE", ".MSC", ".SCR"};
constexpr std::string_view kLinks[] = {".APPREF-MS", ".LNK", ".PIF", ".URL", ".WEBSITE"};

template <std::size_t N>
bool Contains(const std::string_view (&list)[N], std::string_view text) {
  return std::find(std::begin(list), std::end(list), text) != std::end(list);
}

/// The extension of a path with its dot, in capitals; empty for a name without.
std::string ExtensionOf(std::string_view path) {
  const std::size_t slash = path.rfind('\\');
  const std::string_view name = slash == std::string_view::npos ? path : path.substr(slash + 1);
  const std::size_t dot = name.rfind('.');
  return dot == std::string_view::npos ? std::string() : UpperCase(name.substr(dot));
}

Lookup InFile(std::string_view file, int index, int size) {
  return {.Kind = LookupKind::IconInFile, .Path = std::string(file), .Number = index, .Size = size};
}

Lookup AsShown(std::string_view file, int size) {
  return {.Kind = LookupKind::FileIcon, .Path = std::string(file), .List = IconListOf(size)};
}

/// Of a file that may lie in the program's own folder of icons.
std::vector<Lookup> FileQuestions(std::string_view file, bool own, bool shellDrawsIcons, int size) {
  // The shell would show one picture for all icon files.
  if (own && !shellDrawsIcons) return {InFile(file, 0, size), AsShown(file, size)};
  return {AsShown(file, size)};
}

}  // namespace

IconList IconListOf(int size) noexcept {
  return size == kSmallIconSize ? IconList::Small : IconList::Large;
}

std::vector<Lookup> IconQuestions(const IconForm& form, bool shellDrawsIcons, int size) {
  switch (form.Kind) {
    case IconKind::Empty:
    case IconKind::BuiltIn:
    case IconKind::SystemIndex:
      break;
    case IconKind::SpecialFolder:
      return {{.Kind = LookupKind::ShellIcon,
               .Path = {},
               .Number = CsidlValue(ParseSpecialFolder(form.Text, {}).Name),
               .List = IconListOf(size)}};
    case IconKind::FileIndex: {
      std::vector<Lookup> questions = FileQuestions(form.Text, form.OwnIcon, shellDrawsIcons, size);
      questions.insert(questions.begin(), InFile(form.File, form.Index, size));
      return questions;
    }
    case IconKind::File:
      return FileQuestions(form.Text, form.OwnIcon, shellDrawsIcons, size);
  }
  return {};
}

std::vector<Lookup> BlankIconQuestions(std::string_view iconsPath, bool shellDrawsIcons, int size) {
  return FileQuestions(std::string(iconsPath) + std::string(kBlankFile), true, shellDrawsIcons,
                       size);
}

std::string SharedIconExtension(const IconForm& form) {
  if (form.Kind != IconKind::File) return {};
  std::string extension = ExtensionOf(form.Text);
  return Contains(kOwnIcons, extension) ? std::string() : extension;
}

std::string_view NeutralGlyph(const IconForm& form) {
  if (form.Kind == IconKind::SpecialFolder) return "folder";
  const std::string extension =
      ExtensionOf(form.Kind == IconKind::FileIndex ? form.File : form.Text);
  if (extension.empty()) return "folder";
  if (Contains(kPrograms, extension)) return "program";
  return Contains(kLinks, extension) ? "link" : "document";
}

}  // namespace corvelle
