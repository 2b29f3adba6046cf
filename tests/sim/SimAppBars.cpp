#include "sim/SimAppBars.h"

namespace corvelle::sim {

std::uintptr_t SimAppBars::Message(std::uint32_t, AppBarRecord&) { return 0; }

}  // namespace corvelle::sim
