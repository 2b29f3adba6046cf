#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/Text.h"
#include "platform/FileSystem.h"

// What every disk must do for the program. One file of each test program includes this header and
// instantiates the suite with makers of the disks that it has.

namespace corvelle {

/// A disk with an empty folder for one test, and what another program can do to its files.
class ContractDisk {
 public:
  virtual ~ContractDisk() = default;

  virtual FileSystem& Files() = 0;
  /// An empty folder, with its trailing backslash.
  virtual std::string Root() = 0;

  virtual void SetReadOnly(const std::string& path, bool readOnly) = 0;
  virtual void SetHidden(const std::string& path, bool hidden) = 0;
  virtual void SetSystem(const std::string& path, bool system) = 0;
  /// Opens a file so that nobody else can, and lets go of it again.
  virtual void HoldOpen(const std::string& path) = 0;
  virtual void LetGo(const std::string& path) = 0;
  /// Sees to it that a file has a short name beside its own; false where the disk keeps none.
  virtual bool HasShortName(const std::string& path) = 0;
};

using ContractDiskMaker = std::unique_ptr<ContractDisk> (*)();

class FileSystemContract : public testing::TestWithParam<ContractDiskMaker> {
 protected:
  FileSystemContract() : disk_(GetParam()()), files(disk_->Files()), root(disk_->Root()) {}

  void Put(const std::string& name, std::string_view bytes) {
    ASSERT_TRUE(files.Write(root + name, bytes)) << name;
  }

  /// The whole content; "(none)" when it cannot be read.
  std::string Content(const std::string& name) {
    return files.Read(root + name, 0, 1 << 20).ValueOr("(none)");
  }

  std::vector<std::string> Names(std::string_view pattern = "*.*") {
    const auto entries = files.List(root, pattern);
    std::vector<std::string> names;
    if (!entries) return {"(no list)"};
    for (const FileEntry& entry : *entries) names.push_back(entry.Name);
    std::sort(names.begin(), names.end());
    return names;
  }

  ContractDisk& Disk() { return *disk_; }

 private:
  std::unique_ptr<ContractDisk> disk_;

