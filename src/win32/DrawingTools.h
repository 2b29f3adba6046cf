#pragma once

#include "win32/FontCache.h"
#include "win32/MemoryDcPool.h"

namespace corvelle::win32 {

/// What all canvases of a window system draw with. They share it, since a picture may outlive the
/// window system.
struct DrawingTools {
  FontCache Fonts;
  MemoryDcPool Contexts;
};

}  // namespace corvelle::win32
