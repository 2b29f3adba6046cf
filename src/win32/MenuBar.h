#pragma once

#include <vector>

#include "forms/PopupMenu.h"
#include "win32/UniqueHandle.h"

namespace corvelle::win32 {

/// Gives a menu bar that was made of `before` the captions, check marks and gray lines of `now`.
/// False, with nothing changed, when the two have not the same lines.
[[nodiscard]] bool UpdateMenuBar(HMENU bar, const std::vector<forms::PopupItem>& before,
                                 const std::vector<forms::PopupItem>& now);

/// A menu bar whose lines bear their numbers plus 1. None when the system refuses.
[[nodiscard]] UniqueMenu MakeMenuBar(const std::vector<forms::PopupItem>& items);

}  // namespace corvelle::win32
