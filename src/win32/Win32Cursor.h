#pragma once

#include "platform/Canvas.h"
#include "win32/UniqueHandle.h"

namespace corvelle::win32 {

/// A pointer made of a picture, see-through where the picture has the mask colour of images.
/// `hotSpot` is the pixel of the picture that points. None when the system refuses it.
[[nodiscard]] UniqueCursor MakeCursor(const Canvas& picture, PixelPoint hotSpot);

}  // namespace corvelle::win32
