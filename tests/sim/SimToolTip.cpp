// Tool tips: the text that comes up when the pointer rests on a window.

#include "sim/SimDesktop.h"

namespace corvelle::sim {

namespace {

constexpr int kRest = 500;  // milliseconds

}  // namespace

std::string SimDesktop::ToolTipOf(WindowId window, PixelPoint at) const {
  const SimWindow* const found = Look(window);
  if (found == nullptr || !found->Own || !found->Enabled || !Look(TopOf(window))->Enabled) {
    return {};
  }
  const std::string part = found->Control != nullptr ? found->Control->ToolTipAt(at) : "";
  return !part.empty() ? part : found->ToolTip;
}

void SimDesktop::SetToolTip(WindowId window, std::string_view text) {
  Get(window)->ToolTip = text;
  // Another text waits for another rest.
  if (window == tipWindow_) FollowToolTip(window, InWindow(window, pointer_));
}

void SimDesktop::FollowToolTip(WindowId target, PixelPoint at) {
  std::string tip = ToolTipOf(target, at);
  const bool same = target == tipWindow_ && tip == tip_;
  // A tip that is up follows no moves; one that a press took away does not come back.
  if (same && (!tipSince_ || !ToolTip().empty())) return;
  tipWindow_ = target;
  tip_ = std::move(tip);
  tipSince_ = clock_.Now();
}

std::string SimDesktop::ToolTip() const {
  const bool rests = tipSince_ && clock_.Now() - *tipSince_ >= kRest && IsShown(tipWindow_);
  return rests ? tip_ : std::string();
}

}  // namespace corvelle::sim
