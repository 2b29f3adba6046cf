#pragma once

#include "core/Program.h"
#include "menus/window/MainMenu.h"

namespace corvelle {

// What the main menu gets of a program, which outlives it.

[[nodiscard]] inline MainMenuParts MainMenuPartsOf(Program& program) noexcept {
  return {.Ports = program.Ports,
          .Strip = program.Strip,
          .Options = program.Options,
          .Guards = program.Guards,
          .Menu = program.Menu,
          .Events = program.Events,
          .Answers = program.Answers,
          .Help = HelpTopics({.Paths = program.Paths,
                              .Files = program.Services.Files,
                              .Desktop = program.Services.Desktop,
                              .Launch = program.Launch})};
}

}  // namespace corvelle
