#include "weblink/WebLinkLayout.h"

#include <algorithm>

namespace corvelle {

namespace {

constexpr float kOne = 15;  // a pixel of a screen of 96 dots an inch
constexpr float kMargin = 12 * kOne;
constexpr float kGap = 8 * kOne;
constexpr float kBoxWidth = 300 * kOne;
constexpr float kBoxPadding = 8 * kOne;  // above and below a line in its box, together
constexpr float kButtonWidth = 80 * kOne;
constexpr float kButtonHeight = 25 * kOne;

}  // namespace

WebLinkLayout LayOutWebLink(const WebLinkScene& scene) noexcept {
  const float boxHeight = scene.TextHeight + kBoxPadding;
  const float boxLeft = kMargin + scene.LabelWidth + kGap;
  const float boxWidth = std::max(kBoxWidth, kMargin + scene.CheckWidth - boxLeft);
  const auto label = [&](float top) {
    return TwipRect{kMargin, top + kBoxPadding / 2, scene.LabelWidth, scene.TextHeight};
  };
  WebLinkLayout layout;
  float top = kMargin;
  layout.TitleLabel = label(top);
  layout.Title = {boxLeft, top, boxWidth, boxHeight};
  top += boxHeight + kGap;
  layout.AddressLabel = label(top);
  layout.Address = {boxLeft, top, boxWidth, boxHeight};
  top += boxHeight + kGap;
  layout.Check = {kMargin, top, scene.CheckWidth, boxHeight};
  top += boxHeight + kGap;
  const float right = boxLeft + boxWidth;
  layout.Cancel = {right - kButtonWidth, top, kButtonWidth, kButtonHeight};
  layout.Ok = {layout.Cancel.Left - kGap - kButtonWidth, top, kButtonWidth, kButtonHeight};
  layout.Inside = {right + kMargin, layout.Ok.Bottom() + kMargin};
  return layout;
}

}  // namespace corvelle
