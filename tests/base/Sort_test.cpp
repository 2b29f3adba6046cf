#include "base/Sort.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace corvelle {
namespace {

using Texts = std::vector<std::string>;

TEST(SortTexts, SortsByTextWithoutRegardToCase) {
  Texts texts = {"b", "A", "C", "a", "B"};
  SortTexts(texts);
  EXPECT_EQ(texts, (Texts{"A", "a", "B", "b", "C"}));
}

TEST(SortTexts, SortsNumbersAsText) {
  Texts texts = {"BMENU999.MNU", "BMENU1000.MNU", "BMENU100.MNU", "BMENU002.MNU"};
  SortTexts(texts);
  EXPECT_EQ(texts, (Texts{"BMENU002.MNU", "BMENU100.MNU", "BMENU1000.MNU", "BMENU999.MNU"}));
}

TEST(SortTexts, GivesTheSameOrderWhateverTheOrderBefore) {
  Texts texts = {"x", "X", "", "\xC3\xA4", "\xC3\x84", "\xFF", "a b", "a", "10", "9"};
  Texts expected = texts;
  SortTexts(expected);
  std::mt19937 random(1);
  for (int i = 0; i < 100; ++i) {
    std::shuffle(texts.begin(), texts.end(), random);
    Texts sorted = texts;
    SortTexts(sorted);
    ASSERT_EQ(sorted, expected);
  }
}

}  // namespace
}  // namespace corvelle
