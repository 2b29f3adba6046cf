#include "customize/CustLayout.h"

#include <algorithm>
#include <cmath>

namespace corvelle {

namespace {

// Twips.
constexpr float kMargin = 90;
constexpr float kGap = 90;
constexpr float kHead = 240;
constexpr float kDesignWidth = 7930;
constexpr float kDesignSide = 4770;  // the boxes' side of a window of that width
constexpr float kLeastSide = 4500;
constexpr float kFlatWidth = 660;
constexpr float kBoxHeight = 315;
constexpr float kButtonHeight = 375;
constexpr float kLowButton = 1500;
constexpr float kDraftButton = 720;
constexpr float kLabelHeight = 180;
constexpr float kLabelTops[] = {30, 690, 1350};
constexpr float kBoxTops[] = {210, 870, 1530};
constexpr float kFilesHeight = kBoxTops[2] + kBoxHeight + 30;
constexpr float kFrameHead = 270;
constexpr float kFrameInset = 120;
// Pixels: the tool bar's pictures have a size of their own.
constexpr float kToolBarPixels = 28;

/// Puts rectangles on whole pixels.
class Grid {
 public:
  explicit Grid(float twipsPerPixel) : one_(twipsPerPixel) {}
  [[nodiscard]] float Snap(float twips) const { return std::round(twips / one_) * one_; }
  [[nodiscard]] TwipRect Box(float left, float top, float right, float bottom) const {
    const float x = Snap(left);
    const float y = Snap(top);
    return {x, y, std::max(0.0F, Snap(right) - x), std::max(0.0F, Snap(bottom) - y)};
  }

 private:
  float one_;
};

void ArrangeFiles(const Grid& grid, float width, CustLayout& out) {
  const float second = width - kFlatWidth;
  const float first = second - kGap / 2 - kFlatWidth;
  const float right = first - kGap;
  const auto label = [&](int row) {
    return grid.Box(0, kLabelTops[row], right, kLabelTops[row] + kLabelHeight);
  };
  const auto box = [&](int row, float end) {
    return grid.Box(0, kBoxTops[row], end, kBoxTops[row] + kBoxHeight);
  };
  const auto flat = [&](int row, float left) {
    return grid.Box(left, kBoxTops[row], left + kFlatWidth, kBoxTops[row] + kBoxHeight);
  };
  out.TitleLabel = label(0);
  out.IconLabel = label(1);
  out.FileLabel = label(2);
  out.Title = box(0, right);
  out.Icon = box(1, right);
  out.File = box(2, right);
  out.Library = flat(1, first);
  out.AllFiles = flat(1, second);
  out.SelectFile = flat(2, first);
  out.SelectFolder = flat(2, second);
}

void ArrangeSide(const Grid& grid, float width, CustLayout& out) {
  float top = 0;
  out.Properties = grid.Box(0, top, width, top + kHead);
  top += kHead;
  out.Files = grid.Box(0, top, width, top + kFilesHeight);
  ArrangeFiles(grid, width, out);
  top += kFilesHeight + kGap;
  out.Ok = grid.Box(0, top, kLowButton, top + kButtonHeight);
  top += kButtonHeight + 2 * kGap;
  const float frame = (width - kGap) / 2;
  const float frameBottom = top + kFrameHead + 2 * (kButtonHeight + kGap);
  out.Add = grid.Box(0, top, frame, frameBottom);
  out.From = grid.Box(width - frame, top, width, frameBottom);
  const auto inFrame = [&](int row) {
    const float y = kFrameHead + static_cast<float>(row) * (kButtonHeight + kGap / 2);
    return grid.Box(kFrameInset, y, frame - kFrameInset, y + kButtonHeight);
  };
  out.BrowseFiles = inFrame(0);
  out.BrowseFolders = inFrame(1);
  out.StartMenu = inFrame(0);
  out.Desktop = inFrame(1);
}

}  // namespace

CustLayout ArrangeCustomize(const CustScene& scene) {
  CustLayout out;
  const Grid grid(scene.TwipsPerPixel);
  const float side = std::max(kLeastSide, kDesignSide + (scene.Width - kDesignWidth) / 4);
  const float sideLeft = scene.Width - kMargin - side;
  const float treeRight = sideLeft - 2 * kGap;
  const float low = scene.Height - kMargin - kButtonHeight;
  const float bar = kToolBarPixels * scene.TwipsPerPixel;

  float top = kMargin;
  const float draft = scene.Offering ? 2 * (kDraftButton + kGap / 2) : 0;
  out.MenuTree = grid.Box(kMargin, top, treeRight - draft, top + kHead);
  out.ForgetDraft = grid.Box(treeRight - kDraftButton, top, treeRight, top + kHead);
  out.ShowDraft = grid.Box(treeRight - 2 * kDraftButton - kGap / 2, top,
                           treeRight - kDraftButton - kGap / 2, top + kHead);
  top += kHead;
  if (scene.Finding) {
    out.Find = grid.Box(kMargin, top, treeRight, top + kBoxHeight);
    top += kBoxHeight + kGap / 2;
  }
  const float treeBottom = scene.Height - kMargin - std::max(bar, kButtonHeight) - kGap;
  out.Tree = grid.Box(kMargin, top, treeRight, treeBottom);
  // The tool bar is wider than a narrow tree.
  const float saveLeft = scene.Width - kMargin - 2 * kLowButton - kGap;
  out.ToolBar = grid.Box(kMargin, treeBottom + kGap, saveLeft - kGap, scene.Height - kMargin);
  out.PropertiesBox = grid.Box(sideLeft, kMargin, scene.Width - kMargin, treeBottom);
  out.Exit =
      grid.Box(scene.Width - kMargin - kLowButton, low, scene.Width - kMargin, low + kButtonHeight);
  out.Save =
      grid.Box(saveLeft, low, scene.Width - kMargin - kLowButton - kGap, low + kButtonHeight);
  ArrangeSide(grid, side, out);
  return out;
}

}  // namespace corvelle
