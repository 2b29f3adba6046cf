#include "program/Wiring.h"

#include "core/Program.h"

namespace corvelle {

DefaultEntryParts DefaultEntryPartsOf(Program& program) {
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
          .Titles = FileTitles(program.Starts, program.Services.Ansi, program.OptionFlags)};
}

AboutParts AboutPartsOf(Program& program) {
  return {.Slow = program.Slow,
          .Icons = program.Services.Icons,
          .Keys = program.Services.Keys,
          .System = program.Services.System,
          .Copies = program.Services.Copies,
          .Pointer = program.Services.Pointer,
          .Paths = program.Paths,
          .Launch = program.Launch};
}

NetSearchParts NetSearchPartsOf(Program& program) {
  return {.Windows = program.Windows,
          .Files = program.Services.Files,
          .Ansi = program.Services.Ansi,
          .Paths = program.Paths,
          .Ports = program.Ports,
          .Messages = program.Messages,
          .Title = program.Title};
}

WebLinkParts WebLinkPartsOf(Program& program) {
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
