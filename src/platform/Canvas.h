#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "base/Geometry.h"
#include "platform/IconPixels.h"

namespace corvelle {

/// A colour as Windows writes it: 0x00BBGGRR.
using Rgb = std::uint32_t;

struct FontSpec {
  std::string Face;  // empty: the system's dialog font
  float Points = 8.25F;
  bool Bold = false;

  friend bool operator==(const FontSpec&, const FontSpec&) = default;
};

/// A font as large as a window of some scale shows it. There is no scale that would do for every
/// window, so whoever measures or draws text says which one: see forms::Window::Scaled.
struct ScaledFont {
  ScaledFont(FontSpec font, int dotsOfAnInch) : Font(std::move(font)), Dpi(dotsOfAnInch) {}

  FontSpec Font;
  int Dpi;

  friend bool operator==(const ScaledFont&, const ScaledFont&) = default;
};

/// A bitmap that can be drawn on. Coordinates are pixels from its upper left corner, plus the
/// origin; what falls outside is cut off without complaint. Drawing never fails visibly: a bitmap
/// that the system had no memory for swallows it.
class Canvas {
 public:
  virtual ~Canvas() = default;

  [[nodiscard]] virtual PixelSize Size() const = 0;

  /// All coordinates that follow are relative to `origin` (0, 0 at first).
  virtual void SetOrigin(PixelPoint origin) = 0;

  /// Fills `box`, right and bottom side excluded.
  virtual void FillBox(const PixelRect& box, Rgb colour) = 0;

  /// A straight line; its last point is not drawn, as in all drawing of Windows. `width` >= 1.
  virtual void DrawLine(PixelPoint from, PixelPoint to, Rgb colour, int width) = 0;

  /// One line of text with its upper left corner at `at`, no background; "&" is a plain character.
  virtual void DrawString(PixelPoint at, std::string_view text, const ScaledFont& font,
                          Rgb colour) = 0;

  /// Copies `part` of `source`, in pixels of its bitmap without regard to its origin, to `at`.
  /// Parts outside the bitmap are left out. `source` comes from the same window system and is
  /// another canvas.
  virtual void DrawCanvas(const Canvas& source, const PixelRect& part, PixelPoint at) = 0;

  /// Draws a picture with its upper left corner at `at`; where it is not opaque the ground shows
  /// through. One that is not whole draws nothing.
  virtual void DrawPixels(const IconPixels& picture, PixelPoint at) = 0;

  /// The colour at a point of the bitmap, without regard to the origin; 0 outside.
  [[nodiscard]] virtual Rgb PixelAt(PixelPoint at) const = 0;
};

/// A finished bitmap that several owners may show and nobody draws on any more.
using Picture = std::shared_ptr<const Canvas>;

}  // namespace corvelle
