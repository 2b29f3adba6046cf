#include "toolbar/strip/MenuTracking.h"

#include "base/Text.h"
#include "core/MenuRecord.h"
#include "core/Program.h"
#include "forms/Form.h"
#include "forms/PictureBox.h"
#include "forms/Scopes.h"
#include "forms/Timer.h"
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

MenuTracking::MenuTracking(Program& program, TrackedStrip& strip, ButtonRow& buttons,
                           StripPull& pull, forms::PictureBox& picToolbar, forms::Timer& timer2)
    : program_(program),
      strip_(strip),
      window_(strip.AsForm()),
      buttons_(buttons),
      pull_(pull),
      picToolbar_(picToolbar),
      timer2_(timer2) {}

bool MenuTracking::MenuUp() const {
  return program_.Ports.QMenu != nullptr && program_.Ports.QMenu->MenuVisible();
}

bool MenuTracking::OpensMenu(int button) const {
  if (!buttons_.Has(button) || program_.Ports.QMenu == nullptr) return false;
  return button != 1 || program_.Ports.MainMenu != nullptr;
}

int MenuTracking::MenuOwner() const {
  const QMenuPort* const menu = program_.Ports.QMenu;
  const int owner = menu != nullptr ? ParseNumber(menu->OwnerTag()).value_or(0) : 0;
  return owner <= buttons_.ButtonCount ? owner : 0;
}

// When an active window hides, Windows activates whatever window it finds next, of
// another program too.
void MenuTracking::TakeOverFromMenu() {
  if (program_.Services.Desktop.ActiveWindow() == program_.Ports.QMenu->WindowHandle()) {
    window_.SetFocus();
  }
}

void MenuTracking::HideMenuWindow() {
  if (!MenuUp()) return;
  TakeOverFromMenu();
  program_.Ports.QMenu->HideMenu();
  program_.Services.Desktop.PaintVisibleWindows();
}

void MenuTracking::ShowMenu(int button) {
  if (program_.Guards.StartingUp || !OpensMenu(button)) return;
  QMenuPort& menu = *program_.Ports.QMenu;
  if (menu.OwnerTag().empty()) menu.SetOwnerTag("0");
  if (MenuUp() && menu.OwnerTag() == std::to_string(button)) {
    ResetMenu();
    LastOpenFlag = true;
    LastOpenButton = button;
    program_.Ports.SetHint("");
    if (window_.IsLoaded()) AnnounceHint();
    return;
  }
  ShowMenuOf(button);
}

void MenuTracking::ShowMenuOf(int button) {
  QMenuPort& menu = *program_.Ports.QMenu;
  timer2_.SetEnabled(false);
  LastOpenFlag = false;
  TakeHintDown();
  // The program keeps the foreground from one menu to the next, but leaves it to a drag's source.
  if (MenuUp() && !program_.Drag.DragHolds(program_.Services.Pointer)) window_.SetFocus();
  HideMenuWindow();

  std::string file = buttons_.PathOf(button);
  const bool isMainMenu = file == kMainMenuPath;
  lastTag_ = isMainMenu ? "Q1" : "F" + std::to_string(button);
  if (isMainMenu) file = program_.Paths.AppPath + std::string(kMainMenuFileName);

  menu.SetOwnerTag(std::to_string(button));
  menu.SetPoll(false);
  program_.Menu.MenuOpen = true;
  const std::string tag = lastTag_;
  menu.ShowMenu(tag, file);
  if (!window_.IsLoaded()) return;
  // Events ran while the menu was built, and something may have closed it again.
  if (!program_.Menu.MenuOpen || !MenuUp()) {
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
  program_.Menu.CurButton = button;
  SetButtonBorders();
  ShowMenuOf(button);
}

void MenuTracking::RefreshMenu(std::string_view tag) {
  QMenuPort* const menu = program_.Ports.QMenu;
  if (menu == nullptr || MenuRefreshing) return;
  // No menu opens beside a strip that is in the task bar: it is built when it opens.
  if (program_.Strip.ToolbarMinimized) return RemoveQMenu(tag);
  const forms::FlagScope refreshing(MenuRefreshing);
  timer2_.SetEnabled(false);
  menu->SetPoll(false);
  ReopenMenu(tag.empty() ? lastTag_ : std::string(tag));
  if (!window_.IsLoaded()) return;
  window_.SetEnabled(true);
  // A window that was disabled has lost the keyboard, though it is active.
  if (program_.Services.Desktop.ActiveWindow() == window_.hWnd()) window_.SetFocus();
  if (MenuUp()) timer2_.SetEnabled(true);
}

void MenuTracking::ReopenMenu(const std::string& tag) {
  QMenuPort& menu = *program_.Ports.QMenu;
  CapturePort* const capture = program_.Ports.Capture;
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
  if (program_.Ports.QMenu != nullptr) program_.Ports.QMenu->ForgetMenu(tag);
}

void MenuTracking::ResetMenu() {
  if (!program_.Menu.MenuOpen && !program_.Entry.ItemDragging && !MenuUp()) return;
  timer2_.SetEnabled(false);
  program_.Menu.MenuOpen = false;
  program_.Menu.CurButton = 0;
  program_.Menu.KeyboardOnToolbar = false;
  MenuOpening = false;
  LastOpenFlag = false;
  LastOpenButton = 0;
  program_.Drag.DragOverButton = false;
  WasHovering = false;
  Hint.Forget();
  buttons_.ShowResting();
  if (QMenuPort* const menu = program_.Ports.QMenu) {
    menu->SetPoll(false);
    HideMenuWindow();
    strip_.CheckToolbarMove();
    menu->SetOwnerTag("0");
  }
  // One that covers the menu while it is asked where an address goes has nothing to cover any more.
  CapturePort* const capture = program_.Ports.Capture;
  if (capture != nullptr && capture->MenuCaptured()) capture->ReleaseMenu();
  // What the menu covered is seen again, but the next press waits until this one is dealt with.
  program_.Windows.PaintWaiting();
}

void MenuTracking::SetMenuPosition() {
  QMenuPort* const menu = program_.Ports.QMenu;
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
  const int owner = MenuOwner() > 0 ? MenuOwner() : program_.Menu.CurButton;
  if (owner < 0 || owner > buttons_.ButtonCount) return std::nullopt;
  const ButtonRect& button = buttons_.ToolbarButtons[static_cast<std::size_t>(owner)];
  const StripShape shape = strip_.Shape();
  return MenuPosition(
      {.Where = program_.Strip.AppBarDocked ? Placement::AtEdge : Placement::TopHugging,
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
