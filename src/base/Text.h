#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace corvelle {

/// The text without the blanks (0x20, nothing else) at both ends.
[[nodiscard]] std::string Trim(std::string_view text);
[[nodiscard]] std::string_view TrimView(std::string_view text) noexcept;

/// The text without any blank.
[[nodiscard]] std::string RemoveBlanks(std::string_view text);

/// The text before the first NUL, trimmed; without a NUL the text trimmed.
[[nodiscard]] std::string StripAtNull(std::string_view text);

/// Takes blanks and a double quote off both ends until neither end is a double quote.
[[nodiscard]] std::string StripQuotes(std::string_view text);

/// StripAtNull, and a "\" added when the last character is not one.
[[nodiscard]] std::string EnsureBackslash(std::string_view path);

/// StripAtNull, and one "\" taken off the end.
[[nodiscard]] std::string DropBackslash(std::string_view path);

/// Every "&" doubled, so that a caption shows the character.
[[nodiscard]] std::string DoubleAmpersands(std::string_view caption);

/// Every "&&" made one "&".
[[nodiscard]] std::string SingleAmpersands(std::string_view caption);

/// Below, at or above 0 as `a` sorts before, with or after `b`, ignoring case. Bytes that are part
/// of no character sort by their value, after all characters.
[[nodiscard]] int CompareNoCase(std::string_view a, std::string_view b) noexcept;

[[nodiscard]] bool EqualNoCase(std::string_view a, std::string_view b) noexcept;
[[nodiscard]] bool StartsWithNoCase(std::string_view text, std::string_view start) noexcept;
[[nodiscard]] bool EndsWithNoCase(std::string_view text, std::string_view end) noexcept;

/// The byte at which `what` is first found in `text`, at or after byte `from`; npos when it does
/// not.
[[nodiscard]] std::size_t FindNoCase(std::string_view text, std::string_view what,
                                     std::size_t from = 0) noexcept;
[[nodiscard]] bool ContainsNoCase(std::string_view text, std::string_view what) noexcept;

/// One-to-one capitals and small letters of Latin, Greek, Cyrillic and Armenian; all else stays.
[[nodiscard]] std::string UpperCase(std::string_view text);
[[nodiscard]] std::string LowerCase(std::string_view text);
[[nodiscard]] char32_t UpperCharacter(char32_t character) noexcept;
[[nodiscard]] char32_t LowerCharacter(char32_t character) noexcept;

/// The whole number in the text, which may have blanks around it; nothing without one or when an
/// int cannot hold it.
[[nodiscard]] std::optional<int> ParseNumber(std::string_view text) noexcept;

/// The lines of a text file: each ends at CR LF, CR or LF, and the last may have no end.
[[nodiscard]] std::vector<std::string> SplitLines(std::string_view text);

}  // namespace corvelle
