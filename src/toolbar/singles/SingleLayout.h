#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "base/Edge.h"
#include "base/Geometry.h"
#include "base/Twips.h"
#include "toolbar/layout/StripLayout.h"

namespace corvelle {

// Sizes and places in the row of single buttons: pure rules. All measures are twips of the row's
// box unless told otherwise.

/// What an entry of the row is.
enum class SingleKind : std::int16_t { Button = 0, Separator = 1, Template = 2 };

/// An entry of the row. Entry 0 of an array of them is the template, from which the first button's
/// place derives.
struct SingleRect {
  std::string Title;
  std::string Icon;
  std::string Command;
  std::string File;  // full path
  float Top = 0;
  float Left = 0;
  float Width = 0;
  float Height = 0;
  SingleKind Kind = SingleKind::Button;

  [[nodiscard]] float Right() const noexcept { return Left + Width; }
  [[nodiscard]] float Bottom() const noexcept { return Top + Height; }
};

/// All that the places depend on.
struct SingleScene {
  StripScale Scale;
  Edge At = Edge::Top;
  bool TwoRows = false;
  int IconSize = 16;               // pixels, of the icons in the row
  TwipSize Template = {330, 330};  // the template of the menu buttons
};

[[nodiscard]] SingleRect SingleTemplate(const StripScale& scale);

/// Place of the entry behind `previous`. In two rows a button goes into the first one at the
/// beginning, behind a separator and behind a button in the second one, else beside or below
/// `previous`.
[[nodiscard]] TwipRect PlaceSingle(const SingleScene& scene, const SingleRect& previous,
                                   SingleKind kind) noexcept;

/// Where the first line of a separator in that place goes: along the row.
[[nodiscard]] float SeparatorPosition(const StripScale& scale, const TwipRect& place) noexcept;

/// Two lines side by side: of a separator, or around a button.
struct LinePair {
  TwipLine Line1;
  TwipLine Line2;

  friend bool operator==(const LinePair&, const LinePair&) = default;
};

/// The lines of a separator at a position, across a box of that size: Line1 shadow, Line2
/// highlight.
[[nodiscard]] LinePair SeparatorLines(const StripScale& scale, float position,
                                      TwipSize box) noexcept;

/// The lines at the sides of a button under the pointer: Line1 highlight, Line2 shadow.
[[nodiscard]] LinePair HoverLines(const StripScale& scale, const TwipRect& button) noexcept;

/// Length of the box along the row that ends with `last`, entry 0 for an empty row.
[[nodiscard]] float SinglesLength(const StripScale& scale, const SingleRect& last) noexcept;

/// Upper left corner of a button's icon, in pixels of the box. It is centred along the strip.
/// Across a strip that lies, a single row lines up with the icons of the menu buttons, and what
/// lies above the screen is left out of the middle.
[[nodiscard]] PixelPoint SingleIconPlace(const SingleScene& scene, const TwipRect& button,
                                         Placement where, int topCut) noexcept;

/// Index of the entry that holds the point, 0 for none. Entry 0 is the template.
[[nodiscard]] int SingleAt(std::span<const SingleRect> singles, TwipPoint at) noexcept;

struct DateScene {
  TwipSize Box;            // of the single buttons
  TwipSize Label;          // of the date's text
  int SingleCount = 0;     // entries before it
  float LastRight = 0;     // end of the last of them
  float WindowWidth = 0;   // of the strip
  float ButtonsWidth = 0;  // of the menu buttons' box
  float TwipsX = 15;
};

struct DateSpot {
  bool Visible = false;
  float Left = 0;
  float Top = 0;
  TwipLine Line1;  // highlight, before the date
  TwipLine Line2;  // shadow, a pixel left of it

  friend bool operator==(const DateSpot&, const DateSpot&) = default;
};

/// Where the date goes at the far end of a horizontal strip; invisible where it has no room.
[[nodiscard]] DateSpot PlaceDate(const DateScene& scene) noexcept;

/// True if a press at `x` in the box counts as one on a date that begins at `dateLeft`.
[[nodiscard]] constexpr bool IsOnDateArea(float x, float dateLeft) noexcept {
  return x >= dateLeft - 50;
}

}  // namespace corvelle
