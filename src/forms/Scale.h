#pragma once

#include "base/Geometry.h"
#include "forms/Types.h"

namespace corvelle::forms {

/// How many twips a pixel has at this many dots of an inch.
[[nodiscard]] float TwipsOfPixel(int dpi) noexcept;

/// Twips to the nearest pixel, halves to the even one.
[[nodiscard]] int ToPixels(float twips, float twipsPerPixel) noexcept;

[[nodiscard]] PixelPoint ToPixels(float x, float y, const PixelScale& scale) noexcept;

/// The rectangle whose sides are each rounded, so that neighbours in twips stay neighbours.
[[nodiscard]] PixelRect ToPixels(float left, float top, float width, float height,
                                 const PixelScale& scale) noexcept;

}  // namespace corvelle::forms
