#pragma once

#include "forms/Types.h"

namespace corvelle {

class Input;

/// A carried entry on its way, and what another program drags over the strip or its menu.
struct DragState {
  /// A carried entry is over the strip's buttons.
  bool ButtonDragging = false;
  /// A carried entry is being put down: nothing else ends the carry meanwhile.
  bool ItemDropping = false;

  /// Another program drags something over the strip or a menu that opened under the drag.
  bool DragOverButton = false;
  /// That drag has come over the strip, and its end is not dealt with yet.
  bool DragEntered = false;
  /// What it drags is a text that begins like a web address.
  bool DragIsUrl = false;
  /// The mouse buttons that it was last dragged with.
  forms::MouseButton DragButtons = forms::MouseButton::None;

  /// True while another program's drag that came over the strip goes on: it decides which menu is
  /// up, and the source keeps the foreground.
  [[nodiscard]] bool DragHolds(const Input& input) const;

  /// The other program's drag is over.
  void EndDrag() noexcept {
    DragOverButton = false;
    DragEntered = false;
    DragIsUrl = false;
  }
};

}  // namespace corvelle
