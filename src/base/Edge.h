#pragma once

#include <optional>
#include <string_view>

#include "base/Text.h"

namespace corvelle {

/// A side of the screen.
enum class Edge { Top, Bottom, Left, Right };

/// The name of an edge for logs and messages: "TOP", "BOTTOM", "LEFT" or "RIGHT".
[[nodiscard]] constexpr std::string_view EdgeText(Edge edge) noexcept {
  switch (edge) {
    case Edge::Bottom:
      return "BOTTOM";
    case Edge::Left:
      return "LEFT";
    case Edge::Right:
      return "RIGHT";
    case Edge::Top:
      break;
  }
  return "TOP";
}

/// True for the edges at which the strip stands upright.
[[nodiscard]] constexpr bool IsVertical(Edge edge) noexcept {
  return edge == Edge::Left || edge == Edge::Right;
}

}  // namespace corvelle
