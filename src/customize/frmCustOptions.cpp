#include <string>

#include "core/AskFiles.h"
#include "core/CommandPorts.h"
#include "core/OptionFlags.h"
#include "core/ProgramPaths.h"
#include "core/SettingsFiles.h"
#include "core/StripPlacement.h"
#include "customize/frmCust.h"
#include "platform/FileSystem.h"
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
        IsChecked(line, with_.Options, ownBrowser_));
  }
}

void frmCust::ChooseOption(CustOption option) {
  OptionFlags& flags = with_.Options;
  ToolbarPort* const strip = with_.Ports.Toolbar;
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
      SetAsStartupProgram(with_.Startup);
      break;
    case CustOption::RemoveStartup:
      RemoveFromStartup(with_.Startup);
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
  ownBrowser_ = with_.Files.FileExists(with_.Paths.AppPath + "openurl.ini");
}

void frmCust::FlipOption(Option option) { with_.Options.Flip(option); }

std::string frmCust::AskOneFile(std::string_view title, std::string_view startFolder) {
  const forms::FileChoice choice =
      AskFiles(*this, with_.Messages,
               {.Title = std::string(title), .StartFolder = std::string(startFolder)});
  return choice.Paths.empty() ? std::string() : choice.Paths.front();
}

void frmCust::ChooseWebIcon(bool custom) {
  FileSystem& files = with_.Files;
  if (custom) {
    const std::string icon = AskOneFile("Select one file.", Editor.LastFolder);
    if (icon.empty()) return;
    if (!SaveWebLinkIcon(files, with_.Ansi, with_.Paths.AppPath, icon)) return Beep();
  }
  with_.Options.Set(Option::OwnWebLinkIcon, custom);
  with_.WebLinkIcon = LoadWebLinkIcon(files, with_.Ansi, with_.Paths.AppPath, with_.Options);
}

void frmCust::ChooseBrowser(bool own) {
  BrowserPort* const browser = with_.Ports.Browser;
  if (browser == nullptr) return;
  if (own) {
    const std::string path = AskOneFile("Select one file.", Editor.LastFolder);
    if (path.empty()) return;
    browser->UseBrowser(path, hWnd(), [this, watch = MakeWatch()](bool) {
      if (!watch.Gone()) LookForBrowser();
    });
  } else {
    browser->UseDefaultBrowser();
    LookForBrowser();
  }
}

void frmCust::SetLargeIcons() {
  const bool large = !with_.Options.Is(Option::LargeInRestoreMode);
  with_.Options.Set(Option::LargeInRestoreMode, large);
  with_.Options.Set(Option::LargeIcons, large);
  with_.Options.Set(Option::AtEdge, false);
  if (with_.Ports.Toolbar != nullptr) with_.Ports.Toolbar->InitNewButtons();
}

void frmCust::SetSmallSingles() {
  const bool small = !with_.Options.Is(Option::SmallSingles);
  with_.Options.Set(Option::SmallSingles, small);
  DockingPort* const docking = with_.Ports.Docking;
  if (!small) {
    if (!with_.Strip.AppBarDocked) {
      Say("The change will take effect next time you switch to large icons toolbar.",
          forms::msgbox::IconInformation);
    } else if (docking != nullptr) {
      docking->SetAppBar(with_.Strip.ToolbarEdge, true);
    }
    return;
  }
  with_.Options.Set(Option::LargeIcons, true);
  if (docking == nullptr) return;
  docking->SetAppBar(with_.Strip.AppBarDocked ? with_.Strip.ToolbarEdge : Edge::Right, true);
}

}  // namespace corvelle
