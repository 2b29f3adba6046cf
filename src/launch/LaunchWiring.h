#pragma once

#include "core/Program.h"
#include "launch/Browser.h"
#include "launch/BuiltInCommands.h"
#include "launch/FileTitle.h"

namespace corvelle {

// What starts entries and titles files gets of a program, which outlives it.

[[nodiscard]] inline FileTitles TitlesOf(Program& program) noexcept {
  return FileTitles(program.Starts, program.Services.Ansi, program.OptionFlags);
}

[[nodiscard]] inline BuiltInParts BuiltInPartsOf(Program& program) noexcept {
  return {.Files = program.Services.Files,
          .FileOps = program.Services.FileOps,
          .Links = program.Services.Links,
          .Keyboard = program.Services.Keyboard,
          .Paths = program.Paths,
          .Launch = program.Launch};
}

[[nodiscard]] inline BrowserParts BrowserPartsOf(Program& program) noexcept {
  return {.Answers = program.Answers,
          .Files = program.Services.Files,
          .Ansi = program.Services.Ansi,
          .Desktop = program.Services.Desktop,
          .Pointer = program.Services.Pointer,
          .Paths = program.Paths,
          .Title = program.Title,
          .Launch = program.Launch};
}

}  // namespace corvelle
