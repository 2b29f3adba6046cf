#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace corvelle {

/// A number of 64 bits that tells bytes from others, for what was not made to look alike. Texts are
/// added one after the other, each with its length, so that moving the border between two of them
/// makes another number. The same on every machine with the low byte first.
class Digest {
 public:
  void Add(std::string_view bytes) noexcept {
    Mix(bytes.size());
    for (; bytes.size() >= sizeof(std::uint64_t); bytes.remove_prefix(sizeof(std::uint64_t))) {
      std::uint64_t word = 0;
      std::memcpy(&word, bytes.data(), sizeof word);
      Mix(word);
    }
    if (bytes.empty()) return;
    std::uint64_t word = 0;
    std::memcpy(&word, bytes.data(), bytes.size());
    Mix(word);
  }

  void Add(std::uint64_t number) noexcept { Mix(number); }

  [[nodiscard]] std::uint64_t Value() const noexcept { return state_; }

 private:
  void Mix(std::uint64_t word) noexcept {
    state_ = (state_ ^ word) * 0x9E3779B97F4A7C15ULL;
    state_ ^= state_ >> 29U;
  }

  std::uint64_t state_ = 0xCBF29CE484222325ULL;
};

}  // namespace corvelle
