#include <gtest/gtest.h>

#include "scenario/Strip.h"

namespace corvelle::scenario {
namespace {

constexpr std::string_view kQuestion =
    "Quit any running application before deleting files from the Temp folder. "
    "Not doing so may lead to undesirable result. "
    "\r\n\r\n"
    "Continue ?";

TEST(BuiltInWord, IsCarriedOutByTheProgramItselfAndNoStopsIt) {
  const auto desk = MakeDesk();
  desk->WriteFile(kFlagsFile, InstalledFlags());
  WriteMenu(*desk, 1, "Words", {{.FTitle = "Clear", .FIcon = "", .FName = "?cleartempFOLDER"}});
  desk->MovePointer(FarAway(*desk));
  desk->AnswerNext(kButtonNo);
  ASSERT_TRUE(StartAndWait(*desk));
  ASSERT_TRUE(OpenMenu(*desk, 2));
  ClickItem(*desk, ItemMiddle(*desk, 1, 1));
  ASSERT_TRUE(desk->Wait([&] { return !desk->Messages().empty(); }));
  desk->Pause(300);
  ASSERT_EQ(desk->Messages().size(), 1U);
  EXPECT_EQ(desk->Messages()[0].Title, "Corvelle");
  std::string text = desk->Messages()[0].Text;
  std::string wanted(kQuestion);
  // A box may show its line ends as it likes.
  std::erase(text, '\r');
  std::erase(wanted, '\r');
  EXPECT_EQ(text, wanted);
  EXPECT_FALSE(desk->IsVisible("frmQMenu"));
  EXPECT_TRUE(desk->Launched().empty());
}

TEST(BuiltInWord, TheSearchForFilesIsTheSystemsOwn) {
  const auto desk = MakeDesk();
  desk->WriteFile(kFlagsFile, InstalledFlags());
  WriteMenu(*desk, 1, "Words", {{.FTitle = "Find", .FIcon = "", .FName = "FileFind"}});
  desk->MovePointer(FarAway(*desk));
  ASSERT_TRUE(StartAndWait(*desk));
  ASSERT_TRUE(OpenMenu(*desk, 2));
  ClickItem(*desk, ItemMiddle(*desk, 1, 1));
  ASSERT_TRUE(desk->Wait([&] { return !desk->Launched().empty(); }));
  desk->Pause(300);
  ASSERT_EQ(desk->Launched().size(), 1U);
  const Launch search = desk->Launched()[0];
  EXPECT_NE((search.Program + " " + search.Arguments).find("search-ms:query=&"), std::string::npos)
      << search.Program << " " << search.Arguments;
  EXPECT_TRUE(desk->Messages().empty());
}

}  // namespace
}  // namespace corvelle::scenario
