#include <gtest/gtest.h>

#include "customize/EditorBench.h"

namespace corvelle {
namespace {

TEST(AddFiles, OfOneFileReplacesTheEntry) {
  EditorBench bench;
  bench.Pick("Alpha");
  bench.Editor.AddFiles({"C:\\Programs\\Edit.exe"});
  EXPECT_EQ(bench.BoxTexts(), "Edit;C:\\Programs\\Edit.exe;C:\\Programs\\Edit.exe");
  EXPECT_EQ(bench.Editor.LastFolder, "C:\\Programs");
  EXPECT_EQ(bench.SelectedKey(), "M4");
}

TEST(AddFiles, OfSeveralStandBehindTheFirstInTheOrderOfTheChoice) {
  EditorBench bench;
  bench.Pick("Beta");
  bench.Editor.AddFiles({"C:\\c.exe", "C:\\a.exe", "C:\\b.exe"});
  EXPECT_EQ(bench.Shape(),
            "Letters(Alpha c a b - Gamma) Tools(Hammer Anvil) - One(Only) Bare | Clock - Paint");
  EXPECT_EQ(bench.SelectedText(), "b");
  EXPECT_FALSE(bench.Editor.InsertAfter);
  bench.Pick("Clock");
  bench.Editor.AddFiles({"C:\\d.exe", "C:\\e.exe"});
  EXPECT_EQ(bench.Shape(),
            "Letters(Alpha c a b - Gamma) Tools(Hammer Anvil) - One(Only) Bare | d e - Paint");
}

TEST(DropFiles, StandSortedWithAFolderBeforeAFileOfItsName) {
  EditorBench bench;
  bench.Host.Folders = {"C:\\b"};
  bench.Pick("Beta");
  bench.Editor.DropFiles({"C:\\c.exe", "C:\\b.exe", "C:\\A.exe", "C:\\b"});
  EXPECT_EQ(bench.Shape(),
            "Letters(Alpha A b b c - Gamma) Tools(Hammer Anvil) - One(Only) Bare | Clock - Paint");
  const std::vector<CustRef>& items = bench.Editor.Tree.Children(bench.Node("Letters"));
  EXPECT_EQ(bench.Editor.Tree.At(items[2]).Entry.FileExe, "C:\\b");
  EXPECT_EQ(bench.Editor.Tree.At(items[3]).Entry.FileExe, "C:\\b.exe");
}

TEST(DropFiles, OnASingleButtonMakeSingleButtons) {
  EditorBench bench;
  bench.Pick("Paint");
  bench.Editor.DropFiles({"C:\\y.exe", "C:\\x.exe"});
  EXPECT_EQ(bench.Shape(),
            "Letters(Alpha Beta - Gamma) Tools(Hammer Anvil) - One(Only) Bare | Clock - x y");
}

TEST(DropFiles, AMenuButtonTakesTheFirstOnly) {
  EditorBench bench;
  bench.Pick("One");
  bench.Editor.DropFiles({"C:\\y.exe", "C:\\x.exe"});
  EXPECT_EQ(bench.Shape(),
            "Letters(Alpha Beta - Gamma) Tools(Hammer Anvil) - y(Only) Bare | Clock - Paint");
}

TEST(AddFiles, LeavesOutAndGivesWhatNoRecordHolds) {
  EditorBench bench;
  bench.Host.TooLong = {"C:\\c.exe"};
  bench.Pick("Beta");
  EXPECT_EQ(bench.Editor.AddFiles({"C:\\c.exe", "C:\\a.exe", "C:\\b.exe"}),
            std::vector<std::string>{"C:\\c.exe"});
  EXPECT_EQ(bench.Shape(),
            "Letters(Alpha a b - Gamma) Tools(Hammer Anvil) - One(Only) Bare | Clock - Paint");
  EXPECT_EQ(bench.SelectedText(), "b");
}

TEST(DropFiles, LeaveOutAndGiveWhatNoRecordHolds) {
  struct Row {
    const char* tooLong;
    const char* letters;
  };
  const Row rows[] = {{"C:\\a.exe", "Letters(Alpha b c - Gamma)"},
                      {"C:\\b.exe", "Letters(Alpha a c - Gamma)"},
                      {"C:\\c.exe", "Letters(Alpha a b - Gamma)"}};
  for (const Row& row : rows) {
    EditorBench bench;
    bench.Host.TooLong = {row.tooLong};
    bench.Pick("Beta");
    EXPECT_EQ(bench.Editor.DropFiles({"C:\\c.exe", "C:\\a.exe", "C:\\b.exe"}), bench.Host.TooLong);
    EXPECT_EQ(bench.Shape(),
              row.letters + std::string(" Tools(Hammer Anvil) - One(Only) Bare | Clock - Paint"));
  }
}

TEST(DropFiles, OfWhichNoRecordHoldsAnyChangeNothing) {
  EditorBench bench;
  bench.Host.TooLong = {"C:\\x.exe", "C:\\y.exe"};
  bench.Pick("Beta");
  const std::string before = bench.Shape();
  EXPECT_EQ(bench.Editor.DropFiles({"C:\\y.exe", "C:\\x.exe"}).size(), 2U);
  EXPECT_EQ(bench.Editor.AddFiles({"C:\\x.exe"}).size(), 1U);
  EXPECT_EQ(bench.Shape(), before);
  EXPECT_FALSE(bench.Editor.TreeChanged);
  EXPECT_FALSE(bench.Editor.History.CanUndo());
}

TEST(DropFiles, OnARootChangeNothing) {
  EditorBench bench;
  bench.Editor.DropFiles({"C:\\y.exe"});
  bench.Editor.AddFiles({"C:\\y.exe"});
  bench.Editor.DropAddress("http://a", "A");
  EXPECT_FALSE(bench.Editor.TreeChanged);
  EXPECT_FALSE(bench.Editor.History.CanUndo());
}

TEST(DropAddress, FillsTheEntry) {
  EditorBench bench;
  bench.Pick("Alpha");
  bench.Editor.DropAddress("http://a.example/x", " A page ");
  EXPECT_EQ(bench.BoxTexts(), "A page;http;http://a.example/x");
  EXPECT_TRUE(bench.Editor.TreeChanged);
}

}  // namespace
}  // namespace corvelle
