#include <gtest/gtest.h>

#include <functional>

#include "customize/EditorBench.h"

namespace corvelle {
namespace {

/// Every command with the name that the table bears.
struct Command {
  const char* name;
  std::function<bool(CustEditor&)> run;
};
const std::vector<Command>& Commands() {
  static const std::vector<Command> kCommands = {
      {"add button", [](CustEditor& e) { return e.AddButton(); }},
      {"insert button", [](CustEditor& e) { return e.InsertButton(); }},
      {"add item", [](CustEditor& e) { return e.AddMenuItem(); }},
      {"insert item", [](CustEditor& e) { return e.InsertMenuItem(); }},
      {"add what fits", [](CustEditor& e) { return e.AddWhatFits(); }},
      {"separator", [](CustEditor& e) { return e.InsertSeparator(); }},
      {"hide", [](CustEditor& e) { return e.HideButton(); }},
      {"sort", [](CustEditor& e) { return e.SortNode(); }},
      {"copy", [](CustEditor& e) { return e.Copy(); }},
      {"cut", [](CustEditor& e) { return e.Cut(); }},
      {"paste", [](CustEditor& e) { return e.Paste(); }},
      {"delete", [](CustEditor& e) { return e.Delete(); }},
      {"delete undone", [](CustEditor& e) { return e.Delete() && e.UndoDelete(); }},
      {"up", [](CustEditor& e) { return e.MoveSelectionUp(); }},
      {"down", [](CustEditor& e) { return e.MoveSelectionDown(); }},
      {"duplicate", [](CustEditor& e) { return e.Duplicate(); }},
      {"module", [](CustEditor& e) { return e.InsertModule(CustModule::RunDialog); }},
      {"ok", [](CustEditor& e) { return e.cmdOK(); }},
  };
  return kCommands;
}

/// What a command came to, on one line: what was heard, whether there is something to save, what
/// the tree is if it is another one, what is selected and what the boxes show.
std::string Outcome(const Command& command, const std::string& selection) {
  EditorBench bench;
  bench.Editor.ClipNodeTitle = "Clip";
  bench.Editor.ClipFileName = "clip.ico";
  const bool singleLine = selection == "single separator";
  bench.Pick(singleLine                        ? bench.Editor.Tree.Children(kSinglesRoot)[1]
             : selection == "button separator" ? bench.Editor.Tree.Children(kMenusRoot)[2]
             : selection == "item separator" ? bench.Editor.Tree.Children(bench.Node("Letters"))[2]
                                             : bench.Node(selection));
  const std::string before = bench.Shape();
  command.run(bench.Editor);
  std::string line;
  if (bench.Host.Beeps > 0) line += "beep ";
  if (!bench.Host.Said.empty()) line += "says " + bench.Host.Said.front().substr(0, 3) + " ";
  line += bench.Editor.TreeChanged ? "changed " : "same ";
  line += bench.Shape() == before ? "" : "[" + bench.Shape() + "] ";
  line += bench.SelectedKey() + " " + bench.SelectedText() + " {" + bench.BoxTexts() + "}";
  return line;
}

struct GoldenRow {
  const char* command;
  const char* selection;
  const char* outcome;
};
const GoldenRow kGoldenRows[] = {
#include "customize/GoldenRows.inl"
};

TEST(Commands, EachOneOnEachKindOfSelection) {
  const std::vector<std::string> selections = {"Menu Buttons",
                                               "Single Buttons",
                                               "Letters",
                                               "One",
                                               "Bare",
                                               "button separator",
                                               "Alpha",
                                               "Gamma",
                                               "Only",
                                               "item separator",
                                               "Clock",
                                               "Paint",
                                               "single separator"};
  std::size_t row = 0;
  for (const Command& command : Commands()) {
    for (const std::string& selection : selections) {
      const std::string outcome = Outcome(command, selection);
      if (row >= std::size(kGoldenRows)) {
        ADD_FAILURE() << "{\"" << command.name << "\", \"" << selection << "\",\n R\"(" << outcome
                      << ")\"},";
        continue;
      }
      EXPECT_STREQ(kGoldenRows[row].command, command.name);
      EXPECT_EQ(kGoldenRows[row].selection, selection);
      EXPECT_EQ(kGoldenRows[row].outcome, outcome) << command.name << " on " << selection;
      ++row;
    }
  }
  EXPECT_EQ(row, std::size(kGoldenRows));
}

}  // namespace
}  // namespace corvelle
