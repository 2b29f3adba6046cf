#include "about/frmAbout.h"

#include <gtest/gtest.h>

#include <string>

#include "base/Version.h"
#include "core/Program.h"
#include "launch/CommandDoubles.h"
#include "program/Wiring.h"
#include "sim/World.h"

namespace corvelle {
namespace {

constexpr char kVersionKey[] = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion";
constexpr int kControlKey = 17;

class AboutWindow : public testing::Test {
 protected:
  AboutWindow() {
    world.Files.Put("C:\\Corvelle\\corvelle.exe", "program");
    world.System.Drives["D:\\"] = {.Type = 5};
    world.System.Drives["E:\\"] = {2, "Stick", "FAT32", DriveRoom{999'000'000, 500'000}};
    program.Paths.AppPath = "C:\\Corvelle\\";
    program.Ports.Browser = &browser;
    program.Ports.About = &window;
    window.LoadWindow();
    world.Desktop.Pump();
  }

  void ChooseTab(int tab) {
    const PixelRect strip = world.Desktop.BoundsOf(world.Desktop.Find("TabStrip1"));
    const PixelRect at = window.TabStrip1.TabRect(tab);
    world.Desktop.ClickAt(strip.left + (at.left + at.right) / 2,
                          strip.top + (at.top + at.bottom) / 2);
    world.Desktop.Pump();
  }
  void ClickOn(const char* name) {
    const PixelRect at = world.Desktop.BoundsOf(world.Desktop.Find(name));
    world.Desktop.ClickAt((at.left + at.right) / 2, (at.top + at.bottom) / 2);
    world.Desktop.Pump();
  }
  void PressWith(int modifier, int key) {
    world.Desktop.KeyDown(modifier);
    world.Desktop.PressKey(key);
    world.Desktop.KeyUp(modifier);
  }
  void DoubleClickOn(const forms::Label& label) {
    const PixelRect panel = world.Desktop.BoundsOf(world.Desktop.Find("pnlCorvelle"));
    world.Desktop.MovePointer(panel.left + static_cast<int>(label.Left() / 15) + 3,
                              panel.top + static_cast<int>(label.Top() / 15) + 3);
    world.Desktop.DoubleClick();
    world.Desktop.Pump();
  }
  [[nodiscard]] std::string Value(std::size_t line) const {
    return line < window.Page().size() ? window.Page()[line].Value : "no line";
  }

  CallLog log;
  sim::World world;
  Program program{world.Services(), world.Windows()};
  LoggingBrowser browser{log};
  frmAbout window{AboutPartsOf(program)};
};

TEST_F(AboutWindow, OpensWithTheProgramsNameAndVersion) {
  EXPECT_EQ(window.Caption(), "About Corvelle");
  EXPECT_EQ(window.TabStrip1.Selected(), "corvelle");
  EXPECT_TRUE(window.pnlCorvelle.Visible());
  EXPECT_FALSE(window.pnlInfo.Visible());
  EXPECT_EQ(window.lblVersion.Caption(), "Version " + std::string(kVersion));
  EXPECT_EQ(window.cmdOK.Caption(), "&OK");
  EXPECT_FALSE(window.lblCopyright.Caption().empty());
  EXPECT_FALSE(window.txtCopyright.Text().empty());
  EXPECT_EQ(world.Desktop.FocusWindow(), world.Desktop.Find("cmdOK"));
}

TEST_F(AboutWindow, ShowsNoAddressThatLeadsNowhere) {
  EXPECT_EQ(window.lblMail.Caption(), "");
  EXPECT_EQ(window.lblURL.Caption(), "");
  EXPECT_FALSE(window.picArrow.Visible());
  DoubleClickOn(window.lblMail);
  EXPECT_TRUE(log.empty());
  EXPECT_EQ(window.txtCopyright.Text().find('@'), std::string::npos);
  EXPECT_EQ(window.txtCopyright.Text().find("://"), std::string::npos);
}

TEST_F(AboutWindow, AddressesThatThereAreOpenByADoubleClick) {
  window.lblMail.SetCaption("help@corvelle.example");
  window.lblURL.SetCaption("http://corvelle.example/");
  window.InitAbout();
  DoubleClickOn(window.lblMail);
  DoubleClickOn(window.lblURL);
  EXPECT_EQ(log,
            (CallLog{"OpenMail mailto:help@corvelle.example", "OpenUrl http://corvelle.example/"}));
}

TEST_F(AboutWindow, TheDrivesTabShowsTheProgramsDriveFirst) {
  ChooseTab(1);
  EXPECT_EQ(window.Drive1.Items(), (std::vector<std::string>{"C:", "D:", "E:"}));
  EXPECT_EQ(window.Drive1.Text(), "C:");
  EXPECT_TRUE(window.pnlInfo.Visible());
  EXPECT_TRUE(window.Drive1.Visible());
  EXPECT_FALSE(window.pnlCorvelle.Visible());
  EXPECT_EQ(Value(0), "512.00 GB");
  EXPECT_EQ(Value(3), "Local Disk");
}

TEST_F(AboutWindow, ADriveOf999MegabytesIsShownInMegabytesAndOneOf1000InGigabytes) {
  ChooseTab(1);
  window.PrintDriveInfo("E: [STICK]");
  world.Desktop.Pump();
  EXPECT_EQ(Value(0), "999.00 MB");
  world.System.Drives["E:\\"].Room = DriveRoom{1'000'000'000, 500'000};
  window.PrintDriveInfo("E:");
  world.Desktop.Pump();
  EXPECT_EQ(Value(0), "1.00 GB");
  EXPECT_EQ(Value(2), "0.00 GB");
}

TEST_F(AboutWindow, AChangeInTheDriveListReprintsThePage) {
  ChooseTab(1);
  window.Drive1.SetFocus();
  world.Desktop.PressKey(forms::key::Down);
  world.Desktop.PressKey(forms::key::Down);
  world.Desktop.Pump();
  EXPECT_EQ(window.Drive1.Text(), "E:");
  EXPECT_EQ(Value(4), "Stick");
  world.Desktop.PressKey(forms::key::Up);
  world.Desktop.Pump();
  EXPECT_EQ(window.Drive1.Text(), "D:");
  EXPECT_EQ(Value(3), "CD-ROM");
}

TEST_F(AboutWindow, ADriveThatIsNotReadyGivesBlankValuesAndRaisesNoBox) {
  ChooseTab(1);
  window.PrintDriveInfo("D:");
  world.Desktop.Pump();
  EXPECT_EQ(Value(3), "CD-ROM");
  for (const std::size_t line : {0U, 1U, 2U, 4U, 5U}) EXPECT_EQ(Value(line), "");
  EXPECT_TRUE(world.Desktop.Boxes().empty());
}

TEST_F(AboutWindow, ADriveThatHangsHoldsUpNeitherTheWindowNorTheOtherDrives) {
  world.SlowAnswers.Hang("D:\\");
  ChooseTab(1);
  window.PrintDriveInfo("D:");
  world.Desktop.Advance(5000);
  EXPECT_EQ(window.Page(), EmptyDriveInfo());
  window.PrintDriveInfo("E:");
  world.Desktop.Pump();
  EXPECT_EQ(Value(4), "Stick");
  // What the first one says at last is of no interest any more.
  world.SlowAnswers.Resume("D:\\");
  world.Desktop.Pump();
  EXPECT_EQ(Value(4), "Stick");
}

TEST_F(AboutWindow, AnAnswerThatComesAfterTheTabWasLeftChangesNothing) {
  world.SlowAnswers.Delay("C:\\", 500);
  ChooseTab(1);
  ChooseTab(2);
  const InfoPage system = window.Page();
  world.Desktop.Advance(1000);
  EXPECT_EQ(window.Page(), system);
}

TEST_F(AboutWindow, AnAnswerThatComesAfterTheWindowWasClosedChangesNothing) {
  world.SlowAnswers.Delay("C:\\", 500);
  ChooseTab(1);
  window.UnloadWindow();
  world.Desktop.Advance(1000);
  EXPECT_FALSE(window.IsLoaded());
  window.LoadWindow();
  world.Desktop.Pump();
  EXPECT_EQ(window.TabStrip1.Selected(), "corvelle");
}

TEST_F(AboutWindow, TheSystemTabPrintsTheFactsOfTheMachine) {
  ChooseTab(2);
  EXPECT_FALSE(window.Drive1.Visible());
  EXPECT_EQ(PageText(window.Page()),
            "  Operating System        :  Windows NT \r\n"
            "  Windows Version     :  10.0 (Build 22631)\r\n"
            "  CPU Type        :  x64 (64-bit)\r\n"
            "  Total Physical Memory:  16,777,216 KB\r\n"
            "  Available Logical Drives:  C: D: E:\r\n"
            "  Windows Directory   :  C:\\Windows\r\n"
            "  Temp Directory      :  C:\\Users\\User\\Temp\r\n");
}

TEST_F(AboutWindow, TheNameOfTheSystemComesFromTheRegistryWhereItIs) {
  world.Keys.Set(RegistryRoot::LocalMachine, kVersionKey, "Version", "Windows 98");
  ChooseTab(2);
  EXPECT_EQ(Value(0), "Windows 98");
}

TEST_F(AboutWindow, AFailureIsPrintedBelowWhatWasRead) {
  world.System.Memory.reset();
  ChooseTab(2);
  ASSERT_EQ(window.Page().size(), 4U);
  EXPECT_EQ(window.Page().back(), (InfoLine{"", "Error getting system Info"}));
}

TEST_F(AboutWindow, TheButtonCopiesThePageAndCtrlCDoesTheSame) {
  ChooseTab(1);
  ClickOn("cmdCopy");
  EXPECT_EQ(world.Copies.Text, "C:\r\n" + PageText(window.Page()));
  window.Drive1.SetFocus();
  world.Desktop.PressKey(forms::key::Down);
  world.Desktop.Pump();
  PressWith(kControlKey, 'C');
  EXPECT_EQ(world.Copies.Text, "D:\r\n" + PageText(window.Page()));
  ChooseTab(2);
  PressWith(kControlKey, 'C');
  EXPECT_EQ(world.Copies.Text, PageText(window.Page()));
  EXPECT_NE(world.Copies.Text.find("Windows Version"), std::string::npos);
  ChooseTab(0);
  PressWith(kControlKey, 'C');
  EXPECT_EQ(world.Copies.Text.find("Corvelle\r\nVersion " + std::string(kVersion)), 0U);
}

TEST_F(AboutWindow, WhileAnotherProgramHoldsTheClipboardCopyingBeeps) {
  world.Copies.HeldByAnother = true;
  ClickOn("cmdCopy");
  EXPECT_EQ(world.Copies.Text, "");
  EXPECT_EQ(world.Desktop.Beeps(), 1);
  EXPECT_TRUE(window.IsLoaded());
}

TEST_F(AboutWindow, EscAndOkCloseIt) {
  world.Desktop.PressKey(forms::key::Escape);
  EXPECT_FALSE(window.IsLoaded());
  window.LoadWindow();
  world.Desktop.PressKey(forms::key::Enter);
  EXPECT_FALSE(window.IsLoaded());
  window.LoadWindow();
  ClickOn("cmdOK");
  EXPECT_FALSE(window.IsLoaded());
}

TEST_F(AboutWindow, EscClosesItFromEachTabAlsoWithTheTextInFocus) {
  window.txtCopyright.SetFocus();
  world.Desktop.PressKey(forms::key::Escape);
  EXPECT_FALSE(window.IsLoaded());
  window.LoadWindow();
  ChooseTab(1);
  window.Drive1.SetFocus();
  world.Desktop.PressKey(forms::key::Escape);
  EXPECT_FALSE(window.IsLoaded());
}

TEST_F(AboutWindow, TheTabsChangeByKeysFromAnywhere) {
  PressWith(kControlKey, forms::key::Tab);
  EXPECT_EQ(window.TabStrip1.Selected(), "drives");
  PressWith(kControlKey, forms::key::PageDown);
  EXPECT_EQ(window.TabStrip1.Selected(), "system");
  EXPECT_EQ(window.Page().size(), 7U);
}

TEST_F(AboutWindow, ChosenAgainItComesToTheFront) {
  ChooseTab(2);
  const WindowId other =
      world.Desktop.AddOtherWindow({.Title = "Other", .Bounds = {0, 0, 900, 700}});
  world.Desktop.TakeForeground(other);
  window.LoadWindow();
  world.Desktop.Pump();
  EXPECT_EQ(world.Desktop.ForegroundWindow(), window.hWnd());
  EXPECT_EQ(window.TabStrip1.Selected(), "system");
}

}  // namespace
}  // namespace corvelle
