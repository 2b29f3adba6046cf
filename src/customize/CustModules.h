#pragma once

#include <span>
#include <string_view>

namespace corvelle {

/// The built-in modules that an entry can be made into.
enum class CustModule {
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
  ClearDocuments
};

/// What the boxes get. Icon and command of the recent documents are empty: both are the folder's.
struct CustModuleTexts {
  CustModule Module;
  std::string_view Title;
  std::string_view Icon;
  std::string_view Command;
};

/// All of them, in the order of the menu.
[[nodiscard]] std::span<const CustModuleTexts> CustModuleTable() noexcept;

}  // namespace corvelle
