// The pointer over the buttons: which one is current, its look, and following the pointer.

#include "core/Carry.h"
#include "core/DragState.h"
#include "core/GuardFlags.h"
#include "core/MenuState.h"
#include "core/OptionFlags.h"
#include "core/StripPlacement.h"
#include "core/WindowPorts.h"
#include "forms/Form.h"
#include "forms/PictureBox.h"
#include "forms/Scale.h"
#include "forms/Timer.h"
#include "forms/WindowSystem.h"
#include "platform/DesktopWindows.h"
#include "platform/Input.h"
#include "toolbar/docking/StripPull.h"
#include "toolbar/strip/ButtonRow.h"
#include "toolbar/strip/MenuTracking.h"

namespace corvelle {
namespace {

// A press and its release in the menu are one choice for so long. Who holds the button longer is
// looking, and may let go anywhere. Milliseconds.
constexpr std::int64_t kClickDelay = 5000;
constexpr int kMenuBorder = 3;  // pixels around the inside of the menu window

}  // namespace

void MenuTracking::GetCurButton() { FindCurButton(with_.Pointer.PointerPosition()); }

void MenuTracking::FindCurButton(PixelPoint pointer) {
  with_.Menu.CurButton = buttons_.At(pointer, with_.Menu.CurButton, with_.Menu.MenuOpen);
  strip_.WatchCarry();
}

bool MenuTracking::IsOursActive() const {
  const WindowId active = with_.Desktop.ActiveWindow();
  if (active == kNoWindow) return false;
  const WindowPorts& ports = with_.Ports;
  return active == window_.hWnd() ||
         (ports.QMenu != nullptr && active == ports.QMenu->WindowHandle()) ||
         (ports.Hint != nullptr && active == ports.Hint->WindowHandle());
}

bool MenuTracking::IsOverMenu(WindowId window) const {
  return MenuUp() && window == with_.Ports.QMenu->WindowHandle();
}

WindowId MenuTracking::WindowUnder(PixelPoint pointer) const {
  return with_.Desktop.WindowAt(pointer);
}

TwipPoint MenuTracking::InMenu(PixelPoint pointer) const {
  const StripScale scale = strip_.Shape().Scale;
  return {static_cast<float>(pointer.x - kMenuBorder) * scale.TwipsX - menuAt_.X,
          static_cast<float>(pointer.y - kMenuBorder) * scale.TwipsY - menuAt_.Y};
}

PixelPoint MenuTracking::InBox(float x, float y) const {
  return forms::ToPixels(window_.Left() + picToolbar_.Left() + x,
                         window_.Top() + picToolbar_.Top() + y, window_.Scale());
}

void MenuTracking::SetButtonBorders() {
  timer2_.SetEnabled(false);
  buttons_.ShowPressed(with_.Menu.CurButton);
}

void MenuTracking::picToolbar_MouseDown(forms::MouseButton button, float x, float y) {
  if (button == forms::MouseButton::Left) PressAt(InBox(x, y));
}

// The place of the press: by now the pointer may be elsewhere, or not be known to be here yet.
void MenuTracking::PressAt(PixelPoint at) {
  pressedPlace_ = at;
  FindCurButton(at);
  PressCurButton();
}

// The second press of a quick pair closes what the first opened, like any other second press.
void MenuTracking::picToolbar_DblClick() {
  const TwipPoint at = picToolbar_.PressPlace();
  PressAt(InBox(at.X, at.Y));
}

void MenuTracking::PressCurButton() {
  // A press that arrives while a menu is being built is not the time to build another.
  if (with_.Guards.MenuBuilding || with_.Guards.StartingUp || with_.Menu.CurButton == 0) return;
  if (!OpensMenu(with_.Menu.CurButton)) {
    ResetMenu();
    return;
  }
  SetButtonBorders();
  MenuOpening = true;
  ShowMenu(with_.Menu.CurButton);
  // The time in which a release chooses begins now: that of building the menu does not count.
  pressedAt_ = window_.Windows().Now();
}

void MenuTracking::picToolbar_MouseMove(forms::MouseButton down, float x, float y) {
  if (with_.Guards.IsSettling()) return;
  const bool anyDown = down != forms::MouseButton::None;
  if (!anyDown && !WasHovering) {
    StartHovering();
    if (!window_.IsLoaded()) return;
  }
  const int before = with_.Menu.CurButton;
  GetCurButton();
  const int current = with_.Menu.CurButton;
  if (current != before) {
    if (anyDown) {
      LastOpenFlag = false;
      LastOpenButton = 0;
    } else if (!with_.Menu.MenuOpen && !with_.Carry.IsCarrying()) {
      Hint.Forget();
      with_.Ports.SetHint(buttons_.HintOf(current));
    }
  }
  if ((with_.Menu.MenuOpen || with_.Carry.IsCarrying()) && buttons_.LooksAtRest(current) &&
      (IsOursActive() || with_.Drag.DragHolds(with_.Pointer))) {
    HoverButton(current);
  } else if (forms::Has(down, forms::MouseButton::Left) && IsOverMenu(WindowUnder(InBox(x, y)))) {
    // What was passed over is selected, wherever the pointer is by now.
    with_.Ports.QMenu->xMouseMove(InMenu(InBox(x, y)).Y);
  }
}

void MenuTracking::StartHovering() {
  with_.Ports.SetHint("");
  with_.Guards.RestoreBusy = false;
  pull_.ForgetMove();
  WasHovering = true;
}

// Moving along the strip changes the menu. The button of the program's own menu has none to show
// where that menu is not part of the program: the one that is up goes.
void MenuTracking::HoverButton(int button) {
  // A popup, a message or a menu of the shell is over the menu that is up.
  if (with_.Guards.OpenQuestions > 0) return;
  if (!OpensMenu(button)) {
    HideMenuWhileTracking();
  } else if (!MenuUp() || MenuOwner() != button) {
    // The place of the pointer is not asked for again: it may have gone on to the button whose menu
    // is up, and to hover there is no second press.
    PressCurButton();
  }
}

// The menu goes off the screen, but the next button under the pointer opens its own at once.
void MenuTracking::HideMenuWhileTracking() {
  timer2_.SetEnabled(false);
  if (!MenuUp()) return;
  with_.Ports.QMenu->SetPoll(false);
  // The strip stays active, so that it hears when the user goes elsewhere.
  window_.SetFocus();
  HideMenuWindow();
  // A drag that came straight into the menu, and whose source has died there, is over with it.
  if (!with_.Drag.DragEntered) with_.Drag.DragOverButton = false;
  with_.Ports.QMenu->SetOwnerTag("0");
  buttons_.ShowResting();
}

void MenuTracking::picToolbar_MouseUp(forms::MouseButton button, forms::ShiftState shift, float x,
                                      float y) {
  WasHovering = false;
  const PixelPoint pointer = with_.Pointer.PointerPosition();
  if (with_.Carry.EndCarry(pointer, button, shift)) return;
  const WindowId under = WindowUnder(pointer);
  if (button == forms::MouseButton::Right) {
    if (under == window_.hWnd()) return pull_.MouseUp(button);
    if (under == strip_.SinglesBox().hWnd()) return strip_.RowMouseUp(button, shift, x, y);
    if (under == picToolbar_.hWnd()) ShowButtonPopup();
    return;
  }
  if (ReleaseInMenu(button, shift, InBox(x, y))) return;
  FindCurButton(pointer);
  if (LastOpenFlag && LastOpenButton == with_.Menu.CurButton) {
    const int closed = LastOpenButton;
    ResetMenu();
    LastOpenFlag = true;
    LastOpenButton = closed;
  }
}

// A release in the menu is a choice though the pointer may have gone on since.
bool MenuTracking::ReleaseInMenu(forms::MouseButton button, forms::ShiftState shift,
                                 PixelPoint at) {
  if (!IsOverMenu(WindowUnder(at))) return false;
  if (window_.Windows().Now() - pressedAt_ >= kClickDelay) return true;
  const TwipPoint inside = InMenu(at);
  // The selection may have gone since the pointer came there, so the release selects once more.
  // A menu that came up under a pointer that did not move since the press has no selection.
  if (at != pressedPlace_) with_.Ports.QMenu->xMouseMove(inside.Y);
  with_.Ports.QMenu->xMouseUp(button, shift, inside.X, inside.Y);
  return true;
}

// The popup of a button acts on the button's own record, the first of its file.
void MenuTracking::ShowButtonPopup() {
  GetCurButton();
  const int button = with_.Menu.CurButton;
  if (with_.Ports.Popup == nullptr || !buttons_.Has(button)) return ResetMenu();
  // Events run while the menu closes, and the button may be another one after them.
  const EntryEdit entry = buttons_.EntryOf(button);
  ResetMenu();
  if (!window_.IsLoaded()) return;
  lastTag_ = (button > 1 ? "F" : "B") + std::to_string(button);
  with_.Ports.Popup->ShowToolbarPopup(entry);
}

// ---- hints ----

void MenuTracking::AnnounceHint() {
  if (with_.Ports.Hint == nullptr || with_.Options.Is(Option::NoHints)) return;
  Hint.Announce(window_.Windows().Now());
  timer2_.SetEnabled(true);
}

void MenuTracking::TakeHintDown() {
  Hint.Forget();
  with_.Ports.SetHint("");
}

void MenuTracking::KeepHintTimes(WindowId under) {
  const std::int64_t now = window_.Windows().Now();
  if (Hint.TakeEnd(now)) {
    with_.Ports.SetHint("");
    if (!window_.IsLoaded()) return;
  }
  if (!Hint.TakeDue(now)) return;
  if (under != picToolbar_.hWnd() || with_.Menu.CurButton == 0) return;
  Hint.Shown(now);
  with_.Ports.SetHint(buttons_.HintOf(with_.Menu.CurButton));
}

// ---- following ----

void MenuTracking::Timer2_Timer() {
  if (with_.Guards.OpenQuestions > 0) return;
  if (with_.Carry.IsCarrying() || with_.Guards.PosChangeRunning || with_.Guards.MenuBuilding)
    return;
  // What another program drags changes and closes the menu by its own events.
  if (with_.Drag.DragHolds(with_.Pointer)) return;
  const PixelPoint pointer = with_.Pointer.PointerPosition();
  FindCurButton(pointer);
  const WindowId under = WindowUnder(pointer);
  // A hint that is due opens no menu.
  const bool tracksMenu = with_.Menu.MenuOpen;
  if (tracksMenu && under == picToolbar_.hWnd()) {
    if (buttons_.LooksAtRest(with_.Menu.CurButton) && MenuOwner() != with_.Menu.CurButton) {
      HoverButton(with_.Menu.CurButton);
    }
  } else if (tracksMenu && under == strip_.SinglesBox().hWnd()) {
    HideMenuWhileTracking();
    if (window_.IsLoaded() && !with_.Carry.IsCarrying()) strip_.RowMouseMove();
  }
  if (!window_.IsLoaded()) return;
  KeepHintTimes(under);
  if (!window_.IsLoaded()) return;
  if (HasLeft(under)) {
    with_.Menu.MenuOpen = true;
    ResetMenu();
  }
  if (!MenuUp() && !Hint.IsWaiting()) timer2_.SetEnabled(false);
}

bool MenuTracking::HasLeft(WindowId under) const {
  const LoadedWindow* const image = with_.Ports.ImageWindow;
  const bool imageLoaded = image != nullptr && image->WindowLoaded();
  return !IsOursActive() && !IsOverMenu(under) && !imageLoaded;
}

}  // namespace corvelle
