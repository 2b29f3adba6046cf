#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "platform/FileSystem.h"
#include "platform/ShellLinks.h"

// What every shell must do with links. One file of each test program includes this header and
// instantiates the suite with makers of the shells that it has.

namespace corvelle {

/// A shell with an empty folder of its own, in which links are made.
class ContractLinks {
 public:
  virtual ~ContractLinks() = default;

  virtual ShellLinks& Links() = 0;
  virtual FileSystem& Files() = 0;
  /// With its trailing backslash. Its name has blanks and letters of two scripts.
  virtual std::string Folder() = 0;
  /// The number of a special folder that has a path, and of one that has none.
  virtual int FolderWithPath() = 0;
  virtual int FolderWithoutPath() = 0;
};

using ContractLinksMaker = std::unique_ptr<ContractLinks> (*)();

class ShellLinksContract : public testing::TestWithParam<ContractLinksMaker> {
 protected:
  ShellLinksContract() {
    EXPECT_TRUE(home_->Files().Write(target_, "a program"));
    EXPECT_TRUE(home_->Files().MakeFolder(workDir_));
  }

  std::unique_ptr<ShellLinkObject> NewLink() {
    auto link = home_->Links().CreateLinkObject();
    if (link == nullptr) ADD_FAILURE() << "no link";
    return link;
  }
  /// A saved link to the target with nothing else set.
  void SavePlainLink() {
    const auto link = NewLink();
    ASSERT_TRUE(link->SetPath(target_));
    ASSERT_TRUE(link->Save(file_));
  }

