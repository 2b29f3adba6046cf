#include "sim/SimTrayIcons.h"

#include <algorithm>

namespace corvelle::sim {

bool SimTrayIcons::Has(WindowId window, std::uint32_t id) const {
  return std::any_of(Shown.begin(), Shown.end(),
                     [&](const TrayIcon& icon) { return icon.Window == window && icon.Id == id; });
}

bool SimTrayIcons::Add(const TrayIcon& icon) {
  if (NoTaskbar || icon.Window == kNoWindow || Has(icon.Window, icon.Id)) return false;
  Shown.push_back(icon);
  return true;
}

void SimTrayIcons::Remove(WindowId window, std::uint32_t id) {
  std::erase_if(Shown,
                [&](const TrayIcon& icon) { return icon.Window == window && icon.Id == id; });
}

}  // namespace corvelle::sim
