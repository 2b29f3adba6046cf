#include "search/NetSearchLayout.h"

#include <algorithm>

namespace corvelle {

namespace {

constexpr float kWidth = 5500;
constexpr float kMargin = 120;
constexpr float kGap = 90;
constexpr float kBoxPadding = 120;     // of a box besides its text, above and below together
constexpr float kButtonPadding = 180;  // likewise of a button
constexpr float kLeastButton = 1125;
constexpr float kCaptionRoom = 300;  // beside a button's caption

}  // namespace

NetSearchLayout LayOutNetSearch(const NetSearchScene& scene) noexcept {
  const float width = kWidth - scene.FrameWidth;
  const float box = scene.TextHeight + kBoxPadding;
  const float secondRow = box + kGap;
  NetSearchLayout l;
  // The line of a frame runs through the middle of its first line of text.
  const float inTop = scene.TextHeight / 2 + kGap;
  l.Inside = {kMargin, inTop, width - 4 * kMargin, secondRow + box};
  l.Frame1 = {kMargin, kMargin / 2, width - 2 * kMargin, inTop + l.Inside.Height + kMargin};

  const float boxLeft = scene.LabelWidth + kGap;
  const float boxWidth = l.Inside.Width - boxLeft;
  const float textTop = (box - scene.TextHeight) / 2;
  l.Label1 = {0, textTop, scene.LabelWidth, scene.TextHeight};
  l.cmbText = {boxLeft, 0, boxWidth, box};
  l.Label2 = {0, secondRow + textTop, scene.LabelWidth, scene.TextHeight};
  l.cmbEngine = {boxLeft, secondRow, boxWidth, box};

  const float buttonTop = l.Frame1.Bottom() + kMargin;
  const float buttonWidth = std::max(kLeastButton, scene.CaptionWidth + kCaptionRoom);
  const float buttonHeight = scene.TextHeight + kButtonPadding;
  l.cmdClear = {width - kMargin - buttonWidth, buttonTop, buttonWidth, buttonHeight};
  l.cmdFind = {l.cmdClear.Left - kGap - buttonWidth, buttonTop, buttonWidth, buttonHeight};
  l.Window = {0, 0, kWidth, buttonTop + buttonHeight + kMargin + scene.FrameHeight};
  return l;
}

}  // namespace corvelle
