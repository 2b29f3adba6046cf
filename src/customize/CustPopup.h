#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

namespace corvelle {

class CustEditor;

/// The lines of the tree's context menu that can be on and off, the modules first.
enum class PopupLine {
  DesktopItems,
  ControlPanel,
  Printers,
  Documents,
  NetSearch,
  FileFind,
  FindComputer,
  RunDialog,
  MinimizeAllWindows,
  UndoMinimizeAll,
  ClearTempFiles,
  ClearDocuments,
  AddButton,
  InsertButton,
  HideButton,
  AddMenuItem,
  InsertMenuItem,
  Separator,
  Cut,
  Copy,
  Paste,
  Remove,
  Undo,
  Sort,
  Rename,
  Count
};
inline constexpr std::size_t kPopupLineCount = static_cast<std::size_t>(PopupLine::Count);

/// Which lines can be chosen. It belongs to the window: a line that nothing is said of for a
/// selection stays as the selection before left it.
struct CustPopupState {
  std::array<bool, kPopupLineCount> Enabled;
  bool HideChecked = false;

  /// All lines are on at first.
  CustPopupState() { Enabled.fill(true); }

  [[nodiscard]] bool Is(PopupLine line) const { return Enabled[static_cast<std::size_t>(line)]; }
  void Set(PopupLine line, bool enabled) { Enabled[static_cast<std::size_t>(line)] = enabled; }

  friend bool operator==(const CustPopupState&, const CustPopupState&) = default;
};

/// What the selection of the editor says of the lines.
void UpdatePopupMenu(const CustEditor& editor, CustPopupState& state);

/// A line of the menu as it is shown: one with items opens a menu of its own, "-" is a separator.
struct CustPopupLine {
  PopupLine Line = PopupLine::Count;  // Count for a separator
  std::string_view Caption;
};

/// The menu below "Insert Built-in Module", and the lines after it.
[[nodiscard]] std::span<const CustPopupLine> ModuleLines() noexcept;
[[nodiscard]] std::span<const CustPopupLine> EditLines() noexcept;

}  // namespace corvelle
