#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string_view>

namespace corvelle {

/// How wide the printable characters of ASCII are in one font. A menu of thousands of items
/// measures all of their titles, and to ask the system for each takes longer than all the rest.
class PlainWidths {
 public:
  /// The width of a text, in pixels.
  using Measure = std::function<int(std::string_view text)>;

  PlainWidths() = default;
  explicit PlainWidths(const Measure& measure);

  /// The width of a text in the unit of the measure. Nothing when it is to be measured: it has
  /// other characters, or the font sets some closer together than they are wide.
  [[nodiscard]] std::optional<int> WidthOf(std::string_view text) const noexcept;

 private:
  static constexpr char kFirst = ' ';
  static constexpr char kLast = '~';

  std::array<int, kLast - kFirst + 1> widths_{};
  bool addUp_ = false;
};

}  // namespace corvelle
