#include "toolbar/notices/HintPlace.h"

namespace corvelle {
namespace {

constexpr float kRightGap = 50;  // twips between a hint and the right side of the screen

}  // namespace

HintPlace PlaceHint(const HintScene& s) noexcept {
  HintPlace place;
  const auto x = static_cast<float>(s.Pointer.x);
  const auto y = static_cast<float>(s.Pointer.y);
  place.Window = {(x - 2) * s.TwipsX, (y + 18) * s.TwipsY, s.Label.Width + 4 * s.TwipsX,
                  s.Label.Height + 6 * s.TwipsY};
  place.LabelTop = (place.Window.Height - s.Label.Height) / 2 - 20;
  if (place.Window.Right() >= s.ScreenWidth) {
    place.Window.Left = s.ScreenWidth - place.Window.Width - kRightGap;
  }
  if (place.Window.Bottom() >= s.ScreenHeight) {
    place.Window.Top = y * s.TwipsY - place.Window.Height;
  }
  return place;
}

}  // namespace corvelle
