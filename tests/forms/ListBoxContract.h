#pragma once

// List boxes on every home. See ControlsContract.h.

#include "forms/ControlsContract.h"
#include "forms/ListBox.h"

namespace corvelle::forms {

class ListBoxContract : public ControlsContract {
 protected:
  void SetUp() override {
    List.Move(150, 150, 3000, 1500);
    for (const char* text : {"alpha", "beta", "gamma", "delta"}) List.Add(text);
    List.Click = [this] { sheet_.Note("row " + std::to_string(List.Selected())); };
    List.DblClick = [this] { sheet_.Note("double " + std::to_string(List.Selected())); };
    Show();
    List.SetFocus();
    Settle();
  }
  /// Clicks in the middle of a row.
  void ClickRow(int row) {
    for (int y = 0; y < 100; ++y) {
      if (List.RowAt({20, y}) != row) continue;
      Click(List, 20, y + 5);
      return;
    }
    ADD_FAILURE() << "row " << row << " is not seen";
  }

  ListBox List{sheet_, "List"};
};

TEST_P(ListBoxContract, AClickChoosesARowAndTellsItOnce) {
  ClickRow(2);
  EXPECT_EQ(List.Selected(), 2);
  home_->Wait(700);
  ClickRow(2);
  EXPECT_EQ(sheet_.Seen, Texts{"row 2"});
  EXPECT_EQ(List.RowAt({20, 95}), -1) << "below the last row";
}

TEST_P(ListBoxContract, KeysGoFromRowToRow) {
  List.Select(0);
  home_->PressKey(key::Down);
  home_->PressKey(key::End);
  home_->PressKey(key::Up);
  home_->Type("b");
  EXPECT_EQ(sheet_.Seen, (Texts{"row 1", "row 3", "row 2", "row 1"}));
}

TEST_P(ListBoxContract, WhatTheProgramDoesIsNotTold) {
  List.Select(1);
  List.Insert(0, "first");
  EXPECT_EQ(List.Selected(), 2) << "the chosen row stays chosen";
  List.Remove(0);
  EXPECT_EQ(List.Selected(), 1);
  List.Remove(1);
  EXPECT_EQ(List.Selected(), -1);
  EXPECT_EQ(List.Items(), (Texts{"alpha", "gamma", "delta"}));
  List.Select(9);
  EXPECT_EQ(List.Selected(), -1);
  List.Clear();
  EXPECT_EQ(List.Count(), 0);
  EXPECT_EQ(sheet_.Seen, Texts{});
}

TEST_P(ListBoxContract, ADoubleClickActivatesTheRow) {
  ClickRow(1);
  home_->Wait(700);
  home_->DoubleClick();
  EXPECT_EQ(sheet_.Seen, (Texts{"row 1", "double 1"}));
}

TEST_P(ListBoxContract, ALongListIsScrolledByTheProgramAndTheWheel) {
  for (int row = 4; row < 60; ++row) List.Add("row " + std::to_string(row));
  EXPECT_EQ(List.TopRow(), 0);
  List.SetTopRow(10);
  EXPECT_EQ(List.TopRow(), 10);
  home_->MovePointer(At(List, 20, 20));
  home_->TurnWheel(-120);
  EXPECT_EQ(List.TopRow(), 13);
  List.Select(59);
  EXPECT_GT(List.TopRow(), 40) << "the chosen row is seen";
}

TEST_P(ListBoxContract, TheListOutlivesItsWindow) {
  List.Select(3);
  sheet_.Unload();
  Show();
  EXPECT_EQ(List.Selected(), 3);
  List.SetFocus();
  Settle();
  home_->PressKey(key::Up);
  EXPECT_EQ(List.Selected(), 2);
}

TEST_P(ListBoxContract, TheHandlerOfAChoiceMayEndTheForm) {
  List.Click = [this] { sheet_.Unload(); };
  home_->PressKey(key::Down);
  EXPECT_FALSE(sheet_.IsLoaded());
}

}  // namespace corvelle::forms
