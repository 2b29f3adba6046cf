#include "base/FieldText.h"

#include <optional>

#include "base/CodePage.h"
#include "base/Text.h"
#include "base/Utf8.h"

namespace corvelle {

namespace {

/// The first characters of `text` in the code page, `width` bytes at most; nothing when the code
/// page cannot hold them or when they would be read as something else.
std::optional<std::string> AnsiField(std::string_view text, std::size_t width,
                                     const CodePage& ansi) {
  // A character takes a byte at least, so no more than `width` of them can fit.
  std::string_view kept = text.substr(0, text.size() - SkipCharacters(text, width).size());
  for (;;) {
    std::optional<std::string> bytes = ansi.Encode(kept);
    if (!bytes) return std::nullopt;
    if (bytes->size() <= width) {
      if (DecodeText(*bytes, ansi) != kept) return std::nullopt;
      return bytes;
    }
    const std::string shorter = CutUtf8(kept, kept.size() - 1);
    kept = kept.substr(0, shorter.size());
  }
}

}  // namespace

std::string DecodeText(std::string_view bytes, const CodePage& ansi) {
  return IsValidUtf8(bytes) ? std::string(bytes) : ansi.Decode(bytes);
}

std::string EncodeText(std::string_view text, const CodePage& ansi) {
  // All code pages of the system hold plain text as it is.
  if (IsPlain(text)) return std::string(text);
  std::string valid = RepairUtf8(text);
  std::optional<std::string> bytes = ansi.Encode(valid);
  if (bytes && DecodeText(*bytes, ansi) == valid) return *std::move(bytes);
  return valid;
}

std::string DecodeField(std::string_view bytes, const CodePage& ansi) {
  return DecodeText(Trim(bytes), ansi);
}

std::string EncodeField(std::string_view text, std::size_t width, const CodePage& ansi) {
  std::string field;
  if (IsPlain(text)) {
    field = text.substr(0, width);
  } else {
    const std::string valid = RepairUtf8(text);
    std::optional<std::string> bytes = AnsiField(valid, width, ansi);
    field = bytes ? *std::move(bytes) : CutUtf8(valid, width);
  }
  field.resize(width, ' ');
  return field;
}

}  // namespace corvelle
