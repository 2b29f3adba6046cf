// Which entry an act meets never hangs on how much of its title is shown or stored.

#include <utility>

#include "base/CodePage.h"
#include "core/EntryCommands.h"
#include "core/SpecialFolders.h"
#include "launch/LaunchItem.h"
#include "menus/FolderDesk.h"
#include "menus/folders/SpecialFolders.h"

namespace corvelle {
namespace {

using forms::MouseButton;

constexpr char kOtherMenu[] = "C:\\Corvelle\\Menus\\BMENU002.MNU";

/// A text of which a character takes this many bytes, so long that it takes `bytes` in a record;
/// the rest is filled up with letters.
std::string TextOf(std::string_view character, std::size_t stored, std::size_t bytes) {
  std::string text;
  for (std::size_t i = 0; i < bytes / stored; ++i) text += character;
  return text + std::string(bytes % stored, 'z');
}

struct Script {
  const char* Name;
  std::string_view Character;
  std::size_t Stored;  // bytes of it in a record
};
constexpr Script kScripts[] = {{"ASCII", "a", 1},
                               {"a letter of the code page", "\xC3\xA4", 1},
                               {"two bytes", "\xD0\x96", 2},
                               {"three bytes", "\xE6\x97\xA5", 3},
                               {"four bytes", "\xF0\x9F\x98\x80", 4}};

/// Notes the entry that a right click named.
struct NotedEntry final : PopupPort {
  void ShowToolbarPopup(EntryEdit entry) override { Seen = std::move(entry); }
  EntryEdit Seen;
};

class StoredTitles : public ::testing::TestWithParam<Script> {
 protected:
  static constexpr int kLastStored = 11;

  StoredTitles() { desk_.TheProgram.Ports.Popup = &popup_; }

  /// A menu with items 2 to 11 of that title, behind them an open folder item.
  void OpenWith(const std::string& title) {
    std::vector<MenuRecord> items;
    for (int number = 2; number <= kLastStored; ++number) {
      items.push_back(Item(title, "", "C:\\Tools\\" + std::to_string(number) + ".exe"));
    }
    items.push_back(Item("Docs", "", "C:\\Docs\\*.*"));
    desk_.Menu.HideMenu();
    desk_.Menu.ForgetMenu("F2");
    desk_.Open(1, items);
    stored_ = *desk_.World.Files.Get(file_);
    PutOther();
  }
  void PutOther() {
    desk_.World.Files.Put(kOtherMenu, FormatRecord(Item("Other"), desk_.World.Ansi));
  }
  void RightClick(int item) {
    desk_.PointAtItem(item);
    desk_.World.Desktop.Click(MouseButton::Right);
    desk_.TheProgram.Entry = popup_.Seen;
  }
  std::string NowStored() { return *desk_.World.Files.Get(file_); }

