#pragma once

#include <cstdint>

#include "base/Edge.h"
#include "base/Geometry.h"
#include "base/Twips.h"

namespace corvelle {

// The strip as a bar of the shell: pure rules. Pixels of the screen unless told otherwise.

/// The shell's number of an edge: 0 left, 1 top, 2 right, 3 bottom.
[[nodiscard]] std::uint32_t ShellEdge(Edge at) noexcept;

/// The whole length of an edge by the strip's thickness.
[[nodiscard]] PixelSize BarSize(Edge at, int thickness, PixelSize screen) noexcept;

/// What of the screen a bar keeps, and how far its window is pushed above the screen.
struct BarPlace {
  PixelRect Reserved;
  int Lift = 0;

  friend bool operator==(const BarPlace&, const BarPlace&) = default;
};

/// Cuts the room that the shell offers to the size of the bar. With `mayLift` a bar at a free top
/// edge has its upper frame above the screen and keeps so much less of it.
[[nodiscard]] BarPlace CutToBar(Edge at, const PixelRect& offered, PixelSize bar,
                                bool mayLift) noexcept;

/// Where the window of such a bar goes. Along its edge it reaches as far as the shell's answer
/// says, counted from the screen's corner.
[[nodiscard]] PixelRect BarWindow(Edge at, const BarPlace& place, PixelSize bar) noexcept;

/// True if the pointer is past the inner side of a docked strip's line, or outside of the line
/// where another bar lies there, or on another screen, so that the strip may hide; `window` is
/// where the strip's window is, `screen` the size of the primary screen.
[[nodiscard]] bool PointerIsOff(Edge at, PixelPoint pointer, const PixelRect& window,
                                PixelSize screen) noexcept;

/// How thick the line of a hidden strip is: a pixel against its edge of the screen, where the
/// pointer is stopped. `window` is where a line of one pixel would lie; where another bar lies
/// outside of it, the pointer only passes, and the line is thick enough to be seen and hit.
[[nodiscard]] int LineThickness(Edge at, const PixelRect& window, PixelSize screen,
                                TwipSize twips) noexcept;

/// True if the pointer is on a docked strip's line, which reveals the strip.
[[nodiscard]] bool PointerReveals(Edge at, PixelPoint pointer, const PixelRect& window,
                                  PixelSize screen) noexcept;

/// True if the line of a hidden strip does not touch its edge of the screen: another bar lies
/// outside of it.
[[nodiscard]] bool IsOffEdge(Edge at, const PixelRect& window, PixelSize screen) noexcept;

/// Where a strip goes that comes out of its line of so many pixels; `window` has the strip's full
/// size already. Twips; `twips` are those of a pixel on both axes.
[[nodiscard]] TwipPoint RevealedCorner(Edge at, const TwipRect& window, int line,
                                       TwipSize twips) noexcept;

/// Size of the box of single buttons when it reaches to the end of the window. Twips. The room left
/// at the end is two of the horizontal pixels on both axes.
[[nodiscard]] TwipSize StretchedSingles(Edge at, const TwipRect& window, const TwipRect& singles,
                                        float twipsX) noexcept;

/// Where the strip would go at an edge, by its template button: for the outline that follows a
/// pull. Twips, with the whole length of the screen's edge.
[[nodiscard]] TwipRect OutlineAt(Edge at, TwipSize button, TwipSize screen,
                                 TwipSize twips) noexcept;

}  // namespace corvelle
