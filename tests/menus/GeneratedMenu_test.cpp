#include "menus/GeneratedMenu.h"

#include <gtest/gtest.h>

#include "base/CodePage.h"

namespace corvelle {
namespace {

const Windows1252 kAnsi;

MenuRecord RecordAt(const GeneratedMenu& menu, int number) {
  const std::size_t at = (static_cast<std::size_t>(number) - 1) * kRecordLength;
  return ParseRecord(std::string_view(menu.Bytes()).substr(at), kAnsi);
}

TEST(GeneratedMenu, EndsWhereRecordNumbersEnd) {
  GeneratedMenu menu({{"Button", "", ""}, {"Folder", "", "C:\\*"}, {"Last", "", ""}}, kAnsi);
  menu.BeginItem(2);
  int added = 0;
  while (menu.AddEntry(2, "x", "x", "x")) ++added;
  EXPECT_EQ(added, kMaxRecords - 1);
  EXPECT_TRUE(menu.IsFull());
  menu.AddRule();
  menu.CopySource(menu.SourceCount());
  EXPECT_EQ(menu.Count(), kMaxRecords);
  EXPECT_EQ(menu.Bytes().size(), static_cast<std::size_t>(kMaxRecords) * kRecordLength);
}

TEST(GeneratedMenu, TakesADamagedTitleAsWhatIsShownOfIt) {
  GeneratedMenu menu({{"Button", "", ""}, {std::string("a\0b", 3), "i", "c"}}, kAnsi);
  menu.CopySource(2);
  EXPECT_EQ(RecordAt(menu, 2), (MenuRecord{std::string("a\0"
                                                       "2",
                                                       3),
                                           "i", "c"}));
}

TEST(GeneratedMenu, RefusesACommandThatItsFieldWouldCut) {
  GeneratedMenu menu({{"Button", "", ""}}, kAnsi);
  EXPECT_TRUE(menu.AddEntry(2, "fits", "", std::string(kNameWidth, 'n')));
  EXPECT_FALSE(menu.AddEntry(2, "too long", "", std::string(kNameWidth + 1, 'n')));
  EXPECT_EQ(menu.Count(), 1);
  EXPECT_EQ(RecordAt(menu, 1).FName, std::string(kNameWidth, 'n'));
}

}  // namespace
}  // namespace corvelle