  FolderDesk desk_;
  NotedEntry popup_;
  std::string file_ = "C:\\Corvelle\\Menus\\BMENU001.MNU";
  std::string stored_;
};

TEST_P(StoredTitles, OfEveryLengthAreFoundInAMenuWithAnOpenFolder) {
  const Script script = GetParam();
  for (std::size_t length = 0; length <= kTitleWidth; ++length) {
    const std::string title = TextOf(script.Character, script.Stored, length);
    OpenWith(title);
    for (int number = 2; number <= kLastStored; ++number) {
      SCOPED_TRACE(std::to_string(length) + " bytes in record " + std::to_string(number));
      const std::string record = StoredRecord(stored_, number);
      RightClick(number - 1);
      ASSERT_EQ(desk_.TheProgram.Entry.CurRecord, number);
      EXPECT_EQ(desk_.TheProgram.Entry.CurTitle, title);
      // What the entry is compared with later is the record itself, not what was shown of it.
      EXPECT_EQ(desk_.TheProgram.Entry.CurStored, record);
      // Cut.
      EXPECT_EQ(desk_.TheProgram.Commands.DeleteItem(true), EditOutcome::Edited);
      EXPECT_EQ(NowStored(), WithoutRecord(stored_, number));
      desk_.World.Files.Put(file_, stored_);
      // Carried to another menu.
      desk_.TheProgram.Entry.ItemDragging = true;
      EXPECT_TRUE(desk_.TheProgram.Commands.DropItem("F3", {.File = kOtherMenu}, false));
      EXPECT_EQ(NowStored(), WithoutRecord(stored_, number));
      EXPECT_EQ(StoredRecord(*desk_.World.Files.Get(kOtherMenu), 2), record);
      desk_.World.Files.Put(file_, stored_);
      PutOther();
      // Carried within its own.
      const int before = number == 2 ? 5 : 2;
      EXPECT_TRUE(
          desk_.TheProgram.Commands.DropItem("F2", {.File = file_, .Before = before}, false));
      EXPECT_EQ(NowStored(), MoveRecord(stored_, number, before));
      desk_.World.Files.Put(file_, stored_);
      desk_.TheProgram.Entry.ItemDragging = false;
      if (HasFailure()) return;
    }
  }
  EXPECT_TRUE(desk_.World.Desktop.Boxes().empty());
}

INSTANTIATE_TEST_SUITE_P(Scripts, StoredTitles, ::testing::ValuesIn(kScripts),
                         [](const auto& test) { return "Script" + std::to_string(test.index); });

TEST(StoredEntry, OneThatIsAnotherNowIsNotTakenThoughItsTitleIsTheSame) {
  FolderDesk desk;
  NotedEntry popup;
  desk.TheProgram.Ports.Popup = &popup;
  desk.OpenCommands({"C:\\a.exe", "C:\\Docs\\*.*"});
  desk.PointAtItem(1);
  desk.World.Desktop.Click(MouseButton::Right);
  desk.TheProgram.Entry = popup.Seen;
  const std::string file = desk.PutMenu(1, {Item("Item 2", "", "C:\\b.exe")});
  const auto before = desk.World.Files.Get(file);
  desk.World.Desktop.AnswerAnyOther(forms::msgbox::AnswerOk);
  EXPECT_EQ(desk.TheProgram.Commands.DeleteItem(true), EditOutcome::RecordMismatch);
  EXPECT_EQ(desk.World.Files.Get(file), before);
}

TEST(StoredEntry, AFolderItemIsClosedOnlyIfItIsStillTheOneThatWasOpened) {
  FolderDesk desk;
  NotedEntry popup;
  desk.TheProgram.Ports.Popup = &popup;
  desk.OpenCommands({"C:\\Docs\\*.*"});
  desk.PointAtItem(2);
  desk.World.Desktop.Click(MouseButton::Right);
  ASSERT_EQ(popup.Seen.CurRecord, 5002);
  const std::string opened = *desk.World.Files.Get(popup.Seen.CurFile);
  const std::string file = desk.PutMenu(1, {Item("Item 2", "", "C:\\Others\\*.*")});
  const auto before = desk.World.Files.Get(file);
  EXPECT_EQ(CloseFolderItem(desk.World.Files, desk.World.Ansi, popup.Seen),
            EditOutcome::RecordMismatch);
  EXPECT_EQ(desk.World.Files.Get(file), before);
  desk.World.Files.Put(file, opened);
  EXPECT_EQ(CloseFolderItem(desk.World.Files, desk.World.Ansi, popup.Seen), EditOutcome::Edited);
}

class LongNames : public ::testing::TestWithParam<Script> {
 protected:
  LongNames() {
    // A right click shows the popup of the program, not that of the shell.
    desk_.TheProgram.OptionFlags.Set(Option::SystemPopupWithCtrl, true);
    desk_.TheProgram.Ports.SpecialFolders = &folders_;
    desk_.TheProgram.Ports.Popup = &popup_;
  }
  /// Opens a menu with what the folder of programs holds.
  void OpenWith(std::vector<ShellFolderEntry> entries) {
    desk_.World.Folders.Put(2, std::move(entries));
    desk_.Menu.HideMenu();
    desk_.Menu.ForgetMenu("F2");
    desk_.OpenCommands({"CSIDL_PROGRAMS"});
  }
  [[nodiscard]] std::string LastOpened() const {
    const auto& opened = desk_.World.Folders.Opened();
    return opened.empty() ? std::string() : opened.back().Name;
  }

