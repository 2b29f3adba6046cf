#include "sim/SimCanvas.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "base/Utf8.h"
#include "forms/Types.h"
#include "sim/Complain.h"
#include "sim/SimFont.h"

namespace corvelle::sim {

namespace {

constexpr PixelSize kBaseCharacter{6, 13};  // of 8.25 points at 96 dpi

// Rows never overlap. The sanitizer's own memmove, to which std::copy comes, goes byte by byte.
void CopyPixels(const Rgb* from, Rgb* to, int count) {
  std::memcpy(to, from, static_cast<std::size_t>(count) * sizeof(Rgb));
}

/// A pixel of a picture over the ground.
Rgb Blend(std::uint32_t pixel, Rgb ground) {
  const std::uint32_t alpha = pixel >> 24;
  Rgb blended = 0;
  for (const unsigned shift : {0U, 8U, 16U}) {
    const std::uint32_t over = (pixel >> shift) & 0xFFU;
    const std::uint32_t under = (ground >> shift) & 0xFFU;
    blended |= ((over * alpha + under * (255U - alpha) + 127U) / 255U) << shift;
  }
  return blended;
}

}  // namespace

PixelSize CharacterSize(const ScaledFont& font) {
  const float scale = font.Font.Points / 8.25F * static_cast<float>(font.Dpi) /
                      static_cast<float>(forms::kPlainDpi);
  const int width = static_cast<int>(static_cast<float>(kBaseCharacter.width) * scale);
  const int height = static_cast<int>(static_cast<float>(kBaseCharacter.height) * scale);
  return {std::max(width + (font.Font.Bold ? 1 : 0), 1), std::max(height, 1)};
}

PixelSize TextSize(std::string_view text, const ScaledFont& font) {
  const PixelSize character = CharacterSize(font);
  int count = 0;
  for (std::size_t at = 0; at < text.size(); at += NextCharacter(text, at).Length) ++count;
  return {character.width * count, character.height};
}

SimCanvas::SimCanvas(PixelSize size)
    : size_{std::max(size.width, 1), std::max(size.height, 1)},
      room_(size_),
      pixels_(static_cast<std::size_t>(size_.width) * static_cast<std::size_t>(size_.height)) {
  std::memset(pixels_.data(), 0, pixels_.size() * sizeof(Rgb));
}

Rgb* SimCanvas::Row(int y) {
  return pixels_.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(room_.width);
}

const Rgb* SimCanvas::Row(int y) const {
  return pixels_.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(room_.width);
}

void SimCanvas::FillBox(const PixelRect& box, Rgb colour) {
  const PixelRect shifted{box.left + origin_.x, box.top + origin_.y, box.right + origin_.x,
                          box.bottom + origin_.y};
  const PixelRect inside = Intersect(shifted, {0, 0, size_.width, size_.height});
  if (inside.IsEmpty()) return;
  const Rgb* const first = Row(inside.top) + inside.left;
  std::fill(Row(inside.top) + inside.left, Row(inside.top) + inside.right, colour);
  // To copy a row is cheaper than to fill it.
  for (int y = inside.top + 1; y < inside.bottom; ++y) {
    CopyPixels(first, Row(y) + inside.left, inside.Width());
  }
}

void SimCanvas::DrawLine(PixelPoint from, PixelPoint to, Rgb colour, int width) {
  // Each point becomes a square of the line's width; the last point is left out.
  const int dx = std::abs(to.x - from.x);
  const int dy = std::abs(to.y - from.y);
  const int steps = std::max(dx, dy);
  const int reach = (width - 1) / 2;
  for (int step = 0; step < steps; ++step) {
    const auto part = [&](int a, int b) {
      const long long way = static_cast<long long>(b - a) * step * 2;
      return a + static_cast<int>((way + (b > a ? steps : -steps)) / (2LL * steps));
    };
    const PixelPoint at{part(from.x, to.x), part(from.y, to.y)};
    FillBox(RectAt({at.x - reach, at.y - reach}, {width, width}), colour);
  }
}

void SimCanvas::DrawGlyph(const PixelRect& cell, char32_t character, Rgb colour) {
  constexpr int kRows = 9;
  constexpr int kColumns = 5;
  if (character <= U' ') return;
  if (character > U'~') {
    // A box stands for what the font lacks.
    FillBox({cell.left, cell.top + 3, cell.right - 1, cell.bottom - 3}, colour);
    return;
  }
  const Glyph& glyph = kGlyphs[character - U'!'];
  const int top = cell.top + (cell.Height() - kRows) / 2;
  for (int y = 0; y < kRows; ++y) {
    for (int x = 0; x < kColumns; ++x) {
      if ((glyph.Rows[y] >> (kColumns - 1 - x) & 1) == 0) continue;
      FillBox(RectAt({cell.left + x, top + y}, {1, 1}), colour);
    }
  }
}

void SimCanvas::DrawString(PixelPoint at, std::string_view text, const ScaledFont& font,
                           Rgb colour) {
  const PixelSize character = CharacterSize(font);
  PixelPoint place = at;
  for (std::size_t i = 0; i < text.size();) {
    const Utf8Step step = NextCharacter(text, i);
    DrawGlyph(RectAt(place, character), step.Character, colour);
    place.x += character.width;
    i += step.Length;
  }
}

void SimCanvas::DrawCanvas(const Canvas& source, const PixelRect& part, PixelPoint at) {
  const auto* other = dynamic_cast<const SimCanvas*>(&source);
  if (other == nullptr || other == this) {
    Complain("a canvas can be copied from another bitmap only");
    return;
  }
  // From here on in pixels of this bitmap.
  const PixelPoint shift{at.x - part.left + origin_.x, at.y - part.top + origin_.y};
  const PixelRect inside = Intersect(part, {0, 0, other->size_.width, other->size_.height});
  const PixelRect target = Intersect({inside.left + shift.x, inside.top + shift.y,
                                      inside.right + shift.x, inside.bottom + shift.y},
                                     {0, 0, size_.width, size_.height});
  for (int y = target.top; y < target.bottom; ++y) {
    CopyPixels(other->Row(y - shift.y) + (target.left - shift.x), Row(y) + target.left,
               target.Width());
  }
}

void SimCanvas::DrawPixels(const IconPixels& picture, PixelPoint at) {
  if (!picture.IsWhole()) return;
  const std::uint32_t* pixel = picture.Pixels.data();
  for (int y = 0; y < picture.Height; ++y) {
    for (int x = 0; x < picture.Width; ++x, ++pixel) {
      const PixelPoint place{at.x + origin_.x + x, at.y + origin_.y + y};
      if (place.x < 0 || place.y < 0 || place.x >= size_.width || place.y >= size_.height) continue;
      Rgb& ground = Row(place.y)[place.x];
      ground = Blend(*pixel, ground);
    }
  }
}

Rgb SimCanvas::PixelAt(PixelPoint at) const {
  if (at.x < 0 || at.y < 0 || at.x >= size_.width || at.y >= size_.height) return 0;
  return Row(at.y)[at.x];
}

void SimCanvas::Resize(PixelSize size) {
  const PixelSize old = size_;
  const PixelSize wanted{std::max(size.width, 1), std::max(size.height, 1)};
  if (wanted.width > room_.width || wanted.height > room_.height) {
    SimCanvas larger({std::max(wanted.width, room_.width), std::max(wanted.height, room_.height)});
    larger.DrawCanvas(*this, {0, 0, old.width, old.height}, {0, 0});
    room_ = larger.room_;
    pixels_ = std::move(larger.pixels_);
    size_ = wanted;
    return;
  }
  size_ = wanted;
  // What a larger picture left here before this one was small.
  for (int y = 0; y < wanted.height; ++y) {
    const int kept = y < old.height ? std::min(old.width, wanted.width) : 0;
    if (kept < wanted.width) {
      std::memset(Row(y) + kept, 0, static_cast<std::size_t>(wanted.width - kept) * sizeof(Rgb));
    }
  }
}

bool SimCanvas::Shows(Rgb colour, const PixelRect& part) const {
  const PixelRect inside = Intersect(part, {0, 0, size_.width, size_.height});
  for (int y = inside.top; y < inside.bottom; ++y) {
    for (int x = inside.left; x < inside.right; ++x) {
      if (PixelAt({x, y}) == colour) return true;
    }
  }
  return false;
}

}  // namespace corvelle::sim
