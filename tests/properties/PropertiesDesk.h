#pragma once

#include <algorithm>
#include <string>

#include "program/ProgramDesk.h"

namespace corvelle {

inline constexpr int kKeyCtrl = 17;
inline constexpr int kKeyTab = 9;
inline constexpr int kKeySpace = 32;
inline constexpr int kKeyF2 = 113;
inline constexpr int kKeyF3 = 114;

/// A running program with two menus and four single buttons, and the Properties window.
class PropertiesDesk : public ProgramDesk, public testing::Test {
 protected:
  frmProperties& Window() { return parts->Properties; }
  sim::SimDesktop& Desktop() { return world.Desktop; }
  Program& TheProgram() { return parts->TheProgram; }

  // ---- opening ----

  /// Of entry `item` of the second menu button's menu, from 1 on.
  void OpenItem(int item) {
    OpenMenu(2);
    RightClick(Item(item), "Properties");
    ASSERT_TRUE(Window().Visible());
  }
  void OpenSingle(int single) {
    RightClick(Single(single), "Properties");
    ASSERT_TRUE(Window().Visible());
  }
  void OpenButton(int button) {
    RightClick(MenuButton(button), "Properties");
    ASSERT_TRUE(Window().Visible());
  }
  void OpenTab(const std::string& key) {
    const char* const keys[] = {"item", "buttons", "position"};
    const int tab =
        static_cast<int>(std::find(std::begin(keys), std::end(keys), key) - std::begin(keys));
    const PixelRect at = Window().TabStrip1.TabRect(tab);
    const PixelRect strip = Desktop().BoundsOf(Window().TabStrip1.hWnd());
    Desktop().ClickAt(strip.left + (at.left + at.right) / 2, strip.top + (at.top + at.bottom) / 2);
    Desktop().Advance(10);
    ASSERT_EQ(Window().TabStrip1.Selected(), key);
  }

  /// The same by key.
  void NextTab() {
    Desktop().KeyDown(kKeyCtrl);
    Desktop().PressKey(kKeyTab);
    Desktop().KeyUp(kKeyCtrl);
    Desktop().Advance(10);
  }
  /// Puts the menu away that shows what was changed.
  void CloseMenu() {
    Desktop().PressKey(forms::key::Escape);
    Desktop().Advance(50);
    ASSERT_FALSE(parts->Menu.MenuVisible());
  }

  // ---- the user's hand ----

  PixelPoint MiddleOf(const forms::Window& control) {
    const PixelRect at = Desktop().BoundsOf(control.hWnd());
    return {(at.left + at.right) / 2, (at.top + at.bottom) / 2};
  }
  void ClickOn(const forms::Window& control) {
    const PixelPoint at = MiddleOf(control);
    Desktop().ClickAt(at.x, at.y);
    Desktop().Advance(10);
  }
  void ClickOn(const forms::FlatButton& button) {
    const PixelRect page = Desktop().BoundsOf(Window().Picture1.hWnd());
    const float twips = parts->Toolbar.TwipsX;
    Desktop().ClickAt(page.left + RoundToInt((button.Left() + button.Width() / 2) / twips),
                      page.top + RoundToInt((button.Top() + button.Height() / 2) / twips));
    Desktop().Advance(10);
  }
  /// Puts another text into a box.
  void TypeInto(forms::TextBox& box, const std::string& text) {
    ClickOn(box);
    Desktop().KeyDown(kKeyCtrl);
    Desktop().PressKey('A');
    Desktop().KeyUp(kKeyCtrl);
    Desktop().Type(text);
    Desktop().Advance(10);
  }

  // ---- the tree ----

  forms::NodeId Node(std::size_t index) {
    return Window().TreeView1.Nodes().Children(forms::kNoNode).at(index);
  }
  PixelPoint PointOf(std::size_t index, forms::TreePart part) {
    const PixelRect row = Window().TreeView1.RowRect(Node(index));
    const PixelRect tree = Desktop().BoundsOf(Window().TreeView1.hWnd());
    const int y = (row.top + row.bottom) / 2;
    for (int x = 0; x < row.right; ++x) {
      if (Window().TreeView1.HitTest({x, y}) == forms::TreeHit{Node(index), part}) {
        return {tree.left + x + 2, tree.top + y};
      }
    }
    ADD_FAILURE() << "no such part of the row";
    return {};
  }
  void ClickNode(std::size_t index, forms::TreePart part) {
    const PixelPoint at = PointOf(index, part);
    Desktop().ClickAt(at.x, at.y);
    Desktop().Advance(10);
  }
  std::string Titles() {
    std::string titles;
    for (const ButtonNode& node : List()) titles += node.Title + (node.Checked ? "+" : "-");
    return titles;
  }
  /// The list as the tree shows it.
  std::vector<ButtonNode> List() {
    std::vector<ButtonNode> list;
    for (const forms::NodeId node : Window().TreeView1.Nodes().Children(forms::kNoNode)) {
      const forms::NodeLook& look = Window().TreeView1.Look(node);
      list.push_back({.Title = look.Text, .Checked = look.Checked});
    }
    return list;
  }

  // ---- the disk ----

  std::string Bytes(const std::vector<MenuRecord>& records) const {
    std::string bytes;
    for (const MenuRecord& record : records) bytes += FormatRecord(record, world.Ansi);
    return bytes;
  }
  MenuRecord RecordAt(const std::string& name, int number) const {
    const std::string bytes = world.Files.Get(kMenus + name).value_or("");
    const std::size_t at = (static_cast<std::size_t>(number) - 1) * kRecordLength;
    return at < bytes.size() ? ParseRecord(bytes.substr(at), world.Ansi) : MenuRecord{};
  }
  void SetRecord(const std::string& name, int number, const MenuRecord& record) {
    std::string bytes = world.Files.Get(kMenus + name).value_or("");
    bytes.replace((static_cast<std::size_t>(number) - 1) * kRecordLength, kRecordLength,
                  FormatRecord(record, world.Ansi));
    world.Files.Put(kMenus + name, bytes);
  }
  /// What the user was told since the program has started.
  std::vector<std::string> BoxTexts() {
    std::vector<std::string> texts;
    for (std::size_t i = firstBox_; i < Desktop().Boxes().size(); ++i) {
      texts.push_back(Desktop().Boxes()[i].Text);
    }
    return texts;
  }

 private:
  std::size_t firstBox_ = world.Desktop.Boxes().size();
};

}  // namespace corvelle
