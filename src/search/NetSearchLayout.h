#pragma once

#include "base/Twips.h"

namespace corvelle {

/// What the places of the controls of Net Search depend on. All in twips.
struct NetSearchScene {
  float TextHeight = 195;    // one line
  float LabelWidth = 900;    // of the wider label
  float CaptionWidth = 500;  // of the wider button's caption
  float FrameWidth = 90;     // what the window's frame takes, both sides together
  float FrameHeight = 435;   // likewise, with the caption
};

/// Places in the window, but for the labels and boxes: these are in `Inside`.
struct NetSearchLayout {
  TwipRect Window;  // its size
  TwipRect Frame1;
  TwipRect Inside;  // in Frame1
  TwipRect Label1;
  TwipRect cmbText;
  TwipRect Label2;
  TwipRect cmbEngine;
  TwipRect cmdFind;
  TwipRect cmdClear;
};

/// The window is 5500 twips wide, whatever the screen's scale, and as high as its text needs.
[[nodiscard]] NetSearchLayout LayOutNetSearch(const NetSearchScene& scene) noexcept;

}  // namespace corvelle
