#pragma once

#include "base/Edge.h"

namespace corvelle {

/// What the flags and the strip tell each other about its place on the screen.
struct EdgePlacement {
  bool AppBarRequested = false;
  bool ToolbarVertical = false;
  Edge ToolbarEdge = Edge::Top;

  friend bool operator==(const EdgePlacement&, const EdgePlacement&) = default;
};

/// Where the strip is, and where it belongs.
struct StripPlacement : EdgePlacement {
  bool AppBarDocked = false;
  /// Option::NotOnTop: other windows may cover the strip.
  bool NotOnTop = false;
  /// Option::AutoHide in force.
  bool AutoHide = false;
  /// The strip has left its edge for the moment and returns to it.
  bool WasDocked = false;
  bool ToolbarMinimized = false;
  /// The strip is on its way into the task bar.
  bool ToolbarMinimizing = false;
  /// A full-screen program was last reported.
  bool FullScreenApp = false;
  /// Where a strip at an edge belongs, twips.
  float PinnedLeft = 0;
  float PinnedTop = 0;

  /// True at an edge, and away from it for the moment only.
  [[nodiscard]] bool BelongsToEdge() const noexcept {
    return AppBarDocked || (WasDocked && ToolbarMinimized);
  }
};

}  // namespace corvelle
