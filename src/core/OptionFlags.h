#pragma once

#include <array>
#include <string>
#include <string_view>

#include "base/Edge.h"
#include "core/StripPlacement.h"
#include "platform/FileSystem.h"

namespace corvelle {

/// The options by what "1" means; the value is the position in the stored text, from 1. Positions
/// 17, 20, 28, 30 and 31 have no meaning.
enum class Option {
  FirstRunDone = 1,
  DefaultEntriesOffered = 2,
  AutoHide = 3,
  AboveFullScreen = 4,  // the strip stays on top of full-screen programs
  IconLibraryTipDone = 5,
  OtherFilesTipDone = 6,
  SelectFileTipDone = 7,
  AddFileTipDone = 8,
  NoStartupScreen = 9,
  KeepExtension = 10,   // in the title of a file
  SingleClick = 11,     // activates single buttons
  OwnWebLinkIcon = 12,  // from httpicon.ini
  MayPassRight = 13,    // a floating strip may pass the screen's right side
  AtEdge = 14,          // the strip was at an edge when the program ended
  EdgeCodeFirst = 15,   // which edge: "00" top, "01" bottom, "10" left, "11" right
  EdgeCodeSecond = 16,
  NoWebLinkDialog = 18,
  SystemPopupWithCtrl = 19,  // Ctrl + right click brings the popup of the system, not our own
  ShowDate = 21,
  NoHints = 22,
  NotOnTop = 23,
  SmallSingles = 24,        // single buttons have small icons on a strip with large ones
  LargeInRestoreMode = 25,  // a floating strip has large icons
  LargeIcons = 26,
  MayPassLeft = 27,
  NotOnTopTipDone = 29,
  UpgradeDone = 32,
};

/// The option at a position of the stored text.
[[nodiscard]] constexpr Option OptionAt(int position) noexcept {
  return static_cast<Option>(position);
}
[[nodiscard]] constexpr int PositionOf(Option option) noexcept { return static_cast<int>(option); }

/// The options: 32 characters, each '0' or '1', addressed by positions from 1 to 32.
class OptionFlags {
 public:
  static constexpr int kLength = 32;

  /// All '0'.
  OptionFlags();

  /// From stored bytes: whatever is not '1' becomes '0', and so does what is missing.
  [[nodiscard]] static OptionFlags Clean(std::string_view bytes);

  /// The character at a position; '0' outside of 1 to 32.
  [[nodiscard]] char At(Option option) const noexcept;
  [[nodiscard]] bool Is(Option option) const noexcept { return At(option) == '1'; }

  /// Replaces one character; anything but '1' counts as '0'. Outside of 1 to 32 nothing happens.
  void Set(Option option, char value) noexcept;
  void Set(Option option, bool value) noexcept { Set(option, value ? '1' : '0'); }
  void Flip(Option option) noexcept { Set(option, !Is(option)); }

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

/// The two-character code of an edge.
[[nodiscard]] std::string_view EdgeCode(Edge edge) noexcept;

/// Sets the placement by a flag ('0': no edge) and an edge code. An unknown code leaves the edge as
/// it is.
void ApplyEdgeCode(char atEdge, std::string_view code, EdgePlacement& placement);

/// Sets the placement by Option::AtEdge and the edge code.
void ReadEdgeFlags(const OptionFlags& flags, EdgePlacement& placement);

/// Sets Option::AtEdge by whether the strip is at an edge, be it docked or out of it for the
/// moment only, and, if it is, the edge code by the edge.
void SaveEdgeFlags(OptionFlags& flags, bool atEdge, Edge edge);
void SaveEdgeFlags(OptionFlags& flags, const StripPlacement& strip);

}  // namespace corvelle
