// Auto Hide: when the strip hides and when it comes back.

#include "core/Program.h"
#include "forms/Scale.h"
#include "forms/Scopes.h"
#include "platform/DesktopWindows.h"
#include "platform/Input.h"
#include "toolbar/AppBarRules.h"
#include "toolbar/frmToolbar.h"

namespace corvelle {

bool frmToolbar::ImageLoaded() const {
  return program_.Ports.ImageWindow != nullptr && program_.Ports.ImageWindow->WindowLoaded();
}

void frmToolbar::HideContents() {
  AbandonPull();
  picToolbar.SetVisible(false);
  picSingleButton.SetVisible(false);
  for (forms::Line* line : {&bLine1, &bLine2, &bLine3, &bLine4, &bLineXY}) line->SetVisible(false);
}

void frmToolbar::HideAndReveal() {
  const PixelPoint pointer = program_.Services.Pointer.PointerPosition();
  const WindowId under = program_.Services.Desktop.WindowAt(pointer);
  if (MayHide(pointer, under)) {
    program_.Ports.Docking->HideToolbar();
    if (!IsLoaded()) return;
    UpdateLabelDate();
  }
  if (MustReveal(pointer, under)) {
    program_.Ports.Docking->RevealToolbar();
    EnsureToolbarVisible();
  }
}

bool frmToolbar::MayHide(PixelPoint pointer, WindowId under) const {
  const bool overOurs =
      under == hWnd() || under == picToolbar.hWnd() || under == picSingleButton.hWnd();
  if (overOurs || ImageLoaded() || MenuUp() || !picToolbar.Visible() || IsOursActive()) {
    return false;
  }
  return !program_.Strip.AppBarDocked ||
         PointerIsOff(AtEdge(), pointer, WindowPixels(), ScreenPixels());
}

bool frmToolbar::MustReveal(PixelPoint pointer, WindowId under) const {
  if (picToolbar.Visible() && Visible()) return false;
  if (!program_.Strip.AppBarDocked) return under == hWnd() && !picToolbar.Visible();
  return PointerReveals(AtEdge(), pointer, WindowPixels(), ScreenPixels());
}

PixelRect frmToolbar::WindowPixels() const {
  return forms::ToPixels(Left(), Top(), Width(), Height(), program_.Windows.Screen());
}

PixelSize frmToolbar::ScreenPixels() const {
  const forms::ScreenInfo screen = program_.Windows.Screen();
  return forms::ToPixels(0, 0, screen.Width, screen.Height, screen).Size();
}

void frmToolbar::RevealFromLine() {
  if (program_.Ports.Docking == nullptr || program_.Guards.HideBusy) return;
  const forms::FlagScope busy(program_.Guards.HideBusy);
  program_.Ports.Docking->RevealToolbar();
  EnsureToolbarVisible();
}

void frmToolbar::EnsureToolbarVisible() {
  if (!program_.Strip.FullScreenApp || program_.OptionFlags.Is(Option::AboveFullScreen)) return;
  program_.DoEvents();
  if (!IsLoaded()) return;
  SetWindowPos(forms::InsertAfter::Topmost, forms::swp::KeepActivation);
}

void frmToolbar::SinkAgain() {
  if (!program_.Strip.FullScreenApp || program_.Strip.NotOnTop ||
      program_.OptionFlags.Is(Option::AboveFullScreen))
    return;
  SetWindowPos(forms::InsertAfter::Bottom, forms::swp::KeepActivation);
}

}  // namespace corvelle
