#include "base/Wildcard.h"

#include <gtest/gtest.h>

#include <string>

namespace corvelle {
namespace {

TEST(FitsPattern, TakesPatternsAsTheShellDoes) {
  struct Row {
    const char* name;
    const char* pattern;
    bool fits;
  };
  const Row rows[] = {
      {"BMENU001.MNU", "*.mnu", true},
      {"bmenu001.mnu", "*.MNU", true},
      {"a.mnux", "*.mnu", false},
      {"a.mn", "*.mnu", false},
      {"anything", "*", true},
      {"anything", "*.*", true},
      {"", "*", true},
      {"", "", true},
      {"a", "", false},
      {"a", "*.", true},
      {"a.b", "*.", false},
      {"a", "a?", true},
      {"ab.c", "a?.c", true},
      {"a.c", "a?.c", true},
      {"abc.c", "a?.c", false},
      {"abc", "?", false},
      {"abc", "???", true},
      {"abc", "?????", true},
      {"tmenu424.dat", "tmenu4*.dat", true},
      {"tmenu3.dat", "tmenu4*.dat", false},
      {"corvelle.exe", "corvelle.*", true},
      {"corvelle", "corvelle.*", false},
      {"a.b.c", "*.c", true},
      {"a.b.c", "*.b", false},
      {"abcabc", "*abc", true},
      {"abcab", "*abc", false},
      {"aXbXc", "a*b*c", true},
      {"aXbX", "a*b*c", false},
      {"ab", "a**b", true},
      {"\xC3\xA4.txt", "\xC3\x84.*", true},
      {"\xC3\xA4.txt", "?.txt", true},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(FitsPattern(row.name, row.pattern), row.fits) << row.name << " " << row.pattern;
  }
}

TEST(FitsPattern, ManyStarsTakeNoLong) {
  std::string pattern;
  for (int i = 0; i < 60; ++i) pattern += "a*";
  EXPECT_FALSE(FitsPattern(std::string(250, 'a'), pattern + "b"));
  EXPECT_TRUE(FitsPattern(std::string(250, 'a') + "b", pattern + "b"));
}

}  // namespace
}  // namespace corvelle
