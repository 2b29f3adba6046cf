#include "toolbar/docking/StripPull.h"

#include <optional>
#include <string>

#include "core/Carry.h"
#include "core/GuardFlags.h"
#include "core/RecordEdits.h"
#include "core/StripPlacement.h"
#include "core/WindowPorts.h"
#include "forms/Form.h"
#include "forms/Scale.h"
#include "forms/WindowSystem.h"
#include "platform/Input.h"
#include "toolbar/layout/StripPlace.h"

namespace corvelle {
namespace {

constexpr int kLeftButtonKey = 1;

}  // namespace

bool StripPull::IsBesidePull(forms::MouseButton button) const {
  return FrameMoved && button != forms::MouseButton::Left &&
         with_.Pointer.IsKeyDown(kLeftButtonKey);
}

void StripPull::MouseDown(forms::MouseButton button, float x, float y) {
  if (with_.Carry.IsCarrying() || IsBesidePull(button)) return;
  const forms::Form& window = strip_.AsForm();
  EndLostPull();
  with_.Ports.SetHint("");
  if (!window.IsLoaded()) return;
  strip_.ResetMenu();
  if (!window.IsLoaded()) return;
  FrameMoved = false;
  FrameHeld = true;
  strip_.WatchHiding(true);
  const TwipSize box = strip_.ButtonBox();
  DownX = x;
  DownY = y;
  GrabX = x - box.Width;
  GrabY = y - box.Height;
}

void StripPull::MouseMove(forms::MouseButton down, float x, float y) {
  if (down == forms::MouseButton::None) {
    EndLostPull();
    FrameDragging = false;
    FrameMoved = false;
    strip_.DrawBorders();
  } else if (strip_.MenuUp()) {
    FrameDragging = true;
  } else if (!with_.Guards.IsPlacing()) {
    Follow(down, x, y);
  }
}

void StripPull::Follow(forms::MouseButton down, float x, float y) {
  // A button that went down elsewhere pulls nothing.
  if (!FrameHeld) return;
  const StripShape shape = strip_.Shape();
  if (FrameHasMoved({DownX, DownY}, {x, y}, shape.Scale.TwipsX, shape.Scale.TwipsY)) {
    FrameMoved = true;
  }
  if (!FrameMoved || !forms::Has(down, forms::MouseButton::Left)) {
    strip_.DrawBorders();
    return;
  }
  FrameDragging = true;
  strip_.SetPointerWatch(false);
  forms::Form& window = strip_.AsForm();
  if (!SlidesAlongTop(y, window.Height(), shape.Where, shape.At)) {
    FollowPull();
    return;
  }
  ClearOutline();
  strip_.DrawDragLook();
  window.SetLeft(SlideLeft(x, window.Left(), strip_.ButtonBox().Width, GrabX));
}

void StripPull::FollowPull() {
  CapturePort* const capture = with_.Ports.Capture;
  if (with_.Ports.Docking == nullptr || capture == nullptr) return;
  const Edge wanted =
      ChooseEdge(with_.Pointer.PointerPosition(), strip_.AsForm().Windows().ScreenSize());
  if (wanted == with_.Strip.ToolbarEdge) {
    ClearOutline();
    strip_.DrawDragLook();
  } else {
    strip_.DrawBorders();
    capture->SetPosition(wanted);
  }
}

void StripPull::ClearOutline() {
  CapturePort* const capture = with_.Ports.Capture;
  if (capture != nullptr && capture->OutlineEdge()) capture->ClearBg();
}

void StripPull::PutOutlineAway() {
  if (with_.Ports.ImageWindow != nullptr) with_.Ports.ImageWindow->UnloadWindow();
}

bool StripPull::EndPull() {
  CapturePort* const capture = with_.Ports.Capture;
  DockingPort* const docking = with_.Ports.Docking;
  if (capture == nullptr || docking == nullptr) return false;
  const std::optional<Edge> edge = capture->OutlineEdge();
  capture->ClearBg();
  const bool alreadyThere =
      edge == Edge::Top && with_.Strip.ToolbarEdge == Edge::Top && !with_.Strip.AppBarDocked;
  // A side that is taken is told of by the docking, which then docks the strip in full sight.
  PutOutlineAway();
  if (!edge || alreadyThere) return false;
  strip_.DrawBorders();
  docking->SetAppBar(*edge, true);
  forms::Form& window = strip_.AsForm();
  if (!window.IsLoaded()) return true;
  if (with_.Strip.AutoHide) docking->RevealToolbar();
  window.SetFocus();
  strip_.DrawBorders();
  return true;
}

void StripPull::MouseUp(forms::MouseButton button) {
  if (IsBesidePull(button)) return;
  if (button == forms::MouseButton::Right && !FrameMoved) {
    // Of a pull whose release was lost the outline goes too.
    AbandonPull();
    // The popup would act on what is being carried.
    if (!with_.Carry.IsCarrying()) ShowFramePopup("Toolbar");
    return;
  }
  LetFrameGo();
  if (FrameMoved && !EndPull()) {
    if (with_.Strip.BelongsToEdge()) {
      strip_.DrawBorders();
    } else {
      strip_.EndSlide();
    }
  }
  FrameMoved = false;
  FrameDragging = false;
}

void StripPull::AdjustToolbarPosition() {
  FrameMoved = true;
  MouseUp(forms::MouseButton::Left);
}

void StripPull::AbandonPull() {
  if (!FrameHeld) return;
  LetFrameGo();
  FrameMoved = false;
  FrameDragging = false;
  ClearOutline();
  PutOutlineAway();
}

void StripPull::EndLostPull() {
  if (!FrameHeld) return;
  const bool slid = FrameMoved && !with_.Strip.BelongsToEdge();
  AbandonPull();
  if (slid) strip_.EndSlide();
}

void StripPull::WatchPull() {
  if (!FrameHeld) {
    watch_.Reset();
  } else if (watch_.Look(AnyButtonDown(with_.Pointer), strip_.AsForm().Windows().Now())) {
    watch_.Reset();
    LosePress();
  }
}

void StripPull::LosePress() {
  if (!FrameHeld) return;
  EndLostPull();
  if (strip_.ContentsVisible()) strip_.DrawBorders();
}

void StripPull::LetFrameGo() {
  if (FrameHeld) with_.Guards.RestoreBusy = false;
  FrameHeld = false;
}

void StripPull::ShowFramePopup(std::string_view tag) {
  // The press that asked for the popup holds nothing any more.
  AbandonPull();
  strip_.ResetMenu();
  if (!strip_.AsForm().IsLoaded() || with_.Ports.Popup == nullptr) return;
  with_.Ports.Popup->ShowToolbarPopup({.CurMenuTag = std::string(tag)});
}

}  // namespace corvelle
