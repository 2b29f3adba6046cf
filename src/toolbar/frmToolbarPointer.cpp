// The pointer over the buttons: which one is current, its look, and following the pointer.

#include "base/Text.h"
#include "core/Carry.h"
#include "core/MenuRecord.h"
#include "core/Program.h"
#include "forms/Scale.h"
#include "platform/DesktopWindows.h"
#include "platform/Input.h"
#include "toolbar/HintPlace.h"
#include "toolbar/frmToolbar.h"

namespace corvelle {
namespace {

constexpr std::int64_t kHintDelay = 500;  // milliseconds
constexpr std::int64_t kHintTime = 1500;
// A press and its release in the menu are one choice for so long. Who holds the button longer is
// looking, and may let go anywhere. Milliseconds.
constexpr std::int64_t kClickDelay = 5000;
constexpr int kMenuBorder = 3;  // pixels around the inside of the menu window

}  // namespace

void frmToolbar::GetCurButton() { FindCurButton(program_.Services.Pointer.PointerPosition()); }

void frmToolbar::FindCurButton(PixelPoint pointer) {
  program_.Menu.CurButton = ButtonAt(ToolbarButtons, PlaceOnScreen(), pointer,
                                     program_.Menu.CurButton, program_.Menu.MenuOpen);
  WatchCarry();
}

void frmToolbar::EmptyCurrentItem() { ForgetCurrentEntry(program_.Entry); }

int frmToolbar::MenuOwner() const {
  const QMenuPort* const menu = program_.Ports.QMenu;
  const int owner = menu != nullptr ? ParseNumber(menu->OwnerTag()).value_or(0) : 0;
  return owner <= ButtonCount ? owner : 0;
}

bool frmToolbar::IsOursActive() const {
  const WindowId active = program_.Services.Desktop.ActiveWindow();
  if (active == kNoWindow) return false;
  const WindowPorts& ports = program_.Ports;
  return active == hWnd() || (ports.QMenu != nullptr && active == ports.QMenu->WindowHandle()) ||
         (ports.Hint != nullptr && active == ports.Hint->WindowHandle());
}

bool frmToolbar::IsOverMenu(WindowId window) const {
  return MenuUp() && window == program_.Ports.QMenu->WindowHandle();
}

TwipPoint frmToolbar::InMenu(PixelPoint pointer) const {
  return {static_cast<float>(pointer.x - kMenuBorder) * TwipsX - menuLeft_,
          static_cast<float>(pointer.y - kMenuBorder) * TwipsY - menuTop_};
}

void frmToolbar::ShowLook(int button, const ButtonLook& look) {
  LinTB1[button].SetBorderColor(ColorValue(look.LinTB1.Color));
  LinTB1[button].SetVisible(look.LinTB1.Visible);
  LinTB2[button].SetBorderColor(ColorValue(look.LinTB2.Color));
  LinTB2[button].SetVisible(look.LinTB2.Visible);
}

void frmToolbar::ShowRestingLook() {
  for (int i = 1; i <= ButtonCount; ++i) ShowLook(i, kRestingLook);
}

void frmToolbar::SetButtonBorders() {
  Timer2.SetEnabled(false);
  const int current = program_.Menu.CurButton;
  if (current < 1 || current > ButtonCount) return;
  const std::vector<ButtonLook> looks = ButtonLooks({.Buttons = ToolbarButtons,
                                                     .CurButton = current,
                                                     .Vertical = program_.Strip.ToolbarVertical,
                                                     .Docked = program_.Strip.AppBarDocked,
                                                     .TwipsX = TwipsX,
                                                     .TwipsY = TwipsY});
  for (int i = 1; i <= ButtonCount; ++i) ShowLook(i, looks[static_cast<std::size_t>(i)]);
  LinTB1[current].ZOrder(forms::ZPlace::Front);
  LinTB2[current].ZOrder(forms::ZPlace::Front);
}

bool frmToolbar::LooksAtRest(int button) const {
  return button > 0 && LinTB1.Has(button) && LinTB1[button].Visible();
}

PixelPoint frmToolbar::InBox(float x, float y) const {
  return forms::ToPixels(Left() + picToolbar.Left() + x, Top() + picToolbar.Top() + y,
                         program_.Windows.Screen());
}

void frmToolbar::picToolbar_MouseDown(forms::MouseButton button, forms::ShiftState /*shift*/,
                                      float x, float y) {
  if (button != forms::MouseButton::Left) return;
  // The place of the press: by now the pointer may be elsewhere, or not be known to be here yet.
  pressedPlace_ = InBox(x, y);
  FindCurButton(pressedPlace_);
  PressCurButton();
}

// Opens the menu of the current button, or closes it when it is up.
void frmToolbar::PressCurButton() {
  // A press that arrives while a menu is being built is not the time to build another.
  if (program_.Guards.MenuBuilding || program_.Guards.StartingUp || program_.Menu.CurButton == 0)
    return;
  if (!OpensMenu(program_.Menu.CurButton)) {
    ResetMenu();
    return;
  }
  SetButtonBorders();
  MenuOpening = true;
  pressedAt_ = program_.Windows.Now();
  ShowMenu(program_.Menu.CurButton);
}

void frmToolbar::picToolbar_MouseMove(forms::MouseButton down, forms::ShiftState /*shift*/, float x,
                                      float y) {
  if (program_.Guards.IsSettling()) return;
  const bool anyDown = down != forms::MouseButton::None;
  if (!anyDown && !WasHovering) {
    StartHovering();
    if (!IsLoaded()) return;
  }
  const int before = program_.Menu.CurButton;
  const PixelPoint pointer = program_.Services.Pointer.PointerPosition();
  FindCurButton(pointer);
  const int current = program_.Menu.CurButton;
  if (current != before) {
    if (anyDown) {
      LastOpenFlag = false;
      LastOpenButton = 0;
    } else if (!program_.Menu.MenuOpen && !program_.Entry.ItemDragging) {
      TipDueAt = 0;
      TipHideAt = 0;
      program_.SetHint(HintOf(current));
    }
  }
  if ((program_.Menu.MenuOpen || program_.Entry.ItemDragging) && LooksAtRest(current) &&
      (IsOursActive() || program_.DragHolds())) {
    HoverButton(current);
  } else if (forms::Has(down, forms::MouseButton::Left) &&
             IsOverMenu(program_.Services.Desktop.WindowAt(InBox(x, y)))) {
    // What was passed over is selected, wherever the pointer is by now.
    program_.Ports.QMenu->xMouseMove(InMenu(InBox(x, y)).Y);
  }
}

void frmToolbar::StartHovering() {
  program_.SetHint("");
  program_.Guards.RestoreBusy = false;
  FrameMoved = false;
  WasHovering = true;
}

std::string frmToolbar::HintOf(int button) const {
  if (button < 1 || button > ButtonCount) return {};
  return DoubleAmpersands(records_[static_cast<std::size_t>(button)].FTitle);
}

void frmToolbar::AnnounceHint() {
  if (program_.Ports.Hint == nullptr || program_.OptionFlags.Is(Option::NoHints)) return;
  TipDueAt = program_.Windows.Now() + kHintDelay;
  Timer2.SetEnabled(true);
}

void frmToolbar::TakeHintDown() {
  TipDueAt = 0;
  TipHideAt = 0;
  program_.SetHint("");
}

void frmToolbar::KeepHintTimes(WindowId under) {
  const std::int64_t now = program_.Windows.Now();
  if (TipHideAt != 0 && now > TipHideAt) {
    TipHideAt = 0;
    program_.SetHint("");
    if (!IsLoaded()) return;
  }
  if (TipDueAt == 0 || now <= TipDueAt) return;
  TipDueAt = 0;
  if (under != picToolbar.hWnd() || program_.Menu.CurButton == 0) return;
  TipHideAt = now + kHintTime;
  program_.SetHint(HintOf(program_.Menu.CurButton));
}

// Moving along the strip changes the menu. The button of the program's own menu has none to show
// where that menu is not part of the program: the one that is up goes.
void frmToolbar::HoverButton(int button) {
  // A popup, a message or a menu of the shell stands over the menu that is up.
  if (program_.Guards.OpenQuestions > 0) return;
  if (!OpensMenu(button)) {
    HideMenuWhileTracking();
  } else if (!MenuUp() || MenuOwner() != button) {
    // The place of the pointer is not asked for again: it may have gone on to the button whose menu
    // is up, and to hover there is no second press.
    PressCurButton();
  }
}

// The menu goes off the screen, but the next button under the pointer opens its own at once.
void frmToolbar::HideMenuWhileTracking() {
  Timer2.SetEnabled(false);
  if (!MenuUp()) return;
  program_.Ports.QMenu->SetPoll(false);
  // The strip stays active, so that it hears when the user goes elsewhere.
  SetFocus();
  HideMenuWindow();
  // A drag that came straight into the menu, and whose source has died there, is over with it.
  if (!program_.Drag.DragEntered) program_.Drag.DragOverButton = false;
  program_.Ports.QMenu->SetOwnerTag("0");
  ShowRestingLook();
}

void frmToolbar::picToolbar_MouseUp(forms::MouseButton button, forms::ShiftState shift, float x,
                                    float y) {
  WasHovering = false;
  const PixelPoint pointer = program_.Services.Pointer.PointerPosition();
  if (EndCarry(program_, pointer, button, shift)) return;
  const WindowId under = program_.Services.Desktop.WindowAt(pointer);
  if (button == forms::MouseButton::Right) {
    if (under == hWnd()) return Form_MouseUp(button, shift, x, y);
    if (under == picSingleButton.hWnd()) return picSingleButton_MouseUp(button, shift, x, y);
    if (under == picToolbar.hWnd()) ShowButtonPopup();
    return;
  }
  // A release in the menu is a choice though the pointer may have gone on since.
  if (IsOverMenu(program_.Services.Desktop.WindowAt(InBox(x, y)))) {
    if (program_.Windows.Now() - pressedAt_ >= kClickDelay) return;
    const TwipPoint at = InMenu(InBox(x, y));
    // A release says once more where the hand is: the selection may have gone since it came there.
    // A menu that came up under a hand that rests has none.
    if (InBox(x, y) != pressedPlace_) program_.Ports.QMenu->xMouseMove(at.Y);
    program_.Ports.QMenu->xMouseUp(button, shift, at.X, at.Y);
    return;
  }
  FindCurButton(pointer);
  if (LastOpenFlag && LastOpenButton == program_.Menu.CurButton) {
    const int closed = LastOpenButton;
    ResetMenu();
    LastOpenFlag = true;
    LastOpenButton = closed;
  }
}

// The popup of a button acts on the button's own record, the first of its file.
void frmToolbar::ShowButtonPopup() {
  GetCurButton();
  const int button = program_.Menu.CurButton;
  if (program_.Ports.Popup == nullptr || button < 1 || button > ButtonCount) return ResetMenu();
  // Events run while the menu closes, and the button may be another one after them.
  const EntryEdit entry = EntryOfButton(button);
  ResetMenu();
  if (!IsLoaded()) return;
  lastTag_ = (button > 1 ? "F" : "B") + std::to_string(button);
  program_.Ports.Popup->ShowToolbarPopup(entry);
}

EntryEdit frmToolbar::EntryOfButton(int button) {
  EntryEdit entry{.CurMenuTag = "B" + std::to_string(button)};
  if (button == 1) return entry;
  entry.CurFile = ToolbarButtons[static_cast<std::size_t>(button)].Path;
  // A file that cannot be read now leaves the texts empty, and no edit will find its record.
  const MenuRecord record = ReadButtonRecord(entry.CurFile).value_or(MenuRecord{});
  entry.CurRecord = 1;
  entry.CurTitle = record.FTitle;
  entry.CurIcon = record.FIcon;
  entry.CurCommand = record.FName;
  return entry;
}

void frmToolbar::Timer2_Timer() {
  if (program_.Guards.OpenQuestions > 0) return;
  if (program_.Entry.ItemDragging || program_.Guards.PosChangeRunning ||
      program_.Guards.MenuBuilding)
    return;
  // What another program drags changes and closes the menu by its own events.
  if (program_.DragHolds()) return;
  const PixelPoint pointer = program_.Services.Pointer.PointerPosition();
  FindCurButton(pointer);
  const WindowId under = program_.Services.Desktop.WindowAt(pointer);
  // A hint that is due opens no menu.
  const bool tracksMenu = program_.Menu.MenuOpen;
  if (tracksMenu && under == picToolbar.hWnd()) {
    if (LooksAtRest(program_.Menu.CurButton) && MenuOwner() != program_.Menu.CurButton) {
      HoverButton(program_.Menu.CurButton);
    }
  } else if (tracksMenu && under == picSingleButton.hWnd()) {
    HideMenuWhileTracking();
    if (IsLoaded() && !program_.Entry.ItemDragging) Singles.sMouseMove();
  }
  if (!IsLoaded()) return;
  KeepHintTimes(under);
  if (!IsLoaded()) return;
  if (HasLeft(under)) {
    program_.Menu.MenuOpen = true;
    ResetMenu();
  }
  if (!MenuUp() && TipDueAt == 0 && TipHideAt == 0) Timer2.SetEnabled(false);
}

// True if the user has gone to another program's window.
bool frmToolbar::HasLeft(WindowId under) const {
  return !IsOursActive() && !IsOverMenu(under) && !ImageLoaded();
}

}  // namespace corvelle
