#pragma once

#include <vector>

#include "win32/UniqueHandle.h"

namespace corvelle::win32 {

/// Device contexts in memory, kept for the next use: making one takes longer than most of what is
/// drawn with it.
class MemoryDcPool {
 public:
  MemoryDcPool();

  /// A context with the bitmap selected; null when the system has none left. Goes back by Give.
  [[nodiscard]] HDC Take(HBITMAP bitmap) noexcept;
  void Give(HDC dc) noexcept;

 private:
  std::vector<UniqueMemoryDc> free_;
  HGDIOBJ noBitmap_ = nullptr;  // what a context holds at first
};

}  // namespace corvelle::win32
