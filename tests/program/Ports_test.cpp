#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "core/HelpPages.h"
#include "launch/LaunchItem.h"
#include "program/ProgramDesk.h"

namespace corvelle {
namespace {

using Names = std::set<std::string>;

/// The ports that no part fills.
Names NullPorts(const WindowPorts& ports) {
  Names names;
  const auto look = [&names](const char* name, const void* port) {
    if (port == nullptr) names.insert(name);
  };
  look("Toolbar", ports.Toolbar);
  look("QMenu", ports.QMenu);
  look("Minimize", ports.Minimize);
  look("Startup", ports.Startup);
  look("Hint", ports.Hint);
  look("Docking", ports.Docking);
  look("StartupLink", ports.StartupLink);
  look("DefaultEntries", ports.DefaultEntries);
  look("SingleButtons", ports.SingleButtons);
  look("IconRule", ports.IconRule);
  look("IconLibrary", ports.IconLibrary);
  look("Capture", ports.Capture);
  look("DragImage", ports.DragImage);
  look("Tip", ports.Tip);
  look("WebLink", ports.WebLink);
  look("FolderMenus", ports.FolderMenus);
  look("SpecialFolders", ports.SpecialFolders);
  look("MainMenu", ports.MainMenu);
  look("Popup", ports.Popup);
  look("BuiltInCommands", ports.BuiltInCommands);
  look("Browser", ports.Browser);
  look("Help", ports.Help);
  look("ShellLinks", ports.ShellLinks);
  look("NetSearch", ports.NetSearch);
  look("Properties", ports.Properties);
  look("Customize", ports.Customize);
  look("MenuEdits", ports.MenuEdits);
  look("ImageWindow", ports.ImageWindow);
  look("Library", ports.Library);
  look("About", ports.About);
  look("CustomizeIcon", ports.CustomizeIcon);
  look("PropertiesIcon", ports.PropertiesIcon);
  return names;
}

// How many pointers the ports are: a new one must be looked at above.
constexpr std::size_t kPorts = 32;
static_assert(sizeof(WindowPorts) == kPorts * sizeof(void*));

class Windows : public testing::Test {
 protected:
  /// The user opens the program's own menu and chooses an entry of it.
  void Choose(const std::string& caption) {
    parts().TheMainMenu.xMainMenu(1, caption);
    desk.world.Desktop.Pump();
  }
  void PutHelp() {
    for (const HelpPageFile& file : kHelpPages) {
      desk.world.Files.Put("C:\\Corvelle\\Help\\" + std::string(file.Name), "<html>");
    }
    desk.world.Shell.Associate(".html", "C:\\Browser\\browser.exe");
    desk.world.Shell.ClearLog();
  }
  [[nodiscard]] std::vector<std::string> Opened() const {
    std::vector<std::string> files;
    for (const sim::Launch& launch : desk.world.Shell.Log()) {
      if (launch.Started) files.push_back(launch.File);
    }
    return files;
  }
  Parts& parts() { return *desk.parts; }

