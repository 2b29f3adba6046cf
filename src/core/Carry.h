#pragma once

#include "base/Geometry.h"
#include "forms/Types.h"

namespace corvelle {

class CapturePort;
class Program;

// An entry in the hand: picked up in a menu or in the row of single buttons with the left button,
// and put down in a menu, on a button or in the row. The entry carried is the current one
// (Program::Entry); no key does anything meanwhile.

/// Picks the current entry up: from now on the pointer carries its picture.
void StartCarry(Program& program);

/// A mouse button was released at `at`, in pixels of the screen. False when nothing is carried, and
/// the release is like any other. The left button puts down what is carried, wherever it is; the
/// right one puts a copy down on a button or in the row and leaves a carry alone elsewhere.
bool EndCarry(Program& program, PixelPoint at, forms::MouseButton released,
              forms::ShiftState shift);

/// Nothing is carried any more, and nothing was put down.
void AbandonCarry(Program& program);

/// Covers the menu that is up with its still picture until the scope ends, where the program has
/// such pictures.
class MenuStill {
 public:
  explicit MenuStill(CapturePort* capture);
  MenuStill(const MenuStill&) = delete;
  MenuStill& operator=(const MenuStill&) = delete;
  ~MenuStill();

 private:
  CapturePort* capture_;
};

}  // namespace corvelle
