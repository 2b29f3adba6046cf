#include <gtest/gtest.h>

#include "forms/TextBox.h"

namespace corvelle::forms {
namespace {

TEST(WordStart, IsBeforeTheWordAndTheBlanksBehindIt) {
  struct Row {
    const char* Text;
    int Position;
    int Expected;
  };
  const Row rows[] = {
      {"one two", 7, 4},   {"one two", 5, 4}, {"one two", 4, 0}, {"one  ", 5, 0},
      {"   ", 3, 0},       {"", 0, 0},        {"one", 99, 0},    {"a \xF0\x9F\x98\x80", 4, 2},
      {"\xC3\xB6 b", 3, 2}};
  for (const Row& row : rows)
    EXPECT_EQ(WordStart(row.Text, row.Position), row.Expected) << row.Text;
}

}  // namespace
}  // namespace corvelle::forms
