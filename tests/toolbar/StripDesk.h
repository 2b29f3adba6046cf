#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "core/MenuRecord.h"
#include "core/Program.h"
#include "forms/Form.h"
#include "sim/World.h"
#include "toolbar/companion/frmMinimize.h"
#include "toolbar/strip/frmToolbar.h"

namespace corvelle {

/// Where the strip's place along the edge is kept, and what stands there for a place in twips.
inline constexpr const char* kPositionFile = "C:\\Corvelle\\toolbarp.dat";
inline std::string PositionBytes(float twips) {
  std::string bytes(sizeof twips, '\0');
  std::memcpy(bytes.data(), &twips, sizeof twips);
  return bytes;
}

/// A menu window that notes what the strip asks of it and comes up as a plain box.
class StandInMenu final : public forms::Form, public QMenuPort {
 public:
  explicit StandInMenu(Program& program) : Form(program.Windows, "frmQMenu"), program_(program) {}

  std::vector<std::string> Asked;
  std::set<std::string> Built;
  bool Poll = false;
  /// What happens while a menu is built.
  std::function<void()> WhileBuilding;
  /// A menu that cannot be shown.
  bool Refuses = false;
  std::string LastFile;

  void LoadWindow() override {
    Load();
    Move(0, 0, 3000, 6000);
  }
  void UnloadWindow() override {
    Asked.emplace_back("UnloadWindow");
    Unload();
  }
  bool WindowLoaded() const override { return IsLoaded(); }
  WindowId WindowHandle() const override { return hWnd(); }
  bool MenuVisible() const override { return IsLoaded() && Visible(); }
  const std::string& OwnerTag() const override { return Tag; }
  void SetOwnerTag(std::string tag) override { Tag = std::move(tag); }
  const std::string& CurrentKey() const override { return key_; }
  void ShowMenu(std::string_view menuKey, std::string_view menuFile) override;
  void HideMenu() override { Hide(); }
  void ForgetMenu(std::string_view menuKey) override { Built.erase(std::string(menuKey)); }
  bool HasBuiltMenu(std::string_view menuKey) const { return Built.contains(std::string(menuKey)); }
  void SetPoll(bool enabled) override { Poll = enabled; }
  TwipSize MenuSize() const override { return {Width(), Height()}; }
  void MoveMenu(float left, float top) override { Move(left, top, Width(), Height()); }
  void ActivateKeyDown(int keyCode) override {
    Asked.push_back("ActivateKeyDown " + std::to_string(keyCode));
  }
  void xKeyPress(char32_t character) override {
    Asked.push_back("xKeyPress " + std::to_string(static_cast<unsigned>(character)));
  }
  void xMouseMove(float y) override {
    Asked.push_back("xMouseMove " + std::to_string(static_cast<int>(y)));
  }
  void xMouseUp(forms::MouseButton button, forms::ShiftState, float x, float y) override {
    Asked.push_back("xMouseUp " + std::to_string(static_cast<int>(button)) + " " +
                    std::to_string(static_cast<int>(x)) + " " +
                    std::to_string(static_cast<int>(y)));
  }
  void GetCurMenu() override { Asked.emplace_back("GetCurMenu"); }
  void mMouseMove(float, float) override { Asked.emplace_back("mMouseMove"); }
  void DoItemDrag(forms::ShiftState) override { Asked.emplace_back("DoItemDrag"); }
  void RefreshQMenu() override { Asked.emplace_back("RefreshQMenu"); }
  void InitIcons() override { Asked.emplace_back("InitIcons"); }
  void ResetPicIcons() override { Asked.emplace_back("ResetPicIcons"); }
  void SetWindowPos(forms::InsertAfter after, unsigned flags) override {
    Form::SetWindowPos(after, flags);
  }

  [[nodiscard]] int Times(std::string_view what) const;

 private:
  Program& program_;
  std::string key_;
};

/// One record of a menu file.
[[nodiscard]] MenuRecord Entry(std::string title, std::string icon = {}, std::string command = {});
/// The bytes of a menu file.
[[nodiscard]] std::string Records(const std::vector<MenuRecord>& records);

/// A desktop with an installed program whose strip and companion are wired, and not loaded yet.
class StripDesk {
 public:
  /// `icons`: a shell's icons of the test's own.
  explicit StripDesk(const sim::WorldOptions& options = {}, ShellIcons* icons = nullptr);
  ~StripDesk();

  sim::World World;
  Program TheProgram;
  StandInMenu Menu;
  frmToolbar Strip;
  frmMinimize Companion;

  /// Writes "Menus\\BMENU00N.MNU" with the button's record and one item, and gives its path.
  std::string PutButton(int number, const std::string& title, const std::string& icon = "Button",
                        const std::string& command = {});
  /// So many buttons called "Menu 1", "Menu 2"...
  void PutButtons(int count);
  [[nodiscard]] bool HasMenuFile(std::string_view name) const;
  void SetOption(Option option, bool value) { TheProgram.OptionFlags.Set(option, value); }

  /// What the start of the program does: loads both windows, and lets events through.
  void Start();
  /// The companion ends, and the program with it.
  void Exit();

  /// Middle of a button on the screen, pixels.
  [[nodiscard]] PixelPoint Middle(int button) const;
  void PointAt(PixelPoint at) { World.Desktop.MovePointer(at.x, at.y); }
  void PointAtButton(int button) { PointAt(Middle(button)); }
  /// Over no window of the program.
  void PointAway() { World.Desktop.MovePointer(20, 700); }
  void Press(int button) {
    PointAtButton(button);
    World.Desktop.Press();
  }
  void Click(int button) {
    Press(button);
    World.Desktop.Release();
  }
  /// Lets the pointer's poll see what happened.
  void Wait(int milliseconds = 5) { World.Desktop.Advance(milliseconds); }

  /// Number of the button whose menu is up, 0 for none.
  [[nodiscard]] int MenuUp() const;
  /// True if the button has its resting look.
  [[nodiscard]] bool AtRest(int button) const;
  [[nodiscard]] std::vector<std::string> ButtonFiles() const;
  /// Milliseconds of quiet: how many timers ran in so much time.
  [[nodiscard]] int WakeUps(int milliseconds);

 private:
  void Install();
};

}  // namespace corvelle
