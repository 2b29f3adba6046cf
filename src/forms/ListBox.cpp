#include "forms/ListBox.h"

#include <utility>

#include "forms/ControlMaker.h"

namespace corvelle::forms {

void ListBox::Insert(int at, std::string text) {
  if (!rows_.Insert(at, std::move(text)) || Own() == nullptr) return;
  Own()->Insert(at, rows_.Text(at));
  Own()->Select(Selected());
}

void ListBox::Remove(int at) {
  if (!rows_.Remove(at) || Own() == nullptr) return;
  Own()->Remove(at);
  Own()->Select(Selected());
}

void ListBox::Clear() {
  rows_.Clear();
  if (Own() != nullptr) Own()->Clear();
}

void ListBox::Select(int row) {
  rows_.Select(row);
  if (Own() != nullptr) Own()->Select(Selected());
}

void ListBox::SetTopRow(int row) {
  if (Own() != nullptr) Own()->SetTopRow(row);
}

std::unique_ptr<WindowPeer> ListBox::NewPeer(WindowPeer* parent) {
  return Windows().Controls().CreateListBox(SpecIn(parent), *this, *this);
}

void ListBox::PeerMade() {
  for (int row = 0; row < Count(); ++row) Own()->Insert(row, rows_.Text(row));
  Own()->Select(Selected());
}

void ListBox::OnRowChosen() {
  const int now = Own()->Selected();
  if (now == Selected()) return;
  rows_.Select(now);
  const std::function<void()> click = Click;
  if (click) click();
}

void ListBox::OnRowActivated() {
  const std::function<void()> activated = DblClick;
  if (activated) activated();
}

}  // namespace corvelle::forms
