#pragma once

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace corvelle::e2e {

/// The left part of a menu window as it is seen at this moment: icons and the beginnings of the
/// captions. What is covered by other windows cannot be read.
///
/// To read a window costs the screen's server time, which the program that draws it has to wait
/// for: whoever looks again and again looks at the upper end only.
class MenuLook {
 public:
  /// Of the window, or of its first `most` rows of pixels.
  explicit MenuLook(HWND window, int most = kWhole);

  [[nodiscard]] bool IsRead() const { return !pixels_.empty(); }
  /// How many rows of pixels were read.
  [[nodiscard]] int Height() const { return height_; }
  /// How many different colours there are around a row's middle between two columns.
  [[nodiscard]] int Colours(int middle, int left, int right) const;
  /// How many lines of text there are below one another, where the captions are.
  [[nodiscard]] int Captions() const;

  friend bool operator==(const MenuLook&, const MenuLook&) = default;

 private:
  static constexpr int kWidth = 80;
  static constexpr int kWhole = 0x7FFF;
  [[nodiscard]] bool HasText(int y) const;

  int height_ = 0;
  std::vector<std::uint32_t> pixels_;
};

}  // namespace corvelle::e2e
