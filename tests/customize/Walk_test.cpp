#include "customize/Walk.h"

#include <gtest/gtest.h>

#include <set>

#include "base/CodePage.h"
#include "customize/MirrorView.h"
#include "customize/TreeKeys.h"

namespace corvelle {
namespace {

bool IsNumbered(std::string_view key) {
  return key.size() > 1 && key[1] != '0' &&
         key.find_first_not_of("0123456789", 1) == std::string_view::npos;
}

/// What holds after every command, whatever it was.
void ExpectSound(const EditorBench& bench, const MirrorView& view) {
  const CustTree& tree = bench.Editor.Tree;
  for (const CustRef node : tree.InOrder()) {
    const std::string& key = tree.At(node).Key;
    ASSERT_TRUE(IsNumbered(key)) << key;
    ASSERT_TRUE(IsMenuKey(key) || IsItemKey(key)) << key;
    const CustRef parent = tree.Parent(node);
    ASSERT_TRUE(!IsMenuKey(key) || parent == kMenusRoot) << key;
    ASSERT_TRUE(tree.IsRoot(parent) || tree.Parent(parent) == kMenusRoot) << key;
    ASSERT_TRUE(parent == kMenusRoot || tree.Children(node).empty()) << key;
    ASSERT_EQ(tree.FindKey(key), node) << "two nodes have the key " << key;
    ASSERT_LE(std::stoi(key.substr(1)), IsMenuKey(key) ? tree.MenuNum() : tree.ItemNum());
  }
  ASSERT_TRUE(view.Agrees());
  ASSERT_TRUE(tree.IsInTree(bench.Editor.Selected()));
  ASSERT_EQ(bench.Editor.Boxes.Enabled, !bench.Editor.OnRoot());
}

/// True if `part` comes in this order within `whole`.
bool InThisOrder(const std::vector<CustRef>& part, const std::vector<CustRef>& whole) {
  auto next = part.begin();
  for (const CustRef node : whole) {
    if (next != part.end() && *next == node) ++next;
  }
  return next == part.end();
}

TEST(RandomCommands, AHundredThousandLeaveTheTreeSound) {
  EditorBench bench;
  MirrorView view(bench.Editor.Tree);
  bench.Open(EditorBench::Usual());
  Walk walk(bench, 4711);
  for (int i = 0; i < 100000; ++i) {
    const std::vector<CustRef> before = bench.Editor.Tree.InOrder();
    const std::size_t known = bench.Editor.Tree.Known();
    std::set<CustRef> going;
    WalkEffect effect = WalkEffect::TimeTravel;
    const int roll = walk.Roll(20);
    if (roll == 0) {
      walk.Command = "undo";
      bench.Editor.Undo();
    } else if (roll == 1) {
      walk.Command = "redo";
      bench.Editor.Redo();
    } else {
      effect = walk.Step(25);
      // The children of a node that is out of the tree are still below it.
      going = {walk.Taken};
      const std::vector<CustRef>& below = bench.Editor.Tree.Children(walk.Taken);
      going.insert(below.begin(), below.end());
    }
    ExpectSound(bench, view);
    if (testing::Test::HasFatalFailure()) FAIL() << i << " " << walk.Command;
    if (i % 100 == 0) {
      ASSERT_EQ(view.Seen(), bench.Editor.Tree.ToMenuSet());
    }
    if (effect == WalkEffect::TimeTravel) continue;
    std::vector<CustRef> stayed;
    for (const CustRef node : before) {
      if (bench.Editor.Tree.IsInTree(node)) {
        stayed.push_back(node);
      } else {
        ASSERT_EQ(effect, WalkEffect::Takes) << i << " " << walk.Command;
        ASSERT_TRUE(going.contains(node)) << i << " " << walk.Command;
      }
    }
    if (effect != WalkEffect::Reorders) {
      ASSERT_TRUE(InThisOrder(stayed, bench.Editor.Tree.InOrder())) << i << " " << walk.Command;
    }
    ASSERT_LT(known, 5000U) << "nodes that cannot come back are kept";
  }
}

/// All that the tree would save, as the bytes of its records, with the keys.
std::string Bytes(const EditorBench& bench) {
  static const Windows1252 kAnsi;
  std::string bytes;
  const MenuSet set = bench.Editor.Tree.ToMenuSet();
  for (const Menu& menu : set.Menus) {
    bytes += "menu:" + FormatRecord(menu.Head, kAnsi);
    for (const MenuRecord& item : menu.Items) bytes += FormatRecord(item, kAnsi);
  }
  for (const MenuRecord& single : set.Singles) bytes += "single:" + FormatRecord(single, kAnsi);
  return bytes + bench.Keys();
}

TEST(UndoAndRedo, AnySequenceGoesBackToTheStartAndForthToTheEnd) {
  for (unsigned seed = 1; seed <= 200; ++seed) {
    EditorBench bench;
    MirrorView view(bench.Editor.Tree);
    bench.Open(EditorBench::Usual());
    Walk walk(bench, seed);
    std::vector<std::string> states = {Bytes(bench)};
    while (bench.Editor.History.Steps() < 1 + seed % CustHistory::kMostSteps) {
      walk.Step();
      if (bench.Editor.History.Steps() == states.size()) {
        states.push_back(Bytes(bench));
      } else {
        ASSERT_EQ(bench.Editor.History.Steps() + 1, states.size()) << walk.Command;
        ASSERT_EQ(Bytes(bench), states.back()) << walk.Command;
      }
    }
    for (std::size_t i = states.size() - 1; i > 0; --i) {
      ASSERT_EQ(Bytes(bench), states[i]) << "seed " << seed;
      ASSERT_TRUE(bench.Editor.Undo());
    }
    ASSERT_EQ(Bytes(bench), states.front()) << "seed " << seed;
    ASSERT_FALSE(bench.Editor.Undo());
    ASSERT_EQ(view.Seen(), EditorBench::Usual());
    for (std::size_t i = 1; i < states.size(); ++i) {
      ASSERT_TRUE(bench.Editor.Redo());
      ASSERT_EQ(Bytes(bench), states[i]) << "seed " << seed;
    }
    ASSERT_FALSE(bench.Editor.Redo());
    ASSERT_EQ(view.Seen(), bench.Editor.Tree.ToMenuSet());
  }
}

}  // namespace
}  // namespace corvelle
