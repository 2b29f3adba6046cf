#pragma once

#include "core/CommandPorts.h"
#include "core/LaunchParts.h"
#include "launch/BuiltInKeys.h"

namespace corvelle {

class FileSystem;
class KeySynthesis;
class ShellFiles;
class ShellLinks;
struct ProgramPaths;

/// What the words of the program work with. All of it outlives them.
struct BuiltInParts {
  FileSystem& Files;
  ShellFiles& FileOps;
  ShellLinks& Links;
  KeySynthesis& Keyboard;
  const ProgramPaths& Paths;
  const LaunchParts& Launch;
};

/// The entries that are words of the program.
class BuiltInCommands final : public BuiltInCommandsPort {
 public:
  explicit BuiltInCommands(const BuiltInParts& with) : with_(with) {}

  /// Loads the search window; does nothing in a program that has none.
  void ShowNetSearch() override;
  // These three press keys that the shell acts on, if it knows them.
  void FindComputer() override { Press(ShellKeys::FindComputer); }
  void MinimizeAllWindows() override { Press(ShellKeys::MinimizeAllWindows); }
  void UndoMinimizeAll() override { Press(ShellKeys::UndoMinimizeAll); }
  /// Opens the system's search for files.
  void FileFind() override;
  /// Moves what the user's folder of recent documents holds into the Recycle Bin. A failure is
  /// told.
  void ClearRecentDocs() override;
  void ClearTempFolder() override;

 private:
  void Press(ShellKeys keys);

  BuiltInParts with_;
};

}  // namespace corvelle
