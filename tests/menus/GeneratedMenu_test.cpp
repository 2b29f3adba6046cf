#include "menus/folders/GeneratedMenu.h"

#include <gtest/gtest.h>

#include "base/CodePage.h"
#include "core/MenuFile.h"

namespace corvelle {
namespace {

using namespace std::string_literals;

const Windows1252 kAnsi;

std::vector<MenuRecord> InTheFile(const GeneratedMenu& menu) {
  return ParseRecords(GeneratedBytes(menu.Items(), menu.Source(), kAnsi), kAnsi);
}

TEST(GeneratedMenu, EndsWhereRecordNumbersEnd) {
  GeneratedMenu menu({{"Button", "", ""}, {"Folder", "", "C:\\*"}, {"Last", "", ""}}, kAnsi);
  menu.BeginItem(2);
  int added = 0;
  while (menu.AddEntry(2, {"x", "x", "x"})) ++added;
  EXPECT_EQ(added, kMaxRecords - 1);
  EXPECT_TRUE(menu.IsFull());
  menu.AddRule();
  menu.CopySource(menu.SourceCount());
  EXPECT_EQ(menu.Count(), kMaxRecords);
  EXPECT_EQ(GeneratedBytes(menu.Items(), menu.Source(), kAnsi).size(),
            static_cast<std::size_t>(kMaxRecords) * kRecordLength);
}

TEST(GeneratedMenu, TakesADamagedTitleAsWhatIsShownOfIt) {
  GeneratedMenu menu({{"Button", "", ""}, {std::string("a\0b", 3), "i", "c"}}, kAnsi);
  menu.CopySource(2);
  EXPECT_EQ(menu.Items()[1], ItemOf({"a", "i", "c"}, 2));
  EXPECT_EQ(InTheFile(menu)[1], (MenuRecord{"a\0002"s, "i", "c"}));
}

TEST(GeneratedMenu, ShowsATitleAsItsFieldHoldsItAndKeepsTheNameWhole) {
  const std::string name = std::string(49, 'n') + "\xE6\x97\xA5";
  GeneratedMenu menu({{"Button", "", ""}}, kAnsi);
  menu.CopySource(1);
  menu.AddEntry(2, {name, "3", "CSIDL_DRIVES"}, name);
  EXPECT_EQ(menu.Items()[1].Title, std::string(49, 'n'));
  EXPECT_EQ(menu.Items()[0].Origin, (EntryOrigin{1, ""}));
  EXPECT_EQ(menu.Items()[1].Origin, (EntryOrigin{5002, name}));
  EXPECT_EQ(InTheFile(menu)[1].FTitle, std::string(45, 'n') + "\0005002"s);
}

TEST(GeneratedMenu, TheFileKeepsWhatFollowsANulInAnIconOfTheSource) {
  const std::string marked = "i\0/h"s;
  GeneratedMenu menu({{"Button", "", ""}, {"a", marked, "c"}}, kAnsi);
  menu.CopySource(2);
  EXPECT_EQ(menu.Items()[1].Icon, "i");
  EXPECT_EQ(InTheFile(menu)[1].FIcon, marked);
}

TEST(GeneratedMenu, TheFileLeavesOutACommandThatItsFieldWouldCut) {
  GeneratedMenu menu({{"Button", "", ""}}, kAnsi);
  EXPECT_TRUE(menu.AddEntry(2, {"fits", "", std::string(kNameWidth, 'n')}));
  EXPECT_TRUE(menu.AddEntry(2, {"too long", "", std::string(kNameWidth + 1, 'n')}));
  EXPECT_EQ(menu.Count(), 2);
  ASSERT_EQ(InTheFile(menu).size(), 1U);
  EXPECT_EQ(InTheFile(menu)[0].FName, std::string(kNameWidth, 'n'));
}

}  // namespace
}  // namespace corvelle
