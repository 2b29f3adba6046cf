// What the user and other programs do while the popup, one of its questions or a message is up.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>

#include "toolbar/PopupDesk.h"

namespace corvelle {
namespace {

using forms::MouseButton;

constexpr char kAskedOfAButton[] =
    "If you delete a button, you cannot Undo Delete. Do you want to continue ?";
constexpr char kToldOfAnItem[] = "Cannot delete/cut this item. Record mismatch.";

/// A third menu beside the two: what the question is about must not be its neighbour by chance.
struct QuestionDesk : PopupDesk {
  QuestionDesk() {
    PutMenu(3, {Entry("Thirds", "Button"), Entry("Third", "", "C:\\Tools\\tool.exe third")});
    Strip.InitNewButtons();
    Wait(300);
  }
  /// Chooses "Delete Item" for a button, answers Yes, and does something before the answer.
  void DeleteButtonWhile(int button, std::function<void()> meanwhile) {
    World.Desktop.WhileBoxIsUp([meanwhile](const sim::MessageBox&) { meanwhile(); });
    World.Desktop.Answer(kAskedOfAButton, forms::msgbox::AnswerYes);
    RightClickButton(button, "Delete Item");
  }
  [[nodiscard]] bool TakesInput(WindowId window) const {
    return World.Desktop.Look(window)->Enabled;
  }
  /// Button 2 is gone, and nothing else; the files have moved up.
  void ExpectOnlyLettersGone() const {
    EXPECT_EQ(Titles(1), "Others|Other|");
    EXPECT_EQ(Titles(2), "Thirds|Third|");
    EXPECT_EQ(Titles(3), "");
  }
};

TEST(WhileTheQuestionIsUp, ARightClickOnAnotherButtonChangesNothing) {
  QuestionDesk desk;
  EntryEdit then;
  desk.DeleteButtonWhile(2, [&] {
    const EntryEdit before = desk.TheProgram.Entry;
    desk.RightClick(desk.Middle(4));
    desk.RightClick(desk.Middle(3));
    desk.RightClickFrame();
    EXPECT_EQ(desk.TheProgram.Entry, before);
    EXPECT_EQ(desk.World.Desktop.Popups().size(), 1U);
  });
  desk.ExpectOnlyLettersGone();
}

TEST(WhileTheQuestionIsUp, WhateverBecomesCurrentTheButtonAskedForIsDeleted) {
  QuestionDesk desk;
  desk.DeleteButtonWhile(2, [&] {
    desk.TheProgram.Entry.CurMenuTag = "B4";
    desk.TheProgram.Entry.CurFile = PopupDesk::FileOf(3);
    desk.TheProgram.Entry.CurTitle = "Thirds";
  });
  desk.ExpectOnlyLettersGone();
}

TEST(WhileTheQuestionIsUp, AnotherPopupIsRefusedBeforeItsEntryIsTaken) {
  QuestionDesk desk;
  desk.DeleteButtonWhile(2, [&] {
    const EntryEdit before = desk.TheProgram.Entry;
    desk.ThePopup.ShowToolbarPopup(
        {.CurTitle = "Thirds", .CurMenuTag = "B4", .CurFile = PopupDesk::FileOf(3)});
    EXPECT_EQ(desk.TheProgram.Entry, before);
  });
  EXPECT_EQ(desk.World.Desktop.Popups().size(), 1U);
  desk.ExpectOnlyLettersGone();
}

TEST(WhileTheQuestionIsUp, StripAndMenuTakeNoInputAndDoAgainAfterwards) {
  QuestionDesk desk;
  desk.DeleteButtonWhile(2, [&] {
    EXPECT_EQ(desk.World.Desktop.Boxes().back().Owner, desk.Strip.hWnd());
    EXPECT_FALSE(desk.TakesInput(desk.Strip.hWnd()));
    EXPECT_FALSE(desk.TakesInput(desk.RealMenu.hWnd()));
    desk.Click(3);
    desk.Wait(300);
    EXPECT_FALSE(desk.RealMenu.MenuVisible());
  });
  EXPECT_TRUE(desk.TakesInput(desk.Strip.hWnd()));
  EXPECT_TRUE(desk.TakesInput(desk.RealMenu.hWnd()));
  EXPECT_EQ(desk.World.Desktop.ForegroundWindow(), desk.Strip.hWnd());
  desk.OpenMenuOf(2);
  EXPECT_EQ(desk.Shown(), "Other|");
}

TEST(WhileTheQuestionIsUp, AMenuThatIsRereadLeavesTheStripWithoutInput) {
  QuestionDesk desk;
  desk.DeleteButtonWhile(2, [&] {
    desk.Strip.RefreshMenu("F3");
    EXPECT_FALSE(desk.TakesInput(desk.Strip.hWnd()));
    EXPECT_FALSE(desk.TakesInput(desk.RealMenu.hWnd()));
    desk.Strip.ResetMenu();
  });
  EXPECT_TRUE(desk.TakesInput(desk.Strip.hWnd()));
  desk.ExpectOnlyLettersGone();
}

TEST(WhileTheQuestionIsUp, OtherProgramsDropNothing) {
  QuestionDesk desk;
  desk.DeleteButtonWhile(2, [&] {
    desk.World.Desktop.DragFilesOver({"C:\\Tools\\tool.exe"}, desk.Middle(3));
    desk.Wait(500);
    EXPECT_EQ(desk.World.Desktop.DragEffect(), forms::DropEffect::None);
    EXPECT_FALSE(desk.RealMenu.MenuVisible());
    desk.World.Desktop.Release();
  });
  desk.ExpectOnlyLettersGone();
}

TEST(WhileTheQuestionIsUp, TheEndOfTheProgramDeletesNothing) {
  QuestionDesk desk;
  desk.DeleteButtonWhile(2, [&] { desk.Exit(); });
  EXPECT_EQ(desk.Titles(1), "Letters|One|Two|Separator|Three|");
  EXPECT_EQ(desk.Titles(2), "Others|Other|");
}

// ---- messages over a menu ----

/// Chooses "Delete Item" for an item that another program takes out of the file meanwhile.
struct MismatchDesk : QuestionDesk {
  void DeleteItemWhile(std::function<void()> meanwhile) {
    OpenMenuOf(2);
    World.Desktop.WhilePopupIsUp([this](const sim::Popup&) {
      PutMenu(1, {Entry("Letters", "Button"), Entry("Newer", "", "C:\\Tools\\tool.exe")});
    });
    World.Desktop.WhileBoxIsUp([meanwhile](const sim::MessageBox&) { meanwhile(); });
    World.Desktop.Answer(kToldOfAnItem, forms::msgbox::AnswerOk);
    RightClickItem(1, "Delete Item");
    World.Desktop.WhilePopupIsUp({});
  }
};

TEST(WhileAMessageOfAMenuIsUp, ItBelongsToTheMenuAndNeitherMenuNorStripTakesInput) {
  MismatchDesk desk;
  desk.DeleteItemWhile([&] {
    EXPECT_EQ(desk.World.Desktop.Boxes().back().Owner, desk.RealMenu.hWnd());
    EXPECT_FALSE(desk.TakesInput(desk.Strip.hWnd()));
    EXPECT_FALSE(desk.TakesInput(desk.RealMenu.hWnd()));
    const EntryEdit before = desk.TheProgram.Entry;
    desk.RightClick(desk.Middle(4));
    desk.Click(4);
    desk.RightClick(desk.Item(2));
    EXPECT_EQ(desk.TheProgram.Entry, before);
    EXPECT_EQ(desk.World.Desktop.Popups().size(), 1U);
    EXPECT_EQ(desk.Shown(), "One|Two|Three|");
  });
  EXPECT_TRUE(desk.TakesInput(desk.Strip.hWnd()));
  EXPECT_TRUE(desk.TakesInput(desk.RealMenu.hWnd()));
  EXPECT_EQ(desk.World.Desktop.ForegroundWindow(), desk.RealMenu.hWnd());
}

TEST(WhileAMessageOfAMenuIsUp, APassingPointerNeitherClosesTheMenuNorOpensAnother) {
  MismatchDesk desk;
  desk.DeleteItemWhile([&] {
    desk.PointAtButton(3);
    desk.Wait(500);
    EXPECT_EQ(desk.Shown(), "One|Two|Three|");
    desk.PointAt({900, 700});
    desk.Wait(500);
    EXPECT_EQ(desk.Shown(), "One|Two|Three|");
  });
  desk.PointAtButton(3);
  desk.Wait(300);
  EXPECT_EQ(desk.Shown(), "Other|");
}

// ---- the popup ----

TEST(WhileThePopupIsUp, WhateverBecomesCurrentTheChoiceActsOnItsOwnEntry) {
  struct Row {
    const char* choice;
    int item;
    const char* titles;
  };
  const Row rows[] = {{"Delete Item", 1, "Letters|Two|Separator|Three|"},
                      {"Cut Item", 1, "Letters|Two|Separator|Three|"},
                      {"Insert Menu Item", 1, "Letters|New Menu Item|One|Two|Separator|Three|"},
                      {"Insert Separator", 2, "Letters|One|Separator|Two|Separator|Three|"}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.choice);
    QuestionDesk desk;
    desk.OpenMenuOf(2);
    desk.World.Desktop.WhilePopupIsUp([&](const sim::Popup&) {
      SetCurrentEntry(desk.TheProgram.Entry, {.CurTitle = "Other",
                                              .CurCommand = "C:\\Tools\\tool.exe other",
                                              .CurMenuTag = "F3",
                                              .CurFile = PopupDesk::FileOf(2),
                                              .CurRecord = 2});
    });
    desk.RightClickItem(row.item, row.choice);
    EXPECT_EQ(desk.Titles(1), row.titles);
    EXPECT_EQ(desk.Titles(2), "Others|Other|");
  }
}

TEST(WhileThePopupIsUp, AHintThatGoesBeforeItCannotChangeItsEntry) {
  QuestionDesk desk;
  struct Hint final : HintPort {
    void SetHint(std::string_view) override {
      if (WhileItGoes) WhileItGoes();
    }
    WindowId WindowHandle() const override { return kNoWindow; }
    std::function<void()> WhileItGoes;
  } hint;
  desk.OpenMenuOf(2);
  desk.TheProgram.Ports.Hint = &hint;
  hint.WhileItGoes = [&] {
    desk.TheProgram.Entry.CurMenuTag = "F3";
    desk.TheProgram.Entry.CurFile = PopupDesk::FileOf(2);
    desk.TheProgram.Entry.CurRecord = 0;
  };
  desk.RightClickItem(1, "Delete Item");
  hint.WhileItGoes = {};
  desk.TheProgram.Ports.Hint = nullptr;
  EXPECT_EQ(desk.Titles(1), "Letters|Two|Separator|Three|");
  EXPECT_EQ(desk.Titles(2), "Others|Other|");
}

// ---- the menu of the shell ----

/// Menus of the shell, with something that happens while one is up or its command runs.
struct ShellMenus final : SpecialFoldersPort {
  explicit ShellMenus(forms::WindowSystem& windows) : windows_(windows) {}
  void OpenSpecialFolder(std::string_view, std::string_view) override {}
  bool ShowContextMenu(std::string_view, std::string_view, PixelPoint at, WindowId owner) override {
    ++Shown;
    const int chosen = windows_.ShowPopup(owner, {{.Caption = "Open"}}, at, 0);
    if (chosen >= 0 && WhileItRuns) WhileItRuns();
    return false;
  }
  std::function<void()> WhileItRuns;
  int Shown = 0;

