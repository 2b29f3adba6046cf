// The strip's frame and its grip, by which the strip is moved.

#include <cmath>
#include <string>

#include "core/Program.h"
#include "platform/Input.h"
#include "platform/SystemInfo.h"
#include "toolbar/StripPlace.h"
#include "toolbar/frmToolbar.h"

namespace corvelle {
namespace {

constexpr int kGrip = 0;       // index of the grip among the separators
constexpr int kDragWidth = 2;  // pixels

}  // namespace

void frmToolbar::lblSep_MouseDown(int index, forms::MouseButton button, forms::ShiftState shift,
                                  float x, float y) {
  if (index != kGrip || button == forms::MouseButton::None) return;
  Timer2.SetEnabled(false);
  Form_MouseDown(button, shift, x + lblSep[kGrip].Left(), y + lblSep[kGrip].Top());
}

void frmToolbar::lblSep_MouseMove(int index, forms::MouseButton down, forms::ShiftState /*shift*/,
                                  float x, float y) {
  if (down == forms::MouseButton::None) {
    program_.SetHint("");
    if (MenuUp()) FrameDragging = true;
    return;
  }
  if (index != kGrip || !FrameHeld || !forms::Has(down, forms::MouseButton::Left)) return;
  // While the grip is held nothing else may place the strip.
  program_.Guards.RestoreBusy = true;
  if (!program_.Guards.AppBarBusy)
    FollowFrame(down, x + lblSep[kGrip].Left(), y + lblSep[kGrip].Top());
}

void frmToolbar::lblSep_MouseUp(int index, forms::MouseButton button, forms::ShiftState shift,
                                float x, float y) {
  program_.Guards.RestoreBusy = false;
  const forms::Label& label = lblSep[index];
  const bool inside = x >= 0 && y >= 0 && x < label.Width() && y < label.Height();
  if (button == forms::MouseButton::Right && !program_.Entry.ItemDragging && !FrameMoved &&
      inside) {
    ShowFramePopup("B1");
  } else if (index == kGrip) {
    Form_MouseUp(button, shift, x + label.Left(), y + label.Top());
  }
}

// The other button does nothing to a strip that the left one pulls.
bool frmToolbar::IsBesidePull(forms::MouseButton button) const {
  constexpr int kLeftButtonKey = 1;
  return FrameMoved && button != forms::MouseButton::Left &&
         program_.Services.Pointer.IsKeyDown(kLeftButtonKey);
}

void frmToolbar::Form_MouseDown(forms::MouseButton button, forms::ShiftState /*shift*/, float x,
                                float y) {
  if (program_.Entry.ItemDragging) return;
  if (IsBesidePull(button)) return;
  EndLostPull();
  program_.SetHint("");
  if (!IsLoaded()) return;
  ResetMenu();
  if (!IsLoaded()) return;
  FrameMoved = false;
  FrameHeld = true;
  Timer1.SetEnabled(true);
  DownX = x;
  DownY = y;
  GrabX = x - picToolbar.Width();
  GrabY = y - picToolbar.Height();
}

// The second press of a quick pair takes hold of the strip like any other press.
void frmToolbar::Form_DblClick() {
  const PixelPoint pointer = program_.Services.Pointer.PointerPosition();
  Form_MouseDown(forms::MouseButton::Left, {}, static_cast<float>(pointer.x) * TwipsX - Left(),
                 static_cast<float>(pointer.y) * TwipsY - Top());
}

void frmToolbar::Form_MouseMove(forms::MouseButton down, forms::ShiftState /*shift*/, float x,
                                float y) {
  if (program_.Strip.AutoHide && !picToolbar.Visible() && Visible()) RevealFromLine();
  if (down == forms::MouseButton::None) {
    EndLostPull();
    FrameDragging = false;
    FrameMoved = false;
    DrawBorders();
    return;
  }
  if (MenuUp()) {
    FrameDragging = true;
    return;
  }
  if (!program_.Guards.IsPlacing()) FollowFrame(down, x, y);
}

void frmToolbar::FollowFrame(forms::MouseButton down, float x, float y) {
  // A button that went down elsewhere pulls nothing.
  if (!FrameHeld) return;
  if (FrameHasMoved({DownX, DownY}, {x, y}, TwipsX, TwipsY)) FrameMoved = true;
  if (!FrameMoved || !forms::Has(down, forms::MouseButton::Left)) {
    DrawBorders();
    return;
  }
  FrameDragging = true;
  Timer2.SetEnabled(false);
  if (!SlidesAlongTop(y, Height(), Where(), AtEdge())) {
    FollowPull();
    return;
  }
  ClearOutline();
  DrawDragLook();
  SetLeft(SlideLeft(x, Left(), picToolbar.Width(), GrabX));
}

void frmToolbar::FollowPull() {
  CapturePort* const capture = program_.Ports.Capture;
  if (program_.Ports.Docking == nullptr || capture == nullptr) return;
  const Edge wanted = ChooseEdge(program_.Services.Pointer.PointerPosition(), ScreenPixels());
  if (wanted == program_.Strip.ToolbarEdge) {
    ClearOutline();
    DrawDragLook();
  } else {
    DrawBorders();
    capture->SetPosition(wanted);
  }
}

void frmToolbar::ClearOutline() {
  CapturePort* const capture = program_.Ports.Capture;
  if (capture != nullptr && capture->OutlineEdge()) capture->ClearBg();
}

bool frmToolbar::EndPull() {
  CapturePort* const capture = program_.Ports.Capture;
  DockingPort* const docking = program_.Ports.Docking;
  if (capture == nullptr || docking == nullptr) return false;
  const std::optional<Edge> edge = capture->OutlineEdge();
  capture->ClearBg();
  const bool alreadyThere =
      edge == Edge::Top && program_.Strip.ToolbarEdge == Edge::Top && !program_.Strip.AppBarDocked;
  LoadedWindow* const image = program_.Ports.ImageWindow;
  // A side that is taken is told of by the docking, which then docks the strip in full sight.
  if (image != nullptr) image->UnloadWindow();
  if (!edge || alreadyThere) return false;
  DrawBorders();
  docking->SetAppBar(edge, true);
  if (!IsLoaded()) return true;
  if (program_.Strip.AutoHide) docking->RevealToolbar();
  SetFocus();
  DrawBorders();
  return true;
}

void frmToolbar::DrawDragLook() {
  for (forms::Line* line : {&bLine1, &bLine2, &bLine3, &bLine4}) {
    line->SetBorderColor(ColorValue(LineColor::Drag));
    line->SetBorderWidth(kDragWidth);
  }
}

void frmToolbar::Form_MouseUp(forms::MouseButton button, forms::ShiftState /*shift*/, float /*x*/,
                              float /*y*/) {
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
      DrawBorders();
    } else {
      EndSlide();
    }
  }
  FrameMoved = false;
  FrameDragging = false;
}

