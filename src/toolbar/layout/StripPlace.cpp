#include "toolbar/layout/StripPlace.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace corvelle {
namespace {

constexpr float kUnknownCaptionRoom = 900;
constexpr float kBareStripRoom = 1750;  // right of a strip without single buttons

}  // namespace

float CaptionRoom(int captionButtonWidth, float twipsX) noexcept {
  if (captionButtonWidth == 0) return kUnknownCaptionRoom;
  return static_cast<float>(captionButtonWidth) * 3 * twipsX + 6 * twipsX;
}

StripPosition PlaceTopHugging(const PositionScene& s) noexcept {
  StripPosition out;
  out.SavedLeft = std::isfinite(s.SavedLeft) && s.SavedLeft != 0 ? s.SavedLeft : s.ScreenWidth;
  out.Window.Left = out.SavedLeft;
  const float room = CaptionRoom(s.CaptionButtonWidth, s.TwipsX);
  const float limit = s.ScreenWidth - room + 6 * s.TwipsX;
  if (out.Window.Left + s.WindowWidth >= limit) {
    out.Window.Left = s.ScreenWidth - s.WindowWidth - room;
    out.SavedLeft = out.Window.Left;
  }
  if (out.Window.Left < 0) out.Window.Left = 0;
  out.Window.Width = s.Singles.Right() + s.TwipsX;
  out.Window.Height = s.ButtonsHeight + 3 * s.TwipsY;
  out.Window.Top = -static_cast<float>(s.TopCut) * s.TwipsY;
  out.SavedTop = out.Window.Top;
  return out;
}

float SlideEnd(const SlideScene& s) noexcept {
  float left = s.Left;
  if (!s.MayPassRight) {
    if (s.SingleCount == 0) {
      const float limit = s.ScreenWidth - kBareStripRoom;
      if (left + s.ButtonsWidth > limit) left = s.ScreenWidth - s.ButtonsWidth - kBareStripRoom;
    } else {
      const float room = CaptionRoom(s.CaptionButtonWidth, s.TwipsX);
      if (left + s.Width > s.ScreenWidth - room) left = s.ScreenWidth - s.Width - room;
    }
  }
  if (s.Width > s.ScreenWidth) left = 0;
  if (!s.MayPassLeft && left < 0) left = 0;
  return left;
}

bool FrameHasMoved(TwipPoint down, TwipPoint now, float twipsX, float twipsY) noexcept {
  return std::abs(now.X - down.X) > 3 * twipsX || std::abs(now.Y - down.Y) > 3 * twipsY;
}

Edge ChooseEdge(PixelPoint pointer, PixelSize screen) noexcept {
  const std::int64_t dx = pointer.x - screen.width / 2;
  const std::int64_t dy = pointer.y - screen.height / 2;
  if (std::abs(dx) * screen.height >= std::abs(dy) * screen.width) {
    return dx < 0 ? Edge::Left : Edge::Right;
  }
  return dy < 0 ? Edge::Top : Edge::Bottom;
}

MenuSpot MenuPosition(const MenuSpotScene& s) noexcept {
  const float besideButton = s.ButtonLeft + s.TwipsX + s.Window.Left;
  if (s.Where == Placement::TopHugging) return {besideButton, s.Window.Height + s.Window.Top};
  switch (s.At) {
    case Edge::Top:
      return {besideButton, s.Window.Height + s.Window.Top - s.TwipsY};
    case Edge::Bottom:
      return {besideButton, s.Window.Top - s.MenuHeight};
    case Edge::Left:
    case Edge::Right:
      break;
  }
  float top = s.ButtonTop + s.Window.Top;
  if (top + s.MenuHeight > s.ScreenHeight) top = s.ScreenHeight - s.MenuHeight;
  return {s.At == Edge::Left ? s.Window.Right() : s.Window.Left - s.MenuWidth, top};
}

}  // namespace corvelle
