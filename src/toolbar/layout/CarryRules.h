#pragma once

#include "platform/Canvas.h"

namespace corvelle {

// Rules of carrying an entry with the mouse: no toolkit, no platform.

/// The window under the pointer of a carry.
enum class CarryOver { Menu, Buttons, SingleButtons, Elsewhere };

/// What decides whether the carried entry may be put down at the pointer.
struct CarryScene {
  CarryOver Over = CarryOver::Elsewhere;
  bool MainMenu = false;  // the menu is the program's own
  int Button = 0;         // the button under the pointer
};

[[nodiscard]] bool MayDrop(const CarryScene& scene) noexcept;

/// A pixel of a picture that was drawn once on black and once on white: its own colour where it
/// covers at least half of the ground, else `mask`.
[[nodiscard]] Rgb CutOut(Rgb onBlack, Rgb onWhite, Rgb mask) noexcept;

}  // namespace corvelle
