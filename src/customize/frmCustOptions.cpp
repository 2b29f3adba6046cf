#include <string>

#include "core/CommandPorts.h"
#include "core/OptionFlags.h"
#include "core/Program.h"
#include "core/SettingsFiles.h"
#include "customize/frmCust.h"
#include "shell/ShellWiring.h"
#include "shell/StartupLink.h"

namespace corvelle {

void frmCust::AddOptionLines(MenuMaker& menu) {
  for (const CustOptionLine& line : CustOptionLines()) {
    if (line.Line == CustOption::Gap) {
      menu.AddGap();
      continue;
    }
    menu.Add(
        std::string(line.Caption), [this, option = line.Line] { ChooseOption(option); }, true,
        IsChecked(line, program_.OptionFlags, ownBrowser_));
  }
}

void frmCust::ChooseOption(CustOption option) {
  OptionFlags& flags = program_.OptionFlags;
  ToolbarPort* const strip = program_.Ports.Toolbar;
  switch (option) {
    case CustOption::KeepOnTop:
      FlipOption(Option::AboveFullScreen);
      break;
    case CustOption::StartupScreen:
      FlipOption(Option::NoStartupScreen);
      break;
    case CustOption::LeaveExtension:
      FlipOption(Option::KeepExtension);
      break;
    case CustOption::SingleClick:
      flags.Set(Option::SingleClick, true);
      break;
    case CustOption::DoubleClick:
      flags.Set(Option::SingleClick, false);
      break;
    case CustOption::SmallSingles:
      SetSmallSingles();
      break;
    case CustOption::CustomWebIcon:
      ChooseWebIcon(true);
      break;
    case CustOption::DefaultWebIcon:
      ChooseWebIcon(false);
      break;
    case CustOption::WebLinkDialog:
      FlipOption(Option::NoWebLinkDialog);
      break;
    case CustOption::AlternateBrowser:
      ChooseBrowser(true);
      break;
    case CustOption::DefaultBrowser:
      ChooseBrowser(false);
      break;
    case CustOption::AdjustLeft:
    case CustOption::AdjustRight:
      FlipOption(option == CustOption::AdjustLeft ? Option::MayPassLeft : Option::MayPassRight);
      if (strip != nullptr) strip->AdjustToolbarPosition();
      break;
    case CustOption::LargeIcons:
      SetLargeIcons();
      break;
    case CustOption::ShowDate:
      FlipOption(Option::ShowDate);
      if (strip != nullptr) strip->DoLabelDate();
      break;
    case CustOption::DisableHints:
      FlipOption(Option::NoHints);
      break;
    case CustOption::SystemPopup:
      flags.Set(Option::SystemPopupWithCtrl, true);
      break;
    case CustOption::OwnPopup:
      flags.Set(Option::SystemPopupWithCtrl, false);
      break;
    case CustOption::SetStartup:
      SetAsStartupProgram(StartupLinkPartsOf(program_));
      break;
    case CustOption::RemoveStartup:
      RemoveFromStartup(StartupLinkPartsOf(program_));
      break;
    case CustOption::ResetTips:
      ResetHelpTips(flags);
      Say("Help tip dialog has been reset.", forms::msgbox::IconInformation);
      break;
    case CustOption::Gap:
      break;
  }
  if (!IsLoaded()) return;
  MakeMenuBar();
  // The box about the Startup folder belongs to the strip, which is in the foreground after it.
  if (option == CustOption::SetStartup || option == CustOption::RemoveStartup) SetForeground();
}

void frmCust::LookForBrowser() {
  ownBrowser_ = program_.Services.Files.FileExists(program_.Paths.AppPath + "openurl.ini");
}

void frmCust::FlipOption(Option option) { program_.OptionFlags.Flip(option); }

std::string frmCust::AskOneFile(std::string_view title, std::string_view startFolder) {
  const forms::FileChoice choice = program_.Windows.AskFiles(
      hWnd(), {.Title = std::string(title), .StartFolder = std::string(startFolder)});
  return choice.Paths.empty() ? std::string() : choice.Paths.front();
}

void frmCust::ChooseWebIcon(bool custom) {
  FileSystem& files = program_.Services.Files;
  if (custom) {
    const std::string icon = AskOneFile("Select one file.", Editor.LastFolder);
    if (icon.empty()) return;
    if (!SaveWebLinkIcon(files, program_.Services.Ansi, program_.Paths.AppPath, icon))
      return Beep();
  }
  program_.OptionFlags.Set(Option::OwnWebLinkIcon, custom);
  program_.Icons.WebLinkIcon =
      LoadWebLinkIcon(files, program_.Services.Ansi, program_.Paths.AppPath, program_.OptionFlags);
}

void frmCust::ChooseBrowser(bool own) {
  BrowserPort* const browser = program_.Ports.Browser;
  if (browser == nullptr) return;
  if (own) {
    const std::string path = AskOneFile("Select one file.", Editor.LastFolder);
    if (path.empty()) return;
    browser->UseBrowser(path, [this, watch = MakeWatch()](bool) {
      if (!watch.Gone()) LookForBrowser();
    });
  } else {
    browser->UseDefaultBrowser();
    LookForBrowser();
  }
}

void frmCust::SetLargeIcons() {
  const bool large = !program_.OptionFlags.Is(Option::LargeInRestoreMode);
  program_.OptionFlags.Set(Option::LargeInRestoreMode, large);
  program_.OptionFlags.Set(Option::LargeIcons, large);
  program_.OptionFlags.Set(Option::AtEdge, false);
  if (program_.Ports.Toolbar != nullptr) program_.Ports.Toolbar->InitNewButtons();
}

void frmCust::SetSmallSingles() {
  const bool small = !program_.OptionFlags.Is(Option::SmallSingles);
  program_.OptionFlags.Set(Option::SmallSingles, small);
  DockingPort* const docking = program_.Ports.Docking;
  if (!small) {
    if (!program_.Strip.AppBarDocked) {
      Say("The change will take effect next time you switch to large icons toolbar.",
          forms::msgbox::IconInformation);
    } else if (docking != nullptr) {
      docking->SetAppBar(program_.Strip.ToolbarEdge, true);
    }
    return;
  }
  program_.OptionFlags.Set(Option::LargeIcons, true);
  if (docking == nullptr) return;
  docking->SetAppBar(program_.Strip.AppBarDocked ? program_.Strip.ToolbarEdge : Edge::Right, true);
}

}  // namespace corvelle
