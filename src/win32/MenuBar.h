#pragma once

#include <vector>

#include "forms/PopupMenu.h"
#include "win32/UniqueHandle.h"

namespace corvelle::win32 {

/// A menu bar whose lines bear their numbers plus 1. None when the system refuses.
[[nodiscard]] UniqueMenu MakeMenuBar(const std::vector<forms::PopupItem>& items);

}  // namespace corvelle::win32
