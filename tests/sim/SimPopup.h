#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/Geometry.h"
#include "forms/PopupMenu.h"
#include "platform/WindowId.h"

namespace corvelle::sim {

/// A popup menu that was shown.
struct Popup {
  WindowId Owner = kNoWindow;
  std::vector<forms::PopupItem> Items;
  PixelPoint At;
  unsigned Flags = 0;
  int Chosen = forms::popup::kNothing;

  /// The line with this caption, or with the captions on the way to it with ">" between them
  /// ("Insert>Printers"), among those that are visible; null when there is none.
  [[nodiscard]] const forms::PopupItem* Find(std::string_view caption) const;
  /// Its number, as ShowPopup gives it; popup::kNothing when there is none.
  [[nodiscard]] int NumberOf(std::string_view caption) const;
  /// True if the line is there and can be chosen.
  [[nodiscard]] bool Offers(std::string_view caption) const;
  /// The captions of the visible lines, separators too, from top to bottom.
  [[nodiscard]] std::vector<std::string> Captions() const;
};

}  // namespace corvelle::sim
