#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace corvelle {

/// Breaks a text into lines no wider than `width`, between words and at its own line ends; a word
/// that is wider by itself has a line of its own. `measure` gives the width of a text, in the same
/// units.
[[nodiscard]] std::vector<std::string> WrapText(
    std::string_view text, float width, const std::function<float(std::string_view)>& measure);

}  // namespace corvelle
