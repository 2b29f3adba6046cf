#include "menus/window/MainMenu.h"

#include <algorithm>
#include <string>

#include "base/Text.h"
#include "core/Instance.h"
#include "core/OptionFlags.h"
#include "core/Program.h"
#include "forms/Scopes.h"
#include "launch/LaunchItem.h"
#include "menus/window/frmQMenu.h"
#include "platform/FileSystem.h"

namespace corvelle {
namespace {

/// The still picture of the strip, where there is a window for it.
class StripPicture {
 public:
  explicit StripPicture(Program& program) : program_(program) {
    if (CapturePort* const capture = program_.Ports.Capture) capture->SetPicture1();
  }
  StripPicture(const StripPicture&) = delete;
  StripPicture& operator=(const StripPicture&) = delete;
  ~StripPicture() {
    if (CapturePort* const capture = program_.Ports.Capture) capture->ResetPicture1();
  }

 private:
  Program& program_;
};

bool StripStands(const Program& program) {
  return program.Ports.Toolbar != nullptr && program.Ports.Toolbar->WindowLoaded();
}

}  // namespace

struct MainMenu::Choice {
  std::string_view Text;
  void (MainMenu::*Run)();
  int Label = 0;  // of an item that is not always to be chosen
};

MainMenuFacts MainMenu::Facts() const {
  return {.LargeIcons = program_.OptionFlags.Is(Option::LargeIcons),
          .AutoHide = program_.Strip.AutoHide,
          .NotOnTop = program_.Strip.NotOnTop,
          .Docked = program_.Strip.AppBarDocked};
}

// ---- marks ----

void MainMenu::CheckLabels() {
  if (!menu_.IsLoaded() || !EqualNoCase(menu_.MenuKey, kMainMenuKey)) return;
  const MainMenuFacts facts = Facts();
  bool changed = false;
  for (const int label : kMarkedLabels) {
    changed = menu_.SetItemIcon(label, MarkIcon(IsMarked(label, facts))) || changed;
  }
  if (changed) menu_.RedrawPage();
  // To enable one item takes the disabled look away from all.
  for (const int label : kPlaceLabels) menu_.EnableLabel(label);
  for (const int label : kPlaceLabels) {
    if (!IsChoosable(label, facts)) menu_.DisableLabel(label);
  }
  menu_.Refresh();
}

// ---- choices ----

void MainMenu::xMainMenu(int index, std::string_view text) {
  std::string wanted = Trim(text);
  if (wanted.empty()) {
    if (program_.Menu.SelectedItem == 0) return;
    wanted = menu_.Items()[index].Title;
  }
  menu_.HideMenu();
  program_.DoEvents();
  Run(wanted);
  EndChoice();
}

void MainMenu::Run(std::string_view text) {
  static constexpr Choice kChoices[] = {
      {"Customize...", &MainMenu::Customize},
      {"Refresh All", &MainMenu::RefreshAll},
      {"Auto Hide", &MainMenu::AutoHide},
      {"Not On Top", &MainMenu::NotOnTop},
      {"Large Icons", &MainMenu::LargeIcons},
      {"Help Topics", &MainMenu::HelpTopics},
      {"About...", &MainMenu::About},
      {"Restore", &MainMenu::Restore, kRestoreLabel},
      {"Maximize", &MainMenu::Maximize, kMaximizeLabel},
      {"Minimize", &MainMenu::Minimize, kMinimizeLabel},
      {"Exit", &MainMenu::Exit},
  };
  const auto* const choice =
      std::find_if(std::begin(kChoices), std::end(kChoices),
                   [text](const Choice& known) { return EqualNoCase(known.Text, text); });
  // One change of the strip at a time, and none of a strip that is gone.
  if (choice == std::end(kChoices) || program_.Guards.ChangingMode || !StripStands(program_))
    return;
  if (IsChoosable(choice->Label, Facts())) (this->*choice->Run)();
}

void MainMenu::EndChoice() {
  if (menu_.IsLoaded()) menu_.DropSelection();
  program_.Menu.SelectedItem = 0;
  if (StripStands(program_)) program_.Ports.Toolbar->ResetMenu();
}

void MainMenu::Customize() {
  if (program_.Ports.Customize != nullptr) program_.Ports.Customize->LoadWindow();
}

void MainMenu::About() {
  if (program_.Ports.About != nullptr) program_.Ports.About->LoadWindow();
}

void MainMenu::RefreshAll() {
  const StripPicture picture(program_);
  const forms::HourglassScope hourglass(program_.Windows);
  program_.Answers.TryAllAgain();
  menu_.InitIcons();
  program_.Ports.Toolbar->InitNewButtons();
}

void MainMenu::Forget() {
  if (program_.Ports.Toolbar != nullptr) program_.Ports.Toolbar->RemoveQMenu(kMainMenuKey);
}

// ---- the look of the strip ----

void MainMenu::LargeIcons() {
  if (program_.Strip.AppBarDocked && program_.Strip.ToolbarVertical) {
    const forms::FlagScope changing(program_.Guards.ChangingMode);
    program_.OptionFlags.Flip(Option::LargeIcons);
    program_.Ports.Toolbar->InitNewButtons();
  } else {
    ToggleLargeIcons();
  }
  program_.SaveOptionFlags();
  Forget();
}

void MainMenu::ToggleLargeIcons() {
  if (program_.Guards.ChangingMode || !StripStands(program_)) return;
  const StripPicture picture(program_);
  const forms::FlagScope changing(program_.Guards.ChangingMode);
  ToolbarPort& strip = *program_.Ports.Toolbar;
  program_.OptionFlags.Flip(Option::LargeIcons);
  strip.UnloadItems();
  if (!strip.WindowLoaded()) return;
  strip.InitButtons();
  if (!strip.WindowLoaded() || !program_.Strip.AppBarDocked || program_.Ports.Docking == nullptr)
    return;
  program_.Ports.Docking->SetAppBar(program_.Strip.ToolbarEdge, false);
}

void MainMenu::AutoHide() {
  DockingPort* const docking = program_.Ports.Docking;
  // Only an edge of the screen hides a strip.
  if (docking == nullptr) return;
  ToolbarPort& strip = *program_.Ports.Toolbar;
  {
    const StripPicture picture(program_);
    const forms::FlagScope changing(program_.Guards.ChangingMode);
    strip.SetPointerWatch(false);
    if (program_.Strip.AutoHide) {
      EndAutoHide();
    } else if (!StartAutoHide()) {
      return;
    }
    program_.SaveOptionFlags();
    Forget();
  }
  if (strip.WindowLoaded()) strip.SetPointerWatch(true);
}

// False when another window hides at that edge; nothing has changed then.
bool MainMenu::StartAutoHide() {
  DockingPort& docking = *program_.Ports.Docking;
  if (!docking.AutoHideFree(program_.Strip.ToolbarEdge)) return false;
  program_.Strip.AutoHide = true;
  program_.OptionFlags.Set(Option::AutoHide, true);
  docking.SetAppBar(program_.Strip.ToolbarEdge, !program_.Strip.AppBarDocked);
  if (program_.Strip.NotOnTop) {
    program_.OptionFlags.Set(Option::NotOnTop, false);
    if (program_.Ports.Minimize != nullptr) program_.Ports.Minimize->DeActivateSysTray();
    program_.Strip.NotOnTop = false;
  }
  return true;
}

// The edge is taken again, with its room on the screen.
void MainMenu::EndAutoHide() {
  program_.Strip.AutoHide = false;
  program_.OptionFlags.Set(Option::AutoHide, false);
  program_.Ports.Docking->SetAppBar(program_.Strip.ToolbarEdge, !program_.Strip.AppBarDocked);
}

void MainMenu::NotOnTop() {
  MinimizePort* const companion = program_.Ports.Minimize;
  if (companion == nullptr) return;
  const forms::FlagScope changing(program_.Guards.ChangingMode);
  const bool now = program_.Strip.NotOnTop;
  Forget();
  if (now) {
    companion->DeActivateSysTray();
  } else {
    companion->ActivateSysTray();
  }
  program_.SaveOptionFlags();
  // What was built meanwhile shows the mark of before.
  Forget();
}

// ---- the place of the strip ----

void MainMenu::Restore() {
  program_.OptionFlags.Set(Option::AtEdge, false);
  if (!program_.OptionFlags.Is(Option::LargeInRestoreMode))
    program_.OptionFlags.Set(Option::LargeIcons, false);
  Forget();
  program_.Ports.Toolbar->RestoreToolbar();
}

void MainMenu::Maximize() {
  DockingPort* const docking = program_.Ports.Docking;
  if (docking == nullptr) return;
  Forget();
  corvelle::OptionFlags stored = program_.OptionFlags;
  stored.Set(Option::AtEdge, true);
  EdgePlacement placement;
  ReadEdgeFlags(stored, placement);
  docking->SetAppBar(placement.ToolbarEdge, true);
}

void MainMenu::Minimize() {
  MinimizePort* const companion = program_.Ports.Minimize;
  if (companion != nullptr) companion->MinimizeFor(program_.Ports.Toolbar->WindowBounds());
}

// ---- help and the end ----

void MainMenu::HelpTopics() {
  const std::string help = program_.Paths.ShippedFile("corvelle.hlp");
  if (!program_.Services.Files.FileExists(help)) {
    HelpPort* const pages = program_.Ports.Help;
    if (pages != nullptr && pages->ShowPage(HelpPage::Contents)) return;
    program_.Say(program_.ToolbarWindow(),
                 "Corvelle help file could not be found in Corvelle folder.",
                 forms::msgbox::IconStop | forms::msgbox::OnTop);
    return;
  }
  if (!ActivatePrevInstance(program_.Services.Desktop, "Corvelle Help")) LaunchItem(program_, help);
}

// The companion's end is the program's end; what the strip has to save it saves before.
void MainMenu::Exit() {
  ToolbarPort& strip = *program_.Ports.Toolbar;
  strip.HideWindow();
  strip.SetPointerWatch(false);
  strip.UnloadWindow();
  if (program_.Ports.Minimize != nullptr) program_.Ports.Minimize->UnloadWindow();
}

}  // namespace corvelle
