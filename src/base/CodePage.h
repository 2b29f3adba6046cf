#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace corvelle {

/// The system's conversion between its one ANSI code page and text.
class CodePage {
 public:
  virtual ~CodePage() = default;

  /// The bytes as UTF-8. Every byte string has a meaning; what the code page leaves undefined is
  /// read as the system reads it.
  [[nodiscard]] virtual std::string Decode(std::string_view bytes) const = 0;

  /// The text (valid UTF-8) in the code page; nothing when one of its characters is not in it. No
  /// character is replaced by a similar one.
  [[nodiscard]] virtual std::optional<std::string> Encode(std::string_view text) const = 0;
};

/// Western European Windows. The five bytes without a letter stand for U+0081, U+008D, U+008F,
/// U+0090 and U+009D, as they do on Windows.
class Windows1252 final : public CodePage {
 public:
  [[nodiscard]] std::string Decode(std::string_view bytes) const override;
  [[nodiscard]] std::optional<std::string> Encode(std::string_view text) const override;
};

}  // namespace corvelle
