#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "core/OptionFlags.h"

namespace corvelle {

/// The lines of the Options menu.
enum class CustOption {
  KeepOnTop,
  StartupScreen,
  LeaveExtension,
  SingleClick,
  DoubleClick,
  SmallSingles,
  CustomWebIcon,
  DefaultWebIcon,
  WebLinkDialog,
  AlternateBrowser,
  DefaultBrowser,
  AdjustLeft,
  AdjustRight,
  LargeIcons,
  ShowDate,
  DisableHints,
  SystemPopup,
  OwnPopup,
  SetStartup,
  RemoveStartup,
  ResetTips,
  Gap  // a separator line
};

/// One line: its caption, the option that it shows, if any, and the value at which it is checked.
struct CustOptionLine {
  CustOption Line;
  std::string_view Caption;
  std::optional<Option> Shows;
  bool CheckedAt = true;
};

/// All lines in their order.
[[nodiscard]] std::span<const CustOptionLine> CustOptionLines() noexcept;

/// True if the line bears a check mark. `ownBrowser`: the user has chosen a browser.
[[nodiscard]] bool IsChecked(const CustOptionLine& line, const OptionFlags& flags, bool ownBrowser);

}  // namespace corvelle