 protected:
  FileSystem& files;
  const std::string root;
};

using Strings = std::vector<std::string>;

template <class T>
testing::AssertionResult FailsWith(const FileResult<T>& result, FileError error) {
  if (result) return testing::AssertionFailure() << "it went well";
  if (result.Error() == error) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "error " << static_cast<int>(result.Error());
}

TEST_P(FileSystemContract, AFileIsThereOnceWrittenAndAFolderIsNone) {
  EXPECT_FALSE(files.FileExists(root + "a.txt"));
  Put("a.txt", "one");
  ASSERT_TRUE(files.MakeFolder(root + "folder"));
  EXPECT_TRUE(files.FileExists(root + "a.txt"));
  EXPECT_FALSE(files.FolderExists(root + "a.txt"));
  EXPECT_FALSE(files.FileExists(root + "folder"));
  EXPECT_TRUE(files.FolderExists(root + "folder"));
  EXPECT_TRUE(files.FolderExists(root + "folder\\"));
  EXPECT_FALSE(files.FileExists(""));
  EXPECT_FALSE(files.FolderExists(""));
}

TEST_P(FileSystemContract, ADrivesRootIsAFolder) {
  EXPECT_TRUE(files.FolderExists(root.substr(0, 3)));
  EXPECT_FALSE(files.FileExists(root.substr(0, 3)));
}

TEST_P(FileSystemContract, CaseDoesNotCountButIsKept) {
  Put("MixedCase.Txt", "one");
  EXPECT_TRUE(files.FileExists(root + "mixedcase.TXT"));
  ASSERT_TRUE(files.Write(root + "MIXEDCASE.TXT", "two"));
  EXPECT_EQ(Content("mixedcase.txt"), "two");
  EXPECT_EQ(Names(), Strings{"MixedCase.Txt"});
}

TEST_P(FileSystemContract, NamesOfOtherScriptsAreKeptAndFoundWithoutRegardToCase) {
  const std::string german = "\xC3\x84pfel.txt";                       // A with diaeresis
  const std::string russian = "\xD0\x9F\xD1\x83\xD1\x82\xD1\x8C.txt";  // Cyrillic
  Put(german, "1");
  Put(russian, "2");
  EXPECT_TRUE(files.FileExists(root + "\xC3\xA4PFEL.TXT"));
  EXPECT_EQ(Content("\xD0\xBF\xD0\xA3\xD0\xA2\xD0\xAC.txt"), "2");
  EXPECT_EQ(Names(), (Strings{german, russian}));
}

TEST_P(FileSystemContract, ReadGivesThePartThatIsThere) {
  Put("a.txt", "0123456789");
  struct Row {
    const char* name;
    std::uint64_t offset;
    std::size_t count;
    const char* expected;
  };
  const Row rows[] = {
      {"all of it", 0, 10, "0123456789"},
      {"the middle", 3, 4, "3456"},
      {"more than there is", 8, 100, "89"},
      {"from the end", 10, 1, ""},
      {"past the end", 11, 5, ""},
      {"far past the end", 5'000'000'000, 5, ""},
      {"nothing", 0, 0, ""},
  };
  for (const Row& row : rows) {
    const auto bytes = files.Read(root + "a.txt", row.offset, row.count);
    ASSERT_TRUE(bytes) << row.name;
    EXPECT_EQ(*bytes, row.expected) << row.name;
  }
}

TEST_P(FileSystemContract, AskingForMuchOfASmallFileIsNoFailure) {
  Put("a.txt", "small");
  EXPECT_EQ(files.Read(root + "a.txt", 0, std::size_t{1} << 30U).ValueOr("(none)"), "small");
}

TEST_P(FileSystemContract, EveryByteSurvivesWritingAndReading) {
  std::string bytes;
  for (int i = 0; i < 256; ++i) bytes.push_back(static_cast<char>(i));
  bytes += "\r\n\n\r\x1A";
  Put("bytes.bin", bytes);
  EXPECT_EQ(Content("bytes.bin"), bytes);
  EXPECT_EQ(files.Length(root + "bytes.bin").ValueOr(0), bytes.size());
}

TEST_P(FileSystemContract, WhatIsMissingIsNotFound) {
  const std::string missing = root + "missing.txt";
  const std::string deeper = root + "nofolder\\a.txt";
  for (const std::string& path : {missing, deeper}) {
    EXPECT_TRUE(FailsWith(files.Length(path), FileError::NotFound)) << path;
    EXPECT_TRUE(FailsWith(files.Read(path, 0, 1), FileError::NotFound)) << path;
    EXPECT_TRUE(FailsWith(files.Remove(path), FileError::NotFound)) << path;
    EXPECT_TRUE(FailsWith(files.Rename(path, root + "b.txt"), FileError::NotFound)) << path;
    EXPECT_TRUE(FailsWith(files.Copy(path, root + "b.txt"), FileError::NotFound)) << path;
  }
  EXPECT_TRUE(FailsWith(files.Write(deeper, "x"), FileError::NotFound));
  EXPECT_TRUE(FailsWith(files.WriteAt(deeper, 0, "x"), FileError::NotFound));
  EXPECT_TRUE(FailsWith(files.Replace(deeper, "x"), FileError::NotFound));
  EXPECT_TRUE(FailsWith(files.MakeFolder(root + "nofolder\\b"), FileError::NotFound));
  EXPECT_TRUE(FailsWith(files.List(root + "nofolder", "*"), FileError::NotFound));
  EXPECT_EQ(Names(), Strings{});
}

TEST_P(FileSystemContract, AFolderInThePlaceOfAFileIsRefused) {
  const std::string folder = root + "folder";
  ASSERT_TRUE(files.MakeFolder(folder));
  Put("a.txt", "x");
  EXPECT_TRUE(FailsWith(files.Length(folder), FileError::AccessDenied));
  EXPECT_TRUE(FailsWith(files.Read(folder, 0, 1), FileError::AccessDenied));
  EXPECT_TRUE(FailsWith(files.Write(folder, "x"), FileError::AccessDenied));
  EXPECT_TRUE(FailsWith(files.WriteAt(folder, 0, "x"), FileError::AccessDenied));
  EXPECT_TRUE(FailsWith(files.Replace(folder, "x"), FileError::AccessDenied));
  EXPECT_TRUE(FailsWith(files.Remove(folder), FileError::AccessDenied));
  EXPECT_TRUE(files.FolderExists(folder));
  EXPECT_EQ(Names(), (Strings{"a.txt", "folder"}));
}

TEST_P(FileSystemContract, NamesThatNoFileCanHaveAreRefused) {
  using namespace std::string_literals;
  for (const std::string& name : {"a<b"s, "a>b"s, "a|b"s, "a\"b"s, "a\0b"s, "a\x01z"s}) {
    EXPECT_TRUE(FailsWith(files.Write(root + name, "x"), FileError::BadName)) << name;
    EXPECT_FALSE(files.FileExists(root + name)) << name;
    EXPECT_FALSE(files.FolderExists(root + name)) << name;
  }
  EXPECT_EQ(Names(), Strings{});
}

TEST_P(FileSystemContract, WriteCutsALongerFile) {
  Put("a.txt", "a long text");
  Put("a.txt", "short");
  EXPECT_EQ(Content("a.txt"), "short");
  Put("a.txt", "");
  EXPECT_EQ(Content("a.txt"), "");
  EXPECT_TRUE(files.FileExists(root + "a.txt"));
}

TEST_P(FileSystemContract, WriteAtChangesItsPartAndNothingElse) {
  Put("a.txt", "0123456789");
  ASSERT_TRUE(files.WriteAt(root + "a.txt", 3, "abc"));
  EXPECT_EQ(Content("a.txt"), "012abc6789");
  ASSERT_TRUE(files.WriteAt(root + "a.txt", 8, "xyz"));
  EXPECT_EQ(Content("a.txt"), "012abc67xyz");
  ASSERT_TRUE(files.WriteAt(root + "a.txt", 13, "!"));
  EXPECT_EQ(Content("a.txt"), std::string("012abc67xyz\0\0!", 14));
}

TEST_P(FileSystemContract, WriteAtMakesAMissingFileAndWithoutBytesNoMore) {
  ASSERT_TRUE(files.WriteAt(root + "new.txt", 0, ""));
  EXPECT_EQ(Content("new.txt"), "");
  Put("old.txt", "stays");
  ASSERT_TRUE(files.WriteAt(root + "old.txt", 0, ""));
  EXPECT_EQ(Content("old.txt"), "stays");
  ASSERT_TRUE(files.WriteAt(root + "other.txt", 2, "x"));
  EXPECT_EQ(Content("other.txt"), std::string("\0\0x", 3));
}

TEST_P(FileSystemContract, ReplaceGivesAFileItsContentAndLeavesNothingBeside) {
  ASSERT_TRUE(files.Replace(root + "a.txt", "first"));
  EXPECT_EQ(Content("a.txt"), "first");
  ASSERT_TRUE(files.Replace(root + "A.TXT", "second, longer"));
  EXPECT_EQ(Content("a.txt"), "second, longer");
  ASSERT_TRUE(files.Replace(root + "a.txt", ""));
  EXPECT_EQ(Content("a.txt"), "");
  EXPECT_EQ(Names().size(), 1U);
}

TEST_P(FileSystemContract, ReplaceUnflushedDoesTheSame) {
  ASSERT_TRUE(files.ReplaceUnflushed(root + "a.txt", "first"));
  ASSERT_TRUE(files.ReplaceUnflushed(root + "A.TXT", "second, longer"));
  EXPECT_EQ(Content("a.txt"), "second, longer");
  EXPECT_EQ(Names(), Strings{"a.txt"});
  Disk().SetReadOnly(root + "a.txt", true);
  EXPECT_TRUE(FailsWith(files.ReplaceUnflushed(root + "a.txt", "x"), FileError::AccessDenied));
  EXPECT_TRUE(FailsWith(files.ReplaceUnflushed(root + "no\\a.txt", "x"), FileError::NotFound));
  EXPECT_EQ(Content("a.txt"), "second, longer");
  Disk().SetReadOnly(root + "a.txt", false);
}

TEST_P(FileSystemContract, FlushTakesAFileThatIsThere) {
  Put("a.txt", "kept");
  EXPECT_TRUE(files.Flush(root + "a.txt"));
  EXPECT_EQ(Content("a.txt"), "kept");
  EXPECT_TRUE(FailsWith(files.Flush(root + "b.txt"), FileError::NotFound));
  EXPECT_TRUE(FailsWith(files.Flush(root), FileError::AccessDenied));
  EXPECT_EQ(Names(), Strings{"a.txt"});
}

TEST_P(FileSystemContract, AReadOnlyFileCanBeReadAndRenamedButNotChanged) {
  Put("a.txt", "kept");
  Disk().SetReadOnly(root + "a.txt", true);
  EXPECT_EQ(Content("a.txt"), "kept");
  EXPECT_TRUE(FailsWith(files.Write(root + "a.txt", "x"), FileError::AccessDenied));
  EXPECT_TRUE(FailsWith(files.WriteAt(root + "a.txt", 0, "x"), FileError::AccessDenied));
  EXPECT_TRUE(FailsWith(files.Replace(root + "a.txt", "x"), FileError::AccessDenied));
  EXPECT_TRUE(FailsWith(files.Remove(root + "a.txt"), FileError::AccessDenied));
  ASSERT_TRUE(files.Rename(root + "a.txt", root + "b.txt"));
  EXPECT_TRUE(FailsWith(files.Remove(root + "b.txt"), FileError::AccessDenied));
  EXPECT_EQ(Content("b.txt"), "kept");
  EXPECT_EQ(Names(), Strings{"b.txt"});
  Disk().SetReadOnly(root + "b.txt", false);
  EXPECT_TRUE(files.Remove(root + "b.txt"));
}

TEST_P(FileSystemContract, AFileWithoutItsMarksCanBeRemoved) {
  Put("a.tmp", "x");
  Disk().SetReadOnly(root + "a.tmp", true);
  Disk().SetHidden(root + "a.tmp", true);
  ASSERT_TRUE(files.ClearAttributes(root + "a.tmp"));
  const auto entries = files.List(root, "*.*").ValueOr({});
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_FALSE(entries[0].ReadOnly);
  EXPECT_FALSE(entries[0].Hidden);
  EXPECT_TRUE(files.Remove(root + "a.tmp"));
}

TEST_P(FileSystemContract, OnlyFilesHaveMarksToTakeOff) {
  ASSERT_TRUE(files.MakeFolder(root + "inner"));
  EXPECT_TRUE(FailsWith(files.ClearAttributes(root + "inner"), FileError::AccessDenied));
  EXPECT_TRUE(FailsWith(files.ClearAttributes(root + "none"), FileError::NotFound));
  EXPECT_TRUE(FailsWith(files.ClearAttributes(root + "inner\\none\\x"), FileError::NotFound));
}

TEST_P(FileSystemContract, AHiddenFileIsListedAndWrittenAndStaysHidden) {
  Put("a.txt", "x");
  Disk().SetHidden(root + "a.txt", true);
  ASSERT_TRUE(files.Write(root + "a.txt", "written"));
  EXPECT_EQ(Content("a.txt"), "written");
  const auto entries = files.List(root, "*");
  ASSERT_TRUE(entries);
  ASSERT_EQ(entries->size(), 1U);
  EXPECT_TRUE(entries->front().Hidden);
  EXPECT_FALSE(entries->front().ReadOnly);
}

TEST_P(FileSystemContract, AFileOfTheSystemIsListedAsOne) {
  Put("a.txt", "x");
  Put("b.txt", "x");
  Disk().SetSystem(root + "b.txt", true);
  const auto entries = files.List(root, "*").ValueOr({});
  ASSERT_EQ(entries.size(), 2U);
  for (const FileEntry& entry : entries) {
    EXPECT_EQ(entry.System, entry.Name == "b.txt") << entry.Name;
    EXPECT_FALSE(entry.Hidden) << entry.Name;
    EXPECT_FALSE(entry.Temporary) << entry.Name;
  }
}

TEST_P(FileSystemContract, AFileThatAnotherProgramHoldsOpenIsInUse) {
  Put("a.txt", "kept");
  Disk().HoldOpen(root + "a.txt");
  EXPECT_TRUE(files.FileExists(root + "a.txt"));
  EXPECT_EQ(files.Length(root + "a.txt").ValueOr(0), 4U);
  EXPECT_TRUE(FailsWith(files.Read(root + "a.txt", 0, 1), FileError::InUse));
  EXPECT_TRUE(FailsWith(files.Write(root + "a.txt", "x"), FileError::InUse));
  EXPECT_TRUE(FailsWith(files.WriteAt(root + "a.txt", 0, "x"), FileError::InUse));
  EXPECT_TRUE(FailsWith(files.Remove(root + "a.txt"), FileError::InUse));
  EXPECT_TRUE(FailsWith(files.Rename(root + "a.txt", root + "b.txt"), FileError::InUse));
  EXPECT_TRUE(FailsWith(files.Copy(root + "a.txt", root + "b.txt"), FileError::InUse));
  EXPECT_TRUE(FailsWith(files.Replace(root + "a.txt", "x"), FileError::InUse));
  Disk().LetGo(root + "a.txt");
  EXPECT_EQ(Content("a.txt"), "kept");
  EXPECT_EQ(Names(), Strings{"a.txt"});
}

TEST_P(FileSystemContract, RenameMovesAFileAndNeverReplacesOne) {
  Put("a.txt", "a");
  Put("b.txt", "b");
  ASSERT_TRUE(files.MakeFolder(root + "folder"));
  EXPECT_TRUE(FailsWith(files.Rename(root + "a.txt", root + "b.txt"), FileError::AlreadyExists));
  EXPECT_TRUE(FailsWith(files.Rename(root + "a.txt", root + "folder"), FileError::AlreadyExists));
  EXPECT_TRUE(FailsWith(files.Rename(root + "a.txt", root + "no\\a.txt"), FileError::NotFound));
  EXPECT_EQ(Content("a.txt"), "a");
  EXPECT_EQ(Content("b.txt"), "b");
  ASSERT_TRUE(files.Rename(root + "a.txt", root + "folder\\c.txt"));
  EXPECT_EQ(Content("folder\\c.txt"), "a");
  EXPECT_FALSE(files.FileExists(root + "a.txt"));
}

TEST_P(FileSystemContract, RenameMovesAFolderWithItsFiles) {
  ASSERT_TRUE(files.MakeFolder(root + "old"));
  Put("old\\a.txt", "a");
  ASSERT_TRUE(files.Rename(root + "old", root + "new"));
  EXPECT_EQ(Content("new\\a.txt"), "a");
  EXPECT_FALSE(files.FolderExists(root + "old"));
}

TEST_P(FileSystemContract, CopyMakesASecondFileAndNeverReplacesOne) {
  Put("a.txt", "a");
  Put("b.txt", "b");
  EXPECT_TRUE(FailsWith(files.Copy(root + "a.txt", root + "b.txt"), FileError::AlreadyExists));
  EXPECT_EQ(Content("b.txt"), "b");
  ASSERT_TRUE(files.Copy(root + "a.txt", root + "c.txt"));
  EXPECT_EQ(Content("a.txt"), "a");
  EXPECT_EQ(Content("c.txt"), "a");
  EXPECT_TRUE(FailsWith(files.Copy(root + "a.txt", root + "no\\a.txt"), FileError::NotFound));
}

TEST_P(FileSystemContract, ACopyOfAReadOnlyFileIsReadOnly) {
  Put("a.txt", "a");
  Disk().SetReadOnly(root + "a.txt", true);
  ASSERT_TRUE(files.Copy(root + "a.txt", root + "b.txt"));
  EXPECT_TRUE(FailsWith(files.Remove(root + "b.txt"), FileError::AccessDenied));
  Disk().SetReadOnly(root + "a.txt", false);
  Disk().SetReadOnly(root + "b.txt", false);
}

TEST_P(FileSystemContract, AFolderIsMadeOnce) {
  ASSERT_TRUE(files.MakeFolder(root + "folder\\"));
  EXPECT_TRUE(FailsWith(files.MakeFolder(root + "FOLDER"), FileError::AlreadyExists));
  Put("a.txt", "x");
  EXPECT_TRUE(FailsWith(files.MakeFolder(root + "a.txt"), FileError::AlreadyExists));
}

TEST_P(FileSystemContract, ListTellsWhatEachEntryIs) {
  Put("a.txt", "12345");
  Put("b.txt", "");
  ASSERT_TRUE(files.MakeFolder(root + "folder"));
  Disk().SetReadOnly(root + "b.txt", true);
  auto entries = files.List(root, "*");
  ASSERT_TRUE(entries);
  ASSERT_EQ(entries->size(), 3U);
  std::sort(entries->begin(), entries->end(),
            [](const FileEntry& x, const FileEntry& y) { return x.Name < y.Name; });
  const FileEntry& a = (*entries)[0];
  const FileEntry& b = (*entries)[1];
  const FileEntry& folder = (*entries)[2];
  EXPECT_EQ(a.Name, "a.txt");
  EXPECT_EQ(a.Length, 5U);
  EXPECT_FALSE(a.IsFolder);
  EXPECT_FALSE(a.ReadOnly);
  EXPECT_TRUE(b.ReadOnly);
  EXPECT_TRUE(folder.IsFolder);
  Disk().SetReadOnly(root + "b.txt", false);
}

TEST_P(FileSystemContract, ListTakesPatternsAsTheShellDoes) {
  for (const char* name : {"BMENU001.MNU", "bmenu002.mnu", "BMENU001.BTN", "noextension"}) {
    Put(name, "x");
  }
  struct Row {
    const char* pattern;
    Strings expected;
  };
  const Row rows[] = {
      {"*", {"BMENU001.BTN", "BMENU001.MNU", "bmenu002.mnu", "noextension"}},
      {"*.*", {"BMENU001.BTN", "BMENU001.MNU", "bmenu002.mnu", "noextension"}},
      {"*.mnu", {"BMENU001.MNU", "bmenu002.mnu"}},
      {"*.BTN", {"BMENU001.BTN"}},
      {"bmenu001.*", {"BMENU001.BTN", "BMENU001.MNU"}},
      {"BMENU00?.MNU", {"BMENU001.MNU", "bmenu002.mnu"}},
      {"noextension", {"noextension"}},
      {"*.xyz", {}},
  };
  for (const Row& row : rows) EXPECT_EQ(Names(row.pattern), row.expected) << row.pattern;
}

TEST_P(FileSystemContract, ListTakesTheFolderWithAndWithoutItsBackslash) {
  Put("a.txt", "x");
  const auto with = files.List(root, "*");
  const auto without = files.List(root.substr(0, root.size() - 1), "*");
  ASSERT_TRUE(with);
  ASSERT_TRUE(without);
  EXPECT_EQ(with->size(), 1U);
  EXPECT_EQ(without->size(), 1U);
}

TEST_P(FileSystemContract, LongPathHasTheCaseOfTheDisk) {
  ASSERT_TRUE(files.MakeFolder(root + "ShellLink"));
  Put("ShellLink\\Some File.txt", "x");
  EXPECT_TRUE(
      files.LongPath(root + "shelllink\\SOME FILE.TXT").ends_with("\\ShellLink\\Some File.txt"));
  EXPECT_EQ(files.LongPath(root + "No Such\\file.txt"), root + "No Such\\file.txt");
}

TEST_P(FileSystemContract, ShortPathLeadsToTheSameFile) {
  ASSERT_TRUE(files.MakeFolder(root + "A folder of a longer name"));
  Put("A folder of a longer name\\A letter to them.txt", "x");
  const std::string longPath = root + "A folder of a longer name\\A letter to them.txt";
  const bool named = Disk().HasShortName(longPath);
  const std::string shortPath = files.ShortPath(longPath);
  ASSERT_FALSE(shortPath.empty());
  EXPECT_LE(shortPath.size(), longPath.size());
  EXPECT_EQ(files.Read(shortPath, 0, 10).ValueOr("none"), "x");
  EXPECT_TRUE(EqualNoCase(files.LongPath(shortPath), files.LongPath(longPath))) << shortPath;
  EXPECT_EQ(shortPath.find("them") == std::string::npos, named) << shortPath;
}

TEST_P(FileSystemContract, ThereIsNoShortPathOfWhatIsMissing) {
  EXPECT_EQ(files.ShortPath(root + "No such file of that name.txt"), "");
  EXPECT_EQ(files.ShortPath(root + "*.txt"), "");
  EXPECT_EQ(files.ShortPath(""), "");
}

TEST_P(FileSystemContract, NothingStaysOpen) {
  Put("a.txt", "x");
  EXPECT_EQ(Content("a.txt"), "x");
  EXPECT_TRUE(files.WriteAt(root + "a.txt", 1, "y"));
  EXPECT_TRUE(files.Replace(root + "a.txt", "z"));
  EXPECT_TRUE(files.List(root, "*"));
  EXPECT_TRUE(files.Copy(root + "a.txt", root + "b.txt"));
  EXPECT_TRUE(files.Rename(root + "a.txt", root + "c.txt"));
  EXPECT_TRUE(files.Remove(root + "b.txt"));
  EXPECT_TRUE(files.Remove(root + "c.txt"));
  EXPECT_EQ(Names(), Strings{});
}

TEST_P(FileSystemContract, ThreeHundredFilesAreListed) {
  for (int i = 0; i < 300; ++i) Put("file" + std::to_string(i) + ".mnu", "x");
  EXPECT_EQ(Names("*.mnu").size(), 300U);
}

}  // namespace corvelle
