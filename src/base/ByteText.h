#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace corvelle {

// Numbers and texts in files of the program's own formats: a number in so many bytes with the low
// one first, a text as its length in 8 bytes and its bytes.

inline void PutNumber(std::string& out, std::uint64_t number, int bytes) {
  for (int i = 0; i < bytes; ++i) out += static_cast<char>((number >> (8 * i)) & 0xFFU);
}

inline void PutText(std::string& out, std::string_view text) {
  PutNumber(out, text.size(), 8);
  out += text;
}

/// Takes such values from the front of bytes; past their end it gives zeros and is no longer good.
class ByteReader {
 public:
  explicit ByteReader(std::string_view bytes) : rest_(bytes) {}

  std::uint64_t Number(int bytes) {
    const std::string_view taken = Take(static_cast<std::uint64_t>(bytes));
    std::uint64_t number = 0;
    for (std::size_t i = taken.size(); i > 0; --i) {
      number = (number << 8U) | static_cast<unsigned char>(taken[i - 1]);
    }
    return number;
  }
  std::string Text() { return std::string(Take(Number(8))); }
  [[nodiscard]] bool Good() const noexcept { return good_; }
  /// Bytes that were not taken yet.
  [[nodiscard]] std::size_t Left() const noexcept { return rest_.size(); }
  [[nodiscard]] bool AtEnd() const noexcept { return rest_.empty(); }

 private:
  std::string_view Take(std::uint64_t count) {
    good_ = good_ && count <= rest_.size();
    if (!good_) return {};
    const std::string_view taken = rest_.substr(0, static_cast<std::size_t>(count));
    rest_.remove_prefix(taken.size());
    return taken;
  }

  std::string_view rest_;
  bool good_ = true;
};

}  // namespace corvelle
