#include "launch/OpenMail.h"

#include <optional>
#include <string>

#include "core/Program.h"
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

void OpenMail(Program& program, std::string_view address) {
  StartBeside<bool>(
      program, std::string(address),
      [text = std::string(address)](const StartServices& services) {
        return OpenMailApart(services, text);
      },
      [&program](bool opened) {
        if (!opened) program.Say(program.ToolbarWindow(), kMailError, forms::msgbox::OnTop);
      });
}

}  // namespace corvelle
