#include "forms/ComboBox.h"

#include <utility>

#include "forms/ControlMaker.h"

namespace corvelle::forms {

void ComboBox::ShowSelected() {
  if (selected_ >= 0) {
    text_ = items_[static_cast<std::size_t>(selected_)];
  } else if (!entry_) {
    text_.clear();
  }
  if (Own() == nullptr) return;
  Own()->Select(selected_);
  if (entry_ && selected_ < 0) Own()->SetText(text_);
}

void ComboBox::Insert(int at, std::string text) {
  if (at < 0 || at > Count()) return;
  items_.insert(items_.begin() + at, std::move(text));
  if (selected_ >= at) ++selected_;
  if (Own() == nullptr) return;
  Own()->Insert(at, items_[static_cast<std::size_t>(at)]);
  ShowSelected();
}

void ComboBox::Remove(int at) {
  if (at < 0 || at >= Count()) return;
  items_.erase(items_.begin() + at);
  if (selected_ == at) {
    selected_ = -1;
  } else if (selected_ > at) {
    --selected_;
  }
  if (Own() == nullptr) return;
  Own()->Remove(at);
  ShowSelected();
}

void ComboBox::Clear() {
  items_.clear();
  selected_ = -1;
  text_.clear();
  if (Own() != nullptr) Own()->Clear();
}

void ComboBox::Select(int row) {
  selected_ = row >= 0 && row < Count() ? row : -1;
  ShowSelected();
}

void ComboBox::SetText(std::string text) {
  if (!entry_) return;
  text_ = std::move(text);
  selected_ = -1;
  if (Own() != nullptr) Own()->SetText(text_);
}

void ComboBox::Drop(bool down) {
  if (Own() != nullptr) Own()->Drop(down);
}

std::unique_ptr<WindowPeer> ComboBox::NewPeer(WindowPeer* parent) {
  return Windows().Controls().CreateComboBox(SpecIn(parent), entry_, *this, *this);
}

void ComboBox::PeerMade() {
  for (int row = 0; row < Count(); ++row) Own()->Insert(row, items_[static_cast<std::size_t>(row)]);
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
  if (now == selected_) return;
  selected_ = now;
  if (selected_ >= 0 && selected_ < Count()) text_ = items_[static_cast<std::size_t>(selected_)];
  const std::function<void()> click = Click;
  if (click) click();
}

void ComboBox::OnEntryChanged() {
  std::string now = Own()->Text();
  if (now == text_) return;
  text_ = std::move(now);
  selected_ = Own()->Selected();
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
