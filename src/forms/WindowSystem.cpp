#include "forms/WindowSystem.h"

namespace corvelle::forms {

Rgb Resolve(const WindowSystem& windows, OleColor colour) {
  const bool system = (colour & 0x80000000U) != 0;
  return system ? windows.SystemColor(static_cast<int>(colour & 0xFFU)) : colour & 0x00FFFFFFU;
}

}  // namespace corvelle::forms
