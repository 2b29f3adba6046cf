// Auto Hide: the strip as a line, and back.

#include "core/Program.h"
#include "forms/Scopes.h"
#include "toolbar/frmToolbar.h"
#include "toolbar/mAppBar.h"

namespace corvelle {

bool mAppBar::AutoHideAppBar(Edge at) {
  program_.Strip.ToolbarEdge = at;
  if (!AutoHideFree(program_.Strip.ToolbarEdge)) {
    program_.OptionFlags.Set(Option::AutoHide, false);
    program_.Strip.AutoHide = false;
    program_.Guards.AppBarBusy = false;
    strip_.Timer1.SetEnabled(false);
    program_.Guards.ToolbarReady = false;
    ShowAutoHideTaken();
    // One that went into the task bar meanwhile is placed when it comes back.
    if (!strip_.IsLoaded() || program_.Strip.ToolbarMinimized) return false;
    SetAppBar(program_.Strip.ToolbarEdge, true);
    if (!strip_.IsLoaded()) return false;
    strip_.ShowNoActivate();
    strip_.picToolbar.SetVisible(true);
    strip_.picSingleButton.SetVisible(true);
    program_.Guards.ToolbarReady = true;
    return false;
  }
  const forms::FlagScope busy(program_.Guards.AppBarBusy);
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
  strip_.ShowNoActivate();
  program_.Strip.AppBarDocked = true;
  strip_.HideContents();
  strip_.Timer1.SetEnabled(true);
  return true;
}

void mAppBar::HideToolbar() {
  if (program_.Strip.AppBarDocked) {
    if (!AutoHideAppBar(program_.Strip.ToolbarEdge)) return;
    strip_.SinkAgain();
    return;
  }
  strip_.HideContents();
  strip_.Timer1.SetEnabled(true);
  strip_.ShowNoActivate();
  strip_.Move(strip_.Left(), 0, strip_.Width(), Twips().Height);
  strip_.SinkAgain();
}

void mAppBar::RevealToolbar() {
  if (strip_.picToolbar.Visible()) return;
  strip_.picToolbar.SetVisible(true);
  strip_.picSingleButton.SetVisible(true);
  if (program_.Strip.AppBarDocked) {
    // What was read anew for the line has its places from here on.
    ResizeToEdge();
    const TwipPoint corner = RevealedCorner(CurrentEdge(), strip_.WindowBounds(), line_, Twips());
    strip_.Move(corner.X, corner.Y, strip_.Width(), strip_.Height());
  } else {
    strip_.SetControls();
    strip_.DrawBorders();
  }
  strip_.ShowNoActivate();
  strip_.Refresh();
}

}  // namespace corvelle
