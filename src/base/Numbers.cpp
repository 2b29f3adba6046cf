#include "base/Numbers.h"

#include <cmath>
#include <limits>

namespace corvelle {

long long RoundHalfEven(double value) noexcept {
  if (std::isnan(value)) return 0;
  // 2^63 is exact as a double, the greatest long long is not.
  constexpr double kBound = 9223372036854775808.0;
  if (value >= kBound) return std::numeric_limits<long long>::max();
  if (value < -kBound) return std::numeric_limits<long long>::min();
  const double below = std::floor(value);
  const double rest = value - below;
  auto whole = static_cast<long long>(below);
  if (rest > 0.5 || (rest == 0.5 && whole % 2 != 0)) ++whole;
  return whole;
}

int RoundToInt(double value) noexcept {
  const long long whole = RoundHalfEven(value);
  if (whole > std::numeric_limits<int>::max()) return std::numeric_limits<int>::max();
  if (whole < std::numeric_limits<int>::min()) return std::numeric_limits<int>::min();
  return static_cast<int>(whole);
}

std::string FormatNumber(long long value, int minDigits) {
  std::string text = std::to_string(value);
  const std::size_t sign = value < 0 ? 1 : 0;
  const std::size_t wanted = (minDigits > 0 ? static_cast<std::size_t>(minDigits) : 0) + sign;
  if (text.size() < wanted) text.insert(sign, wanted - text.size(), '0');
  return text;
}

}  // namespace corvelle
