#pragma once

// Trees on every home. See ControlsContract.h.

#include "forms/ControlsContract.h"
#include "forms/Graphic.h"
#include "forms/TextBox.h"
#include "forms/TreeView.h"

namespace corvelle::forms {

class TreeContract : public ControlsContract {
 protected:
  void SetUp() override {
    Tree.Move(150, 150, 3000, 3300);
    Boxes.Move(3300, 150, 2400, 1800);
    Text.Move(3300, 2100, 2400, 315);
    const std::shared_ptr<Canvas> image = Windows().CreateCanvas({16, 16});
    image->FillBox({0, 0, 16, 16}, Image::kMask);
    image->FillBox({2, 2, 14, 14}, 0x000000FF);
    Tree.AddImage(image);
    Root = Add(kNoNode, "root");
    One = Add(Root, "one");
    Two = Add(Root, "two");
    Three = Add(Root, "three");
    Deep = Add(Two, "deep");
    Last = Add(kNoNode, "last");
    Ticked = Boxes.Insert(kNoNode, kNoNode, {.Text = "ticked", .Checked = true});
    Bare = Boxes.Insert(kNoNode, kNoNode, {.Text = "bare"});
    Tree.SelectedChanged = [this](NodeId node, SelectCause cause) {
      sheet_.Note((cause == SelectCause::User ? "select " : "removal ") + Tree.Look(node).Text);
    };
    Tree.Expanded = [this](NodeId node, bool expand) {
      sheet_.Note((expand ? "open " : "close ") + Tree.Look(node).Text);
    };
    Tree.Renamed = [this](NodeId node, const std::string& text) {
      sheet_.Note("rename " + Tree.Look(node).Text + " " + text);
      return takesNames_;
    };
    Boxes.CheckChanged = [this](NodeId node) {
      sheet_.Note((Boxes.Checked(node) ? "tick " : "untick ") + Boxes.Look(node).Text);
    };
    Show();
    Tree.Expand(Root, true);
    Tree.Select(One);
    Tree.SetFocus();
    Settle();
    sheet_.Seen.clear();
  }
  NodeId Add(NodeId parent, const char* text) {
    return Tree.Insert(parent, kNoNode, {.Text = text, .Image = 0});
  }
  /// A point of a part of a node's row.
  PixelPoint PartOf(TreeView& tree, NodeId node, TreePart part) {
    const PixelRect row = tree.RowRect(node);
    const int y = (row.top + row.bottom) / 2;
    for (int x = 0; x < row.right; ++x) {
      if (tree.HitTest({x, y}) == TreeHit{node, part} &&
          tree.HitTest({x + 4, y}) == TreeHit{node, part}) {
        return {x + 2, y};
      }
    }
    ADD_FAILURE() << "no such part";
    return {};
  }
  void ClickNode(NodeId node, TreePart part = TreePart::Label) {
    const PixelPoint at = PartOf(Tree, node, part);
    Click(Tree, at.x, at.y);
    Settle();
  }
  Texts Names(NodeId parent) {
    Texts names;
    for (const NodeId node : Tree.Nodes().Children(parent)) names.push_back(Tree.Look(node).Text);
    return names;
  }

