#pragma once

#include "core/Program.h"
#include "launch/LaunchWiring.h"
#include "toolbar/companion/DragImage.h"
#include "toolbar/companion/Popup.h"
#include "toolbar/companion/frmMinimize.h"
#include "toolbar/docking/StripHiding.h"
#include "toolbar/docking/StripPull.h"
#include "toolbar/docking/frmImage.h"
#include "toolbar/docking/mAppBar.h"
#include "toolbar/notices/frmHelp.h"
#include "toolbar/notices/frmStartup.h"
#include "toolbar/notices/frmTip.h"
#include "toolbar/singles/SingleDrops.h"
#include "toolbar/singles/SingleRow.h"
#include "toolbar/strip/ButtonRow.h"
#include "toolbar/strip/MenuTracking.h"
#include "toolbar/strip/StripCarry.h"
#include "toolbar/strip/StripDrops.h"

namespace corvelle {

// What each part of the strip, and each window beside it, gets of a program. The program outlives
// them.

[[nodiscard]] inline StripFiles StripFilesOf(Program& program) noexcept {
  return StripFiles({.Files = program.Services.Files,
                     .Ansi = program.Services.Ansi,
                     .Paths = program.Paths,
                     .Progress = program.Progress,
                     .Title = program.Title});
}

[[nodiscard]] inline ButtonRowParts ButtonRowPartsOf(Program& program) noexcept {
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

[[nodiscard]] inline PullParts PullPartsOf(Program& program) noexcept {
  return {.Ports = program.Ports,
          .Guards = program.Guards,
          .Strip = program.Strip,
          .Carry = program.Carry,
          .Pointer = program.Services.Pointer};
}

[[nodiscard]] inline HidingParts HidingPartsOf(Program& program) noexcept {
  return {.Ports = program.Ports,
          .Guards = program.Guards,
          .Strip = program.Strip,
          .Options = program.OptionFlags,
          .Pointer = program.Services.Pointer,
          .Desktop = program.Services.Desktop,
          .Events = program.Events};
}

[[nodiscard]] inline TrackingParts TrackingPartsOf(Program& program) noexcept {
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

[[nodiscard]] inline DateParts DatePartsOf(Program& program) noexcept {
  return {.Options = program.OptionFlags,
          .Guards = program.Guards,
          .System = program.Services.System,
          .Desktop = program.Services.Desktop,
          .Ports = program.Ports,
          .Menu = program.Menu,
          .Carry = program.Carry,
          .Launch = program.Launch};
}

[[nodiscard]] inline SingleRowParts SingleRowPartsOf(Program& program) noexcept {
  return {.Files = StripFilesOf(program),
          .Icons = program.IconSources,
          .Options = program.OptionFlags,
          .Desktop = program.Services.Desktop,
          .Pointer = program.Services.Pointer,
          .Ports = program.Ports,
          .Guards = program.Guards,
          .Menu = program.Menu,
          .Entry = program.Entry,
          .Carry = program.Carry,
          .Launch = program.Launch};
}

[[nodiscard]] inline SingleDropParts SingleDropPartsOf(Program& program) noexcept {
  return {.Edits = SingleEdits({.Files = program.Services.Files,
                                .Ansi = program.Services.Ansi,
                                .Paths = program.Paths,
                                .Ports = program.Ports,
                                .Entry = program.Entry,
                                .Titles = TitlesOf(program)}),
          .Strip = program.Strip,
          .Ports = program.Ports,
          .Guards = program.Guards,
          .Entry = program.Entry,
          .Launch = program.Launch};
}

[[nodiscard]] inline StripCarryParts StripCarryPartsOf(Program& program) noexcept {
  return {.Commands = program.Commands,
          .Strip = program.Strip,
          .Desktop = program.Services.Desktop,
          .Pointer = program.Services.Pointer,
          .Ports = program.Ports,
          .Guards = program.Guards,
          .Menu = program.Menu,
          .Drag = program.Drag,
          .Entry = program.Entry,
          .Carry = program.Carry};
}

[[nodiscard]] inline StripDropParts StripDropPartsOf(Program& program) noexcept {
  return {.Files = FileDrops({.Files = program.Services.Files,
                              .Ansi = program.Services.Ansi,
                              .Titles = TitlesOf(program),
                              .Guards = program.Guards,
                              .Ports = program.Ports}),
          .Strip = program.Strip,
          .Desktop = program.Services.Desktop,
          .Pointer = program.Services.Pointer,
          .Ports = program.Ports,
          .Guards = program.Guards,
          .Menu = program.Menu,
          .Drag = program.Drag,
          .Entry = program.Entry,
          .Carry = program.Carry};
}

[[nodiscard]] inline AppBarParts AppBarPartsOf(Program& program) noexcept {
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

[[nodiscard]] inline StillPictureParts StillPicturePartsOf(Program& program) noexcept {
  return {.Windows = program.Windows,
          .Desktop = program.Services.Desktop,
          .Ports = program.Ports,
          .Events = program.Events,
          .Options = program.OptionFlags,
          .Guards = program.Guards};
}

[[nodiscard]] inline CompanionParts CompanionPartsOf(Program& program) noexcept {
  return {.Windows = program.Windows,
          .Tray = program.Services.Tray,
          .Ports = program.Ports,
          .Guards = program.Guards,
          .Strip = program.Strip,
          .Options = program.Options,
          .Paths = program.Paths,
          .Events = program.Events};
}

[[nodiscard]] inline PopupParts PopupPartsOf(Program& program) noexcept {
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

[[nodiscard]] inline DragImageParts DragImagePartsOf(Program& program) noexcept {
  return {.Icons = program.IconSources,
          .Carry = program.Carry,
          .Ports = program.Ports,
          .Desktop = program.Services.Desktop,
          .Pointer = program.Services.Pointer};
}

[[nodiscard]] inline HintParts HintPartsOf(Program& program) noexcept {
  return {.Windows = program.Windows,
          .Ports = program.Ports,
          .Options = program.OptionFlags,
          .Desktop = program.Services.Desktop,
          .Pointer = program.Services.Pointer};
}

[[nodiscard]] inline StartupParts StartupPartsOf(Program& program) noexcept {
  return {.Windows = program.Windows,
          .Icons = program.Services.Icons,
          .Paths = program.Paths,
          .Title = program.Title};
}

[[nodiscard]] inline TipParts TipPartsOf(Program& program) noexcept {
  return {.Windows = program.Windows,
          .Icons = program.Services.Icons,
          .Paths = program.Paths,
          .Options = program.Options};
}

}  // namespace corvelle
