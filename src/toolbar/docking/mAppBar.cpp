#include "toolbar/docking/mAppBar.h"

#include "base/Numbers.h"
#include "core/Carry.h"
#include "core/GuardFlags.h"
#include "core/MessageBoxes.h"
#include "core/OptionFlags.h"
#include "core/StripPlacement.h"
#include "forms/EventPump.h"
#include "forms/Form.h"
#include "forms/PictureBox.h"
#include "forms/Scopes.h"
#include "forms/WindowSystem.h"
#include "toolbar/docking/ForegroundScope.h"

namespace corvelle {

// What is said to the shell.

std::uintptr_t mAppBar::Send(std::uint32_t message) {
  AppBarData.hWnd = window_.hWnd();
  const forms::FlagScope telling(with_.Guards.TellingShell);
  return with_.Bars.Message(message, AppBarData);
}

void mAppBar::RegisterAppBar() {
  AppBarData.uCallbackMessage = forms::message::AppBarCallback;
  Send(abm::New);
}

void mAppBar::RemoveAppBar() {
  const forms::FlagScope busy(with_.Guards.AppBarBusy);
  GiveUpHiding();
  Remove();
  RegisterAppBar();
}

void mAppBar::EndAppBar() { Remove(); }

void mAppBar::Remove() {
  keepsRoom_ = false;
  Send(abm::Remove);
}

void mAppBar::LeaveEdge() {
  GiveUpHiding();
  Remove();
}

// The claim is given up at the side where it was made, before the record turns to another one.
void mAppBar::GiveUpHiding() {
  if (AppBarData.lParam == 0) return;
  AppBarData.lParam = 0;
  Send(abm::SetAutoHideBar);
}

bool mAppBar::AutoHideFree(Edge edge) {
  AppBarRecord asked = AppBarData;
  asked.hWnd = window_.hWnd();
  asked.uEdge = ShellEdge(edge);
  const std::uintptr_t holder = with_.Bars.Message(abm::GetAutoHideBar, asked);
  return holder == 0 || holder == window_.hWnd();
}

void mAppBar::ShowAutoHideTaken() {
  with_.Messages.Say(with_.Ports.WindowInUse(),
                     "A toolbar is already hidden on this side of your screen.\r\n"
                     "You can have only one auto-hide toolbar per side.",
                     forms::msgbox::IconStop | forms::msgbox::OnTop);
}

// Measures.

Edge mAppBar::CurrentEdge() const { return with_.Strip.ToolbarEdge; }

TwipSize mAppBar::Twips() const {
  const forms::PixelScale scale = window_.Scale();
  return {scale.TwipsPerPixelX, scale.TwipsPerPixelY};
}

PixelSize mAppBar::ScreenPixels() const { return window_.Windows().ScreenSize(); }

void mAppBar::MoveWindow(const PixelRect& bounds) {
  const TwipSize twips = Twips();
  window_.Move(static_cast<float>(bounds.left) * twips.Width,
               static_cast<float>(bounds.top) * twips.Height,
               static_cast<float>(bounds.Width()) * twips.Width,
               static_cast<float>(bounds.Height()) * twips.Height);
}

void mAppBar::PinHere() {
  with_.Strip.PinnedLeft = window_.Left();
  with_.Strip.PinnedTop = window_.Top();
}

// The one entry for every change of edge or size.

bool mAppBar::Waits() const {
  return with_.Strip.ToolbarMinimized || with_.Carry.IsCarrying() || with_.Carry.IsOverButtons() ||
         (with_.Guards.PosChangeRunning && with_.Guards.IsPlacing());
}

void mAppBar::SetAppBar(std::optional<Edge> edge, bool rebuild) {
  if (!window_.IsLoaded()) return;
  if (Waits()) {
    // A change of bars is not told again; one in the task bar is placed again when it comes back.
    if (with_.Guards.PosChangeRunning && !with_.Strip.ToolbarMinimized) strip_.FollowBarsLater();
    if (with_.Strip.ToolbarMinimized && edge) ReturnTo(*edge);
    return;
  }
  with_.Guards.ToolbarReady = false;
  if (with_.Guards.PosChangeRunning && AppBarPosChanged()) {
    with_.Guards.ToolbarReady = window_.IsLoaded();
    return;
  }
  const ForegroundScope foreground(window_, with_.Desktop, with_.Ports);
  with_.Guards.AppBarBusy = true;
  with_.Strip.AppBarRequested = true;
  CapturePort* const capture = with_.Ports.Capture;
  if (window_.Visible() && capture != nullptr) capture->SetPicture1();
  if (edge) with_.Strip.ToolbarEdge = *edge;
  const Edge at = CurrentEdge();
  TurnTo(with_.Strip.ToolbarEdge, rebuild);
  if (window_.IsLoaded()) PlaceAt(at);
  with_.Guards.AppBarBusy = false;
  with_.Strip.AppBarRequested = false;
  const LoadedWindow* const image = with_.Ports.ImageWindow;
  if (capture != nullptr && image != nullptr && image->WindowLoaded()) {
    capture->ResetPicture1();
    if (window_.IsLoaded()) window_.Refresh();
  }
  if (!window_.IsLoaded()) return;
  PinHere();
  with_.Guards.ToolbarReady = !with_.Strip.ToolbarMinimized;
}

// A floating strip in the task bar comes back as if it had been at that edge. One that was at an
// edge returns there.
void mAppBar::ReturnTo(Edge edge) {
  if (with_.Strip.BelongsToEdge()) return;
  LeaveEdge();
  with_.Strip.WasDocked = true;
  with_.Strip.ToolbarEdge = edge;
}

// A strip that turns, or has not been at an edge yet, is rebuilt.
void mAppBar::TurnTo(Edge edge, bool rebuild) {
  const bool vertical = IsVertical(edge);
  const bool turns = with_.Strip.ToolbarVertical != vertical;
  if (rebuild || !with_.Strip.AppBarDocked || turns) {
    with_.Strip.ToolbarVertical = vertical;
    strip_.UnloadItems();
    if (window_.IsLoaded()) strip_.InitButtons();
    return;
  }
  if (vertical && with_.Options.Is(Option::LargeIcons) && with_.Options.Is(Option::SmallSingles)) {
    strip_.DoSingleButtons();
  }
  // The room is asked for by the thickness that the strip has at that edge.
  if (strip_.ContentsVisible()) strip_.SetControls();
}

void mAppBar::PlaceAt(Edge at) {
  if (with_.Strip.NotOnTop) {
    DockNotOnTop(at);
  } else if (!with_.Strip.AutoHide) {
    DockAppBar(at);
  } else if (!AutoHideAppBar(at)) {
    return;
  }
  if (window_.IsLoaded()) FinishPlacing(at);
}

void mAppBar::FinishPlacing(Edge at) {
  const bool hidden = !strip_.ContentsVisible();
  const TwipRect line = window_.Bounds();
  strip_.SetControls();
  StretchSingles(at);
  strip_.DoLabelDate();
  // The boxes have their size for the strip in full sight, and a line stays a line.
  if (hidden) window_.Move(line.Left, line.Top, line.Width, line.Height);
  if (!with_.Strip.AutoHide) {
    strip_.DrawBorders();
    window_.ShowNoActivate();
    window_.Refresh();
  }
  if (with_.Guards.StartingUp && with_.Strip.AutoHide) RevealToolbar();
  if (with_.Ports.QMenu != nullptr) with_.Ports.QMenu->InitIcons();
  window_.Windows().SetMousePointer(forms::MousePointer::Default);
  // Who starts the program wants it in front.
  if (with_.Guards.StartingUp) window_.SetForeground();
  window_.SetFocus();
}

void mAppBar::StretchSingles(Edge at) {
  const TwipSize size =
      StretchedSingles(at, window_.Bounds(), strip_.SinglesBox().Bounds(), Twips().Width);
  strip_.SinglesBox().Move(strip_.SinglesBox().Left(), strip_.SinglesBox().Top(), size.Width,
                           size.Height);
}

void mAppBar::ResizeToEdge() {
  // A line is fitted when it comes back.
  if (!strip_.ContentsVisible()) return;
  strip_.SetControls();
  StretchSingles(CurrentEdge());
  strip_.DrawBorders();
  strip_.DoLabelDate();
}

// Standing at an edge.

PixelSize mAppBar::WholeEdge(Edge at) const {
  const TwipSize twips = Twips();
  const bool vertical = IsVertical(at);
  const float thickness =
      vertical ? window_.Width() / twips.Width : window_.Height() / twips.Height;
  return BarSize(at, RoundToInt(static_cast<double>(thickness)), ScreenPixels());
}

BarPlace mAppBar::AskForPlace(Edge at, PixelSize bar, bool mayLift) {
  AppBarData.uEdge = ShellEdge(at);
  AppBarData.rc = RectAt({0, 0}, ScreenPixels());
  Send(abm::QueryPos);
  const BarPlace place = CutToBar(at, AppBarData.rc, bar, mayLift);
  AppBarData.rc = place.Reserved;
  return place;
}

// The shell may push the near side on; the far side follows.
BarPlace mAppBar::KeepPlace(Edge at, PixelSize bar, bool mayLift) {
  Send(abm::SetPos);
  keepsRoom_ = true;
  const BarPlace place = CutToBar(at, AppBarData.rc, bar, mayLift);
  AppBarData.rc = place.Reserved;
  return place;
}

void mAppBar::DockAppBar(Edge at) { StandAt(at, true); }

void mAppBar::DockNotOnTop(Edge at) { StandAt(at, false); }

void mAppBar::StandAt(Edge at, bool keepsRoom) {
  const ForegroundScope foreground(window_, with_.Desktop, with_.Ports);
  window_.SetVisible(false);
  ComeOutOfHiding();
  const PixelSize bar = WholeEdge(at);
  GiveUpHiding();
  BarPlace place = AskForPlace(at, bar, true);
  if (keepsRoom) {
    LoadedWindow* const image = with_.Ports.ImageWindow;
    CapturePort* const capture = with_.Ports.Capture;
    if (capture != nullptr && image != nullptr && image->WindowLoaded()) capture->ClearBg();
    place = KeepPlace(at, bar, true);
    with_.Events.DoEvents();
    if (!window_.IsLoaded()) return;
  }
  const PixelRect window = BarWindow(at, place, bar);
  MoveWindow(window);
  window_.ShowNoActivate();
  with_.Events.DoEvents();
  if (!window_.IsLoaded()) return;
  MoveWindow(window);
  with_.Events.DoEvents();
  if (!window_.IsLoaded()) return;
  with_.Strip.AppBarDocked = true;
  PinHere();
}

// A strip that was a line has its buttons and its thickness again.
void mAppBar::ComeOutOfHiding() {
  if (strip_.ContentsVisible()) return;
  strip_.ShowContents();
  strip_.SetControls();
}

bool mAppBar::AppBarPosChanged() {
  const forms::FlagScope busy(with_.Guards.AppBarBusy);
  const PixelRect before = AppBarData.rc;
  const Edge at = CurrentEdge();
  const PixelSize bar = WholeEdge(at);
  const bool lifts = !with_.Strip.AutoHide;
  BarPlace place = AskForPlace(at, bar, lifts);
  // A strip that hides keeps no room.
  const bool keepsRoom = !with_.Strip.NotOnTop && !with_.Strip.AutoHide;
  if (place.Reserved != before || keepsRoom != keepsRoom_) {
    if (keepsRoom) place = KeepPlace(at, bar, lifts);
    MoveWindow(BarWindow(at, place, bar));
    ResizeToEdge();
    with_.Events.DoEvents();
    if (!window_.IsLoaded()) return true;
  }
  if (with_.Strip.AutoHide) {
    if (AutoHideFree(with_.Strip.ToolbarEdge)) {
      AutoHideAppBar(with_.Strip.ToolbarEdge);
    } else {
      with_.Options.Set(Option::AutoHide, false);
      with_.Strip.AutoHide = false;
      StandAt(at, !with_.Strip.NotOnTop);
      if (window_.IsLoaded()) ResizeToEdge();
    }
  }
  if (window_.IsLoaded()) PinHere();
  return true;
}

}  // namespace corvelle
