#include "about/InfoPages.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace corvelle {

namespace {

constexpr std::uint64_t kMB = 1'000'000;
constexpr std::uint64_t kGB = 1000 * kMB;

DriveFacts Disk(std::uint64_t total, std::uint64_t free) {
  return {.Type = 3, .Label = "Disk", .FileSystem = "NTFS", .Room = DriveRoom{total, free}};
}

SystemFacts Machine() {
  return {.Version = WindowsVersion{2, 10, 0, 22631},
          .Processor = {8664, 9},
          .PhysicalMemory = 17'179'869'184,
          .Drives = {"C:\\", "D:\\"},
          .WindowsFolder = "C:\\Windows",
          .TempFolder = "C:\\Temp\\"};
}

/// The value of a line, by its number from 0; "no line" past the end.
std::string ValueAt(const InfoPage& page, std::size_t line) {
  return line < page.size() ? page[line].Value : "no line";
}

}  // namespace

TEST(DriveInfo, HasItsCaptionsToTheLetter) {
  const InfoPage expected = {
      {"  Total Size         ", "512.00 GB"}, {"  Used Space         ", "384.00 GB"},
      {"  Free Space         ", "128.00 GB"}, {"  Drive Type             ", "Local Disk"},
      {"  Volume Label           ", "Disk"},  {"  File System            ", "NTFS"},
  };
  EXPECT_EQ(DriveInfo(Disk(512 * kGB, 128 * kGB)), expected);
}

