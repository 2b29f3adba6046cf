#include "menus/FolderDesk.h"

namespace corvelle {
namespace {

TEST(FolderItems, OneIsReplacedByItsFilesInTheOrderOfTheirNames) {
  FolderDesk desk;
  desk.OpenCommands({"C:\\Tools\\tool.exe", "C:\\Docs\\*.*", "C:\\Tools\\tool.exe"});
  EXPECT_EQ(desk.Captions(), (Strings{"Item 2", "Alpha.txt", "beta.txt", "gamma.doc", "Item 4"}));
  EXPECT_EQ(desk.Numbers(), (std::vector<int>{2, 5003, 5003, 5003, 4}));
  EXPECT_EQ(desk.Menu.GetExeName(2), "C:\\Docs\\Alpha.txt");
  EXPECT_EQ(desk.Menu.GetIconName(2), "C:\\Docs\\Alpha.txt");
  EXPECT_EQ(desk.Menu.MenuFile, "C:\\Corvelle\\Menus\\BMENU001.mfd");
}

TEST(FolderItems, TheGeneratedFileHasTheRecordsOfBoth) {
  FolderDesk desk;
  desk.OpenCommands({"C:\\Docs\\*.txt"});
  const std::vector<MenuRecord> records = desk.Generated();
  ASSERT_EQ(records.size(), 3U);
  EXPECT_EQ(records[0].FTitle, std::string("Button\0"
                                           "1",
                                           8));
  EXPECT_EQ(records[0].FIcon, "Button");
  EXPECT_EQ(records[1], (MenuRecord{std::string("Alpha.txt\0"
                                                "5002",
                                                14),
                                    "C:\\Docs\\Alpha.txt", "C:\\Docs\\Alpha.txt"}));
}

TEST(FolderItems, ItsFilesShowTheirOwnIcons) {
  FolderDesk desk;
  desk.OpenCommands({"C:\\Docs\\*.*"});
  const PixelPoint text = desk.IconCell(1);
  const PixelPoint doc = desk.IconCell(3);
  EXPECT_EQ(desk.PixelInside(text.x + 8, text.y + 8), sim::SimShellIcons::ColourOf(5));
  EXPECT_EQ(desk.PixelInside(doc.x + 8, doc.y + 8), sim::SimShellIcons::ColourOf(6));
}

TEST(FolderItems, AClickStartsTheFile) {
  FolderDesk desk;
  desk.World.Files.Put("C:\\Docs\\run.exe", "x");
  desk.OpenCommands({"C:\\Docs\\*.exe"});
  desk.ClickItem(1);
  EXPECT_EQ(desk.Started(), Strings{"C:\\Docs\\run.exe"});
}

TEST(FolderItems, AClosedOneStaysANormalItemAndStartsItsFolder) {
  FolderDesk desk;
  desk.OpenCommands({"C:\\Docs\\*.*/uX", "CSIDL_DRIVES /x"});
  EXPECT_EQ(desk.Captions(), (Strings{"Item 2", "Item 3"}));
  EXPECT_EQ(desk.Menu.MenuFile, "C:\\Corvelle\\Menus\\BMENU001.MNU");
  EXPECT_TRUE(desk.Generated().empty());
  EXPECT_EQ(desk.Numbers(), (std::vector<int>{2, 3}));
  desk.ClickItem(1);
  EXPECT_EQ(desk.Started(), Strings{"C:\\Docs\\"});
}

TEST(FolderItems, AClosedOneAmongOpenOnesKeepsItsPlaceAndNumber) {
  FolderDesk desk;
  desk.OpenCommands({"C:\\Docs\\*.doc", "C:\\Docs\\*.*/X", "C:\\Docs\\*.doc"});
  EXPECT_EQ(desk.Captions(), (Strings{"gamma.doc", "Item 3", "gamma.doc"}));
  EXPECT_EQ(desk.Numbers(), (std::vector<int>{5002, 3, 5004}));
}

TEST(FolderItems, BetweenTwoOfThemTheSourcesRecordsStandInOrderWithTheirNumbers) {
  FolderDesk desk;
  desk.OpenCommands({"a.exe", "C:\\Docs\\*.txt", "b.exe", "c.exe", "C:\\Docs\\*.doc", "d.exe"});
  EXPECT_EQ(desk.Captions(), (Strings{"Item 2", "Alpha.txt", "beta.txt", "Item 4", "Item 5",
                                      "gamma.doc", "Item 7"}));
  EXPECT_EQ(desk.Numbers(), (std::vector<int>{2, 5003, 5003, 4, 5, 5006, 7}));
  const std::vector<clsFolder> folders = desk.Items.Folders("F2");
  ASSERT_EQ(folders.size(), 2U);
  const std::string menu = "C:\\Corvelle\\Menus\\BMENU001.MNU";
  EXPECT_EQ(folders[0], (clsFolder{"C:\\Docs\\*.txt", menu, 3, 4, 2, false}));
  EXPECT_EQ(folders[1], (clsFolder{"C:\\Docs\\*.doc", menu, 7, 7, 1, false}));
}

TEST(FolderItems, OneInTheLastRecordEndsTheMenu) {
  FolderDesk desk;
  desk.OpenCommands({"a.exe", "C:\\Docs\\*.doc"});
  EXPECT_EQ(desk.Captions(), (Strings{"Item 2", "gamma.doc"}));
  EXPECT_EQ(desk.Generated().size(), 3U);
}

TEST(FolderItems, TheHeaderIsNoneWhateverItHolds) {
  FolderDesk desk;
  desk.World.Files.Put(desk.TheProgram.Paths.MenusPath + "BMENU001.MNU",
                       FormatRecord(Item("Button", "", "C:\\Docs\\*.*"), desk.World.Ansi) +
                           FormatRecord(Item("Only"), desk.World.Ansi));
  desk.Reopen(1);
  EXPECT_EQ(desk.Captions(), Strings{"Only"});
}

TEST(FolderItems, AnEmptyOneVanishesFromTheMenu) {
  FolderDesk desk;
  desk.World.Files.MakeFolders("C:\\Empty");
  for (const char* command :
       {"C:\\Empty\\*.*", "C:\\nowhere\\*.*", "Q:\\*.*", "*.*", "C:\\a|b\\*", "C:\\Docs\\*.zip",
        "C:\\Docs\\Alpha.txt\\*", "\\\\server\\share\\*"}) {
    desk.Menu.ForgetMenu("F2");
    desk.OpenCommands({"a.exe", command, "b.exe"});
    EXPECT_EQ(desk.Captions(), (Strings{"Item 2", "Item 4"})) << command;
    EXPECT_EQ(desk.Numbers(), (std::vector<int>{2, 4})) << command;
  }
}

TEST(FolderItems, OneThatCannotBeListedHasNoEntries) {
  FolderDesk desk;
  desk.PutMenu(1, {Item("a"), Item("Docs", "", "C:\\Docs\\*.*"), Item("b")});
  for (const FileError error : {FileError::AccessDenied, FileError::Failed, FileError::NotFound}) {
    desk.Menu.HideMenu();
    desk.Menu.ForgetMenu("F2");
    // The menu file is read, then the folder is listed.
    desk.World.Files.FailCall(2, error);
    desk.Reopen(1);
    desk.World.Files.StopFailing();
    EXPECT_TRUE(desk.World.Files.Hit());
    EXPECT_EQ(desk.Captions(), (Strings{"a", "b"}));
  }
}

TEST(FolderItems, FilesThatAreSetApartAndDirFilesAreNotListed) {
  FolderDesk desk;
  for (const char* name : {"hidden.txt", "system.txt", "temporary.txt", "list.dir"}) {
    desk.World.Files.Put("C:\\Docs\\" + std::string(name), "x");
  }
  desk.World.Files.MakeFolders("C:\\Docs\\inner.txt");
  desk.World.Files.SetHidden("C:\\Docs\\hidden.txt", true);
  desk.World.Files.SetSystem("C:\\Docs\\system.txt", true);
  desk.World.Files.SetTemporary("C:\\Docs\\temporary.txt", true);
  desk.OpenCommands({"C:\\Docs\\*.*"});
  EXPECT_EQ(desk.Captions(), (Strings{"Alpha.txt", "beta.txt", "gamma.doc"}));
}

TEST(FolderItems, WithoutExtensionsNamesAreShownAndSortedByTheirBases) {
  FolderDesk desk;
  for (const char* name : {"beta b.txt", "report.pdf.lnk", "archive.tar.gz"}) {
    desk.World.Files.Put("C:\\Docs\\" + std::string(name), "x");
  }
  desk.OpenCommands({"C:\\Docs\\*.*/e"});
  EXPECT_EQ(desk.Captions(),
            (Strings{"Alpha", "archive.tar", "beta", "beta b", "gamma", "report"}));
  desk.Menu.ForgetMenu("F2");
  desk.OpenCommands({"C:\\Docs\\beta*"});
  EXPECT_EQ(desk.Captions(), (Strings{"beta b.txt", "beta.txt"}));
}

TEST(FolderItems, NamesInAnyScriptAreShownAndStarted) {
  FolderDesk desk;
  const std::string russian = "\xD0\x9F\xD1\x83\xD1\x82\xD1\x8C";
  const std::string german = "\xC3\x84pfel & Co";
  const std::string japanese = "\xE6\x97\xA5\xE6\x9C\xAC";
  for (const std::string& name : {russian, german, japanese}) {
    desk.World.Files.Put("C:\\Scripts\\" + name + "\\run " + name + ".exe", "x");
  }
  desk.OpenCommands({"C:\\Scripts\\*/S"});
  EXPECT_EQ(desk.Captions(), (Strings{"run \xC3\x84pfel && Co.exe", "run " + russian + ".exe",
                                      "run " + japanese + ".exe"}));
  EXPECT_EQ(desk.Numbers(), (std::vector<int>{5002, 5002, 5002}));
  desk.ClickItem(2);
  EXPECT_EQ(desk.Started(), Strings{"C:\\Scripts\\" + russian + "\\run " + russian + ".exe"});
}

TEST(FolderItems, ATitleIsShownAsARecordWouldHoldItAndKeepsItsNumber) {
  FolderDesk desk;
  const std::string name(80, 'n');
  std::string wide;
  for (int i = 0; i < 40; ++i) wide += "\xE6\x97\xA5";
  desk.World.Files.Put("C:\\Long\\" + name + ".exe", "x");
  desk.World.Files.Put("C:\\Long\\" + wide + ".exe", "x");
  desk.OpenCommands({"C:\\Long\\*.*"});
  EXPECT_EQ(desk.Captions(), (Strings{std::string(50, 'n'), wide.substr(0, 48)}));
  EXPECT_EQ(desk.Numbers(), (std::vector<int>{5002, 5002}));
  desk.ClickItem(1);
  EXPECT_EQ(desk.Started(), Strings{"C:\\Long\\" + name + ".exe"});
}

TEST(FolderItems, AFileWhosePathNoRecordHoldsStartsFromTheMenuAndIsMissingInTheFile) {
  FolderDesk desk;
  // Short enough for the disk, but three bytes a character in the record.
  std::string folder = "C:\\Deep";
  for (int i = 0; i < 8; ++i) {
    folder += "\\";
    for (int k = 0; k < 10; ++k) folder += "\xE6\x97\xA5";
  }
  desk.World.Files.Put(folder + "\\a.exe", "x");
  desk.World.Files.Put(folder + "\\a.exe and more.exe", "x");
  folder.resize(folder.rfind('\\'));
  desk.World.Files.Put(folder + "\\fits.exe", "x");
  desk.OpenCommands({folder + "\\*.*/s"});
  EXPECT_EQ(desk.Captions(), (Strings{"fits.exe", "a.exe", "a.exe and more.exe"}));
  ASSERT_EQ(desk.Generated().size(), 2U);
  EXPECT_EQ(SplitTitle(desk.Generated()[1].FTitle, 0), (NumberedTitle{"fits.exe", 5002}));
  desk.ClickItem(3);
  ASSERT_EQ(desk.Started().size(), 1U);
  EXPECT_TRUE(desk.Started()[0].ends_with("\\a.exe and more.exe"));
}

TEST(FolderItems, AFileWhosePathNoRecordHoldsGoesByItsShortNameOrIsNotCopied) {
  FolderDesk desk;
  std::string folder = "C:\\";
  for (int i = 0; i < 85; ++i) folder += "\xE6\x97\xA5";
  desk.World.Files.Put(folder + "\\a.exe", "x");
  desk.OpenCommands({folder + "\\*.*"});
  // Ctrl and a press would pick it up.
  desk.PointAtItem(1);
  desk.World.Desktop.AnswerAnyOther(forms::msgbox::AnswerOk);
  desk.Menu.Form_MouseDown(forms::MouseButton::Left, {.Ctrl = true}, 600,
                           desk.Menu.Lbl[1].Top() + 60);
  ASSERT_EQ(desk.World.Desktop.Boxes().size(), 1U);
  EXPECT_NE(desk.World.Desktop.Boxes()[0].Text.find(folder + "\\a.exe"), std::string::npos);
  EXPECT_FALSE(desk.TheProgram.Entry.ItemDragging);

  desk.World.Files.GiveShortName(folder, "6A2F~1");
  desk.Menu.HideMenu();
  desk.Menu.ForgetMenu("F2");
  desk.OpenCommands({folder + "\\*.*"});
  EXPECT_EQ(desk.Menu.GetExeName(1), "C:\\6A2F~1\\a.exe");
  ASSERT_EQ(desk.Generated().size(), 2U);
  EXPECT_EQ(desk.Generated()[1].FName, "C:\\6A2F~1\\a.exe");
  desk.PointAtItem(1);
  desk.Menu.Form_MouseDown(forms::MouseButton::Left, {.Ctrl = true}, 600,
                           desk.Menu.Lbl[1].Top() + 60);
  EXPECT_TRUE(desk.TheProgram.Entry.ItemDragging);
  desk.TheProgram.Entry.ItemDragging = false;
}

// ---- subfolders ----

class SubFolderItems : public ::testing::Test {
 protected:
  SubFolderItems() {
    for (const char* path : {"C:\\Many\\root.txt", "C:\\Many\\b\\one.txt", "C:\\Many\\b\\two.txt",
                             "C:\\Many\\a\\three.txt", "C:\\Many\\a\\deep\\four.txt"}) {
      desk_.World.Files.Put(path, "x");
    }
    desk_.World.Files.MakeFolders("C:\\Many\\c");
  }

