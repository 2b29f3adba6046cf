#include "properties/ButtonOrder.h"

#include <gtest/gtest.h>

#include "base/CodePage.h"

namespace corvelle {
namespace {

constexpr std::size_t kNone = ButtonOrder::kNone;

ButtonNode Node(const std::string& title, const std::string& name = {}) {
  const Windows1252 ansi;
  return MakeButtonNode("C:\\M\\" + title, FormatRecord({title, "Button", name}, ansi), ansi);
}

std::string Titles(const ButtonOrder& order) {
  std::string titles;
  for (const ButtonNode& node : order.Nodes()) titles += node.Title;
  return titles;
}

ButtonOrder Four() {
  ButtonOrder order;
  for (const char* title : {"a", "b", "c", "d"}) order.Add(Node(title));
  return order;
}

TEST(NodeTag, HoldsThePathAndWhetherTheButtonIsHidden) {
  using namespace std::string_literals;
  EXPECT_EQ(NodeTag("C:\\x.mnu", false), "C:\\x.mnu\0/h"s);
  EXPECT_EQ(NodeTag("C:\\x.mnu", true), "C:\\x.mnu\0"s);
  EXPECT_EQ(PathOfTag("C:\\x.mnu\0/h"s), "C:\\x.mnu");
  EXPECT_EQ(PathOfTag("C:\\x.mnu"), "C:\\x.mnu");
  EXPECT_FALSE(IsShownByTag("C:\\x.mnu\0/h"s));
  EXPECT_TRUE(IsShownByTag("C:\\x.mnu\0"s));
  EXPECT_TRUE(IsShownByTag("C:\\x.mnu"));
}

TEST(ButtonNode, IsCheckedUnlessItsThirdFieldHidesIt) {
  EXPECT_TRUE(Node("a").Checked);
  EXPECT_TRUE(Node("a", "C:\\x.exe").Checked);
  EXPECT_FALSE(Node("a", "/h").Checked);
  EXPECT_FALSE(Node("a", "/H").Checked);
  EXPECT_FALSE(Node("a", "/ h").Checked);
}

TEST(ButtonNode, UncheckingReplacesACommandAndCheckingAgainLeavesTheFieldEmpty) {
  EXPECT_EQ(NameFor("C:\\x.exe", false), "/h");
  EXPECT_EQ(NameFor("/h", true), "");
  EXPECT_EQ(NameFor("/ H", true), "");
  EXPECT_EQ(NameFor("C:\\x.exe", true), "C:\\x.exe");
  EXPECT_EQ(NameFor("", true), "");
}

TEST(ButtonNode, ItsRecordKeepsAllOtherBytes) {
  const Windows1252 ansi;
  std::string stored = FormatRecord({"", "x.ico", "/h"}, ansi);
  stored.replace(0, 2, "\xC3\xA9");  // as no writer of today would store it
  ButtonNode node = MakeButtonNode("C:\\x.mnu", stored, ansi);
  EXPECT_EQ(RecordFor(node, ansi), stored);
  node.Tag = NodeTag("C:\\x.mnu", true);
  EXPECT_EQ(RecordFor(node, ansi), stored.substr(0, 310) + std::string(260, ' '));
}

TEST(ButtonNode, LosesACommandOnlyWhenItIsHiddenNow) {
  ButtonNode node = Node("Tools", "C:\\x.exe");
  EXPECT_FALSE(LosesCommand(node));
  node.Checked = false;
  EXPECT_TRUE(LosesCommand(node));
  EXPECT_EQ(LossText(node), "Apply hides \"Tools\" and removes its command:");
  EXPECT_FALSE(LosesCommand(Node("a", "/h")));
  ButtonNode empty = Node("a");
  empty.Checked = false;
  EXPECT_FALSE(LosesCommand(empty));
}

TEST(ButtonOrder, UpAndDownStopAtTheEnds) {
  ButtonOrder order = Four();
  EXPECT_EQ(order.Up(0), kNone);
  EXPECT_EQ(order.Down(3), kNone);
  EXPECT_EQ(Titles(order), "abcd");
  EXPECT_EQ(order.Up(2), 1U);
  EXPECT_EQ(Titles(order), "acbd");
  EXPECT_EQ(order.Down(1), 2U);
  EXPECT_EQ(Titles(order), "abcd");
  EXPECT_EQ(order.Up(7), kNone);
  EXPECT_EQ(order.Down(kNone), kNone);
}

TEST(ButtonOrder, ADroppedNodeTakesThePlaceOfItsTarget) {
  struct Row {
    std::size_t from;
    std::size_t target;
    const char* expected;
    std::size_t at;
  };
  const Row rows[] = {{0, 3, "bcda", 3},    {3, 0, "dabc", 0},     {1, 2, "acbd", 2},
                      {2, 1, "acbd", 1},    {1, 1, "abcd", kNone}, {1, 9, "abcd", kNone},
                      {9, 1, "abcd", kNone}};
  for (const Row& row : rows) {
    ButtonOrder order = Four();
    EXPECT_EQ(order.Drop(row.from, row.target), row.at) << row.from << " on " << row.target;
    EXPECT_EQ(Titles(order), row.expected) << row.from << " on " << row.target;
  }
}

TEST(ButtonOrder, AMovedNodeGetsANewKeyAndKeepsItsBox) {
  ButtonOrder order = Four();
  EXPECT_EQ(order.Nodes()[3].Key, "B4");
  order.SetChecked(2, false);
  order.Up(2);
  EXPECT_EQ(order.Nodes()[1].Key, "B5");
  EXPECT_FALSE(order.Nodes()[1].Checked);
  EXPECT_FALSE(IsShownByTag(order.Nodes()[1].Tag));
  EXPECT_EQ(order.Find("b5"), 1U);
  EXPECT_EQ(order.Find("B3"), kNone);
}

TEST(ButtonOrder, CheckNodesCopiesTheBoxesIntoTheTags) {
  ButtonOrder order = Four();
  order.SetChecked(0, false);
  order.SetChecked(9, false);
  EXPECT_TRUE(IsShownByTag(order.Nodes()[0].Tag));
  order.CheckNodes();
  EXPECT_FALSE(IsShownByTag(order.Nodes()[0].Tag));
  EXPECT_EQ(PathOfTag(order.Nodes()[0].Tag), "C:\\M\\a");
  order.SetChecked(0, true);
  order.CheckNodes();
  EXPECT_TRUE(IsShownByTag(order.Nodes()[0].Tag));
}

TEST(ButtonOrder, KeysAreNotGivenTwiceAfterTheListWasReadAgain) {
  ButtonOrder order = Four();
  order.Clear();
  EXPECT_TRUE(order.Empty());
  order.Add(Node("e"));
  EXPECT_EQ(order.Nodes()[0].Key, "B5");
}

}  // namespace
}  // namespace corvelle