  FolderDesk desk_;
  SpecialFolders folders_{desk_.TheProgram.Services.Folders, desk_.TheProgram.Launch,
                          desk_.TheProgram.Answers, desk_.TheProgram.Services.Pointer};
  NotedEntry popup_;
};

TEST_P(LongNames, OfEntriesOfTheShellStartTheRightOne) {
  const Script script = GetParam();
  for (std::size_t length : {1, 41, 42, 43, 44, 45, 46, 47, 48, 49, 50, 51, 60, 100, 200, 400}) {
    // In the order of the menu. Two that differ behind the place where a title is cut, and one that
    // is the beginning of both.
    const std::string stem = TextOf(script.Character, script.Stored, length);
    const std::vector<std::string> names = {stem, stem + "~1", stem + "~2 and more"};
    OpenWith({{names[0], 4}, {names[1], 5}, {names[2], 6}});
    ASSERT_EQ(desk_.Menu.Items().Count(), 3);
    for (int item = 1; item <= 3; ++item) {
      const std::string& name = names[static_cast<std::size_t>(item) - 1];
      desk_.Menu.HideMenu();
      desk_.Reopen(1);
      desk_.ClickItem(item);
      EXPECT_EQ(LastOpened(), name) << length;
      // A copy of it is a command of its own.
      desk_.Reopen(1);
      desk_.PointAtItem(item);
      desk_.World.Desktop.Click(MouseButton::Right);
      const MenuRecord copy = ParseRecord(
          FormatRecord({popup_.Seen.CurTitle, popup_.Seen.CurIcon, popup_.Seen.CurCommand},
                       desk_.World.Ansi),
          desk_.World.Ansi);
      EXPECT_EQ(copy.FName, popup_.Seen.CurCommand) << length;
      if (length > 200) continue;
      desk_.TheProgram.Entry = {};
      LaunchItem(desk_.TheProgram.Launch, copy.FName);
      EXPECT_EQ(LastOpened(), name) << length;
    }
  }
}

TEST_P(LongNames, WhoseCopyHasNoRoomIsFoundByWhatItsCommandHolds) {
  const Script script = GetParam();
  const std::string name = TextOf(script.Character, script.Stored, 300);
  OpenWith({{"0", 3}, {name, 4}});
  desk_.PointAtItem(2);
  desk_.World.Desktop.Click(MouseButton::Right);
  const std::string& command = popup_.Seen.CurCommand;
  EXPECT_TRUE(command.ends_with("\\CSIDL_PROGRAMS")) << command;
  EXPECT_TRUE(command.starts_with(name.substr(0, 200)));
  LaunchItem(desk_.TheProgram.Launch, command);
  EXPECT_EQ(LastOpened(), name);
}

// What an earlier version stored: the title as its generated file had cut it.
TEST_P(LongNames, AreFoundByATitleThatWasCutInAGeneratedFile) {
  const Script script = GetParam();
  const std::string name = TextOf(script.Character, script.Stored, 80);
  const std::string cut = SplitTitle(JoinTitle(name, 5002, desk_.World.Ansi), 0).Title;
  ASSERT_LT(cut.size(), name.size());
  EXPECT_EQ(FindEntryByTitle({"a", name}, cut), 1) << cut.size();
}

INSTANTIATE_TEST_SUITE_P(Scripts, LongNames, ::testing::ValuesIn(kScripts),
                         [](const auto& test) { return "Script" + std::to_string(test.index); });

}  // namespace
}  // namespace corvelle
