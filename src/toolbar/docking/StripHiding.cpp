#include "toolbar/docking/StripHiding.h"

#include "core/GuardFlags.h"
#include "core/OptionFlags.h"
#include "core/StripPlacement.h"
#include "core/WindowPorts.h"
#include "forms/EventPump.h"
#include "forms/Form.h"
#include "forms/Scale.h"
#include "forms/Scopes.h"
#include "forms/WindowSystem.h"
#include "platform/DesktopWindows.h"
#include "platform/Input.h"
#include "toolbar/docking/AppBarRules.h"

namespace corvelle {

void StripHiding::HideAndReveal() {
  if (with_.Ports.Docking == nullptr || with_.Guards.HideBusy) return;
  const forms::FlagScope busy(with_.Guards.HideBusy);
  const PixelPoint pointer = with_.Pointer.PointerPosition();
  const WindowId under = with_.Desktop.WindowAt(pointer);
  if (MayHide(pointer, under)) {
    with_.Ports.Docking->HideToolbar();
    if (!strip_.AsForm().IsLoaded()) return;
    strip_.UpdateLabelDate();
  }
  if (MustReveal(pointer, under)) {
    with_.Ports.Docking->RevealToolbar();
    EnsureToolbarVisible();
  }
}

bool StripHiding::MayHide(PixelPoint pointer, WindowId under) const {
  const LoadedWindow* const image = with_.Ports.ImageWindow;
  const bool imageLoaded = image != nullptr && image->WindowLoaded();
  if (strip_.IsPartOfStrip(under) || imageLoaded || strip_.MenuUp() || !strip_.ContentsVisible() ||
      strip_.IsOursActive()) {
    return false;
  }
  return !with_.Strip.AppBarDocked ||
         PointerIsOff(with_.Strip.ToolbarEdge, pointer, WindowPixels(), ScreenPixels());
}

bool StripHiding::MustReveal(PixelPoint pointer, WindowId under) const {
  const forms::Form& window = strip_.AsForm();
  if (strip_.ContentsVisible() && window.Visible()) return false;
  if (!with_.Strip.AppBarDocked) return under == window.hWnd() && !strip_.ContentsVisible();
  return PointerReveals(with_.Strip.ToolbarEdge, pointer, WindowPixels(), ScreenPixels());
}

PixelRect StripHiding::WindowPixels() const {
  const forms::Form& window = strip_.AsForm();
  return forms::ToPixels(window.Left(), window.Top(), window.Width(), window.Height(),
                         window.Scale());
}

PixelSize StripHiding::ScreenPixels() const { return strip_.AsForm().Windows().ScreenSize(); }

void StripHiding::RevealFromLine() {
  if (with_.Ports.Docking == nullptr || with_.Guards.HideBusy) return;
  const forms::FlagScope busy(with_.Guards.HideBusy);
  with_.Ports.Docking->RevealToolbar();
  EnsureToolbarVisible();
}

void StripHiding::EnsureToolbarVisible() {
  if (!with_.Strip.FullScreenApp || with_.Options.Is(Option::AboveFullScreen)) return;
  with_.Events.DoEvents();
  forms::Form& window = strip_.AsForm();
  if (!window.IsLoaded()) return;
  window.SetWindowPos(forms::InsertAfter::Topmost, forms::swp::KeepActivation);
}

void StripHiding::SinkAgain() {
  if (!with_.Strip.FullScreenApp || with_.Strip.NotOnTop ||
      with_.Options.Is(Option::AboveFullScreen))
    return;
  strip_.AsForm().SetWindowPos(forms::InsertAfter::Bottom, forms::swp::KeepActivation);
}

}  // namespace corvelle
