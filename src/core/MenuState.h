#pragma once

namespace corvelle {

/// What the pointer and the keyboard have under them, in the strip and in its menu.
struct MenuState {
  /// Index of the button under the pointer, 0 for none.
  int CurButton = 0;
  /// Index of the single button under the pointer, 0 for none, kDateArea for the date.
  int CurSingle = 0;
  static constexpr int kDateArea = 1000;
  /// A menu is up, or a press on the strip is to open one.
  bool MenuOpen = false;
  /// Index of the menu item under selection, 0 for none.
  int SelectedItem = 0;
  /// The keyboard drives the strip rather than a menu.
  bool KeyboardOnToolbar = false;
  /// The current item follows a separator.
  bool ItemHasSeparator = false;
};

}  // namespace corvelle
