#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/MenuFile.h"
#include "program/ProgramDesk.h"

namespace corvelle {

inline constexpr const char* kPage = "http://example.com/page";

/// A running program, and another one from which the user drags web addresses.
class LinkDesk : public ProgramDesk {
 public:
  LinkDesk() {
    source_ = world.Desktop.AddOtherWindow(
        {.Title = "Other page - Explorer", .Bounds = {600, 500, 900, 700}});
  }

  /// Takes an address and brings it to a point of the screen by way of others.
  void Drag(const std::vector<PixelPoint>& way, const std::string& text = kPage,
            const std::string& title = "A page") {
    PointAt({700, 600});
    world.Desktop.StartDrag({.Data = {.Text = text, .Title = title},
                             .Button = forms::MouseButton::Left,
                             .Window = source_});
    world.Desktop.Advance(10);
    for (const PixelPoint at : way) {
      PointAt(at);
      world.Desktop.Advance(60);
    }
  }
  void Drop() { world.Desktop.Release(); }
  void DropOnButton(int button, const std::string& text = kPage,
                    const std::string& title = "A page") {
    Drag({MenuButton(button)}, text, title);
    Drop();
  }
  void DropOnItem(int item) {
    Drag({MenuButton(2)});
    PointAt(Item(item));
    world.Desktop.Advance(60);
    Drop();
  }
  void DropOnSingle(int single) {
    Drag({Single(single)});
    Drop();
  }
  /// The dialog comes up 50 ms after the drop.
  void WaitForDialog() { world.Desktop.Advance(60); }
  void NoDialog() { parts->TheProgram.OptionFlags.Set(Option::NoWebLinkDialog, true); }

  frmURL& Dialog() { return parts->WebLink; }
  bool DialogUp() { return Dialog().IsLoaded() && Dialog().Visible(); }
  bool Pending() { return parts->WebLink.WebLinkPending; }
  EntryEdit& Entry() { return parts->TheProgram.Entry; }

  void Click(const char* control) {
    const PixelRect at = world.Desktop.BoundsOf(world.Desktop.Find(control));
    world.Desktop.ClickAt((at.left + at.right) / 2, (at.top + at.bottom) / 2);
    world.Desktop.Advance(10);
  }
  void PressKey(int key) {
    world.Desktop.PressKey(key);
    world.Desktop.Advance(10);
  }
  bool Focused(const char* control) {
    return world.Desktop.FocusWindow() == world.Desktop.Find(control);
  }

  [[nodiscard]] std::vector<MenuRecord> MenuRecords(int file) {
    return ReadAllRecords(world.Files, world.Ansi, kMenus + MenuFileName(file)).ValueOr({});
  }
  [[nodiscard]] std::vector<std::string> Titles(int file) {
    std::vector<std::string> titles;
    for (const MenuRecord& record : MenuRecords(file)) titles.push_back(record.FTitle);
    return titles;
  }
  [[nodiscard]] std::vector<std::string> Singles() {
    std::vector<std::string> titles;
    for (const auto& [name, bytes] : Files()) {
      if (name.ends_with(".BTN")) titles.push_back(ParseRecords(bytes, world.Ansi)[0].FTitle);
    }
    return titles;
  }

 private:
  WindowId source_ = kNoWindow;
};

}  // namespace corvelle
