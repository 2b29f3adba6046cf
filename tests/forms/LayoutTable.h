#pragma once

// Golden tables of layouts. A window that can be sized has its layout as a pure rule, from the size
// of its inside and of its text to the places of its controls; a test shows what the rule gives at
// the scales that people have.

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "base/Twips.h"
#include "forms/Scale.h"

namespace corvelle::forms {

/// A control's name and its place in its container, in twips.
using LayoutBoxes = std::vector<std::pair<std::string, TwipRect>>;
/// The places at a scale, given in twips of a pixel.
using LayoutRule = std::function<LayoutBoxes(float twipsPerPixel)>;

struct LayoutScale {
  int Dpi;
  float TwipsPerPixel;
};
inline constexpr LayoutScale kLayoutScales[] = {{96, 15}, {120, 12}, {144, 10}, {192, 7.5F}};

/// One line for each scale and control, in pixels: "120 cmdOK 10,20 80x25".
inline std::string LayoutTable(const LayoutRule& rule) {
  std::string table;
  for (const LayoutScale& scale : kLayoutScales) {
    const ScreenInfo screen{scale.TwipsPerPixel, scale.TwipsPerPixel};
    for (const auto& [name, box] : rule(scale.TwipsPerPixel)) {
      const PixelRect at = ToPixels(box.Left, box.Top, box.Width, box.Height, screen);
      table += std::to_string(scale.Dpi) + " " + name + " " + std::to_string(at.left) + "," +
               std::to_string(at.top) + " " + std::to_string(at.Width()) + "x" +
               std::to_string(at.Height()) + "\n";
    }
  }
  return table;
}

/// What is wrong at any scale, one line each: a control without pixels, one that leaves the inside
/// of its container (twips), two that share a pixel.
inline std::vector<std::string> LayoutFaults(const LayoutRule& rule, TwipSize inside) {
  std::vector<std::string> faults;
  for (const LayoutScale& scale : kLayoutScales) {
    const ScreenInfo screen{scale.TwipsPerPixel, scale.TwipsPerPixel};
    const std::string dpi = std::to_string(scale.Dpi) + " ";
    const PixelRect whole = ToPixels(0, 0, inside.Width, inside.Height, screen);
    std::vector<std::pair<std::string, PixelRect>> before;
    for (const auto& [name, box] : rule(scale.TwipsPerPixel)) {
      const PixelRect at = ToPixels(box.Left, box.Top, box.Width, box.Height, screen);
      if (at.IsEmpty()) faults.push_back(dpi + name + " is empty");
      if (Union(whole, at) != whole) faults.push_back(dpi + name + " leaves the inside");
      for (const auto& [other, place] : before) {
        if (!Intersect(place, at).IsEmpty()) faults.push_back(dpi + name + " overlaps " + other);
      }
      before.emplace_back(name, at);
    }
  }
  return faults;
}

}  // namespace corvelle::forms
