#include "core/StartupProgress.h"

#include "core/GuardFlags.h"
#include "core/OptionFlags.h"
#include "core/WindowPorts.h"

namespace corvelle {

void StartupProgress::ShowStartupProgress() const {
  if (!guards_.StartingUp || options_.Is(Option::NoStartupScreen)) return;
  if (ports_.Startup != nullptr) ports_.Startup->AddDot();
}

}  // namespace corvelle
