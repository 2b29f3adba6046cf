// Icons that are fetched before a menu asks for them.

#include "menus/icons/IconWalk.h"

#include <algorithm>

#include "base/Text.h"
#include "menus/FolderDesk.h"

namespace corvelle {
namespace {

using sim::SimShellIcons;

const std::string kNul(1, '\0');

/// A desk with folder items whose small icons are counted.
class Fetched : public ::testing::Test {
 protected:
  void Fetch() {
    desk_.World.Icons.ClearCounts();
    desk_.World.Files.ClearLog();
    desk_.Menu.InitIcons();
    desk_.World.Desktop.Advance(1000);
  }
  /// F5, with what the strip does then.
  void Refresh() {
    desk_.Menu.RefreshQMenu();
    desk_.Menu.ForgetMenu("F2");
    desk_.OpenAgain();
  }
  const Strings& Small() { return desk_.World.Icons.Asked(IconList::Small); }
  /// How often the shell was asked for the small icon of a path, ignoring case.
  int Times(const std::string& path) {
    return static_cast<int>(std::count_if(Small().begin(), Small().end(), [&](const auto& asked) {
      return EqualNoCase(asked, path);
    }));
  }
  /// How often a folder was listed.
  int Listed(const std::string& folder) {
    const auto& log = desk_.World.Files.Log();
    return static_cast<int>(std::count_if(log.begin(), log.end(), [&](const auto& call) {
      return call.Operation == "List" && call.Path == folder;
    }));
  }

