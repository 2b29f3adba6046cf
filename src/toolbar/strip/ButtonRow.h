#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/MenuRecord.h"
#include "core/RecordEdits.h"
#include "forms/ControlArray.h"
#include "forms/Graphic.h"
#include "forms/PictureBox.h"
#include "toolbar/layout/StripFiles.h"
#include "toolbar/layout/StripIcons.h"
#include "toolbar/layout/StripLook.h"
#include "toolbar/layout/StripPointer.h"
#include "toolbar/layout/StripWindow.h"

namespace corvelle {

class OptionFlags;
class SystemInfo;
struct GuardFlags;
struct MenuState;
struct StripPlacement;
struct WindowPorts;

/// The strip's controls that the row of menu buttons has to itself.
struct ButtonControls {
  forms::PictureBox& picToolbar;
  /// Element 0 is the grip between the boxes, the others are separators between buttons.
  forms::ControlArray<forms::Label>& lblSep;
  /// The two lines at the sides of each button; element 0 is the template.
  forms::ControlArray<forms::Line>& LinTB1;
  forms::ControlArray<forms::Line>& LinTB2;
};

/// What the row of menu buttons works with. All of it outlives it.
struct ButtonRowParts {
  StripFiles Files;
  const IconSources& Icons;
  const OptionFlags& Options;
  const StripPlacement& Strip;
  const SystemInfo& System;
  const WindowPorts& Ports;
  const GuardFlags& Guards;
  MenuState& Menu;
  EntryEdit& Entry;
};

/// The row of menu buttons: from the menu files to controls, looks and icons. Measures are twips of
/// the box of buttons.
class ButtonRow {
 public:
  ButtonRow(const ButtonRowParts& with, StripWindow& strip, const ButtonControls& controls);
  ButtonRow(const ButtonRow&) = delete;
  ButtonRow& operator=(const ButtonRow&) = delete;

  /// Gives the template its size, from which every other one comes.
  void MakeTemplates();
  /// Reads the menu files in their order and makes every button again.
  void DoToolbarButtons();
  /// The same in a box that keeps its size.
  void Refresh();
  /// Unloads all buttons and what was kept of their menus.
  void Unload();
  /// Drops the menus of all buttons from the cache of built menus. They are kept by the number of
  /// their button, and a rebuild may give a number to another file.
  void ForgetMenus();

  /// Index of the button at a point of the screen, 0 for none. Between two buttons an open menu
  /// keeps `current`.
  [[nodiscard]] int At(PixelPoint pointer, int current, bool menuOpen) const;
  /// The middle of a button on the screen.
  [[nodiscard]] PixelPoint Middle(int button) const;
  [[nodiscard]] bool Has(int button) const noexcept { return button > 0 && button <= ButtonCount; }
  /// True for a button with a menu of the user's.
  [[nodiscard]] bool IsItemButton(int button) const noexcept { return button > 1 && Has(button); }
  /// Index of the item button with that menu file, 0 for none.
  [[nodiscard]] int ItemButtonOf(std::string_view path) const;
  /// Path of a button's menu file.
  [[nodiscard]] const std::string& PathOf(int button) const {
    return ToolbarButtons[static_cast<std::size_t>(button)].Path;
  }
  /// The file that a button's menu is built from.
  [[nodiscard]] std::string MenuFileOf(int button) const;
  /// The title of a button in the form that a hint takes; empty for none.
  [[nodiscard]] std::string HintOf(int button) const;
  /// The button's own record as a current entry. A file that cannot be read now leaves the texts
  /// empty.
  [[nodiscard]] EntryEdit EntryOf(int button) const;

  /// Shows a button pressed and all others at rest; nothing for a button that is not there.
  void ShowPressed(int button);
  void ShowResting();
  /// True if the button is there and does not look pressed.
  [[nodiscard]] bool LooksAtRest(int button) const;

  /// Entry 0 is the template, 1 the program's own menu.
  std::vector<ButtonRect> ToolbarButtons;
  int ButtonCount = 0;
  int SepCount = 0;
  /// Pixels by which the window's top is pulled above the screen, 4 or 7.
  int TopCut = 4;

 private:
  /// Makes the buttons of the menu files, without their icons, and gives the size of their box.
  TwipSize Make();
  void AddButton(const ButtonRect& button);
  /// Notes which file is where, and ends the undo of a menu's entry if one of them was elsewhere.
  void NotePlaces();
  void AddSeparator(const TwipRect& place);
  /// Draws all icons and freezes the picture of the buttons.
  void DrawIcons();
  void DrawButtonIcon(const std::string& iconText, const ButtonRect& button);
  void ShowLook(int button, const ButtonLook& look);
  [[nodiscard]] StripPlace PlaceOnScreen() const;

  ButtonRowParts with_;
  StripWindow& strip_;
  ButtonControls controls_;
  StripIcons icons_;
  std::vector<MenuRecord> records_;  // of the buttons, by their index
  std::vector<std::string> places_;  // the files of the buttons of the last strip that was made
};

}  // namespace corvelle
