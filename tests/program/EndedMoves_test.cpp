// The program ends, or the disk refuses, in the middle of a change of the user's entries. After the
// next start each entry stands exactly where it was or exactly where it was to go.

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/Numbers.h"
#include "core/FileTransaction.h"
#include "core/Main.h"
#include "core/MenuRecord.h"
#include "program/Parts.h"
#include "sim/World.h"

namespace corvelle {
namespace {

constexpr int kCtrl = 17;
constexpr const char* kMenus = "C:\\Corvelle\\Menus\\";

using Folder = std::map<std::string, std::string>;  // bytes by the names of the files

/// A running program with two menus and four single buttons, and its user.
class Desk {
 public:
  Desk() {
    world.Files.Put("C:\\Corvelle\\corvelle.exe", "program");
    world.Files.Put("C:\\Tools\\tool.exe", "x");
    world.System.WorkFolder = "C:\\Corvelle\\";
    world.Desktop.AnswerAnyOther(forms::msgbox::AnswerYes);
    OptionFlags flags;
    for (const int position : {1, 2, 9, 19, 32}) flags.Set(position, true);
    world.Files.Put("C:\\Corvelle\\" + std::string(kOptionFlagsFileName), flags.Text());
    PutMenu(1, {"A", "B", "C", "D"});
    PutMenu(2, {"X", "Y"});
    const std::vector<std::string> singles = {"one", "two", "three", "four"};
    for (std::size_t i = 0; i < singles.size(); ++i) {
      world.Files.Put(kMenus + SingleFileName(static_cast<int>(i) + 1), Record(singles[i]));
    }
    Start();
  }

  sim::World world;
  std::unique_ptr<Parts> parts;

  void Start() {
    parts = std::make_unique<Parts>(world.Services(), world.Windows());
    ASSERT_TRUE(Main(parts->TheProgram));
    world.Desktop.Pump();
    ASSERT_EQ(parts->Toolbar.ButtonCount, 3);
  }
  /// The program is gone, without another word to the disk.
  void End() {
    parts.reset();
    world.Files.StopFailing();
    world.Desktop.KeyUp(kCtrl);
    world.Desktop.Release();
    world.Desktop.MovePointer(500, 600);
  }

  [[nodiscard]] Folder Files() const {
    Folder all;
    for (const std::string& name : world.Files.Names(kMenus)) {
      if (!name.ends_with(".MNU") && !name.ends_with(".BTN")) continue;
      all[name] = world.Files.Get(kMenus + name).value_or("");
    }
    return all;
  }

  // ---- the user ----

  void PointAt(PixelPoint at) { world.Desktop.MovePointer(at.x, at.y); }
  void OpenMenu(int button) {
    PointAt(MenuButton(button));
    world.Desktop.Click();
    world.Desktop.Advance(20);
    ASSERT_TRUE(parts->Menu.MenuVisible());
  }
  void PickUpItem(int item) {
    OpenMenu(2);
    PointAt(Item(item));
    world.Desktop.KeyDown(kCtrl);
    world.Desktop.Press();
    world.Desktop.KeyUp(kCtrl);
    ASSERT_TRUE(parts->TheProgram.Entry.ItemDragging);
  }
  void PickUpSingle(int single) {
    PointAt(Single(single));
    world.Desktop.Advance(100);
    world.Desktop.Press();
    world.Desktop.Advance(100);
    ASSERT_TRUE(parts->TheProgram.Entry.ItemDragging);
  }
  /// Carries over a button, whose menu opens.
  void CarryOver(int button) {
    PointAt(MenuButton(button));
    world.Desktop.Advance(400);
    ASSERT_TRUE(parts->Menu.MenuVisible());
  }
  void RightClick(PixelPoint at, const std::string& choice) {
    PointAt(at);
    world.Desktop.Advance(50);
    world.Desktop.ChooseFromPopup(choice);
    world.Desktop.Click(forms::MouseButton::Right);
    world.Desktop.Advance(50);
  }
  void DragFiles(PixelPoint at) {
    world.Desktop.DragFilesOver({"C:\\Tools\\tool.exe", "C:\\Tools\\other.exe"}, at);
    world.Desktop.Advance(100);
  }

  // ---- places on the screen ----

