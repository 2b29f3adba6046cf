#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace corvelle::fuzz {

/// The bytes of an input, taken apart from the front. Past the end there are zeros.
class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) {
    bytes_.reserve(size);
    for (std::size_t i = 0; i < size; ++i) bytes_.push_back(static_cast<char>(data[i]));
  }

  /// A number from 0 to 255.
  int Byte() {
    if (at_ >= bytes_.size()) return 0;
    return static_cast<unsigned char>(bytes_[at_++]);
  }

  /// Up to `count` bytes.
  std::string Take(std::size_t count) {
    std::string part = bytes_.substr(std::min(at_, bytes_.size()), count);
    at_ += part.size();
    return part;
  }

  /// All that is left.
  std::string Rest() { return Take(bytes_.size()); }

  [[nodiscard]] bool AtEnd() const { return at_ >= bytes_.size(); }

 private:
  std::string bytes_;
  std::size_t at_ = 0;
};

}  // namespace corvelle::fuzz
