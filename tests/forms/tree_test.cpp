#include "forms/TreeView.h"

#include <gtest/gtest.h>

#include "forms/TestForm.h"
#include "sim/World.h"

namespace corvelle::forms {
namespace {

class Trees : public testing::Test {
 protected:
  Trees() {
    Tree.Move(0, 0, 3000, 1500);
    first = Tree.Insert(kNoNode, kNoNode, {.Text = "first"});
    parent = Tree.Insert(kNoNode, kNoNode, {.Text = "parent"});
    Tree.Insert(parent, kNoNode, {.Text = "child"});
    form.Show();
    world.Desktop.Pump();
  }
  /// Pixels of the tree that look different from a picture taken before.
  int Changed(const Canvas& before) {
    world.Desktop.Pump();
    const auto now = world.Desktop.PictureOfWindow(Tree.hWnd()).Pixels;
    int count = 0;
    for (int y = 0; y < now->Size().height; ++y) {
      for (int x = 0; x < now->Size().width; ++x) {
        count += now->PixelAt({x, y}) != before.PixelAt({x, y});
      }
    }
    return count;
  }

  sim::World world;
  TestForm form{world.Windows()};
  TreeView Tree{form, "Tree"};
  NodeId first = kNoNode;
  NodeId parent = kNoNode;
};

// Under Wine the line of the system's own tree stays once it is there.
TEST_F(Trees, TheInsertionLineIsTakenAway) {
  const auto before = world.Desktop.PictureOfWindow(Tree.hWnd()).Pixels;
  Tree.SetInsertMark(first, true);
  EXPECT_GT(Changed(*before), 20);
  Tree.SetInsertMark(kNoNode, false);
  EXPECT_EQ(Changed(*before), 0);
}

// Under Wine the system's own tree does not ask before it closes a node.
TEST_F(Trees, ClosingANodeMayBeRefused) {
  Tree.Expand(parent, true);
  Tree.Select(parent);
  Tree.SetFocus();
  bool may = false;
  Tree.Expanding = [&may](NodeId, bool) { return may; };
  world.Desktop.PressKey(key::Left);
  EXPECT_TRUE(Tree.IsExpanded(parent));
  may = true;
  world.Desktop.PressKey(key::Left);
  EXPECT_FALSE(Tree.IsExpanded(parent));
}

}  // namespace
}  // namespace corvelle::forms
