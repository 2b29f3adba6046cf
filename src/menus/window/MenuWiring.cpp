#include "menus/window/MenuWiring.h"

#include "core/Program.h"

namespace corvelle {

MainMenuParts MainMenuPartsOf(Program& program) {
  return {.Ports = program.Ports,
          .Strip = program.Strip,
          .Options = program.Options,
          .Guards = program.Guards,
          .Menu = program.Menu,
          .Events = program.Events,
          .Answers = program.Answers,
          .Help = HelpTopics({.Paths = program.Paths,
                              .Files = program.Services.Files,
                              .Desktop = program.Services.Desktop,
                              .Launch = program.Launch})};
}

}  // namespace corvelle
