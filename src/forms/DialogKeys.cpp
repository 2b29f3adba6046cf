#include "forms/DialogKeys.h"

namespace corvelle::forms {

namespace {

constexpr int kFirstFunctionKey = 112;
constexpr int kLastFunctionKey = 135;
constexpr int kFirstModifier = 16;
constexpr int kLastModifier = 18;

bool IsEditing(int keyCode, ShiftState shift) noexcept {
  if (keyCode == key::Backspace || keyCode == key::Insert || keyCode == key::Delete) return true;
  if (!shift.Ctrl) return false;
  return keyCode == 'A' || keyCode == 'C' || keyCode == 'V' || keyCode == 'X' || keyCode == 'Z';
}

bool IsTyping(int keyCode, ShiftState shift) noexcept {
  if (shift.Ctrl || keyCode < key::Space) return false;
  return keyCode < kFirstFunctionKey || keyCode > kLastFunctionKey;
}

bool IsArrow(int keyCode) noexcept { return keyCode >= key::Left && keyCode <= key::Down; }

DialogAction ArrowAction(int keyCode, ShiftState shift, const KeyFacts& focus) noexcept {
  if (focus.Wants.Arrows) return DialogAction::Control;
  if (!focus.InGroup || shift.Ctrl) return DialogAction::Form;
  const bool onward = keyCode == key::Down || keyCode == key::Right;
  return onward ? DialogAction::NextInGroup : DialogAction::PreviousInGroup;
}

DialogAction EnterAction(const DialogScene& scene) noexcept {
  if (scene.Focus.TakesEnter) return DialogAction::PressFocus;
  return scene.HasDefault ? DialogAction::PressDefault : DialogAction::Nothing;
}

}  // namespace

bool ComesFirst(const KeyWants& wants, int keyCode, ShiftState shift) noexcept {
  if (shift.Alt) return false;
  switch (keyCode) {
    case key::Enter:
      return wants.Enter;
    case key::Escape:
      return wants.Escape;
    case key::Tab:
      return wants.Tab && !shift.Ctrl;
    default:
      return false;
  }
}

DialogAction KeyAction(int keyCode, ShiftState shift, const DialogScene& scene) noexcept {
  const KeyWants& wants = scene.Focus.Wants;
  if (shift.Alt) {
    // The window's own menu, and its end.
    if (keyCode == key::Space || keyCode == key::F4) return DialogAction::Control;
    // Alt with Up or Down opens a list.
    if (IsArrow(keyCode) && wants.Arrows) return DialogAction::Control;
    // AltGr comes as Ctrl and Alt together: it types, and chooses nothing.
    if (shift.Ctrl) {
      return wants.Typing && IsTyping(keyCode, {}) ? DialogAction::Control : DialogAction::Form;
    }
    return scene.HasAccessKey ? DialogAction::PressAccessKey : DialogAction::Form;
  }
  if (ComesFirst(wants, keyCode, shift)) return DialogAction::Control;
  if (shift.Ctrl && scene.HasTabs) {
    if (keyCode == key::PageDown) return DialogAction::NextTab;
    if (keyCode == key::PageUp) return DialogAction::PreviousTab;
    if (keyCode == key::Tab) return shift.Shift ? DialogAction::PreviousTab : DialogAction::NextTab;
  }
  switch (keyCode) {
    case key::Tab:
      if (shift.Ctrl) return DialogAction::Form;
      return shift.Shift ? DialogAction::PreviousControl : DialogAction::NextControl;
    case key::Enter:
      return EnterAction(scene);
    case key::Escape:
      return scene.HasCancel ? DialogAction::PressCancel : DialogAction::Nothing;
    case key::Space:
      return wants.Space || wants.Typing ? DialogAction::Control : DialogAction::Form;
    case key::Left:
    case key::Up:
    case key::Right:
    case key::Down:
      return ArrowAction(keyCode, shift, scene.Focus);
    case key::Home:
    case key::End:
    case key::PageUp:
    case key::PageDown:
      return wants.Paging ? DialogAction::Control : DialogAction::Form;
    default:
      break;
  }
  if (keyCode == wants.Function && !shift.Ctrl) return DialogAction::Control;
  if (keyCode >= kFirstModifier && keyCode <= kLastModifier) return DialogAction::Form;
  if (IsEditing(keyCode, shift)) return wants.Editing ? DialogAction::Control : DialogAction::Form;
  return wants.Typing && IsTyping(keyCode, shift) ? DialogAction::Control : DialogAction::Form;
}

DialogAction CharacterAction(char32_t character, const DialogScene& scene) noexcept {
  constexpr char32_t kLastControlCharacter = 31;
  const KeyWants& wants = scene.Focus.Wants;
  // Control characters: their keys have been dealt with.
  if (character <= kLastControlCharacter) {
    return wants.Typing || wants.Editing ? DialogAction::Control : DialogAction::Nothing;
  }
  if (wants.Typing) return DialogAction::Control;
  if (character == U' ') return DialogAction::Nothing;
  if (scene.Focus.LettersPress && scene.HasAccessKey) return DialogAction::PressAccessKey;
  return DialogAction::Form;
}

bool AsksForMenu(int keyCode, ShiftState shift) noexcept {
  if (keyCode == key::Menu) return true;
  return keyCode == key::F10 && shift.Shift && !shift.Ctrl && !shift.Alt;
}

}  // namespace corvelle::forms
