#include "forms/ToolBar.h"

#include <algorithm>
#include <utility>

#include "forms/ControlMaker.h"

namespace corvelle::forms {

int ToolBar::AddImage(Picture image) {
  images_.push_back(std::move(image));
  if (Own() != nullptr) Own()->AddImage(*images_.back());
  return static_cast<int>(images_.size()) - 1;
}

void ToolBar::Add(ToolBarButton button) {
  buttons_.push_back(std::move(button));
  if (Own() != nullptr) Own()->Add(buttons_.back());
}

int ToolBar::Find(const std::string& key) const {
  const auto found = std::find_if(buttons_.begin(), buttons_.end(), [&](const ToolBarButton& one) {
    return !one.IsGap() && one.Key == key;
  });
  return found != buttons_.end() ? static_cast<int>(found - buttons_.begin()) : -1;
}

void ToolBar::Show(int button) {
  const ToolBarButton& shown = buttons_[static_cast<std::size_t>(button)];
  if (Own() != nullptr) Own()->SetButton(button, shown.Enabled, shown.Checked);
}

void ToolBar::SetButtonEnabled(const std::string& key, bool enabled) {
  const int button = Find(key);
  if (button < 0) return;
  buttons_[static_cast<std::size_t>(button)].Enabled = enabled;
  Show(button);
}

void ToolBar::SetButtonChecked(const std::string& key, bool checked) {
  const int button = Find(key);
  if (button < 0) return;
  buttons_[static_cast<std::size_t>(button)].Checked = checked;
  Show(button);
}

PixelRect ToolBar::ButtonRect(const std::string& key) const {
  const int button = Find(key);
  return Own() != nullptr && button >= 0 ? Own()->ButtonRect(button) : PixelRect{};
}

std::unique_ptr<WindowPeer> ToolBar::NewPeer(WindowPeer* parent) {
  return Windows().Controls().CreateToolBar(SpecIn(parent), *this, *this);
}

void ToolBar::PeerMade() {
  for (const Picture& image : images_) Own()->AddImage(*image);
  for (const ToolBarButton& button : buttons_) Own()->Add(button);
}

void ToolBar::OnToolPressed(int button) {
  if (button < 0 || button >= static_cast<int>(buttons_.size())) return;
  // Copies, since the handler may destroy the bar.
  const auto handler = ButtonClick;
  const std::string key = buttons_[static_cast<std::size_t>(button)].Key;
  if (handler) handler(key);
}

}  // namespace corvelle::forms
