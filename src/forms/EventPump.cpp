#include "forms/EventPump.h"

#include "forms/Scopes.h"
#include "forms/WindowSystem.h"

namespace corvelle::forms {

void EventPump::DoEvents() {
  if (running_) {
    windows_.PaintWaiting();
    return;
  }
  const FlagScope running(running_);
  windows_.DoEvents();
}

}  // namespace corvelle::forms
