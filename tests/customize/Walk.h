#pragma once

#include <random>
#include <string>
#include <vector>

#include "customize/EditorBench.h"

namespace corvelle {

/// What a command of a walk may do to the nodes that there are.
enum class WalkEffect {
  Adds,      // those there were stay, in their order
  Takes,     // the selected node goes, with all below it
  Reorders,  // all stay, in whatever order
  TimeTravel
};

/// Random commands on random nodes, as a user without a plan gives them.
class Walk {
 public:
  Walk(EditorBench& bench, unsigned seed) : bench_(bench), random_(seed) {}

  /// One command. `most`: with more nodes than that only what makes no more of them.
  WalkEffect Step(std::size_t most = 60) {
    CustEditor& editor = bench_.Editor;
    const std::vector<CustRef> nodes = Nodes();
    bench_.Pick(Pick(nodes));
    Taken = editor.Selected();
    bench_.Host.Answer = Roll(8) == 0 ? 7 : 6;
    switch (Roll(nodes.size() > most ? 11 : 21)) {
      case 0:
        editor.Delete();
        Command = "delete";
        return WalkEffect::Takes;
      case 1:
        editor.Delete();
        Command = "delete";
        return WalkEffect::Takes;
      case 2:
        editor.Cut();
        Command = "cut";
        return WalkEffect::Takes;
      case 3:
        editor.MoveSelectionUp();
        Command = "up";
        return WalkEffect::Reorders;
      case 4:
        editor.MoveSelectionDown();
        Command = "down";
        return WalkEffect::Reorders;
      case 5:
        editor.DragNode = editor.Selected();
        editor.CurIndex = Pick(nodes);
        Command = "drag";
        if (editor.CurIndex != editor.DragNode) editor.MoveNode(Roll(4) == 0);
        return WalkEffect::Reorders;
      case 6:
        editor.SortNode();
        Command = "sort";
        return WalkEffect::Reorders;
      case 7:
        editor.Copy();
        Command = "copy";
        return WalkEffect::Adds;
      case 8:
        Type();
        Command = "ok";
        return WalkEffect::Adds;
      case 9:
        editor.AfterLabelEdit(editor.Selected(), Text());
        return WalkEffect::Adds;
      case 10:
        Command = "hide";
        editor.HideButton();
        return WalkEffect::Adds;
      case 11:
        Command = "add button";
        editor.AddButton();
        return WalkEffect::Adds;
      case 12:
        Command = "insert button";
        editor.InsertButton();
        return WalkEffect::Adds;
      case 13:
        Command = "add item";
        editor.AddMenuItem();
        return WalkEffect::Adds;
      case 14:
        Command = "insert item";
        editor.InsertMenuItem();
        return WalkEffect::Adds;
      case 15:
        Command = "separator";
        editor.InsertSeparator();
        return WalkEffect::Adds;
      case 16:
        Command = "paste";
        editor.Paste();
        return WalkEffect::Adds;
      case 17:
        Command = "undo delete";
        editor.UndoDelete();
        return WalkEffect::Adds;
      case 18:
        Command = "duplicate";
        editor.Duplicate();
        return WalkEffect::Adds;
      case 19: {
        Command = "files";
        std::vector<std::string> names;
        for (int i = Roll(3); i >= 0; --i) names.push_back("C:\\" + Text() + ".exe");
        Roll(2) == 0 ? editor.AddFiles(names) : editor.DropFiles(names);
        return WalkEffect::Adds;
      }
      default:
        Command = "copied drag";
        editor.DragNode = editor.Selected();
        editor.CurIndex = Pick(nodes);
        editor.MoveNode(Roll(4) == 0, true);
        return WalkEffect::Adds;
    }
  }

  [[nodiscard]] std::vector<CustRef> Nodes() const {
    std::vector<CustRef> nodes = bench_.Editor.Tree.InOrder();
    nodes.push_back(kMenusRoot);
    nodes.push_back(kSinglesRoot);
    return nodes;
  }
  int Roll(int sides) { return static_cast<int>(random_() % static_cast<unsigned>(sides)); }

  CustRef Taken = kNoRef;  // what was selected before the command
  const char* Command = "";

 private:
  CustRef Pick(const std::vector<CustRef>& nodes) { return nodes[random_() % nodes.size()]; }
  std::string Text() { return "t" + std::to_string(Roll(1000)); }
  void Type() {
    EntryBoxes& boxes = bench_.Editor.Boxes;
    boxes.txtTitle = Text();
    boxes.txtFile = Roll(3) == 0 ? "" : "C:\\" + Text();
    boxes.txtCommand = Roll(3) == 0 ? "www.a.b\\c" : "C:\\" + Text();
    bench_.Editor.cmdOK();
  }

  EditorBench& bench_;
  std::mt19937 random_;
};

}  // namespace corvelle
