#pragma once

#include <string>
#include <string_view>

#include "forms/DragDrop.h"

namespace corvelle {

class Program;

/// The title of a dropped web address: the one that came with the drop, else what the browser's
/// window or its bookmarks tell; trimmed, empty when nothing does. No other program is waited for.
[[nodiscard]] std::string TitleOfDrop(Program& program, const forms::DragData& data,
                                      std::string_view address);

}  // namespace corvelle
