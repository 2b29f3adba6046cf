#include <gtest/gtest.h>

#include "customize/MirrorView.h"
#include "customize/TreeMerge.h"
#include "customize/Walk.h"

namespace corvelle {
namespace {

TEST(TakeMerged, MakesTheTreeTheMergedSetAndCanBeTakenBack) {
  for (unsigned seed = 1; seed <= 100; ++seed) {
    EditorBench here;
    MirrorView view(here.Editor.Tree);
    here.Open(EditorBench::Usual());
    EditorBench there;
    Walk ours(here, seed);
    Walk theirs(there, seed + 1000);
    for (int i = 0; i < 8; ++i) {
      ours.Step();
      theirs.Step();
    }
    const MenuSet before = here.Editor.Tree.ToMenuSet();
    const MergedSet merged =
        MergeTrees(EditorBench::Usual(), before, there.Editor.Tree.ToMenuSet());
    here.Editor.TakeMerged(merged);
    ASSERT_EQ(here.Editor.Tree.ToMenuSet(), merged.Set) << seed;
    ASSERT_TRUE(view.Agrees()) << seed;
    ASSERT_TRUE(here.Editor.Tree.IsInTree(here.Editor.Selected()));
    if (merged.Set == before) continue;
    EXPECT_EQ(here.Editor.History.UndoName(), "Changes Made Elsewhere");
    here.Editor.Undo();
    ASSERT_EQ(here.Editor.Tree.ToMenuSet(), before) << seed;
    ASSERT_TRUE(view.Agrees()) << seed;
  }
}

TEST(TakeMerged, KeepsWhatIsTypedIntoTheBoxesOfAnEntryThatStays) {
  EditorBench bench;
  bench.Pick("Alpha");
  bench.Editor.Boxes.txtTitle = "half typ";
  MenuSet theirs = EditorBench::Usual();
  theirs.Singles.clear();
  bench.Editor.TakeMerged(MergeTrees(EditorBench::Usual(), bench.Editor.Tree.ToMenuSet(), theirs));
  EXPECT_EQ(bench.Editor.Boxes.txtTitle, "half typ");
  bench.Pick("Letters");
  theirs.Menus.erase(theirs.Menus.begin());
  bench.Editor.TakeMerged(
      MergeTrees(bench.Editor.Tree.ToMenuSet(), bench.Editor.Tree.ToMenuSet(), theirs));
  EXPECT_EQ(bench.Editor.Selected(), kMenusRoot) << "the selected menu is gone";
  EXPECT_FALSE(bench.Editor.Boxes.Enabled);
}

}  // namespace
}  // namespace corvelle
