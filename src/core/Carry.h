#pragma once

#include "base/Geometry.h"
#include "forms/Scopes.h"
#include "forms/Types.h"
#include "platform/WindowId.h"

namespace corvelle {

class CapturePort;
class DesktopWindows;
struct DragState;
struct EntryEdit;
struct GuardFlags;
struct WindowPorts;
namespace forms {
class WindowSystem;
}

/// What carrying an entry works with. All of it outlives it.
struct CarryParts {
  forms::WindowSystem& Windows;
  const DesktopWindows& Desktop;
  const WindowPorts& Ports;
  const GuardFlags& Guards;
  EntryEdit& Entry;
  DragState& Drag;
};

/// An entry in the hand: picked up in a menu or in the row of single buttons with the left button,
/// and put down in a menu, on a button or in the row. The entry carried is the current one
/// (EntryEdit); no key does anything meanwhile.
class EntryCarry {
 public:
  explicit EntryCarry(const CarryParts& with) : with_(with) {}

  /// An entry is in the hand.
  [[nodiscard]] bool IsCarrying() const;
  /// It is over the strip's buttons.
  [[nodiscard]] bool IsOverButtons() const;
  /// It is being put down.
  [[nodiscard]] bool IsDropping() const;

  /// Picks the current entry up: from now on the pointer carries its picture.
  void StartCarry();

  /// A mouse button was released at `at`, in pixels of the screen. False when nothing is carried,
  /// and the release is like any other. The left button puts down what is carried, wherever it is;
  /// the right one puts a copy down on a button or in the row and leaves a carry alone elsewhere.
  bool EndCarry(PixelPoint at, forms::MouseButton released, forms::ShiftState shift);

  /// What is in the hand is being put down as long as the answer lives.
  [[nodiscard]] forms::FlagScope Dropping();

  /// Nothing is carried any more, and nothing was put down.
  void AbandonCarry();

 private:
  void Drop(WindowId under, forms::MouseButton released, forms::ShiftState shift);
  void DropOnSingles(forms::MouseButton released);
  [[nodiscard]] bool TakesCopies(WindowId under) const;

  CarryParts with_;
};

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
