#include "base/WebAddress.h"

#include <gtest/gtest.h>

namespace corvelle {

TEST(WebAddresses, BeginWithOneOfTwoWords) {
  struct Row {
    std::string_view Text;
    bool Is;
    bool IsPlain;
    std::size_t At;
  };
  constexpr std::size_t none = std::string_view::npos;
  const Row rows[] = {
      {"http://a", true, true, 0},
      {"https://a", true, true, 0},
      {"HTTP://a", true, false, 0},
      {"HttpS://a", true, false, 0},
      {"http:/a", false, false, none},
      {"httpss://a", false, false, none},
      {"http", false, false, none},
      {"", false, false, none},
      {" http://a", false, false, 1},
      {"x=HTTPS://a/http://b", false, false, 2},
      {"x=http://a/https://b", false, false, 2},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(IsWebAddress(row.Text), row.Is) << row.Text;
    EXPECT_EQ(IsPlainWebAddress(row.Text), row.IsPlain) << row.Text;
    EXPECT_EQ(FindWebAddress(row.Text), row.At) << row.Text;
  }
}

}  // namespace corvelle
