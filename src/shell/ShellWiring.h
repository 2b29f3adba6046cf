#pragma once

#include "core/Program.h"
#include "shell/StartupLink.h"

namespace corvelle {

// What the entry in the Startup folder is made with, of a program, which outlives whoever makes it.

[[nodiscard]] inline StartupLinkParts StartupLinkPartsOf(Program& program) noexcept {
  return {.Files = program.Services.Files,
          .Links = program.Services.Links,
          .System = program.Services.System,
          .Paths = program.Paths,
          .Ports = program.Ports,
          .Messages = program.Messages};
}

}  // namespace corvelle
