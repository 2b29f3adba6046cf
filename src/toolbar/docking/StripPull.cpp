#include "toolbar/docking/StripPull.h"

#include <optional>
#include <string>

#include "core/Program.h"
#include "forms/Form.h"
#include "forms/Scale.h"
#include "platform/Input.h"
#include "toolbar/layout/StripPlace.h"

namespace corvelle {
namespace {

constexpr int kLeftButtonKey = 1;
constexpr int kRightButtonKey = 2;

}  // namespace

bool StripPull::IsBesidePull(forms::MouseButton button) const {
  return FrameMoved && button != forms::MouseButton::Left &&
         program_.Services.Pointer.IsKeyDown(kLeftButtonKey);
}

void StripPull::MouseDown(forms::MouseButton button, float x, float y) {
  if (program_.Entry.ItemDragging || IsBesidePull(button)) return;
  const forms::Form& window = strip_.AsForm();
  EndLostPull();
  program_.Ports.SetHint("");
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
  } else if (!program_.Guards.IsPlacing()) {
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
  CapturePort* const capture = program_.Ports.Capture;
  if (program_.Ports.Docking == nullptr || capture == nullptr) return;
  const Edge wanted =
      ChooseEdge(program_.Services.Pointer.PointerPosition(), program_.Windows.ScreenSize());
  if (wanted == program_.Strip.ToolbarEdge) {
    ClearOutline();
    strip_.DrawDragLook();
  } else {
    strip_.DrawBorders();
    capture->SetPosition(wanted);
  }
}

void StripPull::ClearOutline() {
  CapturePort* const capture = program_.Ports.Capture;
  if (capture != nullptr && capture->OutlineEdge()) capture->ClearBg();
}

void StripPull::PutOutlineAway() {
  if (program_.Ports.ImageWindow != nullptr) program_.Ports.ImageWindow->UnloadWindow();
}

bool StripPull::EndPull() {
  CapturePort* const capture = program_.Ports.Capture;
  DockingPort* const docking = program_.Ports.Docking;
  if (capture == nullptr || docking == nullptr) return false;
  const std::optional<Edge> edge = capture->OutlineEdge();
  capture->ClearBg();
  const bool alreadyThere =
      edge == Edge::Top && program_.Strip.ToolbarEdge == Edge::Top && !program_.Strip.AppBarDocked;
  // A side that is taken is told of by the docking, which then docks the strip in full sight.
  PutOutlineAway();
  if (!edge || alreadyThere) return false;
  strip_.DrawBorders();
  docking->SetAppBar(*edge, true);
  forms::Form& window = strip_.AsForm();
  if (!window.IsLoaded()) return true;
  if (program_.Strip.AutoHide) docking->RevealToolbar();
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
    if (!program_.Entry.ItemDragging) ShowFramePopup("Toolbar");
    return;
  }
  LetFrameGo();
  if (FrameMoved && !EndPull()) {
    if (program_.Strip.AppBarDocked) {
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
  const bool slid = FrameMoved && !program_.Strip.AppBarDocked;
  AbandonPull();
  if (slid) strip_.EndSlide();
}

void StripPull::WatchPull() {
  const Input& input = program_.Services.Pointer;
  const bool anyDown = input.IsKeyDown(kLeftButtonKey) || input.IsKeyDown(kRightButtonKey);
  if (!FrameHeld) {
    watch_.Reset();
  } else if (watch_.Look(anyDown, program_.Windows.Now())) {
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
  if (FrameHeld) program_.Guards.RestoreBusy = false;
  FrameHeld = false;
}

void StripPull::ShowFramePopup(std::string_view tag) {
  // The press that asked for the popup holds nothing any more.
  AbandonPull();
  strip_.ResetMenu();
  if (!strip_.AsForm().IsLoaded() || program_.Ports.Popup == nullptr) return;
  program_.Ports.Popup->ShowToolbarPopup({.CurMenuTag = std::string(tag)});
}

}  // namespace corvelle
