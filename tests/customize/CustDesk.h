#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/Main.h"
#include "core/MenuRecord.h"
#include "program/Parts.h"
#include "sim/World.h"

namespace corvelle {

/// A running program with two menus and two single buttons, its Customize window, and its user.
class CustDesk {
 public:
  static constexpr const char* kMenus = "C:\\Corvelle\\Menus\\";

  explicit CustDesk(const sim::WorldOptions& options = {}, bool open = true) : world(options) {
    world.Files.Put("C:\\Corvelle\\corvelle.exe", "program");
    for (const char* tool : {"Edit", "Paint", "Clock"}) {
      world.Files.Put("C:\\Tools\\" + std::string(tool) + ".exe", "x");
    }
    world.Files.Put("C:\\Corvelle\\Icons\\W95MBX02.ICO", "icon");
    world.System.WorkFolder = "C:\\Corvelle\\";
    OptionFlags flags;
    // First run and samples are over, the tips are dismissed, there is no startup screen.
    for (const Option option :
         {Option::FirstRunDone, Option::DefaultEntriesOffered, Option::IconLibraryTipDone,
          Option::OtherFilesTipDone, Option::SelectFileTipDone, Option::AddFileTipDone,
          Option::NoStartupScreen, Option::SystemPopupWithCtrl, Option::UpgradeDone})
      flags.Set(option, true);
    world.Files.Put("C:\\Corvelle\\" + std::string(kOptionFlagsFileName), flags.Text());
    PutMenu(1, {"Letters", "Button", ""}, {Entry("Alpha"), Entry("Beta"), NewSeparatorRecord()});
    PutMenu(2, {"Tools", "Button", ""}, {Entry("Hammer"), Entry("Anvil")});
    Put(SingleFileName(1), {Entry("Clock")});
    Put(SingleFileName(2), {Entry("Paint")});
    parts = std::make_unique<Parts>(world.Services(), world.Windows());
    EXPECT_TRUE(Main(parts->TheProgram));
    world.Desktop.Pump();
    if (open) Open();
  }

  sim::World world;
  std::unique_ptr<Parts> parts;

  void Open() {
    parts->Customize.LoadWindow();
    world.Desktop.Advance(1100);  // the tree listens again
  }

  [[nodiscard]] frmCust& Form() const { return parts->Customize; }
  [[nodiscard]] CustEditor& Editor() const { return Form().Editor; }

  static MenuRecord Entry(const std::string& title) {
    return {title, "C:\\Tools\\" + title + ".exe", "C:\\Tools\\" + title + ".exe"};
  }
  void Put(const std::string& name, const std::vector<MenuRecord>& records) {
    std::string bytes;
    for (const MenuRecord& record : records) bytes += FormatRecord(record, world.Ansi);
    world.Files.Put(kMenus + name, bytes);
  }
  void PutMenu(int number, const MenuRecord& head, std::vector<MenuRecord> items) {
    items.insert(items.begin(), head);
    Put(MenuFileName(number), items);
  }
  /// The titles in the files: "Letters(Alpha Beta -) Tools(Hammer Anvil) | Clock Paint".
  [[nodiscard]] std::string Stored() {
    const auto read = ReadMenuFiles(world.Files, world.Ansi, kMenus);
    return read ? Text((*read).Set) : "(unreadable)";
  }
  /// What the tree on the screen shows, in the same form.
  [[nodiscard]] std::string Shown() const {
    const forms::TreeView& tree = Form().TreeView1;
    const auto title = [&](forms::NodeId id) {
      return tree.Look(id).Text == "Separator" ? std::string("-") : tree.Look(id).Text;
    };
    std::string text;
    const std::vector<forms::NodeId>& roots = tree.Nodes().Children(forms::kNoNode);
    for (const forms::NodeId root : roots) {
      if (root == roots.back()) text += text.empty() ? "|" : " |";
      for (const forms::NodeId button : tree.Nodes().Children(root)) {
        text += (text.empty() ? "" : " ") + title(button);
        std::string items;
        for (const forms::NodeId item : tree.Nodes().Children(button)) {
          items += (items.empty() ? "" : " ") + title(item);
        }
        if (!items.empty()) text += "(" + items + ")";
      }
    }
    return text;
  }

