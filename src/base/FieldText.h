#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace corvelle {

class CodePage;

/// Stored bytes as text: valid UTF-8 unchanged, anything else by the code page.
[[nodiscard]] std::string DecodeText(std::string_view bytes, const CodePage& ansi);

/// The bytes that store a text: in the code page where that reads back as the same text, else in
/// UTF-8.
[[nodiscard]] std::string EncodeText(std::string_view text, const CodePage& ansi);

/// A fixed-width field as text, without the blanks at both ends. A NUL stays.
[[nodiscard]] std::string DecodeField(std::string_view bytes, const CodePage& ansi);

/// A text as exactly `width` bytes: padded with blanks on the right, or cut, though never inside a
/// character. What is kept of it reads back as it was.
[[nodiscard]] std::string EncodeField(std::string_view text, std::size_t width,
                                      const CodePage& ansi);

}  // namespace corvelle
