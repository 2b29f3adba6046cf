// The Options menu of the Customize window.

#include <gtest/gtest.h>

#include "customize/CustDesk.h"

namespace corvelle {
namespace {

TEST(CustOptions, EachLineIsCheckedAtItsValue) {
  for (const CustOptionLine& line : CustOptionLines()) {
    if (!line.Shows) continue;
    OptionFlags flags;
    EXPECT_EQ(IsChecked(line, flags, false), !line.CheckedAt) << line.Caption;
    flags.Set(*line.Shows, true);
    EXPECT_EQ(IsChecked(line, flags, false), line.CheckedAt) << line.Caption;
  }
}

TEST(CustomizeOptions, FlipTheirPositionAndTheirCheckMark) {
  struct Row {
    const char* line;
    Option option;
  };
  const Row rows[] = {
      {"Keep Toolbar On Top of Full Screen Applications", Option::AboveFullScreen},
      {"Show Startup Screen", Option::NoStartupScreen},
      {"Leave Extension in File Title", Option::KeepExtension},
      {"Show Web Link Dialog (URL Drag  Drop)", Option::NoWebLinkDialog},
      {"Auto Adjust Toolbar Left Position (Restore Mode)", Option::MayPassLeft},
      {"Auto Adjust Toolbar Right Position (Restore Mode)", Option::MayPassRight},
      {"Show Date in Full Screen Mode (Top/Bottom)", Option::ShowDate},
      {"Dsiable Toobar Tooltip (Icon Hint)", Option::NoHints},
  };
  CustDesk desk;
  OptionFlags& flags = desk.parts->TheProgram.OptionFlags;
  for (const Row& row : rows) {
    const OptionFlags before = flags;
    const bool checked = desk.Checked(row.line);
    desk.MenuBar("Options", row.line);
    EXPECT_NE(flags.Is(row.option), before.Is(row.option)) << row.line;
    EXPECT_NE(desk.Checked(row.line), checked) << row.line;
    desk.MenuBar("Options", row.line);
    EXPECT_EQ(flags, before) << row.line << " changes nothing else";
    EXPECT_EQ(desk.Checked(row.line), checked) << row.line;
  }
}

TEST(CustomizeOptions, ThePairsCheckOneAndUncheckTheOther) {
  struct Row {
    const char* set;
    const char* clear;
    Option option;
  };
  const Row rows[] = {
      {"Activate Single Buttons with Single Click", "Activate Single Buttons with Double Click",
       Option::SingleClick},
      {"Ctrl + Right Click Activates System Popup Menu",
       "Ctrl + Right Click Activates Corvelle Popup Menu", Option::SystemPopupWithCtrl},
  };
  CustDesk desk;
  for (const Row& row : rows) {
    for (const bool value : {true, false, true}) {
      desk.MenuBar("Options", value ? row.set : row.clear);
      EXPECT_EQ(desk.parts->TheProgram.OptionFlags.Is(row.option), value);
      EXPECT_EQ(desk.Checked(row.set), value);
      EXPECT_EQ(desk.Checked(row.clear), !value);
    }
  }
}

TEST(CustomizeOptions, AnExtensionThatIsLeftShowsInTheNextTitle) {
  CustDesk desk;
  desk.Expand("Tools");
  desk.ClickNode("Anvil");
  desk.MenuBar("Options", "Leave Extension in File Title");
  desk.world.Desktop.ChooseFiles({"C:\\Tools\\Edit.exe"});
  desk.ClickControl(desk.Form().cmdBrowseFiles);
  EXPECT_EQ(desk.Form().txtTitle.Text(), "Edit.exe");
}

TEST(CustomizeOptions, ResetOfTheTipsShowsThemAllAgain) {
  CustDesk desk;
  OptionFlags& flags = desk.parts->TheProgram.OptionFlags;
  flags.Set(Option::NotOnTopTipDone, true);
  const OptionFlags before = flags;
  desk.world.Desktop.Answer("Help tip dialog has been reset.", forms::msgbox::AnswerOk);
  desk.MenuBar("Options", "Reset Help Tip Dialog");
  for (int position = 1; position <= OptionFlags::kLength; ++position) {
    const bool tip = (position >= 5 && position <= 8) || position == 29;
    EXPECT_EQ(flags.Is(OptionAt(position)), !tip && before.Is(OptionAt(position))) << position;
  }
}

TEST(CustomizeOptions, ACustomIconForWebLinksIsNotedOnlyWhenOneIsChosen) {
  CustDesk desk;
  Program& program = desk.parts->TheProgram;
  desk.world.Desktop.CancelFiles();
  desk.MenuBar("Options", "Use Custom Icon for Web Links Entries");
  EXPECT_FALSE(program.OptionFlags.Is(Option::OwnWebLinkIcon));
  EXPECT_TRUE(desk.Checked("Use Default HTML Icon for Web Links Entries"));
  desk.world.Desktop.ChooseFiles({"C:\\Tools\\Edit.exe"});
  desk.MenuBar("Options", "Use Custom Icon for Web Links Entries");
  EXPECT_TRUE(program.OptionFlags.Is(Option::OwnWebLinkIcon));
  EXPECT_EQ(program.Icons.WebLinkIcon, "C:\\Tools\\Edit.exe");
  EXPECT_TRUE(desk.Checked("Use Custom Icon for Web Links Entries"));
  EXPECT_EQ(desk.world.Desktop.FileQuestions().back().Title, "Select one file.");
  desk.MenuBar("Options", "Use Default HTML Icon for Web Links Entries");
  EXPECT_FALSE(program.OptionFlags.Is(Option::OwnWebLinkIcon));
  EXPECT_EQ(program.Icons.WebLinkIcon, "C:\\Corvelle\\httpicon.htm");
}

TEST(CustomizeOptions, AnotherBrowserIsCheckedWhileItsFileIsThere) {
  CustDesk desk;
  desk.world.Files.Put("C:\\Net\\netscape.exe", "x");
  EXPECT_TRUE(desk.Checked("Use Default Internet Browser"));
  desk.world.Desktop.ChooseFiles({"C:\\Net\\netscape.exe"});
  desk.MenuBar("Options", "Use Alternative Internet Browser");
  EXPECT_TRUE(desk.world.Files.FileExists("C:\\Corvelle\\openurl.ini"));
  EXPECT_TRUE(desk.Checked("Use Alternative Internet Browser"));
  EXPECT_FALSE(desk.Checked("Use Default Internet Browser"));
  desk.MenuBar("Options", "Use Default Internet Browser");
  EXPECT_FALSE(desk.world.Files.FileExists("C:\\Corvelle\\openurl.ini"));
  EXPECT_TRUE(desk.Checked("Use Default Internet Browser"));
}

TEST(CustomizeOptions, ABrowserChoiceThatTheDiskRefusesBeeps) {
  CustDesk desk;
  desk.world.Files.Put("C:\\Net\\netscape.exe", "x");
  desk.world.Desktop.ChooseFiles({"C:\\Net\\netscape.exe"});
  desk.world.Files.FillDisk(0);
  desk.MenuBar("Options", "Use Alternative Internet Browser");
  EXPECT_EQ(desk.world.Desktop.Beeps(), 1);
  EXPECT_TRUE(desk.Checked("Use Default Internet Browser"));
  desk.world.Files.FreeDisk();
  desk.world.Files.Put("C:\\Corvelle\\openurl.ini", "Command=x\r\nApplication=IExplore\r\n");
  desk.world.Files.SetReadOnly("C:\\Corvelle\\openurl.ini", true);
  desk.MenuBar("Options", "Use Default Internet Browser");
  EXPECT_EQ(desk.world.Desktop.Beeps(), 2);
  EXPECT_TRUE(desk.Checked("Use Alternative Internet Browser"));
  desk.world.Files.SetReadOnly("C:\\Corvelle\\openurl.ini", false);
}

TEST(CustomizeOptions, ABrowserThatIsNotSupportedIsToldOfByTheWindow) {
  constexpr const char* kUnsupported =
      "Unsupported browser. Corvelle couldn't recognize the Internet browser you have selected.";
  for (const bool link : {false, true}) {
    SCOPED_TRACE(link ? "a link, which is followed beside the window" : "a program");
    CustDesk desk;
    const std::string chosen = link ? "C:\\Net\\other.lnk" : "C:\\Net\\other.exe";
    desk.world.Files.Put(chosen, "x");
    if (link) desk.world.Links.Put(chosen, {.Path = "C:\\Net\\other.exe"});
    desk.world.Desktop.ChooseFiles({chosen});
    desk.world.Desktop.Answer(kUnsupported, forms::msgbox::AnswerOk);
    desk.MenuBar("Options", "Use Alternative Internet Browser");
    desk.world.Desktop.Pump();
    ASSERT_EQ(desk.world.Desktop.AnswersLeft(), 0);
    EXPECT_EQ(desk.world.Desktop.Boxes().back().Owner, desk.Form().hWnd());
    EXPECT_EQ(desk.world.Desktop.ForegroundWindow(), desk.Form().hWnd());
    EXPECT_EQ(desk.world.Desktop.Beeps(), 0);
  }
}

TEST(CustomizeOptions, ABrowserThatIsRefusedAfterTheWindowClosedIsToldOfByTheStrip) {
  CustDesk desk;
  desk.world.Files.AddDrive('D');
  desk.world.Files.Put("D:\\other.lnk", "x");
  desk.world.Links.Put("D:\\other.lnk", {.Path = "C:\\Net\\other.exe"});
  desk.world.SlowAnswers.Delay("D:", 1500);
  desk.world.Desktop.ChooseFiles({"D:\\other.lnk"});
  desk.MenuBar("Options", "Use Alternative Internet Browser");
  desk.Form().Unload();
  desk.world.Desktop.Answer(
      "Unsupported browser. Corvelle couldn't recognize the Internet browser you have selected.",
      forms::msgbox::AnswerOk);
  desk.world.Desktop.Advance(2000);
  ASSERT_EQ(desk.world.Desktop.AnswersLeft(), 0);
  EXPECT_EQ(desk.world.Desktop.Boxes().back().Owner, desk.parts->Toolbar.hWnd());
}

TEST(CustomizeOptions, LargeIconsInTheRestoredStripRebuildIt) {
  CustDesk desk;
  Program& program = desk.parts->TheProgram;
  program.OptionFlags.Set(Option::LargeIcons, false);
  desk.MenuBar("Options", "Show Large Icons in Restore/Normal Mode");
  EXPECT_TRUE(program.OptionFlags.Is(Option::LargeInRestoreMode));
  EXPECT_TRUE(program.OptionFlags.Is(Option::LargeIcons));
  EXPECT_EQ(program.Icons.IconSize, 32);
  desk.MenuBar("Options", "Show Large Icons in Restore/Normal Mode");
  EXPECT_FALSE(program.OptionFlags.Is(Option::LargeInRestoreMode));
  EXPECT_FALSE(program.OptionFlags.Is(Option::LargeIcons));
  EXPECT_EQ(program.Icons.IconSize, 16);
}

TEST(CustomizeOptions, AStripBesideTheScreenComesBackWhenItMayNoLongerPass) {
  struct Row {
    const char* Line;
    Option MayPass;
    float Left;
  };
  for (const Row& row :
       {Row{"Auto Adjust Toolbar Left Position (Restore Mode)", Option::MayPassLeft, -30000},
        Row{"Auto Adjust Toolbar Right Position (Restore Mode)", Option::MayPassRight, 30000}}) {
    SCOPED_TRACE(row.Line);
    CustDesk desk;
    frmToolbar& strip = desk.parts->Toolbar;
    desk.MenuBar("Options", row.Line);
    ASSERT_TRUE(desk.parts->TheProgram.OptionFlags.Is(row.MayPass));
    strip.SetLeft(row.Left);
    strip.AdjustToolbarPosition();
    ASSERT_EQ(strip.Left(), row.Left) << "it may be there";
    desk.MenuBar("Options", row.Line);
    EXPECT_GE(strip.Left(), 0);
    EXPECT_LE(strip.Left() + strip.Width(), strip.Screen().Width);
    EXPECT_EQ(strip.SavedLeft, strip.Left());
  }
}

TEST(CustomizeOptions, TheLineOfAHiddenStripStaysALine) {
  CustDesk desk;
  Program& program = desk.parts->TheProgram;
  program.OptionFlags.Set(Option::AutoHide, true);
  program.Strip.AutoHide = true;
  program.Ports.Docking->HideToolbar();
  const TwipRect line = desk.parts->Toolbar.Bounds();
  ASSERT_EQ(line.Top, 0);
  ASSERT_NE(desk.parts->Toolbar.SavedTop, 0) << "where it is in full sight";
  ASSERT_EQ(line.Height, 15) << "one pixel";
  desk.MenuBar("Options", "Auto Adjust Toolbar Left Position (Restore Mode)");
  EXPECT_EQ(desk.parts->Toolbar.Bounds().Top, line.Top);
  EXPECT_EQ(desk.parts->Toolbar.Bounds().Height, line.Height);
}

TEST(CustomizeOptions, SmallSingleButtonsDockAFloatingStripAtTheRight) {
  CustDesk desk;
  Program& program = desk.parts->TheProgram;
  ASSERT_FALSE(program.Strip.AppBarDocked);
  desk.MenuBar("Options", "Always Show Single Buttons with Small Icons");
  EXPECT_TRUE(program.OptionFlags.Is(Option::SmallSingles));
  EXPECT_TRUE(program.OptionFlags.Is(Option::LargeIcons));
  EXPECT_TRUE(program.Strip.AppBarDocked);
  EXPECT_EQ(program.Strip.ToolbarEdge, Edge::Right);
}

/// A strip in the task bar, and its way back by a click there.
struct MinimizedDesk : CustDesk {
  void Minimize() const { parts->Companion.MinimizeFor(parts->Toolbar.WindowBounds()); }
  void ComeBack() {
    parts->Companion.RestoreWindow();
    world.Desktop.Send(parts->Companion.hWnd(), forms::message::Size, 0, 0);
    world.Desktop.Advance(300);
  }
  void SwitchOn() { MenuBar("Options", "Always Show Single Buttons with Small Icons"); }
  /// Where the strip and its single buttons are.
  [[nodiscard]] std::vector<TwipRect> Places() const {
    const frmToolbar& strip = parts->Toolbar;
    std::vector<TwipRect> places = {strip.Bounds(), strip.picToolbar.Bounds(),
                                    strip.picSingleButton.Bounds()};
    for (const SingleRect& single : strip.Singles.SingleButtons) {
      places.push_back({single.Left, single.Top, single.Width, single.Height});
    }
    return places;
  }
  void DeleteFirstSingle() const {
    EntryEdit& entry = parts->TheProgram.Entry;
    SetCurrentEntry(entry, {.CurTitle = "Clock",
                            .CurIcon = "C:\\Tools\\Clock.exe",
                            .CurCommand = "C:\\Tools\\Clock.exe",
                            .CurMenuTag = std::string(kSinglesTag),
                            .CurFile = kMenus + SingleFileName(1),
                            .CurRecord = 1});
    EXPECT_EQ(parts->TheProgram.Commands.DeleteItem(false), EditOutcome::Edited);
  }
};

TEST(CustomizeOptions, SmallSingleButtonsOfAFloatingStripInTheTaskBarDockItWhenItComesBack) {
  MinimizedDesk seen;
  seen.SwitchOn();
  MinimizedDesk desk;
  desk.Minimize();
  desk.SwitchOn();
  const StripPlacement& strip = desk.parts->TheProgram.Strip;
  EXPECT_TRUE(strip.BelongsToEdge()) << "an end of the program now is followed by a start there";
  desk.ComeBack();
  EXPECT_TRUE(strip.AppBarDocked);
  EXPECT_EQ(strip.ToolbarEdge, Edge::Right);
  EXPECT_EQ(desk.Places(), seen.Places());
  desk.DeleteFirstSingle();
  seen.DeleteFirstSingle();
  EXPECT_EQ(desk.Places(), seen.Places());
  EXPECT_EQ(desk.Stored(), "Letters(Alpha Beta -) Tools(Hammer Anvil) | Paint");
}

TEST(CustomizeOptions, SmallSingleButtonsOfADockedStripInTheTaskBarLeaveItsEdge) {
  MinimizedDesk desk;
  const StripPlacement& strip = desk.parts->TheProgram.Strip;
  desk.parts->TheProgram.Ports.Docking->SetAppBar(Edge::Left, true);
  desk.Minimize();
  desk.SwitchOn();
  desk.ComeBack();
  EXPECT_TRUE(strip.AppBarDocked);
  EXPECT_EQ(strip.ToolbarEdge, Edge::Left);
}

TEST(CustomizeOptions, LargeSingleButtonsOfAFloatingStripComeLater) {
  CustDesk desk;
  desk.parts->TheProgram.OptionFlags.Set(Option::SmallSingles, true);
  desk.world.Desktop.Answer(
      "The change will take effect next time you switch to large icons toolbar.",
      forms::msgbox::AnswerOk);
  desk.MenuBar("Options", "Always Show Single Buttons with Small Icons");
  EXPECT_FALSE(desk.parts->TheProgram.OptionFlags.Is(Option::SmallSingles));
  EXPECT_EQ(desk.world.Desktop.AnswersLeft(), 0);
}

TEST(CustomizeOptions, TheStartupEntryIsMadeAndTakenAway) {
  CustDesk desk;
  desk.world.Links.SetFolder(7, "C:\\Startup");
  desk.world.Desktop.Answer("Corvelle has been set as a startup program", forms::msgbox::AnswerOk);
  desk.MenuBar("Options", "Set Corvelle as a Startup Program");
  EXPECT_TRUE(desk.world.Files.FileExists("C:\\Startup\\Corvelle.lnk"));
  EXPECT_TRUE(desk.Form().TreeView1.HasFocus()) << "the box was the strip's";
  desk.world.Desktop.Answer(
      "Corvelle has been removed from the Startup folder. Next time you start your computer, "
      "Corvelle will not run.",
      forms::msgbox::AnswerOk);
  desk.MenuBar("Options", "Remove Corvelle from the Startup Folder");
  EXPECT_FALSE(desk.world.Files.FileExists("C:\\Startup\\Corvelle.lnk"));
}

}  // namespace
}  // namespace corvelle
