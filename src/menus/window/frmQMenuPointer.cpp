// The pointer: selection, choice, right click, and what the strip hands on.

#include <utility>

#include "base/Text.h"
#include "core/Carry.h"
#include "core/MenuRecord.h"
#include "core/Program.h"
#include "forms/Scale.h"
#include "forms/Scopes.h"
#include "launch/LaunchItem.h"
#include "menus/window/frmQMenu.h"
#include "platform/DesktopWindows.h"
#include "platform/Input.h"

namespace corvelle {

using forms::MouseButton;
using forms::ShiftState;

bool frmQMenu::PointerOver() const {
  const WindowId under =
      program_.Services.Desktop.WindowAt(program_.Services.Pointer.PointerPosition());
  return under != kNoWindow && under == hWnd();
}

// The place that an event tells: by the time the event is dealt with the pointer may be elsewhere.
bool frmQMenu::IsOver(float x, float y) const {
  return program_.Services.Desktop.WindowAt(OnScreen(x, y)) == hWnd();
}

bool frmQMenu::StillAway(float x, float y) {
  if (PointerAway && IsOver(x, y)) PointerAway = false;
  return PointerAway;
}

void frmQMenu::TakeFocus() {
  program_.Menu.KeyboardOnToolbar = false;
  SetFocus();
}

// ---- moves ----

void frmQMenu::Form_MouseMove(MouseButton down, ShiftState /*shift*/, float x, float y) {
  PrevItem = program_.Menu.SelectedItem;
  if (const TwipPoint at{x, y}; at != movedTo_) {
    movedTo_ = at;
    movedAt_ = program_.Windows.Now();
  }
  if (program_.Guards.MenuBuilding) return;
  program_.Menu.KeyboardOnToolbar = false;
  const bool dragging = program_.Entry.ItemDragging || program_.Drag.DragOverButton;
  if (down == MouseButton::None && !dragging &&
      program_.Services.Desktop.ActiveWindow() != hWnd()) {
    SetFocus();
  }
  if (LineLeft.Visible()) {
    HideUpDownButton();
    ActiveArrow = kNoArrow;
  }
  if (!IsOver(x, y)) {
    DropSelection();
    CurItem = 0;
    ActiveArrow = kNoArrow;
    PointerAway = true;
    return;
  }
  PointerAway = false;
  KeyboardActive = false;
  rebuilt_ = false;
  if (IsBelowItems(Page(), y)) {
    DropSelection();
    CurItem = 0;
    return;
  }
  const int hit = ItemUnder(Page(), y, dragging);
  if (hit == 0) {
    DropSelection();
    return;
  }
  if (hit != program_.Menu.SelectedItem) SelectItem(hit);
}

// Not every system tells a window of a move when it comes up under a pointer that rests.
void frmQMenu::FollowPointer() {
  if (!std::exchange(rebuilt_, false)) return;
  const PixelPoint pointer = program_.Services.Pointer.PointerPosition();
  const PixelPoint corner = forms::ToPixels(Left(), Top(), Scale());
  OnMouseMove(MouseButton::None, {}, {pointer.x - corner.x, pointer.y - corner.y});
}

void frmQMenu::xMouseMove(float y) { Form_MouseMove(MouseButton::Left, {}, 0, y); }

void frmQMenu::mMouseMove(float x, float y) {
  // 50 twips are the window's own frame.
  Form_MouseMove(MouseButton::Left, {}, x - Left(), y - Top() - 50);
}

// ---- releases ----

void frmQMenu::Form_MouseUp(MouseButton button, ShiftState shift, float x, float y) {
  program_.Menu.KeyboardOnToolbar = false;
  const bool pressedHere = std::exchange(pressed_, false);
  if (program_.Carry.EndCarry(OnScreen(x, y), button, shift)) return;
  if (program_.Guards.MenuBuilding) return;
  if (button == MouseButton::Left && !StillAway(x, y)) {
    // The item at the place of the click counts, though the selection may have gone since.
    if (pressedHere && program_.Menu.SelectedItem == 0) Form_MouseMove(button, shift, x, y);
    ChooseItem(x, y);
  }
  if (button == MouseButton::Right) OfferItem(shift);
}

void frmQMenu::xMouseUp(MouseButton button, ShiftState shift, float x, float y) {
  TakeFocus();
  Form_MouseUp(button, shift, x, y);
}

void frmQMenu::ChooseItem(float x, float y) {
  if (!EqualNoCase(SavedMenuKey, MenuKey)) SavedMenuKey.clear();
  if (!Shape1.Visible()) return;
  if (x < 0 || y < 0 || x >= Width() || y >= Height()) return;
  const int hit = IsOutsideItems(Page(), y) ? 0 : HitItem(Page(), y);
  if (hit == 0 || !Lbl[hit].Enabled()) {
    DropSelection();
    return;
  }
  if (items_[hit].Folder == FolderState::NotAvailable) {
    DropSelection();
    program_.Ports.FolderMenus->TryAgain();
    return;
  }
  const std::string title = items_.NameOf(hit);
  const bool mainMenu = EqualNoCase(MenuKey, kMainMenuKey);
  // The program's own menu acts by its captions.
  const std::string command = mainMenu ? items_[hit].Title : GetExeName(hit);
  DropSelection();
  // The menu is gone before the item starts, and nothing comes between the two.
  CloseMenu();
  RunItem(mainMenu, hit, command, title);
}

void frmQMenu::RunItem(bool mainMenu, int index, const std::string& command,
                       const std::string& title) {
  if (mainMenu) {
    if (program_.Ports.MainMenu != nullptr) program_.Ports.MainMenu->xMainMenu(index, command);
    return;
  }
  if (command.empty()) {
    program_.Messages.Say(
        program_.Ports.ToolbarWindow(),
        "Empty string in the File Field. Check your entries in the Customize window.",
        forms::msgbox::IconStop | forms::msgbox::OnTop);
    return;
  }
  // A folder that is not expanded opens as itself.
  const std::string wanted = Trim(command.substr(0, command.find('*')));
  SpecialFoldersPort* const folders = program_.Ports.SpecialFolders;
  if (folders != nullptr && StartsWithNoCase(wanted, kSpecialFolderStart)) {
    folders->OpenSpecialFolder(wanted, title);
    return;
  }
  LaunchItem(program_.Launch, wanted);
}

void frmQMenu::OfferItem(ShiftState shift) {
  const int index = program_.Menu.SelectedItem;
  if (index == 0 || !Lbl[index].Enabled()) return;
  KeyboardActive = true;
  SavedMenuKey = MenuKey;
  if (OffersShellMenu(EqualNoCase(MenuKey, kMainMenuKey),
                      program_.OptionFlags.At(Option::SystemPopupWithCtrl), shift.Ctrl) &&
      program_.Ports.SpecialFolders != nullptr) {
    OfferShellMenu(index);
    return;
  }
  if (program_.Ports.Popup != nullptr) program_.Ports.Popup->ShowToolbarPopup(CurrentEntry(index));
}

EntryEdit frmQMenu::CurrentEntry(int index) {
  program_.Menu.ItemHasSeparator = items_[index].AfterSeparator;
  return items_.EntryOf(index);
}

void frmQMenu::OfferShellMenu(int index) {
  SetCurrentEntry(program_.Entry, CurrentEntry(index));
  // The item may be another one by the time the menu of the shell is gone, and so may the window.
  const std::string command = GetExeName(index);
  const std::string title = items_.NameOf(index);
  const std::string key = MenuKey;
  const auto watch = MakeWatch();
  const auto runs = [&] {
    // Until the user has chosen, a pointer that passes over the strip opens no other menu.
    const forms::CountScope asking(program_.Guards.OpenQuestions);
    const forms::FlagScope offering(shellMenuUp_);
    return program_.Ports.SpecialFolders->ShowContextMenu(
        command, title, program_.Services.Pointer.PointerPosition(), hWnd());
  };
  if (!runs() || watch.Gone()) return;
  // A menu that came up meanwhile is another matter.
  if (IsLoaded() && Visible() && EqualNoCase(MenuKey, key)) CloseMenu();
}

// ---- leaving ----

void frmQMenu::Timer1_Timer() {
  if (program_.Guards.MenuBuilding) return;
  // A message or a popup of the menu is no going away; what a command of the shell shows is.
  if (program_.Guards.OpenQuestions > 0 && !shellMenuUp_) return;
  // A drag decides which menu is up, but one that is hidden under it has to go, to come up again.
  if (program_.Drag.DragHolds(program_.Services.Pointer) && Visible()) return;
  // A still picture of the menu does not outlive the rebuild that it was made for.
  if (CapturePort* const capture = program_.Ports.Capture) {
    if (capture->MenuCaptured()) capture->ReleaseMenu();
  }
  const WindowId active = program_.Services.Desktop.ActiveWindow();
  const bool over = PointerOver();
  const bool ours =
      active != kNoWindow &&
      (active == hWnd() || active == program_.Ports.ToolbarWindow() || active == HintWindow());
  if (!ours || !Visible()) {
    // The user has gone to another program.
    if (!over) CloseMenu();
    return;
  }
  PointerAway = !over && !KeyboardActive;
  if (PointerAway) {
    DropSelection();
    CurItem = 0;
  }
  if (over) FollowPointer();
  if (pages_.Slides() > 0 && !over) {
    HideUpDownButton();
    ActiveArrow = kNoArrow;
  }
}

void frmQMenu::Form_Deactivate() {
  SetNormal(CurItem);
  DropSelection();
}

WindowId frmQMenu::HintWindow() const {
  return program_.Ports.Hint != nullptr ? program_.Ports.Hint->WindowHandle() : kNoWindow;
}

}  // namespace corvelle