  TreeView Tree{sheet_, "Tree"};
  TreeView Boxes{sheet_, "Boxes", {.CheckBoxes = true}};
  TextBox Text{sheet_, "Text"};
  NodeId Root, One, Two, Three, Deep, Last, Ticked, Bare;
  bool takesNames_ = true;
};

TEST_P(TreeContract, AClickSelectsANodeAndTellsItOnce) {
  ClickNode(Two);
  EXPECT_EQ(Tree.Selected(), Two);
  EXPECT_EQ(sheet_.Seen, Texts{"select two"});
}

TEST_P(TreeContract, KeysGoThroughTheTree) {
  home_->PressKey(key::Down);
  home_->PressKey(key::Right);
  home_->PressKey(key::Right);
  home_->PressKey(key::Left);
  home_->PressKey(key::Left);
  home_->Type("t");
  EXPECT_EQ(sheet_.Seen, (Texts{"select two", "open two", "select deep", "select two", "close two",
                                "select three"}));
}

TEST_P(TreeContract, WhatTheProgramDoesIsNotTold) {
  Tree.Select(Deep);
  EXPECT_TRUE(Tree.IsExpanded(Two)) << "what is around the selection is open";
  Tree.Expand(Two, false);
  EXPECT_EQ(Tree.Selected(), Two);
  Tree.SetText(One, "first");
  Tree.SetDimmed(One, true);
  Tree.Clear();
  EXPECT_EQ(Tree.Selected(), kNoNode);
  EXPECT_EQ(Tree.Nodes().Count(), 0U);
  Settle();
  EXPECT_EQ(sheet_.Seen, Texts{});
}

TEST_P(TreeContract, AClickOnTheBoxBesideANodeOpensAndClosesItUnlessRefused) {
  Tree.Expanding = [](NodeId, bool) { return false; };
  ClickNode(Two, TreePart::Expander);
  EXPECT_FALSE(Tree.IsExpanded(Two));
  EXPECT_EQ(sheet_.Seen, Texts{});
  EXPECT_TRUE(Tree.RowRect(Deep).IsEmpty());
  Tree.Expanding = nullptr;
  ClickNode(Two, TreePart::Expander);
  EXPECT_TRUE(Tree.IsExpanded(Two));
  EXPECT_FALSE(Tree.RowRect(Deep).IsEmpty());
  ClickNode(Two, TreePart::Expander);
  EXPECT_EQ(sheet_.Seen, (Texts{"open two", "close two"}));
}

TEST_P(TreeContract, ASelectionMayBeRefused) {
  Tree.Selecting = [this](NodeId node) { return node != Two; };
  ClickNode(Two);
  EXPECT_EQ(Tree.Selected(), One);
  EXPECT_EQ(sheet_.Seen, Texts{});
  ClickNode(Three);
  EXPECT_EQ(Tree.Selected(), Three);
}

TEST_P(TreeContract, RemovingTheSelectedNodeSelectsItsNeighbourAndTellsThatOnce) {
  Tree.Select(Two);
  Tree.Remove(Two);
  EXPECT_EQ(Tree.Selected(), Three);
  EXPECT_FALSE(Tree.Nodes().Has(Deep));
  Tree.Remove(Three);
  EXPECT_EQ(Tree.Selected(), One);
  Tree.Remove(One);
  EXPECT_EQ(Tree.Selected(), Root);
  Tree.Remove(Last);
  Settle();
  EXPECT_EQ(sheet_.Seen, (Texts{"removal three", "removal one", "removal root"}));
}

TEST_P(TreeContract, IdsAreNeverUsedAgain) {
  Tree.Remove(Last);
  const NodeId made = Add(kNoNode, "made");
  EXPECT_GT(made, Last);
  EXPECT_EQ(Tree.Insert(Last, kNoNode, {}), kNoNode);
}

TEST_P(TreeContract, NodesAreInsertedMovedAndSorted) {
  Tree.Insert(Root, Two, {.Text = "before two"});
  EXPECT_EQ(Names(Root), (Texts{"one", "before two", "two", "three"}));
  EXPECT_TRUE(Tree.MoveNode(Two, Root, One));
  EXPECT_EQ(Names(Root), (Texts{"two", "one", "before two", "three"}));
  EXPECT_FALSE(Tree.MoveNode(Root, Deep, kNoNode));
  EXPECT_EQ(Tree.Look(Deep).Text, "deep");
  Tree.Sort(Root);
  EXPECT_EQ(Names(Root), (Texts{"before two", "one", "three", "two"}));
  // The window shows the same order.
  Tree.Expand(Two, true);
  EXPECT_GT(Tree.RowRect(Two).top, Tree.RowRect(Three).top);
  const PixelRect two = Tree.RowRect(Two);
  EXPECT_EQ(Tree.HitTest({60, two.bottom + two.Height() / 2}).Node, Deep) << "in the next row";
}

TEST_P(TreeContract, F2EditsALabelEnterTakesItAndEscGivesItUp) {
  home_->PressKey(key::F2);
  EXPECT_EQ(Tree.Edited(), One);
  home_->Type("new");
  home_->PressKey(key::Enter);
  Settle();
  EXPECT_EQ(Tree.Look(One).Text, "new");
  EXPECT_EQ(Tree.Edited(), kNoNode);
  home_->PressKey(key::F2);
  home_->Type("other");
  home_->PressKey(key::Escape);
  Settle();
  EXPECT_EQ(Tree.Look(One).Text, "new");
  EXPECT_EQ(sheet_.Seen, Texts{"rename one new"}) << "the form sees no key of it";
}

TEST_P(TreeContract, ANameMayBeRefusedAndAnEditToo) {
  takesNames_ = false;
  home_->PressKey(key::F2);
  home_->Type("new");
  home_->PressKey(key::Enter);
  Settle();
  EXPECT_EQ(Tree.Look(One).Text, "one");
  Tree.Editing = [](NodeId, bool) { return false; };
  home_->PressKey(key::F2);
  EXPECT_EQ(Tree.Edited(), kNoNode);
}

TEST_P(TreeContract, TheProgramEndsAnEditEitherWay) {
  Tree.BeginEdit(One);
  Settle();
  home_->Type("kept");
  Tree.EndEdit(true);
  EXPECT_EQ(Tree.Look(One).Text, "kept") << "whoever saves next saves it";
  EXPECT_EQ(Tree.Edited(), kNoNode);
  Settle();
  EXPECT_EQ(Tree.Look(One).Text, "kept");
  Tree.BeginEdit(One);
  Settle();
  home_->Type("lost");
  Tree.EndEdit(false);
  Settle();
  EXPECT_EQ(Tree.Look(One).Text, "kept");
  EXPECT_EQ(sheet_.Seen, Texts{"rename one kept"});
}

TEST_P(TreeContract, RemovingTheEditedNodeEndsTheEdit) {
  Tree.BeginEdit(One);
  Settle();
  home_->Type("lost");
  Tree.Remove(One);
  Settle();
  EXPECT_EQ(Tree.Edited(), kNoNode);
  EXPECT_EQ(sheet_.Seen, Texts{"removal two"});
}

TEST_P(TreeContract, BoxesAreTickedByClickAndSpace) {
  const PixelPoint at = PartOf(Boxes, Bare, TreePart::Check);
  Click(Boxes, at.x, at.y);
  Settle();
  EXPECT_TRUE(Boxes.Checked(Bare));
  Boxes.Select(Ticked);
  Boxes.SetFocus();
  Settle();
  home_->PressKey(key::Space);
  Settle();
  EXPECT_FALSE(Boxes.Checked(Ticked));
  Boxes.SetChecked(Ticked, true);
  Settle();
  home_->PressKey(key::Space);
  Settle();
  EXPECT_EQ(sheet_.Seen, (Texts{"tick bare", "untick ticked", "untick ticked"}));
}

TEST_P(TreeContract, ADoubleClickActivatesANodeAfterwards) {
  Tree.Activated = [this](NodeId node) {
    sheet_.Note("activate " + Tree.Look(node).Text);
    Tree.Remove(node);
  };
  ClickNode(Three);
  home_->Wait(700);
  home_->DoubleClick();
  Settle();
  EXPECT_EQ(sheet_.Seen, (Texts{"select three", "activate three", "removal two"}));
}

TEST_P(TreeContract, ANodeIsDraggedAndDroppedOnAnother) {
  Tree.DragBegin = [this](NodeId node) {
    sheet_.Note("drag " + Tree.Look(node).Text);
    return true;
  };
  NodeId over = kNoNode;
  Tree.DragOver = [&](TreeHit hit) {
    over = hit.Node;
    Tree.SetDropTarget(hit.Node);
  };
  Tree.DragEnd = [this](TreeHit hit, bool dropped) {
    Tree.SetDropTarget(kNoNode);
    sheet_.Note((dropped ? "drop " : "give up ") + Tree.Look(hit.Node).Text);
  };
  const auto dragTo = [this](NodeId from, NodeId to) {
    const PixelPoint start = PartOf(Tree, from, TreePart::Label);
    const PixelPoint end = PartOf(Tree, to, TreePart::Label);
    home_->MovePointer(At(Tree, start.x, start.y));
    home_->Press(MouseButton::Left);
    home_->MovePointer(At(Tree, start.x + 8, start.y + 2));
    Settle();
    home_->MovePointer(At(Tree, end.x, end.y));
    Settle();
  };
  dragTo(One, Three);
  EXPECT_EQ(Tree.Dragged(), One);
  EXPECT_EQ(over, Three);
  home_->Release(MouseButton::Left);
  Settle();
  EXPECT_EQ(sheet_.Seen, (Texts{"drag one", "drop three"}));
  EXPECT_EQ(Tree.Dragged(), kNoNode);
  sheet_.Seen.clear();
  dragTo(One, Two);
  home_->PressKey(key::Escape);
  Settle();
  EXPECT_EQ(sheet_.Seen.front(), "drag one");
  EXPECT_EQ(sheet_.Seen.back().substr(0, 7), "give up");
  home_->Release(MouseButton::Left);
}

TEST_P(TreeContract, TheContextMenuIsAskedForOnceAtTheNode) {
  Tree.NodeMenu = [this](NodeId node, float, float, bool byKey) {
    sheet_.Note((byKey ? "key " : "menu ") + Tree.Look(node).Text);
  };
  const PixelPoint at = PartOf(Tree, Three, TreePart::Label);
  home_->MovePointer(At(Tree, at.x, at.y));
  home_->Press(MouseButton::Right);
  home_->Release(MouseButton::Right);
  Settle();
  EXPECT_EQ(sheet_.Seen, Texts{"menu three"});
  EXPECT_EQ(Tree.Selected(), One) << "the right button selects nothing";
  home_->PressKey(key::Menu);
  Settle();
  EXPECT_EQ(sheet_.Seen, (Texts{"menu three", "key one"}));
}

TEST_P(TreeContract, ATextBoxLosesTheFocusBeforeAnotherNodeIsSelected) {
  Text.LostFocus = [this] { sheet_.Note("commit"); };
  Text.SetFocus();
  Settle();
  ClickNode(Two);
  EXPECT_EQ(sheet_.Seen, (Texts{"commit", "select two"}));
}

TEST_P(TreeContract, KeysThatATreeDoesNotKnowAreTheForms) {
  home_->PressKey(key::Delete);
  home_->PressWith(key::Ctrl, 'C');
  EXPECT_TRUE(sheet_.Saw("key 46"));
  EXPECT_TRUE(sheet_.Saw("key 67"));
}

TEST_P(TreeContract, ATreeOutlivesItsWindow) {
  Tree.Select(Deep);
  sheet_.Unload();
  Show();
  EXPECT_EQ(Tree.Selected(), Deep);
  EXPECT_FALSE(Tree.RowRect(Deep).IsEmpty());
  EXPECT_EQ(sheet_.Seen, Texts{});
}

TEST_P(TreeContract, TheHandlerOfASelectionMayEndTheForm) {
  Tree.SelectedChanged = [this](NodeId, SelectCause) { sheet_.Unload(); };
  const PixelPoint at = PartOf(Tree, Two, TreePart::Label);
  home_->MovePointer(At(Tree, at.x, at.y));
  home_->Press(MouseButton::Left);
  home_->Release(MouseButton::Left);
  Settle();
  EXPECT_FALSE(sheet_.IsLoaded());
}

TEST_P(TreeContract, ATimerDuringAPressMayRemoveNodesAndEndTheForm) {
  const TimerId remove = Windows().StartTimer(20, [this] {
    if (Tree.Nodes().Has(Deep)) Tree.Remove(Two);
  });
  const PixelPoint at = PartOf(Tree, Three, TreePart::Label);
  home_->MovePointer(At(Tree, at.x, at.y));
  home_->Press(MouseButton::Left);
  home_->Wait(100);
  Windows().StopTimer(remove);
  const TimerId end = Windows().StartTimer(20, [this] { sheet_.Unload(); });
  home_->Wait(100);
  home_->Release(MouseButton::Left);
  Settle();
  Windows().StopTimer(end);
  EXPECT_FALSE(Tree.Nodes().Has(Two));
  EXPECT_FALSE(sheet_.IsLoaded());
}

TEST_P(TreeContract, TenThousandNodesAreQuick) {
  const std::int64_t start = Windows().Now();
  {
    const TreeView::FreezeScope freeze(Tree);
    for (int group = 0; group < 100; ++group) {
      const NodeId parent = Add(Root, ("group " + std::to_string(group)).c_str());
      for (int node = 0; node < 100; ++node) Add(parent, "node");
      Tree.Expand(parent, true);
    }
  }
  Tree.Sort(Root);
  Settle();
  EXPECT_EQ(Tree.Nodes().Count(), 10106U);
  const NodeId first = Tree.Nodes().Children(Root).front();
  Tree.SetFirstVisible(first);
  EXPECT_EQ(Tree.FirstVisible(), first);
  Tree.Clear();
  EXPECT_LT(Windows().Now() - start, 5000);
}

// What the user sees of a tree.

class TreeLookContract : public TreeContract {
 protected:
  static constexpr Rgb kRed = 0x000000FF;

