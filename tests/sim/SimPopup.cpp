// Popup menus: what they show, and what the user makes of them.

#include "sim/SimPopup.h"

#include <algorithm>
#include <utility>

#include "sim/Complain.h"
#include "sim/SimDesktop.h"

namespace corvelle::sim {

namespace {

constexpr int kLine = 17;
constexpr int kRule = 9;
constexpr int kFrame = 3;
constexpr int kTextLeft = 20;

int HeightOf(const forms::PopupItem& item) {
  if (!item.Visible) return 0;
  return item.IsSeparator() ? kRule : kLine;
}

int CountOf(const std::vector<forms::PopupItem>& items) {
  int count = 0;
  for (const forms::PopupItem& item : items) count += 1 + CountOf(item.Items);
  return count;
}

/// The line at a path, or null. `number` goes to its number, `offered` stays true if the user can
/// get there.
const forms::PopupItem* FindIn(const std::vector<forms::PopupItem>& items, std::string_view path,
                               int& number, bool& offered) {
  const std::size_t bar = path.find('>');
  const std::string_view first = path.substr(0, bar);
  for (const forms::PopupItem& item : items) {
    if (item.Visible && item.Caption == first) {
      offered = offered && item.Enabled;
      if (bar == std::string_view::npos) return &item;
      ++number;
      return FindIn(item.Items, path.substr(bar + 1), number, offered);
    }
    number += 1 + CountOf(item.Items);
  }
  return nullptr;
}

}  // namespace

const forms::PopupItem* Popup::Find(std::string_view caption) const {
  int number = 0;
  bool offered = true;
  return FindIn(Items, caption, number, offered);
}

int Popup::NumberOf(std::string_view caption) const {
  int number = 0;
  bool offered = true;
  return FindIn(Items, caption, number, offered) != nullptr ? number : forms::popup::kNothing;
}

bool Popup::Offers(std::string_view caption) const {
  int number = 0;
  bool offered = true;
  const forms::PopupItem* const item = FindIn(Items, caption, number, offered);
  return item != nullptr && offered && !item->IsSeparator() && item->Items.empty();
}

std::vector<std::string> Popup::Captions() const {
  std::vector<std::string> captions;
  for (const forms::PopupItem& item : Items) {
    if (item.Visible) captions.push_back(item.Caption);
  }
  return captions;
}

bool SimDesktop::PopupStands(WindowId owner) const {
  return popup_ != kNoWindow && !quit_ && IsShown(owner) && foreground_ == TopOf(owner);
}

bool SimDesktop::PopupTakesPress(PixelPoint at) {
  if (popup_ == kNoWindow) return false;
  if (BoundsOf(popup_).Contains(at)) return true;
  Destroy(std::exchange(popup_, kNoWindow));
  capture_ = kNoWindow;
  Activate(TopOf(WindowAt(at)));
  return true;
}

int SimDesktop::ChoiceOf(const Popup& popup) {
  if (choices_.empty()) return forms::popup::kNothing;
  const std::string wanted = std::move(choices_.front());
  choices_.pop_front();
  if (popup.Offers(wanted)) return popup.NumberOf(wanted);
  Complain("the popup menu does not offer \"" + wanted + "\"");
  return forms::popup::kNothing;
}

int SimDesktop::ShowPopup(WindowId owner, const std::vector<forms::PopupItem>& items, PixelPoint at,
                          unsigned flags) {
  if (Look(owner) == nullptr || !Look(owner)->Own || Look(owner)->Parent != kNoWindow) {
    Complain("a popup menu without an owner");
    return forms::popup::kNothing;
  }
  // The system shows one popup menu at a time.
  if (popup_ != kNoWindow) return forms::popup::kNothing;
  Popup popup{.Owner = owner, .Items = items, .At = at, .Flags = flags};
  RequestForeground(owner);

  PixelSize size{2 * kFrame, 2 * kFrame};
  for (const forms::PopupItem& item : items) {
    size.height += HeightOf(item);
    const int width = TextSize(item.Caption, {{}, PrimaryDpi()}).width + 2 * kTextLeft + 2 * kFrame;
    if (item.Visible) size.width = std::max(size.width, width);
  }
  const PixelPoint corner{std::clamp(at.x, 0, std::max(options_.Screen.width - size.width, 0)),
                          std::clamp(at.y, 0, std::max(options_.Screen.height - size.height, 0))};
  const WindowId window = Add({.Own = true,
                               .ClassName = "#32768",
                               .Bounds = RectAt(corner, size),
                               .Visible = true,
                               .Topmost = true});
  const std::shared_ptr<SimCanvas> content = Get(window)->Content;
  content->FillBox({0, 0, size.width, size.height}, SystemColor(16));
  content->FillBox({1, 1, size.width - 1, size.height - 1}, SystemColor(4));
  int top = kFrame;
  for (const forms::PopupItem& item : items) {
    if (item.Visible && item.IsSeparator()) {
      content->FillBox({kFrame, top + kRule / 2, size.width - kFrame, top + kRule / 2 + 1},
                       SystemColor(16));
    } else if (item.Visible) {
      content->DrawString({kFrame + kTextLeft, top + 2}, item.Caption, {{}, PrimaryDpi()},
                          SystemColor(item.Enabled ? 7 : 17));
    }
    top += HeightOf(item);
  }

  LoseCapture();
  popup_ = window;
  capture_ = window;
  const int depth = std::exchange(depth_, 0);
  Pump();
  if (popupAction_) {
    const auto action = popupAction_;
    action(popup);
    Pump();
  }
  const int choice = ChoiceOf(popup);
  if (PopupStands(owner)) popup.Chosen = choice;
  depth_ = depth;

  popup_ = kNoWindow;
  Destroy(window);
  popups_.push_back(popup);
  return popup.Chosen;
}

}  // namespace corvelle::sim
