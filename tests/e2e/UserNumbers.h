#pragma once

#include <windows.h>

#include <algorithm>

namespace corvelle::e2e {

/// The highest number that a new icon gets in the table of icons and windows, which all processes
/// share. It rises with each one that is not given back, also where the system does not count
/// objects.
[[nodiscard]] inline int HighestUserNumber() {
  constexpr int kProbes = 200;
  HICON probes[kProbes];
  const BYTE mask[2 * 8]{};
  int highest = 0;
  for (HICON& probe : probes) {
    probe = CreateIcon(GetModuleHandleW(nullptr), 8, 8, 1, 1, mask, mask);
    highest = std::max(highest, static_cast<int>(LOWORD(reinterpret_cast<ULONG_PTR>(probe))));
  }
  for (HICON probe : probes) DestroyIcon(probe);
  return highest;
}

}  // namespace corvelle::e2e
