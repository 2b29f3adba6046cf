#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/Geometry.h"
#include "forms/Types.h"

namespace corvelle::forms {

/// What a drop does with what is dragged, by OLE's numbers; a set where a source offers several.
enum class DropEffect : unsigned { None = 0, Copy = 1, Move = 2, Link = 4 };

constexpr DropEffect operator|(DropEffect a, DropEffect b) noexcept {
  return static_cast<DropEffect>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
}
constexpr DropEffect operator&(DropEffect a, DropEffect b) noexcept {
  return static_cast<DropEffect>(static_cast<unsigned>(a) & static_cast<unsigned>(b));
}

/// What another program drags, as far as it is of use here. All text is UTF-8.
struct DragData {
  /// Full paths, in the source's order; nothing when it offers no files.
  std::optional<std::vector<std::string>> Files;
  /// Nothing when the source offers no text.
  std::optional<std::string> Text;
  /// The title of the page that a dragged web address leads to; empty when the source gives none.
  std::string Title;

  friend bool operator==(const DragData&, const DragData&) = default;
};

/// Where something is dragged or dropped, in pixels of the window, and what is held down. Of a drop
/// the mouse button is already up.
struct DragPoint {
  PixelPoint At;
  MouseButton Down = MouseButton::None;
  ShiftState Shift;
};

/// Handles something dragged over a control or dropped on it. The effect comes as the set that the
/// source allows, and is left as what a drop does. Twips of the control; the handler may take parts
/// out of the data.
using DragHandler = std::function<void(DragData& data, DropEffect& effect, MouseButton down,
                                       ShiftState shift, float x, float y)>;

}  // namespace corvelle::forms
