#include "win32/Win32Files.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <map>
#include <string>
#include <thread>
#include <vector>

#include "TempFolder.h"
#include "platform/FileSystemContract.h"
#include "win32/FileEntries.h"
#include "win32/FileErrors.h"
#include "win32/FileNames.h"
#include "win32/UniqueHandle.h"

namespace corvelle {
namespace {

using win32::Wide;

class RealDisk final : public ContractDisk {
 public:
  FileSystem& Files() override { return files_; }
  std::string Root() override { return folder_.Path(); }
  void SetReadOnly(const std::string& path, bool on) override {
    SetAttribute(path, FILE_ATTRIBUTE_READONLY, on);
  }
  void SetHidden(const std::string& path, bool on) override {
    SetAttribute(path, FILE_ATTRIBUTE_HIDDEN, on);
  }
  void SetSystem(const std::string& path, bool on) override {
    SetAttribute(path, FILE_ATTRIBUTE_SYSTEM, on);
  }
  void HoldOpen(const std::string& path) override {
    held_[path].Reset(CreateFileW(Wide(path).c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                                  FILE_ATTRIBUTE_NORMAL, nullptr));
    ASSERT_TRUE(held_[path]) << path;
  }
  void LetGo(const std::string& path) override { held_.erase(path); }

  bool HasShortName(const std::string& path) override {
    WIN32_FIND_DATAW found{};
    const win32::UniqueFind find(FindFirstFileW(Wide(path).c_str(), &found));
    return find && found.cAlternateFileName[0] != 0;
  }

 private:
  static void SetAttribute(const std::string& path, DWORD attribute, bool on) {
    const DWORD before = GetFileAttributesW(Wide(path).c_str());
    ASSERT_NE(before, INVALID_FILE_ATTRIBUTES) << path;
    SetFileAttributesW(Wide(path).c_str(), on ? before | attribute : before & ~attribute);
  }

  TempFolder folder_;
  win32::Win32Files files_;
  std::map<std::string, win32::UniqueFile> held_;
};

std::unique_ptr<ContractDisk> MakeRealDisk() { return std::make_unique<RealDisk>(); }

INSTANTIATE_TEST_SUITE_P(Windows, FileSystemContract, testing::Values(MakeRealDisk));

struct FilesTest : testing::Test {
  TempFolder Folder;
  win32::Win32Files Files;
  const std::string Root = Folder.Path();

