#include "search/EngineList.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "base/Text.h"
#include "search/QueryUrl.h"
#include "search/SearchTexts.h"

namespace corvelle {

namespace {

using Engines = std::vector<SearchEngine>;

/// The text as UTF-16.
std::string Utf16(const std::string& ascii, bool bigEndian) {
  std::string bytes = bigEndian ? "\xFE\xFF" : "\xFF\xFE";
  for (const char character : ascii) {
    if (bigEndian) bytes += '\0';
    bytes += character;
    if (!bigEndian) bytes += '\0';
  }
  return bytes;
}

std::string ShippedList() {
  std::ifstream file(CORVELLE_ENGINE_LIST, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

TEST(ParseEngines, GivesEachPairOfLinesInTheOrderOfTheFile) {
  struct Row {
    const char* name;
    std::string bytes;
    Engines expected;
  };
  const Engines two = {{"One", "https://one/[]"}, {"Two", "https://two/[utf8]"}};
  const std::string plain = "NAME=One\r\nURL=https://one/[]\r\nNAME=Two\r\nURL=https://two/[utf8]";
  const Row rows[] = {
      {"an empty file", "", {}},
      {"two engines", plain, two},
      {"keys in small letters", "name=One\nurl=https://one/[]\n", {{"One", "https://one/[]"}}},
      {"blanks around lines and values",
       "   NAME=  One \n  URL=  https://one/[]  ",
       {{"One", "https://one/[]"}}},
      {"lines of other forms between the engines",
       "; a note\n\nNAME=One\nURL=https://one/[]\nhello\nURL=stray\n",
       {{"One", "https://one/[]"}}},
      {"an end after a name", "NAME=One", {{"One", ""}}},
      {"another line after a name", "NAME=One\n\nURL=https://one/[]", {{"One", ""}}},
      {"two names in a row", "NAME=One\nNAME=Two\nURL=u[]", {{"One", ""}, {"Two", "u[]"}}},
      {"a name that is empty", "NAME=\nURL=u[]", {{"", "u[]"}}},
      {"a key with a blank before the equals sign", "NAME =One\nURL=u[]", {}},
      {"a NUL in a line", std::string("NAME=O\0ne\nURL=u[]", 17), {{"O", "u[]"}}},
      {"letters of the code page", "NAME=Caf\xE9\nURL=u[]", {{"Caf\xC3\xA9", "u[]"}}},
      {"letters in UTF-8", "NAME=Caf\xC3\xA9\nURL=u[]", {{"Caf\xC3\xA9", "u[]"}}},
      {"the mark of UTF-8", "\xEF\xBB\xBF" + plain, two},
      {"UTF-16", Utf16(plain, false), two},
      {"UTF-16, the other byte first", Utf16(plain, true), two},
      {"UTF-16 with an odd byte at the end", Utf16(plain, false) + "x", two},
      {"Macintosh line ends", "NAME=One\rURL=https://one/[]", {{"One", "https://one/[]"}}},
  };
  for (const Row& row : rows) EXPECT_EQ(ParseEngines(row.bytes, kAnsi), row.expected) << row.name;
}

TEST(ShippedEngines, AreManyAndEachHasANameOfItsOwn) {
  const Engines engines = ParseEngines(ShippedList(), kAnsi);
  EXPECT_GE(engines.size(), 12U);
  std::set<std::string> names;
  for (const SearchEngine& engine : engines) {
    EXPECT_FALSE(engine.Name.empty());
    EXPECT_TRUE(names.insert(UpperCase(engine.Name)).second) << engine.Name << " comes twice";
  }
}

TEST(ShippedEngines, MakeASecureAddressThatAnyScriptFits) {
  for (const SearchEngine& engine : ParseEngines(ShippedList(), kAnsi)) {
    const auto url = QueryUrl(engine.Url, "caf\xC3\xA9 \xE6\x97\xA5");
    ASSERT_TRUE(url) << engine.Name;
    EXPECT_TRUE(url->starts_with("https://")) << engine.Name;
    const std::size_t query = url->find("caf%C3%A9+%E6%97%A5");
    ASSERT_NE(query, std::string::npos) << engine.Name;
    // A "+" is a blank only behind the question mark.
    EXPECT_LT(url->find('?'), query) << engine.Name;
    EXPECT_EQ(url->find_first_of("[] \""), std::string::npos) << engine.Name;
  }
}

TEST(ShippedEngines, AreListedInAFileThatWindowsEditorsShowWell) {
  const std::string list = ShippedList();
  ASSERT_FALSE(list.empty());
  for (std::size_t at = list.find('\n'); at != std::string::npos; at = list.find('\n', at + 1)) {
    ASSERT_GT(at, 0U);
    EXPECT_EQ(list[at - 1], '\r') << "line end at byte " << at;
  }
  for (const char character : list) EXPECT_LT(static_cast<unsigned char>(character), 128U);
}

}  // namespace corvelle
