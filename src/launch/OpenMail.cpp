#include "launch/OpenMail.h"

#include <optional>
#include <string>

#include "core/Program.h"
#include "launch/RegistryValue.h"
#include "platform/Registry.h"
#include "platform/ShellExec.h"

namespace corvelle {

namespace {

constexpr std::string_view kMailKey = "mailto\\shell\\open\\command";
constexpr std::string_view kMailError = "Unable to communicate with your default email program.";

/// True when the shell has started it, or when the user has refused that.
bool IsSettled(const Result<Done, OpenError>& opened) {
  return opened || opened.Error() == OpenError::Cancelled;
}

}  // namespace

void OpenMail(Program& program, std::string_view address) {
  ShellExec& shell = program.Services.Shell;
  if (IsSettled(shell.Open(address, std::nullopt, std::nullopt))) return;
  std::string command;
  if (ReadRegistryValue(program.Services.Keys, RegistryRoot::ClassesRoot, kMailKey, "", command) &&
      IsSettled(shell.Open(command, address, std::nullopt))) {
    return;
  }
  program.Say(program.ToolbarWindow(), kMailError, forms::msgbox::OnTop);
}

}  // namespace corvelle
