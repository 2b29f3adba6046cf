#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Lookups.h"

namespace corvelle::forms {

// How questions about icons and names go to another process and their answers come back. A message
// is its length (4 bytes, the lowest first) and so many bytes: a version, the question's id, and
// the fields one after the other. Both ends take the other for a file from outside: what is longer
// than it may be, ends early or goes on too long is no message.

inline constexpr std::size_t kMostWireBytes = 512U * 1024U;
/// Width and height of a picture, in pixels.
inline constexpr int kMostWireSide = 256;
/// Bytes of a path or a name.
inline constexpr std::size_t kMostWireText = 96U * 1024U;

/// True for a question that may be asked in another process.
[[nodiscard]] bool GoesOverWire(LookupKind kind) noexcept;

/// A question under its id, without lane and generation.
struct WireQuestion {
  LookupId Id = 0;
  Lookup Question;
};

/// The bytes of a message with its length; empty for a question or an answer that cannot go.
[[nodiscard]] std::string FormatWireQuestion(const WireQuestion& question);
[[nodiscard]] std::string FormatWireAnswer(const LookupAnswer& answer);

/// The content of a message, without its length; nothing for bytes that are none.
[[nodiscard]] std::optional<WireQuestion> ParseWireQuestion(std::string_view bytes);
[[nodiscard]] std::optional<LookupAnswer> ParseWireAnswer(std::string_view bytes);

/// Takes messages out of the bytes that come in, in pieces of any length.
class WireReader {
 public:
  void Append(std::string_view bytes);
  /// The content of the next message that is there as a whole.
  [[nodiscard]] std::optional<std::string> Next();
  /// True once the other side has announced a message that is too long; nothing more is taken.
  [[nodiscard]] bool IsBroken() const noexcept { return broken_; }

 private:
  std::string waiting_;
  bool broken_ = false;
};

}  // namespace corvelle::forms
