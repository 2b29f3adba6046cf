#include "menus/MainMenuRules.h"

namespace corvelle {

bool IsMarked(int label, const MainMenuFacts& facts) noexcept {
  switch (label) {
    case kLargeIconsLabel:
      return facts.LargeIcons;
    case kAutoHideLabel:
      return facts.AutoHide;
    case kNotOnTopLabel:
      return facts.NotOnTop;
    default:
      return false;
  }
}

bool IsChoosable(int label, const MainMenuFacts& facts) noexcept {
  if (label == kRestoreLabel) return facts.Docked;
  if (label == kMaximizeLabel) return !facts.Docked;
  return true;
}

std::string MarkTag(bool marked) {
  constexpr char kNul = '\0';
  return marked ? kNul + std::string("xCircle") + kNul : std::string(1, kNul);
}

}  // namespace corvelle
