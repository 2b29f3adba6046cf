#include "forms/ListRows.h"

#include <gtest/gtest.h>

#include <string>

#include "forms/ComboBox.h"
#include "forms/Form.h"
#include "sim/World.h"

namespace corvelle::forms {
namespace {

ListRows ThreeRows(int selected) {
  ListRows rows;
  for (const char* text : {"a", "b", "c"}) rows.Insert(rows.Count(), text);
  rows.Select(selected);
  return rows;
}

TEST(ListRows, TheChosenRowStaysChosenWhileOthersComeAndGo) {
  struct Row {
    int selected;
    int at;
    int afterInsert;
    int afterRemove;
  };
  const Row table[] = {
      {-1, 0, -1, -1}, {0, 0, 1, -1}, {0, 1, 0, 0}, {1, 0, 2, 0}, {1, 1, 2, -1}, {2, 1, 3, 1},
  };
  for (const Row& row : table) {
    ListRows inserted = ThreeRows(row.selected);
    EXPECT_TRUE(inserted.Insert(row.at, "new"));
    EXPECT_EQ(inserted.Text(row.at), "new");
    EXPECT_EQ(inserted.Selected(), row.afterInsert) << row.selected << " " << row.at;
    ListRows removed = ThreeRows(row.selected);
    EXPECT_TRUE(removed.Remove(row.at));
    EXPECT_EQ(removed.Count(), 2);
    EXPECT_EQ(removed.Selected(), row.afterRemove) << row.selected << " " << row.at;
  }
}

TEST(ListRows, WhatDoesNotExistChangesNothing) {
  ListRows rows = ThreeRows(1);
  EXPECT_FALSE(rows.Insert(-1, "x"));
  EXPECT_FALSE(rows.Insert(4, "x"));
  EXPECT_FALSE(rows.Remove(-1));
  EXPECT_FALSE(rows.Remove(3));
  EXPECT_EQ(rows.Count(), 3);
  EXPECT_EQ(rows.Selected(), 1);
  EXPECT_EQ(rows.Text(3), "");
  rows.Select(3);
  EXPECT_EQ(rows.Selected(), -1);
}

class BareForm final : public Form {
 public:
  explicit BareForm(WindowSystem& windows) : Form(windows, "frmBare") {}
};

// An unloaded box has no window, so nothing clears the selected line.
TEST(ComboBox, ThatIsNotLoadedForgetsTheTextOfARemovedChoice) {
  sim::World world;
  BareForm form(world.Windows());
  ComboBox box(form, "cmb", false);
  box.Add("a");
  box.Select(0);
  ASSERT_EQ(box.Text(), "a");
  box.Remove(0);
  EXPECT_EQ(box.Selected(), -1);
  EXPECT_EQ(box.Text(), "");
}

}  // namespace
}  // namespace corvelle::forms