  [[nodiscard]] PixelPoint MenuButton(int index) const {
    const ButtonRect& at = parts->Toolbar.ToolbarButtons[static_cast<std::size_t>(index)];
    return In("picToolbar", at.Left + at.Width / 2, at.Top + at.Height / 2);
  }
  [[nodiscard]] PixelPoint Single(int index) const {
    const SingleRect& at = parts->Toolbar.Singles.SingleButtons[static_cast<std::size_t>(index)];
    return In("picSingleButton", at.Left + at.Width / 2, at.Top + at.Height / 2);
  }
  [[nodiscard]] PixelPoint BehindSingles() const {
    const PixelRect box = world.Desktop.BoundsOf(world.Desktop.Find("picSingleButton"));
    return {box.right - 2, box.bottom - 2};
  }
  [[nodiscard]] PixelPoint Item(int index) const {
    const forms::Label& label = parts->Menu.Lbl[index];
    return In("frmQMenu", label.Left() + 300, label.Top() + label.Height() / 2);
  }

 private:
  [[nodiscard]] PixelPoint In(std::string_view window, float x, float y) const {
    const PixelRect bounds = world.Desktop.BoundsOf(world.Desktop.Find(window));
    return {bounds.left + RoundToInt(x / parts->Toolbar.TwipsX),
            bounds.top + RoundToInt(y / parts->Toolbar.TwipsY)};
  }
  [[nodiscard]] std::string Record(const std::string& title) const {
    return FormatRecord({title, "C:\\Tools\\tool.exe", "C:\\Tools\\tool.exe " + title}, world.Ansi);
  }
  void PutMenu(int number, const std::vector<std::string>& titles) {
    std::string bytes = FormatRecord({"Menu", "Button", ""}, world.Ansi);
    for (const std::string& title : titles) bytes += Record(title);
    world.Files.Put(kMenus + MenuFileName(number), bytes);
  }
};

/// A change of the user's: all but its last gesture, and that one, in which the files change.
struct Change {
  const char* name;
  std::function<void(Desk&)> prepare;
  std::function<void(Desk&)> doIt;
};

void Release(Desk& desk) {
  desk.world.Desktop.Release();
  desk.world.Desktop.Advance(50);
}

void PrintTo(const Change& change, std::ostream* out) { *out << change.name; }

std::vector<Change> Changes() {
  return {
      {"SingleToSingle",
       [](Desk& desk) {
         desk.PickUpSingle(3);
         desk.PointAt(desk.Single(1));
       },
       Release},
      {"SingleBehindTheLast",
       [](Desk& desk) {
         desk.PickUpSingle(2);
         desk.PointAt(desk.BehindSingles());
       },
       Release},
      {"ItemToItemOfAnotherMenu",
       [](Desk& desk) {
         desk.PickUpItem(2);
         desk.CarryOver(3);
         desk.PointAt(desk.Item(1));
       },
       Release},
      {"ItemToAnotherButton",
       [](Desk& desk) {
         desk.PickUpItem(4);
         desk.PointAt(desk.MenuButton(3));
       },
       Release},
      {"ItemWithinItsMenu",
       [](Desk& desk) {
         desk.PickUpItem(4);
         desk.PointAt(desk.Item(1));
       },
       Release},
      {"ItemToItsOwnButton",
       [](Desk& desk) {
         desk.PickUpItem(1);
         desk.PointAt(desk.MenuButton(2));
       },
       Release},
      {"ItemToSingle",
       [](Desk& desk) {
         desk.PickUpItem(3);
         desk.PointAt(desk.Single(2));
       },
       Release},
      {"ItemBehindTheSingles",
       [](Desk& desk) {
         desk.PickUpItem(1);
         desk.PointAt(desk.BehindSingles());
       },
       Release},
      {"SingleToItem",
       [](Desk& desk) {
         desk.PickUpSingle(2);
         desk.CarryOver(2);
         desk.PointAt(desk.Item(3));
       },
       Release},
      {"SingleToButton",
       [](Desk& desk) {
         desk.PickUpSingle(4);
         desk.PointAt(desk.MenuButton(3));
       },
       Release},
      {"DeletingASingle", [](Desk&) {},
       [](Desk& desk) { desk.RightClick(desk.Single(2), "Delete Item"); }},
      {"CuttingASingle", [](Desk&) {},
       [](Desk& desk) { desk.RightClick(desk.Single(1), "Cut Item"); }},
      {"PastingASingle", [](Desk& desk) { desk.RightClick(desk.Single(3), "Copy Item"); },
       [](Desk& desk) { desk.RightClick(desk.Single(1), "Paste Item"); }},
      {"BringingADeletedSingleBack",
       [](Desk& desk) { desk.RightClick(desk.Single(2), "Delete Item"); },
       [](Desk& desk) { desk.RightClick(desk.Single(1), "Undo Delete"); }},
      {"DeletingAnItem", [](Desk& desk) { desk.OpenMenu(2); },
       [](Desk& desk) { desk.RightClick(desk.Item(2), "Delete Item"); }},
      {"FilesDroppedOnSingles", [](Desk& desk) { desk.DragFiles(desk.Single(2)); }, Release},
      {"FilesDroppedBehindTheSingles", [](Desk& desk) { desk.DragFiles(desk.BehindSingles()); },
       Release},
      {"FilesDroppedOnAButton", [](Desk& desk) { desk.DragFiles(desk.MenuButton(2)); }, Release},
  };
}

class EndedMoves : public testing::TestWithParam<Change> {
 protected:
  /// Runs the change with the disk prepared by `spoil`; the folder before it.
  Folder Run(Desk& desk, const std::function<void(sim::SimFiles&)>& spoil) {
    GetParam().prepare(desk);
    if (HasFatalFailure()) return {};
    const Folder before = desk.Files();
    spoil(desk.world.Files);
    GetParam().doIt(desk);
    return before;
  }
};

TEST_P(EndedMoves, AreWholeAfterTheNextStartWhereverTheProgramEnded) {
  Desk fine;
  const Folder before = Run(fine, [](sim::SimFiles& disk) { disk.ClearLog(); });
  const Folder after = fine.Files();
  const auto calls = static_cast<int>(fine.world.Files.Log().size());
  ASSERT_NE(before, after);
  ASSERT_GT(calls, 2);
  bool sawOld = false;
  bool sawNew = false;
  for (int n = 1; n <= calls; ++n) {
    // A question to the disk changes nothing: an end before it is one before the next change.
    const std::string& next = fine.world.Files.Log()[static_cast<std::size_t>(n) - 1].Operation;
    const bool changes = next == "Write" || next == "WriteAt" || next == "Replace" ||
                         next == "Remove" || next == "Rename" || next == "Copy";
    if (!changes && n > 1 && n < calls) continue;
    Desk desk;
    Run(desk, [n](sim::SimFiles& disk) { disk.FailFrom(n); });
    if (HasFatalFailure()) return;
    EXPECT_TRUE(desk.world.Files.Hit()) << n;
    desk.End();
    desk.Start();
    const Folder now = desk.Files();
    EXPECT_TRUE(now == before || now == after) << "ended before call " << n << ", a " << next;
    EXPECT_FALSE(desk.world.Files.Has(kMenus + std::string(kJournalFileName)));
    sawOld = sawOld || now == before;
    sawNew = sawNew || now == after;
  }
  // The last call may be a change itself: then only an end behind it has the new files.
  EXPECT_TRUE(sawOld);
}

TEST_P(EndedMoves, AreWholeWhicheverCallOfTheDiskFails) {
  Folder before;
  Folder after;
  for (int n = 0;; ++n) {
    Desk desk;
    before = Run(desk, [n](sim::SimFiles& disk) {
      if (n > 0) disk.FailCall(n, n % 2 == 0 ? FileError::DiskFull : FileError::InUse);
    });
    if (HasFatalFailure()) return;
    const bool hit = desk.world.Files.Hit();
    desk.world.Files.StopFailing();
    const Folder now = desk.Files();
    if (n == 0) {
      after = now;
      continue;
    }
    if (!hit) break;
    EXPECT_TRUE(now == before || now == after) << "failing call " << n;
    EXPECT_TRUE(RecoverFiles(desk.world.Files, kMenus));
    EXPECT_EQ(desk.Files(), now) << "failing call " << n;
    ASSERT_LT(n, 300);
  }
}

INSTANTIATE_TEST_SUITE_P(Each, EndedMoves, testing::ValuesIn(Changes()),
                         [](const testing::TestParamInfo<Change>& row) {
                           return std::string(row.param.name);
                         });

}  // namespace
}  // namespace corvelle
