#pragma once

#include "core/Program.h"
#include "customize/frmCust.h"
#include "launch/LaunchWiring.h"
#include "shell/ShellWiring.h"

namespace corvelle {

// What the Customize window gets of a program, which outlives it.

[[nodiscard]] inline CustParts CustPartsOf(Program& program) noexcept {
  return {.Icons = program.IconSources,
          .Slow = program.Slow,
          .Files = program.Services.Files,
          .Ansi = program.Services.Ansi,
          .Links = program.Services.Links,
          .Pointer = program.Services.Pointer,
          .Paths = program.Paths,
          .Ports = program.Ports,
          .Messages = program.Messages,
          .Events = program.Events,
          .Options = program.OptionFlags,
          .WebLinkIcon = program.Icons.WebLinkIcon,
          .Strip = program.Strip,
          .Entry = program.Entry,
          .Title = program.Title,
          .Launch = program.Launch,
          .Titles = TitlesOf(program),
          .Startup = StartupLinkPartsOf(program)};
}

}  // namespace corvelle
