#pragma once

#include <map>
#include <string>
#include <vector>

#include "base/Text.h"
#include "customize/CustEditor.h"

namespace corvelle {

/// The world around an editor, as a test sets it up.
struct FakeHost final : CustHost {
  int Beeps = 0;
  std::vector<std::string> Said;
  int Answer = 6;  // to each question: Yes
  std::vector<std::string> Files;
  std::vector<std::string> Folders;
  std::vector<std::string> TooLong;  // for a record

  void Beep() override { ++Beeps; }
  int Say(std::string_view text, unsigned flags) override {
    Said.push_back(std::to_string(flags) + " " + std::string(text));
    return Answer;
  }
  bool FileExists(std::string_view path) override { return Has(Files, path); }
  bool IsPlainFolder(std::string_view path) override { return Has(Folders, path); }
  std::vector<DroppedName> NamesOf(const std::vector<std::string>& paths) override {
    std::vector<DroppedName> names;
    for (const std::string& path : paths) {
      const std::string name = path.substr(path.rfind('\\') + 1);
      names.push_back({.Title = name.substr(0, name.rfind('.'))});
      if (!Has(TooLong, path)) names.back().Stored = path;
    }
    return names;
  }
  std::string RecentFolder() override { return "C:\\Recent\\"; }

 private:
  static bool Has(const std::vector<std::string>& names, std::string_view path) {
    for (const std::string& name : names) {
      if (EqualNoCase(name, path)) return true;
    }
    return false;
  }
};

/// A bench with an editor over a set of menus, all expanded. The set without any other: two menus
/// with items, one with a single item, one without, a separator between the buttons, and single
/// buttons with a separator among them.
struct EditorBench {
  FakeHost Host;
  CustEditor Editor{Host};

  EditorBench() : EditorBench(Usual()) {}
  explicit EditorBench(const MenuSet& set) { Open(set); }

  void Open(const MenuSet& set) {
    Editor.InitMenuTree(set, "C:\\App\\corvelle.exe", "C:\\App\\Menus\\");
    Editor.Expand(kMenusRoot);
    Editor.Expand(kSinglesRoot);
  }

  static MenuRecord Entry(const std::string& title) {
    return {title, "C:\\" + title + ".ico", "C:\\" + title + ".exe"};
  }
  static MenuSet Usual() {
    MenuSet set;
    set.Menus.push_back({{"Letters", "Button", ""},
                         {Entry("Alpha"), Entry("Beta"), NewSeparatorRecord(), Entry("Gamma")}});
    set.Menus.push_back({{"Tools", "C:\\t.ico", "/h"}, {Entry("Hammer"), Entry("Anvil")}});
    set.Menus.push_back({NewSeparatorRecord(), {}});
    set.Menus.push_back({{"One", "Button", ""}, {Entry("Only")}});
    set.Menus.push_back({{"Bare", "Button", ""}, {}});
    set.Singles = {Entry("Clock"), NewSeparatorRecord(), Entry("Paint")};
    return set;
  }

  /// The node with this text; the first one in the order of the tree.
  [[nodiscard]] CustRef Node(std::string_view text) const {
    if (text == "Menu Buttons") return kMenusRoot;
    if (text == "Single Buttons") return kSinglesRoot;
    for (const CustRef node : Editor.Tree.InOrder()) {
      if (Editor.Tree.At(node).Text == text) return node;
    }
    return kNoRef;
  }
  void Pick(CustRef node) {
    Editor.Select(node);
    Editor.UpdateEntryBoxes();
  }
  void Pick(std::string_view text) { Pick(Node(text)); }

  /// The tree on one line: "Letters(Alpha Beta) Tools() | Clock".
  [[nodiscard]] std::string Shape() const {
    std::string shape;
    const auto name = [this](CustRef node) {
      const std::string& text = Editor.Tree.At(node).Text;
      return Editor.IsSeparator(node) ? std::string("-") : text.empty() ? std::string("?") : text;
    };
    for (const CustRef root : {kMenusRoot, kSinglesRoot}) {
      if (root == kSinglesRoot) shape += "|";
      for (const CustRef button : Editor.Tree.Children(root)) {
        if (!shape.empty()) shape += " ";
        shape += name(button);
        if (Editor.Tree.Children(button).empty()) continue;
        std::string items;
        for (const CustRef item : Editor.Tree.Children(button)) {
          items += (items.empty() ? "" : " ") + name(item);
        }
        shape += "(" + items + ")";
      }
      if (root == kMenusRoot) shape += shape.empty() ? "" : " ";
    }
    return shape;
  }
  /// The keys in the same form.
  [[nodiscard]] std::string Keys() const {
    std::string keys;
    for (const CustRef root : {kMenusRoot, kSinglesRoot}) {
      keys += Editor.Tree.At(root).Key + ":";
      for (const CustRef button : Editor.Tree.Children(root)) {
        keys += " " + Editor.Tree.At(button).Key;
        for (const CustRef item : Editor.Tree.Children(button)) {
          keys += "." + Editor.Tree.At(item).Key;
        }
      }
      keys += root == kMenusRoot ? "; " : "";
    }
    return keys;
  }
  [[nodiscard]] std::string SelectedText() const { return Editor.Tree.At(Editor.Selected()).Text; }
  [[nodiscard]] std::string SelectedKey() const { return Editor.Tree.At(Editor.Selected()).Key; }
  [[nodiscard]] std::string BoxTexts() const {
    const EntryBoxes& boxes = Editor.Boxes;
    if (!boxes.Enabled) return "off" + boxes.txtTitle + boxes.txtFile + boxes.txtCommand;
    return boxes.txtTitle + ";" + boxes.txtFile + ";" + boxes.txtCommand;
  }
};

}  // namespace corvelle
