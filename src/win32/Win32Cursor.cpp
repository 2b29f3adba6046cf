#include "win32/Win32Cursor.h"

#include <cstddef>
#include <cstdint>
#include <vector>

#include "forms/Graphic.h"

namespace corvelle::win32 {

namespace {

constexpr std::uint32_t kOpaque = 0xFF000000U;

/// A pixel as a bitmap with transparency holds it.
std::uint32_t PixelOf(Rgb colour) noexcept {
  if (colour == forms::Image::kMask) return 0;
  return kOpaque | (colour & 0xFFU) << 16 | (colour & 0xFF00U) | (colour >> 16 & 0xFFU);
}

UniqueBitmap ColourBitmap(const Canvas& picture, PixelSize size) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(info.bmiHeader);
  info.bmiHeader.biWidth = size.width;
  info.bmiHeader.biHeight = -size.height;  // the top row first
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  void* bits = nullptr;
  UniqueBitmap bitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  if (!bitmap) return bitmap;
  auto* pixel = static_cast<std::uint32_t*>(bits);
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) *pixel++ = PixelOf(picture.PixelAt({x, y}));
  }
  return bitmap;
}

/// One bit a pixel, set where the screen shows through; each row fills whole words.
UniqueBitmap MaskBitmap(const Canvas& picture, PixelSize size) {
  const auto stride = static_cast<std::size_t>((size.width + 15) / 16 * 2);
  std::vector<std::uint8_t> bits(stride * static_cast<std::size_t>(size.height));
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      if (picture.PixelAt({x, y}) != forms::Image::kMask) continue;
      bits[static_cast<std::size_t>(y) * stride + static_cast<std::size_t>(x / 8)] |=
          static_cast<std::uint8_t>(0x80U >> (x % 8));
    }
  }
  return UniqueBitmap(CreateBitmap(size.width, size.height, 1, 1, bits.data()));
}

}  // namespace

UniqueCursor MakeCursor(const Canvas& picture, PixelPoint hotSpot) {
  const PixelSize size = picture.Size();
  const UniqueBitmap colours = ColourBitmap(picture, size);
  const UniqueBitmap mask = MaskBitmap(picture, size);
  if (!colours || !mask) return {};
  ICONINFO info{};
  info.fIcon = FALSE;
  info.xHotspot = static_cast<DWORD>(hotSpot.x);
  info.yHotspot = static_cast<DWORD>(hotSpot.y);
  info.hbmMask = mask.Get();
  info.hbmColor = colours.Get();
  return UniqueCursor(CreateIconIndirect(&info));
}

}  // namespace corvelle::win32
