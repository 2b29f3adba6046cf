#pragma once

#include "launch/Browser.h"
#include "launch/BuiltInCommands.h"

namespace corvelle {

class Program;

// What starts entries gets of a program, which outlives it.

[[nodiscard]] BuiltInParts BuiltInPartsOf(Program& program);
[[nodiscard]] BrowserParts BrowserPartsOf(Program& program);

}  // namespace corvelle
