#pragma once

#include <string>
#include <string_view>

#include "forms/DragDrop.h"

namespace corvelle {

class BrowserPort;

/// The title of a dropped web address: the one that came with the drop, else what the browser's
/// window or its bookmarks tell; trimmed, empty when nothing does. No other program is waited
/// for. A null `browser` tells nothing.
[[nodiscard]] std::string TitleOfDrop(BrowserPort* browser, const forms::DragData& data,
                                      std::string_view address);

}  // namespace corvelle
