// What the window does to show many menus, counted.

#include <gtest/gtest.h>

#include "customize/EditorBench.h"

namespace corvelle {
namespace {

/// Counts what it is told.
class CountingView final : public CustTreeView {
 public:
  explicit CountingView(CustTree& tree) : tree_(tree) { tree_.SetView(this); }
  CountingView(const CountingView&) = delete;
  CountingView& operator=(const CountingView&) = delete;
  ~CountingView() override { tree_.SetView(nullptr); }

  void TreeCleared() override { ++Calls; }
  void NodeAdded(CustRef) override { ++Calls; }
  void NodeRemoved(CustRef) override { ++Calls; }
  void NodeMoved(CustRef) override { ++Calls; }
  void NodeChanged(CustRef) override { ++Calls; }
  void ChildrenReordered(CustRef) override { ++Calls; }

  int Calls = 0;

 private:
  CustTree& tree_;
};

int CallsToOpen(int menus, int items) {
  MenuSet set;
  for (int i = 0; i < menus; ++i) {
    Menu menu{EditorBench::Entry("m"), {}};
    for (int item = 0; item < items; ++item) menu.Items.push_back(EditorBench::Entry("i"));
    set.Menus.push_back(std::move(menu));
  }
  EditorBench bench;
  CountingView view(bench.Editor.Tree);
  bench.Open(set);
  return view.Calls;
}

TEST(Opening, TellsTheViewOfEachNodeAFixedNumberOfTimes) {
  // The tree and its two roots; of a menu: the button, its picture, the placeholder that goes; and
  // the items.
  EXPECT_EQ(CallsToOpen(0, 0), 3);
  for (const int menus : {1, 10, 100, 999}) {
    for (const int items : {1, 10}) {
      EXPECT_EQ(CallsToOpen(menus, items), 3 + menus * (3 + items)) << menus << " " << items;
    }
  }
}

}  // namespace
}  // namespace corvelle
