#include "menus/folders/SpecialFolders.h"

#include <optional>
#include <vector>

#include "base/Text.h"
#include "core/Program.h"
#include "core/SpecialFolders.h"
#include "launch/CommandForm.h"
#include "launch/LaunchItem.h"
#include "platform/ShellFolders.h"
#include "platform/ShellIcons.h"

namespace corvelle {

namespace {

using forms::MouseButton;

constexpr int kDesktop = 0;
constexpr std::string_view kRootWindow = "? explorer.exe /root,";

bool OpenPath(Program& program, int folder) {
  const auto path = program.Services.Folders.PathOf(folder);
  if (!path) return false;
  LaunchItem(program, *path);
  return true;
}

bool OpenDesktop(Program& program, WindowId owner) {
  const auto path = program.Services.Folders.PathOf(kDesktop);
  if (!path) return program.Services.Folders.OpenFolder(kDesktop, owner);
  LaunchItem(program, std::string(kRootWindow) + *path);
  return true;
}

bool OpenFolder(Program& program, int folder, WindowId owner) {
  switch (KindOfSpecialFolder(folder)) {
    case SpecialFolderKind::Disk:
      return OpenPath(program, folder);
    case SpecialFolderKind::Desktop:
      return OpenDesktop(program, owner);
    case SpecialFolderKind::Shell:
      return program.Services.Folders.OpenFolder(folder, owner);
    case SpecialFolderKind::None:
      break;
  }
  return false;
}

/// The root of all folders has no menu; that of its folder on the disk stands in for it.
bool ShowFolderMenu(Program& program, int folder, PixelPoint at, WindowId owner) {
  if (KindOfSpecialFolder(folder) == SpecialFolderKind::Shell)
    return program.Services.Folders.FolderMenu(folder, at, owner);
  const auto path = program.Services.Folders.PathOf(folder);
  return path && DoExplorerMenu(program, owner, *path, at);
}

bool IsQuoted(std::string_view text) noexcept {
  return text.size() >= 2 && text.front() == '"' && text.back() == '"';
}

bool IsSpecial(std::string_view command) {
  return ClassifyCommand(command).Kind == CommandKind::SpecialFolder;
}

}  // namespace

bool DoSpecialFolder(Program& program, int folder, std::string_view title, MouseButton button,
                     std::string_view argument, PixelPoint at, WindowId owner) {
  ShellFolders& folders = program.Services.Folders;
  const std::string wanted = Trim(title);
  const bool opens = button == MouseButton::Left;
  // Most titles are whole names, which need no list.
  if (opens && folders.OpenEntry(folder, wanted, argument, owner)) return true;
  const auto names = folders.Names(folder);
  if (!names) return false;
  const int index = FindEntryByTitle(*names, wanted);
  if (index < 0) return false;
  const std::string& name = (*names)[static_cast<std::size_t>(index)];
  // The shell has refused that one.
  if (opens && name == wanted) return false;
  if (opens) return folders.OpenEntry(folder, name, argument, owner);
  return folders.EntryMenu(folder, name, at, owner);
}

bool DoExplorerMenu(Program& program, WindowId owner, std::string_view path, PixelPoint at) {
  return program.Services.Folders.FileMenu(path, at, owner);
}

std::string SpecialFolderName(Program& program, int folder, int& iconOut) {
  const auto self = program.Services.Folders.Folder(folder);
  iconOut = self ? self->IconIndex : -1;
  return self ? self->Name : std::string();
}

std::string SpecialFolderName(Program& program, std::string_view path, int& iconOut) {
  const auto info = program.Services.Icons.FileInfo(path, IconList::Small);
  iconOut = info ? info->SystemIndex : -1;
  return info ? info->DisplayName : std::string();
}

bool RunSpecialFolder(Program& program, std::string_view command, std::string_view title,
                      MouseButton button, std::string_view argument, PixelPoint at,
                      WindowId owner) {
  const SpecialFolderText text = ParseSpecialFolder(command, title);
  const int folder = CsidlValue(text.Name);
  if (!text.Title.empty())
    return DoSpecialFolder(program, folder, text.Title, button, argument, at, owner);
  if (button == MouseButton::Left) return OpenFolder(program, folder, owner);
  return ShowFolderMenu(program, folder, at, owner);
}

int SpecialFolders::SpecialFolderIconIndex(std::string_view name) {
  int icon = -1;
  static_cast<void>(
      SpecialFolderName(program_, CsidlValue(ParseSpecialFolder(name, {}).Name), icon));
  return icon;
}

void SpecialFolders::OpenSpecialFolder(std::string_view name, std::string_view argument) {
  const bool file = IsQuoted(argument);
  // What is gone or refused is passed over.
  static_cast<void>(RunSpecialFolder(program_, name, file ? std::string_view() : argument,
                                     MouseButton::Left, file ? argument : std::string_view(), {},
                                     program_.ToolbarWindow()));
}

bool SpecialFolders::ShowContextMenu(std::string_view command, std::string_view title,
                                     PixelPoint at, WindowId owner) {
  if (IsSpecial(command))
    return RunSpecialFolder(program_, command, title, MouseButton::Right, {}, at, owner);
  // A folder that is not expanded has the menu of the folder.
  return DoExplorerMenu(program_, owner, Trim(command.substr(0, command.find('*'))), at);
}

}  // namespace corvelle
