// The strip and the menu window: opening, rereading, placing and closing.

#include <string>

#include "base/Text.h"
#include "core/MenuFile.h"
#include "core/Program.h"
#include "forms/Scopes.h"
#include "platform/DesktopWindows.h"
#include "toolbar/frmToolbar.h"

namespace corvelle {
namespace {

/// Number of the button in a menu's tag; 0 for a tag without one.
int ButtonOfTag(std::string_view tag) {
  if (tag == "Q1") return 1;
  return tag.empty() ? 0 : ParseNumber(tag.substr(1)).value_or(0);
}

}  // namespace

bool frmToolbar::MenuUp() const {
  return program_.Ports.QMenu != nullptr && program_.Ports.QMenu->MenuVisible();
}

bool frmToolbar::OpensMenu(int button) const {
  if (button < 1 || button > ButtonCount || program_.Ports.QMenu == nullptr) return false;
  return button != 1 || program_.Ports.MainMenu != nullptr;
}

// An active window that hides hands the activation to whatever window Windows finds next, of
// another program too.
void frmToolbar::TakeOverFromMenu() {
  if (program_.Services.Desktop.ActiveWindow() == program_.Ports.QMenu->WindowHandle()) SetFocus();
}

void frmToolbar::HideMenuWindow() {
  if (!MenuUp()) return;
  TakeOverFromMenu();
  program_.Ports.QMenu->HideMenu();
  program_.Services.Desktop.PaintVisibleWindows();
}

void frmToolbar::ShowMenu(int button) {
  if (program_.Guards.StartingUp || !OpensMenu(button)) return;
  QMenuPort& menu = *program_.Ports.QMenu;
  if (menu.OwnerTag().empty()) menu.SetOwnerTag("0");
  if (MenuUp() && menu.OwnerTag() == std::to_string(button)) {
    ResetMenu();
    LastOpenFlag = true;
    LastOpenButton = button;
    program_.SetHint("");
    if (IsLoaded()) AnnounceHint();
    return;
  }
  ShowMenuOf(button);
}

void frmToolbar::ShowMenuOf(int button) {
  QMenuPort& menu = *program_.Ports.QMenu;
  Timer2.SetEnabled(false);
  LastOpenFlag = false;
  TakeHintDown();
  // The program keeps the foreground from one menu to the next, but leaves it to a drag's source.
  if (MenuUp() && !program_.DragHolds()) SetFocus();
  HideMenuWindow();

  std::string file = ToolbarButtons[static_cast<std::size_t>(button)].Path;
  const bool isMainMenu = file == kMainMenuPath;
  lastTag_ = isMainMenu ? "Q1" : "F" + std::to_string(button);
  if (isMainMenu) file = program_.Paths.AppPath + std::string(kMainMenuFileName);

  menu.SetOwnerTag(std::to_string(button));
  menu.SetPoll(false);
  program_.Menu.MenuOpen = true;
  const std::string tag = lastTag_;
  menu.ShowMenu(tag, file);
  if (!IsLoaded()) return;
  // Events ran while the menu was built, and something may have closed it again.
  if (!program_.Menu.MenuOpen || !MenuUp()) {
    ResetMenu();
    return;
  }
  menu.SetPoll(true);
  WasHovering = false;
  Timer2.SetEnabled(true);
}

void frmToolbar::OpenMenu(std::string_view tag) {
  const int button = ButtonOfTag(tag.empty() ? std::string_view(lastTag_) : tag);
  if (!OpensMenu(button)) return;
  program_.Menu.CurButton = button;
  SetButtonBorders();
  ShowMenuOf(button);
}

void frmToolbar::RefreshMenu(std::string_view tag) {
  QMenuPort* const menu = program_.Ports.QMenu;
  if (menu == nullptr || MenuRefreshing) return;
  // No menu opens beside a strip that is in the task bar: it is built when it opens.
  if (program_.Strip.ToolbarMinimized) return RemoveQMenu(tag);
  const forms::FlagScope refreshing(MenuRefreshing);
  Timer2.SetEnabled(false);
  menu->SetPoll(false);
  ReopenMenu(tag.empty() ? lastTag_ : std::string(tag));
  if (!IsLoaded()) return;
  SetEnabled(true);
  // A window that was disabled has lost the keyboard, though it is active.
  if (program_.Services.Desktop.ActiveWindow() == hWnd()) SetFocus();
  if (MenuUp()) Timer2.SetEnabled(true);
}

void frmToolbar::ReopenMenu(const std::string& tag) {
  QMenuPort& menu = *program_.Ports.QMenu;
  CapturePort* const capture = program_.Ports.Capture;
  const bool captures = capture != nullptr && MenuUp() && !capture->MenuCaptured();
  if (captures) capture->CaptureMenu();
  // While it is still enabled: a disabled window takes no activation.
  if (MenuUp()) TakeOverFromMenu();
  SetEnabled(false);
  if (MenuUp()) menu.HideMenu();
  ShowToolbar();
  if (ButtonOfTag(tag) != 0) {
    RemoveQMenu(tag);
    OpenMenu(tag);
    if (IsLoaded() && MenuUp()) {
      menu.GetCurMenu();
      menu.SetPoll(true);
    }
  }
  if (captures) capture->ReleaseMenu();
}

void frmToolbar::RemoveQMenu(std::string_view tag) {
  if (program_.Ports.QMenu != nullptr) program_.Ports.QMenu->ForgetMenu(tag);
}

void frmToolbar::ResetMenu() {
  if (!program_.Menu.MenuOpen && !program_.Entry.ItemDragging && !MenuUp()) return;
  Timer2.SetEnabled(false);
  program_.Menu.MenuOpen = false;
  program_.Menu.CurButton = 0;
  program_.Menu.KeyboardOnToolbar = false;
  MenuOpening = false;
  LastOpenFlag = false;
  LastOpenButton = 0;
  program_.Drag.DragOverButton = false;
  WasHovering = false;
  TipDueAt = 0;
  TipHideAt = 0;
  ShowRestingLook();
  if (QMenuPort* const menu = program_.Ports.QMenu) {
    menu->SetPoll(false);
    HideMenuWindow();
    CheckToolbarMove();
    menu->SetOwnerTag("0");
  }
  // What the menu covered is seen again, but the next press waits until this one is dealt with.
  program_.Windows.PaintWaiting();
}

}  // namespace corvelle
