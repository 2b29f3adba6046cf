#include "customize/CustHistory.h"

#include <gtest/gtest.h>

#include <functional>

#include "customize/EditorBench.h"

namespace corvelle {
namespace {

TEST(History, NamesTheCommandAndTheNode) {
  struct Row {
    const char* name;
    const char* node;
    std::function<void(CustEditor&)> run;
  };
  const Row rows[] = {
      {"Delete Letters", "Letters", [](CustEditor& e) { e.Delete(); }},
      {"Restore Letters", "Letters", [](CustEditor& e) { e.Delete(), e.UndoDelete(); }},
      {"Cut Alpha", "Alpha", [](CustEditor& e) { e.Cut(); }},
      {"Paste Alpha", "Alpha", [](CustEditor& e) { e.Copy(), e.Paste(); }},
      {"Add Button", "Letters", [](CustEditor& e) { e.AddButton(); }},
      {"Insert Button", "Letters", [](CustEditor& e) { e.InsertButton(); }},
      {"Add Menu Item", "Alpha", [](CustEditor& e) { e.AddMenuItem(); }},
      {"Insert Menu Item", "Alpha", [](CustEditor& e) { e.InsertMenuItem(); }},
      {"Insert Separator", "Alpha", [](CustEditor& e) { e.InsertSeparator(); }},
      {"Hide Letters", "Letters", [](CustEditor& e) { e.HideButton(); }},
      {"Show Tools", "Tools", [](CustEditor& e) { e.HideButton(); }},
      {"Sort Tools", "Tools", [](CustEditor& e) { e.SortNode(); }},
      {"Move Beta", "Beta", [](CustEditor& e) { e.MoveSelectionUp(); }},
      {"Move Tools", "Tools", [](CustEditor& e) { e.MoveSelectionDown(); }},
      {"Duplicate Beta", "Beta", [](CustEditor& e) { e.Duplicate(); }},
      {"Insert Run", "Beta", [](CustEditor& e) { e.InsertModule(CustModule::RunDialog); }},
      {"Rename Beta", "Beta", [](CustEditor& e) { e.AfterLabelEdit(e.Selected(), "x"); }},
      {"Drop Files", "Beta",
       [](CustEditor& e) {
         e.DropFiles({"C:\\a", "C:\\b"});
       }},
      {"Add Files", "Beta",
       [](CustEditor& e) {
         e.AddFiles({"C:\\a", "C:\\b"});
       }},
      {"Edit Beta", "Beta", [](CustEditor& e) { e.AddFiles({"C:\\a"}); }},
  };
  for (const Row& row : rows) {
    EditorBench bench;
    bench.Pick(row.node);
    row.run(bench.Editor);
    EXPECT_EQ(bench.Editor.History.UndoName(), row.name);
  }
}

TEST(History, ADropOfTenFilesIsOneStep) {
  EditorBench bench;
  bench.Pick("Beta");
  std::vector<std::string> names;
  for (char name = 'a'; name < 'k'; ++name) names.push_back(std::string("C:\\") + name);
  bench.Editor.DropFiles(names);
  EXPECT_EQ(bench.Editor.Tree.InOrder().size(), 24U);
  EXPECT_EQ(bench.Editor.History.Steps(), 1U);
  EXPECT_TRUE(bench.Editor.Undo());
  EXPECT_EQ(bench.Editor.Tree.ToMenuSet(), EditorBench::Usual());
  EXPECT_EQ(bench.SelectedText(), "Beta") << "what was selected before";
  EXPECT_TRUE(bench.Editor.Redo());
  EXPECT_EQ(bench.SelectedText(), "a") << "what was selected after";
}

TEST(History, WhatChangesNothingIsNoStep) {
  EditorBench bench;
  bench.Pick("Beta");
  bench.Editor.cmdOK();
  bench.Editor.Copy();
  bench.Pick("Letters");
  bench.Editor.SortNode();
  EXPECT_EQ(bench.Editor.History.Steps(), 1U) << "the separator moved";
  bench.Editor.SortNode();
  EXPECT_EQ(bench.Editor.History.Steps(), 1U);
}

TEST(History, ACommandAfterUndoEndsTheWayForth) {
  EditorBench bench;
  bench.Pick("Beta");
  bench.Editor.Delete();
  bench.Editor.Undo();
  EXPECT_EQ(bench.Editor.History.RedoName(), "Delete Beta");
  bench.Pick("Alpha");
  bench.Editor.Delete();
  EXPECT_FALSE(bench.Editor.History.CanRedo());
  EXPECT_FALSE(bench.Editor.Redo());
  EXPECT_EQ(bench.Host.Beeps, 1);
}

TEST(History, KeepsAHundredStepsAndForgetsTheNodesOfOlderOnes) {
  EditorBench bench;
  for (int i = 0; i < 150; ++i) {
    bench.Pick("Alpha");
    bench.Editor.Duplicate();
    bench.Editor.Delete();
  }
  EXPECT_EQ(bench.Editor.History.Steps(), CustHistory::kMostSteps);
  EXPECT_EQ(bench.Editor.Tree.Known(), 17U + 50U) << "fifty deletions can be taken back";
  while (bench.Editor.History.CanUndo()) bench.Editor.Undo();
  EXPECT_EQ(bench.Editor.Tree.ToMenuSet(), EditorBench::Usual());
}

TEST(History, UndoIsAChangeToSave) {
  EditorBench bench;
  bench.Pick("Beta");
  bench.Editor.Delete();
  bench.Editor.TreeChanged = false;
  bench.Editor.Undo();
  EXPECT_TRUE(bench.Editor.TreeChanged);
}

TEST(Find, LooksInTitlesIconsAndCommandsAndGoesRound) {
  EditorBench bench;
  bench.Pick("Clock");
  bench.Editor.Boxes.txtCommand = "C:\\Deep\\needle.exe";
  bench.Editor.cmdOK();
  bench.Pick("Anvil");
  bench.Editor.Boxes.txtFile = "C:\\NEEDLE.ico";
  bench.Editor.cmdOK();
  bench.Pick("Beta");
  bench.Editor.AfterLabelEdit(bench.Editor.Selected(), "A Needle");
  bench.Pick(kMenusRoot);
  std::string found;
  for (int i = 0; i < 4; ++i) {
    const CustRef node = bench.Editor.Find("needle");
    ASSERT_NE(node, kNoRef);
    bench.Pick(node);
    found += bench.SelectedText() + ",";
  }
  EXPECT_EQ(found, "A Needle,Anvil,Clock,A Needle,");
  bench.Pick(kSinglesRoot);
  bench.Pick(bench.Editor.Find("needle"));
  EXPECT_EQ(bench.SelectedText(), "Clock");
  EXPECT_EQ(bench.Editor.Find("nowhere"), kNoRef);
  EXPECT_EQ(bench.Editor.Find(""), kNoRef);
}

}  // namespace
}  // namespace corvelle