TEST(DriveInfo, TheTotalDecidesTheUnitOfAllThreeSizes) {
  struct Row {
    const char* name;
    std::uint64_t total, free;
    std::string sizes[3];
  };
  const Row rows[] = {
      {"nothing", 0, 0, {"0.00 MB", "0.00 MB", "0.00 MB"}},
      {"a floppy", 1'457'664, 700'000, {"1.46 MB", "0.76 MB", "0.70 MB"}},
      {"999 MB", 999 * kMB, kMB / 2, {"999.00 MB", "998.50 MB", "0.50 MB"}},
      {"one byte below 1000 MB", kGB - 1, 0, {"1000.00 MB", "1000.00 MB", "0.00 MB"}},
      {"1000 MB", kGB, kMB / 2, {"1.00 GB", "1.00 GB", "0.00 GB"}},
      {"1.5 GB", 1500 * kMB, 250 * kMB, {"1.50 GB", "1.25 GB", "0.25 GB"}},
      {"above 2 TB", 8'001'563 * kMB, 4'000'000 * kMB, {"8001.56 GB", "4001.56 GB", "4000.00 GB"}},
      {"more free than there is", 10 * kMB, 20 * kMB, {"10.00 MB", "0.00 MB", "20.00 MB"}},
  };
  for (const Row& row : rows) {
    const InfoPage page = DriveInfo(Disk(row.total, row.free));
    for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(ValueAt(page, i), row.sizes[i]) << row.name;
  }
}

TEST(DriveInfo, NamesEachKindOfDrive) {
  const char* const names[] = {
      "Unknown", "No Root Directory", "Removable", "Local Disk", "Remote Disk",
      "CD-ROM",  "Ram Disk",          "Unknown"};
  for (unsigned type = 0; type < 8; ++type) {
    EXPECT_EQ(ValueAt(DriveInfo({.Type = type}), 3), names[type]);
  }
}

TEST(DriveInfo, ADriveThatIsNotReadyHasBlankValuesButItsKind) {
  const InfoPage page = DriveInfo({.Type = 5});
  for (const std::size_t line : {0U, 1U, 2U, 4U, 5U}) EXPECT_EQ(ValueAt(page, line), "");
  EXPECT_EQ(ValueAt(page, 3), "CD-ROM");
  EXPECT_EQ(page.size(), 6U);
}

TEST(DriveInfo, WhileADriveIsAskedAllItsLinesAreBlank) {
  const InfoPage page = EmptyDriveInfo();
  const InfoPage full = DriveInfo(Disk(kGB, 0));
  ASSERT_EQ(page.size(), full.size());
  for (std::size_t i = 0; i < page.size(); ++i) {
    EXPECT_EQ(page[i].Caption, full[i].Caption);
    EXPECT_EQ(page[i].Value, "");
  }
}

TEST(DriveInfo, TextsEndAtTheirNul) {
  DriveFacts drive = Disk(kGB, 0);
  drive.Label = std::string("Di\0sk", 5);
  drive.FileSystem = std::string("FAT\0\0", 5);
  EXPECT_EQ(ValueAt(DriveInfo(drive), 4), "Di");
  EXPECT_EQ(ValueAt(DriveInfo(drive), 5), "FAT");
}

TEST(DriveRoot, CutsTheDriveAtItsColon) {
  struct Row {
    const char* drive;
    const char* expected;
  };
  const Row rows[] = {{"c:", "c:\\"}, {"C: [SYSTEM]", "C:\\"}, {"d", "d:\\"}, {"", ""}, {":", ""}};
  for (const Row& row : rows) EXPECT_EQ(DriveRoot(row.drive), row.expected) << row.drive;
}

TEST(SystemPage, HasItsCaptionsToTheLetter) {
  const InfoPage expected = {
      {"  Operating System        ", "Windows NT "},
      {"  Windows Version     ", "10.0 (Build 22631)"},
      {"  CPU Type        ", "x64 (64-bit)"},
      {"  Total Physical Memory", "16,777,216 KB"},
      {"  Available Logical Drives", "C: D:"},
      {"  Windows Directory   ", "C:\\Windows"},
      {"  Temp Directory      ", "C:\\Temp"},
  };
  EXPECT_EQ(SystemPage(Machine()), expected);
}

TEST(SystemPage, TheNameInTheRegistryComesBeforeThatOfThePlatform) {
  SystemFacts machine = Machine();
  machine.VersionName = "Windows 98";
  EXPECT_EQ(ValueAt(SystemPage(machine), 0), "Windows 98");
}

TEST(SystemPage, NamesEachPlatform) {
  const char* const names[] = {"Windows 32s ", "Windows 95 ", "Windows NT ", "Microsoft Windows"};
  for (unsigned platform = 0; platform < 4; ++platform) {
    SystemFacts machine = Machine();
    machine.Version = WindowsVersion{platform, 4, 10, 1998};
    EXPECT_EQ(ValueAt(SystemPage(machine), 0), names[platform]);
    EXPECT_EQ(ValueAt(SystemPage(machine), 1), "4.10 (Build 1998)");
  }
}

TEST(SystemPage, NamesEachProcessor) {
  struct Row {
    ProcessorFacts processor;
    const char* expected;
  };
  const Row rows[] = {
      {{386, 0}, "Intel 386"},         {{486, 0}, "Intel 486"},
      {{586, 0}, "Intel Pentium"},     {{4000, 1}, "MIPS R4000"},
      {{21064, 2}, "DEC Alpha 21064"}, {{2200, 6}, "Intel Itanium (64-bit)"},
      {{8664, 9}, "x64 (64-bit)"},     {{0, 9}, "x64 (64-bit)"},
      {{0, 12}, "ARM64 (64-bit)"},     {{0, 5}, "ARM"},
      {{0, 0}, "(Unknown)"},           {{7, 99}, "(Unknown)"},
  };
  for (const Row& row : rows) {
    SystemFacts machine = Machine();
    machine.Processor = row.processor;
    EXPECT_EQ(ValueAt(SystemPage(machine), 2), row.expected);
  }
}

TEST(SystemPage, CountsMemoryInGroupsOfThreeDigits) {
  struct Row {
    std::uint64_t bytes;
    const char* expected;
  };
  const Row rows[] = {
      {0, " KB"},
      {1023, " KB"},
      {1024, "1 KB"},
      {999 * 1024, "999 KB"},
      {1000 * 1024, "1,000 KB"},
      {6'442'450'944, "6,291,456 KB"},
      {2'199'023'255'552, "2,147,483,648 KB"},
  };
  for (const Row& row : rows) {
    SystemFacts machine = Machine();
    machine.PhysicalMemory = row.bytes;
    EXPECT_EQ(ValueAt(SystemPage(machine), 3), row.expected);
  }
}

TEST(SystemPage, AfterAFailureItShowsWhatWasReadUntilThen) {
  struct Row {
    const char* name;
    void (*fail)(SystemFacts&);
    std::size_t lines;  // above the failure
  };
  const Row rows[] = {
      {"version", [](SystemFacts& m) { m.Version.reset(); }, 0},
      {"memory", [](SystemFacts& m) { m.PhysicalMemory.reset(); }, 3},
      {"drives", [](SystemFacts& m) { m.Drives.clear(); }, 4},
      {"folder of Windows", [](SystemFacts& m) { m.WindowsFolder.clear(); }, 5},
      {"temporary folder", [](SystemFacts& m) { m.TempFolder.clear(); }, 6},
  };
  const InfoPage whole = SystemPage(Machine());
  for (const Row& row : rows) {
    SystemFacts machine = Machine();
    row.fail(machine);
    InfoPage expected(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(row.lines));
    expected.push_back({"", "Error getting system Info"});
    EXPECT_EQ(SystemPage(machine), expected) << row.name;
  }
}

TEST(PageText, IsTheLinesAsTheyAreReadOut) {
  EXPECT_EQ(PageText({}), "");
  EXPECT_EQ(PageText({{"  A  ", "1"}, {"  B", ""}, {"", "Error"}}),
            "  A  :  1\r\n  B:  \r\nError\r\n");
}

}  // namespace corvelle