// A strip that hides under the hand is held no more, and its release will not come.
void frmToolbar::AbandonPull() {
  if (!FrameHeld) return;
  LetFrameGo();
  FrameMoved = false;
  FrameDragging = false;
  ClearOutline();
  LoadedWindow* const image = program_.Ports.ImageWindow;
  if (image != nullptr) image->UnloadWindow();
}

// The release went to another program. A strip that was slid stays where the screen and the options
// let it.
void frmToolbar::EndLostPull() {
  if (!FrameHeld) return;
  const bool slid = FrameMoved && !program_.Strip.AppBarDocked;
  AbandonPull();
  if (slid) EndSlide();
}

void frmToolbar::WatchPull() {
  constexpr int kLeftButtonKey = 1;
  constexpr int kRightButtonKey = 2;
  const Input& input = program_.Services.Pointer;
  const bool anyDown = input.IsKeyDown(kLeftButtonKey) || input.IsKeyDown(kRightButtonKey);
  if (!FrameHeld) {
    pullWatch_.Reset();
  } else if (pullWatch_.Look(anyDown, program_.Windows.Now())) {
    pullWatch_.Reset();
    EndLostPull();
    if (picToolbar.Visible()) DrawBorders();
  }
}

void frmToolbar::LetFrameGo() {
  if (FrameHeld) program_.Guards.RestoreBusy = false;
  FrameHeld = false;
}

void frmToolbar::ShowFramePopup(std::string_view tag) {
  // The press that asked for the popup holds nothing any more.
  AbandonPull();
  ResetMenu();
  if (!IsLoaded() || program_.Ports.Popup == nullptr) return;
  program_.Ports.Popup->ShowToolbarPopup({.CurMenuTag = std::string(tag)});
}

void frmToolbar::AdjustToolbarPosition() {
  FrameMoved = true;
  Form_MouseUp(forms::MouseButton::Left, {}, 1, 1);
}

// The strip stays where it was left, as far as the screen and the options let it.
void frmToolbar::EndSlide() {
  const SlideScene scene{.Left = Left(),
                         .Width = Width(),
                         .ButtonsWidth = picToolbar.Width(),
                         .SingleCount = SingleCount,
                         .ScreenWidth = program_.Windows.Screen().Width,
                         .TwipsX = TwipsX,
                         .CaptionButtonWidth = program_.Services.System.CaptionButtonWidth(),
                         .MayPassRight = program_.OptionFlags.Is(Option::MayPassRight),
                         .MayPassLeft = program_.OptionFlags.Is(Option::MayPassLeft)};
  SavedTop = -static_cast<float>(TopCut) * TwipsY;
  SavedLeft = SlideEnd(scene);
  Move(SavedLeft, SavedTop, Width(), Height());
  UpdateToolbarPosition();
  DrawBorders();
}

}  // namespace corvelle
