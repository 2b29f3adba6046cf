#pragma once

namespace corvelle {

/// A point in twips.
struct TwipPoint {
  float X = 0;
  float Y = 0;

  friend bool operator==(const TwipPoint&, const TwipPoint&) = default;
};

/// A size in twips.
struct TwipSize {
  float Width = 0;
  float Height = 0;

  friend bool operator==(const TwipSize&, const TwipSize&) = default;
};

/// A rectangle in twips.
struct TwipRect {
  float Left = 0;
  float Top = 0;
  float Width = 0;
  float Height = 0;

  [[nodiscard]] constexpr float Right() const noexcept { return Left + Width; }
  [[nodiscard]] constexpr float Bottom() const noexcept { return Top + Height; }

  friend bool operator==(const TwipRect&, const TwipRect&) = default;
};

/// A straight line between two points in twips.
struct TwipLine {
  float X1 = 0;
  float Y1 = 0;
  float X2 = 0;
  float Y2 = 0;

  friend bool operator==(const TwipLine&, const TwipLine&) = default;
};

}  // namespace corvelle