  /// Captions with a "-" for each rule.
  Strings Shown(const std::string& command) {
    desk_.Menu.HideMenu();
    desk_.Menu.ForgetMenu("F2");
    desk_.OpenCommands({command});
    Strings shown;
    for (const MenuRecord& record : desk_.Generated()) {
      if (record.FTitle.starts_with("Button")) continue;
      shown.push_back(IsSeparatorIcon(record.FIcon) ? "-" : SplitTitle(record.FTitle, 0).Title);
    }
    return shown;
  }

  FolderDesk desk_;
};

TEST_F(SubFolderItems, EachFolderIsSetOffByARuleAndAnEmptyOneIsNot) {
  EXPECT_EQ(Shown("C:\\Many\\*.*/s"),
            (Strings{"root.txt", "-", "three.txt", "-", "one.txt", "two.txt"}));
  EXPECT_EQ(desk_.Captions(), (Strings{"root.txt", "three.txt", "one.txt", "two.txt"}));
  const forms::Label& root = desk_.Menu.Lbl[1];
  EXPECT_GT(desk_.Menu.Lbl[2].Top() - root.Bottom(), desk_.Menu.ItemGap);
  EXPECT_EQ(desk_.Menu.Items()[2].AfterSeparator, true);
}

TEST_F(SubFolderItems, WithoutFilesOfItsOwnAFolderBeginsWithNoRule) {
  desk_.World.Files.Vanish("C:\\Many\\root.txt");
  EXPECT_EQ(Shown("C:\\Many\\*.*/s"), (Strings{"three.txt", "-", "one.txt", "two.txt"}));
}

TEST_F(SubFolderItems, AFolderOfWhichNoRecordHoldsAFileIsSetOffByNoRule) {
  // Three bytes a character in the record.
  std::string longName;
  for (int k = 0; k < 50; ++k) longName += "\xE6\x97\xA5";
  for (const char* folder : {"a2", "z"}) {
    desk_.World.Files.Put("C:\\Many\\" + (folder + longName) + "\\" + longName, "x");
  }
  EXPECT_EQ(Shown("C:\\Many\\*.*/s"),
            (Strings{"root.txt", "-", "three.txt", "-", "one.txt", "two.txt"}));
}

TEST_F(SubFolderItems, MergedIntoOneListThereIsNoRule) {
  for (const char* options : {"/s-", "/_S"}) {
    EXPECT_EQ(Shown("C:\\Many\\*.*" + std::string(options)),
              (Strings{"one.txt", "root.txt", "three.txt", "two.txt"}))
        << options;
  }
}

TEST_F(SubFolderItems, TheSameNameInTwoFoldersIsListedTwice) {
  desk_.World.Files.Put("C:\\Many\\a\\one.txt", "x");
  EXPECT_EQ(Shown("C:\\Many\\one*/s-"), (Strings{"one.txt", "one.txt"}));
  EXPECT_EQ(desk_.Menu.GetExeName(1), "C:\\Many\\a\\one.txt");
  EXPECT_EQ(desk_.Menu.GetExeName(2), "C:\\Many\\b\\one.txt");
}

TEST_F(SubFolderItems, OnlyTheFoldersDirectlyBelowAreListed) {
  const Strings shown = Shown("C:\\Many\\*.*/s-");
  EXPECT_EQ(std::count(shown.begin(), shown.end(), "four.txt"), 0);
}

TEST_F(SubFolderItems, AHiddenFolderIsNotListed) {
  desk_.World.Files.SetHidden("C:\\Many\\b", true);
  EXPECT_EQ(Shown("C:\\Many\\*.*/s-"), (Strings{"root.txt", "three.txt"}));
}

TEST_F(SubFolderItems, AFolderThatHoldsItselfIsListedOnceMoreAndNoDeeper) {
  desk_.World.Files.MakeFolders("C:\\Loop");
  desk_.World.Files.Put("C:\\Loop\\in.txt", "x");
  desk_.World.Files.LinkFolder("C:\\Loop\\again", "C:\\Loop");
  EXPECT_EQ(Shown("C:\\Loop\\*.*/s"), (Strings{"in.txt", "-", "in.txt"}));
  EXPECT_EQ(desk_.Menu.GetExeName(2), "C:\\Loop\\again\\in.txt");
}

TEST(FolderItems, AnEditGoesToTheMenuFileItself) {
  FolderDesk desk;
  desk.OpenCommands({"C:\\Docs\\*.*", "a.exe"});
  class Popup final : public PopupPort {
   public:
    void ShowToolbarPopup(EntryEdit entry) override {
      ++Shown;
      Seen = std::move(entry);
    }
    int Shown = 0;
    EntryEdit Seen;
  } popup;
  desk.TheProgram.Ports.Popup = &popup;
  desk.TheProgram.OptionFlags.Set(Option::SystemPopupWithCtrl, '1');
  desk.PointAtItem(4);
  desk.World.Desktop.Click(forms::MouseButton::Right);
  EXPECT_EQ(popup.Shown, 1);
  EXPECT_EQ(popup.Seen.CurFile, "C:\\Corvelle\\Menus\\BMENU001.MNU");
  EXPECT_EQ(popup.Seen.CurRecord, 3);
  EXPECT_EQ(popup.Seen.CurTitle, "Item 3");
}

TEST(FolderItems, WithTheFoldersBelowEachFolderIsListedOnce) {
  FolderDesk desk;
  desk.World.Files.Put("C:\\Docs\\inner\\deep.txt", "x");
  desk.World.Files.Put("C:\\Docs\\inner\\deep.doc", "x");
  desk.PutMenu(1, {Item("Docs", "", "C:\\Docs\\*.txt/S")});
  desk.World.Files.ClearLog();
  desk.Reopen(1);
  EXPECT_EQ(desk.Captions(), (Strings{"Alpha.txt", "beta.txt", "deep.txt"}));
  EXPECT_EQ(desk.World.Files.Count("List"), 2);
  desk.World.Files.Vanish("C:\\Docs");
  desk.Menu.HideMenu();
  desk.Menu.ForgetMenu("F2");
  desk.World.Files.ClearLog();
  desk.Reopen(1);
  EXPECT_EQ(desk.World.Files.Count("List"), 1);
}

}  // namespace
}  // namespace corvelle
