#include "core/Main.h"

#include <string>

#include "core/AppFolder.h"
#include "core/DataFolder.h"
#include "core/Instance.h"
#include "core/Program.h"
#include "core/SettingsFiles.h"
#include "core/Upgrade.h"
#include "platform/CrashReports.h"
#include "platform/FileSystem.h"
#include "platform/SystemInfo.h"

namespace corvelle {
namespace {

constexpr int kWelcomeTopic = 1002;

void LoadWindows(Program& program) {
  if (program.Ports.Toolbar != nullptr) program.Ports.Toolbar->LoadWindow();
  if (program.Ports.Minimize != nullptr) program.Ports.Minimize->LoadWindow();
}

bool HasEnded(const Program& program) {
  return program.Ports.Minimize != nullptr && !program.Ports.Minimize->WindowLoaded();
}

void CloseStartupWindow(Program& program) {
  if (program.OptionFlags.Is(Option::NoStartupScreen) || program.Ports.Startup == nullptr) return;
  program.Ports.Startup->HideWindow();
  program.Events.DoEvents();
  program.Ports.Startup->UnloadWindow();
}

void ShowWelcome(Program& program) {
  const std::string help = program.Paths.ShippedFile("corvelle.hlp");
  if (!program.Services.Files.FileExists(help)) {
    if (program.Ports.Help != nullptr) program.Ports.Help->OfferPage(HelpPage::FirstSteps);
    return;
  }
  SystemInfo& system = program.Services.System;
  if (!system.ShowHelpTopic(kNoWindow, help, kWelcomeTopic)) {
    system.ShowHelpTopic(program.Ports.ToolbarWindow(), help, kWelcomeTopic);
  }
}

// The link of an earlier copy is made again, so that it points to this one.
void OfferStartupLink(Program& program, StartupLinkPort& link) {
  const std::string executable = program.Paths.ShippedFile("corvelle.exe");
  if (link.Exists()) {
    link.Remove();
    link.Create(executable);
    return;
  }
  const int answer = program.Messages.Say(
      program.Ports.ToolbarWindow(),
      "Would you like to set Corvelle as a startup program?\r\n"
      "If you choose No, you can set it later from the Customize window under the Options menu.",
      forms::msgbox::YesNo | forms::msgbox::IconQuestion | forms::msgbox::OnTop);
  if (answer == forms::msgbox::AnswerYes) link.Create(executable);
}

// Without shell links the question cannot be kept, so it waits, and Option::FirstRunDone with it.
// Where the flags cannot be kept the answer could not be either: it would be asked for at each
// start.
void DoFirstRun(Program& program) {
  if (program.OptionFlags.Is(Option::FirstRunDone) || program.Ports.StartupLink == nullptr) return;
  program.Events.DoEvents();
  if (HasEnded(program)) return;
  if (!SaveOptionFlags(program.Services.Files, program.Paths.AppPath, program.OptionFlags)) return;
  OfferStartupLink(program, *program.Ports.StartupLink);
  program.OptionFlags.Set(Option::FirstRunDone, '1');
  program.Options.SaveOptionFlags();
  if (!HasEnded(program)) ShowWelcome(program);
}

DataFolder FindFolders(Program& program) {
  program.Paths.ShippedPath = FindAppPath(program.Services);
  DataFolder data = FindDataFolder(program.Services, program.Paths.ShippedPath);
  program.Paths.AppPath = data.Path;
  return data;
}

void TellOfCrash(Program& program) {
  const std::string report = program.Services.Crashes.TakeUntold();
  if (report.empty()) return;
  program.Messages.Say(
      program.Ports.ToolbarWindow(),
      "Corvelle ended unexpectedly the last time. A report about it is on this computer:\r\n" +
          report + "\r\n\r\nNothing has been sent to anyone.",
      forms::msgbox::IconInformation | forms::msgbox::OnTop);
}

// Told at each such start, as the user's own menus are missing until one finds them again.
void TellOfStandIn(Program& program) {
  program.Messages.Say(program.Ports.ToolbarWindow(),
                       "Corvelle cannot reach the folder of your menus and options.\r\n\r\n"
                       "Until a start finds it again, this folder is used instead:\r\n" +
                           program.Paths.AppPath,
                       forms::msgbox::IconInformation | forms::msgbox::OnTop);
}

void TellWhereDataIs(Program& program, const DataFolder& data) {
  if (data.StandsIn) TellOfStandIn(program);
  if (!data.Tell) return;
  if (WasToldAbout(program.Services, program.Paths.AppPath, program.Paths.ShippedPath)) return;
  program.Messages.Say(program.Ports.ToolbarWindow(),
                       "Corvelle cannot write to its own folder:\r\n" + program.Paths.ShippedPath +
                           "\r\n\r\nIt keeps your menus and options here:\r\n" +
                           program.Paths.AppPath,
                       forms::msgbox::IconInformation | forms::msgbox::OnTop);
  NoteToldAbout(program.Services, program.Paths.AppPath, program.Paths.ShippedPath);
}

// A flag file that another program holds at this moment is no new installation: nothing is cleaned
// away, and the run goes on with an installed version's flags.
void ReadOptions(Program& program) {
  const auto flags = ReadFlagsAtStart(program.Services.Files, program.Paths.AppPath);
  if (flags) {
    program.OptionFlags = *flags;
    return;
  }
  program.OptionFlags = FlagsAfterUpgrade();
  program.OptionFlags.Set(Option::FirstRunDone, true);
  program.OptionFlags.Set(Option::DefaultEntriesOffered, true);
}

void Upgrade(Program& program) {
  if (program.OptionFlags.Is(Option::UpgradeDone)) return;
  CleanInstallation(program.Services.Files, program.Paths.AppPath,
                    program.Paths.ShippedFile("anetsrch.org"));
  program.OptionFlags = FlagsAfterUpgrade();
  program.Options.SaveOptionFlags();
}

}  // namespace

bool Main(Program& program) {
  if (!ClaimSession(program.Title, program.Services.System, program.Services.Desktop,
                    program.Messages))
    return false;
  const DataFolder data = FindFolders(program);
  ReadOptions(program);
  program.Guards.StartingUp = true;
  program.Progress.ShowStartupProgress();
  program.Events.DoEvents();
  Upgrade(program);
  program.Icons.WebLinkIcon = LoadWebLinkIcon(program.Services.Files, program.Services.Ansi,
                                              program.Paths.AppPath, program.OptionFlags);
  // The strip comes first: threads and processes that look for icons would delay it.
  program.Answers.Hold();
  if (program.Ports.IconRule != nullptr) program.Ports.IconRule->DetectShellIcons();
  program.Strip.NotOnTop = program.OptionFlags.Is(Option::NotOnTop);
  LoadWindows(program);
  program.Answers.GoOn();
  CloseStartupWindow(program);
  // Events ran: the companion may have been closed, and the program with it.
  if (HasEnded(program)) return false;
  TellOfCrash(program);
  if (HasEnded(program)) return false;
  TellWhereDataIs(program, data);
  if (HasEnded(program)) return false;
  DoFirstRun(program);
  if (HasEnded(program)) return false;
  if (program.Strip.NotOnTop && program.Ports.Minimize != nullptr) {
    program.Ports.Minimize->ShowInSysTray();
  }
  program.Guards.StartingUp = false;
  return true;
}

}  // namespace corvelle
