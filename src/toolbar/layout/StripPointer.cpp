#include "toolbar/layout/StripPointer.h"

#include "base/Numbers.h"

namespace corvelle {
namespace {

constexpr int kLeftKey = 37;
constexpr int kRightKey = 39;

// Where the box of buttons starts inside the window, in pixels: along the strip and across it.
constexpr float kInsetAlong = 2;
constexpr float kInsetAcross = 1;

TwipPoint Inset(const StripScale& scale) noexcept {
  if (scale.Vertical) return {kInsetAcross * scale.TwipsX, kInsetAlong * scale.TwipsY};
  return {kInsetAlong * scale.TwipsX, kInsetAcross * scale.TwipsY};
}

bool Holds(const ButtonRect& button, TwipPoint at) noexcept {
  return at.X >= button.Left && at.X <= button.Right() && at.Y >= button.Top &&
         at.Y <= button.Bottom();
}

}  // namespace

int ButtonAt(std::span<const ButtonRect> buttons, const StripPlace& place, PixelPoint pointer,
             int current, bool menuOpen) noexcept {
  const TwipPoint inset = Inset(place.Scale);
  const TwipPoint at{static_cast<float>(pointer.x) * place.Scale.TwipsX - place.Left - inset.X,
                     static_cast<float>(pointer.y) * place.Scale.TwipsY - place.Top - inset.Y};
  for (std::size_t i = 1; i < buttons.size(); ++i) {
    if (Holds(buttons[i], at)) return static_cast<int>(i);
  }
  return menuOpen ? current : 0;
}

int NextButton(int current, int count, int keyCode) noexcept {
  if (count < 1) return 0;
  if (keyCode == kLeftKey) return current <= 1 ? count : current - 1;
  if (keyCode == kRightKey) return current >= count ? 1 : current + 1;
  return current;
}

PixelPoint ButtonMiddle(const ButtonRect& button, const StripPlace& place) noexcept {
  const TwipPoint inset = Inset(place.Scale);
  const float x = place.Left + inset.X + button.Left + button.Width / 2;
  const float y = place.Top + inset.Y + button.Top + button.Height / 2;
  return {RoundToInt(static_cast<double>(x / place.Scale.TwipsX)),
          RoundToInt(static_cast<double>(y / place.Scale.TwipsY))};
}

}  // namespace corvelle
