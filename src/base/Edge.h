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

/// The edge of a name, case and blanks at its ends apart; nothing for a text that is none.
[[nodiscard]] inline std::optional<Edge> EdgeFromText(std::string_view text) {
  for (const Edge edge : {Edge::Top, Edge::Bottom, Edge::Left, Edge::Right}) {
    if (EqualNoCase(Trim(text), EdgeText(edge))) return edge;
  }
  return std::nullopt;
}

/// True for the edges at which the strip stands upright.
[[nodiscard]] constexpr bool IsVertical(Edge edge) noexcept {
  return edge == Edge::Left || edge == Edge::Right;
}

}  // namespace corvelle