  ProgramDesk desk;
};

TEST_F(Windows, NoPortIsLeftWithoutAPart) {
  EXPECT_EQ(NullPorts(parts().TheProgram.Ports), Names{});
}

TEST_F(Windows, AboutOpensFromTheProgramsOwnMenu) {
  Choose("About...");
  EXPECT_TRUE(parts().About.IsLoaded());
  EXPECT_EQ(desk.world.Desktop.ForegroundWindow(), parts().About.hWnd());
}

TEST_F(Windows, NetSearchOpensFromASingleButton) {
  desk.world.Files.Put("C:\\Corvelle\\netsrch.ini", "NAME=One\r\nURL=http://one.example/[]\r\n");
  LaunchItem(parts().TheProgram.Launch, "NetSearch");
  desk.world.Desktop.Pump();
  EXPECT_TRUE(parts().NetSearch.IsLoaded());
  EXPECT_EQ(parts().NetSearch.cmbEngine.Text(), "One");
}

TEST_F(Windows, TheEndOfTheProgramClosesThemAndKeepsTheHistory) {
  desk.world.Files.Put("C:\\Corvelle\\netsrch.ini", "NAME=One\r\nURL=http://one.example/[]\r\n");
  LaunchItem(parts().TheProgram.Launch, "NetSearch");
  Choose("About...");
  ASSERT_TRUE(parts().NetSearch.Queries.Add("tea"));
  Choose("Exit");
  EXPECT_FALSE(parts().NetSearch.IsLoaded());
  EXPECT_FALSE(parts().About.IsLoaded());
  EXPECT_EQ(desk.world.Files.Get("C:\\Corvelle\\nsearch.dat"), "tea\r\n");
}

TEST_F(Windows, HelpTopicsOpensThePagesWhereThereIsNoHelpFile) {
  PutHelp();
  Choose("Help Topics");
  EXPECT_EQ(Opened(), std::vector<std::string>{"C:\\Corvelle\\Help\\index.html"});
}

TEST_F(Windows, HelpTopicsKeepsToTheHelpFileWhereThereIsOne) {
  PutHelp();
  desk.world.Files.Put("C:\\Corvelle\\corvelle.hlp", "help");
  desk.world.Shell.Associate(".hlp", "C:\\Windows\\winhlp32.exe");
  Choose("Help Topics");
  EXPECT_EQ(Opened(), std::vector<std::string>{"C:\\Corvelle\\corvelle.hlp"});
}

TEST_F(Windows, F1OpensThePageOfTheWindowInFront) {
  desk.world.Files.Put("C:\\Corvelle\\netsrch.ini", "NAME=One\r\nURL=http://one.example/[]\r\n");
  PutHelp();
  LaunchItem(parts().TheProgram.Launch, "NetSearch");
  desk.world.Desktop.Pump();
  desk.world.Shell.ClearLog();
  desk.world.Desktop.PressKey(forms::key::F1);
  Choose("About...");
  desk.world.Desktop.PressKey(forms::key::F1);
  EXPECT_EQ(Opened(), (std::vector<std::string>{"C:\\Corvelle\\Help\\net-search.html",
                                                "C:\\Corvelle\\Help\\about.html"}));
}

TEST_F(Windows, F1InAMenuClosesItAndOpensItsPage) {
  PutHelp();
  desk.OpenMenu(1);
  desk.world.Desktop.PressKey(forms::key::F1);
  desk.world.Desktop.Pump();
  EXPECT_FALSE(parts().Menu.MenuVisible());
  ASSERT_EQ(Opened().size(), 1U);
  EXPECT_EQ(Opened().front(), "C:\\Corvelle\\Help\\menus.html");
}

TEST_F(Windows, EachFormThatTakesKeysKnowsItsPage) {
  const forms::Form* const windows[] = {&parts().Toolbar,   &parts().Companion,  &parts().Tip,
                                        &parts().Menu,      &parts().Library,    &parts().WebLink,
                                        &parts().Customize, &parts().Properties, &parts().NetSearch,
                                        &parts().About};
  for (const forms::Form* const window : windows) {
    EXPECT_TRUE(window->HelpAsked) << window->Name();
    EXPECT_NE(HelpPageOf(window->Name()), HelpPage::Contents) << window->Name();
  }
}

TEST(FirstStart, OpensTheFirstSteps) {
  sim::World world;
  world.Files.Put("C:\\Corvelle\\corvelle.exe", "program");
  world.Files.Put("C:\\Corvelle\\Help\\first-steps.html", "<html>");
  world.Shell.Associate(".html", "C:\\Browser\\browser.exe");
  world.System.WorkFolder = "C:\\Corvelle\\";
  world.Desktop.AnswerAnyOther(forms::msgbox::AnswerNo);
  const auto start = [&world] {
    world.Shell.ClearLog();
    Parts parts(world.Services(), world.Windows());
    EXPECT_TRUE(Main(parts.TheProgram));
    world.Desktop.Pump();
    return world.Shell.Log().size();
  };
  EXPECT_EQ(start(), 1U);
  EXPECT_EQ(start(), 0U) << "the second start opens nothing";
}

}  // namespace
}  // namespace corvelle
