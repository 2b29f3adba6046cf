#pragma once

#include "shell/StartupLink.h"

namespace corvelle {

class Program;

// What the entry in the Startup folder is made with, of a program, which outlives whoever makes it.

[[nodiscard]] StartupLinkParts StartupLinkPartsOf(Program& program);

}  // namespace corvelle
