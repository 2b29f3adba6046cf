#include "menus/window/MainMenu.h"

#include <algorithm>
#include <string>

#include "base/Text.h"
#include "core/GuardFlags.h"
#include "core/MenuState.h"
#include "core/OptionFile.h"
#include "core/OptionFlags.h"
#include "core/StripPlacement.h"
#include "core/WindowPorts.h"
#include "desk/AnswerDesk.h"
#include "forms/EventPump.h"
#include "forms/Scopes.h"
#include "forms/WindowSystem.h"
#include "menus/window/frmQMenu.h"

namespace corvelle {
namespace {

/// The still picture of the strip, where there is a window for it.
class StripPicture {
 public:
  explicit StripPicture(const WindowPorts& ports) : ports_(ports) {
    if (CapturePort* const capture = ports_.Capture) capture->SetPicture1();
  }
  StripPicture(const StripPicture&) = delete;
  StripPicture& operator=(const StripPicture&) = delete;
  ~StripPicture() {
    if (CapturePort* const capture = ports_.Capture) capture->ResetPicture1();
  }

 private:
  const WindowPorts& ports_;
};

bool StripStands(const WindowPorts& ports) {
  return ports.Toolbar != nullptr && ports.Toolbar->WindowLoaded();
}

}  // namespace

struct MainMenu::Choice {
  std::string_view Text;
  void (MainMenu::*Run)();
  int Label = 0;  // of an item that is not always to be chosen
};

MainMenuFacts MainMenu::Facts() const {
  return {.LargeIcons = with_.Options.Flags.Is(Option::LargeIcons),
          .AutoHide = with_.Strip.AutoHide,
          .NotOnTop = with_.Strip.NotOnTop,
          .Docked = with_.Strip.AppBarDocked};
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
    if (with_.Menu.SelectedItem == 0) return;
    wanted = menu_.Items()[index].Title;
  }
  menu_.HideMenu();
  with_.Events.DoEvents();
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
      {"Help Topics", &MainMenu::ShowHelpTopics},
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
  if (choice == std::end(kChoices) || with_.Guards.ChangingMode || !StripStands(with_.Ports))
    return;
  if (IsChoosable(choice->Label, Facts())) (this->*choice->Run)();
}

void MainMenu::EndChoice() {
  if (menu_.IsLoaded()) menu_.DropSelection();
  with_.Menu.SelectedItem = 0;
  if (StripStands(with_.Ports)) with_.Ports.Toolbar->ResetMenu();
}

void MainMenu::Customize() {
  if (with_.Ports.Customize != nullptr) with_.Ports.Customize->LoadWindow();
}

void MainMenu::About() {
  if (with_.Ports.About != nullptr) with_.Ports.About->LoadWindow();
}

void MainMenu::RefreshAll() {
  const StripPicture picture(with_.Ports);
  const forms::HourglassScope hourglass(menu_.Windows());
  with_.Answers.TryAllAgain();
  menu_.InitIcons();
  with_.Ports.Toolbar->InitNewButtons();
}

void MainMenu::Forget() {
  if (with_.Ports.Toolbar != nullptr) with_.Ports.Toolbar->RemoveQMenu(kMainMenuKey);
}

// ---- the look of the strip ----

void MainMenu::LargeIcons() {
  if (with_.Strip.AppBarDocked && with_.Strip.ToolbarVertical) {
    const forms::FlagScope changing(with_.Guards.ChangingMode);
    with_.Options.Flags.Flip(Option::LargeIcons);
    with_.Ports.Toolbar->InitNewButtons();
  } else {
    ToggleLargeIcons();
  }
  with_.Options.SaveOptionFlags();
  Forget();
}

void MainMenu::ToggleLargeIcons() {
  if (with_.Guards.ChangingMode || !StripStands(with_.Ports)) return;
  const StripPicture picture(with_.Ports);
  const forms::FlagScope changing(with_.Guards.ChangingMode);
  ToolbarPort& strip = *with_.Ports.Toolbar;
  with_.Options.Flags.Flip(Option::LargeIcons);
  strip.UnloadItems();
  if (!strip.WindowLoaded()) return;
  strip.InitButtons();
  if (!strip.WindowLoaded() || !with_.Strip.AppBarDocked || with_.Ports.Docking == nullptr) return;
  with_.Ports.Docking->SetAppBar(with_.Strip.ToolbarEdge, false);
}

