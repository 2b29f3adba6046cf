#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace corvelle {

/// One step through UTF-8 text.
struct Utf8Step {
  char32_t Character = 0;  // U+FFFD when the bytes are no character
  std::size_t Length = 0;  // bytes taken; 1 when they are no character, 0 at the end
  bool Valid = false;
};

/// True for a byte that is a character by itself: one of ASCII.
[[nodiscard]] constexpr bool IsPlainByte(char byte) noexcept {
  return static_cast<unsigned char>(byte) < 0x80;
}

/// True for text of such bytes only, as most names and paths are.
[[nodiscard]] bool IsPlain(std::string_view text) noexcept;

/// The character at byte `at`, when that is no plain byte.
[[nodiscard]] Utf8Step NextLongCharacter(std::string_view text, std::size_t at) noexcept;

/// The character at byte `at`.
[[nodiscard]] inline Utf8Step NextCharacter(std::string_view text, std::size_t at) noexcept {
  if (at < text.size() && IsPlainByte(text[at])) {
    return {static_cast<unsigned char>(text[at]), 1, true};
  }
  return NextLongCharacter(text, at);
}

/// True for well-formed UTF-8: shortest forms only, no surrogates, nothing above U+10FFFF.
[[nodiscard]] bool IsValidUtf8(std::string_view text) noexcept;

/// Appends a character; no character (a surrogate, a value above U+10FFFF) as U+FFFD.
void AppendUtf8(std::string& text, char32_t character);

/// UTF-16 of the text; each byte that is part of no character becomes U+FFFD.
[[nodiscard]] std::u16string ToWide(std::string_view text);

/// UTF-8 of UTF-16 text; a surrogate without its partner becomes U+FFFD.
[[nodiscard]] std::string FromWide(std::u16string_view text);

/// The text with every byte that is part of no character replaced by U+FFFD.
[[nodiscard]] std::string RepairUtf8(std::string_view text);

/// At most `bytes` bytes of the text, never a part of a character.
[[nodiscard]] std::string CutUtf8(std::string_view text, std::size_t bytes);

/// The text without its first `count` characters; a byte that is part of none counts as one.
[[nodiscard]] std::string_view SkipCharacters(std::string_view text, std::size_t count) noexcept;

}  // namespace corvelle
