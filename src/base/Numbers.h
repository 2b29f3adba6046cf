#pragma once

#include <string>

namespace corvelle {

/// Rounds to the nearest whole number, halves to the even one. No number gives 0; what a long long
/// cannot hold gives its nearest bound.
[[nodiscard]] long long RoundHalfEven(double value) noexcept;

/// The same for an int.
[[nodiscard]] int RoundToInt(double value) noexcept;

/// Decimal text with at least `minDigits` digits, filled with leading zeros: (7, 3) gives "007".
[[nodiscard]] std::string FormatNumber(long long value, int minDigits);

}  // namespace corvelle
