#pragma once

#include <string>
#include <string_view>

#include "platform/Registry.h"

namespace corvelle {

/// What the user has chosen in the system's settings to open the addresses of one kind.
struct UserChoice {
  /// False where the user has chosen nothing; then the system's classes alone decide.
  bool Made = false;
  /// The program's path; empty when what is chosen is not started by a command, as packaged
  /// programs are not.
  std::string Program;

  friend bool operator==(const UserChoice&, const UserChoice&) = default;
};

/// The choice for a protocol: "http", "mailto"...
[[nodiscard]] UserChoice UserChoiceFor(const Registry& keys, std::string_view protocol);

/// The program's path in the command with which it is registered: without the arguments that follow
/// ".exe", and without quotes.
[[nodiscard]] std::string ProgramOfCommand(std::string_view command);

}  // namespace corvelle
