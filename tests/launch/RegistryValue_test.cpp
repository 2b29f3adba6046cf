#include "launch/RegistryValue.h"

#include <gtest/gtest.h>

#include "sim/SimRegistry.h"

namespace corvelle {
namespace {

using Bytes = std::vector<unsigned char>;

TEST(TextOfValue, TellsEveryKindOfValue) {
  struct Row {
    const char* What;
    RegistryValue Value;
    const char* Expected;
  };
  const Row rows[] = {
      {"text", std::string("C:\\x \xD0\x96"), "C:\\x \xD0\x96"},
      {"empty text", std::string(), ""},
      {"zero", std::uint32_t{0}, "0"},
      {"number", std::uint32_t{1033}, "1033"},
      {"greatest number", std::uint32_t{4294967295}, "4294967295"},
      {"bytes", Bytes{0, 1, 171, 255}, "00 01 AB FF"},
      {"one byte", Bytes{16}, "10"},
      {"no bytes", Bytes{}, ""},
  };
  for (const Row& row : rows) EXPECT_EQ(TextOfValue(row.Value), row.Expected) << row.What;
}

TEST(ReadRegistryValue, GivesTheTextOrLeavesItAsItWas) {
  sim::SimRegistry keys;
  keys.Set(RegistryRoot::ClassesRoot, "http", "", std::uint32_t{7});
  std::string text = "before";
  EXPECT_FALSE(ReadRegistryValue(keys, RegistryRoot::ClassesRoot, "https", "", text));
  EXPECT_FALSE(ReadRegistryValue(keys, RegistryRoot::LocalMachine, "http", "", text));
  EXPECT_EQ(text, "before");
  EXPECT_TRUE(ReadRegistryValue(keys, RegistryRoot::ClassesRoot, "HTTP", "", text));
  EXPECT_EQ(text, "7");
}

}  // namespace
}  // namespace corvelle
