#include "e2e/MenuLook.h"

#include <algorithm>

namespace corvelle::e2e {

namespace {

// Columns of a caption that icons and borders do not reach.
constexpr int kCaptionLeft = 29;
constexpr int kCaptionRight = 70;
constexpr int kBorder = 5;

}  // namespace

MenuLook::MenuLook(HWND window, int most) {
  RECT bounds = {};
  GetWindowRect(window, &bounds);
  height_ = std::min(static_cast<int>(bounds.bottom - bounds.top), most);
  BITMAPINFO form = {};
  form.bmiHeader.biSize = sizeof(form.bmiHeader);
  form.bmiHeader.biWidth = kWidth;
  form.bmiHeader.biHeight = -height_;
  form.bmiHeader.biPlanes = 1;
  form.bmiHeader.biBitCount = 32;
  HDC source = GetDCEx(window, nullptr, DCX_WINDOW | DCX_CACHE);
  HDC memory = CreateCompatibleDC(source);
  void* bits = nullptr;
  HBITMAP bitmap = CreateDIBSection(memory, &form, DIB_RGB_COLORS, &bits, nullptr, 0);
  if (bitmap != nullptr) {
    HGDIOBJ before = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, kWidth, height_, source, 0, 0, SRCCOPY);
    GdiFlush();
    const auto* const pixels = static_cast<const std::uint32_t*>(bits);
    pixels_.assign(pixels, pixels + static_cast<std::size_t>(kWidth) * height_);
    SelectObject(memory, before);
    DeleteObject(bitmap);
  }
  DeleteDC(memory);
  ReleaseDC(window, source);
}

int MenuLook::Colours(int middle, int left, int right) const {
  std::vector<std::uint32_t> seen;
  for (int y = std::max(0, middle - 5); y < std::min(height_, middle + 5); ++y) {
    for (int x = left; x < right; ++x) {
      const std::uint32_t colour = pixels_[static_cast<std::size_t>(y * kWidth + x)] & 0xFFFFFFU;
      if (std::find(seen.begin(), seen.end(), colour) == seen.end()) seen.push_back(colour);
    }
  }
  return static_cast<int>(seen.size());
}

bool MenuLook::HasText(int y) const {
  const auto row = pixels_.begin() + static_cast<std::ptrdiff_t>(y) * kWidth;
  return std::any_of(row + kCaptionLeft, row + kCaptionRight,
                     [&](std::uint32_t pixel) { return pixel != row[kCaptionLeft]; });
}

int MenuLook::Captions() const {
  int lines = 0;
  bool inLine = false;
  for (int y = kBorder; IsRead() && y < height_ - kBorder; ++y) {
    const bool text = HasText(y);
    if (text && !inLine) ++lines;
    inLine = text;
  }
  return lines;
}

}  // namespace corvelle::e2e
