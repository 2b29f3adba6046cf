#include "launch/LaunchItem.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "base/Text.h"
#include "core/Program.h"
#include "launch/CommandForm.h"
#include "platform/FileSystem.h"
#include "platform/ShellExec.h"

namespace corvelle {

namespace {

namespace msgbox = forms::msgbox;

constexpr std::string_view kEmptyText =
    "Empty string in the File Field. Check your entries in the Customize window.";
constexpr std::string_view kUnavailableText = "File/Device unavailable.";
constexpr std::string_view kNoAccessText = "Error: 70 - Permission denied";
constexpr std::string_view kOpenWithCommand = "rundll32.exe shell32.dll,OpenAs_RunDLL ";
// No file of an address has a use for more.
constexpr std::size_t kUrlFileLimit = 1'048'576;

struct WordCommand {
  CommandKind Kind;
  void (BuiltInCommandsPort::*Run)();
};

constexpr WordCommand kWordCommands[] = {
    {CommandKind::NetSearch, &BuiltInCommandsPort::ShowNetSearch},
    {CommandKind::FindComputer, &BuiltInCommandsPort::FindComputer},
    {CommandKind::MinimizeAllWindows, &BuiltInCommandsPort::MinimizeAllWindows},
    {CommandKind::UndoMinimizeAll, &BuiltInCommandsPort::UndoMinimizeAll},
    {CommandKind::ClearRecentDocs, &BuiltInCommandsPort::ClearRecentDocs},
    {CommandKind::ClearTempFolder, &BuiltInCommandsPort::ClearTempFolder},
    {CommandKind::FileFind, &BuiltInCommandsPort::FileFind},
};

std::optional<std::string_view> IfAny(const std::string& text) {
  if (text.empty()) return std::nullopt;
  return text;
}

void SayUnavailable(Program& program) {
  program.Say(program.ToolbarWindow(), kUnavailableText, msgbox::IconStop | msgbox::OnTop);
}

void SayNoAccess(Program& program) {
  program.Say(program.ToolbarWindow(), kNoAccessText, msgbox::IconStop | msgbox::OnTop);
}

/// Opens through the shell. True when that settles it: it is started, the user has refused it, or
/// is told that there is no access. What failed otherwise may be started another way.
bool OpenSettled(Program& program, std::string_view file,
                 std::optional<std::string_view> parameters,
                 std::optional<std::string_view> folder) {
  const auto opened = program.Services.Shell.Open(file, parameters, folder);
  if (!opened && opened.Error() == OpenError::AccessDenied) SayNoAccess(program);
  return opened || opened.Error() != OpenError::Other;
}

/// Only the shell can ask the user for the elevation that a program needs.
void OpenElevated(Program& program, std::string_view commandLine) {
  FileSystem& files = program.Services.Files;
  const CommandLineParts parts = SplitCommandLine(
      commandLine, [&files](const std::string& path) { return files.FileExists(path); });
  const std::string folder = GetItemWorkDir(parts.Program);
  if (!OpenSettled(program, parts.Program, parts.Arguments, IfAny(folder))) SayUnavailable(program);
}

/// Starts a command line. When it does not start, the user is told why, or is offered the programs
/// that might open the file of `command`.
void RunCommandLine(Program& program, std::string_view commandLine, std::string_view command) {
  ShellExec& shell = program.Services.Shell;
  const auto started = shell.Run(commandLine);
  if (started) return;
  switch (started.Error()) {
    case RunError::BadFileName:
    case RunError::FileNotFound:
      SayUnavailable(program);
      return;
    case RunError::AccessDenied:
      SayNoAccess(program);
      return;
    case RunError::NeedsElevation:
      OpenElevated(program, commandLine);
      return;
    case RunError::Other:
      break;
  }
  const bool offered = program.Services.Files.FileExists(command) &&
                       shell.Run(std::string(kOpenWithCommand) + std::string(command));
  if (!offered) SayUnavailable(program);
}

/// A file or folder; failing that, a program with arguments.
void OpenOrRun(Program& program, const std::string& text) {
  const std::string folder = Trim(GetItemWorkDir(text));
  if (OpenSettled(program, text, std::nullopt, IfAny(folder))) return;
  program.Windows.PaintWaiting();
  RunCommandLine(program, text, text);
}

void OpenLink(Program& program, const std::string& link) {
  std::string target;
  const std::string folder = GetLinkWorkDir(program, link, target);
  // The system was asked to say nothing itself.
  if (!OpenSettled(program, link, std::nullopt, IfAny(folder))) SayUnavailable(program);
}

/// False when the command is no word of the program, or the program cannot carry it out.
bool RunWord(Program& program, CommandKind kind) {
  BuiltInCommandsPort* commands = program.Ports.BuiltInCommands;
  const auto* const word =
      std::find_if(std::begin(kWordCommands), std::end(kWordCommands),
                   [kind](const WordCommand& known) { return known.Kind == kind; });
  if (commands == nullptr || word == std::end(kWordCommands)) return false;
  (commands->*word->Run)();
  return true;
}

bool OpenAddress(Program& program, CommandKind kind, const std::string& address) {
  BrowserPort* browser = program.Ports.Browser;
  if (browser == nullptr) return false;
  if (kind == CommandKind::WebAddress) {
    browser->OpenUrl(address);
  } else {
    browser->OpenMail(address);
  }
  return true;
}

bool OpenSpecialFolder(Program& program, std::string_view name, std::string_view argument) {
  SpecialFoldersPort* folders = program.Ports.SpecialFolders;
  if (folders == nullptr) return false;
  folders->OpenSpecialFolder(name, argument);
  return true;
}

void RunForm(Program& program, CommandKind kind, const std::string& text) {
  bool done = false;
  switch (kind) {
    case CommandKind::Empty:
      program.Say(program.ToolbarWindow(), kEmptyText, msgbox::IconInformation | msgbox::OnTop);
      return;
    case CommandKind::UrlFile: {
      const std::string address = ReadUrlFile(program, text);
      RunForm(program, ClassifyAddress(address), address);
      return;
    }
    case CommandKind::ShellLink:
      OpenLink(program, text);
      return;
    case CommandKind::SpecialFolder:
      done = OpenSpecialFolder(program, text, {});
      break;
    case CommandKind::WebAddress:
    case CommandKind::MailAddress:
      done = OpenAddress(program, kind, text);
      break;
    default:
      done = RunWord(program, kind);
      break;
  }
  // What the program cannot carry out itself, the system may know.
  if (!done) OpenOrRun(program, text);
}

/// What a file was dropped on, as the start of a command line.
std::string ProgramOf(Program& program, const std::string& target) {
  if (!EndsWithNoCase(target, ".lnk") || program.Ports.ShellLinks == nullptr) return target;
  std::string path;
  static_cast<void>(GetLinkWorkDir(program, target, path));
  return path;
}

void OpenDropped(Program& program, const std::string& dropped, const std::string& target) {
  if (ClassifyCommand(target).Kind == CommandKind::SpecialFolder &&
      OpenSpecialFolder(program, target, dropped)) {
    return;
  }
  if (OpenSettled(program, target, dropped, std::nullopt)) return;
  const std::string command = ProgramOf(program, target);
  // Without a program the line would start what was dropped.
  if (command.empty()) {
    SayUnavailable(program);
    return;
  }
  RunCommandLine(program, command + " " + dropped, target);
}

}  // namespace

std::string LaunchItem(Program& program, std::string_view command) {
  // What the hint and the menu covered is seen again, but the next choice waits: it would be
  // started before this one.
  program.SetHint({});
  program.Windows.PaintWaiting();
  const CommandForm form = ClassifyCommand(command);
  RunForm(program, form.Kind, form.Text);
  return form.Text;
}

void OpenWithItem(Program& program, std::string_view droppedFile, std::string_view target) {
  const std::string dropped = Quoted(Trim(droppedFile));
  const std::string wanted = Trim(target);
  program.Windows.PaintWaiting();
  OpenDropped(program, dropped, wanted);
  program.Windows.SetMousePointer(forms::MousePointer::Default);
}

std::string ReadUrlFile(Program& program, std::string_view path) {
  const auto bytes = program.Services.Files.Read(path, 0, kUrlFileLimit);
  // What cannot be read holds no address.
  if (!bytes) return std::string(path);
  return ParseUrlFile(*bytes, program.Services.Ansi).value_or(std::string(path));
}

std::string GetLinkWorkDir(Program& program, std::string_view linkPath, std::string& target) {
  target.clear();
  if (program.Ports.ShellLinks != nullptr) target = program.Ports.ShellLinks->TargetOf(linkPath);
  return LinkFolder(target);
}

}  // namespace corvelle
