#include "search/QueryHistory.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "search/SearchTexts.h"

namespace corvelle {

namespace {

using Texts = std::vector<std::string>;

/// Queries "1" to the number.
QueryHistory Numbers(int last) {
  QueryHistory history;
  for (int i = 1; i <= last; ++i) EXPECT_TRUE(history.Add(std::to_string(i)));
  return history;
}

}  // namespace

TEST(QueryHistory, IsSeenNewestFirst) {
  EXPECT_EQ(QueryHistory().NewestFirst(), Texts{});
  EXPECT_EQ(Numbers(3).NewestFirst(), (Texts{"3", "2", "1"}));
}

TEST(QueryHistory, AnEleventhQueryDropsTheOldestOne) {
  QueryHistory history = Numbers(10);
  EXPECT_EQ(history.HistoryCount, 10);
  EXPECT_EQ(history.History[0], "1");
  ASSERT_TRUE(history.Add("11"));
  EXPECT_EQ(history.HistoryCount, 10);
  EXPECT_EQ(history.NewestFirst(), (Texts{"11", "10", "9", "8", "7", "6", "5", "4", "3", "2"}));
}

TEST(QueryHistory, NeverExceedsTen) {
  QueryHistory history;
  for (int i = 0; i < 100; ++i) {
    ASSERT_TRUE(history.Add("q" + std::to_string(i)));
    ASSERT_LE(history.HistoryCount, 10);
    EXPECT_EQ(history.NewestFirst().front(), "q" + std::to_string(i));
  }
}

TEST(QueryHistory, AQueryInOtherCapitalsIsNotAddedTwice) {
  QueryHistory history = Numbers(2);
  ASSERT_TRUE(history.Add("Caf\xC3\xA9 au lait"));
  const QueryHistory before = history;
  EXPECT_FALSE(history.Add("CAF\xC3\x89 AU LAIT"));
  EXPECT_FALSE(history.Add("  1 "));
  EXPECT_EQ(history, before);
}

TEST(QueryHistory, AQueryThatWasDroppedMayComeAgain) {
  QueryHistory history = Numbers(11);
  EXPECT_FALSE(history.Holds("1"));
  EXPECT_TRUE(history.Add("1"));
}

TEST(QueryHistory, AnEmptyQueryIsNotAdded) {
  QueryHistory history;
  for (const char* query : {"", "   ", "\r\n"}) EXPECT_FALSE(history.Add(query));
  EXPECT_EQ(history, QueryHistory());
}

TEST(QueryHistory, ClearingLeavesNothingBehind) {
  QueryHistory history = Numbers(11);
  history.Clear();
  EXPECT_EQ(history, QueryHistory());
}

TEST(HistoryFile, HasOneQueryALineOldestFirst) {
  EXPECT_EQ(FormatHistory(QueryHistory(), kAnsi), "");
  EXPECT_EQ(FormatHistory(Numbers(3), kAnsi), "1\r\n2\r\n3\r\n");
  QueryHistory history;
  history.Add("caf\xC3\xA9");
  history.Add("\xE6\x97\xA5");
  EXPECT_EQ(FormatHistory(history, kAnsi), "caf\xE9\r\n\xE6\x97\xA5\r\n");
}

TEST(HistoryFile, ReadsBackWhatWasWritten) {
  QueryHistory history = Numbers(9);
  history.Add("caf\xC3\xA9 \xE6\x97\xA5");
  history.Add("two\r\nlines");
  EXPECT_EQ(history.NewestFirst().front(), "two  lines");
  EXPECT_EQ(ParseHistory(FormatHistory(history, kAnsi), kAnsi), history);
}

TEST(HistoryFile, OfALongFileTheNewestTenCount) {
  std::string bytes;
  for (int i = 1; i <= 14; ++i) bytes += std::to_string(i) + "\n";
  const QueryHistory history = ParseHistory(bytes, kAnsi);
  EXPECT_EQ(history.HistoryCount, 10);
  EXPECT_EQ(history.History[0], "5");
  EXPECT_EQ(history.NewestFirst().front(), "14");
}

TEST(HistoryFile, EmptyLinesAndNulsOfADamagedFileAreLeftOut) {
  const QueryHistory history =
      ParseHistory(std::string("\r\n\0\0\r\n  one  \r\n\r\ntw\0o\r\n", 24), kAnsi);
  EXPECT_EQ(history.NewestFirst(), (Texts{"tw", "one"}));
}

}  // namespace corvelle
