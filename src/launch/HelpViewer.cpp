#include "launch/HelpViewer.h"

#include "core/Program.h"
#include "launch/LaunchItem.h"
#include "launch/StartBeside.h"
#include "platform/FileSystem.h"
#include "platform/ShellExec.h"

namespace corvelle {

namespace {

namespace msgbox = forms::msgbox;

}  // namespace

std::string HelpViewer::PathOf(HelpPage page) const {
  return program_.Paths.ShippedFile("Help\\" + std::string(HelpFileOf(page)));
}

bool HelpViewer::ShowPage(HelpPage page) {
  std::string path = PathOf(page);
  if (!program_.Services.Files.FileExists(path)) return false;
  LaunchItem(program_.Launch, path);
  return true;
}

void HelpViewer::OfferPage(HelpPage page) {
  const std::string path = PathOf(page);
  if (!program_.Services.Files.FileExists(path)) return;
  StartBeside<bool>(
      program_.Starts, path,
      [path](const StartServices& services) {
        return IsSettled(services.Shell.Open(path, std::nullopt, std::nullopt));
      },
      [](bool) {});
}

void HelpViewer::ShowPageOf(std::string_view windowName) {
  if (ShowPage(HelpPageOf(windowName))) return;
  program_.Messages.Say(program_.Ports.ToolbarWindow(),
                        "Corvelle help file could not be found in Corvelle folder.",
                        msgbox::IconStop | msgbox::OnTop);
}

}  // namespace corvelle
