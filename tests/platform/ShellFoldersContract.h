#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ShellFolders.h"

// What every shell must do with its folders. One file of each test program includes this header and
// instantiates the suite with makers of the shells that it has.

namespace corvelle {

/// A shell whose folder of programs (2) lies on the disk and shows two links, "Contract
/// \xD0\xB6" (a Cyrillic letter) and "Contract two", and which has drives (17), which lie nowhere.
class ContractFolders {
 public:
  virtual ~ContractFolders() = default;

  virtual ShellFolders& Folders() = 0;
  /// A file that is there, and one that is not.
  virtual std::string File() = 0;
  virtual std::string MissingFile() = 0;
  /// Which of the two was started first, "one" or "two"; empty when none is within seconds.
  virtual std::string Started() = 0;
  /// The user leaves the next menu without a choice; chooses its command "Copy".
  virtual void DismissNextMenu() = 0;
  virtual void CopyInNextMenu() = 0;
  /// How many menus came up.
  virtual int Menus() = 0;
};

using ContractFoldersMaker = std::unique_ptr<ContractFolders> (*)();

class ShellFoldersContract : public testing::TestWithParam<ContractFoldersMaker> {
 protected:
  static constexpr int kPrograms = 2;
  static constexpr int kDrives = 17;
  static constexpr int kUnknown = 0x7A;
  static constexpr std::string_view kOne = "Contract \xD0\xB6";
  static constexpr std::string_view kTwo = "Contract two";
  static constexpr PixelPoint kAt{300, 200};

  [[nodiscard]] ShellFolders& Shell() { return home_->Folders(); }
  [[nodiscard]] static int Count(const std::vector<ShellFolderEntry>& entries,
                                 std::string_view name) {
    return static_cast<int>(
        std::count_if(entries.begin(), entries.end(),
                      [name](const ShellFolderEntry& entry) { return entry.Name == name; }));
  }

  std::unique_ptr<ContractFolders> home_ = GetParam()();
};

TEST_P(ShellFoldersContract, ListsAFolderByTheNamesThatTheShellShows) {
  const auto entries = Shell().List(kPrograms);
  ASSERT_TRUE(entries.has_value());
  EXPECT_EQ(Count(*entries, kOne), 1);
  EXPECT_EQ(Count(*entries, kTwo), 1);
  for (const ShellFolderEntry& entry : *entries) EXPECT_GE(entry.IconIndex, 0) << entry.Name;
}

TEST_P(ShellFoldersContract, ItsNamesAreThoseOfItsEntries) {
  for (const int folder : {kPrograms, kDrives}) {
    const auto entries = Shell().List(folder);
    ASSERT_TRUE(entries.has_value()) << folder;
    std::vector<std::string> expected;
    for (const ShellFolderEntry& entry : *entries) expected.push_back(entry.Name);
    EXPECT_EQ(Shell().Names(folder), expected) << folder;
  }
}

TEST_P(ShellFoldersContract, ListsAFolderThatLiesNowhere) {
  const auto entries = Shell().List(kDrives);
  ASSERT_TRUE(entries.has_value());
  EXPECT_FALSE(entries->empty());
}

TEST_P(ShellFoldersContract, AFolderHasAnEntryOfItsOwnAndMayHaveAPath) {
  for (const int folder : {kPrograms, kDrives}) {
    const auto self = Shell().Folder(folder);
    ASSERT_TRUE(self.has_value()) << folder;
    EXPECT_NE(self->Name, "") << folder;
    EXPECT_GE(self->IconIndex, 0) << folder;
  }
  const auto path = Shell().PathOf(kPrograms);
  ASSERT_TRUE(path.has_value());
  EXPECT_EQ(path->substr(1, 2), ":\\");
  EXPECT_EQ(Shell().PathOf(kDrives), std::nullopt);
}

TEST_P(ShellFoldersContract, AnUnknownFolderIsNone) {
  for (const int folder : {kUnknown, -1, 0x8000, 0x10002}) {
    EXPECT_EQ(Shell().List(folder), std::nullopt) << folder;
    EXPECT_EQ(Shell().Names(folder), std::nullopt) << folder;
    EXPECT_EQ(Shell().Folder(folder), std::nullopt) << folder;
    EXPECT_EQ(Shell().PathOf(folder), std::nullopt) << folder;
    EXPECT_FALSE(Shell().OpenFolder(folder, kNoWindow)) << folder;
    EXPECT_FALSE(Shell().OpenEntry(folder, kTwo, {}, kNoWindow)) << folder;
    EXPECT_FALSE(Shell().FolderMenu(folder, kAt, kNoWindow)) << folder;
    EXPECT_FALSE(Shell().EntryMenu(folder, kTwo, kAt, kNoWindow)) << folder;
  }
  EXPECT_EQ(home_->Menus(), 0);
}

TEST_P(ShellFoldersContract, OpensAnEntryByItsWholeName) {
  EXPECT_FALSE(Shell().OpenEntry(kPrograms, "Contract", {}, kNoWindow));
  EXPECT_FALSE(Shell().OpenEntry(kPrograms, "", {}, kNoWindow));
  EXPECT_TRUE(Shell().OpenEntry(kPrograms, kTwo, {}, kNoWindow));
  EXPECT_EQ(home_->Started(), "two");
}

TEST_P(ShellFoldersContract, AMenuWithoutAChoiceRunsNothing) {
  home_->DismissNextMenu();
  EXPECT_FALSE(Shell().FileMenu(home_->File(), kAt, kNoWindow));
  EXPECT_EQ(home_->Menus(), 1);
}

TEST_P(ShellFoldersContract, AMenuOfAFileAnEntryAndAFolderRunsWhatIsChosen) {
  home_->CopyInNextMenu();
  EXPECT_TRUE(Shell().FileMenu(home_->File(), kAt, kNoWindow));
  home_->CopyInNextMenu();
  EXPECT_TRUE(Shell().EntryMenu(kPrograms, kTwo, kAt, kNoWindow));
  home_->CopyInNextMenu();
  EXPECT_TRUE(Shell().FolderMenu(kPrograms, kAt, kNoWindow));
  EXPECT_EQ(home_->Menus(), 3);
}

TEST_P(ShellFoldersContract, WhatIsGoneHasNoMenu) {
  EXPECT_FALSE(Shell().FileMenu(home_->MissingFile(), kAt, kNoWindow));
  EXPECT_FALSE(Shell().FileMenu("", kAt, kNoWindow));
  EXPECT_FALSE(Shell().FileMenu(std::string_view("C:\\a\0b", 6), kAt, kNoWindow));
  EXPECT_FALSE(Shell().EntryMenu(kPrograms, "Contract", kAt, kNoWindow));
  EXPECT_EQ(home_->Menus(), 0);
}

}  // namespace corvelle
