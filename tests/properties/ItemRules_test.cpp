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

}  // namespace
}  // namespace corvelle
