#include "launch/LaunchItem.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <optional>
#include <utility>

#include "base/Text.h"
#include "core/LaunchParts.h"
#include "core/MessageBoxes.h"
#include "core/WindowPorts.h"
#include "forms/WindowSystem.h"
#include "launch/CommandForm.h"
#include "launch/StartBeside.h"
#include "platform/FileSystem.h"
#include "platform/ShellExec.h"
#include "platform/ShellLinks.h"
#include "platform/Starter.h"

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

void SayUnavailable(const LaunchParts& with) {
  with.Messages.Say(with.Ports.ToolbarWindow(), kUnavailableText, msgbox::IconStop | msgbox::OnTop);
}

void SayNoAccess(const LaunchParts& with) {
  with.Messages.Say(with.Ports.ToolbarWindow(), kNoAccessText, msgbox::IconStop | msgbox::OnTop);
}

/// How an attempt ended, and what the user is told.
enum class StartEnd {
  Settled,  // started, or the user has refused it
  Unavailable,
  NoAccess,
};

/// Tries one way after the other on the thread that starts; holds no more than values.
using Attempts = std::function<StartEnd(const StartServices&)>;

void Tell(const LaunchParts& with, StartEnd end) {
  switch (end) {
    case StartEnd::Settled:
      return;
    case StartEnd::Unavailable:
      SayUnavailable(with);
      return;
    case StartEnd::NoAccess:
      SayNoAccess(with);
      return;
  }
}

/// Starts beside the windows and tells the user how it ended. Does nothing while `what` is being
/// started already.
void StartApart(const LaunchParts& with, const std::string& what, Attempts attempts) {
  StartBeside<StartEnd>(with.Starts, what, std::move(attempts),
                        [with](StartEnd end) { Tell(with, end); });
}

/// Opens through the shell. A result when that settles it: it is started, the user has refused it,
/// or there is no access. What failed otherwise may be started another way.
std::optional<StartEnd> OpenSettled(const StartServices& services, std::string_view file,
                                    std::optional<std::string_view> parameters,
                                    std::optional<std::string_view> folder) {
  const auto opened = services.Shell.Open(file, parameters, folder);
  if (IsSettled(opened)) return StartEnd::Settled;
  if (opened.Error() == OpenError::AccessDenied) return StartEnd::NoAccess;
  return std::nullopt;
}

/// Only the shell can ask the user for the elevation that a program needs.
StartEnd OpenElevated(const StartServices& services, std::string_view commandLine) {
  FileSystem& files = services.Files;
  const CommandLineParts parts = SplitCommandLine(
      commandLine, [&files](const std::string& path) { return files.FileExists(path); });
  const std::string folder = GetItemWorkDir(parts.Program);
  return OpenSettled(services, parts.Program, parts.Arguments, IfAny(folder))
      .value_or(StartEnd::Unavailable);
}

/// Starts a command line. When it does not start, the user is told why, or is offered the programs
/// that might open the file of `command`.
StartEnd RunCommandLine(const StartServices& services, std::string_view commandLine,
                        std::string_view command) {
  const auto started = services.Shell.Run(commandLine);
  if (started) return StartEnd::Settled;
  switch (started.Error()) {
    case RunError::BadFileName:
    case RunError::FileNotFound:
      return StartEnd::Unavailable;
    case RunError::AccessDenied:
      return StartEnd::NoAccess;
    case RunError::NeedsElevation:
      return OpenElevated(services, commandLine);
    case RunError::Other:
      break;
  }
  const bool offered = services.Files.FileExists(command) &&
                       services.Shell.Run(std::string(kOpenWithCommand) + std::string(command));
  return offered ? StartEnd::Settled : StartEnd::Unavailable;
}

/// A file or folder; failing that, a program with arguments.
void OpenOrRun(const LaunchParts& with, const std::string& text) {
  StartApart(with, text, [text](const StartServices& services) {
    const std::string folder = Trim(GetItemWorkDir(text));
    const auto settled = OpenSettled(services, text, std::nullopt, IfAny(folder));
    return settled ? *settled : RunCommandLine(services, text, text);
  });
}

/// The target of a link; empty when it has none or cannot be read.
std::string TargetOf(const StartServices& services, const std::string& link) {
  const auto object = services.Links.CreateLinkObject();
  if (object == nullptr || !object->Load(link)) return {};
  return StripAtNull(object->GetPath().value_or(std::string()));
}

void OpenLink(const LaunchParts& with, const std::string& link) {
  const bool readsLinks = with.Ports.ShellLinks != nullptr;
  StartApart(with, link, [link, readsLinks](const StartServices& services) {
    const std::string folder = readsLinks ? LinkFolder(TargetOf(services, link)) : std::string();
    // The system was asked to say nothing itself.
    return OpenSettled(services, link, std::nullopt, IfAny(folder)).value_or(StartEnd::Unavailable);
  });
}

