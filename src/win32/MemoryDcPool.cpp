#include "win32/MemoryDcPool.h"

#include <cstddef>
#include <utility>

namespace corvelle::win32 {

namespace {

/// A copy needs two at a time.
constexpr std::size_t kMostKept = 4;

}  // namespace

MemoryDcPool::MemoryDcPool() {
  free_.reserve(kMostKept);
  UniqueMemoryDc first(CreateCompatibleDC(nullptr));
  noBitmap_ = GetCurrentObject(first.Get(), OBJ_BITMAP);
  if (first) free_.push_back(std::move(first));
}

HDC MemoryDcPool::Take(HBITMAP bitmap) noexcept {
  UniqueMemoryDc dc;
  if (free_.empty()) {
    dc.Reset(CreateCompatibleDC(nullptr));
  } else {
    dc = std::move(free_.back());
    free_.pop_back();
  }
  if (!dc || SelectObject(dc.Get(), bitmap) == nullptr) return nullptr;
  return dc.Release();
}

void MemoryDcPool::Give(HDC dc) noexcept {
  UniqueMemoryDc back(dc);
  // The bitmap must be free for another context.
  SelectObject(dc, noBitmap_);
  if (free_.size() < kMostKept) free_.push_back(std::move(back));
}

}  // namespace corvelle::win32
