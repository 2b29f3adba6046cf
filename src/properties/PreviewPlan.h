#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Edge.h"
#include "base/Geometry.h"
#include "forms/Types.h"

namespace corvelle {

// How the small picture of the screen is drawn: pure rules. All measures are whole pixels, so that
// the picture is sharp at every scale of the screen.

/// The texts of the picture. The clock never shows the time.
inline constexpr std::string_view kStartText = "Start";
inline constexpr std::string_view kClockText = "12:45 PM ";

struct PreviewScene {
  PixelSize Box{220, 165};  // the inside of the picture
  int Dpi = 96;
  PixelSize StartText{24, 13};
  PixelSize ClockText{50, 13};
  int IconSize = 32;

  friend bool operator==(const PreviewScene&, const PreviewScene&) = default;
};

struct PreviewBox {
  PixelRect Area;
  forms::OleColor Colour = 0;

  friend bool operator==(const PreviewBox&, const PreviewBox&) = default;
};

/// Straight, one pixel wide, both ends included.
struct PreviewLine {
  PixelPoint From;
  PixelPoint To;
  forms::OleColor Colour = 0;

  friend bool operator==(const PreviewLine&, const PreviewLine&) = default;
};

struct PreviewText {
  PixelPoint At;
  std::string_view Text;

  friend bool operator==(const PreviewText&, const PreviewText&) = default;
};

/// Drawn in this order: boxes, lines, texts.
struct PreviewPlan {
  std::vector<PreviewBox> Boxes;
  std::vector<PreviewLine> Lines;
  std::vector<PreviewText> Texts;
};

/// Width and height of a picture of a screen (pixels) that fits into `room` and has its shape.
[[nodiscard]] PixelSize PreviewSize(PixelSize screen, PixelSize room) noexcept;

/// The task bar at the lower side of the picture.
[[nodiscard]] PixelRect PreviewTaskbar(const PreviewScene& scene) noexcept;
/// The button in it, and the sunken field of the clock.
[[nodiscard]] PixelRect PreviewStart(const PreviewScene& scene) noexcept;
[[nodiscard]] PixelRect PreviewClock(const PreviewScene& scene) noexcept;

/// The desktop with its task bar, without the icons.
[[nodiscard]] PreviewPlan PlanPreview(const PreviewScene& scene);

/// The icons that are drawn, from the texts of the desktop's entries: each index once, in the order
/// of the first of its kind. A text that is no index of an icon is passed over.
[[nodiscard]] std::vector<int> DistinctIcons(const std::vector<std::string>& texts);

/// Where the icons go: down each column to the task bar, then the next one. As many as there is
/// room for, at most `count`.
[[nodiscard]] std::vector<PixelPoint> IconGrid(const PreviewScene& scene, std::size_t count);

/// The strip at an edge of the picture. `thickness`: of the strip on the screen, whose width is
/// `screenWidth`. It does not cover the task bar.
[[nodiscard]] PixelRect PreviewStrip(const PreviewScene& scene, Edge edge, int thickness,
                                     int screenWidth) noexcept;
[[nodiscard]] PreviewPlan PlanStrip(const PixelRect& strip);

}  // namespace corvelle