/// False when the command is no word of the program, or the program cannot carry it out.
bool RunWord(const LaunchParts& with, CommandKind kind) {
  BuiltInCommandsPort* commands = with.Ports.BuiltInCommands;
  const auto* const word =
      std::find_if(std::begin(kWordCommands), std::end(kWordCommands),
                   [kind](const WordCommand& known) { return known.Kind == kind; });
  if (commands == nullptr || word == std::end(kWordCommands)) return false;
  (commands->*word->Run)();
  return true;
}

bool OpenAddress(const LaunchParts& with, CommandKind kind, const std::string& address) {
  BrowserPort* browser = with.Ports.Browser;
  if (browser == nullptr) return false;
  if (kind == CommandKind::WebAddress) {
    browser->OpenUrl(address, {});
  } else {
    browser->OpenMail(address);
  }
  return true;
}

bool OpenSpecialFolder(const LaunchParts& with, std::string_view name, std::string_view argument) {
  SpecialFoldersPort* folders = with.Ports.SpecialFolders;
  if (folders == nullptr) return false;
  folders->OpenSpecialFolder(name, argument);
  return true;
}

void RunForm(const LaunchParts& with, CommandKind kind, const std::string& text);

/// The file is read beside the windows; what it holds is then carried out as a command is.
void OpenUrlFile(const LaunchParts& with, const std::string& file) {
  StartBeside<std::string>(
      with.Starts, file,
      [file](const StartServices& services) {
        const auto bytes = services.Files.Read(file, 0, kUrlFileLimit);
        // What cannot be read holds no address.
        return bytes ? ParseUrlFile(*bytes, services.Ansi).value_or(file) : file;
      },
      [with](const std::string& address) { RunForm(with, ClassifyAddress(address), address); },
      UnderWay::UntilTold);
}

void RunForm(const LaunchParts& with, CommandKind kind, const std::string& text) {
  bool done = false;
  switch (kind) {
    case CommandKind::Empty:
      with.Messages.Say(with.Ports.ToolbarWindow(), kEmptyText,
                        msgbox::IconInformation | msgbox::OnTop);
      return;
    case CommandKind::UrlFile:
      OpenUrlFile(with, text);
      return;
    case CommandKind::ShellLink:
      OpenLink(with, text);
      return;
    case CommandKind::SpecialFolder:
      done = OpenSpecialFolder(with, text, {});
      break;
    case CommandKind::WebAddress:
    case CommandKind::MailAddress:
      done = OpenAddress(with, kind, text);
      break;
    default:
      done = RunWord(with, kind);
      break;
  }
  // What the program cannot carry out itself, the system may know.
  if (!done) OpenOrRun(with, text);
}

void OpenDropped(const LaunchParts& with, const std::string& dropped, const std::string& target) {
  if (ClassifyCommand(target).Kind == CommandKind::SpecialFolder &&
      OpenSpecialFolder(with, target, dropped)) {
    return;
  }
  const bool followsLink = EndsWithNoCase(target, ".lnk") && with.Ports.ShellLinks != nullptr;
  StartApart(with, target + " " + dropped,
             [dropped, target, followsLink](const StartServices& services) {
               const auto settled = OpenSettled(services, target, dropped, std::nullopt);
               if (settled) return *settled;
               const std::string command = followsLink ? TargetOf(services, target) : target;
               // Without a program the line would start what was dropped.
               if (command.empty()) return StartEnd::Unavailable;
               return RunCommandLine(services, command + " " + dropped, target);
             });
}

}  // namespace

std::string LaunchItem(const LaunchParts& with, std::string_view command) {
  // What the hint and the menu covered is seen again, but the next choice waits: it would be
  // started before this one.
  with.Ports.SetHint({});
  with.Windows.PaintWaiting();
  const CommandForm form = ClassifyCommand(command);
  RunForm(with, form.Kind, form.Text);
  return form.Text;
}

void OpenWithItem(const LaunchParts& with, std::string_view droppedFile, std::string_view target) {
  const std::string dropped = Quoted(Trim(droppedFile));
  const std::string wanted = Trim(target);
  with.Windows.PaintWaiting();
  OpenDropped(with, dropped, wanted);
  with.Windows.SetMousePointer(forms::MousePointer::Default);
}

std::string ReadUrlFile(FileSystem& files, const CodePage& ansi, std::string_view path) {
  const auto bytes = files.Read(path, 0, kUrlFileLimit);
  // What cannot be read holds no address.
  if (!bytes) return std::string(path);
  return ParseUrlFile(*bytes, ansi).value_or(std::string(path));
}

std::string GetLinkWorkDir(ShellLinksPort* links, std::string_view linkPath, std::string& target) {
  target.clear();
  if (links != nullptr) target = links->TargetOf(linkPath);
  return LinkFolder(target);
}

}  // namespace corvelle
