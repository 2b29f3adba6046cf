#pragma once

#include <optional>
#include <span>

#include "base/Twips.h"

namespace corvelle {

// What the pointer and the keys mean in a menu: pure rules. All measures are twips.

/// A label's place from top to bottom.
struct ItemBox {
  float Top = 0;
  float Height = 195;

  [[nodiscard]] constexpr float Bottom() const noexcept { return Top + Height; }
};

/// The items of the page on show.
struct PageScene {
  std::span<const ItemBox> Items;  // the page's first item first
  int FirstLabel = 1;              // its number
  float ItemGap = 105;
  float TwipsY = 15;
};

/// Number of the item at a height in the window, 0 for none.
[[nodiscard]] int HitItem(const PageScene& page, float y) noexcept;

/// HitItem; while something is carried over the menu a gap belongs to the item below it, and what
/// is above all to the first item, so that a drop always lands on a defined place.
[[nodiscard]] int ItemUnder(const PageScene& page, float y, bool carrying) noexcept;

/// True below the bottom of the page's last label, and everywhere on a page without items.
[[nodiscard]] bool IsBelowItems(const PageScene& page, float y) noexcept;

/// True above the first label of the page or below its last one: a click there chooses nothing.
[[nodiscard]] bool IsOutsideItems(const PageScene& page, float y) noexcept;

/// A gap that is clearly wider than that of two neighbours holds a separator.
[[nodiscard]] bool HasRuleBetween(const ItemBox& above, const ItemBox& below,
                                  float itemGap) noexcept;

/// The dark line of the rule below an item; the light one is a pixel lower.
[[nodiscard]] float RuleBelow(const ItemBox& above, float itemGap, float twipsY) noexcept;

/// Upper left corner of the icon cell of an item, which is 16 by 16 pixels.
[[nodiscard]] float IconLeft(float twipsX) noexcept;
[[nodiscard]] float IconTop(const ItemBox& item, float smallIconH) noexcept;

/// The selection bar of an item and the frame of its icon cell.
struct SelectionBox {
  float BarTop = 0;  // Shape1
  TwipLine mLineLeft;
  TwipLine mLineRight;
  TwipLine mLineTop;
  TwipLine mLineDown;
};

/// `barHeight` is the height of the bar.
[[nodiscard]] SelectionBox DrawBoxRule(const ItemBox& item, float itemGap, float barHeight,
                                       float twipsX, float twipsY) noexcept;

/// The four edges of an arrow button; the upper and the lower one are a pixel longer.
struct ButtonFrame {
  TwipLine LineLeft;
  TwipLine LineTop;
  TwipLine LineRight;
  TwipLine LineDown;
};

[[nodiscard]] ButtonFrame FrameOf(const TwipRect& button, float twipsX) noexcept;

/// The item that an arrow key leads to from `current`, which may lie outside of the page; around
/// its ends. `step` is 1 or -1. 0 on a page without items.
[[nodiscard]] int StepItem(int current, int firstLabel, int lastLabel, int step) noexcept;

/// The page that a paging key (33 to 36) leads to; nothing when the menu stays as it is.
[[nodiscard]] std::optional<int> PageForKey(int keyCode, int curMenu, int slides) noexcept;

/// True when a right click on an item shows the shell's menu of what the item stands for, false for
/// the program's popup. `preference` is Option::SystemPopupWithCtrl, which Ctrl turns over; the
/// items of the program's own menu stand for nothing of the shell.
[[nodiscard]] bool OffersShellMenu(bool mainMenu, char preference, bool ctrl) noexcept;

/// The page to which a rebuilt menu returns; nothing for the first one.
[[nodiscard]] std::optional<int> ReturnPage(int savedPage, int slides) noexcept;

}  // namespace corvelle
