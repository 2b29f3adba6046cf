#include "menus/window/MainMenuRules.h"

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

std::string_view MarkIcon(bool marked) noexcept { return marked ? "xCircle" : ""; }

}  // namespace corvelle
