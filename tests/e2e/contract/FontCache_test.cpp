#include "win32/FontCache.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "win32/Wide.h"

namespace corvelle::win32 {
namespace {

/// What the system says of a text in a font of its own.
PixelSize MeasuredBySystem(const FontCache& fonts, const std::string& text,
                           const ScaledFont& wanted) {
  const UniqueMemoryDc dc(CreateCompatibleDC(nullptr));
  const UniqueFont font = fonts.Make(wanted);
  const SelectedObject selected(dc.Get(), font.Get());
  TEXTMETRICW metrics{};
  GetTextMetricsW(dc.Get(), &metrics);
  const std::wstring wide = Wide(text);
  SIZE size{};
  GetTextExtentPoint32W(dc.Get(), wide.data(), static_cast<int>(wide.size()), &size);
  return {static_cast<int>(size.cx), static_cast<int>(metrics.tmHeight)};
}

TEST(FontCache, MeasuresTextsAsTheSystemDoes) {
  const std::vector<std::string> texts = {"",
                                          "tool 10001.exe",
                                          "AVATAR To Yes, fi ffl",
                                          "W",
                                          "  two  ",
                                          "a\tb",
                                          "\x01",
                                          "\xC3\x84pfel",
                                          "\xE6\x97\xA5\xE6\x9C\xAC",
                                          "\xC3\x84 and \xE2\x82\xAC and plain",
                                          "~!@#$%^&*()"};
  FontCache fonts;
  for (const char* face : {"", "Arial", "Courier New", "MS Sans Serif", "Times New Roman"}) {
    for (const float points : {8.25F, 12.0F, 24.0F}) {
      for (const int dpi : {96, 120, 168}) {
        for (const bool bold : {false, true}) {
          const ScaledFont font{{.Face = face, .Points = points, .Bold = bold}, dpi};
          // The second time the font is known.
          for (int round = 0; round < 2; ++round) {
            for (const std::string& text : texts) {
              const PixelSize wanted = MeasuredBySystem(fonts, text, font);
              const PixelSize found = fonts.Measure(text, font);
              EXPECT_EQ(found.width, wanted.width) << face << points << dpi << bold << text;
              EXPECT_EQ(found.height, wanted.height) << face << points << dpi << bold << text;
            }
          }
        }
      }
    }
  }
}

}  // namespace
}  // namespace corvelle::win32
