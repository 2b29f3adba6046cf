#include "launch/OpenMail.h"

#include <optional>
#include <string>

#include "core/LaunchParts.h"
#include "core/MessageBoxes.h"
#include "core/WindowPorts.h"
#include "launch/RegistryValue.h"
#include "launch/StartBeside.h"
#include "platform/Registry.h"
#include "platform/ShellExec.h"

namespace corvelle {

namespace {

constexpr std::string_view kMailKey = "mailto\\shell\\open\\command";
constexpr std::string_view kMailError = "Unable to communicate with your default email program.";

/// False when no program took the address.
bool OpenMailApart(const StartServices& services, std::string_view address) {
  if (IsSettled(services.Shell.Open(address, std::nullopt, std::nullopt))) return true;
  std::string command;
  return ReadRegistryValue(services.Keys, RegistryRoot::ClassesRoot, kMailKey, "", command) &&
         IsSettled(services.Shell.Open(command, address, std::nullopt));
}

}  // namespace

void OpenMail(const LaunchParts& with, std::string_view address) {
  StartBeside<bool>(
      with.Starts, std::string(address),
      [text = std::string(address)](const StartServices& services) {
        return OpenMailApart(services, text);
      },
      [with](bool opened) {
        if (!opened)
          with.Messages.Say(with.Ports.ToolbarWindow(), kMailError, forms::msgbox::OnTop);
      });
}

}  // namespace corvelle
