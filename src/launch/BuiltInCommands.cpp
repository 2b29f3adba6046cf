#include "launch/BuiltInCommands.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "base/Text.h"
#include "core/MessageBoxes.h"
#include "core/WindowPorts.h"
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
std::optional<std::string> RecentFolder(const BuiltInParts& with) {
  ShellLinks& shell = with.Links;
  const auto item = shell.SpecialFolderLocation(with.Launch.Ports.ToolbarWindow(), kRecentFolder);
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
bool ClearRecentFolder(const BuiltInParts& with) {
  const auto folder = RecentFolder(with);
  if (!folder) return false;
  const auto entries = with.Files.List(*folder, kAllFiles);
  // A folder that does not exist is as clear as an empty one.
  if (!entries) return entries.Error() == FileError::NotFound;
  if (!HoldsFile(*entries)) return true;
  const FileOperation operation{.Owner = with.Launch.Ports.ToolbarWindow(),
                                .Function = fileop::Delete,
                                .From = *folder + std::string(kAllFiles),
                                .Flags = fileop::AllowUndo | fileop::FilesOnly};
  return with.FileOps.ShFileOperation(operation) == 0;
}

}  // namespace

void BuiltInCommands::ShowNetSearch() {
  if (with_.Launch.Ports.NetSearch != nullptr) with_.Launch.Ports.NetSearch->LoadWindow();
}

void BuiltInCommands::ClearRecentDocs() {
  if (ClearRecentFolder(with_)) return;
  with_.Launch.Messages.Say(with_.Launch.Ports.ToolbarWindow(), kFailureText,
                            msgbox::IconStop | msgbox::OnTop);
}

void BuiltInCommands::FileFind() { OpenFileSearch(with_.Launch); }

void BuiltInCommands::ClearTempFolder() {
  corvelle::ClearTempFolder({.Files = with_.Files,
                             .FileOps = with_.FileOps,
                             .Paths = with_.Paths,
                             .Launch = with_.Launch});
}

void BuiltInCommands::Press(ShellKeys keys) {
  for (const KeyStroke& stroke : KeySequence(keys))
    with_.Keyboard.KeybdEvent(stroke.VirtualKey, stroke.Flags);
}

}  // namespace corvelle
