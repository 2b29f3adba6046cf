#pragma once

#include <string>
#include <string_view>

#include "core/WindowPorts.h"

namespace corvelle {

class FileSystem;
class MessageBoxes;
class ShellLinks;
class SystemInfo;
struct ProgramPaths;

/// What the entry is made and taken away with. All of it outlives whoever does.
struct StartupLinkParts {
  FileSystem& Files;
  ShellLinks& Links;
  const SystemInfo& System;
  const ProgramPaths& Paths;
  const WindowPorts& Ports;
  MessageBoxes& Messages;
};

/// The program's entry in the user's Startup folder. When the system tells of no such folder there
/// is no entry and none is made.
class StartupLink final : public StartupLinkPort {
 public:
  explicit StartupLink(const StartupLinkParts& with) : with_(with) {}

  bool Exists() override;
  /// Quiet when the file cannot be deleted.
  void Remove() override;
  /// Quiet when the file cannot be written.
  void Create(std::string_view executable) override;

 private:
  StartupLinkParts with_;
};

/// Where the entry is or would be; empty without a Startup folder.
[[nodiscard]] std::string StartupLinkPath(const StartupLinkParts& with);

/// The user's wish from the Options menu: makes the entry, or takes it away, and says what came of
/// it.
void SetAsStartupProgram(const StartupLinkParts& with);
void RemoveFromStartup(const StartupLinkParts& with);

}  // namespace corvelle
