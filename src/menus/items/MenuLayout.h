#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Edge.h"
#include "base/Twips.h"
#include "menus/items/MenuItem.h"

namespace corvelle {

// From the items of a menu file to pages: pure rules. All measures are twips.

/// Key of the program's own menu; all other menus belong to buttons.
inline constexpr std::string_view kMainMenuKey = "Q1";

/// Least width of a button's menu.
inline constexpr float kLeastMenuWidth = 1750;

/// Gap between two items: 6 pixels with large system fonts, else 7.
[[nodiscard]] constexpr float ItemGapFor(float twipsY) noexcept {
  return twipsY < 14 ? 6 * twipsY : 7 * twipsY;
}

/// Measures that follow from the twips of a pixel, which are taken as whole numbers.
struct MenuMetrics {
  float TwipsX = 15;
  float TwipsY = 15;
  float SmallIconW = 240;
  float SmallIconH = 240;
  float ItemLeft = 360;  // of every label
  float FirstTop = 90;   // of the first label of a page
  float ItemGap = 105;   // between two labels
  float BarLeft = 315;   // of the selection bar
  float BarHeight = 315;

  friend bool operator==(const MenuMetrics&, const MenuMetrics&) = default;
};

[[nodiscard]] MenuMetrics MetricsFor(float twipsX, float twipsY) noexcept;

/// Where the strip leaves room for a menu.
struct MenuRoomScene {
  bool Vertical = false;  // the strip is at the left or right edge
  Edge At = Edge::Top;
  float ScreenHeight = 0;
  float MenuTop = 0;   // of the menu window as placed so far
  float StripTop = 0;  // of the strip's window
};

/// The greatest height of a menu window, never below 0.
[[nodiscard]] float MenuRoom(const MenuRoomScene& scene) noexcept;

struct MenuScene {
  /// The whole file. The first one is the menu's own header and not shown.
  std::span<const MenuItem> Items;
  std::string_view Key = "F2";
  float TwipsX = 15;
  float TwipsY = 15;
  float LineHeight = 195;     // of a label of one line
  float WindowHeight = 9000;  // the greatest there is room for
  /// Width of a text as it is shown, with single "&". Without one every text has no width.
  std::function<float(std::string_view)> TextWidth;
};

/// One page. Items are numbered from 1 across all pages; an empty menu has a page from 1 to 0.
struct MenuPage {
  int FirstLabel = 1;
  int LastLabel = 0;
  /// The dark line of each separator rule on the page; the light one is a pixel lower.
  std::vector<float> Rules;

  friend bool operator==(const MenuPage&, const MenuPage&) = default;
};

struct MenuLayout {
  std::vector<MenuItem> Items;  // those on show, item 1 first
  std::vector<MenuPage> Pages;  // at least one
  int Labels = 0;               // number of items
  int Slides = 0;               // number of the last page, 0 for a single one
  float MenuHeight = 0;         // available to a page
  float MaxLabelWidth = 0;
  float Width = 0;  // of the window
  float Height = 0;
  float ItemGap = 0;
};

/// Lays out a menu, in time that grows with the number of items only. Those past the greatest
/// record number are not looked at.
[[nodiscard]] MenuLayout LayOutMenu(const MenuScene& scene);

struct ArrowScene {
  float WindowWidth = 0;
  float MenuHeight = 0;
  float TwipsX = 15;
  float TwipsY = 15;
  int CurMenu = 0;
  int Slides = 0;
};

/// One of the two arrow buttons.
struct ArrowButton {
  TwipRect Bounds;
  bool Enabled = false;
  std::string_view Glyph;

  friend bool operator==(const ArrowButton&, const ArrowButton&) = default;
};

/// The foot of a menu of several pages.
struct ArrowLayout {
  float RuleY = 0;       // Line1, the dark line of the rule
  float LightRuleY = 0;  // Line2
  ArrowButton Up;        // LblButton(0)
  ArrowButton Down;      // LblButton(1)
};

[[nodiscard]] ArrowLayout LayOutArrows(const ArrowScene& scene) noexcept;

/// Upper left corner of a glyph of that size in the middle of its button.
[[nodiscard]] TwipPoint GlyphPlace(const TwipRect& button, const TwipSize& glyph) noexcept;

}  // namespace corvelle
