#pragma once

#include "base/Geometry.h"
#include "base/Twips.h"

namespace corvelle {

/// What the place of a hint depends on. Twips, but for the pointer (pixels of the screen).
struct HintScene {
  PixelPoint Pointer;
  TwipSize Label;  // of the text with its blanks
  float TwipsX = 15;
  float TwipsY = 15;
  float ScreenWidth = 15360;
  float ScreenHeight = 11520;
};

/// Where the hint's window goes, and its label in it. Twips.
struct HintPlace {
  TwipRect Window;
  float LabelTop = 0;

  friend bool operator==(const HintPlace&, const HintPlace&) = default;
};

/// Below the pointer; left of where it would leave the screen, and above the pointer where there is
/// no room below.
[[nodiscard]] HintPlace PlaceHint(const HintScene& scene) noexcept;

}  // namespace corvelle
