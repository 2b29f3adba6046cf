#pragma once

#include "forms/Types.h"

namespace corvelle::forms {

/// The kinds of keys that a control keeps for itself. Ctrl with A, C, V, X or Z, Backspace, Insert
/// and Delete are editing keys.
struct KeyWants {
  bool Arrows = false;
  bool Paging = false;  // Home, End, PageUp, PageDown
  bool Editing = false;
  bool Typing = false;  // letters, digits, signs and Space: they are no access keys then
  bool Space = false;
  int Function = 0;  // a function key that it has a use for; 0 for none
  // Wanted before the form sees them, as an open list or a text of several lines wants them.
  bool Enter = false;
  bool Escape = false;
  bool Tab = false;
};

/// What a window tells the rules of the keyboard about itself.
struct KeyFacts {
  KeyWants Wants;
  bool LettersPress = false;  // a button, check box or option: access keys work without Alt
  bool TakesEnter = false;    // a button that Enter presses while it has the focus
  bool IsDefault = false;     // the button that Enter presses wherever else the focus is
  bool IsCancel = false;      // the button that Esc presses
  bool InGroup = false;       // arrows go to its neighbours
  bool HasTabs = false;       // Ctrl+Tab changes its tabs
  char32_t AccessKey = 0;     // in capitals; 0 for none
};

/// What a key meets: the window that has the focus, and the rest of its form.
struct DialogScene {
  KeyFacts Focus;
  bool HasDefault = false;
  bool HasCancel = false;
  bool HasTabs = false;
  bool HasAccessKey = false;  // a window of the form that can be reached has this letter
};

/// Who deals with a key.
enum class DialogAction {
  Control,  // the control itself, or the system
  Form,
  Nothing,  // nobody: the form has no button for it
  NextControl,
  PreviousControl,
  NextInGroup,
  PreviousInGroup,
  NextTab,
  PreviousTab,
  PressFocus,
  PressDefault,
  PressCancel,
  PressAccessKey
};

/// True for a key that the window with the focus gets before the form sees it.
[[nodiscard]] bool ComesFirst(const KeyWants& wants, int keyCode, ShiftState shift) noexcept;

/// What becomes of a key that went down, as in the dialogs of the system.
[[nodiscard]] DialogAction KeyAction(int keyCode, ShiftState shift,
                                     const DialogScene& scene) noexcept;

/// What becomes of a typed character, control characters too.
[[nodiscard]] DialogAction CharacterAction(char32_t character, const DialogScene& scene) noexcept;

/// True for the keys that ask for the context menu: the menu key, and Shift+F10.
[[nodiscard]] bool AsksForMenu(int keyCode, ShiftState shift) noexcept;

}  // namespace corvelle::forms