void MainMenu::AutoHide() {
  DockingPort* const docking = with_.Ports.Docking;
  // Only an edge of the screen hides a strip.
  if (docking == nullptr) return;
  ToolbarPort& strip = *with_.Ports.Toolbar;
  {
    const StripPicture picture(with_.Ports);
    const forms::FlagScope changing(with_.Guards.ChangingMode);
    strip.SetPointerWatch(false);
    if (with_.Strip.AutoHide) {
      EndAutoHide();
    } else if (!StartAutoHide()) {
      return;
    }
    with_.Options.SaveOptionFlags();
    Forget();
  }
  if (strip.WindowLoaded()) strip.SetPointerWatch(true);
}

// False when another window hides at that edge; nothing has changed then.
bool MainMenu::StartAutoHide() {
  DockingPort& docking = *with_.Ports.Docking;
  if (!docking.AutoHideFree(with_.Strip.ToolbarEdge)) return false;
  with_.Strip.AutoHide = true;
  with_.Options.Flags.Set(Option::AutoHide, true);
  docking.SetAppBar(with_.Strip.ToolbarEdge, !with_.Strip.AppBarDocked);
  if (with_.Strip.NotOnTop) {
    with_.Options.Flags.Set(Option::NotOnTop, false);
    if (with_.Ports.Minimize != nullptr) with_.Ports.Minimize->DeActivateSysTray();
    with_.Strip.NotOnTop = false;
  }
  return true;
}

// The edge is taken again, with its room on the screen.
void MainMenu::EndAutoHide() {
  with_.Strip.AutoHide = false;
  with_.Options.Flags.Set(Option::AutoHide, false);
  with_.Ports.Docking->SetAppBar(with_.Strip.ToolbarEdge, !with_.Strip.AppBarDocked);
}

void MainMenu::NotOnTop() {
  MinimizePort* const companion = with_.Ports.Minimize;
  if (companion == nullptr) return;
  const forms::FlagScope changing(with_.Guards.ChangingMode);
  const bool now = with_.Strip.NotOnTop;
  Forget();
  if (now) {
    companion->DeActivateSysTray();
  } else {
    companion->ActivateSysTray();
  }
  with_.Options.SaveOptionFlags();
  // What was built meanwhile shows the mark of before.
  Forget();
}

// ---- the place of the strip ----

void MainMenu::Restore() {
  with_.Options.Flags.Set(Option::AtEdge, false);
  if (!with_.Options.Flags.Is(Option::LargeInRestoreMode))
    with_.Options.Flags.Set(Option::LargeIcons, false);
  Forget();
  with_.Ports.Toolbar->RestoreToolbar();
}

void MainMenu::Maximize() {
  DockingPort* const docking = with_.Ports.Docking;
  if (docking == nullptr) return;
  Forget();
  OptionFlags stored = with_.Options.Flags;
  stored.Set(Option::AtEdge, true);
  EdgePlacement placement;
  ReadEdgeFlags(stored, placement);
  docking->SetAppBar(placement.ToolbarEdge, true);
}

void MainMenu::Minimize() {
  MinimizePort* const companion = with_.Ports.Minimize;
  if (companion != nullptr) companion->MinimizeFor(with_.Ports.Toolbar->WindowBounds());
}

// ---- help and the end ----

void MainMenu::ShowHelpTopics() { with_.Help.Show(); }

// The companion's end is the program's end; what the strip has to save it saves before.
void MainMenu::Exit() {
  ToolbarPort& strip = *with_.Ports.Toolbar;
  strip.HideWindow();
  strip.SetPointerWatch(false);
  strip.UnloadWindow();
  if (with_.Ports.Minimize != nullptr) with_.Ports.Minimize->UnloadWindow();
}

}  // namespace corvelle
