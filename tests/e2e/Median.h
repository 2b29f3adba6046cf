#pragma once

#include <algorithm>
#include <vector>

namespace corvelle::e2e {

/// The middle one of measured values, the upper one of two; 0 of nothing.
inline double MedianOf(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values.empty() ? 0 : values[values.size() / 2];
}

}  // namespace corvelle::e2e
