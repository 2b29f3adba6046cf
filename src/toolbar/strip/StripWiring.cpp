#include "toolbar/strip/StripWiring.h"

#include "core/Program.h"

namespace corvelle {
namespace {

FileTitles TitlesOf(Program& program) {
  return FileTitles(program.Starts, program.Services.Ansi, program.OptionFlags);
}

StripFiles StripFilesOf(Program& program) {
  return StripFiles({.Files = program.Services.Files,
                     .Ansi = program.Services.Ansi,
                     .Paths = program.Paths,
                     .Progress = program.Progress,
                     .Title = program.Title});
}

}  // namespace

ButtonRowParts ButtonRowPartsOf(Program& program) {
  return {.Files = StripFilesOf(program),
          .Icons = program.IconSources,
          .Options = program.OptionFlags,
          .Strip = program.Strip,
          .System = program.Services.System,
          .Ports = program.Ports,
          .Guards = program.Guards,
          .Menu = program.Menu,
          .Entry = program.Entry};
}

PullParts PullPartsOf(Program& program) {
  return {.Ports = program.Ports,
          .Guards = program.Guards,
          .Strip = program.Strip,
          .Carry = program.Carry,
          .Pointer = program.Services.Pointer};
}

HidingParts HidingPartsOf(Program& program) {
  return {.Ports = program.Ports,
          .Guards = program.Guards,
          .Strip = program.Strip,
          .Options = program.OptionFlags,
          .Pointer = program.Services.Pointer,
          .Desktop = program.Services.Desktop,
          .Events = program.Events};
}

TrackingParts TrackingPartsOf(Program& program) {
  return {.Options = program.OptionFlags,
          .Strip = program.Strip,
          .Desktop = program.Services.Desktop,
          .Pointer = program.Services.Pointer,
          .Ports = program.Ports,
          .Guards = program.Guards,
          .Menu = program.Menu,
          .Drag = program.Drag,
          .Carry = program.Carry};
}

DateParts DatePartsOf(Program& program) {
  return {.Options = program.OptionFlags,
          .Guards = program.Guards,
          .System = program.Services.System,
          .Desktop = program.Services.Desktop,
          .Ports = program.Ports,
          .Menu = program.Menu,
          .Carry = program.Carry,
          .Launch = program.Launch};
}

SingleRowParts SingleRowPartsOf(Program& program) {
  return {.Files = StripFilesOf(program),
          .Edits = SingleEdits({.Files = program.Services.Files,
                                .Ansi = program.Services.Ansi,
                                .Paths = program.Paths,
                                .Ports = program.Ports,
                                .Entry = program.Entry,
                                .Titles = TitlesOf(program)}),
          .Icons = program.IconSources,
          .Options = program.OptionFlags,
          .Strip = program.Strip,
          .Desktop = program.Services.Desktop,
          .Pointer = program.Services.Pointer,
          .Ports = program.Ports,
          .Guards = program.Guards,
          .Menu = program.Menu,
          .Entry = program.Entry,
          .Carry = program.Carry,
          .Launch = program.Launch};
}

StripDropParts StripDropPartsOf(Program& program) {
  return {.Files = FileDrops({.Files = program.Services.Files,
                              .Ansi = program.Services.Ansi,
                              .Titles = TitlesOf(program),
                              .Guards = program.Guards,
                              .Ports = program.Ports}),
          .Commands = program.Commands,
          .Strip = program.Strip,
          .Desktop = program.Services.Desktop,
          .Pointer = program.Services.Pointer,
          .Ports = program.Ports,
          .Messages = program.Messages,
          .Guards = program.Guards,
          .Menu = program.Menu,
          .Drag = program.Drag,
          .Entry = program.Entry,
          .Carry = program.Carry};
}

AppBarParts AppBarPartsOf(Program& program) {
  return {.Bars = program.Services.Bars,
          .Desktop = program.Services.Desktop,
          .Ports = program.Ports,
          .Guards = program.Guards,
          .Strip = program.Strip,
          .Options = program.OptionFlags,
          .Carry = program.Carry,
          .Messages = program.Messages,
          .Events = program.Events};
}

StillPictureParts StillPicturePartsOf(Program& program) {
  return {.Windows = program.Windows,
          .Desktop = program.Services.Desktop,
          .Ports = program.Ports,
          .Events = program.Events,
          .Options = program.OptionFlags,
          .Guards = program.Guards};
}

CompanionParts CompanionPartsOf(Program& program) {
  return {.Windows = program.Windows,
          .Tray = program.Services.Tray,
          .Ports = program.Ports,
          .Guards = program.Guards,
          .Strip = program.Strip,
          .Options = program.Options,
          .Paths = program.Paths,
          .Events = program.Events};
}

PopupParts PopupPartsOf(Program& program) {
  return {.Entry = program.Entry,
          .Commands = program.Commands,
          .Files = program.Services.Files,
          .Ansi = program.Services.Ansi,
          .Ports = program.Ports,
          .Guards = program.Guards,
          .Menu = program.Menu,
          .Pointer = program.Services.Pointer,
          .Launch = program.Launch};
}

DragImageParts DragImagePartsOf(Program& program) {
  return {.Icons = program.IconSources,
          .Carry = program.Carry,
          .Ports = program.Ports,
          .Desktop = program.Services.Desktop,
          .Pointer = program.Services.Pointer};
}

HintParts HintPartsOf(Program& program) {
  return {.Windows = program.Windows,
          .Ports = program.Ports,
          .Options = program.OptionFlags,
          .Desktop = program.Services.Desktop,
          .Pointer = program.Services.Pointer};
}

StartupParts StartupPartsOf(Program& program) {
  return {.Windows = program.Windows,
          .Icons = program.Services.Icons,
          .Paths = program.Paths,
          .Title = program.Title};
}

TipParts TipPartsOf(Program& program) {
  return {.Windows = program.Windows,
          .Icons = program.Services.Icons,
          .Paths = program.Paths,
          .Options = program.Options};
}

}  // namespace corvelle