  // ---- the user ----

  /// The node with this text in the tree on the screen.
  [[nodiscard]] forms::NodeId Node(std::string_view text) const {
    return Node(text, forms::kNoNode);
  }
  /// A point on the label of a node that can be seen.
  [[nodiscard]] PixelPoint Label(std::string_view text) const {
    const forms::TreeView& tree = Form().TreeView1;
    const forms::NodeId id = Node(text);
    EXPECT_NE(id, forms::kNoNode) << text;
    const PixelRect row = tree.RowRect(id);
    EXPECT_GT(row.bottom, row.top) << text << " is not seen";
    const int y = (row.top + row.bottom) / 2;
    for (int x = row.left; x < row.right; ++x) {
      if (tree.HitTest({x, y}) == forms::TreeHit{id, forms::TreePart::Label}) {
        return OnScreen(tree.hWnd(), {x + 2, y});
      }
    }
    ADD_FAILURE() << text << " has no label";
    return {};
  }
  [[nodiscard]] PixelPoint Expander(std::string_view text) const {
    const forms::TreeView& tree = Form().TreeView1;
    const PixelRect row = tree.RowRect(Node(text));
    const int y = (row.top + row.bottom) / 2;
    for (int x = row.left; x < row.right; ++x) {
      if (tree.HitTest({x, y}).Part == forms::TreePart::Expander) {
        return OnScreen(tree.hWnd(), {x + 2, y});
      }
    }
    return {};
  }
  void ClickAt(PixelPoint at, forms::MouseButton button = forms::MouseButton::Left) {
    world.Desktop.ClickAt(at.x, at.y, button);
    world.Desktop.Pump();
  }
  void ClickNode(std::string_view text) { ClickAt(Label(text)); }
  /// Opens a node and waits until the tree listens again.
  void Expand(std::string_view text) {
    ClickAt(Expander(text));
    world.Desktop.Advance(1100);
  }
  void ClickControl(const forms::Window& control) {
    const PixelRect at = world.Desktop.BoundsOf(control.hWnd());
    ClickAt({(at.left + at.right) / 2, (at.top + at.bottom) / 2});
  }
  /// A flat button has no window of its own.
  void ClickFlat(const forms::Graphic& button, const forms::Window& box) {
    const float twips = world.Desktop.Screen().TwipsPerPixelX;
    PixelRect at = world.Desktop.BoundsOf(box.hWnd());
    if (&box == &Form()) {
      const forms::FrameMargins frame =
          world.Desktop.MarginsOf(forms::FrameStyle::Sizable, true, Form().Dpi());
      at.left += frame.Left;
      at.top += frame.Top;
    }
    ClickAt({at.left + static_cast<int>((button.Left() + button.Width() / 2) / twips),
             at.top + static_cast<int>((button.Top() + button.Height() / 2) / twips)});
  }
  void Tool(const std::string& key) {
    const PixelRect at = Form().Toolbar1.ButtonRect(key);
    ClickAt(OnScreen(Form().Toolbar1.hWnd(), {(at.left + at.right) / 2, (at.top + at.bottom) / 2}));
  }
  void Popup(std::string_view node, const std::string& choice) {
    world.Desktop.ChooseFromPopup(choice);
    ClickAt(Label(node), forms::MouseButton::Right);
    EXPECT_EQ(world.Desktop.ChoicesLeft(), 0) << choice;
  }
  /// The line below a menu of the bar, both without "&" and without the key behind the tab.
  void MenuBar(const std::string& menu, const std::string& line) {
    for (const forms::PopupItem& top : Form().Menu()) {
      if (Plain(top.Caption) != menu) continue;
      for (const forms::PopupItem& item : top.Items) {
        if (Plain(item.Caption) != line) continue;
        return world.Desktop.ChooseFromMenuBar(Form().hWnd(), top.Caption + ">" + item.Caption);
      }
    }
    ADD_FAILURE() << "no line " << menu << " > " << line;
  }
  [[nodiscard]] bool Checked(const std::string& line) const {
    for (const forms::PopupItem& top : Form().Menu()) {
      for (const forms::PopupItem& item : top.Items) {
        if (Plain(item.Caption) == line) return item.Checked;
      }
    }
    ADD_FAILURE() << "no line " << line;
    return false;
  }
  void Keys(std::initializer_list<int> held, int virtualKey) {
    for (const int one : held) world.Desktop.KeyDown(one);
    world.Desktop.PressKey(virtualKey);
    for (const int one : held) world.Desktop.KeyUp(one);
    world.Desktop.Pump();
  }
  void Ctrl(int virtualKey) { Keys({forms::key::Ctrl}, virtualKey); }
  /// Types into a box in the place of what is there.
  void Fill(forms::TextBox& box, std::string_view text) {
    box.SetFocus();
    box.SelectAll();
    world.Desktop.Type(text);
  }
  void Drag(std::string_view from, std::string_view to) {
    DragOver(from, to);
    world.Desktop.Release();
    world.Desktop.Pump();
  }
  void DragOver(std::string_view from, std::string_view to) {
    const PixelPoint start = Label(from);
    const PixelPoint end = Label(to);
    world.Desktop.MovePointer(start.x, start.y);
    world.Desktop.Press();
    world.Desktop.MovePointer(start.x + 8, start.y + 8);
    world.Desktop.MovePointer(end.x + 1, end.y);
    world.Desktop.MovePointer(end.x, end.y);
  }
  void Drop(const forms::DragData& data) {
    const PixelRect at = world.Desktop.BoundsOf(Form().TreeView1.hWnd());
    world.Desktop.MovePointer(5, 700);
    world.Desktop.StartDrag({.Data = data});
    world.Desktop.MovePointer(at.left + 20, at.top + 20);
    world.Desktop.Advance(60);
    world.Desktop.Release();
    world.Desktop.Pump();
  }
  [[nodiscard]] std::string Boxes() const {
    const frmCust& form = Form();
    if (!form.txtTitle.Enabled()) {
      return "off" + form.txtTitle.Text() + form.txtFile.Text() + form.txtCommand.Text();
    }
    return form.txtTitle.Text() + ";" + form.txtFile.Text() + ";" + form.txtCommand.Text();
  }
  [[nodiscard]] std::string Selected() const {
    return Form().TreeView1.Look(Form().TreeView1.Selected()).Text;
  }

