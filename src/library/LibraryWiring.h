#pragma once

#include "core/Program.h"
#include "icons/IconsWiring.h"
#include "library/frmLibrary.h"

namespace corvelle {

// What the window of the icon library gets of a program, which outlives it.

[[nodiscard]] inline OtherFileParts OtherFilePartsOf(Program& program) noexcept {
  return {.Stored = OtherIconsOf(program), .Answers = program.Answers};
}

[[nodiscard]] inline LibraryParts LibraryPartsOf(Program& program) noexcept {
  return {.Windows = program.Windows,
          .Ports = program.Ports,
          .Messages = program.Messages,
          .Answers = program.Answers,
          .Ansi = program.Services.Ansi,
          .System = program.Services.System,
          .Paths = program.Paths,
          .Icons = program.Icons,
          .Lists = LibraryListsOf(program),
          .Others = OtherFilePartsOf(program)};
}

}  // namespace corvelle
