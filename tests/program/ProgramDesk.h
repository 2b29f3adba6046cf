#pragma once

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/Numbers.h"
#include "core/Main.h"
#include "core/MenuRecord.h"
#include "program/Parts.h"
#include "sim/World.h"

namespace corvelle {

inline constexpr int kCtrl = 17;
inline constexpr const char* kMenus = "C:\\Corvelle\\Menus\\";

using Folder = std::map<std::string, std::string>;  // bytes by the names of the files

/// A running program with two menus and four single buttons, and its user.
class ProgramDesk {
 public:
  explicit ProgramDesk(const sim::WorldOptions& options = {}) : world(options) {
    world.Files.Put("C:\\Corvelle\\corvelle.exe", "program");
    world.Files.Put("C:\\Tools\\tool.exe", "x");
    world.System.WorkFolder = "C:\\Corvelle\\";
    world.Desktop.AnswerAnyOther(forms::msgbox::AnswerYes);
    OptionFlags flags;
    for (const Option option :
         {Option::FirstRunDone, Option::DefaultEntriesOffered, Option::NoStartupScreen,
          Option::SystemPopupWithCtrl, Option::UpgradeDone})
      flags.Set(option, true);
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
    ASSERT_EQ(parts->Toolbar.Buttons.ButtonCount, 3);
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
    const ButtonRect& at = parts->Toolbar.Buttons.ToolbarButtons[static_cast<std::size_t>(index)];
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

}  // namespace corvelle
