#include "sim/SimTrayIcons.h"

namespace corvelle::sim {

bool SimTrayIcons::Add(const TrayIcon& icon) {
  Shown.push_back(icon);
  return true;
}

void SimTrayIcons::Remove(WindowId window, std::uint32_t id) {
  std::erase_if(Shown,
                [&](const TrayIcon& icon) { return icon.Window == window && icon.Id == id; });
}

}  // namespace corvelle::sim
