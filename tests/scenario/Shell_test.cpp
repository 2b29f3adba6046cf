// Folders of the shell and its context menus, from the menus of the program.

#include <gtest/gtest.h>

#include "core/MenuRecord.h"
#include "scenario/Strip.h"

namespace corvelle::scenario {
namespace {

constexpr std::string_view kTitle = "Zo\u00eb's tool";
constexpr std::string_view kUnknownDocument = "thing.qzx";

/// A menu of two entries: the witness's document and one for the witness.
void WriteDocumentMenu(Desk& desk) {
  WriteMenu(desk, 1, "One",
            {{.FTitle = "Document", .FIcon = "", .FName = desk.WitnessDocument()},
             Witness(desk, "second")});
}

TEST(SpecialFolder, ItsEntryStartsByAClick) {
  const auto desk = MakeDesk();
  desk->WriteFile(kFlagsFile, InstalledFlags());
  desk->MakeProgramsEntry(kTitle, "from-programs");
  WriteMenu(*desk, 1, "One",
            {{.FTitle = "Gone", .FIcon = "", .FName = "CSIDL_PROGRAMS\\No such entry"},
             {.FTitle = "Tool", .FIcon = "", .FName = "CSIDL_PROGRAMS\\" + std::string(kTitle)}});
  ASSERT_TRUE(StartAndWait(*desk));
  ASSERT_TRUE(OpenMenu(*desk, 2));
  ClickItem(*desk, ItemMiddle(*desk, 1, 2));
  ASSERT_TRUE(WaitForNoMenu(*desk));
  desk->Pause(500);
  EXPECT_TRUE(desk->Launched().empty());
  ASSERT_TRUE(OpenMenu(*desk, 2));
  ClickItem(*desk, ItemMiddle(*desk, 2, 2));
  ASSERT_TRUE(desk->Wait([&] { return !desk->Launched().empty(); }));
  EXPECT_EQ(desk->Launched()[0].Program, desk->WitnessProgram());
  EXPECT_EQ(desk->Launched()[0].Arguments, "from-programs");
  EXPECT_TRUE(desk->Messages().empty());
}

TEST(SpecialFolder, AnEntryWhoseNameNoTitleHoldsStartsFromItsMenu) {
  const auto desk = MakeDesk();
  desk->WriteFile(kFlagsFile, InstalledFlags());
  const std::string start = "A tool with a name that is a good deal longer";
  desk->MakeProgramsEntry(start + " than any title in a file, and its end counts", "long-name");
  WriteMenu(*desk, 1, "One", {{.FTitle = "All", .FIcon = "", .FName = "CSIDL_PROGRAMS"}});
  ASSERT_TRUE(StartAndWait(*desk));
  ASSERT_TRUE(OpenMenu(*desk, 2));
  // Other entries may stand there too: the generated file tells the order.
  int item = 0;
  int count = 0;
  ASSERT_TRUE(desk->Wait([&] {
    const std::string bytes = desk->ReadFile("Menus\\BMENU001.mfd").value_or("");
    count = RecordCount(bytes.size()) - 1;
    for (int i = 1; i <= count; ++i) {
      if (bytes.compare(static_cast<std::size_t>(i) * kRecordLength, start.size(), start) == 0) {
        item = i;
      }
    }
    return item != 0;
  }));
  ClickItem(*desk, ItemMiddle(*desk, item, count));
  ASSERT_TRUE(desk->Wait([&] { return !desk->Launched().empty(); }));
  EXPECT_EQ(desk->Launched()[0].Arguments, "long-name");
  EXPECT_TRUE(desk->Messages().empty());
}

TEST(ShellMenu, ComesUpByARightClickWhereTheOptionSaysSoAndItsCommandClosesTheMenu) {
  const auto desk = MakeDesk();
  desk->WriteFile(kFlagsFile, InstalledFlags({19}));
  WriteDocumentMenu(*desk);
  ASSERT_TRUE(StartAndWait(*desk));
  ASSERT_TRUE(OpenMenu(*desk, 2));
  desk->AnswerShellMenu('c');  // copies the file
  ClickItem(*desk, ItemMiddle(*desk, 1, 2), Button::Right);
  ASSERT_TRUE(desk->Wait([&] { return desk->ShellMenus() == 1; }));
  EXPECT_TRUE(WaitForNoMenu(*desk));
  EXPECT_EQ(desk->RunningCopies(), 1);
  EXPECT_TRUE(desk->Messages().empty());
}

TEST(ShellMenu, ComesUpWithCtrlWhereTheOptionPrefersThePopupAndEscLeavesTheMenu) {
  const auto desk = MakeDesk();
  desk->WriteFile(kFlagsFile, InstalledFlags());
  WriteDocumentMenu(*desk);
  ASSERT_TRUE(StartAndWait(*desk));
  ASSERT_TRUE(OpenMenu(*desk, 2));
  desk->AnswerShellMenu(0);
  desk->MovePointer(ItemMiddle(*desk, 1, 2));
  desk->Pause(100);
  desk->HoldKey(kKeyControl);
  desk->Press(Button::Right);
  desk->Release(Button::Right);
  desk->Pause(100);
  desk->LetKeyGo(kKeyControl);
  ASSERT_TRUE(desk->Wait([&] { return desk->ShellMenus() == 1; }));
  desk->Pause(500);
  EXPECT_TRUE(desk->IsVisible("frmQMenu"));
  // The menu still takes a choice.
  ClickItem(*desk, ItemMiddle(*desk, 2, 2));
  EXPECT_TRUE(desk->Wait([&] { return !desk->Launched().empty(); }));
}

// What the system then shows is its own affair.
TEST(UnknownDocument, IsHandedToTheSystemAndTheProgramGoesOn) {
  const auto desk = MakeDesk();
  desk->WriteFile(kFlagsFile, InstalledFlags());
  desk->WriteFile(kUnknownDocument, "some bytes");
  WriteMenu(
      *desk, 1, "One",
      {{.FTitle = "Thing", .FIcon = "", .FName = "C:\\Corvelle\\" + std::string(kUnknownDocument)},
       Witness(*desk, "second")});
  ASSERT_TRUE(StartAndWait(*desk));
  ASSERT_TRUE(OpenMenu(*desk, 2));
  ClickItem(*desk, ItemMiddle(*desk, 1, 2));
  ASSERT_TRUE(WaitForNoMenu(*desk));
  desk->Pause(1500);
  desk->Picture("unknown-document");
  EXPECT_EQ(desk->RunningCopies(), 1);
  EXPECT_TRUE(desk->Messages().empty());
  EXPECT_EQ(desk->ReadFile(kUnknownDocument), "some bytes");
}

}  // namespace
}  // namespace corvelle::scenario
