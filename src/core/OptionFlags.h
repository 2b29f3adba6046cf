#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "platform/FileSystem.h"

namespace corvelle {

/// The options: 32 characters, each '0' or '1', addressed by positions from 1 to 32.
class OptionFlags {
 public:
  static constexpr int kLength = 32;

  /// All '0'.
  OptionFlags();

  /// From stored bytes: whatever is not '1' becomes '0', and so does what is missing.
  [[nodiscard]] static OptionFlags Clean(std::string_view bytes);

  /// The character at a position; '0' outside of 1 to 32.
  [[nodiscard]] char At(int position) const noexcept;
  [[nodiscard]] bool Is(int position) const noexcept { return At(position) == '1'; }

  /// Replaces one character; anything but '1' counts as '0'. Outside of 1 to 32 nothing happens.
  void Set(int position, char value) noexcept;
  void Set(int position, bool value) noexcept { Set(position, value ? '1' : '0'); }
  void Flip(int position) noexcept { Set(position, !Is(position)); }

  /// The 32 characters as they are stored.
  [[nodiscard]] std::string Text() const;

  friend bool operator==(const OptionFlags&, const OptionFlags&) = default;

 private:
  std::array<char, kLength> flags_;
};

inline constexpr std::string_view kOptionFlagsFileName = "tmenu425.dat";

/// Writes the flags into the program's folder (with its trailing backslash). After a failure the
/// file is what it was.
[[nodiscard]] FileStatus SaveOptionFlags(FileSystem& files, std::string_view appPath,
                                         const OptionFlags& flags);

/// The flags that the upgrade step leaves, whatever they were.
[[nodiscard]] OptionFlags FlagsAfterUpgrade();

/// Lets all tips show again.
void ResetHelpTips(OptionFlags& flags) noexcept;

/// What the flags and the strip tell each other about its place on the screen.
struct EdgePlacement {
  bool AppBarRequested = false;
  bool ToolbarVertical = false;
  std::string ToolbarEdge = "TOP";

  friend bool operator==(const EdgePlacement&, const EdgePlacement&) = default;
};

/// The two-character code of an edge; "00" for a text that is no edge.
[[nodiscard]] std::string EdgeCode(std::string_view toolbarEdge);

/// Sets the placement by a flag ('0': no edge) and an edge code. A code that is none leaves the
/// edge.
void ApplyEdgeCode(char atEdge, std::string_view code, EdgePlacement& placement);

/// Sets the placement by positions 14 to 16.
void ReadEdgeFlags(const OptionFlags& flags, EdgePlacement& placement);

/// Sets position 14 by whether the strip stands at an edge, be it docked or out of it for the
/// moment only, and, if it does, positions 15 and 16 by the edge.
void SaveEdgeFlags(OptionFlags& flags, bool atEdge, std::string_view toolbarEdge);

}  // namespace corvelle
