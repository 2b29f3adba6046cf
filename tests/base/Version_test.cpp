#include "base/Version.h"

#include <gtest/gtest.h>

#include <string>

namespace corvelle {

TEST(Version, IsANumberOfTwoParts) {
  const std::string text(kVersion);
  const std::size_t point = text.find('.');
  ASSERT_NE(point, std::string::npos) << text;
  EXPECT_GE(std::stoi(text.substr(0, point)), 4);
  EXPECT_EQ(text.find_first_not_of("0123456789."), std::string::npos) << text;
}

}  // namespace corvelle
