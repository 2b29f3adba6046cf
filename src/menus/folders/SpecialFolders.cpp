#include "menus/folders/SpecialFolders.h"

#include <cstdint>
#include <optional>
#include <vector>

#include "base/Text.h"
#include "core/SpecialFolders.h"
#include "desk/AnswerDesk.h"
#include "launch/CommandForm.h"
#include "launch/LaunchItem.h"
#include "launch/StartBeside.h"
#include "platform/Input.h"
#include "platform/ShellFolders.h"

namespace corvelle {

namespace {

using forms::MouseButton;

constexpr int kDesktop = 0;
constexpr std::string_view kRootWindow = "? explorer.exe /root,";
/// How old the answer may be that a path is there. Milliseconds: a disk that took longer than the
/// click could wait has its menu with the next click.
constexpr std::int64_t kThereAge = 10'000;

/// Opens a folder; what is left to do for it as a command, else empty.
std::string OpenFolder(ShellFolders& folders, int folder) {
  const SpecialFolderKind kind = KindOfSpecialFolder(folder);
  if (kind == SpecialFolderKind::None) return {};
  if (kind != SpecialFolderKind::Shell) {
    const auto path = folders.PathOf(folder);
    if (path && kind == SpecialFolderKind::Desktop) return std::string(kRootWindow) + *path;
    if (path || kind == SpecialFolderKind::Disk) return path.value_or("");
  }
  // Nothing is asked, and a dialog of the shell would hold up the windows of its owner.
  static_cast<void>(folders.OpenFolder(folder, kNoWindow));
  return {};
}

/// The same for an entry with "CSIDL_": the folder, or the entry of its title in it.
std::string OpenApart(ShellFolders& folders, const SpecialFolderText& text,
                      std::string_view argument) {
  const int folder = CsidlValue(text.Name);
  if (text.Title.empty()) return OpenFolder(folders, folder);
  // What is gone or refused is passed over.
  static_cast<void>(
      DoSpecialFolder(folders, folder, text.Title, MouseButton::Left, argument, {}, kNoWindow));
  return {};
}

bool IsQuoted(std::string_view text) noexcept {
  return text.size() >= 2 && text.front() == '"' && text.back() == '"';
}

bool IsSpecial(std::string_view command) {
  return ClassifyCommand(command).Kind == CommandKind::SpecialFolder;
}

}  // namespace

bool DoSpecialFolder(ShellFolders& folders, int folder, std::string_view title, MouseButton button,
                     std::string_view argument, PixelPoint at, WindowId owner) {
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

void SpecialFolders::OpenSpecialFolder(std::string_view name, std::string_view argument) {
  const bool file = IsQuoted(argument);
  const SpecialFolderText text = ParseSpecialFolder(name, file ? std::string_view() : argument);
  StartBeside<std::string>(
      launch_.Starts, std::string(name) + "\n" + std::string(argument),
      [text, parameters = file ? std::string(argument) : std::string()](
          const StartServices& services) { return OpenApart(services.Folders, text, parameters); },
      [&launch = launch_](const std::string& command) {
        if (!command.empty()) LaunchItem(launch, command);
      });
}

bool SpecialFolders::ShowContextMenu(std::string_view command, std::string_view title,
                                     PixelPoint at, WindowId owner) {
  if (!IsSpecial(command)) {
    // A folder that is not expanded has the menu of the folder.
    return DoExplorerMenu(owner, Trim(command.substr(0, command.find('*'))), at);
  }
  const SpecialFolderText text = ParseSpecialFolder(command, title);
  const int folder = CsidlValue(text.Name);
  if (text.Title.empty()) return ShowFolderMenu(folder, at, owner);
  return DoSpecialFolder(folders_, folder, text.Title, MouseButton::Right, {}, at, owner);
}

bool SpecialFolders::DoExplorerMenu(WindowId owner, const std::string& path, PixelPoint at) {
  const auto reply =
      answers_.AskAtOnce({.Question = {.Path = path}, .MaxAge = kThereAge}, desk::Asker());
  if (!reply || reply->How == desk::End::NotAvailable) {
    pointer_.Beep();
    return false;
  }
  return reply->Value == LookupValue(true) && folders_.FileMenu(path, at, owner);
}

bool SpecialFolders::ShowFolderMenu(int folder, PixelPoint at, WindowId owner) {
  if (KindOfSpecialFolder(folder) == SpecialFolderKind::Shell)
    return folders_.FolderMenu(folder, at, owner);
  const auto path = folders_.PathOf(folder);
  return path && DoExplorerMenu(owner, *path, at);
}

}  // namespace corvelle
