#include "launch/UserChoice.h"

#include "base/Text.h"

namespace corvelle {

namespace {

constexpr std::string_view kChoices =
    "Software\\Microsoft\\Windows\\Shell\\Associations\\UrlAssociations\\";
constexpr std::string_view kExe = ".exe";

}  // namespace

UserChoice UserChoiceFor(const Registry& keys, std::string_view protocol) {
  const auto name =
      keys.Text(RegistryRoot::CurrentUser,
                std::string(kChoices) + std::string(protocol) + "\\UserChoice", "ProgId");
  const std::string chosen = name ? Trim(*name) : std::string();
  // The class of the protocol itself is what there is without a choice.
  if (chosen.empty() || EqualNoCase(chosen, protocol)) return {};
  const auto command = keys.Text(RegistryRoot::ClassesRoot, chosen + "\\shell\\open\\command", "");
  return {.Made = true, .Program = command ? ProgramOfCommand(*command) : std::string()};
}

std::string ProgramOfCommand(std::string_view command) {
  const std::size_t exe = FindNoCase(command, kExe);
  if (exe != std::string_view::npos) command = command.substr(0, exe + kExe.size());
  return StripQuotes(command);
}

}  // namespace corvelle
