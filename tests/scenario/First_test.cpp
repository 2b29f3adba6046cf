#include <gtest/gtest.h>

#include <algorithm>

#include "scenario/Strip.h"

namespace corvelle::scenario {
namespace {

int CountOf(const Desk& desk, std::string_view ending) {
  const std::vector<std::string> names = desk.Files("Menus");
  return static_cast<int>(std::count_if(
      names.begin(), names.end(), [&](const std::string& name) { return name.ends_with(ending); }));
}

TEST(FirstAtEachScale, AFirstStartFillsTheFolderAndTheStrip) {
  const auto desk = MakeDesk();
  desk->AnswerNext(kButtonNo);
  desk->MovePointer(FarAway(*desk));
  ASSERT_TRUE(StartAndWait(*desk));
  ASSERT_TRUE(desk->Wait([&] { return !desk->Messages().empty(); }));
  EXPECT_EQ(CountOf(*desk, ".MNU"), 5);
  EXPECT_GE(CountOf(*desk, ".BTN"), 4);
  EXPECT_EQ(CountOf(*desk, ".BTN") % 2, 0);
  EXPECT_EQ(ButtonCount(*desk), 6);
  const auto desktop = desk->ReadFile("Menus\\BMENU001.MNU");
  ASSERT_TRUE(desktop.has_value());
  EXPECT_EQ(desktop->size(), 2U * 570);
  EXPECT_EQ(desktop->substr(0, 8), "Desktop ");
  desk->Picture("first-strip");
  ASSERT_TRUE(OpenMenu(*desk, 6));
  desk->Picture("first-settings");
  desk->Key(kKeyEscape);
  ASSERT_TRUE(WaitForNoMenu(*desk));
  ASSERT_TRUE(OpenMenu(*desk, 3));
  desk->Picture("first-programs");
}

TEST(First, AnEmptyFolderLaterIsFilledOnYes) {
  const auto desk = MakeDesk();
  desk->WriteFile(kFlagsFile, InstalledFlags());
  desk->AnswerNext(kButtonYes);
  ASSERT_TRUE(StartAndWait(*desk));
  ASSERT_EQ(desk->Messages().size(), 1U);
  EXPECT_EQ(CountOf(*desk, ".MNU"), 5);
  EXPECT_EQ(ButtonCount(*desk), 6);
}

}  // namespace
}  // namespace corvelle::scenario
