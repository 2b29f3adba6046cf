#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace corvelle {

/// A small picture as plain values, which can go from one thread or process to another. Pixels are
/// 0xAABBGGRR, row by row from the top; AA is 0 where nothing is drawn and 255 where the ground is
/// covered. An empty one has no pixels.
struct IconPixels {
  int Width = 0;
  int Height = 0;
  std::vector<std::uint32_t> Pixels;

  [[nodiscard]] bool IsEmpty() const noexcept { return Pixels.empty(); }
  /// True when there are as many pixels as the measures say.
  [[nodiscard]] bool IsWhole() const noexcept {
    return Width >= 0 && Height >= 0 &&
           Pixels.size() == static_cast<std::size_t>(Width) * static_cast<std::size_t>(Height);
  }

  friend bool operator==(const IconPixels&, const IconPixels&) = default;
};

}  // namespace corvelle
