#include "launch/UserChoice.h"

#include "base/Text.h"

namespace corvelle {

namespace {

constexpr std::string_view kChoices =
    "Software\\Microsoft\\Windows\\Shell\\Associations\\UrlAssociations\\";
constexpr std::string_view kExe = ".exe";

/// Where the choice is kept, the newest place first. A Windows that has the first one leaves what
/// an earlier choice wrote in the second.
constexpr std::string_view kPlaces[] = {"\\UserChoiceLatest\\ProgId", "\\UserChoice"};

/// The class that the user chose; empty when the user chose nothing there.
std::string ChosenClass(const Registry& keys, std::string_view protocol) {
  for (const std::string_view place : kPlaces) {
    const auto name =
        keys.Text(RegistryRoot::CurrentUser,
                  std::string(kChoices) + std::string(protocol) + std::string(place), "ProgId");
    if (name && !Trim(*name).empty()) return Trim(*name);
  }
  return {};
}

}  // namespace

UserChoice UserChoiceFor(const Registry& keys, std::string_view protocol) {
  const std::string chosen = ChosenClass(keys, protocol);
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
