#pragma once

#include "core/Program.h"
#include "icons/IconLibrary.h"
#include "icons/LibraryLists.h"
#include "icons/OtherIcons.h"

namespace corvelle {

// What the store of the icon library gets of a program, which outlives it.

[[nodiscard]] inline UnpackParts UnpackPartsOf(Program& program) noexcept {
  return {.Files = program.Services.Files,
          .Ansi = program.Services.Ansi,
          .Paths = program.Paths,
          .Ports = program.Ports,
          .Messages = program.Messages,
          .Progress = program.Progress,
          .Events = program.Events};
}

[[nodiscard]] inline LibraryLists LibraryListsOf(Program& program) noexcept {
  return LibraryLists({.Files = program.Services.Files,
                       .Ansi = program.Services.Ansi,
                       .Paths = program.Paths,
                       .Icons = program.Icons,
                       .Windows = program.Windows,
                       .System = program.Services.System});
}

[[nodiscard]] inline OtherIcons OtherIconsOf(Program& program) noexcept {
  return OtherIcons({.Files = program.Services.Files,
                     .Ansi = program.Services.Ansi,
                     .Keys = program.Services.Keys,
                     .System = program.Services.System,
                     .Paths = program.Paths});
}

}  // namespace corvelle
