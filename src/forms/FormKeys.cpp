// The keys of a form's controls: what the rules of dialogs make of them.

#include <algorithm>

#include "base/Text.h"
#include "forms/Form.h"
#include "forms/Menu.h"

namespace corvelle::forms {

namespace {

// Any control may be destroyed by what a key does.
constexpr bool kUsedUp = true;

void Collect(const Window& container, std::vector<Window*>& all, const Window* leaving) {
  for (Window* child : container.Children()) {
    if (child != leaving && (!child->Visible() || !child->Enabled())) continue;
    all.push_back(child);
    Collect(*child, all, leaving);
  }
}

}  // namespace

std::vector<Window*> Form::Reachable(const Window* leaving) const {
  std::vector<Window*> all;
  Collect(*this, all, leaving);
  return all;
}

DialogScene Form::SceneOf(const Window& focus, char32_t letter) const {
  DialogScene scene{.Focus = focus.Keys()};
  const char32_t wanted = UpperCharacter(letter);
  for (const Window* window : Reachable()) {
    const KeyFacts facts = window->Keys();
    scene.HasDefault = scene.HasDefault || facts.IsDefault;
    scene.HasCancel = scene.HasCancel || facts.IsCancel;
    scene.HasTabs = scene.HasTabs || facts.HasTabs;
    scene.HasAccessKey = scene.HasAccessKey || (wanted != 0 && facts.AccessKey == wanted);
  }
  return scene;
}

bool Form::ControlKey(Window& focus, int keyCode, ShiftState shift) {
  const Alive::Watch control = focus.MakeWatch();
  const Alive::Watch form = MakeWatch();
  const auto gone = [&] { return control.Gone() || form.Gone() || focus.Peer() == nullptr; };
  if (ComesFirst(focus.Keys().Wants, keyCode, shift)) return false;
  if (AskHelp(keyCode, shift)) return kUsedUp;
  if (keyPreview_) {
    swallowed_ = false;
    Form_KeyDown(keyCode, shift);
    if (gone() || swallowed_) return kUsedUp;
  }
  if (const auto handler = focus.KeyDown) {
    if (handler(keyCode, shift) || gone()) return kUsedUp;
  }
  if (AsksForMenu(keyCode, shift)) {
    // In its upper left corner, for want of a better place.
    if (focus.MenuAsked({0, 0}, true) || gone()) return kUsedUp;
  }
  const DialogScene scene = SceneOf(focus, static_cast<char32_t>(keyCode));
  return Act(KeyAction(keyCode, shift, scene), focus, keyCode, shift);
}

bool Form::Act(DialogAction action, Window& focus, int keyCode, ShiftState shift) {
  switch (action) {
    case DialogAction::Control:
      return false;
    case DialogAction::Form:
      if (!keyPreview_) {
        const Alive::Watch form = MakeWatch();
        Form_KeyDown(keyCode, shift);
        if (form.Gone() || !loaded_) return kUsedUp;
      }
      if (PressAccelerator(keyCode, shift)) return kUsedUp;
      // What Alt does is the system's too, in the form's own menus.
      return !shift.Alt;
    case DialogAction::NextControl:
      MoveFocus(focus, 1);
      break;
    case DialogAction::PreviousControl:
      MoveFocus(focus, -1);
      break;
    case DialogAction::NextInGroup:
      focus.MoveInGroup(1);
      break;
    case DialogAction::PreviousInGroup:
      focus.MoveInGroup(-1);
      break;
    case DialogAction::NextTab:
      ChangeTab(1);
      break;
    case DialogAction::PreviousTab:
      ChangeTab(-1);
      break;
    case DialogAction::PressFocus:
      focus.PressByKey();
      break;
    case DialogAction::PressDefault:
      PressFirst(&KeyFacts::IsDefault);
      break;
    case DialogAction::PressCancel:
      PressFirst(&KeyFacts::IsCancel);
      break;
    case DialogAction::PressAccessKey:
      PressAccessKey(static_cast<char32_t>(keyCode));
      break;
    case DialogAction::Nothing:
      break;
  }
  return kUsedUp;
}

bool Form::ControlCharacter(Window& focus, char32_t character) {
  const Alive::Watch control = focus.MakeWatch();
  const Alive::Watch form = MakeWatch();
  const auto gone = [&] { return control.Gone() || form.Gone() || focus.Peer() == nullptr; };
  if (ComesFirst(focus.Keys().Wants, static_cast<int>(character), {})) return false;
  if (keyPreview_) {
    swallowed_ = false;
    Form_KeyPress(character);
    if (gone() || swallowed_) return kUsedUp;
  }
  if (const auto handler = focus.KeyPress) {
    if (handler(character) || gone()) return kUsedUp;
  }
  switch (CharacterAction(character, SceneOf(focus, character))) {
    case DialogAction::Control:
      return false;
    case DialogAction::PressAccessKey:
      PressAccessKey(character);
      break;
    case DialogAction::Form:
      if (!keyPreview_) Form_KeyPress(character);
      break;
    default:
      break;
  }
  return kUsedUp;
}

bool Form::AskHelp(int keyCode, ShiftState shift) {
  if (keyCode != key::F1 || shift != ShiftState{} || !HelpAsked) return false;
  const auto handler = HelpAsked;  // it may end the form
  handler();
  return true;
}

void Form::OnKeyDown(int keyCode, ShiftState shift) {
  if (AskHelp(keyCode, shift)) return;
  const Alive::Watch form = MakeWatch();
  Form_KeyDown(keyCode, shift);
  if (!form.Gone() && loaded_) PressAccelerator(keyCode, shift);
}

bool Form::PressAccelerator(int keyCode, ShiftState shift) {
  if (menu_.empty()) return false;
  const int line = LineOf(menu_, {.KeyCode = keyCode, .Shift = shift});
  if (line == popup::kNothing) return false;
  Form_Menu(line);
  return true;
}

void Form::MoveFocus(const Window& from, int step) {
  const std::vector<Window*> all = Reachable();
  const int count = static_cast<int>(all.size());
  const int here = static_cast<int>(std::find(all.begin(), all.end(), &from) - all.begin());
  for (int away = 1; away < count; ++away) {
    Window* const next =
        all[static_cast<std::size_t>((here + step * away % count + count) % count)];
    if (!next->StopsTab()) continue;
    const Alive::Watch watch = next->MakeWatch();
    next->SetFocus();
    if (!watch.Gone()) next->TabbedInto();
    return;
  }
}

void Form::PassFocusFrom(const Window& leaving) {
  // A page leaves it to its tabs.
  for (Window* at = leaving.container_; at != nullptr && !leaving.hasFocus_; at = at->container_) {
    if (at->StopsTab()) return at->SetFocus();
  }
  const std::vector<Window*> all = Reachable(&leaving);
  const auto place = std::find(all.begin(), all.end(), &leaving);
  const auto from = static_cast<std::size_t>(place - all.begin());
  for (std::size_t away = 1; away < all.size(); ++away) {
    Window* const next = all[(from + away) % all.size()];
    if (!next->IsWithin(leaving) && next->StopsTab()) return next->SetFocus();
  }
  SetFocus();
}

void Form::PressAccessKey(char32_t letter) {
  const char32_t wanted = UpperCharacter(letter);
  for (Window* window : Reachable()) {
    if (window->Keys().AccessKey != wanted) continue;
    const Alive::Watch watch = window->MakeWatch();
    // A frame hands the focus on.
    if (window->TabStop()) window->SetFocus();
    if (!watch.Gone()) window->PressByKey();
    return;
  }
}

void Form::ChangeTab(int step) {
  for (Window* window : Reachable()) {
    if (window->Keys().HasTabs) return window->ChangeTab(step);
  }
}

void Form::PressFirst(bool KeyFacts::*fact) {
  for (Window* window : Reachable()) {
    if (!(window->Keys().*fact)) continue;
    window->PressByKey();
    return;
  }
}

}  // namespace corvelle::forms
