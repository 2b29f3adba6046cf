#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/WindowId.h"

namespace corvelle {

/// The version of Windows.
struct WindowsVersion {
  unsigned Platform = 0;  // 2 is Windows NT and all that came after it
  unsigned Major = 0;
  unsigned Minor = 0;
  unsigned Build = 0;

  friend bool operator==(const WindowsVersion&, const WindowsVersion&) = default;
};

/// The processor as the system names it, also to a program made for another one.
struct ProcessorFacts {
  unsigned Type = 0;          // dwProcessorType of SYSTEM_INFO
  unsigned Architecture = 0;  // wProcessorArchitecture of SYSTEM_INFO

  friend bool operator==(const ProcessorFacts&, const ProcessorFacts&) = default;
};

/// Room on a drive, in bytes.
struct DriveRoom {
  std::uint64_t Total = 0;
  std::uint64_t Free = 0;

  friend bool operator==(const DriveRoom&, const DriveRoom&) = default;
};

/// What the system tells of a drive. A drive that is not ready has its type and no more.
struct DriveFacts {
  unsigned Type = 0;  // as GetDriveType counts: 1 no such drive, 2 removable, 3 fixed...
  std::string Label;
  std::string FileSystem;
  std::optional<DriveRoom> Room;

  friend bool operator==(const DriveFacts&, const DriveFacts&) = default;
};

/// Facts about the machine, this process and the session.
class SystemInfo {
 public:
  virtual ~SystemInfo() = default;

  /// Folder of the running executable.
  [[nodiscard]] virtual std::string ApplicationFolder() const = 0;
  [[nodiscard]] virtual std::string CurrentFolder() const = 0;
  /// The folder of Windows, and that of its system files; empty when the system does not tell.
  [[nodiscard]] virtual std::string WindowsFolder() const = 0;
  [[nodiscard]] virtual std::string SystemFolder() const = 0;

  /// The folder for temporary files; empty when the system does not tell.
  [[nodiscard]] virtual std::string TempFolder() const = 0;

  /// The true version, whatever the program was made for; nothing when the system does not tell.
  [[nodiscard]] virtual std::optional<WindowsVersion> Version() const = 0;
  [[nodiscard]] virtual ProcessorFacts Processor() const = 0;
  /// Bytes of memory that the system has; nothing when it does not tell.
  [[nodiscard]] virtual std::optional<std::uint64_t> PhysicalMemory() const = 0;
  /// The roots of all drives ("C:\\"), ready or not; empty when the system does not tell.
  [[nodiscard]] virtual std::vector<std::string> LogicalDrives() const = 0;
  /// May take long for a drive that is not ready or lies in the network: ask for it by
  /// LookupKind::Drive. Never shows a box of the system's.
  [[nodiscard]] virtual DriveFacts FactsOfDrive(const std::string& root) const = 0;

  /// True for a disk of this machine that is spinning: neither removable nor in the network nor at
  /// rest. Asking does not wake a disk. May take long as well: LookupKind::DriveAtHand.
  [[nodiscard]] virtual bool IsDriveAtHand(const std::string& root) const = 0;

  /// Claims the session for this process at the first call, and each later one gives the process
  /// that had it before a moment to end. True while that other process of this program runs.
  [[nodiscard]] virtual bool AnotherInstanceRuns() = 0;

  /// Height of a window's caption (SM_CYCAPTION) and width of its buttons (SM_CXSIZE), in pixels of
  /// a window with this many dots of an inch; 0 when the system does not tell.
  [[nodiscard]] virtual int CaptionHeight(int dpi) const = 0;
  [[nodiscard]] virtual int CaptionButtonWidth(int dpi) const = 0;

  /// Today's date as the user's settings write it, short and long; empty when the system does not
  /// tell.
  [[nodiscard]] virtual std::string ShortDate() const = 0;
  [[nodiscard]] virtual std::string LongDate() const = 0;
  /// The time of day in hours and minutes of two digits each, with the user's word for before or
  /// after noon; without such a word the hours go to 23. Empty when the system does not tell.
  [[nodiscard]] virtual std::string TimeOfDay() const = 0;

  /// Bits per pixel of the screen.
  [[nodiscard]] virtual int ColourDepth() const = 0;

  /// Opens a topic of a help file for `window` (none: the desktop). False when the system has no
  /// viewer for it.
  virtual bool ShowHelpTopic(WindowId window, const std::string& file, int topic) = 0;
};

}  // namespace corvelle
