#include "base/Utf8.h"

#include <cstdint>
#include <cstring>

namespace corvelle {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

unsigned ByteAt(std::string_view text, std::size_t at) noexcept {
  return static_cast<unsigned char>(text[at]);
}

struct LeadByte {
  std::size_t Length;
  char32_t Bits;
  char32_t Least;  // the smallest character that needs this length
};

LeadByte Lead(unsigned byte) noexcept {
  if (byte < 0x80) return {1, byte, 0};
  if (byte >= 0xC2 && byte < 0xE0) return {2, byte & 0x1FU, 0x80};
  if (byte >= 0xE0 && byte < 0xF0) return {3, byte & 0x0FU, 0x800};
  if (byte >= 0xF0 && byte < 0xF5) return {4, byte & 0x07U, 0x10000};
  return {0, 0, 0};
}

constexpr bool IsSurrogate(char32_t character) noexcept {
  return character >= 0xD800 && character <= 0xDFFF;
}

/// How many plain bytes there are from byte `at`, most of them looked at eight at a time.
std::size_t PlainBytes(std::string_view text, std::size_t at) noexcept {
  const std::size_t from = at;
  for (std::uint64_t word = 0; text.size() - at >= sizeof word; at += sizeof word) {
    std::memcpy(&word, text.data() + at, sizeof word);
    if ((word & 0x8080808080808080U) != 0) break;
  }
  while (at < text.size() && IsPlainByte(text[at])) ++at;
  return at - from;
}

}  // namespace

Utf8Step NextLongCharacter(std::string_view text, std::size_t at) noexcept {
  if (at >= text.size()) return {};
  constexpr Utf8Step kInvalid{kReplacement, 1, false};
  const LeadByte lead = Lead(ByteAt(text, at));
  if (lead.Length == 0 || lead.Length > text.size() - at) return kInvalid;
  char32_t character = lead.Bits;
  for (std::size_t i = 1; i < lead.Length; ++i) {
    const unsigned byte = ByteAt(text, at + i);
    if ((byte & 0xC0U) != 0x80U) return kInvalid;
    character = (character << 6U) | (byte & 0x3FU);
  }
  if (character < lead.Least || IsSurrogate(character) || character > 0x10FFFF) return kInvalid;
  return {character, lead.Length, true};
}

bool IsPlain(std::string_view text) noexcept { return PlainBytes(text, 0) == text.size(); }

bool IsValidUtf8(std::string_view text) noexcept {
  for (std::size_t at = PlainBytes(text, 0); at < text.size(); at += PlainBytes(text, at)) {
    const Utf8Step step = NextCharacter(text, at);
    if (!step.Valid) return false;
    at += step.Length;
  }
  return true;
}

void AppendUtf8(std::string& text, char32_t character) {
  if (IsSurrogate(character) || character > 0x10FFFF) character = kReplacement;
  const auto put = [&text](char32_t byte) { text.push_back(static_cast<char>(byte)); };
  if (character < 0x80) {
    put(character);
  } else if (character < 0x800) {
    put(0xC0U | (character >> 6U));
    put(0x80U | (character & 0x3FU));
  } else if (character < 0x10000) {
    put(0xE0U | (character >> 12U));
    put(0x80U | ((character >> 6U) & 0x3FU));
    put(0x80U | (character & 0x3FU));
  } else {
    put(0xF0U | (character >> 18U));
    put(0x80U | ((character >> 12U) & 0x3FU));
    put(0x80U | ((character >> 6U) & 0x3FU));
    put(0x80U | (character & 0x3FU));
  }
}

std::u16string ToWide(std::string_view text) {
  std::u16string wide;
  wide.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const Utf8Step step = NextCharacter(text, at);
    at += step.Length;
    if (step.Character < 0x10000) {
      wide.push_back(static_cast<char16_t>(step.Character));
    } else {
      const char32_t above = step.Character - 0x10000;
      wide.push_back(static_cast<char16_t>(0xD800 + (above >> 10U)));
      wide.push_back(static_cast<char16_t>(0xDC00 + (above & 0x3FFU)));
    }
  }
  return wide;
}

std::string FromWide(std::u16string_view text) {
  std::string narrow;
  narrow.reserve(text.size());
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char32_t unit = text[at];
    if (unit < 0x80) {
      narrow.push_back(static_cast<char>(unit));
      continue;
    }
    const bool high = unit >= 0xD800 && unit <= 0xDBFF;
    if (high && at + 1 < text.size() && text[at + 1] >= 0xDC00 && text[at + 1] <= 0xDFFF) {
      ++at;
      AppendUtf8(narrow, 0x10000 + ((unit - 0xD800) << 10U) + (text[at] - 0xDC00U));
    } else {
      AppendUtf8(narrow, unit);
    }
  }
  return narrow;
}

std::string RepairUtf8(std::string_view text) {
  std::string repaired;
  repaired.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const Utf8Step step = NextCharacter(text, at);
    AppendUtf8(repaired, step.Character);
    at += step.Length;
  }
  return repaired;
}

std::string CutUtf8(std::string_view text, std::size_t bytes) {
  if (text.size() <= bytes) return std::string(text);
  std::size_t end = 0;
  while (end < bytes) {
    const Utf8Step step = NextCharacter(text, end);
    if (end + step.Length > bytes) break;
    end += step.Length;
  }
  return std::string(text.substr(0, end));
}

std::string_view SkipCharacters(std::string_view text, std::size_t count) noexcept {
  std::size_t at = 0;
  while (count-- > 0 && at < text.size()) at += NextCharacter(text, at).Length;
  return text.substr(at);
}

}  // namespace corvelle
