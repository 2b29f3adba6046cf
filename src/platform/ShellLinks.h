#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/WindowId.h"

namespace corvelle {

/// An item of the shell (a file, a folder, or what has no path) as the system names it: bytes that
/// only the system reads. Empty for no item.
struct ItemIdList {
  std::string Bytes;

  [[nodiscard]] bool IsEmpty() const noexcept { return Bytes.empty(); }

  friend bool operator==(const ItemIdList&, const ItemIdList&) = default;
};

/// Where a link takes its icon from.
struct IconLocation {
  std::string File;
  std::int32_t Index = 0;

  friend bool operator==(const IconLocation&, const IconLocation&) = default;
};

/// Resolving renews what the link knows of its target.
inline constexpr unsigned kResolveUpdate = 4;
/// Resolving asks the user nothing; a target that is not there is a failure.
inline constexpr unsigned kResolveQuietly = 1;

/// One link in memory, empty at first, with the system's own operations on it. Each gives false or
/// nothing on failure, and then the link is as it was. A text that is not set is empty.
class ShellLinkObject {
 public:
  virtual ~ShellLinkObject() = default;

  virtual bool SetPath(std::string_view file) = 0;
  virtual bool SetWorkingDirectory(std::string_view folder) = 0;
  virtual bool SetArguments(std::string_view arguments) = 0;
  /// Low byte the virtual key, high byte its shift keys.
  virtual bool SetHotkey(std::uint16_t hotKey) = 0;
  virtual bool SetIconLocation(std::string_view file, std::int32_t index) = 0;
  /// How the target's window shows: 1 normal, 3 maximized, 7 minimized; anything else is normal.
  virtual bool SetShowCmd(std::int32_t showCmd) = 0;
  virtual bool SetIDList(const ItemIdList& item) = 0;

  /// Looks for the target, for no window.
  virtual bool Resolve(unsigned flags) = 0;

  /// Of an item without a path the path is empty, which is no failure.
  [[nodiscard]] virtual std::optional<std::string> GetPath() = 0;
  [[nodiscard]] virtual std::optional<std::string> GetWorkingDirectory() = 0;
  [[nodiscard]] virtual std::optional<std::string> GetArguments() = 0;
  [[nodiscard]] virtual std::optional<std::string> GetDescription() = 0;
  [[nodiscard]] virtual std::optional<std::uint16_t> GetHotkey() = 0;
  [[nodiscard]] virtual std::optional<IconLocation> GetIconLocation() = 0;
  [[nodiscard]] virtual std::optional<ItemIdList> GetIDList() = 0;
  [[nodiscard]] virtual std::optional<std::int32_t> GetShowCmd() = 0;

  /// Reads a link file. False for a missing or damaged one.
  virtual bool Load(std::string_view linkFile) = 0;
  /// Writes the link file, over an old one too. False when it cannot be written.
  virtual bool Save(std::string_view linkFile) = 0;
};

/// Shell links and the special folders of the shell. Every operation is quiet.
class ShellLinks {
 public:
  virtual ~ShellLinks() = default;

  /// A new empty link; null when the system makes none.
  [[nodiscard]] virtual std::unique_ptr<ShellLinkObject> CreateLinkObject() = 0;

  /// True for a link file whose content lies in a cloud or an archive, and is fetched by Load.
  [[nodiscard]] virtual bool LiesElsewhere(std::string_view linkFile) = 0;

  /// The item of a special folder by its number (CSIDL_*); nothing when there is no such folder.
  [[nodiscard]] virtual std::optional<ItemIdList> SpecialFolderLocation(WindowId window,
                                                                        int folder) = 0;

  /// The path of an item; nothing when it has none.
  [[nodiscard]] virtual std::optional<std::string> PathFromIDList(const ItemIdList& item) = 0;
};

}  // namespace corvelle
