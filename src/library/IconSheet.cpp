#include "library/IconSheet.h"

#include <algorithm>

#include "forms/WindowSystem.h"
#include "platform/ShellIcons.h"

namespace corvelle {

namespace {

constexpr std::size_t kInARow = 16;
constexpr std::size_t kOnABitmap = kInARow * kInARow;

}  // namespace

void IconSheet::Start(std::size_t count, int side, Rgb ground) {
  side_ = side;
  ground_ = ground;
  drawn_.assign(count, false);
  bitmaps_.clear();
  bitmaps_.resize((count + kOnABitmap - 1) / kOnABitmap);
}

PixelRect IconSheet::PlaceOf(std::size_t index) const noexcept {
  const auto column = static_cast<int>(index % kInARow);
  const auto row = static_cast<int>(index % kOnABitmap / kInARow);
  return RectAt({column * side_, row * side_}, {side_, side_});
}

void IconSheet::Draw(std::size_t index, const IconCell& cell) {
  std::unique_ptr<Canvas>& bitmap = bitmaps_[index / kOnABitmap];
  if (bitmap == nullptr) {
    const int side = side_ * static_cast<int>(kInARow);
    bitmap = windows_.CreateCanvas({side, side});
    bitmap->FillBox({0, 0, side, side}, ground_);
  }
  drawn_[index] = true;
  // A file that cannot be read leaves its cell empty.
  static_cast<void>(
      icons_.DrawFileIcon(*bitmap, cell.File, cell.Index, PlaceOf(index).TopLeft(), side_));
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
