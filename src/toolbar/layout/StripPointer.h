#pragma once

#include <span>

#include "base/Geometry.h"
#include "toolbar/layout/StripLayout.h"

namespace corvelle {

// Which button the pointer or a key means: pure rules.

/// Place of the strip's window on the screen, twips.
struct StripPlace {
  float Left = 0;
  float Top = 0;
  StripScale Scale;
};

/// Index of the button under the pointer (pixels of the screen), 0 for none. Entry 0 of `buttons`
/// is the template. Between two buttons an open menu keeps `current`.
[[nodiscard]] int ButtonAt(std::span<const ButtonRect> buttons, const StripPlace& place,
                           PixelPoint pointer, int current, bool menuOpen) noexcept;

/// The button to the left (key 37) or right (key 39) of `current`, around the ends; `current` for
/// any other key, 0 when there are no buttons.
[[nodiscard]] int NextButton(int current, int count, int keyCode) noexcept;

/// The middle of a button in pixels of the screen; ButtonAt finds the button there.
[[nodiscard]] PixelPoint ButtonMiddle(const ButtonRect& button, const StripPlace& place) noexcept;

}  // namespace corvelle
