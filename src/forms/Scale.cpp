#include "forms/Scale.h"

#include "base/Numbers.h"

namespace corvelle::forms {

float TwipsOfPixel(int dpi) noexcept {
  constexpr float kTwipsOfAnInch = 1440;
  return kTwipsOfAnInch / static_cast<float>(dpi);
}

int ToPixels(float twips, float twipsPerPixel) noexcept {
  return RoundToInt(static_cast<double>(twips) / static_cast<double>(twipsPerPixel));
}

PixelPoint ToPixels(float x, float y, const PixelScale& scale) noexcept {
  return {ToPixels(x, scale.TwipsPerPixelX), ToPixels(y, scale.TwipsPerPixelY)};
}

PixelRect ToPixels(float left, float top, float width, float height,
                   const PixelScale& scale) noexcept {
  const PixelPoint topLeft = ToPixels(left, top, scale);
  const PixelPoint bottomRight = ToPixels(left + width, top + height, scale);
  return {topLeft.x, topLeft.y, bottomRight.x, bottomRight.y};
}

}  // namespace corvelle::forms