  std::unique_ptr<Canvas> Picture(const TreeView& tree) {
    home_->MovePointer({900, 700});
    Settle();
    return Windows().PictureOfWindow(tree.hWnd()).Pixels;
  }
  /// Pixels of a colour in the row of a node.
  int Count(const TreeView& tree, NodeId node, Rgb colour) {
    const std::unique_ptr<Canvas> picture = Picture(tree);
    const PixelRect row = tree.RowRect(node);
    int count = 0;
    for (int y = row.top; y < row.bottom; ++y) {
      for (int x = row.left; x < row.right; ++x) count += picture->PixelAt({x, y}) == colour;
    }
    return count;
  }
  /// Pixels in which a tree looks different from before.
  int Changed(const TreeView& tree, const Canvas& before) {
    const std::unique_ptr<Canvas> now = Picture(tree);
    int count = 0;
    for (int y = 0; y < now->Size().height; ++y) {
      for (int x = 0; x < now->Size().width; ++x) {
        count += now->PixelAt({x, y}) != before.PixelAt({x, y});
      }
    }
    return count;
  }
};

TEST_P(TreeLookContract, ANodeShowsItsImageWholeOrDimmedOrNone) {
  EXPECT_EQ(Count(Tree, Two, kRed), 12 * 12);
  Tree.SetDimmed(Two, true);
  EXPECT_LT(Count(Tree, Two, kRed), 12 * 12);
  Tree.SetDimmed(Two, false);
  EXPECT_EQ(Count(Tree, Two, kRed), 12 * 12);
  Tree.SetImage(Two, -1);
  EXPECT_EQ(Count(Tree, Two, kRed), 0);
}

TEST_P(TreeLookContract, MarksOfADragAreShown) {
  const std::unique_ptr<Canvas> before = Picture(Tree);
  Tree.SetDropTarget(Three);
  EXPECT_GT(Changed(Tree, *before), 20) << "the label is highlighted";
  Tree.SetDropTarget(kNoNode);
  EXPECT_EQ(Changed(Tree, *before), 0);
  Tree.SetInsertMark(Three, true);
  EXPECT_GT(Changed(Tree, *before), 20) << "a line";
}

TEST_P(TreeLookContract, ABoxShowsWhetherItIsTicked) {
  const std::unique_ptr<Canvas> before = Picture(Boxes);
  Boxes.SetChecked(Bare, true);
  EXPECT_GT(Changed(Boxes, *before), 5);
  Boxes.SetChecked(Bare, false);
  EXPECT_EQ(Changed(Boxes, *before), 0);
}

TEST_P(TreeContract, AClickOnTheSelectedLabelBeginsAnEditWhereThatIsAllowed) {
  home_->Wait(700);
  ClickNode(One);
  home_->Wait(900);
  EXPECT_EQ(Tree.Edited(), kNoNode) << "without a handler only the program begins one";
  Tree.Editing = [this](NodeId node, bool byProgram) {
    sheet_.Note((byProgram ? "program " : "click ") + Tree.Look(node).Text);
    return true;
  };
  ClickNode(Two);
  home_->Wait(900);
  EXPECT_EQ(Tree.Edited(), kNoNode) << "the first click only selects";
  ClickNode(Two);
  home_->Wait(900);
  EXPECT_EQ(Tree.Edited(), Two);
  home_->Type("new");
  home_->PressKey(key::Enter);
  Settle();
  EXPECT_EQ(sheet_.Seen, (Texts{"select two", "click two", "rename two new"}));
}

}  // namespace corvelle::forms
