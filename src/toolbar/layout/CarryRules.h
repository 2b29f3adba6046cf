#pragma once

#include <cstdint>

#include "platform/Canvas.h"

namespace corvelle {

// Rules of carrying an entry with the mouse: no toolkit, no platform.

/// Tells when the release of a carried entry went to another program. The system may show a button
/// as up some time before the release arrives here, so that one look is not enough.
class AbandonWatch {
 public:
  /// For how long no button must be down, milliseconds.
  static constexpr std::int64_t kGrace = 150;

  /// One look: true if no button has been down since the grace began. `now` in milliseconds.
  [[nodiscard]] bool Look(bool anyButtonDown, std::int64_t now) noexcept;
  /// Forgets what was seen, for another carry.
  void Reset() noexcept { upSince_ = kDown; }

 private:
  static constexpr std::int64_t kDown = -1;

  std::int64_t upSince_ = kDown;
};

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
