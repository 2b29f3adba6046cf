#include "toolbar/layout/StripLook.h"

#include <cmath>

namespace corvelle {
namespace {

constexpr float kNeighbourGap = 4;  // pixels: what is farther away has a separator before it

constexpr LineLook kHidden{false, LineColor::Face};
constexpr LineLook kFace{true, LineColor::Face};
constexpr LineLook kHighlight{true, LineColor::Highlight};
constexpr LineLook kShadow{true, LineColor::Shadow};

/// True if `second` follows `first` on the strip without a separator between them.
bool AreNeighbours(const ButtonRect& first, const ButtonRect& second, const LookScene& s) noexcept {
  return s.Vertical ? second.Top - first.Bottom() <= kNeighbourGap * s.TwipsY
                    : second.Left - first.Right() <= kNeighbourGap * s.TwipsX;
}

StripBorders VerticalBorders(const BorderScene& s) noexcept {
  const float w = s.Window.Width;
  const float h = s.Window.Height;
  const float x = s.TwipsX;
  const float y = s.TwipsY;
  const float left = s.At == Edge::Left ? 0 : x;
  StripBorders out;
  out.bLine1 = {{x, 0, w - x, 0}, {false, LineColor::Highlight}};
  out.bLine2 = {{left, 2 * y, left, h - y}, kHighlight};
  out.bLine3 = {{x, h - y, w, h - y}, {true, LineColor::DarkShadow}};
  out.bLine4 = {{w - x, 0, w - x, h - y}, {true, LineColor::DarkShadow}};
  out.bLineXY = {{w - 2 * x, 0, w - 2 * x, h}, kShadow};
  out.SinglesHeight = s.SingleCount > 0 ? h - s.Singles.Top - 2 * y : s.Singles.Height;
  return out;
}

StripBorders HorizontalBorders(const BorderScene& s) noexcept {
  const float w = s.Window.Width;
  const float h = s.Window.Height;
  const float x = s.TwipsX;
  const float y = s.TwipsY;
  const bool atEdge = s.Where == Placement::AtEdge;
  const float upper = !atEdge || s.At == Edge::Top ? 0 : y;
  const bool leftEnd = atEdge && std::abs(s.Window.Left) < x / 2;
  const bool rightEnd = atEdge && s.Window.Right() > s.ScreenWidth - x / 2;
  StripBorders out;
  out.bLine1 = {{x, upper, w - x, upper}, kHighlight};
  out.bLine2 = {{0, 0, 0, h - y}, {!leftEnd, LineColor::DarkShadow}};
  out.bLine3 = {{0, h - y, w, h - y}, {true, LineColor::DarkShadow}};
  out.bLine4 = {{w - x, y, w - x, h}, {!rightEnd, LineColor::DarkShadow}};
  out.bLineXY = {{0, h - 2 * y, w, h - 2 * y}, {atEdge, LineColor::Shadow}};
  out.SinglesHeight = s.Singles.Height;
  return out;
}

}  // namespace

std::vector<ButtonLook> ButtonLooks(const LookScene& s) {
  std::vector<ButtonLook> looks(s.Buttons.size(), kRestingLook);
  if (looks.empty()) return looks;
  looks.front() = {kHidden, kHidden};
  if (s.CurButton < 1 || static_cast<std::size_t>(s.CurButton) >= looks.size()) return looks;

  const auto current = static_cast<std::size_t>(s.CurButton);
  const bool isFirst = current == 1;
  const bool isLast = current + 1 == looks.size();
  // The pressed look is made of the neighbours' lines; only at an end of the strip, where there is
  // no neighbour, it takes the button's own.
  looks[current] = {isFirst && (s.Docked || s.Vertical) ? kShadow : kHidden,
                    isLast ? kHighlight : kHidden};
  const ButtonRect& button = s.Buttons[current];
  if (!isLast) {
    const bool near = AreNeighbours(button, s.Buttons[current + 1], s);
    looks[current + 1].LinTB1 = near ? kHighlight : kFace;
  }
  if (!isFirst) {
    const bool near = AreNeighbours(s.Buttons[current - 1], button, s);
    looks[current - 1].LinTB2 = near ? kShadow : kFace;
  }
  return looks;
}

StripBorders DrawBordersRule(const BorderScene& s) noexcept {
  return s.Where == Placement::AtEdge && IsVertical(s.At) ? VerticalBorders(s)
                                                          : HorizontalBorders(s);
}

}  // namespace corvelle
