// Auto Hide: the strip as a line, and back.

#include "core/Carry.h"
#include "core/GuardFlags.h"
#include "core/MessageBoxes.h"
#include "core/OptionFlags.h"
#include "core/StripPlacement.h"
#include "forms/EventPump.h"
#include "forms/Form.h"
#include "forms/Scopes.h"
#include "forms/WindowSystem.h"
#include "toolbar/docking/mAppBar.h"

namespace corvelle {

bool mAppBar::AutoHideAppBar(Edge at) {
  with_.Strip.ToolbarEdge = at;
  if (!AutoHideFree(with_.Strip.ToolbarEdge)) {
    with_.Options.Set(Option::AutoHide, false);
    with_.Strip.AutoHide = false;
    with_.Guards.AppBarBusy = false;
    strip_.WatchHiding(false);
    with_.Guards.ToolbarReady = false;
    ShowAutoHideTaken();
    // One that went into the task bar meanwhile is placed when it comes back.
    if (!window_.IsLoaded() || with_.Strip.ToolbarMinimized) return false;
    SetAppBar(with_.Strip.ToolbarEdge, true);
    if (!window_.IsLoaded()) return false;
    window_.ShowNoActivate();
    strip_.ShowContents();
    with_.Guards.ToolbarReady = true;
    return false;
  }
  const forms::FlagScope busy(with_.Guards.AppBarBusy);
  // What was kept for the strip in full sight would stay kept.
  if (keepsRoom_) {
    Remove();
    RegisterAppBar();
  }
  const PixelSize screen = ScreenPixels();
  if (AppBarData.uEdge != ShellEdge(at)) {
    AppBarData.lParam = 0;
    Send(abm::SetAutoHideBar);
  }
  AppBarData.uEdge = ShellEdge(at);
  if (AppBarData.lParam == 0) {
    AppBarData.lParam = 1;
    Send(abm::SetAutoHideBar);
  }
  PixelSize bar = BarSize(at, 1, screen);
  BarPlace place = AskForPlace(at, bar, false);
  line_ = LineThickness(at, BarWindow(at, place, bar), screen, Twips());
  bar = BarSize(at, line_, screen);
  place = CutToBar(at, place.Reserved, bar, false);
  AppBarData.rc = place.Reserved;
  MoveWindow(BarWindow(at, place, bar));
  window_.ShowNoActivate();
  with_.Strip.AppBarDocked = true;
  strip_.HideContents();
  strip_.WatchHiding(true);
  return true;
}

void mAppBar::HideToolbar() {
  if (with_.Strip.AppBarDocked) {
    if (!AutoHideAppBar(with_.Strip.ToolbarEdge)) return;
    strip_.SinkAgain();
    return;
  }
  strip_.HideContents();
  strip_.WatchHiding(true);
  window_.ShowNoActivate();
  window_.Move(window_.Left(), 0, window_.Width(), Twips().Height);
  strip_.SinkAgain();
}

void mAppBar::RevealToolbar() {
  // A strip in the task bar comes back by its companion only.
  if (strip_.ContentsVisible() || with_.Strip.ToolbarMinimized) return;
  strip_.ShowContents();
  if (with_.Strip.AppBarDocked) {
    // The buttons that were read again while only the line was seen get their places now.
    ResizeToEdge();
    const TwipPoint corner = RevealedCorner(CurrentEdge(), window_.Bounds(), line_, Twips());
    window_.Move(corner.X, corner.Y, window_.Width(), window_.Height());
  } else {
    strip_.SetControls();
    strip_.DrawBorders();
  }
  window_.ShowNoActivate();
  window_.Refresh();
}

}  // namespace corvelle
