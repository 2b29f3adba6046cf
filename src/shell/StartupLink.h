#pragma once

#include <string>
#include <string_view>

#include "core/WindowPorts.h"

namespace corvelle {

class Program;

/// The program's entry in the user's Startup folder. When the system tells of no such folder there
/// is no entry and none is made.
class StartupLink final : public StartupLinkPort {
 public:
  explicit StartupLink(Program& program) : program_(program) {}

  bool Exists() override;
  /// Quiet when the file cannot be deleted.
  void Remove() override;
  /// Quiet when the file cannot be written.
  void Create(std::string_view executable) override;

 private:
  Program& program_;
};

/// Where the entry is or would be; empty without a Startup folder.
[[nodiscard]] std::string StartupLinkPath(Program& program);

/// The user's wish from the Options menu: makes the entry, or takes it away, and says what came of
/// it.
void SetAsStartupProgram(Program& program);
void RemoveFromStartup(Program& program);

}  // namespace corvelle