  std::unique_ptr<ContractLinks> home_ = GetParam()();
  std::string target_ = home_->Folder() + "tool \xD0\xB6.exe";
  std::string workDir_ = home_->Folder() + "work folder";
  std::string file_ = home_->Folder() + "a link.lnk";
};

TEST_P(ShellLinksContract, ASavedLinkReadsBackAsItWasMade) {
  const auto link = NewLink();
  ASSERT_TRUE(link->SetPath(target_));
  ASSERT_TRUE(link->SetWorkingDirectory(workDir_));
  ASSERT_TRUE(link->SetArguments("/x \"two words\" \xC3\xA4"));
  ASSERT_TRUE(link->SetHotkey(0x0341));
  ASSERT_TRUE(link->SetIconLocation(target_, 3));
  ASSERT_TRUE(link->SetShowCmd(1));
  ASSERT_TRUE(link->Resolve(kResolveUpdate | kResolveQuietly));
  ASSERT_TRUE(link->Save(file_));
  EXPECT_TRUE(home_->Files().FileExists(file_));

  const auto read = NewLink();
  ASSERT_TRUE(read->Load(file_));
  EXPECT_EQ(read->GetPath(), target_);
  EXPECT_EQ(read->GetWorkingDirectory(), workDir_);
  EXPECT_EQ(read->GetArguments(), "/x \"two words\" \xC3\xA4");
  EXPECT_EQ(read->GetDescription(), "");
  EXPECT_EQ(read->GetHotkey(), 0x0341);
  EXPECT_EQ(read->GetIconLocation(), (IconLocation{target_, 3}));
  EXPECT_EQ(read->GetShowCmd(), 1);
  const auto item = read->GetIDList();
  ASSERT_TRUE(item.has_value());
  EXPECT_EQ(home_->Links().PathFromIDList(*item), target_);
}

TEST_P(ShellLinksContract, WhatIsNotSetReadsBackEmpty) {
  SavePlainLink();
  const auto read = NewLink();
  ASSERT_TRUE(read->Load(file_));
  EXPECT_EQ(read->GetPath(), target_);
  EXPECT_EQ(read->GetWorkingDirectory(), "");
  EXPECT_EQ(read->GetArguments(), "");
  EXPECT_EQ(read->GetDescription(), "");
  EXPECT_EQ(read->GetHotkey(), 0);
  const auto icon = read->GetIconLocation();
  ASSERT_TRUE(icon.has_value());
  EXPECT_EQ(icon->Index, 0);
}

TEST_P(ShellLinksContract, ANewLinkIsEmpty) {
  const auto link = NewLink();
  EXPECT_EQ(link->GetPath(), "");
  EXPECT_EQ(link->GetWorkingDirectory(), "");
  EXPECT_EQ(link->GetArguments(), "");
  EXPECT_EQ(link->GetHotkey(), 0);
  EXPECT_EQ(link->GetIDList(), ItemIdList{});
}

TEST_P(ShellLinksContract, SavingReplacesAnOldLinkWhole) {
  const auto first = NewLink();
  ASSERT_TRUE(first->SetPath(target_));
  ASSERT_TRUE(first->SetArguments(std::string(200, 'a')));
  ASSERT_TRUE(first->SetHotkey(0x0341));
  ASSERT_TRUE(first->Save(file_));
  SavePlainLink();
  const auto read = NewLink();
  ASSERT_TRUE(read->Load(file_));
  EXPECT_EQ(read->GetArguments(), "");
  EXPECT_EQ(read->GetHotkey(), 0);
}

TEST_P(ShellLinksContract, AMissingFileIsNotLoaded) {
  EXPECT_FALSE(NewLink()->Load(home_->Folder() + "missing.lnk"));
  EXPECT_FALSE(NewLink()->Load(""));
}

TEST_P(ShellLinksContract, ADamagedFileIsNotLoaded) {
  const std::string contents[] = {"", "x", "no link at all\r\n", std::string(76, '\0'),
                                  std::string(4096, '\xFF')};
  for (const std::string& bytes : contents) {
    ASSERT_TRUE(home_->Files().Write(file_, bytes));
    EXPECT_FALSE(NewLink()->Load(file_)) << bytes.size() << " bytes";
  }
}

TEST_P(ShellLinksContract, AFolderOrADeviceIsNoPlaceForALink) {
  const auto link = NewLink();
  ASSERT_TRUE(link->SetPath(target_));
  EXPECT_FALSE(link->Save(workDir_));
  EXPECT_FALSE(link->Save(home_->Folder() + "missing folder\\a.lnk"));
  EXPECT_FALSE(link->Save(""));
}

TEST_P(ShellLinksContract, ASpecialFolderHasItsPath) {
  const auto item = home_->Links().SpecialFolderLocation(kNoWindow, home_->FolderWithPath());
  ASSERT_TRUE(item.has_value());
  EXPECT_FALSE(item->IsEmpty());
  const auto path = home_->Links().PathFromIDList(*item);
  ASSERT_TRUE(path.has_value());
  EXPECT_TRUE(home_->Files().FolderExists(*path)) << *path;
}

TEST_P(ShellLinksContract, ASpecialFolderWithoutAPathHasNone) {
  const auto item = home_->Links().SpecialFolderLocation(kNoWindow, home_->FolderWithoutPath());
  ASSERT_TRUE(item.has_value());
  EXPECT_EQ(home_->Links().PathFromIDList(*item), std::nullopt);
}

TEST_P(ShellLinksContract, AnUnknownSpecialFolderIsNone) {
  EXPECT_EQ(home_->Links().SpecialFolderLocation(kNoWindow, 0x7A), std::nullopt);
  EXPECT_EQ(home_->Links().PathFromIDList({}), std::nullopt);
}

TEST_P(ShellLinksContract, ALinkToAnObjectWithoutAPathReadsBack) {
  const auto item = home_->Links().SpecialFolderLocation(kNoWindow, home_->FolderWithoutPath());
  ASSERT_TRUE(item.has_value());
  const auto link = NewLink();
  ASSERT_TRUE(link->SetIDList(*item));
  ASSERT_TRUE(link->Resolve(kResolveUpdate | kResolveQuietly));
  ASSERT_TRUE(link->Save(file_));
  const auto read = NewLink();
  ASSERT_TRUE(read->Load(file_));
  EXPECT_EQ(read->GetPath(), "");
  EXPECT_EQ(read->GetIDList(), *item);
}

TEST_P(ShellLinksContract, AnEmptyItemIsNotSet) { EXPECT_FALSE(NewLink()->SetIDList({})); }

}  // namespace corvelle
