#include "launch/BuiltInCommands.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "base/Text.h"
#include "core/Program.h"
#include "launch/BuiltInTempFiles.h"
#include "launch/FileSearch.h"
#include "platform/FileSystem.h"
#include "platform/KeySynthesis.h"
#include "platform/ShellFiles.h"
#include "platform/ShellLinks.h"

namespace corvelle {

namespace {

namespace msgbox = forms::msgbox;

constexpr int kRecentFolder = 8;  // CSIDL_RECENT
constexpr std::string_view kAllFiles = "*.*";
constexpr std::string_view kFolderLook = "desktop.ini";
constexpr std::string_view kFailureText =
    "An error occured while trying to clear the Recent Documents Folder.";

/// With its trailing backslash; nothing when the shell does not tell. Never an empty path, whose
/// files would be those of the drive.
std::optional<std::string> RecentFolder(Program& program) {
  ShellLinks& shell = program.Services.Links;
  const auto item = shell.SpecialFolderLocation(program.Ports.ToolbarWindow(), kRecentFolder);
  if (!item) return std::nullopt;
  const auto path = shell.PathFromIDList(*item);
  if (!path || StripAtNull(*path).empty()) return std::nullopt;
  return EnsureBackslash(*path);
}

/// True if there is a file besides the shell's own, which tells how the folder looks.
bool HoldsFile(const std::vector<FileEntry>& entries) {
  return std::any_of(entries.begin(), entries.end(), [](const FileEntry& entry) {
    return !entry.IsFolder && !EqualNoCase(entry.Name, kFolderLook);
  });
}

/// False when the files, or some of them, stay.
bool ClearRecentFolder(Program& program) {
  const auto folder = RecentFolder(program);
  if (!folder) return false;
  const auto entries = program.Services.Files.List(*folder, kAllFiles);
  // A folder that does not exist is as clear as an empty one.
  if (!entries) return entries.Error() == FileError::NotFound;
  if (!HoldsFile(*entries)) return true;
  const FileOperation operation{.Owner = program.Ports.ToolbarWindow(),
                                .Function = fileop::Delete,
                                .From = *folder + std::string(kAllFiles),
                                .Flags = fileop::AllowUndo | fileop::FilesOnly};
  return program.Services.FileOps.ShFileOperation(operation) == 0;
}

}  // namespace

void BuiltInCommands::ShowNetSearch() {
  if (program_.Ports.NetSearch != nullptr) program_.Ports.NetSearch->LoadWindow();
}

void BuiltInCommands::ClearRecentDocs() {
  if (ClearRecentFolder(program_)) return;
  program_.Messages.Say(program_.Ports.ToolbarWindow(), kFailureText,
                        msgbox::IconStop | msgbox::OnTop);
}

void BuiltInCommands::FileFind() { OpenFileSearch(program_.Launch); }

void BuiltInCommands::ClearTempFolder() { corvelle::ClearTempFolder(program_); }

void BuiltInCommands::Press(ShellKeys keys) {
  for (const KeyStroke& stroke : KeySequence(keys))
    program_.Services.Keyboard.KeybdEvent(stroke.VirtualKey, stroke.Flags);
}

}  // namespace corvelle
