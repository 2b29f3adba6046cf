// A folder of ten thousand files: what its menu asks of the disk and of the shell.

#include "menus/FolderDesk.h"

namespace corvelle {
namespace {

constexpr int kFiles = 10000;

/// "a00000.txt", "b00001.txt"... : the letters change from one name to the next, sorted they stand
/// together.
std::string NameOf(int i) {
  std::string number = std::to_string(100000 + i);
  number[0] = static_cast<char>('a' + i % 5);
  return number + ".txt";
}

class TenThousandFiles : public ::testing::Test {
 protected:
  TenThousandFiles() {
    desk_.World.Files.MakeFolders("C:\\Many");
    Strings names;
    for (int i = 0; i < kFiles; ++i) names.push_back(NameOf(i));
    desk_.World.Files.PutNew("C:\\Many", names);
    std::sort(names.begin(), names.end());
    sorted_ = std::move(names);
  }
  void ClearCounts() {
    desk_.World.Files.ClearLog();
    desk_.World.Icons.ClearCounts();
  }
  [[nodiscard]] int DiskCalls() const { return static_cast<int>(desk_.World.Files.Log().size()); }
  [[nodiscard]] int ItemsOfPage() const {
    return desk_.Menu.Pages().LastLabel() - desk_.Menu.Pages().FirstLabel() + 1;
  }
  /// True if the page on show has the files from its first item's place in the sorted list on.
  [[nodiscard]] bool PageIsRight() const {
    for (int i = desk_.Menu.Pages().FirstLabel(); i <= desk_.Menu.Pages().LastLabel(); ++i) {
      const forms::Label& label = desk_.Menu.Lbl[i];
      if (label.Caption() != sorted_[static_cast<std::size_t>(i) - 1] || !label.Visible())
        return false;
    }
    return true;
  }

  /// Turns pages of the open menu and looks for letters in it.
  void TurnAndSearch() {
    sim::SimDesktop& desktop = desk_.World.Desktop;
    ClearCounts();
    const int last = desk_.Menu.Pages().Slides();
    EXPECT_EQ(last, (kFiles + ItemsOfPage() - 1) / ItemsOfPage() - 1);
    for (int page = 1; page <= 3; ++page) {
      desktop.PressKey(forms::key::PageDown);
      EXPECT_EQ(desk_.Menu.Pages().CurMenu(), page);
      EXPECT_TRUE(PageIsRight()) << page;
    }
    desktop.PressKey(forms::key::End);
    EXPECT_EQ(desk_.Menu.Pages().LastLabel(), kFiles);
    EXPECT_TRUE(PageIsRight());
    desktop.PressKey(forms::key::Home);
    EXPECT_EQ(desk_.Menu.Pages().FirstLabel(), 1);
    EXPECT_TRUE(PageIsRight());
    // Each letter has two thousand names; the first key goes to the first of them, the next one on.
    int wanted = 2 * kFiles / 5 + 1;
    for (const char letter : {'c', 'c'}) {
      desktop.Type(std::string(1, letter));
      EXPECT_EQ(desk_.TheProgram.Menu.SelectedItem, wanted++);
      EXPECT_EQ(desk_.Menu.Lbl[desk_.TheProgram.Menu.SelectedItem].Caption()[0], letter);
      EXPECT_TRUE(PageIsRight());
    }
    // Past the last letter the search begins again.
    desktop.PressKey(forms::key::End);
    desktop.Type("a");
    EXPECT_EQ(desk_.TheProgram.Menu.SelectedItem, 1);
    // No page asked the disk for anything, and each asked for the icons of its own items.
    EXPECT_EQ(DiskCalls(), 0);
    EXPECT_LE(desk_.World.Icons.Lookups(), 8 * ItemsOfPage());
  }

  FolderDesk desk_;
  Strings sorted_;
};

TEST_F(TenThousandFiles, OpenByOneListingTurnTheirPagesAndAreFoundByTheirLetters) {
  desk_.PutMenu(1, {Item("Many", "", "C:\\Many\\*.*")});
  ClearCounts();
  desk_.Reopen(1);
  ASSERT_EQ(desk_.Menu.Items().Count(), kFiles);
  EXPECT_EQ(desk_.World.Files.Count("List"), 1);
  EXPECT_EQ(desk_.World.Files.Count("Write"), 1);
  // The menu file, and once more what was made of it.
  EXPECT_LE(DiskCalls(), 8);
  // Names are asked for without icons.
  EXPECT_TRUE(desk_.World.Icons.Asked(IconList::Large).empty());
  // Small icons only of the page on show.
  EXPECT_EQ(static_cast<int>(desk_.World.Icons.Asked(IconList::Small).size()), ItemsOfPage());
  EXPECT_TRUE(PageIsRight());
  TurnAndSearch();
}

TEST_F(TenThousandFiles, OpenAgainWithoutAQuestionUnlessTheyAreToBeCompared) {
  desk_.OpenCommands({"C:\\Many\\*.*"}, 1);
  desk_.OpenCommands({"C:\\Many\\*.*/u"}, 2);
  ClearCounts();
  desk_.OpenAgain(1);
  EXPECT_EQ(DiskCalls(), 0);
  EXPECT_EQ(desk_.World.Icons.Lookups(), 0);
  desk_.OpenAgain(2);
  EXPECT_EQ(DiskCalls(), 1);
  EXPECT_EQ(desk_.World.Files.Count("List"), 1);
  EXPECT_EQ(desk_.World.Icons.Lookups(), 0);
  EXPECT_EQ(desk_.Menu.Items().Count(), kFiles);
  EXPECT_TRUE(PageIsRight());
  // One that is new is found by one more listing.
  desk_.World.Files.Put("C:\\Many\\new.txt", "x");
  ClearCounts();
  const int asked = desk_.World.SlowAnswers.Asked();
  desk_.OpenAgain(2);
  EXPECT_EQ(desk_.Menu.Items().Count(), kFiles + 1);
  EXPECT_EQ(desk_.World.Files.Count("List"), 1);
  // The folder, and the names of its files.
  EXPECT_EQ(desk_.World.SlowAnswers.Asked() - asked, 2);
  EXPECT_LE(DiskCalls(), 8);
}

}  // namespace
}  // namespace corvelle
