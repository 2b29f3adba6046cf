#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/SystemInfo.h"

namespace corvelle {

/// One line of a page: a caption padded with blanks, then a value. A line without a caption is the
/// value alone.
struct InfoLine {
  std::string Caption;
  std::string Value;

  friend bool operator==(const InfoLine&, const InfoLine&) = default;
};

using InfoPage = std::vector<InfoLine>;

/// What stands between a caption and its value.
inline constexpr std::string_view kInfoColon = ":  ";

/// The root of a drive of the drive list: "c: [DISK]" gives "c:\"; empty without a letter.
[[nodiscard]] std::string DriveRoot(std::string_view drive);

/// The page of a drive. The kind of the drive is always told; what else could not be read is blank.
[[nodiscard]] InfoPage DriveInfo(const DriveFacts& drive);
/// The same lines with no value yet.
[[nodiscard]] InfoPage EmptyDriveInfo();

/// What the page of the system is made of; a part is absent when it could not be read.
struct SystemFacts {
  std::optional<std::string> VersionName;  // as the registry has it
  std::optional<WindowsVersion> Version;
  ProcessorFacts Processor;
  std::optional<std::uint64_t> PhysicalMemory;  // bytes
  std::vector<std::string> Drives;              // roots; empty: not read
  std::string WindowsFolder;                    // empty: not read
  std::string TempFolder;                       // empty: not read
};

/// The page of the system: the lines that could be made until the first part that is absent, in
/// whose place the failure is told.
[[nodiscard]] InfoPage SystemPage(const SystemFacts& machine);

/// The page as text, a line end after each line, to be given to others.
[[nodiscard]] std::string PageText(const InfoPage& page);

}  // namespace corvelle
