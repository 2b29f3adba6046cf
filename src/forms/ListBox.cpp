#include "forms/ListBox.h"

#include <utility>

#include "forms/ControlMaker.h"

namespace corvelle::forms {

void ListBox::Insert(int at, std::string text) {
  if (at < 0 || at > Count()) return;
  items_.insert(items_.begin() + at, std::move(text));
  if (selected_ >= at) ++selected_;
  if (Own() == nullptr) return;
  Own()->Insert(at, items_[static_cast<std::size_t>(at)]);
  Own()->Select(selected_);
}

void ListBox::Remove(int at) {
  if (at < 0 || at >= Count()) return;
  items_.erase(items_.begin() + at);
  if (selected_ == at) {
    selected_ = -1;
  } else if (selected_ > at) {
    --selected_;
  }
  if (Own() == nullptr) return;
  Own()->Remove(at);
  Own()->Select(selected_);
}

void ListBox::Clear() {
  items_.clear();
  selected_ = -1;
  if (Own() != nullptr) Own()->Clear();
}

void ListBox::Select(int row) {
  selected_ = row >= 0 && row < Count() ? row : -1;
  if (Own() != nullptr) Own()->Select(selected_);
}

void ListBox::SetTopRow(int row) {
  if (Own() != nullptr) Own()->SetTopRow(row);
}

std::unique_ptr<WindowPeer> ListBox::NewPeer(WindowPeer* parent) {
  return Windows().Controls().CreateListBox(SpecIn(parent), *this, *this);
}

void ListBox::PeerMade() {
  for (int row = 0; row < Count(); ++row) Own()->Insert(row, items_[static_cast<std::size_t>(row)]);
  Own()->Select(selected_);
}

void ListBox::OnRowChosen() {
  const int now = Own()->Selected();
  if (now == selected_) return;
  selected_ = now;
  const std::function<void()> click = Click;
  if (click) click();
}

void ListBox::OnRowActivated() {
  const std::function<void()> activated = DblClick;
  if (activated) activated();
}

}  // namespace corvelle::forms
