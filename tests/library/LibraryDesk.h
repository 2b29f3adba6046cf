#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "core/Program.h"
#include "forms/Form.h"
#include "forms/TextBox.h"
#include "library/LibraryWiring.h"
#include "library/frmLibrary.h"
#include "sim/World.h"

namespace corvelle {

inline constexpr const char* kIcons = "C:\\Corvelle\\Icons\\";

/// A window with a box for an icon, like those that open the library.
class BoxForm final : public forms::Form, public IconBoxPort {
 public:
  explicit BoxForm(Program& program)
      : Form(program.Windows, "BoxForm", forms::BorderStyle::Fixed) {}

  std::vector<std::string> Told;
  forms::TextBox txtFile{*this, "txtFile"};

  forms::Form& BoxWindow() override { return *this; }
  void SetBrowsing(bool browsing) override { Told.emplace_back(browsing ? "browsing" : "done"); }
  void TakeIcon(std::string_view icon) override {
    Told.push_back(std::string(icon));
    txtFile.SetText(std::string(icon));
  }
};

/// A program with three icons in two categories and a tool with three icons of its own, the
/// library's window and one that opens it.
class LibraryDesk : public testing::Test {
 protected:
  explicit LibraryDesk(const sim::WorldOptions& options = {}) : world(options) {
    program.Paths.AppPath = "C:\\Corvelle\\";
    program.Paths.IconsPath = kIcons;
    world.Files.MakeFolders(kIcons);
    PutIcon("anchor.ico");
    PutIcon("bell.ico");
    PutIcon("CLOCK.ICO");
    world.Files.Put(std::string(kIcons) + "Tools.ini", "anchor.ico\r\n\r\n  \r\nCLOCK.ICO\r\n");
    world.Files.Put(std::string(kIcons) + "Bells.ini", "bell.ico\r\n");
    world.Files.Put(kTool, "x");
    world.Icons.SetIconCount(kTool, 3);
    world.Files.Put(std::string(kIcons) + "others.tmp", "");
    program.Ports.Library = &library;
    program.Ports.CustomizeIcon = &box;
  }
  ~LibraryDesk() override {
    library.Unload();
    box.Unload();
  }

  static constexpr const char* kTool = "C:\\Tools\\tool.exe";
  static constexpr const char* kOthers = "C:\\Corvelle\\Icons\\others.dat";

  void PutIcon(const std::string& name) {
    world.Files.Put(kIcons + name, "icon");
    world.Icons.SetIconCount(kIcons + name, 1);
  }
  /// Icons named "i0000.ico" and so on.
  void PutIcons(int count) {
    char name[32];
    for (int i = 0; i < count; ++i) {
      static_cast<void>(std::snprintf(name, sizeof name, "i%04d.ico", i));
      PutIcon(name);
    }
  }
  /// A category of so many icons, "Many", whose files need not be there but hold their icons.
  void PutMany(int count) {
    std::string lines;
    char name[32];
    for (int i = 0; i < count; ++i) {
      static_cast<void>(std::snprintf(name, sizeof name, "i%04d.ico", i));
      lines += std::string(name) + "\r\n";
      world.Icons.SetIconCount(kIcons + std::string(name), 1);
    }
    world.Files.Put(std::string(kIcons) + "Many.ini", lines);
  }
  void PutOthers(const std::vector<std::string>& paths) {
    std::string lines;
    for (const std::string& path : paths) lines += path + "\r\n";
    world.Files.Put(kOthers, lines);
  }

  void Open(const char* caller = "frmCust") {
    box.Move(0, 0, 6000, 3000);
    box.Show();
    library.Show(caller);
    world.Desktop.Advance(1);
  }
  /// To the second tab, as the keyboard does it.
  void OpenOthers() {
    world.Desktop.KeyDown(17);
    world.Desktop.PressKey(forms::key::Tab);
    world.Desktop.KeyUp(17);
    world.Desktop.Advance(1);
  }
  void DrawAll() { world.Desktop.Advance(3000); }
  void PressKey(int key) {
    world.Desktop.PressKey(key);
    world.Desktop.Advance(1);
  }
  PixelPoint In(forms::Window& window, PixelPoint at) {
    const PixelRect bounds = world.Desktop.BoundsOf(window.hWnd());
    return {bounds.left + at.x, bounds.top + at.y};
  }
  PixelPoint Cell(IconView& view, forms::PictureBox& sheet, int place) {
    const PixelRect icon = view.Grid().IconOf(place);
    return In(sheet, {(icon.left + icon.right) / 2, (icon.top + icon.bottom) / 2});
  }
  void ClickCell(int place) {
    const PixelPoint at = Cell(library.LibraryView, library.Pic2, place);
    world.Desktop.ClickAt(at.x, at.y);
    world.Desktop.Advance(1);
  }
  void Click(forms::Window& control) {
    const PixelRect at = world.Desktop.BoundsOf(control.hWnd());
    world.Desktop.ClickAt((at.left + at.right) / 2, (at.top + at.bottom) / 2);
    world.Desktop.Advance(1);
  }
  void ChooseRow(forms::ListBox& list, int row) {
    list.SetFocus();
    while (list.Selected() < row) PressKey(forms::key::Down);
    while (list.Selected() > row) PressKey(forms::key::Up);
  }
  Rgb PixelOfCell(IconView& view, forms::PictureBox& sheet, int place) {
    const PixelPoint at = Cell(view, sheet, place);
    return world.Desktop.Picture().PixelAt(at);
  }
  std::string LastBox() {
    return world.Desktop.Boxes().empty() ? "" : world.Desktop.Boxes().back().Text;
  }
  bool Focused(forms::Window& window) { return world.Desktop.FocusWindow() == window.hWnd(); }
  std::string Marked(IconView& view) { return view.Marked() == nullptr ? "" : view.Marked()->Text; }

  sim::World world;
  Program program{world.Services(), world.Windows()};
  BoxForm box{program};
  frmLibrary library{LibraryPartsOf(program)};
};

}  // namespace corvelle
