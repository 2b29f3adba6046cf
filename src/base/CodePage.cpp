#include "base/CodePage.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "base/Utf8.h"

namespace corvelle {

namespace {

/// The characters of the bytes 0x80 to 0x9F. All other bytes stand for the character of their
/// value.
constexpr char32_t kHighControls[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::optional<char> ByteOf(char32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) {
    return static_cast<char>(character);
  }
  const char32_t* found = std::find(std::begin(kHighControls), std::end(kHighControls), character);
  if (found == std::end(kHighControls)) return std::nullopt;
  return static_cast<char>(0x80 + (found - std::begin(kHighControls)));
}

}  // namespace

std::string Windows1252::Decode(std::string_view bytes) const {
  std::string text;
  text.reserve(bytes.size());
  for (const char c : bytes) {
    const unsigned byte = static_cast<unsigned char>(c);
    AppendUtf8(text, byte >= 0x80 && byte <= 0x9F ? kHighControls[byte - 0x80] : byte);
  }
  return text;
}

std::optional<std::string> Windows1252::Encode(std::string_view text) const {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const Utf8Step step = NextCharacter(text, at);
    const std::optional<char> byte = ByteOf(step.Character);
    if (!step.Valid || !byte) return std::nullopt;
    bytes.push_back(*byte);
    at += step.Length;
  }
  return bytes;
}

}  // namespace corvelle
