#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/CodePage.h"
#include "core/MenuRecord.h"
#include "scenario/Strip.h"

namespace corvelle::scenario {
namespace {

/// A desk whose program has one menu, that of button 2, and a folder beside its menus. Its files
/// are documents that the witness is registered for.
class Folders : public ::testing::Test {
 protected:
  void SetUp() override {
    desk_ = MakeDesk();
    desk_->WriteFile(kFlagsFile, InstalledFlags());
    desk_->WriteFile(kPositionFile,
                     PositionBytes(static_cast<float>(300 * desk_->TwipsPerPixel())));
    const std::string document = desk_->WitnessDocument();
    extension_ = document.substr(document.rfind('.'));
    PutFile("Work\\alpha");
    PutFile("Work\\gamma");
    desk_->MovePointer(FarAway(*desk_));
  }

  void PutFile(const std::string& name) { desk_->WriteFile(name + extension_, "x"); }

  void StartWith(const std::vector<MenuRecord>& items) {
    WriteMenu(*desk_, 1, "Work", items);
    ASSERT_TRUE(StartAndWait(*desk_));
  }

  /// The generated menu's titles in their order; a rule is "-".
  std::vector<std::string> Titles() {
    std::vector<std::string> titles;
    const std::string bytes = desk_->ReadFile("Menus\\BMENU001.mfd").value_or("");
    for (std::size_t at = kRecordLength; at < bytes.size(); at += kRecordLength) {
      const MenuRecord record = ParseRecord(std::string_view(bytes).substr(at), Windows1252());
      titles.push_back(IsSeparatorIcon(record.FIcon) ? "-" : SplitTitle(record.FTitle, 0).Title);
    }
    return titles;
  }

  /// The same once the file has these titles. It is written when the menu is up.
  std::vector<std::string> TitlesLike(const std::vector<std::string>& expected) {
    desk_->Wait([&] { return Titles() == expected; });
    return Titles();
  }

  void Choose(int item, int count) {
    const PixelPoint at = ItemMiddle(*desk_, item, count);
    ClickItem(*desk_, at);
    ASSERT_TRUE(WaitForNoMenu(*desk_));
    desk_->MovePointer(FarAway(*desk_));
  }

  void CloseMenu() {
    desk_->Click(ButtonMiddle(*desk_, 2));
    ASSERT_TRUE(WaitForNoMenu(*desk_));
    desk_->MovePointer(FarAway(*desk_));
    desk_->Pause(200);
  }

  std::unique_ptr<Desk> desk_;
  std::string extension_;
};

using FoldersAtEachScale = Folders;

TEST_F(FoldersAtEachScale, AFolderItemShowsItsFilesAndAChoiceOpensOne) {
  StartWith({Witness(*desk_, "above"),
             {.FTitle = "Work", .FIcon = "", .FName = "C:\\Corvelle\\Work\\*.*/E"},
             Witness(*desk_, "below")});
  ASSERT_TRUE(OpenMenu(*desk_, 2));
  const std::vector<std::string> shown{"above", "alpha", "gamma", "below"};
  EXPECT_EQ(TitlesLike(shown), shown);
  desk_->Picture("folder-menu");
  Choose(3, 4);
  ASSERT_TRUE(desk_->Wait([this] { return !desk_->Launched().empty(); }));
  EXPECT_EQ(desk_->Launched()[0].Arguments, "\"C:\\Corvelle\\Work\\gamma" + extension_ + "\"");
}

TEST_F(Folders, OneThatFollowsTheDiskShowsANewFileAtTheNextOpening) {
  StartWith({{.FTitle = "Work", .FIcon = "", .FName = "C:\\Corvelle\\Work\\*.*/u"}});
  ASSERT_TRUE(OpenMenu(*desk_, 2));
  const int before = desk_->BoundsOf("frmQMenu").Height();
  CloseMenu();
  PutFile("Work\\beta");
  ASSERT_TRUE(OpenMenu(*desk_, 2));
  EXPECT_GT(desk_->BoundsOf("frmQMenu").Height(), before);
  desk_->Picture("followed");
  Choose(2, 3);
  ASSERT_TRUE(desk_->Wait([this] { return !desk_->Launched().empty(); }));
  EXPECT_EQ(desk_->Launched()[0].Arguments, "\"C:\\Corvelle\\Work\\beta" + extension_ + "\"");
}

TEST_F(Folders, OneThatDoesNotFollowTheDiskStaysAsItWasBuilt) {
  StartWith({{.FTitle = "Work", .FIcon = "", .FName = "C:\\Corvelle\\Work\\*.*"}});
  ASSERT_TRUE(OpenMenu(*desk_, 2));
  // A busy disk may answer a moment after the menu has come up.
  desk_->Pause(600);
  const int before = desk_->BoundsOf("frmQMenu").Height();
  CloseMenu();
  PutFile("Work\\beta");
  ASSERT_TRUE(OpenMenu(*desk_, 2));
  EXPECT_EQ(desk_->BoundsOf("frmQMenu").Height(), before);
  Choose(2, 2);
  ASSERT_TRUE(desk_->Wait([this] { return !desk_->Launched().empty(); }));
  EXPECT_EQ(desk_->Launched()[0].Arguments, "\"C:\\Corvelle\\Work\\gamma" + extension_ + "\"");
}

TEST_F(Folders, OneWithSubfoldersSetsThemOffByRulesAndAMergedOneDoesNot) {
  for (const char* name : {"Work\\Letters\\zeta", "Work\\Notes\\delta", "Work\\Notes\\eta"}) {
    PutFile(name);
  }
  StartWith({{.FTitle = "Work", .FIcon = "", .FName = "C:\\Corvelle\\Work\\*.*/se"}});
  ASSERT_TRUE(OpenMenu(*desk_, 2));
  const std::vector<std::string> apart{"alpha", "gamma", "-", "zeta", "-", "delta", "eta"};
  EXPECT_EQ(TitlesLike(apart), apart);
  desk_->Picture("folders-and-rules");
  const int ruled = desk_->BoundsOf("frmQMenu").Height();
  CloseMenu();
  ASSERT_TRUE(CloseAndWait(*desk_));
  StartWith({{.FTitle = "Work", .FIcon = "", .FName = "C:\\Corvelle\\Work\\*.*/se-"}});
  ASSERT_TRUE(OpenMenu(*desk_, 2));
  const std::vector<std::string> merged{"alpha", "delta", "eta", "gamma", "zeta"};
  EXPECT_EQ(TitlesLike(merged), merged);
  // Two rules of 12 pixels each.
  EXPECT_EQ(ruled - desk_->BoundsOf("frmQMenu").Height(), 24);
  desk_->Picture("merged");
  Choose(5, 5);
  ASSERT_TRUE(desk_->Wait([this] { return !desk_->Launched().empty(); }));
  EXPECT_EQ(desk_->Launched()[0].Arguments,
            "\"C:\\Corvelle\\Work\\Letters\\zeta" + extension_ + "\"");
}

TEST_F(Folders, OneThatIsGoneLeavesTheRestOfTheMenu) {
  StartWith(
      {{.FTitle = "Gone", .FIcon = "", .FName = "C:\\nowhere\\*.*/u"}, Witness(*desk_, "left")});
  ASSERT_TRUE(OpenMenu(*desk_, 2));
  Choose(1, 1);
  ASSERT_TRUE(desk_->Wait([this] { return !desk_->Launched().empty(); }));
  EXPECT_EQ(desk_->Launched()[0].Arguments, "left");
  EXPECT_TRUE(desk_->Messages().empty());
}

}  // namespace
}  // namespace corvelle::scenario
