#include "library/IconSheet.h"

#include <algorithm>

#include "forms/WindowSystem.h"
#include "icons/Glyphs.h"
#include "platform/ShellIcons.h"

namespace corvelle {

namespace {

constexpr std::size_t kInARow = 16;
constexpr std::size_t kOnABitmap = kInARow * kInARow;

}  // namespace

void IconSheet::Start(std::size_t count, int side, Rgb ground) {
  side_ = side;
  ground_ = ground;
  cells_.assign(count, Cell::Empty);
  bitmaps_.clear();
  bitmaps_.resize((count + kOnABitmap - 1) / kOnABitmap);
}

PixelRect IconSheet::PlaceOf(std::size_t index) const noexcept {
  const auto column = static_cast<int>(index % kInARow);
  const auto row = static_cast<int>(index % kOnABitmap / kInARow);
  return RectAt({column * side_, row * side_}, {side_, side_});
}

Canvas& IconSheet::Clear(std::size_t index) {
  std::unique_ptr<Canvas>& bitmap = bitmaps_[index / kOnABitmap];
  if (bitmap == nullptr) {
    const int side = side_ * static_cast<int>(kInARow);
    bitmap = windows_.CreateCanvas({side, side});
    bitmap->FillBox({0, 0, side, side}, ground_);
  } else {
    bitmap->FillBox(PlaceOf(index), ground_);
  }
  return *bitmap;
}

void IconSheet::Draw(std::size_t index, const IconPixels& icon) {
  Canvas& bitmap = Clear(index);
  cells_[index] = Cell::Drawn;
  // A file that cannot be read leaves its cell empty.
  if (icon.IsEmpty() || !icon.IsWhole()) return;
  if (icon.Width <= side_ && icon.Height <= side_)
    bitmap.DrawPixels(icon, PlaceOf(index).TopLeft());
}

void IconSheet::DrawStandIn(std::size_t index, std::string_view glyph) {
  Canvas& bitmap = Clear(index);
  cells_[index] = Cell::StandIn;
  const int scale = std::max(side_ / kSmallIconSize, 1);
  const int margin = (side_ - scale * kSmallIconSize) / 2;
  const PixelPoint at = PlaceOf(index).TopLeft();
  DrawGlyph(bitmap, windows_, glyph, {at.x + margin, at.y + margin}, scale);
}

void IconSheet::Show(std::size_t index, Canvas& target, PixelPoint at) const {
  target.DrawCanvas(*bitmaps_[index / kOnABitmap], PlaceOf(index), at);
}

std::size_t IconSheet::Bitmaps() const noexcept {
  return static_cast<std::size_t>(
      std::count_if(bitmaps_.begin(), bitmaps_.end(),
                    [](const std::unique_ptr<Canvas>& bitmap) { return bitmap != nullptr; }));
}

}  // namespace corvelle