 private:
  static std::string Plain(const std::string& caption) {
    std::string text;
    for (const char letter : caption.substr(0, caption.find('\t'))) {
      if (letter != '&') text += letter;
    }
    return text;
  }
  static std::string Text(const MenuSet& set) {
    const auto title = [](const MenuRecord& record) {
      return IsSeparatorIcon(record.FIcon) ? std::string("-") : record.FTitle;
    };
    std::string text;
    for (const Menu& menu : set.Menus) {
      text += (text.empty() ? "" : " ") + title(menu.Head);
      std::string items;
      for (const MenuRecord& item : menu.Items) items += (items.empty() ? "" : " ") + title(item);
      if (!items.empty()) text += "(" + items + ")";
    }
    text += text.empty() ? "|" : " |";
    for (const MenuRecord& single : set.Singles) text += " " + title(single);
    return text;
  }
  [[nodiscard]] forms::NodeId Node(std::string_view text, forms::NodeId below) const {
    const forms::TreeView& tree = Form().TreeView1;
    for (const forms::NodeId id : tree.Nodes().Children(below)) {
      if (tree.Look(id).Text == text) return id;
      if (const forms::NodeId found = Node(text, id); found != forms::kNoNode) return found;
    }
    return forms::kNoNode;
  }
  [[nodiscard]] PixelPoint OnScreen(WindowId window, PixelPoint at) const {
    const PixelRect bounds = world.Desktop.BoundsOf(window);
    return {bounds.left + at.x, bounds.top + at.y};
  }
};

inline constexpr const char* kAtFirst = "Letters(Alpha Beta -) Tools(Hammer Anvil) | Clock Paint";

}  // namespace corvelle
