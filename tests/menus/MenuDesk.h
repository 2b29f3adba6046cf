#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/MenuRecord.h"
#include "core/Program.h"
#include "forms/Form.h"
#include "menus/window/frmQMenu.h"
#include "sim/World.h"

namespace corvelle {

/// A strip that notes what the menu asks of it and places the menu below itself.
class StandInStrip final : public forms::Form, public ToolbarPort {
 public:
  StandInStrip(Program& program, frmQMenu& menu)
      : Form(program.Windows, "frmToolbar"), program_(program), menu_(menu) {}

  std::vector<std::string> Asked;
  std::vector<std::string> Refused;
  /// Each time the watch on the pointer was switched, and how.
  std::vector<bool> Watches;
  /// What happens while all buttons are made again.
  std::function<void()> WhileRebuilding;
  /// Where the menu goes, twips.
  float MenuLeft = 3000;
  float MenuTop = 450;

  void LoadWindow() override {
    Load();
    Move(0, 0, 6000, 450);
    ShowNoActivate();
  }
  void UnloadWindow() override { Unload(); }
  bool WindowLoaded() const override { return IsLoaded(); }
  WindowId WindowHandle() const override { return hWnd(); }
  WindowId ButtonBoxHandle() const override { return kNoWindow; }
  WindowId SingleBoxHandle() const override { return kNoWindow; }
  TwipRect WindowBounds() const override { return {Left(), Top(), Width(), Height()}; }
  int WindowDpi() const override { return Dpi(); }
  void ResetMenu() override {
    Asked.emplace_back("ResetMenu");
    menu_.SetPoll(false);
    menu_.HideMenu();
    menu_.SetOwnerTag("0");
    program_.Windows.PaintWaiting();
  }
  void RefreshMenu(std::string_view tag) override {
    Asked.push_back("RefreshMenu " + std::string(tag));
  }
  void OpenMenu(std::string_view tag) override { Asked.push_back("OpenMenu " + std::string(tag)); }
  void RemoveQMenu(std::string_view tag) override {
    Asked.push_back("RemoveQMenu " + std::string(tag));
    menu_.ForgetMenu(tag);
  }
  void TellRefused(std::vector<std::string> files) override {
    for (std::string& file : files) Refused.push_back(std::move(file));
  }
  void SetMenuPosition() override {
    Asked.emplace_back("SetMenuPosition");
    menu_.MoveMenu(MenuLeft, MenuTop);
  }
  float TopOfMenu() const override { return MenuTop; }
  void ActivateKeyDown(int keyCode) override {
    Asked.push_back("ActivateKeyDown " + std::to_string(keyCode));
  }
  void InitNewButtons() override {
    Asked.emplace_back("InitNewButtons");
    if (WhileRebuilding) WhileRebuilding();
  }
  void DoToolbarButtons() override { Asked.emplace_back("DoToolbarButtons"); }
  void DoSingleButtons() override { Asked.emplace_back("DoSingleButtons"); }
  void ResetCollections() override { Asked.emplace_back("ResetCollections"); }
  float FreeWidth() const override { return 0; }
  void ResizeAfterEdit(float) override { Asked.emplace_back("ResizeAfterEdit"); }
  void BringToForeground() override { Asked.emplace_back("BringToForeground"); }
  void CheckToolbarMove() override { Asked.emplace_back("CheckToolbarMove"); }
  void AdjustToolbarPosition() override { Asked.emplace_back("AdjustToolbarPosition"); }
  void ShowAndRefresh() override { Asked.emplace_back("ShowAndRefresh"); }
  int dragCurButton() override { return 0; }
  void DoButtonDrag(int button, forms::MouseButton) override {
    Asked.push_back("DoButtonDrag " + std::to_string(button));
  }
  void SetPointerWatch(bool on) override { Watches.push_back(on); }
  void RestoreToolbar() override { Asked.emplace_back("RestoreToolbar"); }
  void UnloadItems() override { Asked.emplace_back("UnloadItems"); }
  void InitButtons() override { Asked.emplace_back("InitButtons"); }
  void RefreshToolbar() override { Asked.emplace_back("RefreshToolbar"); }
  void HideWindow() override { Asked.emplace_back("HideWindow"); }
  void DoLabelDate() override { Asked.emplace_back("DoLabelDate"); }
  void AddNewButton() override { Asked.emplace_back("AddNewButton"); }
  void MarkCollections() override { Asked.emplace_back("MarkCollections"); }
  void SetWindowPos(forms::InsertAfter after, unsigned flags) override {
    Form::SetWindowPos(after, flags);
  }

  [[nodiscard]] int Times(std::string_view what) const;

 private:
  Program& program_;
  frmQMenu& menu_;
};

[[nodiscard]] MenuRecord Item(std::string title, std::string icon = {},
                              std::string command = "C:\\Tools\\tool.exe");
[[nodiscard]] MenuRecord Separator();
/// So many items called "Item 1", "Item 2"...
[[nodiscard]] std::vector<MenuRecord> Items(int count);

/// A desktop with an installed program, a strip and the loaded menu window.
class MenuDesk {
 public:
  /// `shell`: what starts programs instead of the desktop's own shell.
  explicit MenuDesk(const sim::WorldOptions& options = {}, ShellExec* shell = nullptr);
  ~MenuDesk();

  sim::World World;
  Program TheProgram;
  frmQMenu Menu;
  StandInStrip Strip;

  /// The world's services, with another shell where one is given.
  [[nodiscard]] Platform Services(ShellExec* shell);
  /// Writes "Menus\\BMENU00N.MNU" with a header and the items, and gives its path.
  std::string PutMenu(int number, const std::vector<MenuRecord>& items);
  /// Opens a menu file as that of button `number` + 1, as a press would.
  void Open(int number, const std::vector<MenuRecord>& items);
  void Reopen(int number);

  /// A point of the menu's inside (twips) on the screen (pixels), and the middle of an item.
  [[nodiscard]] PixelPoint OnScreen(float x, float y) const;
  [[nodiscard]] PixelPoint ItemPoint(int index) const;
  [[nodiscard]] PixelPoint ArrowPoint(int index) const;
  void PointAt(PixelPoint at) { World.Desktop.MovePointer(at.x, at.y); }
  void PointAtItem(int index) { PointAt(ItemPoint(index)); }
  void ClickItem(int index);
  void ClickArrow(int index);
  /// Somewhere over no window of the program.
  void PointAway() { World.Desktop.MovePointer(900, 700); }
  /// One tick of the poll.
  void Poll() { World.Desktop.Advance(100); }

  /// The screen's colour at a point of the menu's inside, pixels.
  [[nodiscard]] Rgb PixelInside(int x, int y) const;
  [[nodiscard]] Rgb SystemColour(forms::OleColor colour);
  /// Pixels of the menu's inside at which item `index` has its icon cell.
  [[nodiscard]] PixelPoint IconCell(int index) const;
  /// The item that shows the selection bar; 0 when none does.
  [[nodiscard]] int BarredItem() const;
  /// What was started, in order.
  [[nodiscard]] std::vector<std::string> Started() const { return World.Shell.Started(); }
};

}  // namespace corvelle
