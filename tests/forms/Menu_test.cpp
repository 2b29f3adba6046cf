#include "forms/Menu.h"

#include <gtest/gtest.h>

namespace corvelle::forms {
namespace {

TEST(MenuAccelerator, IsReadFromBehindTheTab) {
  struct Row {
    const char* Caption;
    std::optional<Accelerator> Expected;
  };
  const Row rows[] = {
      {"&Save\tCtrl+S", Accelerator{'S', {.Ctrl = true}}},
      {"Rename\tF2", Accelerator{key::F2, {}}},
      {"Last\tF24", Accelerator{135, {}}},
      {"Separator\tShift+Ins", Accelerator{key::Insert, {.Shift = true}}},
      {"Both\tctrl+shift+z", Accelerator{'Z', {.Shift = true, .Ctrl = true}}},
      {"Delete\tDel", Accelerator{key::Delete, {}}},
      {"Ctrl+S", std::nullopt},
      {"None\t", std::nullopt},
      {"Unknown\tCtrl+Wheel", std::nullopt},
      {"No such key\tF25", std::nullopt},
  };
  for (const Row& row : rows) EXPECT_EQ(AcceleratorOf(row.Caption), row.Expected) << row.Caption;
}

TEST(MenuAccelerator, StandsForTheLineThatCanBeChosen) {
  const std::vector<PopupItem> items = {
      {.Caption = "Gray\tCtrl+G", .Enabled = false},
      {.Caption = "File", .Items = {{.Caption = "Save\tCtrl+S"}, {.Caption = "Exit"}}},
      {.Caption = "Off", .Enabled = false, .Items = {{.Caption = "In it\tF5"}}},
      {.Caption = "Again\tCtrl+G"}};
  EXPECT_EQ(LineOf(items, {'S', {.Ctrl = true}}), 2);
  EXPECT_EQ(LineOf(items, {'G', {.Ctrl = true}}), 6) << "the gray one does not count";
  EXPECT_EQ(LineOf(items, {key::F5, {}}), popup::kNothing);
  EXPECT_EQ(CountLines(items), 7);
  EXPECT_EQ(LineAt(items, 3)->Caption, "Exit");
  EXPECT_EQ(LineAt(items, 5)->Caption, "In it\tF5");
  EXPECT_EQ(LineAt(items, 7), nullptr);
}

}  // namespace
}  // namespace corvelle::forms
