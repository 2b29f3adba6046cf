#include "sim/SimFiles.h"

#include <gtest/gtest.h>

#include "sim/SimPaths.h"

namespace corvelle::sim {
namespace {

using Strings = std::vector<std::string>;

TEST(SimPaths, ResolvePathsAsWindowsDoes) {
  struct Row {
    const char* name;
    const char* path;
    const char* expected;
  };
  const Row rows[] = {
      {"plain", "C:\\a\\b.txt", "C:\\a\\b.txt"},
      {"small drive letter", "c:\\a", "C:\\a"},
      {"slashes", "C:/a/b", "C:\\a\\b"},
      {"doubled backslash", "C:\\a\\\\b", "C:\\a\\b"},
      {"point", "C:\\a\\.\\b", "C:\\a\\b"},
      {"two points", "C:\\a\\..\\b", "C:\\b"},
      {"two points above the root", "C:\\..\\..\\b", "C:\\b"},
      {"points at the end fall away", "C:\\a...", "C:\\a"},
      {"blanks at the end fall away", "C:\\a  ", "C:\\a"},
      {"trailing backslash", "C:\\a\\", "C:\\a"},
      {"root", "D:\\", "D:\\"},
      {"relative", "x.txt", "C:\\Here\\x.txt"},
      {"from the root", "\\x.txt", "C:\\x.txt"},
  };
  for (const Row& row : rows) {
    const ParsedPath parsed = ParsePath(row.path, "C:\\Here\\");
    EXPECT_EQ(parsed.Fault, PathFault::None) << row.name;
    EXPECT_EQ(FormatPath(parsed.Path), row.expected) << row.name;
  }
}

TEST(SimPaths, RefuseWhatWindowsRefuses) {
  struct Row {
    const char* name;
    std::string path;
    PathFault fault;
  };
  const Row rows[] = {
      {"star", "C:\\a*b", PathFault::BadName},
      {"question mark", "C:\\a?b", PathFault::BadName},
      {"colon", "C:\\a:b", PathFault::BadName},
      {"control character", "C:\\a\tb", PathFault::BadName},
      {"NUL byte", std::string("C:\\a\0b", 6), PathFault::BadName},
      {"device", "C:\\x\\CON", PathFault::BadName},
      {"device with extension", "C:\\x\\nul.txt", PathFault::BadName},
      {"serial port", "C:\\com1", PathFault::BadName},
      {"longest path", "C:\\" + std::string(200, 'a') + "\\" + std::string(55, 'b'),
       PathFault::None},
      {"one longer", "C:\\" + std::string(200, 'a') + "\\" + std::string(56, 'b'),
       PathFault::BadName},
      {"name that begins like a device", "C:\\console", PathFault::None},
      {"no tenth port", "C:\\com10", PathFault::None},
      {"network", "\\\\server\\share\\x", PathFault::NoDrive},
      {"empty", "", PathFault::NoDrive},
      {"no text", "C:\\a\xFFz", PathFault::BadName},
  };
  for (const Row& row : rows) EXPECT_EQ(ParsePath(row.path, "C:\\").Fault, row.fault) << row.name;
}

TEST(SimFiles, FailsTheCallThatItWasToldToAndNoOther) {
  SimFiles disk;
  disk.Put("C:\\a.txt", "x");
  disk.FailCall(2, FileError::InUse);
  EXPECT_TRUE(disk.FileExists("C:\\a.txt"));
  EXPECT_FALSE(disk.Hit());
  const auto failed = disk.Read("C:\\a.txt", 0, 1);
  ASSERT_FALSE(failed);
  EXPECT_EQ(failed.Error(), FileError::InUse);
  EXPECT_TRUE(disk.Hit());
  EXPECT_TRUE(disk.Read("C:\\a.txt", 0, 1));
}

TEST(SimFiles, FailsAllCallsAfterAnEnd) {
  SimFiles disk;
  disk.Put("C:\\a.txt", "x");
  disk.FailFrom(2);
  EXPECT_TRUE(disk.Remove("C:\\a.txt"));
  EXPECT_FALSE(disk.Write("C:\\a.txt", "y"));
  EXPECT_FALSE(disk.Write("C:\\a.txt", "y"));
  disk.StopFailing();
  EXPECT_TRUE(disk.Write("C:\\a.txt", "y"));
}

TEST(SimFiles, EveryOperationCanBeMadeToFail) {
  SimFiles disk;
  disk.Put("C:\\a.txt", "x");
  disk.MakeFolders("C:\\folder");
  const auto next = [&]() -> SimFiles& {
    disk.FailCall(1);
    return disk;
  };
  EXPECT_FALSE(next().FileExists("C:\\a.txt"));
  EXPECT_FALSE(next().FolderExists("C:\\folder"));
  EXPECT_FALSE(next().List("C:\\", "*"));
  EXPECT_FALSE(next().Length("C:\\a.txt"));
  EXPECT_FALSE(next().Read("C:\\a.txt", 0, 1));
  EXPECT_FALSE(next().Write("C:\\a.txt", "y"));
  EXPECT_FALSE(next().WriteAt("C:\\a.txt", 0, "y"));
  EXPECT_FALSE(next().Replace("C:\\a.txt", "y"));
  EXPECT_FALSE(next().Remove("C:\\a.txt"));
  EXPECT_FALSE(next().Rename("C:\\a.txt", "C:\\b.txt"));
  EXPECT_FALSE(next().Copy("C:\\a.txt", "C:\\b.txt"));
  EXPECT_FALSE(next().MakeFolder("C:\\other"));
  EXPECT_EQ(next().LongPath("c:\\A.TXT"), "c:\\A.TXT");
  EXPECT_EQ(disk.Get("C:\\a.txt"), "x");
  EXPECT_EQ(disk.Names("C:\\"), (Strings{"a.txt", "folder"}));
}

TEST(SimFiles, AFullDiskTakesAPartAndSaysSo) {
  SimFiles disk;
  disk.Put("C:\\old.txt", "12345");
  disk.FillDisk(4);
  const FileStatus failed = disk.Write("C:\\new.txt", "abcdefgh");
  ASSERT_FALSE(failed);
  EXPECT_EQ(failed.Error(), FileError::DiskFull);
  EXPECT_EQ(disk.Get("C:\\new.txt"), "abcd");
  EXPECT_TRUE(disk.Remove("C:\\old.txt"));
  EXPECT_TRUE(disk.Write("C:\\next.txt", "12345"));
  EXPECT_FALSE(disk.Write("C:\\last.txt", "1"));
  disk.FreeDisk();
  EXPECT_TRUE(disk.Write("C:\\last.txt", "1"));
}

TEST(SimFiles, AFullDiskLeavesAReplacedFileAsItWas) {
  SimFiles disk;
  disk.Put("C:\\a.txt", "12345");
  disk.FillDisk(4);
  EXPECT_FALSE(disk.Replace("C:\\a.txt", "abcde"));
  EXPECT_EQ(disk.Get("C:\\a.txt"), "12345");
  EXPECT_TRUE(disk.Replace("C:\\a.txt", "abcd"));
  EXPECT_EQ(disk.Get("C:\\a.txt"), "abcd");
}

TEST(SimFiles, AWriterThatFailsForWantOfSpaceLeavesHalf) {
  SimFiles disk;
  disk.Put("C:\\a.txt", "0123456789");
  disk.FailCall(1, FileError::DiskFull);
  EXPECT_FALSE(disk.Write("C:\\a.txt", "abcdef"));
  EXPECT_EQ(disk.Get("C:\\a.txt"), "abc");
  disk.FailCall(1, FileError::DiskFull);
  EXPECT_FALSE(disk.WriteAt("C:\\a.txt", 2, "WXYZ"));
  EXPECT_EQ(disk.Get("C:\\a.txt"), "abWX");
}

TEST(SimFiles, AFileHeldForReadingCanBeReadOnly) {
  SimFiles disk;
  disk.Put("C:\\Folder\\a.txt", "x");
  disk.HoldOpen("C:\\folder\\A.TXT", SimFiles::Hold::ForReading);
  EXPECT_TRUE(disk.Read("C:\\Folder\\a.txt", 0, 1));
  EXPECT_FALSE(disk.Write("C:\\Folder\\a.txt", "y"));
  EXPECT_FALSE(disk.Remove("C:\\Folder\\a.txt"));
  EXPECT_FALSE(disk.Rename("C:\\Folder", "C:\\Other"));
  disk.LetGo("C:\\Folder\\a.txt");
  EXPECT_TRUE(disk.Rename("C:\\Folder", "C:\\Other"));
}

TEST(SimFiles, InAProtectedFolderNothingChanges) {
  SimFiles disk;
  disk.Put("C:\\Folder\\a.txt", "x");
  disk.Put("C:\\b.txt", "y");
  disk.Protect("C:\\Folder");
  const std::string file = "C:\\Folder\\a.txt";
  EXPECT_TRUE(disk.Read(file, 0, 1));
  const auto denied = [](const FileStatus& status) {
    return !status && status.Error() == FileError::AccessDenied;
  };
  EXPECT_TRUE(denied(disk.Write(file, "z")));
  EXPECT_TRUE(denied(disk.Replace("C:\\Folder\\new.txt", "z")));
  EXPECT_TRUE(denied(disk.Remove(file)));
  EXPECT_TRUE(denied(disk.Rename(file, "C:\\c.txt")));
  EXPECT_TRUE(denied(disk.Rename("C:\\b.txt", "C:\\Folder\\b.txt")));
  EXPECT_TRUE(denied(disk.Copy("C:\\b.txt", "C:\\Folder\\b.txt")));
  EXPECT_TRUE(denied(disk.MakeFolder("C:\\Folder\\deeper")));
  disk.Protect("C:\\Folder", false);
  EXPECT_TRUE(disk.Remove(file));
}

TEST(SimFiles, ANameCanChangeItsCaseAlone) {
  SimFiles disk;
  disk.Put("C:\\name.txt", "x");
  ASSERT_TRUE(disk.Rename("C:\\name.txt", "C:\\NAME.TXT"));
  EXPECT_EQ(disk.Names("C:\\"), Strings{"NAME.TXT"});
}

TEST(SimFiles, AttributesGoWithTheFile) {
  SimFiles disk;
  disk.Put("C:\\Folder\\a.txt", "x");
  disk.SetReadOnly("C:\\Folder\\a.txt", true);
  EXPECT_TRUE(disk.Rename("C:\\Folder", "C:\\Other"));
  EXPECT_FALSE(disk.Remove("C:\\Other\\a.txt"));
  disk.Vanish("C:\\Other");
  disk.Put("C:\\Other\\a.txt", "y");
  EXPECT_TRUE(disk.Remove("C:\\Other\\a.txt"));
}

TEST(SimFiles, DrivesAreApart) {
  SimFiles disk;
  disk.AddDrive('D');
  disk.Put("D:\\a.txt", "x");
  EXPECT_FALSE(disk.FileExists("C:\\a.txt"));
  EXPECT_FALSE(disk.Rename("D:\\a.txt", "C:\\a.txt"));
  EXPECT_FALSE(disk.FolderExists("E:\\"));
  EXPECT_FALSE(disk.Write("E:\\a.txt", "x"));
}

TEST(SimFiles, LogsEachOperationInItsOrder) {
  SimFiles disk;
  disk.Put("C:\\a.txt", "x");
  EXPECT_TRUE(disk.Read("C:\\a.txt", 0, 1));
  EXPECT_TRUE(disk.Rename("C:\\a.txt", "C:\\b.txt"));
  const std::vector<SimFiles::Call> expected = {{"Read", "C:\\a.txt", ""},
                                                {"Rename", "C:\\a.txt", "C:\\b.txt"}};
  EXPECT_EQ(disk.Log(), expected);
  EXPECT_EQ(disk.Reads(), 1);
  disk.ClearLog();
  EXPECT_EQ(disk.Reads(), 0);
}

}  // namespace
}  // namespace corvelle::sim
