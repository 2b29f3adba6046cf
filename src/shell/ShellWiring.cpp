#include "shell/ShellWiring.h"

#include "core/Program.h"

namespace corvelle {

StartupLinkParts StartupLinkPartsOf(Program& program) {
  return {.Files = program.Services.Files,
          .Links = program.Services.Links,
          .System = program.Services.System,
          .Paths = program.Paths,
          .Ports = program.Ports,
          .Messages = program.Messages};
}

}  // namespace corvelle
