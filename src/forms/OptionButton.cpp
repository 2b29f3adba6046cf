#include "forms/OptionButton.h"

#include <algorithm>

namespace corvelle::forms {

std::vector<OptionButton*> OptionButton::Group() const {
  std::vector<OptionButton*> group;
  for (Window* window : Container()->Children()) {
    if (OptionButton* const option = window->AsOption()) group.push_back(option);
  }
  return group;
}

void OptionButton::SetValue(bool value) {
  if (value == value_) return;
  value_ = value;
  if (Own() != nullptr) Own()->SetChecked(value_);
  if (!value) return;
  for (OptionButton* other : Group()) {
    if (other != this) other->SetValue(false);
  }
}

void OptionButton::Pressed() {
  if (value_) return;
  SetValue(true);
  TellClick();
}

void OptionButton::PeerMade() {
  Button::PeerMade();
  Own()->SetChecked(value_);
}

KeyFacts OptionButton::Keys() const {
  KeyFacts facts = Button::Keys();
  facts.InGroup = true;
  return facts;
}

bool OptionButton::StopsTab() const noexcept {
  if (!TabStop()) return false;
  const std::vector<OptionButton*> group = Group();
  const auto stops = [](const OptionButton* option) {
    return option->value_ && option->Visible() && option->Enabled();
  };
  return value_ || (std::none_of(group.begin(), group.end(), stops) &&
                    *std::find_if(group.begin(), group.end(), [](const OptionButton* option) {
                      return option->Visible() && option->Enabled();
                    }) == this);
}

void OptionButton::MoveInGroup(int step) {
  const std::vector<OptionButton*> group = Group();
  const int count = static_cast<int>(group.size());
  const int here = static_cast<int>(std::find(group.begin(), group.end(), this) - group.begin());
  for (int away = 1; away < count; ++away) {
    OptionButton* const next =
        group[static_cast<std::size_t>((here + step * away % count + count) % count)];
    if (!next->Visible() || !next->Enabled()) continue;
    const Alive::Watch watch = next->MakeWatch();
    next->SetFocus();
    if (!watch.Gone()) next->Press();
    return;
  }
}

}  // namespace corvelle::forms
