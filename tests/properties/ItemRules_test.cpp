#include "properties/ItemRules.h"

#include <gtest/gtest.h>

namespace corvelle {
namespace {

TEST(ItemControls, EachKeyEnablesWhatCanBeEdited) {
  constexpr ItemControls kAll;
  constexpr ItemControls kButton{.Command = false, .CommandButtons = false};
  constexpr ItemControls kFixed{.Title = false,
                                .Icon = true,
                                .Command = false,
                                .CommandButtons = false,
                                .IconButtons = false,
                                .AddButtons = false};
  struct Row {
    const char* key;
    ItemControls expected;
  };
  const Row rows[] = {
      {"F2", kAll},        {"f13", kAll},       {"SingleButtons", kAll}, {"", kAll},
      {"B2", kButton},     {"b2", kButton},     {"B10", kButton},        {"B11", kButton},
      {"Toolbar", kFixed}, {"toolbar", kFixed}, {"Q1", kFixed},          {"B1", kFixed},
      {"Q2", kAll},
  };
  for (const Row& row : rows) EXPECT_EQ(ControlsFor(row.key), row.expected) << row.key;
}

TEST(ItemPlace, TellsWhatShowsTheEntry) {
  EXPECT_EQ(PlaceOf("B3"), ItemPlace::ToolbarButtons);
  EXPECT_EQ(PlaceOf("singlebuttons"), ItemPlace::SingleButtons);
  EXPECT_EQ(PlaceOf("F3"), ItemPlace::Menu);
  EXPECT_EQ(PlaceOf("Q1"), ItemPlace::Menu);
}

TEST(Targets, ArePathsOfTheDiskOnly) {
  using Paths = std::vector<std::string>;
  struct Row {
    const char* command;
    Paths expected;
  };
  const Row rows[] = {
      {"", {}},
      {"notepad.exe", {}},
      {"http://www.example.org", {}},
      {"mailto:someone@example.org", {}},
      {"CSIDL_DRIVES", {}},
      {"C:\\Tools\\tool.exe", {"C:\\Tools\\tool.exe", "C:\\Tools\\tool.exe.exe"}},
      {"  C:\\a.lnk ", {"C:\\a.lnk", "C:\\a.lnk.exe"}},
      {"C:\\a b c", {"C:\\a b c", "C:\\a b c.exe", "C:\\a", "C:\\a.exe", "C:\\a b", "C:\\a b.exe"}},
      {"\"C:\\a b\" /x", {"C:\\a b", "C:\\a b.exe"}},
      {"\"tool\" /x", {}},
      {"C:\\Tools\\*.exe /SU", {"C:\\Tools\\"}},
      {"\\\\server\\share\\x.doc", {"\\\\server\\share\\x.doc", "\\\\server\\share\\x.doc.exe"}},
      {"?C:\\x", {"C:\\x", "C:\\x.exe"}},
  };
  for (const Row& row : rows) EXPECT_EQ(TargetsOf(row.command), row.expected) << row.command;
}

}  // namespace
}  // namespace corvelle
