#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/ShellLinks.h"

namespace corvelle {

/// What a link is made of.
struct ShellLinkFields {
  std::string ExeFile;  // the target
  std::string WorkDir;
  std::string ExeArgs;
  std::string IconFile;
  std::int32_t IconIdx = 0;
  std::int32_t ShowCmd = 0;
  std::uint16_t wHotKey = 0;

  friend bool operator==(const ShellLinkFields&, const ShellLinkFields&) = default;
};

/// What a link file says.
struct ShellLinkInfo {
  ShellLinkFields Fields;
  std::string Description;
  ItemIdList Item;

  friend bool operator==(const ShellLinkInfo&, const ShellLinkInfo&) = default;
};

/// Links of the shell: making, reading, and where the special folders are. Nothing here shows a
/// message; whoever asks says what the user should know.
class cShellLink {
 public:
  explicit cShellLink(ShellLinks& system) : system_(system) {}

  /// The path of a special folder (CSIDL_*); nothing when it has none.
  [[nodiscard]] std::optional<std::string> GetSystemFolderPath(WindowId window, int folder);

  /// Writes a link file. False, with nothing written, when the file's or the target's name is empty
  /// or the target is not there; false too when the file cannot be written.
  bool CreateShellLink(std::string_view LnkFile, const ShellLinkFields& fields);

  /// Writes a link to an item that need not have a path. False on failure.
  bool ShellLinkToObject(std::string_view LnkFile, const ItemIdList& item, std::int32_t ShowCmd);

  /// What a link file says, each text cut at its first NUL and trimmed; nothing for a missing or
  /// damaged one.
  [[nodiscard]] std::optional<ShellLinkInfo> GetShellLinkInfo(std::string_view LnkFile);

 private:
  ShellLinks& system_;
};

}  // namespace corvelle
