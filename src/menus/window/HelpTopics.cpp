#include "menus/window/HelpTopics.h"

#include <string>

#include "core/Instance.h"
#include "core/MessageBoxes.h"
#include "core/ProgramPaths.h"
#include "core/WindowPorts.h"
#include "launch/LaunchItem.h"
#include "platform/FileSystem.h"

namespace corvelle {

void HelpTopics::Show() const {
  const std::string help = with_.Paths.ShippedFile("corvelle.hlp");
  if (!with_.Files.FileExists(help)) {
    HelpPort* const pages = with_.Launch.Ports.Help;
    if (pages != nullptr && pages->ShowPage(HelpPage::Contents)) return;
    with_.Launch.Messages.Say(with_.Launch.Ports.ToolbarWindow(),
                              "Corvelle help file could not be found in Corvelle folder.",
                              forms::msgbox::IconStop | forms::msgbox::OnTop);
    return;
  }
  if (!ActivatePrevInstance(with_.Desktop, "Corvelle Help")) LaunchItem(with_.Launch, help);
}

}  // namespace corvelle
