#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/Program.h"
#include "forms/Form.h"
#include "forms/Graphic.h"
#include "forms/PictureBox.h"
#include "toolbar/StripDesk.h"
#include "toolbar/docking/StripPull.h"
#include "toolbar/singles/RowHost.h"
#include "toolbar/strip/ButtonRow.h"
#include "toolbar/strip/MenuTracking.h"

namespace corvelle {

/// A strip that is no more than its controls, for tests of one part of it: it notes what the part
/// asks of it. It floats at the top of the screen, 200 pixels from the left, with room for its
/// buttons on the left half and for single buttons on the right one.
struct PlainStrip final : forms::Form, TrackedStrip, PulledStrip, RowHost {
  explicit PlainStrip(forms::WindowSystem& windows)
      : Form(windows, "frmPlain"),
        picToolbar(*this, "picToolbar"),
        picSingleButton(*this, "picSingleButton"),
        lblSep([this](int) { return std::make_unique<forms::Label>(picToolbar, "lblSep"); }),
        LinTB1([this](int) { return std::make_unique<forms::Line>(picToolbar, "LinTB1"); }),
        LinTB2([this](int) { return std::make_unique<forms::Line>(picToolbar, "LinTB2"); }),
        Line1([this](int) { return std::make_unique<forms::Line>(picSingleButton, "Line1"); }),
        Line2([this](int) { return std::make_unique<forms::Line>(picSingleButton, "Line2"); }),
        LineLeft(picSingleButton, "LineLeft"),
        lblDate(picSingleButton, "lblDate") {
    Move(3000, 0, 6000, 330);
    picToolbar.Move(0, 0, 3000, 330);
    picToolbar.SetAutoRedraw(true);
    picSingleButton.Move(3000, 0, 3000, 330);
    picSingleButton.SetAutoRedraw(true);
  }

  forms::PictureBox picToolbar;
  forms::PictureBox picSingleButton;
  forms::ControlArray<forms::Label> lblSep;
  forms::ControlArray<forms::Line> LinTB1;
  forms::ControlArray<forms::Line> LinTB2;
  forms::ControlArray<forms::Line> Line1;
  forms::ControlArray<forms::Line> Line2;
  forms::Line LineLeft;
  forms::Label lblDate;

  StripShape Now;
  std::vector<std::string> Asked;

  void Note(std::string what) { Asked.push_back(std::move(what)); }
  [[nodiscard]] ButtonControls ForButtons() { return {picToolbar, lblSep, LinTB1, LinTB2}; }
  [[nodiscard]] RowControls ForRow() { return {picSingleButton, Line1, Line2, LineLeft, lblDate}; }

  forms::Form& AsForm() noexcept override { return *this; }
  StripShape Shape() const override { return Now; }

  // TrackedStrip
  forms::PictureBox& SinglesBox() noexcept override { return picSingleButton; }
  void RowMouseMove() override { Note("RowMouseMove"); }
  void RowMouseUp(forms::MouseButton, forms::ShiftState, float, float) override {
    Note("RowMouseUp");
  }
  void WatchCarry() override {}
  void CheckToolbarMove() override { Note("CheckToolbarMove"); }
  void ShowToolbar() override { Note("ShowToolbar"); }

  // PulledStrip
  TwipSize ButtonBox() const override { return {picToolbar.Width(), picToolbar.Height()}; }
  bool ContentsVisible() const override { return true; }
  bool MenuUp() const override { return false; }
  void DrawBorders() override {}
  void WatchHiding(bool) override {}
  void DrawDragLook() override {}
  void EndSlide() override {}

  // RowHost
  const forms::PictureBox& ButtonsBox() const noexcept override { return picToolbar; }
  void SetToolbar() override {}
  void FrameMouseMove(forms::MouseButton, float, float) override { Note("FrameMouseMove"); }
  bool IsOverMenu(WindowId) const override { return false; }
  void ResetMenu() override { Note("ResetMenu"); }
  void RemoveQMenu(std::string_view) override {}
  void EndHovering() override { Note("EndHovering"); }
  void SetPointerWatch(bool) override {}
  int ButtonUnder(PixelPoint) const override { return 0; }
  void CarryOverButtons(forms::MouseButton, forms::ShiftState, float, float) override {}
  void DoButtonDrag(int, forms::MouseButton) override {}
  void DropOnRow(forms::MouseButton) override {}
  void TellRefused(std::vector<std::string>) override {}
};

/// A hint whose text can be asked for.
struct PlainHint final : HintPort {
  std::string Text;
  void SetHint(std::string_view text) override { Text = text; }
  WindowId WindowHandle() const override { return kNoWindow; }
};

/// A desktop with a plain strip in front of the user and files below C:\Corvelle. The parts under
/// test are made by the test, after it.
struct PlainDesk {
  explicit PlainDesk(ShellIcons* icons = nullptr)
      : TheProgram(World.Services(nullptr, icons), World.Windows()) {
    World.Files.MakeFolders("C:\\Corvelle\\Menus");
    TheProgram.Paths.AppPath = "C:\\Corvelle\\";
    TheProgram.Paths.MenusPath = "C:\\Corvelle\\Menus\\";
    TheProgram.Paths.IconsPath = "C:\\Corvelle\\Icons\\";
    TheProgram.Ports.QMenu = &Menu;
    TheProgram.Ports.Hint = &Hint;
    Menu.LoadWindow();
    EXPECT_TRUE(Strip.Load());
    Strip.Show();
    World.Desktop.Pump();
  }
  ~PlainDesk() {
    Menu.Unload();
    Strip.Unload();
  }
  PlainDesk(const PlainDesk&) = delete;
  PlainDesk& operator=(const PlainDesk&) = delete;

  sim::World World;
  Program TheProgram;
  StandInMenu Menu{TheProgram};
  PlainHint Hint;
  PlainStrip Strip{World.Windows()};

  /// A menu file with a button's record and one item; gives its path.
  std::string PutMenu(int number, const MenuRecord& button) {
    std::string path = "C:\\Corvelle\\Menus\\" + MenuFileName(number);
    World.Files.Put(path, Records({button, Entry("Item", "", "C:\\Tools\\tool.exe")}));
    return path;
  }
  std::string PutMenu(int number, const std::string& title) {
    return PutMenu(number, Entry(title, "Button"));
  }
};

}  // namespace corvelle
