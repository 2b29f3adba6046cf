#include "base/PlainWidths.h"

#include <cstddef>
#include <string>

namespace corvelle {

PlainWidths::PlainWidths(const Measure& measure) {
  std::string all;
  for (char c = kFirst; c <= kLast; ++c) {
    widths_[static_cast<std::size_t>(c - kFirst)] = measure({&c, 1});
    all.push_back(c);
  }
  addUp_ = true;
  // Each beside its neighbours, both ways round, and those that fonts like to set closer together.
  const std::string backwards(all.rbegin(), all.rend());
  for (const std::string_view text :
       {std::string_view(all), std::string_view(backwards),
        std::string_view("AVATAYLTVATATeTofiffifflPAWAWeYor.y.y,ToWow11")}) {
    if (WidthOf(text) != measure(text)) addUp_ = false;
  }
}

std::optional<int> PlainWidths::WidthOf(std::string_view text) const noexcept {
  if (!addUp_) return std::nullopt;
  int width = 0;
  for (const char c : text) {
    if (c < kFirst || c > kLast) return std::nullopt;
    width += widths_[static_cast<std::size_t>(c - kFirst)];
  }
  return width;
}

}  // namespace corvelle
