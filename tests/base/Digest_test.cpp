#include "base/Digest.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <set>
#include <string>
#include <string_view>

namespace corvelle {
namespace {

std::uint64_t Of(std::initializer_list<std::string_view> texts) {
  Digest digest;
  for (const std::string_view text : texts) digest.Add(text);
  return digest.Value();
}

// Files hold it.
TEST(Digest, IsTheSameInEveryBuild) {
  EXPECT_EQ(Of({}), 0xCBF29CE484222325ULL);
  EXPECT_EQ(Of({""}), 0xF8BB92CE26585846ULL);
  EXPECT_EQ(Of({"menu"}), 0xE09537614303DC61ULL);
  EXPECT_EQ(Of({"a text of more than eight bytes"}), 0xE0EB229F5E8CE00EULL);
}

TEST(Digest, TellsTheBorderBetweenTexts) {
  EXPECT_NE(Of({"ab", "c"}), Of({"a", "bc"}));
  EXPECT_NE(Of({"abc"}), Of({"abc", ""}));
  EXPECT_NE(Of({"abc"}), Of({std::string_view("abc\0", 4)}));
}

TEST(Digest, ChangesWithEveryBitOfAText) {
  const std::string text = "twenty-one bytes long";
  std::set<std::uint64_t> seen{Of({text})};
  for (std::size_t bit = 0; bit < text.size() * 8; ++bit) {
    std::string changed = text;
    changed[bit / 8] = static_cast<char>(changed[bit / 8] ^ (1 << (bit % 8)));
    EXPECT_TRUE(seen.insert(Of({changed})).second) << bit;
  }
}

}  // namespace
}  // namespace corvelle
