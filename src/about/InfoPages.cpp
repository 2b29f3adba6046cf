#include "about/InfoPages.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <iterator>
#include <utility>

#include "base/Text.h"

namespace corvelle {

namespace {

constexpr double kMegabyte = 1'000'000;  // decimal, as drives are sold
constexpr double kMegabytesInGigabyte = 1000;
constexpr std::uint64_t kKilobyte = 1024;
constexpr std::string_view kSystemFailure = "Error getting system Info";

constexpr std::string_view kTotalSize = "  Total Size         ";
constexpr std::string_view kUsedSpace = "  Used Space         ";
constexpr std::string_view kFreeSpace = "  Free Space         ";
constexpr std::string_view kDriveType = "  Drive Type             ";
constexpr std::string_view kVolumeLabel = "  Volume Label           ";
constexpr std::string_view kFileSystem = "  File System            ";

constexpr std::string_view kOperatingSystem = "  Operating System        ";
constexpr std::string_view kWindowsVersion = "  Windows Version     ";
constexpr std::string_view kCpuType = "  CPU Type        ";
constexpr std::string_view kPhysicalMemory = "  Total Physical Memory";
constexpr std::string_view kLogicalDrives = "  Available Logical Drives";
constexpr std::string_view kWindowsDirectory = "  Windows Directory   ";
constexpr std::string_view kTempDirectory = "  Temp Directory      ";

constexpr std::string_view kDriveTypes[] = {
    "Unknown", "No Root Directory", "Removable", "Local Disk", "Remote Disk", "CD-ROM", "Ram Disk"};

/// By the type, whatever the architecture.
constexpr std::pair<unsigned, std::string_view> kProcessorTypes[] = {
    {386, "Intel 386"},     {486, "Intel 486"},         {586, "Intel Pentium"},
    {4000, "MIPS R4000"},   {21064, "DEC Alpha 21064"}, {2200, "Intel Itanium (64-bit)"},
    {8664, "x64 (64-bit)"},
};

/// Processors that have no type of their own are known by their architecture.
constexpr std::pair<unsigned, std::string_view> kArchitectures[] = {
    {5, "ARM"},
    {9, "x64 (64-bit)"},
    {12, "ARM64 (64-bit)"},
};

template <std::size_t N>
std::string_view NameIn(const std::pair<unsigned, std::string_view> (&names)[N], unsigned number) {
  const auto* const found = std::find_if(std::begin(names), std::end(names),
                                         [number](const auto& row) { return row.first == number; });
  return found != std::end(names) ? found->second : std::string_view();
}

std::string ProcessorText(const ProcessorFacts& processor) {
  std::string_view name = NameIn(kProcessorTypes, processor.Type);
  if (name.empty()) name = NameIn(kArchitectures, processor.Architecture);
  return std::string(name.empty() ? "(Unknown)" : name);
}

/// "##0.#0": two digits behind the point, rounded to the nearer value.
std::string TwoDigits(double value) {
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "%.2f", std::floor(value * 100 + 0.5) / 100);
  return text.data();
}

/// "###,###,###": no digit for 0.
std::string Grouped(std::uint64_t value) {
  std::string text = value == 0 ? std::string() : std::to_string(value);
  for (std::size_t at = text.size(); at > 3;) {
    at -= 3;
    text.insert(at, ",");
  }
  return text;
}

InfoLine Line(std::string_view caption, std::string value) {
  return {std::string(caption), std::move(value)};
}

std::string DriveTypeText(unsigned type) {
  return std::string(type < std::size(kDriveTypes) ? kDriveTypes[type] : kDriveTypes[0]);
}

std::string PlatformText(unsigned platform) {
  switch (platform) {
    case 0:
      return "Windows 32s ";
    case 1:
      return "Windows 95 ";
    case 2:
      return "Windows NT ";
    default:
      return "Microsoft Windows";
  }
}

std::string VersionLine(const WindowsVersion& version) {
  return std::to_string(version.Major) + "." + std::to_string(version.Minor) + " (Build " +
         std::to_string(version.Build) + ")";
}

std::string DrivesText(const std::vector<std::string>& roots) {
  std::string text;
  for (const std::string& root : roots) {
    if (!text.empty()) text += ' ';
    text += DropBackslash(root);
  }
  return text;
}

InfoPage DrivePage(const std::array<std::string, 3>& sizes, std::string type, std::string label,
                   std::string fileSystem) {
  return {Line(kTotalSize, sizes[0]),           Line(kUsedSpace, sizes[1]),
          Line(kFreeSpace, sizes[2]),           Line(kDriveType, std::move(type)),
          Line(kVolumeLabel, std::move(label)), Line(kFileSystem, std::move(fileSystem))};
}

/// Total, used and free. The total decides the unit of all three.
std::array<std::string, 3> SizeTexts(const DriveRoom& room) {
  const std::uint64_t used = room.Total - std::min(room.Free, room.Total);
  const bool large = static_cast<double>(room.Total) / kMegabyte >= kMegabytesInGigabyte;
  const auto text = [large](std::uint64_t bytes) {
    const double megabytes = static_cast<double>(bytes) / kMegabyte;
    return large ? TwoDigits(megabytes / kMegabytesInGigabyte) + " GB"
                 : TwoDigits(megabytes) + " MB";
  };
  return {text(room.Total), text(used), text(room.Free)};
}

}  // namespace

std::string DriveRoot(std::string_view drive) {
  const std::string letter = Trim(drive.substr(0, drive.find(':')));
  return letter.empty() ? std::string() : letter + ":\\";
}

InfoPage EmptyDriveInfo() { return DrivePage({}, {}, {}, {}); }

InfoPage DriveInfo(const DriveFacts& drive) {
  return DrivePage(drive.Room ? SizeTexts(*drive.Room) : std::array<std::string, 3>(),
                   DriveTypeText(drive.Type), StripAtNull(drive.Label),
                   StripAtNull(drive.FileSystem));
}

InfoPage SystemPage(const SystemFacts& machine) {
  InfoPage page;
  const auto failed = [&page] {
    page.push_back({{}, std::string(kSystemFailure)});
    return page;
  };
  if (!machine.Version) return failed();
  page.push_back(Line(kOperatingSystem,
                      machine.VersionName.value_or(PlatformText(machine.Version->Platform))));
  page.push_back(Line(kWindowsVersion, VersionLine(*machine.Version)));
  page.push_back(Line(kCpuType, ProcessorText(machine.Processor)));
  if (!machine.PhysicalMemory) return failed();
  page.push_back(Line(kPhysicalMemory, Grouped(*machine.PhysicalMemory / kKilobyte) + " KB"));
  if (machine.Drives.empty()) return failed();
  page.push_back(Line(kLogicalDrives, DrivesText(machine.Drives)));
  if (machine.WindowsFolder.empty()) return failed();
  page.push_back(Line(kWindowsDirectory, DropBackslash(machine.WindowsFolder)));
  if (machine.TempFolder.empty()) return failed();
  page.push_back(Line(kTempDirectory, DropBackslash(machine.TempFolder)));
  return page;
}

std::string PageText(const InfoPage& page) {
  std::string text;
  for (const InfoLine& line : page) {
    if (!line.Caption.empty()) text += line.Caption + std::string(kInfoColon);
    text += line.Value + "\r\n";
  }
  return text;
}

}  // namespace corvelle
