#include "core/DragState.h"

#include "core/HeldButton.h"

namespace corvelle {

bool DragState::DragHolds(const Input& input) const { return DragEntered && AnyButtonDown(input); }

}  // namespace corvelle
