#include "launch/LaunchWiring.h"

#include "core/Program.h"

namespace corvelle {

BuiltInParts BuiltInPartsOf(Program& program) {
  return {.Files = program.Services.Files,
          .FileOps = program.Services.FileOps,
          .Links = program.Services.Links,
          .Keyboard = program.Services.Keyboard,
          .Paths = program.Paths,
          .Launch = program.Launch};
}

BrowserParts BrowserPartsOf(Program& program) {
  return {.Answers = program.Answers,
          .Files = program.Services.Files,
          .Ansi = program.Services.Ansi,
          .Desktop = program.Services.Desktop,
          .Paths = program.Paths,
          .Title = program.Title,
          .Launch = program.Launch};
}

}  // namespace corvelle
