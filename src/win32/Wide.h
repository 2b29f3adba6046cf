#pragma once

#include <string>
#include <string_view>

namespace corvelle::win32 {

/// UTF-16 as Windows takes it, of UTF-8; what is no character becomes U+FFFD.
[[nodiscard]] std::wstring Wide(std::string_view text);

/// UTF-8 of UTF-16; a surrogate without its partner becomes U+FFFD.
[[nodiscard]] std::string Narrow(std::wstring_view text);

}  // namespace corvelle::win32
