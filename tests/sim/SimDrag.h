#pragma once

#include "forms/DragDrop.h"
#include "platform/WindowId.h"

namespace corvelle::sim {

/// What another program begins to drag.
struct DragSource {
  forms::DragData Data;
  forms::MouseButton Button = forms::MouseButton::Left;
  forms::DropEffect Allowed =
      forms::DropEffect::Copy | forms::DropEffect::Move | forms::DropEffect::Link;
  WindowId Window = kNoWindow;  // of the source, which the press brings to the foreground
};

/// A drag that is on.
struct SimDrag {
  DragSource Source;
  WindowId Target = kNoWindow;  // the window that was told of it last
  forms::DragData Seen;         // the data as that window has left it
  unsigned Timer = 0;
  bool InCall = false;    // a window has not come back from being told
  bool Ends = false;      // meanwhile it was released or given up
  bool EndsDrop = false;  // it was released
};

}  // namespace corvelle::sim
