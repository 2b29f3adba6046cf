#pragma once

#include "about/DefaultEntries.h"
#include "about/frmAbout.h"
#include "core/Program.h"
#include "launch/LaunchWiring.h"
#include "search/frmNetSearch.h"
#include "weblink/frmURL.h"

namespace corvelle {

// What the windows that belong to no room with a file like this one get of a program, which
// outlives them.

[[nodiscard]] inline DefaultEntryParts DefaultEntryPartsOf(Program& program) noexcept {
  return {.Files = program.Services.Files,
          .Ansi = program.Services.Ansi,
          .Keys = program.Services.Keys,
          .Links = program.Services.Links,
          .Associations = program.Services.Associations,
          .Paths = program.Paths,
          .Ports = program.Ports,
          .Messages = program.Messages,
          .Progress = program.Progress,
          .Events = program.Events,
          .Titles = TitlesOf(program)};
}

[[nodiscard]] inline AboutParts AboutPartsOf(Program& program) noexcept {
  return {.Slow = program.Slow,
          .Icons = program.Services.Icons,
          .Keys = program.Services.Keys,
          .System = program.Services.System,
          .Copies = program.Services.Copies,
          .Pointer = program.Services.Pointer,
          .Paths = program.Paths,
          .Launch = program.Launch};
}

[[nodiscard]] inline NetSearchParts NetSearchPartsOf(Program& program) noexcept {
  return {.Windows = program.Windows,
          .Files = program.Services.Files,
          .Ansi = program.Services.Ansi,
          .Paths = program.Paths,
          .Ports = program.Ports,
          .Messages = program.Messages,
          .Title = program.Title};
}

[[nodiscard]] inline WebLinkParts WebLinkPartsOf(Program& program) noexcept {
  return {.Windows = program.Windows,
          .Files = program.Services.Files,
          .Ansi = program.Services.Ansi,
          .Desktop = program.Services.Desktop,
          .Paths = program.Paths,
          .Ports = program.Ports,
          .Messages = program.Messages,
          .Options = program.Options,
          .Guards = program.Guards,
          .Entry = program.Entry,
          .Commands = program.Commands};
}

}  // namespace corvelle
