#include "menus/items/TypeAhead.h"

#include <gtest/gtest.h>

#include <vector>

namespace corvelle {
namespace {

TEST(TypeAheadLetter, IsTheFirstCharacterOfTheTitleIgnoringCase) {
  EXPECT_TRUE(BeginsWith("Notepad", U'n'));
  EXPECT_TRUE(BeginsWith("notepad", U'N'));
  EXPECT_TRUE(BeginsWith("7-Zip", U'7'));
  EXPECT_TRUE(BeginsWith("\xC3\x89tude", U'\u00E9'));
  EXPECT_FALSE(BeginsWith("Notepad", U'o'));
  EXPECT_FALSE(BeginsWith("", U'n'));
  EXPECT_FALSE(BeginsWith("", U'\0'));
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
const std::vector<MenuItem> kItems{{.Title = "alpha"},       {.Title = "beta"},
                                   {.Title = "Bravo"},       {.Title = "Charlie", .Page = 1},
                                   {.Title = "", .Page = 1}, {.Title = "alto", .Page = 1}};

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
    const TypeAheadHit hit = FindTypeAhead(kItems, row.curItem, row.firstLabel, row.character);
    EXPECT_EQ(hit, row.expected) << row.name << ": item " << hit.Item << " page " << hit.Page;
  }
}

TEST(TypeAhead, RepeatingALetterVisitsEveryItemWithItAndStartsOver) {
  std::vector<int> visited;
  int cursor = 0;
  for (int i = 0; i < 4; ++i) {
    const TypeAheadHit hit = FindTypeAhead(kItems, cursor, 1, U'a');
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
