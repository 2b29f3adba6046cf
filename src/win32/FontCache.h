#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "base/PlainWidths.h"
#include "platform/Canvas.h"
#include "win32/UniqueHandle.h"

namespace corvelle::win32 {

/// The fonts that the program draws with. It keeps the last few, since the same ones are asked for
/// again and again.
class FontCache {
 public:
  static constexpr std::size_t kMostFonts = 12;

  /// The font the system's own when it cannot be made. Stays valid
  /// until the next call.
  [[nodiscard]] HFONT Get(const ScaledFont& wanted);

  /// A font of the caller's own; none when it cannot be made.
  [[nodiscard]] UniqueFont Make(const ScaledFont& wanted) const;

  /// Size in pixels of one line of text.
  [[nodiscard]] PixelSize Measure(std::string_view text, const ScaledFont& wanted);

 private:
  struct Entry {
    ScaledFont Wanted;
    UniqueFont Font;
    int LineHeight = 0;  // pixels; 0 until it is asked for
    PlainWidths Widths;  // known with the height
  };

  /// In the font that is selected.
  [[nodiscard]] int WidthOf(std::string_view text) const;

  UniqueMemoryDc dc_{CreateCompatibleDC(nullptr)};  // to measure with
  std::vector<Entry> fonts_;                        // the one used last at the end
};

}  // namespace corvelle::win32
