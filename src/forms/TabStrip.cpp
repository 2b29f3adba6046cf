#include "forms/TabStrip.h"

#include <algorithm>
#include <utility>

#include "forms/ControlMaker.h"

namespace corvelle::forms {

void TabStrip::Add(std::string key, std::string text) {
  tabs_.push_back({std::move(key), std::move(text)});
  if (Own() != nullptr) Own()->Add(tabs_.back().Text);
  if (selected_ >= 0) return;
  selected_ = 0;
  if (Own() != nullptr) Own()->Select(selected_);
}

int TabStrip::Find(const std::string& key) const {
  const auto found =
      std::find_if(tabs_.begin(), tabs_.end(), [&](const Tab& tab) { return tab.Key == key; });
  return found != tabs_.end() ? static_cast<int>(found - tabs_.begin()) : -1;
}

void TabStrip::SetText(const std::string& key, std::string text) {
  const int tab = Find(key);
  if (tab < 0) return;
  tabs_[static_cast<std::size_t>(tab)].Text = std::move(text);
  if (Own() != nullptr) Own()->SetText(tab, tabs_[static_cast<std::size_t>(tab)].Text);
}

std::string TabStrip::Selected() const {
  return selected_ >= 0 ? tabs_[static_cast<std::size_t>(selected_)].Key : std::string();
}

void TabStrip::Select(const std::string& key) {
  const int tab = Find(key);
  if (tab < 0) return;
  selected_ = tab;
  if (Own() != nullptr) Own()->Select(tab);
}

std::unique_ptr<WindowPeer> TabStrip::NewPeer(WindowPeer* parent) {
  return Windows().Controls().CreateTabStrip(SpecIn(parent), *this, *this);
}

void TabStrip::PeerMade() {
  for (const Tab& tab : tabs_) Own()->Add(tab.Text);
  if (selected_ >= 0) Own()->Select(selected_);
}

void TabStrip::TellClick() {
  const std::function<void()> click = Click;
  if (click) click();
}

bool TabStrip::OnTabLeaving() {
  const std::function<bool()> leaving = Leaving;
  return !leaving || leaving();
}

void TabStrip::OnTabChosen() {
  const int now = Own()->Selected();
  if (now == selected_) return;
  selected_ = now;
  TellClick();
}

void TabStrip::ChangeTab(int step) {
  const int count = static_cast<int>(tabs_.size());
  if (count < 2) return;
  const Alive::Watch watch = MakeWatch();
  if (!OnTabLeaving() || watch.Gone()) return;
  selected_ = (selected_ + step + count) % count;
  if (Own() != nullptr) Own()->Select(selected_);
  TellClick();
}

}  // namespace corvelle::forms
