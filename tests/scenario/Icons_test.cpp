#include <gtest/gtest.h>

#include <algorithm>

#include "scenario/Strip.h"

namespace corvelle::scenario {
namespace {

constexpr char kFallback[] = "Icons\\W95MBX02.ICO";

bool Holds(const std::vector<std::string>& names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

TEST(Icons, AStartWithoutTheFolderUnpacksTheIconLibrary) {
  const auto desk = MakeDesk();
  desk->WriteFile(kFlagsFile, InstalledFlags());
  WriteMenu(*desk, 1, "One", {Witness(*desk, "one")});
  ASSERT_FALSE(desk->FolderExists("Icons"));
  ASSERT_TRUE(StartAndWait(*desk));
  const std::vector<std::string> names = desk->Files("Icons");
  EXPECT_TRUE(Holds(names, "W95MBX02.ICO"));
  EXPECT_TRUE(Holds(names, "FOLDER.ICO"));
  const auto category = desk->ReadFile("Icons\\Folders.ini");
  ASSERT_TRUE(category.has_value());
  EXPECT_NE(category->find("folder.ico\r\n"), std::string::npos);
  EXPECT_TRUE(desk->Messages().empty());
  desk->Picture("icons-unpacked");
}

TEST(Icons, AnInstalledProgramLeavesTheFolderAsItIs) {
  const auto desk = MakeDesk();
  desk->WriteFile(kFlagsFile, InstalledFlags());
  desk->WriteFile(kFallback, "mine");
  WriteMenu(*desk, 1, "One", {Witness(*desk, "one")});
  ASSERT_TRUE(StartAndWait(*desk));
  EXPECT_EQ(desk->Files("Icons"), std::vector<std::string>{"W95MBX02.ICO"});
  EXPECT_EQ(desk->ReadFile(kFallback), "mine");
}

TEST(Icons, WithoutTheMarkOfTheFirstUseTheFilesAreRenewedAndOthersStay) {
  const auto desk = MakeDesk();
  desk->WriteFile(kFlagsFile, InstalledFlags({2}));
  desk->WriteFile(kFallback, "old");
  desk->WriteFile("Icons\\mine.ico", "mine");
  WriteMenu(*desk, 1, "One", {Witness(*desk, "one")});
  ASSERT_TRUE(StartAndWait(*desk));
  EXPECT_NE(desk->ReadFile(kFallback), "old");
  EXPECT_EQ(desk->ReadFile("Icons\\mine.ico"), "mine");
  EXPECT_TRUE(Holds(desk->Files("Icons"), "FOLDER.ICO"));
}

}  // namespace
}  // namespace corvelle::scenario
