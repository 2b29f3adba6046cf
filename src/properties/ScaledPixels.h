#pragma once

namespace corvelle {

/// Pixels of a screen of 96 dots an inch as those of one of `dpi`, rounded.
[[nodiscard]] constexpr int ScaledPixels(int pixels, int dpi) noexcept {
  constexpr int kDotsOfOne = 96;
  return (pixels * dpi + kDotsOfOne / 2) / kDotsOfOne;
}

}  // namespace corvelle
