#pragma once

#include <cstddef>
#include <string_view>

namespace corvelle {

// A web address begins with "http://" or "https://".

/// True if the text begins like a web address, ignoring case.
[[nodiscard]] bool IsWebAddress(std::string_view text) noexcept;

/// The same for an address in the form that programs hand on: in lower case.
[[nodiscard]] bool IsPlainWebAddress(std::string_view text) noexcept;

/// The byte at which the first web address in the text begins, ignoring case; npos without one.
[[nodiscard]] std::size_t FindWebAddress(std::string_view text) noexcept;

}  // namespace corvelle
