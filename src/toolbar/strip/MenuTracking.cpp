#include "toolbar/strip/MenuTracking.h"

#include "base/Text.h"
#include "core/Carry.h"
#include "core/DragState.h"
#include "core/GuardFlags.h"
#include "core/MenuRecord.h"
#include "core/MenuState.h"
#include "core/StripPlacement.h"
#include "core/WindowPorts.h"
#include "forms/Form.h"
#include "forms/PictureBox.h"
#include "forms/Scopes.h"
#include "forms/Timer.h"
#include "forms/WindowSystem.h"
#include "platform/DesktopWindows.h"
#include "toolbar/strip/ButtonRow.h"

namespace corvelle {
namespace {

/// Number of the button in a menu's tag; 0 for a tag without one.
int ButtonOfTag(std::string_view tag) {
  if (tag == "Q1") return 1;
  return tag.empty() ? 0 : ParseNumber(tag.substr(1)).value_or(0);
}

}  // namespace

MenuTracking::MenuTracking(const TrackingParts& with, TrackedStrip& strip, ButtonRow& buttons,
                           StripPull& pull, forms::PictureBox& picToolbar, forms::Timer& timer2)
    : with_(with),
      strip_(strip),
      window_(strip.AsForm()),
      buttons_(buttons),
      pull_(pull),
      picToolbar_(picToolbar),
      timer2_(timer2) {}

bool MenuTracking::MenuUp() const {
  return with_.Ports.QMenu != nullptr && with_.Ports.QMenu->MenuVisible();
}

bool MenuTracking::OpensMenu(int button) const {
  if (!buttons_.Has(button) || with_.Ports.QMenu == nullptr) return false;
  return button != 1 || with_.Ports.MainMenu != nullptr;
}

int MenuTracking::MenuOwner() const {
  const QMenuPort* const menu = with_.Ports.QMenu;
  const int owner = menu != nullptr ? ParseNumber(menu->OwnerTag()).value_or(0) : 0;
  return owner <= buttons_.ButtonCount ? owner : 0;
}

// The program keeps the foreground from one menu to the next: when an active window hides, Windows
// activates whatever window it finds next, of another program too.
void MenuTracking::TakeOverFromMenu() {
  if (with_.Desktop.ActiveWindow() == with_.Ports.QMenu->WindowHandle()) {
    window_.SetFocus();
  }
}

void MenuTracking::HideMenuWindow() {
  if (!MenuUp()) return;
  TakeOverFromMenu();
  with_.Ports.QMenu->HideMenu();
  with_.Desktop.PaintVisibleWindows();
}

void MenuTracking::ShowMenu(int button) {
  if (with_.Guards.StartingUp || !OpensMenu(button)) return;
  QMenuPort& menu = *with_.Ports.QMenu;
  if (menu.OwnerTag().empty()) menu.SetOwnerTag("0");
  if (MenuUp() && menu.OwnerTag() == std::to_string(button)) {
    ResetMenu();
    LastOpenFlag = true;
    LastOpenButton = button;
    with_.Ports.SetHint("");
    if (window_.IsLoaded()) AnnounceHint();
    return;
  }
  ShowMenuOf(button);
}

void MenuTracking::ShowMenuOf(int button) {
  QMenuPort& menu = *with_.Ports.QMenu;
  timer2_.SetEnabled(false);
  LastOpenFlag = false;
  TakeHintDown();
  HideMenuWindow();

  const bool isMainMenu = buttons_.PathOf(button) == kMainMenuPath;
  const std::string file = buttons_.MenuFileOf(button);
  lastTag_ = isMainMenu ? "Q1" : "F" + std::to_string(button);

  menu.SetOwnerTag(std::to_string(button));
  menu.SetPoll(false);
  with_.Menu.MenuOpen = true;
  const std::string tag = lastTag_;
  menu.ShowMenu(tag, file);
  if (!window_.IsLoaded()) return;
  // Events ran while the menu was built, and something may have closed it again.
  if (!with_.Menu.MenuOpen || !MenuUp()) {
    ResetMenu();
    return;
  }
  menu.SetPoll(true);
  WasHovering = false;
  timer2_.SetEnabled(true);
}

void MenuTracking::OpenMenu(std::string_view tag) {
  const int button = ButtonOfTag(tag.empty() ? std::string_view(lastTag_) : tag);
  if (!OpensMenu(button)) return;
  with_.Menu.CurButton = button;
  SetButtonBorders();
  ShowMenuOf(button);
}

void MenuTracking::RefreshMenu(std::string_view tag) {
  QMenuPort* const menu = with_.Ports.QMenu;
  if (menu == nullptr || MenuRefreshing) return;
  // No menu opens beside a strip that is in the task bar: it is built when it opens.
  if (with_.Strip.ToolbarMinimized) return RemoveQMenu(tag);
  const forms::FlagScope refreshing(MenuRefreshing);
  timer2_.SetEnabled(false);
  menu->SetPoll(false);
  ReopenMenu(tag.empty() ? lastTag_ : std::string(tag));
  if (!window_.IsLoaded()) return;
  window_.SetEnabled(true);
  // A window that was disabled has lost the keyboard, though it is active.
  if (with_.Desktop.ActiveWindow() == window_.hWnd()) window_.SetFocus();
  if (MenuUp()) timer2_.SetEnabled(true);
}

void MenuTracking::ReopenMenu(const std::string& tag) {
  QMenuPort& menu = *with_.Ports.QMenu;
  CapturePort* const capture = with_.Ports.Capture;
  const bool captures = capture != nullptr && MenuUp() && !capture->MenuCaptured();
  if (captures) capture->CaptureMenu();
  // While it is still enabled: a disabled window takes no activation.
  if (MenuUp()) TakeOverFromMenu();
  window_.SetEnabled(false);
  if (MenuUp()) menu.HideMenu();
  strip_.ShowToolbar();
  if (ButtonOfTag(tag) != 0) {
    RemoveQMenu(tag);
    OpenMenu(tag);
    if (window_.IsLoaded() && MenuUp()) {
      menu.GetCurMenu();
      menu.SetPoll(true);
    }
  }
  if (captures) capture->ReleaseMenu();
}

void MenuTracking::RemoveQMenu(std::string_view tag) {
  if (with_.Ports.QMenu != nullptr) with_.Ports.QMenu->ForgetMenu(tag);
}

void MenuTracking::ResetMenu() {
  if (!with_.Menu.MenuOpen && !with_.Carry.IsCarrying() && !MenuUp()) return;
  timer2_.SetEnabled(false);
  with_.Menu.MenuOpen = false;
  with_.Menu.CurButton = 0;
  with_.Menu.KeyboardOnToolbar = false;
  MenuOpening = false;
  LastOpenFlag = false;
  LastOpenButton = 0;
  with_.Drag.DragOverButton = false;
  WasHovering = false;
  Hint.Forget();
  buttons_.ShowResting();
  if (QMenuPort* const menu = with_.Ports.QMenu) {
    menu->SetPoll(false);
    HideMenuWindow();
    strip_.CheckToolbarMove();
    menu->SetOwnerTag("0");
  }
  // One that covers the menu while it is asked where an address goes has nothing to cover any more.
  CapturePort* const capture = with_.Ports.Capture;
  if (capture != nullptr && capture->MenuCaptured()) capture->ReleaseMenu();
  // What the menu covered is seen again, but the next press waits until this one is dealt with.
  window_.Windows().PaintWaiting();
}

void MenuTracking::SetMenuPosition() {
  QMenuPort* const menu = with_.Ports.QMenu;
  if (menu == nullptr) return;
  const std::optional<MenuSpot> spot = SpotFor(menu->MenuSize());
  if (!spot) return;
  menuAt_ = {spot->Left, spot->Top};
  menu->MoveMenu(spot->Left, spot->Top);
}

float MenuTracking::TopOfMenu() const {
  const std::optional<MenuSpot> spot = SpotFor({});
  return spot ? spot->Top : 0;
}

std::optional<MenuSpot> MenuTracking::SpotFor(const TwipSize& menu) const {
  // The menu's own button, since the pointer may have gone on while the menu was built.
  const int owner = MenuOwner() > 0 ? MenuOwner() : with_.Menu.CurButton;
  if (owner < 0 || owner > buttons_.ButtonCount) return std::nullopt;
  const ButtonRect& button = buttons_.ToolbarButtons[static_cast<std::size_t>(owner)];
  const StripShape shape = strip_.Shape();
  return MenuPosition(
      {.Where = with_.Strip.AppBarDocked ? Placement::AtEdge : Placement::TopHugging,
       .At = shape.At,
       .Window = window_.Bounds(),
       .ButtonLeft = button.Left,
       .ButtonTop = button.Top,
       .MenuWidth = menu.Width,
       .MenuHeight = menu.Height,
       .ScreenHeight = window_.Screen().Height,
       .TwipsX = shape.Scale.TwipsX,
       .TwipsY = shape.Scale.TwipsY});
}

}  // namespace corvelle
