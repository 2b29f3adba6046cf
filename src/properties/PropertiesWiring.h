#pragma once

#include "core/Program.h"
#include "launch/LaunchWiring.h"
#include "properties/frmProperties.h"

namespace corvelle {

// What the Properties window gets of a program, which outlives it.

[[nodiscard]] inline PropertiesParts PropertiesPartsOf(Program& program) noexcept {
  return {.Icons = program.IconSources,
          .Files = program.Services.Files,
          .Ansi = program.Services.Ansi,
          .Links = program.Services.Links,
          .Pointer = program.Services.Pointer,
          .Desktop = program.Services.Desktop,
          .Paths = program.Paths,
          .Ports = program.Ports,
          .Messages = program.Messages,
          .Strip = program.Strip,
          .Guards = program.Guards,
          .Entry = program.Entry,
          .Slow = program.Slow,
          .Titles = TitlesOf(program)};
}

}  // namespace corvelle
