#include "win32/Win32Canvas.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

#include "win32/Wide.h"

namespace corvelle::win32 {

namespace {

constexpr WORD kBitsPerPixel = 32;

void Fill(HDC dc, const PixelRect& box, Rgb colour) {
  const RECT rect = ToRect(box);
  SetDCBrushColor(dc, colour);
  FillRect(dc, &rect, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

void Stroke(HDC dc, PixelPoint from, PixelPoint to) {
  MoveToEx(dc, from.x, from.y, nullptr);
  LineTo(dc, to.x, to.y);
}

/// The first and the last place of a line along one axis; its end does not belong to it.
std::pair<int, int> Stretch(int from, int to) {
  if (from == to) return {from, from};
  return from < to ? std::pair{from, to - 1} : std::pair{to + 1, from};
}

/// What an upright or level line covers: a square of its width at each of its points.
PixelRect BoxOfLine(PixelPoint from, PixelPoint to, int width) {
  const auto [left, right] = Stretch(from.x, to.x);
  const auto [top, bottom] = Stretch(from.y, to.y);
  const int reach = (width - 1) / 2;
  return {left - reach, top - reach, right - reach + width, bottom - reach + width};
}

/// A pixel of a picture, 0xAABBGGRR, over one of the ground, 0x00RRGGBB.
std::uint32_t MixOne(std::uint32_t pixel, std::uint32_t ground) {
  const std::uint32_t alpha = pixel >> 24;
  const auto channel = [&](unsigned from, unsigned to) {
    const std::uint32_t over = (pixel >> from) & 0xFFU;
    const std::uint32_t under = (ground >> to) & 0xFFU;
    return ((over * alpha + under * (255U - alpha) + 127U) / 255U) << to;
  };
  return channel(0, 16) | channel(8, 8) | channel(16, 0);
}

}  // namespace

void Win32Canvas::FillBox(const PixelRect& box, Rgb colour) {
  // The system would fill a box that is turned inside out.
  if (box.IsEmpty()) return;
  const CanvasDc dc(*this);
  if (!dc) return;
  Fill(dc.Get(),
       {box.left + origin_.x, box.top + origin_.y, box.right + origin_.x, box.bottom + origin_.y},
       colour);
}

void Win32Canvas::DrawLine(PixelPoint from, PixelPoint to, Rgb colour, int width) {
  if (from == to) return;
  const CanvasDc dc(*this);
  if (!dc) return;
  from = {from.x + origin_.x, from.y + origin_.y};
  to = {to.x + origin_.x, to.y + origin_.y};
  if (from.x == to.x || from.y == to.y) {
    Fill(dc.Get(), BoxOfLine(from, to, std::max(width, 1)), colour);
  } else if (width <= 1) {
    const SelectedObject pen(dc.Get(), GetStockObject(DC_PEN));
    SetDCPenColor(dc.Get(), colour);
    Stroke(dc.Get(), from, to);
  } else {
    const UniquePen wide(CreatePen(PS_SOLID, width, colour));
    const SelectedObject pen(dc.Get(), wide.Get());
    Stroke(dc.Get(), from, to);
  }
}

void Win32Canvas::DrawString(PixelPoint at, std::string_view text, const ScaledFont& font,
                             Rgb colour) {
  const CanvasDc dc(*this);
  if (!dc) return;
  const std::wstring wide = Wide(text);
  const SelectedObject selected(dc.Get(), tools_->Fonts.Get(font));
  SetBkMode(dc.Get(), TRANSPARENT);
  SetTextColor(dc.Get(), colour);
  TextOutW(dc.Get(), at.x + origin_.x, at.y + origin_.y, wide.data(),
           static_cast<int>(wide.size()));
}

void Win32Canvas::DrawCanvas(const Canvas& source, const PixelRect& part, PixelPoint at) {
  const PixelSize size = source.Size();
  const PixelRect inside = Intersect(part, {0, 0, size.width, size.height});
  if (inside.IsEmpty()) return;
  const CanvasDc from(AsWin32(source));
  const CanvasDc to(*this);
  if (!from || !to) return;
  BitBlt(to.Get(), at.x + origin_.x + inside.left - part.left,
         at.y + origin_.y + inside.top - part.top, inside.Width(), inside.Height(), from.Get(),
         inside.left, inside.top, SRCCOPY);
}

// The system's own blending lies in a library that is not among its known ones, and rounds in ways
// of its own.
void Win32Canvas::DrawPixels(const IconPixels& picture, PixelPoint at) {
  if (picture.IsEmpty() || !picture.IsWhole()) return;
  MemoryCanvas mixed({picture.Width, picture.Height}, tools_);
  {
    const CanvasDc from(*this);
    const CanvasDc to(mixed);
    if (!from || !to) return;
    BitBlt(to.Get(), 0, 0, picture.Width, picture.Height, from.Get(), at.x + origin_.x,
           at.y + origin_.y, SRCCOPY);
  }
  mixed.Mix(picture.Pixels);
  DrawCanvas(mixed, {0, 0, picture.Width, picture.Height}, at);
}

Rgb Win32Canvas::PixelAt(PixelPoint at) const {
  const CanvasDc dc(*this);
  if (!dc || !IsInside(at)) return 0;
  const COLORREF colour = GetPixel(dc.Get(), at.x, at.y);
  return colour == CLR_INVALID ? 0 : colour;
}

// In memory.

MemoryCanvas::MemoryCanvas(PixelSize size, std::shared_ptr<DrawingTools> tools)
    : Win32Canvas({std::max(size.width, 1), std::max(size.height, 1)}, std::move(tools)) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(info.bmiHeader);
  info.bmiHeader.biWidth = Size().width;
  info.bmiHeader.biHeight = -Size().height;  // the top row first
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = kBitsPerPixel;
  info.bmiHeader.biCompression = BI_RGB;
  void* pixels = nullptr;
  bitmap_.Reset(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pixels, nullptr, 0));
  if (bitmap_) pixels_ = static_cast<std::uint32_t*>(pixels);
}

Rgb MemoryCanvas::PixelAt(PixelPoint at) const {
  if (pixels_ == nullptr || !IsInside(at)) return 0;
  // What is drawn may still wait in the queue of the thread.
  GdiFlush();
  const std::uint32_t pixel =
      pixels_[static_cast<std::size_t>(at.y) * static_cast<std::size_t>(Size().width) +
              static_cast<std::size_t>(at.x)];
  return RGB((pixel >> 16) & 0xFFU, (pixel >> 8) & 0xFFU, pixel & 0xFFU);
}

void MemoryCanvas::Mix(const std::vector<std::uint32_t>& picture) {
  if (pixels_ == nullptr) return;
  GdiFlush();
  std::uint32_t* ground = pixels_;
  for (const std::uint32_t pixel : picture) {
    *ground = MixOne(pixel, *ground);
    ++ground;
  }
}

HDC MemoryCanvas::Begin() const noexcept {
  return bitmap_ ? Tools().Contexts.Take(bitmap_.Get()) : nullptr;
}

void MemoryCanvas::End(HDC dc) const noexcept { Tools().Contexts.Give(dc); }

}  // namespace corvelle::win32
