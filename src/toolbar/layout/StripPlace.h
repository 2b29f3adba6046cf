#pragma once

#include "base/Edge.h"
#include "base/Geometry.h"
#include "base/Twips.h"
#include "toolbar/layout/StripLayout.h"

namespace corvelle {

// Where the strip and its menu go on the screen: pure rules. Measures are twips unless told
// otherwise.

/// Room that stays free for the caption buttons of a maximized window, by the width of one of them
/// (SM_CXSIZE in pixels, 0 when the system does not tell).
[[nodiscard]] float CaptionRoom(int captionButtonWidth, float twipsX) noexcept;

/// What is stored for the window's Left. 0 would read as no place, so that the left end of the
/// screen is stored as one twip, which is the same pixel.
[[nodiscard]] constexpr float StoredLeft(float left) noexcept { return left == 0 ? 1 : left; }

struct PositionScene {
  float SavedLeft = 0;  // as read; 0 means none yet
  float ScreenWidth = 0;
  float TwipsX = 15;
  float TwipsY = 15;
  int CaptionButtonWidth = 18;  // pixels, 0 when the system does not tell
  float WindowWidth = 0;
  TwipRect Singles;         // picSingleButton
  float ButtonsHeight = 0;  // of picToolbar
  int TopCut = 4;           // pixels
};

struct StripPosition {
  TwipRect Window;
  float SavedLeft = 0;
  float SavedTop = 0;

  friend bool operator==(const StripPosition&, const StripPosition&) = default;
};

/// Place and size of a top-hugging strip by its saved position. A value that is no number counts as
/// no position yet.
[[nodiscard]] StripPosition PlaceTopHugging(const PositionScene& scene) noexcept;

/// The window's Left while the frame is dragged along the top; `x` is the pointer in the window.
[[nodiscard]] constexpr float SlideLeft(float x, float windowLeft, float buttonsWidth,
                                        float grabX) noexcept {
  return x + windowLeft - buttonsWidth - grabX;
}

/// True if the pointer, in the window, slides the strip along the top instead of choosing an edge.
[[nodiscard]] constexpr bool SlidesAlongTop(float y, float windowHeight, Placement where,
                                            Edge at) noexcept {
  return y >= 0 && y <= windowHeight && at == Edge::Top && where == Placement::TopHugging;
}

struct SlideScene {
  float Left = 0;
  float Width = 0;
  float ButtonsWidth = 0;  // of picToolbar
  int SingleCount = 0;
  float ScreenWidth = 0;
  float TwipsX = 15;
  int CaptionButtonWidth = 18;  // pixels, 0 when the system does not tell
  bool MayPassRight = false;    // Option::MayPassRight
  bool MayPassLeft = false;     // Option::MayPassLeft
};

/// The window's Left after a slide along the top.
[[nodiscard]] float SlideEnd(const SlideScene& scene) noexcept;

/// True if the pointer went more than 3 pixels from the press, on either axis.
[[nodiscard]] bool FrameHasMoved(TwipPoint down, TwipPoint now, float twipsX,
                                 float twipsY) noexcept;

/// The edge to which a strip at the pointer belongs: the screen is cut along its two diagonals. On
/// a diagonal, and in the middle, the left and right sides win. Pixels.
[[nodiscard]] Edge ChooseEdge(PixelPoint pointer, PixelSize screen) noexcept;

struct MenuSpotScene {
  Placement Where = Placement::AtEdge;
  Edge At = Edge::Top;
  TwipRect Window;       // the strip
  float ButtonLeft = 0;  // in the box of buttons
  float ButtonTop = 0;
  float MenuWidth = 0;
  float MenuHeight = 0;
  float ScreenHeight = 0;
  float TwipsX = 15;
  float TwipsY = 15;
};

struct MenuSpot {
  float Left = 0;
  float Top = 0;

  friend bool operator==(const MenuSpot&, const MenuSpot&) = default;
};

/// Where the menu of a button goes beside the strip.
[[nodiscard]] MenuSpot MenuPosition(const MenuSpotScene& scene) noexcept;

}  // namespace corvelle
