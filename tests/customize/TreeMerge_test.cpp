#include "customize/TreeMerge.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <random>
#include <string>
#include <vector>

#include "customize/RowMatch.h"

namespace corvelle {
namespace {

/// "a" is an entry with that title and a command of its own; "a=x" the same with the command "x".
MenuRecord Record(const std::string& text) {
  const std::size_t mark = text.find('=');
  if (text == "-") return NewSeparatorRecord();
  if (mark == std::string::npos) return {text, "", text + ".exe"};
  return {text.substr(0, mark), "", text.substr(mark + 1)};
}

std::string TextOf(const MenuRecord& record) {
  if (record == MenuRecord()) return "";
  if (record == NewSeparatorRecord()) return "-";
  const bool own = record.FName == record.FTitle + ".exe";
  return own ? record.FTitle : record.FTitle + "=" + record.FName;
}

/// "Games: a b c | Letters: d / e f": two menus and two single buttons.
MenuSet Set(const std::string& text) {
  MenuSet set;
  std::string word;
  bool singles = false;
  bool head = true;
  for (const char c : text + " ") {
    if (c != ' ') {
      word += c;
      continue;
    }
    if (word == "|") {
      head = true;
    } else if (word == "/") {
      singles = true;
    } else if (!word.empty() && singles) {
      set.Singles.push_back(Record(word));
    } else if (!word.empty() && head) {
      set.Menus.push_back({Record(word.substr(0, word.size() - 1)), {}});
      head = false;
    } else if (!word.empty()) {
      set.Menus.back().Items.push_back(Record(word));
    }
    word.clear();
  }
  return set;
}

std::string TextOf(const MenuSet& set) {
  std::string text;
  for (const Menu& menu : set.Menus) {
    text += (text.empty() ? "" : " | ") + TextOf(menu.Head) + ":";
    for (const MenuRecord& item : menu.Items) text += " " + TextOf(item);
  }
  if (!set.Singles.empty()) text += text.empty() ? "/" : " /";
  for (const MenuRecord& single : set.Singles) text += " " + TextOf(single);
  return text;
}

std::string TextOf(const std::vector<MergeConflict>& conflicts) {
  std::string text;
  for (const MergeConflict& c : conflicts) {
    const char* const kinds[] = {"both", "deleted here", "deleted there"};
    text += (text.empty() ? "" : ", ") + std::string(kinds[static_cast<int>(c.Kind)]) + " " +
            std::to_string(c.Menu) + "." + std::to_string(c.Item) + " " + TextOf(c.Ours) + "~" +
            TextOf(c.Theirs);
  }
  return text;
}

struct MergeRow {
  const char* name;
  const char* base;
  const char* ours;
  const char* theirs;
  const char* merged;
  const char* conflicts = "";
};

TEST(TreeMerge, CarriesWhatWasMadeElsewhereIntoTheTree) {
  const MergeRow rows[] = {
      {"nothing anywhere", "A: a b", "A: a b", "A: a b", "A: a b"},
      {"an item there", "A: a b", "A: a b c", "A: a x b", "A: a x b c"},
      {"items at the same place", "A: a b", "A: a c b", "A: a x y b", "A: a x y c b"},
      {"the same item on both sides", "A: a", "A: a c", "A: a c", "A: a c"},
      {"a deletion there", "A: a b c", "A: a b c d", "A: a c", "A: a c d"},
      {"a deletion on both sides", "A: a b c", "A: a c", "A: a c", "A: a c"},
      {"different deletions", "A: a b c", "A: b c", "A: a b", "A: b"},
      {"a change there", "A: a b", "A: b a", "A: a=1 b", "A: b a=1"},
      {"changes of two entries", "A: a b", "A: a=1 b", "A: a b=2", "A: a=1 b=2"},
      {"the same change", "A: a b", "A: a=1 b", "A: a=1 b", "A: a=1 b"},
      {"an order there", "A: a b c", "A: a b=1 c", "A: c a b", "A: c a b=1"},
      {"an order here", "A: a b c", "A: c a b", "A: a b=1 c", "A: c a b=1"},
      {"orders of both", "A: a b c d", "A: d a b c", "A: b a c d", "A: b d a c"},
      {"an item behind one that moved", "A: a b c", "A: c a b", "A: a b c x", "A: c x a b"},
      {"one to another menu there", "A: a b | B: c", "A: a b | B: c d", "A: b | B: a c",
       "A: b | B: a c d"},
      {"one to another menu here", "A: a b | B: c", "A: b | B: c a", "A: a b x | B: c",
       "A: b x | B: c a"},
      {"a separator deleted there", "A: a - b - c", "A: a - b - c d", "A: a b - c", "A: a b - c d"},
      {"another separator there", "A: a b c - d", "A: a b c - d e", "A: a - b c - d",
       "A: a - b c - d e"},
      {"a menu there", "A: a | B: b", "A: a x | B: b", "A: a | B: b | C: c",
       "A: a x | B: b | C: c"},
      {"a menu deleted there", "A: a | B: b", "A: a x | B: b", "A: a", "A: a x"},
      {"menus in another order there", "A: a | B: b | C: c", "A: a | B: b x | C: c",
       "C: c | A: a | B: b", "C: c | A: a | B: b x"},
      {"a moved menu with a new item there", "A: a | B: b | C: c", "A: a | B: b | C: c y",
       "C: c | B: b x | A: a", "C: c y | B: b x | A: a"},
      {"a renamed menu there", "A: a b | B: b", "A: a b x | B: b", "Z: a b | B: b",
       "Z: a b x | B: b"},
      {"an item in a menu that moved here", "A: a | B: b | C: c", "C: c | A: a | B: b",
       "A: a | B: b | C: c x", "C: c x | A: a | B: b"},
      {"a hidden menu there", "A: a | B: b", "A: a | B: b x", "A: a | B=/h: b", "A: a | B=/h: b x"},
      {"single buttons", "A: a / s t", "A: a / t", "A: a / s x t", "A: a / x t"},
      {"single buttons in another order", "/ s t u", "/ s t u v", "/ u s t", "/ u s t v"},
      {"moved on both sides: ours", "A: a b c", "A: c a b", "A: a c b", "A: c a b"},
      {"moved there, changed here, without a command", "A: d= a b", "A: d=1 a b",
       "A: a b d=", "A: a b d=1"},
      {"a menu moved and changed there, changed here", "A: a | B: b | C: c", "A: a | B: b y | C: c",
       "B: b x | A: a | C: c", "B: b x y | A: a | C: c"},
      {"different separators deleted", "A: x a - b - c y", "A: x=1 a b - c y=1", "A: x a - b c y",
       "A: x=1 a b c y=1"},
      {"everything gone there", "A: a / s", "A: a / s", "", ""},
      {"everything gone here", "A: a / s", "", "A: a / s", ""},
  };
  for (const MergeRow& row : rows) {
    const MergedSet merged = MergeTrees(Set(row.base), Set(row.ours), Set(row.theirs));
    EXPECT_EQ(TextOf(merged.Set), row.merged) << row.name;
    EXPECT_EQ(TextOf(merged.Conflicts), "") << row.name;
  }
}

TEST(TreeMerge, TellsWhatBothSidesTouched) {
  const MergeRow rows[] = {
      {"a changed item", "A: a b", "A: a=1 b", "A: a=2 b", "A: a=1 b", "both 0.0 a=1~a=2"},
      {"changed here, deleted there", "A: a b", "A: a b=1", "A: a", "A: a b=1",
       "deleted there 0.1 b=1~"},
      {"deleted here, changed there", "A: a b", "A: a", "A: a b=2", "A: a b=2",
       "deleted here 0.1 ~b=2"},
      {"a menu's button", "A: a", "A=1: a", "A=2: a", "A=1: a", "both 0.-1 A=1~A=2"},
      {"a menu changed here and deleted there", "A: a | B: b", "A: a | B: b x", "A: a",
       "A: a | B: b x", "deleted there 1.-1 B~"},
      {"a menu deleted here and changed there", "A: a | B: b", "B: b", "A: a x | B: b",
       "A: a x | B: b", "deleted here 0.-1 ~A"},
      {"a single button", "/ s t", "/ s=1 t", "/ s=2 t", "/ s=1 t", "both -1.0 s=1~s=2"},
      {"renamed on both sides and moved there", "A: a=k b c", "A: x=k b c", "A: b c y=k",
       "A: b c x=k", "both 0.2 x=k~y=k"},
      {"one entry replaced by two others", "A: a b c", "A: a x c", "A: a y c", "A: a x c",
       "both 0.1 x~y"},
  };
  for (const MergeRow& row : rows) {
    const MergedSet merged = MergeTrees(Set(row.base), Set(row.ours), Set(row.theirs));
    EXPECT_EQ(TextOf(merged.Set), row.merged) << row.name;
    EXPECT_EQ(TextOf(merged.Conflicts), row.conflicts) << row.name;
  }
}

TEST(TreeMerge, SaysWhereEachEntryWasInTheTree) {
  const MergedSet merged = MergeTrees(Set("A: a b | B: b / s"), Set("N: n | A: a b c | B: b / s t"),
                                      Set("A: x a=1 b | B: b | C: d / s"));
  ASSERT_EQ(TextOf(merged.Set), "N: n | A: x a=1 b c | B: b | C: d / s t");
  const std::vector<MergedMenuOrigin> expected = {
      {0, {0}}, {1, {-1, 0, 1, 2}}, {2, {0}}, {-1, {-1}}};
  EXPECT_EQ(merged.Menus, expected);
  EXPECT_EQ(merged.Singles, (std::vector<int>{0, 1}));
}

// ---- whatever was changed ----

/// A user who changes a set in every way that the strip and the window know.
class Editor {
 public:
  Editor(unsigned seed, std::string mark) : random_(seed), mark_(std::move(mark)) {}

