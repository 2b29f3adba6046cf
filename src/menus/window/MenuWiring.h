#pragma once

#include "menus/window/MainMenu.h"

namespace corvelle {

class Program;

/// What the main menu gets of a program, which outlives it.
[[nodiscard]] MainMenuParts MainMenuPartsOf(Program& program);

}  // namespace corvelle
