#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/MenuRecord.h"
#include "scenario/Desk.h"

namespace corvelle::scenario {

// The strip and its menus from outside: what to put into files, and where to point.

/// The bytes of a menu file: the button's record, then the items.
[[nodiscard]] std::string MenuBytes(std::string_view title, const std::vector<MenuRecord>& items);
/// An entry that starts the witness with an argument, which is its title too.
[[nodiscard]] MenuRecord Witness(const Desk& desk, const std::string& argument);
/// Writes "Menus\\BMENU###.MNU".
void WriteMenu(Desk& desk, int number, std::string_view title,
               const std::vector<MenuRecord>& items);

/// The flags of a program that has been set up before and floats at the top of the screen, with the
/// given positions turned over.
[[nodiscard]] std::string InstalledFlags(const std::vector<int>& turned = {});
inline constexpr std::string_view kFlagsFile = "tmenu425.dat";
inline constexpr std::string_view kPositionFile = "toolbarp.dat";

/// A position file's four bytes for a distance from the left in twips, and back (-1 for no such
/// file).
[[nodiscard]] std::string PositionBytes(float twips);
[[nodiscard]] float PositionTwips(const std::optional<std::string>& bytes);

/// Starts the program and waits until the strip stands; false when it does not come.
[[nodiscard]] bool StartAndWait(Desk& desk);
/// Ends the program as its own menu would, and waits for the end.
[[nodiscard]] bool CloseAndWait(Desk& desk);

/// How many buttons the strip has, by its width.
[[nodiscard]] int ButtonCount(const Desk& desk);
/// The middle of a menu button, 1 being the program's own; screen pixels.
[[nodiscard]] PixelPoint ButtonMiddle(const Desk& desk, int button);
/// The middle of item `item` (from 1) of the open menu, which has `count` items on a single page
/// and no separator; screen pixels.
[[nodiscard]] PixelPoint ItemMiddle(const Desk& desk, int item, int count);

/// Presses a button and waits until its menu stands beside the strip and no longer changes its
/// place.
[[nodiscard]] bool OpenMenu(Desk& desk, int button);
/// Waits until the menu is open at that button's place; and until no menu is open.
[[nodiscard]] bool WaitForMenuAt(Desk& desk, int button);
[[nodiscard]] bool WaitForNoMenu(Desk& desk);
/// Points at an item, and clicks when the menu has had time to select it, as a hand does.
void ClickItem(Desk& desk, PixelPoint at, Button button = Button::Left);

/// The middle of the grip between the buttons and the single buttons; screen pixels.
[[nodiscard]] PixelPoint GripMiddle(const Desk& desk);
/// Takes the strip by its grip and moves it there, as a hand does, without letting go.
void PullTo(Desk& desk, PixelPoint to);

/// The items of the program's own menu, by their number.
enum class MainChoice {
  Customize = 1,
  RefreshAll,
  LargeIcons,
  AutoHide,
  NotOnTop,
  HelpTopics,
  About,
  Restore,
  Maximize,
  Minimize,
  Exit
};
/// Opens that menu and clicks an item; false when the menu does not come up.
[[nodiscard]] bool ChooseInMainMenu(Desk& desk, MainChoice choice);

/// A position of the flags as they are on the disk; '?' when there are none.
[[nodiscard]] char FlagAt(const Desk& desk, int position);

/// A point far away from the strip and its menus.
[[nodiscard]] PixelPoint FarAway(const Desk& desk);

}  // namespace corvelle::scenario
