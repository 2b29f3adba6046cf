#include "search/QueryUrl.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace corvelle {

TEST(EncodeQuery, WritesEachCharacterByItsCode) {
  struct Row {
    const char* name;
    const char* query;
    const char* expected;
  };
  const Row rows[] = {
      {"nothing", "", ""},
      {"letters and digits", "azAZ09", "azAZ09"},
      {"a blank", "a b", "a+b"},
      {"the plain three", "*-.", "*-."},
      {"33 to 41", "!\"#$%&'()", "%21%22%23%24%25%26%27%28%29"},
      {"43, 44 and 47", "+,/", "%2B%2C%2F"},
      {"58 to 64", ":;<=>?@", "%3A%3B%3C%3D%3E%3F%40"},
      {"91 to 96", "[\\]^_`", "%5B%5C%5D%5E%5F%60"},
      {"123 to 126", "{|}~", "%7B%7C%7D%7E"},
      {"127 and control characters", "\x7F\x1F\t", "\x7F\x1F\t"},
      {"letters with codes above 127", "caf\xC3\xA9 \xE6\x97\xA5", "caf\xC3\xA9+\xE6\x97\xA5"},
      {"a plus and letters", "a b+c", "a+b%2Bc"},
  };
  for (const Row& row : rows) EXPECT_EQ(EncodeQuery(row.query), row.expected) << row.name;
}

TEST(EncodeQueryUtf8, WritesAllThatIsBeyondAsciiInPerCentForm) {
  EXPECT_EQ(EncodeQueryUtf8("caf\xC3\xA9 \xE6\x97\xA5+*"), "caf%C3%A9+%E6%97%A5%2B*");
  EXPECT_EQ(EncodeQueryUtf8("\x7F"), "\x7F");
}

TEST(QueryUrl, PutsTheQueryInTheOnePlaceOfTheTemplate) {
  struct Row {
    const char* name;
    const char* urlTemplate;
    const char* query;
    std::optional<std::string> expected;
  };
  const Row rows[] = {
      {"in the middle", "http://s.example/?q=[x]&n=1", "a b+c", "http://s.example/?q=a+b%2Bc&n=1"},
      {"an empty pair", "http://s.example/?q=[]", "a", "http://s.example/?q=a"},
      {"characters beyond ASCII as they are", "http://s/[]", "\xC3\xA9", "http://s/\xC3\xA9"},
      {"as UTF-8 in per cent form", "http://s/[utf8]&x", "\xC3\xA9", "http://s/%C3%A9&x"},
      {"the word in other letters", "http://s/[ UTF8 ]", "\xC3\xA9", "http://s/%C3%A9"},
      {"another word", "http://s/[utf16]", "\xC3\xA9", "http://s/\xC3\xA9"},
      {"only the first pair", "http://s/[]/[]", "a", "http://s/a/[]"},
      {"two open brackets", "http://s/[a[b]c", "q", "http://s/qc"},
      {"two closing brackets", "http://s/[a]b]c", "q", "http://s/qb]c"},
      {"a bracket in the query", "http://s/[]&x", "]", "http://s/%5D&x"},
      {"the closing bracket first", "http://s/]x[y", "q", "http://s/]xqx[y"},
      {"the closing bracket first, with the word", "a]utf8[b", "\xC3\xA9", "a]utf8\xC3\xA9utf8[b"},
      {"no closing bracket", "http://s/[utf8", "q", std::nullopt},
      {"no open bracket", "http://s/utf8]", "q", std::nullopt},
      {"no brackets", "http://s/", "q", std::nullopt},
      {"an empty template", "", "q", std::nullopt},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(QueryUrl(row.urlTemplate, row.query), row.expected) << row.name;
  }
}

}  // namespace corvelle
