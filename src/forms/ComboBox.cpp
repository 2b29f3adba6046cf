#include "forms/ComboBox.h"

#include <utility>

#include "forms/ControlMaker.h"

namespace corvelle::forms {

void ComboBox::ShowSelected() {
  if (Selected() >= 0) {
    text_ = rows_.Text(Selected());
  } else if (!entry_) {
    text_.clear();
  }
  if (Own() == nullptr) return;
  Own()->Select(Selected());
  if (entry_ && Selected() < 0) Own()->SetText(text_);
}

void ComboBox::Insert(int at, std::string text) {
  if (!rows_.Insert(at, std::move(text))) return;
  if (Own() != nullptr) Own()->Insert(at, rows_.Text(at));
  ShowSelected();
}

void ComboBox::Remove(int at) {
  if (!rows_.Remove(at)) return;
  if (Own() != nullptr) Own()->Remove(at);
  ShowSelected();
}

void ComboBox::Clear() {
  rows_.Clear();
  text_.clear();
  if (Own() != nullptr) Own()->Clear();
}

void ComboBox::Select(int row) {
  rows_.Select(row);
  ShowSelected();
}

void ComboBox::SetText(std::string text) {
  if (!entry_) return;
  text_ = std::move(text);
  rows_.Select(-1);
  if (Own() != nullptr) Own()->SetText(text_);
}

void ComboBox::Drop(bool down) {
  if (Own() != nullptr) Own()->Drop(down);
}

std::unique_ptr<WindowPeer> ComboBox::NewPeer(WindowPeer* parent) {
  return Windows().Controls().CreateComboBox(SpecIn(parent), entry_, *this, *this);
}

void ComboBox::PeerMade() {
  for (int row = 0; row < Count(); ++row) Own()->Insert(row, rows_.Text(row));
  ShowSelected();
}

KeyFacts ComboBox::Keys() const {
  return {.Wants = {.Arrows = true,
                    .Paging = true,
                    .Editing = entry_,
                    .Typing = true,
                    .Function = key::F4,
                    .Enter = dropped_,
                    .Escape = dropped_}};
}

bool ComboBox::OnControlKey(int keyCode, ShiftState shift) {
  if (SystemControl::OnControlKey(keyCode, shift)) return true;
  if (Own() == nullptr) return true;
  const bool turn = (keyCode == key::F4 && !shift.Alt) ||
                    (shift.Alt && (keyCode == key::Up || keyCode == key::Down));
  if (!turn) return false;
  Drop(!dropped_);
  return true;
}

void ComboBox::TabbedInto() {
  if (entry_ && Own() != nullptr) Own()->SelectText();
}

void ComboBox::OnChosen() {
  const int now = Own()->Selected();
  if (now == Selected()) return;
  rows_.Select(now);
  if (Selected() >= 0) text_ = rows_.Text(Selected());
  const std::function<void()> click = Click;
  if (click) click();
}

void ComboBox::OnEntryChanged() {
  std::string now = Own()->Text();
  if (now == text_) return;
  text_ = std::move(now);
  rows_.Select(Own()->Selected());
  const std::function<void()> change = Change;
  if (change) change();
}

void ComboBox::OnDropped(bool down) {
  if (down == dropped_) return;
  dropped_ = down;
  const std::function<void()> handler = DropDown;
  if (handler) handler();
}

}  // namespace corvelle::forms