  std::size_t Count() { return Files.List(Root, "*").ValueOr({}).size(); }
};

TEST_F(FilesTest, ReplaceKeepsTheAttributesOfTheFile) {
  ASSERT_TRUE(Files.Write(Root + "a.dat", "old"));
  SetFileAttributesW(Wide(Root + "a.dat").c_str(), FILE_ATTRIBUTE_HIDDEN);
  ASSERT_TRUE(Files.Replace(Root + "a.dat", "new"));
  EXPECT_EQ(Files.Read(Root + "a.dat", 0, 10).ValueOr("(none)"), "new");
  EXPECT_NE(GetFileAttributesW(Wide(Root + "a.dat").c_str()) & FILE_ATTRIBUTE_HIDDEN, 0U);
}

TEST_F(FilesTest, AReplaceThatFailsLeavesNothingBesideTheFile) {
  ASSERT_TRUE(Files.Write(Root + "a.dat", "old"));
  {
    const win32::UniqueFile held(CreateFileW(Wide(Root + "a.dat").c_str(), GENERIC_READ, 0, nullptr,
                                             OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    ASSERT_TRUE(held);
    EXPECT_FALSE(Files.Replace(Root + "a.dat", "new"));
  }
  EXPECT_FALSE(Files.Replace(Root + "a|b", "new"));
  EXPECT_EQ(Files.Read(Root + "a.dat", 0, 10).ValueOr("(none)"), "old");
  EXPECT_EQ(Count(), 1U);
}

/// Another program that looks at a file and is done with it after 60 ms.
class Looker {
 public:
  Looker(const std::string& path, DWORD shares)
      : file_(CreateFileW(Wide(path).c_str(), GENERIC_READ, shares, nullptr, OPEN_EXISTING,
                          FILE_ATTRIBUTE_NORMAL, nullptr)),
        looks_(static_cast<bool>(file_)),
        done_([this] {
          Sleep(60);
          file_.Reset();
        }) {}
  Looker(const Looker&) = delete;
  Looker& operator=(const Looker&) = delete;
  ~Looker() { done_.join(); }
  [[nodiscard]] bool Looks() const { return looks_; }

 private:
  win32::UniqueFile file_;
  bool looks_;
  std::thread done_;
};

TEST_F(FilesTest, ReplaceWaitsForAProgramThatLooksAtTheFile) {
  ASSERT_TRUE(Files.Write(Root + "a.dat", "old"));
  const Looker looker(Root + "a.dat", FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
  ASSERT_TRUE(looker.Looks());
  EXPECT_TRUE(Files.Replace(Root + "a.dat", "new"));
  EXPECT_EQ(Files.Read(Root + "a.dat", 0, 10).ValueOr("(none)"), "new");
  EXPECT_EQ(Count(), 1U);
}

TEST_F(FilesTest, RenameWaitsForAProgramThatLooksAtTheFile) {
  ASSERT_TRUE(Files.Write(Root + "a.dat", "old"));
  const Looker looker(Root + "a.dat", FILE_SHARE_READ);
  ASSERT_TRUE(looker.Looks());
  EXPECT_TRUE(Files.Rename(Root + "a.dat", Root + "b.dat"));
  EXPECT_TRUE(Files.FileExists(Root + "b.dat"));
}

TEST_F(FilesTest, RemoveWaitsForAProgramThatLooksAtTheFile) {
  ASSERT_TRUE(Files.Write(Root + "a.dat", "old"));
  const Looker looker(Root + "a.dat", FILE_SHARE_READ);
  ASSERT_TRUE(looker.Looks());
  EXPECT_TRUE(Files.Remove(Root + "a.dat"));
  EXPECT_FALSE(Files.FileExists(Root + "a.dat"));
}

TEST_F(FilesTest, OfManyThatAreHeldRemoveWaitsForTheFirst) {
  constexpr int kHeld = 20;
  std::vector<win32::UniqueFile> held;
  for (int i = 0; i < kHeld; ++i) {
    const std::string path = Root + std::to_string(i) + ".tmp";
    ASSERT_TRUE(Files.Write(path, ""));
    held.emplace_back(CreateFileW(Wide(path).c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                                  FILE_ATTRIBUTE_NORMAL, nullptr));
    ASSERT_TRUE(held.back());
  }
  const ULONGLONG began = GetTickCount64();
  for (int i = 0; i < kHeld; ++i) {
    const FileStatus removed = Files.Remove(Root + std::to_string(i) + ".tmp");
    ASSERT_FALSE(removed);
    EXPECT_EQ(removed.Error(), FileError::InUse);
  }
  // A fifth of a second each would be four seconds.
  EXPECT_LT(GetTickCount64() - began, 2000U);
}

TEST_F(FilesTest, ReadingAndWritingWaitForAProgramThatLooksAtTheFile) {
  ASSERT_TRUE(Files.Write(Root + "a.dat", "old"));
  {
    const Looker looker(Root + "a.dat", 0);
    ASSERT_TRUE(looker.Looks());
    EXPECT_EQ(Files.Read(Root + "a.dat", 0, 10).ValueOr("(none)"), "old");
  }
  {
    const Looker looker(Root + "a.dat", FILE_SHARE_READ);
    ASSERT_TRUE(looker.Looks());
    EXPECT_TRUE(Files.Write(Root + "a.dat", "new"));
  }
  {
    const Looker looker(Root + "a.dat", FILE_SHARE_READ);
    ASSERT_TRUE(looker.Looks());
    EXPECT_TRUE(Files.WriteAt(Root + "a.dat", 0, "N"));
  }
  EXPECT_EQ(Files.Read(Root + "a.dat", 0, 10).ValueOr("(none)"), "New");
}

TEST_F(FilesTest, ShortNamesOfLongNamesFitNoPattern) {
  ASSERT_TRUE(Files.Write(Root + "a long name.menus", "x"));
  EXPECT_EQ(Files.List(Root, "*.MEN").ValueOr({}).size(), 0U);
  EXPECT_EQ(Files.List(Root, "ALONGN~1.*").ValueOr({}).size(), 0U);
  EXPECT_EQ(Files.List(Root, "*.menus").ValueOr({}).size(), 1U);
}

TEST(FileEntries, EachMarkOfAListingIsToldOnItsOwn) {
  struct Row {
    DWORD marks;
    FileEntry expected;
  };
  const Row rows[] = {{FILE_ATTRIBUTE_NORMAL, {}},
                      {FILE_ATTRIBUTE_DIRECTORY, {.IsFolder = true}},
                      {FILE_ATTRIBUTE_READONLY, {.ReadOnly = true}},
                      {FILE_ATTRIBUTE_HIDDEN, {.Hidden = true}},
                      {FILE_ATTRIBUTE_SYSTEM, {.System = true}},
                      {FILE_ATTRIBUTE_TEMPORARY, {.Temporary = true}}};
  for (const Row& row : rows) {
    WIN32_FIND_DATAW found{};
    found.dwFileAttributes = row.marks;
    const FileEntry entry = win32::EntryOf(found);
    EXPECT_EQ(entry.IsFolder, row.expected.IsFolder) << row.marks;
    EXPECT_EQ(entry.ReadOnly, row.expected.ReadOnly) << row.marks;
    EXPECT_EQ(entry.Hidden, row.expected.Hidden) << row.marks;
    EXPECT_EQ(entry.System, row.expected.System) << row.marks;
    EXPECT_EQ(entry.Temporary, row.expected.Temporary) << row.marks;
  }
}

TEST_F(FilesTest, DevicesAreNoFiles) {
  for (const char* name : {"NUL", "nul.txt", "CON", "COM1", "lpt9.mnu", "AUX", "PRN"}) {
    EXPECT_TRUE(FailsWith(Files.Write(Root + name, "x"), FileError::BadName)) << name;
    EXPECT_TRUE(FailsWith(Files.Replace(Root + name, "x"), FileError::BadName)) << name;
    EXPECT_TRUE(FailsWith(Files.Read(Root + name, 0, 1), FileError::BadName)) << name;
    EXPECT_FALSE(Files.FileExists(Root + name)) << name;
  }
  EXPECT_TRUE(Files.Write(Root + "COM10", "x"));
  EXPECT_TRUE(Files.Write(Root + "NULL.txt", "x"));
}

TEST_F(FilesTest, AFolderThatIsAFileCannotBeListed) {
  ASSERT_TRUE(Files.Write(Root + "a.dat", "x"));
  EXPECT_TRUE(FailsWith(Files.List(Root + "a.dat", "*"), FileError::NotFound));
}

TEST_F(FilesTest, ALargeFileIsWrittenAndReadWhole) {
  std::string bytes(40'000'000, 'x');
  bytes.front() = 'a';
  bytes.back() = 'z';
  ASSERT_TRUE(Files.Write(Root + "large.dat", bytes));
  EXPECT_EQ(Files.Length(Root + "large.dat").ValueOr(0), bytes.size());
  const auto read = Files.Read(Root + "large.dat", 0, bytes.size());
  ASSERT_TRUE(read);
  EXPECT_TRUE(*read == bytes);
}

TEST_F(FilesTest, LongPathKeepsDriveAndLastBackslash) {
  ASSERT_TRUE(Files.MakeFolder(Root + "Some Folder"));
  EXPECT_TRUE(Files.LongPath(Root + "SOME FOLDER\\").ends_with("\\Some Folder\\"));
  EXPECT_EQ(Files.LongPath("C:\\"), "C:\\");
  EXPECT_EQ(Files.LongPath(""), "");
  EXPECT_EQ(Files.LongPath("C:\\*"), "C:\\*");
  EXPECT_EQ(Files.LongPath("\\\\nowhere\\share\\folder"), "\\\\nowhere\\share\\folder");
}

TEST(FileNames, PatternsFitAsTheShellTakesThem) {
  struct Row {
    const char* name;
    const char* pattern;
    bool fits;
  };
  const Row rows[] = {
      {"a.mnu", "*.*", true},
      {"noextension", "*.*", true},
      {"", "*", true},
      {"a.mnu", "*.MNU", true},
      {"a.mnux", "*.mnu", false},
      {"a.b.mnu", "*.mnu", true},
      {"a.mnu", "?.mnu", true},
      {"ab.mnu", "?.mnu", false},
      {"ab.mnu", "ab?.mnu", true},
      {"ab", "ab??", true},
      {"abc", "a*c", true},
      {"abcabd", "*abd", true},
      {"aaab", "*a*b", true},
      {"aaac", "*a*b", false},
      {"a.mnu", "", false},
      {"noextension", "*.", true},
      {"a.mnu", "*.", false},
      {"\xC3\xA4.mnu", "\xC3\x84.*", true},
      {"\xC3\xA4.mnu", "?.mnu", true},
  };
  for (const Row& row : rows)
    EXPECT_EQ(win32::FitsPattern(row.name, row.pattern), row.fits)
        << row.name << " " << row.pattern;
}

TEST(FileNames, APatternOfManyStarsTakesNoTime) {
  const std::string name(240, 'a');
  std::string pattern;
  for (int i = 0; i < 100; ++i) pattern += "*a";
  EXPECT_TRUE(win32::FitsPattern(name, pattern));
  EXPECT_FALSE(win32::FitsPattern(name, pattern + "b"));
}

TEST(FileNames, DevicesAreKnownByTheirLastName) {
  for (const char* path :
       {"NUL", "C:\\x\\nul", "C:\\x\\Con.txt", "C:/x/aux ", "lpt1", "COM9.mnu", "CONIN$", "nul:"}) {
    EXPECT_TRUE(win32::NamesDevice(path)) << path;
  }
  for (const char* path : {"", "C:\\nul\\a.txt", "COM0", "COM10", "COM", "console.txt", "a.nul"}) {
    EXPECT_FALSE(win32::NamesDevice(path)) << path;
  }
}

TEST(FileErrors, NumbersOfWindowsHaveTheirMeaning) {
  struct Row {
    unsigned long number;
    FileError error;
  };
  const Row rows[] = {
      {ERROR_FILE_NOT_FOUND, FileError::NotFound},
      {ERROR_PATH_NOT_FOUND, FileError::NotFound},
      {ERROR_NOT_READY, FileError::NotFound},
      {ERROR_FILE_EXISTS, FileError::AlreadyExists},
      {ERROR_ALREADY_EXISTS, FileError::AlreadyExists},
      {ERROR_ACCESS_DENIED, FileError::AccessDenied},
      {ERROR_WRITE_PROTECT, FileError::AccessDenied},
      {ERROR_SHARING_VIOLATION, FileError::InUse},
      {ERROR_LOCK_VIOLATION, FileError::InUse},
      {ERROR_DISK_FULL, FileError::DiskFull},
      {ERROR_HANDLE_DISK_FULL, FileError::DiskFull},
      {ERROR_INVALID_NAME, FileError::BadName},
      {ERROR_FILENAME_EXCED_RANGE, FileError::BadName},
      {ERROR_CRC, FileError::Failed},
  };
  for (const Row& row : rows) EXPECT_EQ(win32::FileErrorOf(row.number), row.error) << row.number;
}

}  // namespace
}  // namespace corvelle