  FolderDesk desk_;
};

TEST_F(Fetched, TheIconsOfAFolderItemsFilesComeWithThoseOfTheRecords) {
  desk_.PutMenu(1, {Item("a", "C:\\Tools\\tool.exe"), Item("Docs", "", "C:\\Docs\\*.*"),
                    Item("b", "C:\\Docs\\gamma.doc")});
  Fetch();
  EXPECT_EQ(Small(), (Strings{"C:\\Corvelle\\corvelle.exe", "Button",
                              "C:\\Corvelle\\Icons\\W95MBX02.ICO", "C:\\Tools\\tool.exe",
                              "C:\\Docs\\Alpha.txt", "C:\\Docs\\beta.txt", "C:\\Docs\\gamma.doc"}));
  EXPECT_EQ(Listed("C:\\Docs\\"), 1);
  EXPECT_EQ(desk_.World.Files.Count("Write"), 0);
}

TEST_F(Fetched, TheMenuThenAsksForNoneOfThemAndShowsThem) {
  desk_.PutMenu(1, {Item("Docs", "", "C:\\Docs\\*.*")});
  Fetch();
  desk_.World.Icons.ClearCounts();
  desk_.Reopen(1);
  EXPECT_EQ(Small(), Strings{});
  const PixelPoint cell = desk_.IconCell(3);
  EXPECT_EQ(desk_.PixelInside(cell.x + 8, cell.y + 8), SimShellIcons::ColourOf(6));
}

TEST_F(Fetched, NoneIsAskedForTwiceOverMenusFoldersAndWalks) {
  desk_.PutMenu(1, {Item("Docs", "", "C:\\Docs\\*.*"), Item("Texts", "", "C:\\Docs\\*.txt")});
  desk_.PutMenu(2, {Item("Docs", "", "c:\\docs\\*.*/s")});
  Fetch();
  EXPECT_EQ(Times("C:\\Docs\\Alpha.txt"), 1);
  Fetch();
  EXPECT_EQ(Small(), Strings{});
  desk_.World.Files.Put("C:\\Docs\\new.txt", "x");
  Fetch();
  EXPECT_EQ(Small().size(), 1U);
  EXPECT_EQ(Times("C:\\Docs\\new.txt"), 1);
  desk_.Menu.ResetPicIcons();
  Fetch();
  EXPECT_EQ(Times("C:\\Docs\\Alpha.txt"), 1);
}

TEST_F(Fetched, TheFoldersBelowAreListedWhereTheItemShowsThem) {
  desk_.World.Files.Put("C:\\Docs\\inner\\deep.txt", "x");
  desk_.PutMenu(1, {Item("Docs", "", "C:\\Docs\\*.*")});
  Fetch();
  EXPECT_EQ(Times("C:\\Docs\\inner\\deep.txt"), 0);
  desk_.PutMenu(1, {Item("Docs", "", "C:\\Docs\\*.*/S")});
  Fetch();
  EXPECT_EQ(Times("C:\\Docs\\inner\\deep.txt"), 1);
}

TEST_F(Fetched, OfAFolderThatShowsNoFilesNoneIsAskedFor) {
  const Strings commands = {"C:\\Docs\\*.*/x", "CSIDL_DESKTOP", "C:\\Docs\\", "C:\\Gone\\*.*",
                            "*.txt"};
  for (const std::string& command : commands) {
    desk_.PutMenu(1, {Item("Docs", "", command)});
    Fetch();
    EXPECT_EQ(Times("C:\\Docs\\Alpha.txt"), 0) << command;
    EXPECT_EQ(Listed("C:\\Docs\\"), 0) << command;
  }
  EXPECT_EQ(desk_.World.Folders.Listings(), 0);
}

TEST_F(Fetched, TheHeaderHasAnIconButIsNoFolder) {
  desk_.World.Files.Put(
      "C:\\Corvelle\\Menus\\BMENU001.MNU",
      FormatRecord(Item("B", "C:\\Tools\\tool.exe", "C:\\Docs\\*.*"), desk_.World.Ansi));
  Fetch();
  EXPECT_EQ(Times("C:\\Tools\\tool.exe"), 1);
  EXPECT_EQ(Listed("C:\\Docs\\"), 0);
}

TEST_F(Fetched, AFolderThatCannotBeListedHoldsTheOthersUpByNothing) {
  desk_.PutMenu(1, {Item("Docs", "", "C:\\Docs\\*.*"), Item("b", "C:\\Tools\\tool.exe")});
  desk_.World.Files.ClearLog();
  desk_.World.Icons.ClearCounts();
  // The list of menus, its length and its bytes come first.
  for (int call = 1; call <= 5; ++call) {
    desk_.Menu.ResetPicIcons();
    desk_.World.Icons.ClearCounts();
    desk_.World.Files.FailCall(call, FileError::AccessDenied);
    desk_.Menu.InitIcons();
    desk_.World.Desktop.Advance(1000);
    desk_.World.Files.StopFailing();
    desk_.World.Desktop.Pump();
  }
  desk_.World.Files.Vanish("C:\\Docs");
  desk_.Menu.ResetPicIcons();
  Fetch();
  EXPECT_EQ(Times("C:\\Tools\\tool.exe"), 1);
}

TEST_F(Fetched, AnIconMarkedBehindItsNulIsSkippedAndAnotherIsCutThere) {
  for (const char* mark : {"/h", " /H", "/hidden"}) {
    EXPECT_TRUE(IsSkippedIcon("C:\\Tools\\tool.exe" + kNul + mark)) << mark;
  }
  for (const std::string& icon : {std::string("C:\\Tools/h"), kNul + "x/h", std::string()}) {
    EXPECT_FALSE(IsSkippedIcon(icon)) << icon;
  }
  desk_.World.Files.Put("C:\\Tools\\other.exe", "x");
  desk_.PutMenu(1, {Item("a", "C:\\Tools\\tool.exe" + kNul + "/h"),
                    Item("b", "C:\\Tools\\other.exe" + kNul + "rest")});
  Fetch();
  EXPECT_EQ(Times("C:\\Tools\\tool.exe"), 0);
  EXPECT_EQ(Times("C:\\Tools\\other.exe"), 1);
}

TEST_F(Fetched, AMenuThatIsOpenedMeanwhileOvertakesThem) {
  std::vector<MenuRecord> items;
  for (int i = 0; i < 20; ++i) {
    const std::string file = "C:\\Tools\\" + std::to_string(i) + ".exe";
    desk_.World.Files.Put(file, "x");
    items.push_back(Item("Item", file));
  }
  desk_.PutMenu(1, items);
  desk_.PutMenu(2, {Item("a", "C:\\Docs\\beta.txt"), Item("b", "C:\\Docs\\gamma.doc")});
  desk_.World.SlowAnswers.Delay("C:*", 30);
  desk_.Menu.InitIcons();
  desk_.World.Desktop.Advance(IconPrefetch::kFirstPause + 100);
  const auto before = desk_.World.Desktop.Now();
  const std::size_t fetched = Small().size();
  EXPECT_GT(fetched, 1U);
  desk_.Reopen(2);
  EXPECT_TRUE(desk_.Menu.MenuVisible());
  EXPECT_EQ(desk_.World.Desktop.Now(), before);
  // One was under way; then come the two on show.
  desk_.World.Desktop.Advance(100);
  for (const char* shown : {"C:\\Docs\\beta.txt", "C:\\Docs\\gamma.doc"}) {
    const auto at = std::find(Small().begin(), Small().end(), shown) - Small().begin();
    EXPECT_LE(static_cast<std::size_t>(at), fetched + 2) << shown;
  }
  desk_.World.Desktop.Advance(2000);
  EXPECT_EQ(Times("C:\\Tools\\19.exe"), 1);
  EXPECT_EQ(Times("C:\\Docs\\beta.txt"), 1);
}

TEST_F(Fetched, NothingIsAskedOrReadBeforeTheStripHasHadItsMoment) {
  desk_.PutMenu(1, {Item("a", "C:\\Tools\\tool.exe"), Item("Docs", "", "C:\\Docs\\*.*")});
  desk_.World.Icons.ClearCounts();
  desk_.World.Files.ClearLog();
  const auto before = desk_.World.Desktop.Now();
  desk_.Menu.InitIcons();
  desk_.World.Desktop.Advance(IconPrefetch::kFirstPause - 1);
  EXPECT_EQ(desk_.World.Desktop.Now(), before + IconPrefetch::kFirstPause - 1);
  EXPECT_EQ(Small(), Strings{});
  EXPECT_TRUE(desk_.World.Files.Log().empty());
  EXPECT_EQ(desk_.World.Desktop.CurrentMousePointer(), forms::MousePointer::Default);
  desk_.World.Desktop.Advance(1000);
  EXPECT_EQ(Times("C:\\Tools\\tool.exe"), 1);
  EXPECT_EQ(Times("C:\\Docs\\Alpha.txt"), 1);
}

TEST_F(Fetched, AFolderThatDoesNotAnswerHoldsUpNoOtherMenu) {
  desk_.World.Files.AddDrive('D');
  desk_.World.Files.Put("D:\\Far\\far.txt", "x");
  desk_.PutMenu(1, {Item("Far", "", "D:\\Far\\*.*"), Item("here", "C:\\Docs\\gamma.doc")});
  desk_.PutMenu(2, {Item("a", "C:\\Tools\\tool.exe")});
  desk_.World.SlowAnswers.Delay("D:", 1500);
  const auto before = desk_.World.Desktop.Now();
  Fetch();
  EXPECT_EQ(desk_.World.Desktop.Now(), before + 1000);
  EXPECT_EQ(Times("C:\\Tools\\tool.exe"), 1);
  EXPECT_EQ(Times("D:\\Far\\far.txt"), 0);
  desk_.World.Desktop.Advance(1000);
  EXPECT_EQ(Times("D:\\Far\\far.txt"), 1);
  EXPECT_EQ(Times("C:\\Docs\\gamma.doc"), 1);
  EXPECT_EQ(Listed("D:\\Far\\"), 1);
}

TEST_F(Fetched, AWalkThatBeginsAgainLeavesTheOneBefore) {
  desk_.PutMenu(1, {Item("a", "C:\\Tools\\tool.exe")});
  desk_.Menu.InitIcons();
  desk_.World.Desktop.Advance(100);
  desk_.PutMenu(1, {Item("b", "C:\\Docs\\gamma.doc")});
  Fetch();
  EXPECT_EQ(Times("C:\\Tools\\tool.exe"), 0);
  EXPECT_EQ(Times("C:\\Docs\\gamma.doc"), 1);
  desk_.Menu.InitIcons();
  desk_.Menu.UnloadWindow();
  desk_.World.Files.ClearLog();
  desk_.World.Desktop.Advance(1000);
  EXPECT_TRUE(desk_.World.Files.Log().empty());
}

TEST_F(Fetched, ADiskThatDoesNotAnswerHoldsUpThoseOfOthersForAMoment) {
  desk_.World.Files.AddDrive('D');
  std::vector<MenuRecord> items;
  for (int i = 0; i < 3; ++i) items.push_back(Item("far", "D:\\" + std::to_string(i) + ".exe"));
  items.push_back(Item("near", "C:\\Tools\\tool.exe"));
  desk_.PutMenu(1, items);
  desk_.World.SlowAnswers.Hang("D:*");
  Fetch();
  EXPECT_EQ(Times("C:\\Tools\\tool.exe"), 1);
}

TEST_F(Fetched, F5FetchesTheIconsOfTheOpenMenuOnly) {
  desk_.PutMenu(2, {Item("Other", "C:\\Tools\\tool.exe")});
  desk_.OpenCommands({"C:\\Docs\\*.txt"});
  desk_.World.Icons.ClearCounts();
  Refresh();
  EXPECT_EQ(Times("C:\\Docs\\Alpha.txt"), 1);
  EXPECT_EQ(Times("C:\\Tools\\tool.exe"), 0);
}

TEST_F(Fetched, ARefreshAsksForTheIconsOfThePageOnShowOnly) {
  std::vector<MenuRecord> items;
  for (int i = 1; i <= 100; ++i) {
    const std::string file = "C:\\Tools\\" + std::to_string(i) + ".exe";
    desk_.World.Files.Put(file, "x");
    items.push_back(Item("Item", file));
  }
  desk_.Open(1, items);
  ASSERT_EQ(desk_.Menu.Pages().LastLabel(), 34);
  desk_.World.Icons.ClearCounts();
  Refresh();
  EXPECT_EQ(Small().size(), 34U);
  EXPECT_EQ(Times("C:\\Tools\\34.exe"), 1);
}

TEST_F(Fetched, ARefreshReadsTheMenuFileOnceAndTheGeneratedOneNever) {
  desk_.OpenCommands({"C:\\Docs\\*.*"});
  desk_.World.Files.ClearLog();
  desk_.Menu.RefreshQMenu();
  EXPECT_EQ(desk_.World.Files.Count("Read"), 0);
  EXPECT_EQ(desk_.Strip.Times("RefreshMenu F2"), 1);
}

TEST_F(Fetched, TheProgramsOwnMenuIsWrittenBeforeItIsBuilt) {
  const std::string file = "C:\\Corvelle\\mainmenu.dat";
  desk_.World.Files.Put(file, "old");
  desk_.Menu.SetOwnerTag("1");
  desk_.Menu.ShowMenu("Q1", file);
  EXPECT_EQ(desk_.World.Files.Get(file).value_or("").size(), 16 * kRecordLength);
  EXPECT_EQ(desk_.Menu.Items().Count(), 11);
  // A menu that is built needs no file.
  desk_.World.Files.Vanish(file);
  desk_.Menu.HideMenu();
  desk_.Menu.ShowMenu("Q1", file);
  EXPECT_EQ(desk_.Menu.Items().Count(), 11);
  EXPECT_FALSE(desk_.World.Files.Has(file));
}

TEST_F(Fetched, AllIconsOfMenusAndLinksAreThereBeforehand) {
  for (const char* name : {"C:\\a.txt", "C:\\b.doc"}) desk_.World.Files.Put(name, "x");
  desk_.World.Files.Put("C:\\Corvelle\\ShellLink\\a.lnk", "x");
  desk_.PutMenu(1, {Item("A", "C:\\a.txt"), Item("B", "C:\\Tools\\tool.exe")});
  desk_.PutMenu(2, {Item("C", "C:\\b.doc")});
  Fetch();
  EXPECT_EQ(Times("C:\\Corvelle\\ShellLink\\a.lnk"), 1);
  const int lookups = desk_.World.Icons.Lookups();
  desk_.Reopen(1);
  desk_.Menu.HideMenu();
  desk_.Reopen(2);
  EXPECT_EQ(desk_.World.Icons.Lookups(), lookups);
  const PixelPoint cell = desk_.IconCell(1);
  EXPECT_EQ(desk_.PixelInside(cell.x + 8, cell.y + 8), SimShellIcons::ColourOf(6));
}

TEST_F(Fetched, WithoutFoldersNoHarmIsDone) {
  desk_.World.Files.Vanish("C:\\Corvelle\\Menus");
  Fetch();
  EXPECT_EQ(Small().front(), "C:\\Corvelle\\corvelle.exe");
}

}  // namespace
}  // namespace corvelle
