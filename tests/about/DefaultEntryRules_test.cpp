#include "about/DefaultEntryRules.h"

#include <gtest/gtest.h>

namespace corvelle {
namespace {

TEST(DefaultSingles, FourStandOnAWholeMachine) {
  const std::vector<MenuRecord> expected = {
      {"Find Files", "\\icons\\filefind.ico", "FileFind"},
      {"Find Computer", "\\icons\\comp02.ico", "FindComputer"},
      {"Windows Explorer", "\\icons\\Explorer.ico",
       "?explorer.exe /e,/root,,::{20D04FE0-3AEA-1069-A2D8-08002B30309D}"},
      {"Net Search", "\\icons\\netsrch.ico", "NetSearch"},
  };
  EXPECT_EQ(FixedSingles({}), expected);
  EXPECT_EQ(MyComputerSingle(),
            (MenuRecord{"My Computer", "\\icons\\MyComp.ico",
                        "?explorer.exe /root,,::{20D04FE0-3AEA-1069-A2D8-08002B30309D}"}));
}

TEST(DefaultSingles, TitlesOfPrograms) {
  struct Row {
    MenuRecord (*Make)(const ProgramFacts&);
    std::string_view Path;
    std::string_view FileTitle;
    std::string Expected;
  };
  const Row rows[] = {
      {BrowserSingle, "C:\\NETscape\\nav.exe", "nav", "Netscape"},
      {BrowserSingle, "C:\\Internet\\iexplore.EXE", "iexplore", "Internet Explorer"},
      {BrowserSingle, "C:\\other\\browse.exe", "browse", "browse"},
      {MailSingle, "C:\\Outlook\\msimn.exe", "msimn", "Outlook Express"},
      {MailSingle, "C:\\mail\\post.exe", "post", "Post"},
      {ProgramSingle, "C:\\windows\\notepad.exe", "notepad", "Notepad"},
      {ProgramSingle, "C:\\x\\\u00e9crit.exe", "\u00e9crit", "\u00c9crit"},
      {ProgramSingle, "C:\\x\\.exe", "", ""},
  };
  for (const Row& row : rows) {
    const MenuRecord made = row.Make({.Path = row.Path, .FileTitle = row.FileTitle});
    EXPECT_EQ(made, (MenuRecord{row.Expected, std::string(row.Path), std::string(row.Path)}));
  }
}

TEST(DefaultSingles, WhatTheMachineCannotDoIsLeftOut) {
  struct Row {
    MachineFacts Facts;
    std::vector<std::string> Expected;
  };
  const Row rows[] = {
      {{}, {"Find Files", "Find Computer", "Windows Explorer", "Net Search"}},
      {{.HasFileSearch = false}, {"Find Computer", "Windows Explorer", "Net Search"}},
      {{.HasNetSearch = false}, {"Find Files", "Find Computer", "Windows Explorer"}},
      {{.HasFileSearch = false, .HasNetSearch = false}, {"Find Computer", "Windows Explorer"}},
  };
  for (const Row& row : rows) {
    std::vector<std::string> titles;
    for (const MenuRecord& record : FixedSingles(row.Facts)) titles.push_back(record.FTitle);
    EXPECT_EQ(titles, row.Expected);
  }
}

TEST(ProgramAnswers, AreProgramsThatAButtonCanStart) {
  struct Row {
    std::string_view Path;
    bool Expected;
  };
  const Row rows[] = {
      {"C:\\w\\editor.exe", true},
      {"C:\\w\\EDITOR.EXE", true},
      {"editor.exe", true},
      {"C:\\w\\edit.com", true},
      {"C:\\w\\edit.bat", true},
      {"C:\\w\\edit.cmd", true},
      {"C:\\Windows\\System32\\OpenWith.exe", false},
      {"openwith.EXE", false},
      {"C:\\w\\NotOpenWith.exe", true},
      {"C:\\Windows\\System32\\rundll32.exe", false},
      {"C:\\Windows\\System32\\dllhost.exe", false},
      {"C:\\Windows\\System32\\svchost.exe", false},
      {"C:\\Windows\\System32\\LaunchWinApp.exe", false},
      {"C:\\Windows\\System32\\ApplicationFrameHost.exe", false},
      {"C:\\Windows\\System32\\RuntimeBroker.exe", false},
      {"C:\\Windows\\explorer.exe", false},
      {"C:\\Pictures\\Viewer.dll", false},
      {"C:\\Corvelle\\dummy.txt", false},
      {"C:\\Program Files\\WindowsApps\\Maker.Notes_11.2\\Notes.exe", false},
      {"C:\\Users\\A\\AppData\\Local\\Microsoft\\WindowsApps\\notes.exe", true},
      {"", false},
  };
  for (const Row& row : rows) EXPECT_EQ(IsProgramAnswer(row.Path), row.Expected) << row.Path;
}

TEST(DefaultMenus, HaveTheirButtonsAndItems) {
  EXPECT_EQ(DesktopMenu(),
            (std::vector<MenuRecord>{{"Desktop", "\\icons\\desktop.ico", ""},
                                     {"Desktop Items", "\\icons\\desktop.ico", "CSIDL_DESKTOP"}}));
  EXPECT_EQ(SettingsMenu(),
            (std::vector<MenuRecord>{{"Settings", "\\icons\\settings.ico", ""},
                                     {"Control Panel", "\\icons\\ctrpanel.ico", "CSIDL_CONTROLS"},
                                     {"Separator", "MenuLineSeparator", ""},
                                     {"Printers", "\\icons\\PRINTFLD.ICO", "CSIDL_PRINTERS"}}));
  EXPECT_EQ(ProgramsButton(), (MenuRecord{"Programs", "\\icons\\PROGRAMS.ICO", ""}));
  EXPECT_EQ(AccessoriesButton(), (MenuRecord{"Accessories", "\\icons\\clip01.ico", ""}));
}

TEST(DefaultMenus, RecentDocumentsAreAFolderItemWhereThereIsTheFolder) {
  const MenuRecord button{"Documents", "\\icons\\FOLDER21.ICO", ""};
  EXPECT_EQ(
      DocumentsMenu("C:\\Me\\Recent"),
      (std::vector<MenuRecord>{
          button, {"Recent Documents Folder", "\\icons\\FOLDER21.ICO", "C:\\Me\\Recent\\*.*/u"}}));
  EXPECT_EQ(DocumentsMenu(""), std::vector<MenuRecord>{button});
}

TEST(FileItems, TakeTheNameWithoutAnExtensionOfThreeLetters) {
  EXPECT_EQ(FileItem("C:\\Start", "Writer.lnk"),
            (MenuRecord{"Writer", "C:\\Start\\Writer.lnk", "C:\\Start\\Writer.lnk"}));
  EXPECT_EQ(TitleOfName("page.html"), "page.html");
  EXPECT_EQ(TitleOfName("v1.2"), "v1.2");
  EXPECT_EQ(TitleOfName(".lnk"), "");
  EXPECT_EQ(TitleOfName("x.\u00e9\u00e9\u00e9"), "x");
  EXPECT_EQ(TitleOfName("a.\u00e9b"), "a.\u00e9b");
}

TEST(StartMenu, LeavesOutWhatIsNotToBeStarted) {
  for (const char* name : {"StartUp", "System accessories", "Netscape 4", "My Explorer"}) {
    EXPECT_TRUE(IsSkippedFolder(name)) << name;
  }
  EXPECT_FALSE(IsSkippedFolder("Games"));
  for (const char* name :
       {"HELP.lnk", "Read me.txt", "readme.lnk", "Setup Tool.lnk", "Uninstall.lnk"}) {
    EXPECT_TRUE(IsSkippedFile(name)) << name;
  }
  EXPECT_FALSE(IsSkippedFile("Writer.lnk"));
  for (const char* target : {"C:\\w\\NOTEPAD.EXE", "C:\\w\\wordpad.exe", "C:\\c\\Corvelle.exe",
                             "C:\\w\\winhelp.exe", "C:\\docs\\letter.txt", ""}) {
    EXPECT_TRUE(IsSkippedTarget(target)) << target;
  }
  EXPECT_FALSE(IsSkippedTarget("C:\\w\\writer.EXE"));
  EXPECT_TRUE(IsOwnFile("the CORVELLE guide.lnk"));
  EXPECT_FALSE(IsOwnFile("guide.lnk"));
}

}  // namespace
}  // namespace corvelle
