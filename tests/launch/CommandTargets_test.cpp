#include "launch/CommandTargets.h"

#include <gtest/gtest.h>

namespace corvelle {
namespace {

TEST(Targets, ArePathsOfTheDiskOnly) {
  using Paths = std::vector<std::string>;
  struct Row {
    const char* command;
    Paths expected;
  };
  const Row rows[] = {
      {"", {}},
      {"notepad.exe", {}},
      {"http://www.example.org", {}},
      {"mailto:someone@example.org", {}},
      {"CSIDL_DRIVES", {}},
      {"C:\\Tools\\tool.exe", {"C:\\Tools\\tool.exe", "C:\\Tools\\tool.exe.exe"}},
      {"  C:\\a.lnk ", {"C:\\a.lnk", "C:\\a.lnk.exe"}},
      {"C:\\a b c", {"C:\\a b c", "C:\\a b c.exe", "C:\\a", "C:\\a.exe", "C:\\a b", "C:\\a b.exe"}},
      {"\"C:\\a b\" /x", {"C:\\a b", "C:\\a b.exe"}},
      {"\"tool\" /x", {}},
      {"C:\\Tools\\*.exe /SU", {"C:\\Tools\\"}},
      {"\\\\server\\share\\x.doc", {"\\\\server\\share\\x.doc", "\\\\server\\share\\x.doc.exe"}},
      {"?C:\\x", {"C:\\x", "C:\\x.exe"}},
  };
  for (const Row& row : rows) EXPECT_EQ(TargetsOf(row.command), row.expected) << row.command;
}

TEST(Targets, TheDriveOrTheServerIsWhatTheAnswerDependsOn) {
  EXPECT_EQ(DriveOf("c:\\Tools\\a.exe"), "C:");
  EXPECT_EQ(DriveOf("C:\\"), "C:");
  EXPECT_EQ(DriveOf("\\\\server\\share\\x"), "\\\\SERVER");
  EXPECT_EQ(DriveOf("\\\\server"), "\\\\SERVER");
}

}  // namespace
}  // namespace corvelle
