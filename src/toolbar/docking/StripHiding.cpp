#include "toolbar/docking/StripHiding.h"

#include "core/Program.h"
#include "forms/Form.h"
#include "forms/Scale.h"
#include "forms/Scopes.h"
#include "platform/DesktopWindows.h"
#include "platform/Input.h"
#include "toolbar/docking/AppBarRules.h"

namespace corvelle {

void StripHiding::HideAndReveal() {
  if (program_.Ports.Docking == nullptr || program_.Guards.HideBusy) return;
  const forms::FlagScope busy(program_.Guards.HideBusy);
  const PixelPoint pointer = program_.Services.Pointer.PointerPosition();
  const WindowId under = program_.Services.Desktop.WindowAt(pointer);
  if (MayHide(pointer, under)) {
    program_.Ports.Docking->HideToolbar();
    if (!strip_.AsForm().IsLoaded()) return;
    strip_.UpdateLabelDate();
  }
  if (MustReveal(pointer, under)) {
    program_.Ports.Docking->RevealToolbar();
    EnsureToolbarVisible();
  }
}

bool StripHiding::MayHide(PixelPoint pointer, WindowId under) const {
  const LoadedWindow* const image = program_.Ports.ImageWindow;
  const bool imageLoaded = image != nullptr && image->WindowLoaded();
  if (strip_.IsPartOfStrip(under) || imageLoaded || strip_.MenuUp() || !strip_.ContentsVisible() ||
      strip_.IsOursActive()) {
    return false;
  }
  return !program_.Strip.AppBarDocked ||
         PointerIsOff(program_.Strip.ToolbarEdge, pointer, WindowPixels(), ScreenPixels());
}

bool StripHiding::MustReveal(PixelPoint pointer, WindowId under) const {
  const forms::Form& window = strip_.AsForm();
  if (strip_.ContentsVisible() && window.Visible()) return false;
  if (!program_.Strip.AppBarDocked) return under == window.hWnd() && !strip_.ContentsVisible();
  return PointerReveals(program_.Strip.ToolbarEdge, pointer, WindowPixels(), ScreenPixels());
}

PixelRect StripHiding::WindowPixels() const {
  const forms::Form& window = strip_.AsForm();
  return forms::ToPixels(window.Left(), window.Top(), window.Width(), window.Height(),
                         window.Scale());
}

PixelSize StripHiding::ScreenPixels() const { return program_.Windows.ScreenSize(); }

void StripHiding::RevealFromLine() {
  if (program_.Ports.Docking == nullptr || program_.Guards.HideBusy) return;
  const forms::FlagScope busy(program_.Guards.HideBusy);
  program_.Ports.Docking->RevealToolbar();
  EnsureToolbarVisible();
}

void StripHiding::EnsureToolbarVisible() {
  if (!program_.Strip.FullScreenApp || program_.OptionFlags.Is(Option::AboveFullScreen)) return;
  program_.Events.DoEvents();
  forms::Form& window = strip_.AsForm();
  if (!window.IsLoaded()) return;
  window.SetWindowPos(forms::InsertAfter::Topmost, forms::swp::KeepActivation);
}

void StripHiding::SinkAgain() {
  if (!program_.Strip.FullScreenApp || program_.Strip.NotOnTop ||
      program_.OptionFlags.Is(Option::AboveFullScreen))
    return;
  strip_.AsForm().SetWindowPos(forms::InsertAfter::Bottom, forms::swp::KeepActivation);
}

}  // namespace corvelle
