#include "menus/TypeAhead.h"

#include <gtest/gtest.h>

#include <vector>

namespace corvelle {
namespace {

using namespace std::string_literals;

TEST(TypeAheadKey, IsTheFirstLetterInLowerCaseAndThePage) {
  EXPECT_EQ(TypeAheadKey("Notepad", 0), "n0");
  EXPECT_EQ(TypeAheadKey("7-Zip", 12), "712");
  EXPECT_EQ(TypeAheadKey("\xC3\x89tude", 3), "\xC3\xA9\x33");
  EXPECT_EQ(TypeAheadKey("Notes\0005001"s, 1), "n1");
}

TEST(TypeAheadKey, OfABlankTitleBeginsWithANul) {
  EXPECT_EQ(TypeAheadKey("", 4), "\0004"s);
  EXPECT_EQ(TypeAheadKey("\00017"s, 4), "\0004"s);
}

TEST(TypeAheadPage, IsWhatFollowsTheLetter) {
  EXPECT_EQ(TypeAheadPage("n0"), 0);
  EXPECT_EQ(TypeAheadPage("712"), 12);
  EXPECT_EQ(TypeAheadPage("\xC3\xA9\x33"), 3);
  EXPECT_EQ(TypeAheadPage("\0004"s), 4);
  EXPECT_EQ(TypeAheadPage(""), 0);
}

TEST(TypeAhead, TakesTheCharactersFrom33To126) {
  EXPECT_FALSE(IsTypeAheadCharacter(13));
  EXPECT_FALSE(IsTypeAheadCharacter(32));
  EXPECT_TRUE(IsTypeAheadCharacter(33));
  EXPECT_TRUE(IsTypeAheadCharacter(126));
  EXPECT_FALSE(IsTypeAheadCharacter(127));
  EXPECT_FALSE(IsTypeAheadCharacter(0xE9));
}

// Two pages: alpha, beta, Bravo on the first, Charlie, (blank), alto on the second.
const std::vector<std::string> kKeys{"a0", "b0", "b0", "c1", "\0001"s, "a1"};

TEST(TypeAhead, GoldenSearches) {
  struct Row {
    const char* name;
    int curItem;
    int firstLabel;
    char32_t character;
    TypeAheadHit expected;
  };
  const Row rows[] = {
      {"from the first item", 0, 1, U'b', {2, 0, 3}},
      {"without a page from the first item", 0, 0, U'a', {1, 0, 2}},
      {"a repeat walks on", 3, 1, U'b', {3, 0, 4}},
      {"and around the end", 4, 1, U'b', {2, 0, 3}},
      {"a capital finds the same", 0, 1, U'B', {2, 0, 3}},
      {"only a later page holds it", 0, 1, U'c', {4, 1, 5}},
      {"without a cursor the page on show comes first", 0, 4, U'a', {6, 1, 7}},
      {"after the last item from the first on", 7, 4, U'a', {1, 0, 2}},
      {"the cursor's own item counts", 2, 1, U'b', {2, 0, 3}},
      {"nothing begins so", 3, 1, U'z', {}},
      {"a digit of a page number is no letter", 0, 1, U'0', {}},
  };
  for (const Row& row : rows) {
    const TypeAheadHit hit = FindTypeAhead(kKeys, row.curItem, row.firstLabel, row.character);
    EXPECT_EQ(hit, row.expected) << row.name << ": item " << hit.Item << " page " << hit.Page;
  }
}

TEST(TypeAhead, RepeatingALetterVisitsEveryItemWithItAndStartsOver) {
  std::vector<int> visited;
  int cursor = 0;
  for (int i = 0; i < 4; ++i) {
    const TypeAheadHit hit = FindTypeAhead(kKeys, cursor, 1, U'a');
    visited.push_back(hit.Item);
    cursor = hit.NextItem;
  }
  EXPECT_EQ(visited, (std::vector<int>{1, 6, 1, 6}));
}

TEST(TypeAhead, AnEmptyMenuHoldsNothing) {
  EXPECT_EQ(FindTypeAhead({}, 0, 1, U'a'), TypeAheadHit{});
  EXPECT_EQ(FindTypeAhead({}, 32767, 1, U'a'), TypeAheadHit{});
}

}  // namespace
}  // namespace corvelle