  void Edit(MenuSet& set) {
    switch (Below(9)) {
      case 0:
        InsertAt(set.Menus, Menu{New(), {New(), New()}});
        break;
      case 1:
        if (!set.Menus.empty()) TakeFrom(set.Menus);
        break;
      case 2:
        if (!set.Menus.empty()) InsertAt(set.Menus, TakeFrom(set.Menus));
        break;
      case 3:
        if (!set.Menus.empty()) Change(AnyOf(set.Menus).Head);
        break;
      case 4:
        InsertAt(RowOf(set), Below(4) == 0 ? NewSeparatorRecord() : New());
        break;
      case 5:
        Take(RowOf(set));
        break;
      case 6: {
        std::vector<MenuRecord>& row = RowOf(set);
        if (!row.empty()) Change(AnyOf(row));
        break;
      }
      case 7: {
        std::vector<MenuRecord>& row = RowOf(set);
        if (!row.empty()) InsertAt(row, TakeFrom(row));
        break;
      }
      default: {
        std::vector<MenuRecord>& row = RowOf(set);
        if (row.empty()) break;
        const MenuRecord carried = TakeFrom(row);
        InsertAt(RowOf(set), carried);
        break;
      }
    }
  }

  std::size_t Below(std::size_t n) {
    return std::uniform_int_distribution<std::size_t>(0, n - 1)(random_);
  }

