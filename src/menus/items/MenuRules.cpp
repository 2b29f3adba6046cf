#include "menus/items/MenuRules.h"

#include <algorithm>

namespace corvelle {
namespace {

constexpr int kPageUp = 33;
constexpr int kPageDown = 34;
constexpr int kEnd = 35;
constexpr int kHome = 36;

constexpr float kIconCellWidth = 19;  // pixels, with the frame

/// The item that a carried thing lands on where no item is hit.
int GapItem(const PageScene& page, float y) noexcept {
  for (std::size_t i = 0; i + 1 < page.Items.size(); ++i) {
    if (y > page.Items[i].Bottom() && y < page.Items[i + 1].Top) {
      return page.FirstLabel + static_cast<int>(i) + 1;
    }
  }
  return !page.Items.empty() && y < page.Items.front().Top ? page.FirstLabel : 0;
}

}  // namespace

int HitItem(const PageScene& page, float y) noexcept {
  int number = page.FirstLabel;
  for (const ItemBox& item : page.Items) {
    const bool fromAbove = y >= item.Top - page.ItemGap + 2 * page.TwipsY;
    if (fromAbove && item.Bottom() + page.TwipsY >= y) return number;
    ++number;
  }
  return 0;
}

int ItemUnder(const PageScene& page, float y, bool carrying) noexcept {
  const int item = HitItem(page, y);
  return item == 0 && carrying ? GapItem(page, y) : item;
}

bool IsBelowItems(const PageScene& page, float y) noexcept {
  return page.Items.empty() || y > page.Items.back().Bottom();
}

bool IsOutsideItems(const PageScene& page, float y) noexcept {
  return IsBelowItems(page, y) || y < page.Items.front().Top;
}

bool HasRuleBetween(const ItemBox& above, const ItemBox& below, float itemGap) noexcept {
  // A gap may come out a little wider than it is meant; a separator adds twelve pixels to it.
  return below.Top - above.Bottom() > itemGap * 1.5F;
}

float RuleBelow(const ItemBox& above, float itemGap, float twipsY) noexcept {
  return above.Bottom() + itemGap + 2 * twipsY;
}

float IconLeft(float twipsX) noexcept { return 2 * twipsX; }

float IconTop(const ItemBox& item, float smallIconH) noexcept {
  return item.Top + item.Height / 2 - smallIconH / 2;
}

SelectionBox DrawBoxRule(const ItemBox& item, float itemGap, float barHeight, float twipsX,
                         float twipsY) noexcept {
  const float top = item.Top - itemGap + 4 * twipsY;
  const float right = kIconCellWidth * twipsX;
  const float bottom = top + barHeight - 2 * twipsY;
  SelectionBox box;
  box.BarTop = top;
  box.mLineLeft = {0, top, 0, bottom};
  box.mLineRight = {right, top, right, top + barHeight - twipsY};
  box.mLineTop = {0, top, right, top};
  box.mLineDown = {0, bottom, right, bottom};
  return box;
}

ButtonFrame FrameOf(const TwipRect& button, float twipsX) noexcept {
  const float longer = button.Right() + twipsX;
  ButtonFrame frame;
  frame.LineLeft = {button.Left, button.Top, button.Left, button.Bottom()};
  frame.LineTop = {button.Left, button.Top, longer, button.Top};
  frame.LineRight = {button.Right(), button.Top, button.Right(), button.Bottom()};
  frame.LineDown = {button.Left, button.Bottom(), longer, button.Bottom()};
  return frame;
}

int StepItem(int current, int firstLabel, int lastLabel, int step) noexcept {
  if (lastLabel < firstLabel) return 0;
  const int next = current + step;
  if (next >= firstLabel && next <= lastLabel) return next;
  return step > 0 ? firstLabel : lastLabel;
}

std::optional<int> PageForKey(int keyCode, int curMenu, int slides) noexcept {
  if (slides <= 0) return std::nullopt;
  const bool canGoUp = curMenu > 0;
  const bool canGoDown = curMenu < slides;
  if (keyCode == kPageUp && canGoUp) return curMenu - 1;
  if (keyCode == kHome && canGoUp) return 0;
  if (keyCode == kPageDown && canGoDown) return curMenu + 1;
  if (keyCode == kEnd && canGoDown) return slides;
  return std::nullopt;
}

bool OffersShellMenu(bool mainMenu, char preference, bool ctrl) noexcept {
  return !mainMenu && (preference == '0') != ctrl;
}

std::optional<int> ReturnPage(int savedPage, int slides) noexcept {
  if (savedPage < 1 || slides < 1) return std::nullopt;
  return std::min(savedPage, slides);
}

}  // namespace corvelle
