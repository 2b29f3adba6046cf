#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "core/MenuRecord.h"
#include "core/Program.h"
#include "menus/window/frmQMenu.h"
#include "sim/World.h"
#include "toolbar/companion/DragImage.h"
#include "toolbar/companion/frmMinimize.h"
#include "toolbar/strip/frmToolbar.h"

namespace corvelle {

using Titles = std::vector<std::string>;

/// A row of single buttons that notes what is put down on it.
struct NotedRow final : SingleButtonsPort {
  explicit NotedRow(Program& program) : TheProgram(program) {}

  std::vector<std::string> Asked;
  /// What arrives while the row takes something.
  std::function<void()> WhileDropping;

  void DoItemDrag(forms::MouseButton released) override {
    const EntryEdit& entry = TheProgram.Entry;
    Asked.push_back((released == forms::MouseButton::Right ? "copy " : "move ") + entry.ClipTitle +
                    " of " + entry.CurMenuTag);
    if (WhileDropping) WhileDropping();
  }
  FileStatus DeleteSingle(std::string_view file) override {
    Asked.push_back("delete " + std::string(file));
    return Done();
  }
  FileStatus PasteSingle(std::string_view) override { return Done(); }
  FileStatus UndoDeleteSB(std::string_view) override { return Done(); }
  void DropFilesOnSingles(std::vector<std::string>, forms::MouseButton) override {}

  Program& TheProgram;
};

/// A desktop on which the strip, the menus and the picture of a carry work together.
class CarryDesk {
 public:
  explicit CarryDesk(const sim::WorldOptions& options = {});
  ~CarryDesk();

  sim::World World;
  Program TheProgram;
  frmQMenu Menu;
  frmToolbar Strip;
  frmMinimize Companion;
  DragImage Picture;
  NotedRow Row;

  /// Writes the menu file of that number: a button with items of these titles.
  void Put(int number, const Titles& items);
  [[nodiscard]] std::string FileOf(int number) const;
  /// What the file holds, without the button's own record.
  [[nodiscard]] Titles ItemsOf(int number);
  /// Two menus: A B C D under button 2, X Y under button 3. Starts the program.
  void Start();
  void Exit();

  [[nodiscard]] PixelPoint Middle(int button) const;
  [[nodiscard]] PixelPoint ItemPoint(int item) const;
  void PointAt(PixelPoint at) { World.Desktop.MovePointer(at.x, at.y); }
  void Open(int button);
  /// Opens the menu of button 2 and picks an item up; Ctrl stays down.
  void PickUp(int item);
  /// The same, and Ctrl is let go.
  void Carry(int item) {
    PickUp(item);
    LetCtrlGo();
  }
  void LetCtrlGo() { World.Desktop.KeyUp(17); }
  /// Carries on to a point, and lets the picture follow.
  void To(PixelPoint at) {
    PointAt(at);
    World.Desktop.Advance(110);
  }
  /// Carries on over a button, whose menu opens.
  void ToButton(int button) { To(Middle(button)); }
  void Release(forms::MouseButton button = forms::MouseButton::Left) {
    World.Desktop.Release(button);
  }
  /// Number of the button whose menu is up, 0 for none.
  [[nodiscard]] int MenuUp() const;
  [[nodiscard]] bool Carries() const { return TheProgram.Entry.ItemDragging; }
  [[nodiscard]] forms::MousePointer Pointer() const { return World.Desktop.CurrentMousePointer(); }
  /// Makes room for a row of single buttons beside the menu buttons, and gives its middle.
  PixelPoint ShowRow();
  /// Over no window of the program.
  static constexpr PixelPoint kAway{20, 700};
};

}  // namespace corvelle
