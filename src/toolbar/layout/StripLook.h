#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "base/Edge.h"
#include "base/Twips.h"
#include "toolbar/layout/StripLayout.h"

namespace corvelle {

// Which lines of the strip are seen, where and in which colour: pure rules. Measures are twips.

/// Colours of the strip's lines; the values are those of the program's colours.
enum class LineColor : std::uint32_t {
  Face = 0x8000000F,
  Shadow = 0x80000010,
  Highlight = 0x80000014,
  DarkShadow = 0x80000015,
  Drag = 255,  // red
};

/// The colour as the toolkit writes it.
[[nodiscard]] constexpr std::uint32_t ColorValue(LineColor color) noexcept {
  return static_cast<std::uint32_t>(color);
}

/// How a line is seen.
struct LineLook {
  bool Visible = false;
  LineColor Color = LineColor::Face;

  friend bool operator==(const LineLook&, const LineLook&) = default;
};

/// How the two lines of a button are seen.
struct ButtonLook {
  LineLook LinTB1;
  LineLook LinTB2;

  friend bool operator==(const ButtonLook&, const ButtonLook&) = default;
};

/// The look of a button at rest.
inline constexpr ButtonLook kRestingLook = {{true, LineColor::Highlight},
                                            {true, LineColor::Shadow}};

struct LookScene {
  std::span<const ButtonRect> Buttons;  // entry 0 is the template
  int CurButton = 0;                    // the pressed one, 0 for none
  bool Vertical = false;
  bool Docked = false;
  float TwipsX = 15;
  float TwipsY = 15;
};

/// The look of every button while one is pressed; entry 0 belongs to the template and is hidden.
[[nodiscard]] std::vector<ButtonLook> ButtonLooks(const LookScene& scene);

struct BorderScene {
  Placement Where = Placement::TopHugging;
  Edge At = Edge::Top;
  float TwipsX = 15;
  float TwipsY = 15;
  TwipRect Window;
  float ScreenWidth = 0;
  int SingleCount = 0;
  TwipRect Singles;  // picSingleButton before the change
};

/// A line of the window's border.
struct BorderLine {
  TwipLine Points;
  LineLook Look;

  friend bool operator==(const BorderLine&, const BorderLine&) = default;
};

struct StripBorders {
  BorderLine bLine1;
  BorderLine bLine2;
  BorderLine bLine3;
  BorderLine bLine4;
  BorderLine bLineXY;
  float SinglesHeight = 0;  // of picSingleButton; as it was except on a vertical edge
};

/// The five lines of the border, each one pixel wide. At a horizontal edge a side that lies against
/// the screen's side has no line.
[[nodiscard]] StripBorders DrawBordersRule(const BorderScene& scene) noexcept;

}  // namespace corvelle
