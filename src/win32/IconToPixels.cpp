#include "win32/IconToPixels.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "win32/DrawingTools.h"
#include "win32/UniqueHandle.h"

namespace corvelle::win32 {

namespace {

constexpr int kLargestIcon = 256;

/// Width and height of an icon; 0 when the system does not tell.
int SideOf(HICON icon) {
  ICONINFO info{};
  if (GetIconInfo(icon, &info) == 0) return 0;
  const UniqueBitmap colours(info.hbmColor);
  const UniqueBitmap mask(info.hbmMask);
  BITMAP bitmap{};
  const HBITMAP measured = colours ? colours.Get() : mask.Get();
  if (GetObjectW(measured, sizeof(bitmap), &bitmap) == 0) return 0;
  return bitmap.bmWidth;
}

/// A square of memory that can be drawn on.
class Sheet {
 public:
  explicit Sheet(int side) : side_(side), dc_(CreateCompatibleDC(nullptr)) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = side;
    info.bmiHeader.biHeight = -side;  // the top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* pixels = nullptr;
    bitmap_.Reset(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pixels, nullptr, 0));
    pixels_ = static_cast<std::uint32_t*>(pixels);
  }
  Sheet(const Sheet&) = delete;
  Sheet& operator=(const Sheet&) = delete;
  ~Sheet() {
    if (dc_ != nullptr) DeleteDC(dc_);
  }

  /// The pixels, 0x00RRGGBB, of the icon on a ground of one colour; null when it cannot be drawn.
  const std::uint32_t* Draw(HICON icon, std::uint32_t ground) {
    if (dc_ == nullptr || !bitmap_) return nullptr;
    std::fill_n(pixels_, static_cast<std::size_t>(side_) * static_cast<std::size_t>(side_), ground);
    const SelectedObject selected(dc_, bitmap_.Get());
    if (DrawIconEx(dc_, 0, 0, icon, side_, side_, 0, nullptr, DI_NORMAL) == 0) return nullptr;
    GdiFlush();
    return pixels_;
  }

 private:
  int side_;
  HDC dc_;
  UniqueBitmap bitmap_;
  std::uint32_t* pixels_ = nullptr;
};

/// What was drawn, from how it looks on black and on white. How much of the ground shows is read
/// off the channel that changes most.
std::uint32_t Unmix(std::uint32_t onBlack, std::uint32_t onWhite) {
  std::uint32_t shows = 0;
  for (const unsigned shift : {0U, 8U, 16U}) {
    const std::uint32_t dark = (onBlack >> shift) & 0xFFU;
    const std::uint32_t light = (onWhite >> shift) & 0xFFU;
    shows = std::max(shows, light > dark ? light - dark : 0U);
  }
  const std::uint32_t alpha = 255U - shows;
  if (alpha == 0) return 0;
  const auto channel = [&](unsigned shift) {
    const std::uint32_t dark = (onBlack >> shift) & 0xFFU;
    return std::min((dark * 255U + alpha / 2) / alpha, 255U);
  };
  // The system counts blue first.
  return (alpha << 24) | (channel(0) << 16) | (channel(8) << 8) | channel(16);
}

}  // namespace

std::optional<IconPixels> PixelsOfIcon(HICON icon, int size) {
  if (icon == nullptr) return std::nullopt;
  const int side = size > 0 ? size : SideOf(icon);
  if (side <= 0 || side > kLargestIcon) return std::nullopt;
  Sheet black(side);
  Sheet white(side);
  const std::uint32_t* dark = black.Draw(icon, 0);
  const std::uint32_t* light = white.Draw(icon, 0x00FFFFFFU);
  if (dark == nullptr || light == nullptr) return std::nullopt;
  IconPixels picture{side, side, {}};
  const auto count = static_cast<std::size_t>(side) * static_cast<std::size_t>(side);
  picture.Pixels.reserve(count);
  for (std::size_t i = 0; i < count; ++i) picture.Pixels.push_back(Unmix(dark[i], light[i]));
  return picture;
}

}  // namespace corvelle::win32
