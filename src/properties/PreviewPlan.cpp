#include "properties/PreviewPlan.h"

#include <algorithm>

#include "base/Text.h"
#include "properties/ScaledPixels.h"

namespace corvelle {

namespace {

using forms::color::ButtonFace;
using forms::color::ButtonShadow;
using forms::color::DarkShadow3D;
using forms::color::Highlight3D;

constexpr forms::OleColor kDesktop = 0x80000001;

// Pixels of a screen of 96 dots an inch.
constexpr int kBarHeight = 28;
constexpr int kBarInset = 2;   // on either side
constexpr int kBarMargin = 1;  // below it
constexpr int kGap = 3;        // around what the bar shows
constexpr int kTextMargin = 6;
constexpr int kIconMargin = 6;
constexpr int kLeastStrip = 6;
constexpr int kStripGap = 2;

void AddEdges(PreviewPlan& plan, const PixelRect& area, forms::OleColor upper,
              forms::OleColor lower) {
  const int right = area.right - 1;
  const int bottom = area.bottom - 1;
  plan.Lines.push_back({{area.left, area.top}, {right, area.top}, upper});
  plan.Lines.push_back({{area.left, area.top}, {area.left, bottom}, upper});
  plan.Lines.push_back({{area.left, bottom}, {right, bottom}, lower});
  plan.Lines.push_back({{right, area.top}, {right, bottom}, lower});
}

/// The outer dark line of a raised edge, and the shadow inside it.
void AddRaised(PreviewPlan& plan, const PixelRect& area) {
  AddEdges(plan, area, Highlight3D, DarkShadow3D);
  const int right = area.right - 2;
  const int bottom = area.bottom - 2;
  plan.Lines.push_back({{area.left + 1, bottom}, {right, bottom}, ButtonShadow});
  plan.Lines.push_back({{right, area.top + 1}, {right, bottom}, ButtonShadow});
}

PixelPoint Centred(const PixelRect& area, PixelSize text) noexcept {
  return {area.left + (area.Width() - text.width) / 2,
          area.top + (area.Height() - text.height) / 2};
}

}  // namespace

PixelSize PreviewSize(PixelSize screen, PixelSize room) noexcept {
  if (screen.width <= 0 || screen.height <= 0) return room;
  const auto part = [](int side, int of, int whole) { return (side * of + whole / 2) / whole; };
  const int height = part(room.width, screen.height, screen.width);
  if (height <= room.height) return {room.width, height};
  return {part(room.height, screen.width, screen.height), room.height};
}

PixelRect PreviewTaskbar(const PreviewScene& scene) noexcept {
  const int bottom = scene.Box.height - kBarMargin;
  return {kBarInset, bottom - ScaledPixels(kBarHeight, scene.Dpi), scene.Box.width - kBarInset,
          bottom};
}

PixelRect PreviewStart(const PreviewScene& scene) noexcept {
  const PixelRect bar = PreviewTaskbar(scene);
  const int gap = ScaledPixels(kGap, scene.Dpi);
  const int left = bar.left + gap;
  return {left, bar.top + gap,
          left + scene.StartText.width + 2 * ScaledPixels(kTextMargin, scene.Dpi),
          bar.bottom - gap};
}

PixelRect PreviewClock(const PreviewScene& scene) noexcept {
  const PixelRect bar = PreviewTaskbar(scene);
  const int gap = ScaledPixels(kGap, scene.Dpi);
  const int right = bar.right - gap;
  return {right - scene.ClockText.width - 2 * ScaledPixels(kTextMargin, scene.Dpi), bar.top + gap,
          right, bar.bottom - gap};
}

PreviewPlan PlanPreview(const PreviewScene& scene) {
  const PixelRect bar = PreviewTaskbar(scene);
  const PixelRect start = PreviewStart(scene);
  const PixelRect clock = PreviewClock(scene);
  PreviewPlan plan;
  plan.Boxes = {{{0, 0, scene.Box.width, scene.Box.height}, kDesktop}, {bar, ButtonFace}};
  AddRaised(plan, bar);
  AddRaised(plan, start);
  AddEdges(plan, clock, ButtonShadow, Highlight3D);
  plan.Texts = {{Centred(start, scene.StartText), kStartText},
                {Centred(clock, scene.ClockText), kClockText}};
  return plan;
}

std::vector<int> DistinctIcons(const std::vector<std::string>& texts) {
  std::vector<int> icons;
  for (const std::string& text : texts) {
    const std::optional<int> index = ParseNumber(text);
    if (!index || *index < 0) continue;
    if (std::find(icons.begin(), icons.end(), *index) == icons.end()) icons.push_back(*index);
  }
  return icons;
}

std::vector<PixelPoint> IconGrid(const PreviewScene& scene, std::size_t count) {
  const int margin = ScaledPixels(kIconMargin, scene.Dpi);
  const int cell = scene.IconSize + margin;
  const int lowest = PreviewTaskbar(scene).top;
  std::vector<PixelPoint> places;
  PixelPoint at{margin, margin};
  while (places.size() < count && at.x + scene.IconSize <= scene.Box.width &&
         at.y + scene.IconSize <= lowest) {
    places.push_back(at);
    at.y += cell;
    if (at.y + scene.IconSize > lowest) at = {at.x + cell, margin};
  }
  return places;
}

PixelRect PreviewStrip(const PreviewScene& scene, Edge edge, int thickness,
                       int screenWidth) noexcept {
  const int scaled = screenWidth > 0 ? thickness * scene.Box.width / screenWidth : 0;
  const int depth = std::max(scaled, ScaledPixels(kLeastStrip, scene.Dpi));
  PixelRect strip{0, 0, scene.Box.width, PreviewTaskbar(scene).top};
  switch (edge) {
    case Edge::Top:
      strip.bottom = depth;
      break;
    case Edge::Bottom:
      strip.top = strip.bottom - depth;
      break;
    case Edge::Left:
      strip.right = depth;
      break;
    case Edge::Right:
      strip.left = strip.right - depth;
      break;
  }
  return strip;
}

PreviewPlan PlanStrip(const PixelRect& strip) {
  PreviewPlan plan;
  plan.Boxes = {{strip, ButtonFace}};
  AddRaised(plan, strip);
  // A row of small buttons, as deep as the strip lets them be.
  const bool upright = strip.Height() > strip.Width();
  const int side = std::min(strip.Width(), strip.Height()) - 2 * kStripGap;
  const int length = std::max(strip.Width(), strip.Height());
  for (int at = 2 * kStripGap; side > 0 && at + side <= length / 2; at += side + kStripGap) {
    const PixelPoint corner = upright ? PixelPoint{strip.left + kStripGap, strip.top + at}
                                      : PixelPoint{strip.left + at, strip.top + kStripGap};
    plan.Boxes.push_back({RectAt(corner, {side, side}), ButtonShadow});
  }
  return plan;
}

}  // namespace corvelle
