#include "library/LibraryLayout.h"

#include <algorithm>

namespace corvelle {

namespace {

// Pixels of a screen of 96 dots an inch.
constexpr float kTwipsOfOne = 15;
constexpr int kMargin = 9;
constexpr int kGap = 7;
constexpr int kListWidth = 132;
constexpr int kButtonWidth = 76;
constexpr int kButtonHeight = 25;
constexpr int kLeastTab = 16;

}  // namespace

LibraryLayout LayOutLibrary(const LibraryScene& scene) noexcept {
  const auto scaled = [&scene](int pixels) {
    return static_cast<int>(static_cast<float>(pixels) * kTwipsOfOne / scene.TwipsPerPixel + 0.5F);
  };
  const int margin = scaled(kMargin);
  const int gap = scaled(kGap);
  const CellMetrics& cell = scene.Cell;
  LibraryLayout at;
  at.Cells = {scene.Columns * cell.Width() + cell.MarginX,
              scene.Rows * cell.Height() + cell.MarginY};
  const int top = margin + std::max(scene.TabHeight, scaled(kLeastTab)) + gap;
  const int cellsLeft = margin + scaled(kListWidth) + gap;
  const PixelSize frame{at.Cells.width + 2 * scene.BorderWidth,
                        at.Cells.height + 2 * scene.BorderWidth};
  at.Filter = RectAt({cellsLeft, top}, {frame.width + scene.BarWidth, scene.BoxHeight});
  at.Frame = RectAt({cellsLeft, at.Filter.bottom + gap}, frame);
  at.Bar = RectAt({at.Frame.right, at.Frame.top}, {scene.BarWidth, frame.height});
  at.List = {margin, top, cellsLeft - gap, at.Frame.bottom};
  at.Tabs = {margin, margin, at.Bar.right, top - gap};
  const PixelSize button{scaled(kButtonWidth), scaled(kButtonHeight)};
  const int row = at.Frame.bottom + margin;
  at.Cancel = RectAt({at.Bar.right - button.width, row}, button);
  at.Ok = RectAt({at.Cancel.left - gap - button.width, row}, button);
  // The other two belong to one tab only.
  at.Refresh = RectAt({margin, row}, button);
  at.Add = RectAt({at.Refresh.right + gap, row}, button);
  at.Remove = RectAt({at.Add.right + gap, row}, button);
  at.Inside = {at.Bar.right + margin, row + button.height + margin};
  return at;
}

}  // namespace corvelle