 private:
  MenuRecord New() {
    const std::string title = mark_ + std::to_string(++made_);
    return {title, "", title + ".exe"};
  }
  void Change(MenuRecord& record) {
    std::string& field = Below(2) == 0 ? record.FTitle : record.FName;
    field = mark_ + "changed" + std::to_string(++made_);
  }
  template <class T>
  T& AnyOf(std::vector<T>& row) {
    return row[Below(row.size())];
  }
  template <class T>
  T TakeFrom(std::vector<T>& row) {
    const auto at = row.begin() + static_cast<std::ptrdiff_t>(Below(row.size()));
    T taken = *at;
    row.erase(at);
    return taken;
  }
  void Take(std::vector<MenuRecord>& row) {
    if (!row.empty()) static_cast<void>(TakeFrom(row));
  }
  template <class T>
  void InsertAt(std::vector<T>& row, const T& entry) {
    row.insert(row.begin() + static_cast<std::ptrdiff_t>(Below(row.size() + 1)), entry);
  }
  std::vector<MenuRecord>& RowOf(MenuSet& set) {
    const std::size_t row = Below(set.Menus.size() + 1);
    return row == set.Menus.size() ? set.Singles : set.Menus[row].Items;
  }

  std::mt19937 random_;
  std::string mark_;
  int made_ = 0;
};

std::vector<MenuRecord> AllOf(const MenuSet& set) {
  std::vector<MenuRecord> all = set.Singles;
  for (const Menu& menu : set.Menus) {
    all.push_back(menu.Head);
    all.insert(all.end(), menu.Items.begin(), menu.Items.end());
  }
  return all;
}

bool Has(const std::vector<MenuRecord>& all, const MenuRecord& record) {
  return std::find(all.begin(), all.end(), record) != all.end();
}

struct Sides {
  MenuSet Base, Ours, Theirs;
};

Sides MakeSides(unsigned seed) {
  Sides sides;
  Editor maker(seed, "b");
  for (int i = 0; i < 30; ++i) maker.Edit(sides.Base);
  sides.Ours = sides.Theirs = sides.Base;
  Editor here(seed + 1'000'000, "o");
  Editor there(seed + 2'000'000, "t");
  for (std::size_t i = here.Below(8); i > 0; --i) here.Edit(sides.Ours);
  for (std::size_t i = there.Below(8); i > 0; --i) there.Edit(sides.Theirs);
  return sides;
}

constexpr unsigned kSeeds = 1000;

TEST(TreeMergeProperty, WithoutAChangeOfOursItIsTheirs) {
  for (unsigned seed = 0; seed < kSeeds; ++seed) {
    const Sides s = MakeSides(seed);
    const MergedSet merged = MergeTrees(s.Base, s.Base, s.Theirs);
    ASSERT_EQ(TextOf(merged.Set), TextOf(s.Theirs)) << seed << " from " << TextOf(s.Base);
    ASSERT_TRUE(merged.Conflicts.empty()) << seed;
  }
}

TEST(TreeMergeProperty, WithoutAChangeOfTheirsItIsOurs) {
  for (unsigned seed = 0; seed < kSeeds; ++seed) {
    const Sides s = MakeSides(seed);
    const MergedSet merged = MergeTrees(s.Base, s.Ours, s.Base);
    ASSERT_EQ(TextOf(merged.Set), TextOf(s.Ours)) << seed << " from " << TextOf(s.Base);
    ASSERT_TRUE(merged.Conflicts.empty()) << seed;
  }
}

TEST(TreeMergeProperty, TheSameChangesOnBothSidesAreMadeOnce) {
  for (unsigned seed = 0; seed < kSeeds; ++seed) {
    const Sides s = MakeSides(seed);
    const MergedSet merged = MergeTrees(s.Base, s.Ours, s.Ours);
    ASSERT_EQ(TextOf(merged.Set), TextOf(s.Ours)) << seed << " from " << TextOf(s.Base);
    ASSERT_TRUE(merged.Conflicts.empty()) << seed;
  }
}

TEST(TreeMergeProperty, NoEntryIsLostAndNoneIsInvented) {
  int conflicts = 0;
  for (unsigned seed = 0; seed < kSeeds; ++seed) {
    const Sides s = MakeSides(seed);
    const MergedSet merged = MergeTrees(s.Base, s.Ours, s.Theirs);
    std::vector<MenuRecord> told;
    for (const MergeConflict& conflict : merged.Conflicts) told.push_back(conflict.Theirs);
    conflicts += static_cast<int>(told.size());
    const std::vector<MenuRecord> base = AllOf(s.Base);
    const std::vector<MenuRecord> ours = AllOf(s.Ours);
    const std::vector<MenuRecord> theirs = AllOf(s.Theirs);
    const std::vector<MenuRecord> all = AllOf(merged.Set);
    const std::string sides = TextOf(s.Base) + "\n" + TextOf(s.Ours) + "\n" + TextOf(s.Theirs) +
                              "\n" + TextOf(merged.Set);
    for (const MenuRecord& record : ours) {
      // One separator is like another: each side may have deleted one of its own.
      if (record == NewSeparatorRecord()) continue;
      const bool mustStay = !Has(base, record) || Has(theirs, record);
      ASSERT_TRUE(!mustStay || Has(all, record) || Has(told, record))
          << seed << ": " << TextOf(record) << " of ours\n"
          << sides;
      // What was made here is never left to a question.
      ASSERT_TRUE(Has(base, record) || Has(all, record)) << seed << ": " << TextOf(record);
    }
    for (const MenuRecord& record : theirs) {
      if (record == NewSeparatorRecord()) continue;
      const bool mustStay = !Has(base, record) || Has(ours, record);
      ASSERT_TRUE(!mustStay || Has(all, record) || Has(told, record))
          << seed << ": " << TextOf(record) << " of theirs\n"
          << sides;
    }
    for (const MenuRecord& record : all) {
      ASSERT_TRUE(Has(ours, record) || Has(theirs, record)) << seed << ": " << TextOf(record);
    }
  }
  EXPECT_GT(conflicts, 100);
}

TEST(TreeMergeProperty, TheOriginsLeadToTheTreesEntries) {
  for (unsigned seed = 0; seed < kSeeds; ++seed) {
    const Sides s = MakeSides(seed);
    const MergedSet merged = MergeTrees(s.Base, s.Ours, s.Theirs);
    ASSERT_EQ(merged.Menus.size(), merged.Set.Menus.size());
    ASSERT_EQ(merged.Singles.size(), merged.Set.Singles.size());
    std::vector<int> seen;
    for (std::size_t m = 0; m < merged.Menus.size(); ++m) {
      const MergedMenuOrigin& origin = merged.Menus[m];
      ASSERT_EQ(origin.Items.size(), merged.Set.Menus[m].Items.size()) << seed;
      if (origin.Menu < 0) continue;
      ASSERT_LT(origin.Menu, static_cast<int>(s.Ours.Menus.size())) << seed;
      seen.push_back(origin.Menu);
      for (const int item : origin.Items) {
        ASSERT_LT(item, static_cast<int>(
                            s.Ours.Menus[static_cast<std::size_t>(origin.Menu)].Items.size()))
            << seed;
      }
    }
    std::sort(seen.begin(), seen.end());
    ASSERT_TRUE(std::adjacent_find(seen.begin(), seen.end()) == seen.end()) << seed;
  }
}

TEST(TreeMerge, ManyMenusInAnotherOrderEachWithAnItemMore) {
  MenuSet base;
  for (int m = 0; m < 300; ++m) {
    Menu menu{Record("m" + std::to_string(m)), {}};
    for (int i = 0; i < 100; ++i) {
      menu.Items.push_back(Record(std::to_string(m) + "." + std::to_string(i)));
    }
    base.Menus.push_back(menu);
  }
  MenuSet ours = base;
  std::reverse(ours.Menus.begin(), ours.Menus.end());
  MenuSet theirs = base;
  for (Menu& menu : theirs.Menus) menu.Items.push_back(Record("x"));
  const MergedSet merged = MergeTrees(base, ours, theirs);
  ASSERT_EQ(merged.Set.Menus.size(), 300U);
  EXPECT_EQ(merged.Set.Menus[0].Head, Record("m299"));
  EXPECT_EQ(merged.Set.Menus[0].Items.size(), 101U);
  EXPECT_TRUE(merged.Conflicts.empty());
}

// Too many to be compared each with each.
TEST(TreeMerge, InALongRowAChangedEntryIsKnownByItsNeighbours) {
  MenuSet base;
  for (int i = 0; i < 600; ++i) base.Singles.push_back(Record(std::to_string(i)));
  MenuSet ours = base;
  ours.Singles[0] = Record("ours");
  MenuSet theirs = base;
  theirs.Singles[0] = Record("theirs");
  theirs.Singles[599] = Record("last");
  theirs.Singles.erase(theirs.Singles.begin() + 300);
  const MergedSet merged = MergeTrees(base, ours, theirs);
  EXPECT_EQ(TextOf(merged.Conflicts), "both -1.0 ours~theirs");
  EXPECT_EQ(merged.Set.Singles.size(), 599U);
  EXPECT_EQ(merged.Set.Singles.back(), Record("last"));
}

TEST(OutOfOrder, LeavesTheLongestAscendingRow) {
  EXPECT_EQ(OutOfOrder({}), std::vector<bool>());
  EXPECT_EQ(OutOfOrder({0, 1, 2}), (std::vector<bool>{false, false, false}));
  EXPECT_EQ(OutOfOrder({2, 0, 1}), (std::vector<bool>{true, false, false}));
  EXPECT_EQ(OutOfOrder({-1, 3, -1, 1, 2}), (std::vector<bool>{false, true, false, false, false}));
}

}  // namespace
}  // namespace corvelle