 private:
  forms::WindowSystem& windows_;
};

/// The shell's menu over an item of button 2's menu.
struct ShellMenuDesk : QuestionDesk {
  ShellMenuDesk() {
    TheProgram.Ports.SpecialFolders = &Shell;
    TheProgram.OptionFlags.Set(Option::SystemPopupWithCtrl, false);
    OpenMenuOf(2);
  }
  ~ShellMenuDesk() { TheProgram.Ports.SpecialFolders = nullptr; }
  /// The pointer passes over another button, and the menu stays.
  void PassOverTheStrip() {
    PointAtButton(3);
    Wait(500);
    EXPECT_EQ(Shown(), "One|Two|Three|");
  }
  void ExpectHoverAfterwards() {
    EXPECT_EQ(Shell.Shown, 1);
    Wait(300);
    EXPECT_EQ(Shown(), "Other|");
  }
  ShellMenus Shell{World.Windows()};
};

// The menu of the shell has the mouse: no move comes to the strip, but its timer looks.
TEST(WhileTheShellsMenuIsUp, APassingPointerOpensNoOtherMenuUnderneath) {
  ShellMenuDesk desk;
  desk.World.Desktop.WhilePopupIsUp([&](const sim::Popup&) { desk.PassOverTheStrip(); });
  desk.RightClickItem(1);
  desk.ExpectHoverAfterwards();
}

TEST(WhileTheShellsMenuIsUp, NorDoesOneThatPassesWhileItsCommandRuns) {
  ShellMenuDesk desk;
  desk.Shell.WhileItRuns = [&] { desk.PassOverTheStrip(); };
  desk.RightClickItem(1, "Open");
  desk.ExpectHoverAfterwards();
}

TEST(WhileTheShellsMenuIsUp, WhatOtherProgramsDragIsRefusedAndClosesNoMenu) {
  ShellMenuDesk desk;
  desk.Strip.ResetMenu();
  desk.World.Files.Put("C:\\Corvelle\\Menus\\BMENU001.BTN",
                       Records({Entry("Single", "", "C:\\Tools\\tool.exe")}));
  desk.Strip.RefreshToolbar();
  desk.OpenMenuOf(2);
  desk.Shell.WhileItRuns = [&] {
    const PixelRect row = desk.World.Desktop.BoundsOf(desk.Strip.picSingleButton.hWnd());
    const PixelPoint single{row.left + 8, (std::max(row.top, 0) + row.bottom) / 2};
    EXPECT_EQ(desk.World.Desktop.WindowAt(single), desk.Strip.picSingleButton.hWnd());
    for (const PixelPoint at : {desk.Middle(3), single}) {
      desk.World.Desktop.DragFilesOver({"C:\\Tools\\tool.exe"}, at);
      desk.Wait(60);
      EXPECT_EQ(desk.World.Desktop.DragEffect(), forms::DropEffect::None);
      EXPECT_EQ(desk.Shown(), "One|Two|Three|");
      desk.World.Desktop.Release();
      desk.Wait(60);
    }
  };
  desk.RightClickItem(1, "Open");
  EXPECT_EQ(desk.Shell.Shown, 1);
}

}  // namespace
}  // namespace corvelle
