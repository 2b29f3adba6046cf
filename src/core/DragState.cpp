#include "core/DragState.h"

#include "platform/Input.h"

namespace corvelle {

bool DragState::DragHolds(const Input& input) const {
  constexpr int kLeftButtonKey = 1;
  constexpr int kRightButtonKey = 2;
  return DragEntered && (input.IsKeyDown(kLeftButtonKey) || input.IsKeyDown(kRightButtonKey));
}

}  // namespace corvelle
