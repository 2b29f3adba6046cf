#include "win32/FontCache.h"

#include <algorithm>
#include <string>
#include <utility>

#include "base/Numbers.h"
#include "win32/Wide.h"

namespace corvelle::win32 {

namespace {

constexpr double kPointsOfAnInch = 72;

}  // namespace

UniqueFont FontCache::Make(const ScaledFont& wanted) const {
  LOGFONTW font{};
  font.lfHeight =
      -RoundToInt(static_cast<double>(wanted.Font.Points) * wanted.Dpi / kPointsOfAnInch);
  font.lfWeight = wanted.Font.Bold ? FW_BOLD : FW_NORMAL;
  font.lfCharSet = DEFAULT_CHARSET;
  const std::wstring face = wanted.Font.Face.empty() ? L"MS Shell Dlg 2" : Wide(wanted.Font.Face);
  const std::size_t length = std::min<std::size_t>(face.size(), LF_FACESIZE - 1);
  std::copy_n(face.begin(), length, font.lfFaceName);
  return UniqueFont(CreateFontIndirectW(&font));
}

HFONT FontCache::Get(const ScaledFont& wanted) {
  const auto at = std::find_if(fonts_.begin(), fonts_.end(),
                               [&](const Entry& entry) { return entry.Wanted == wanted; });
  if (at != fonts_.end()) {
    std::rotate(at, at + 1, fonts_.end());
  } else {
    if (fonts_.size() == kMostFonts) fonts_.erase(fonts_.begin());
    fonts_.push_back({wanted, Make(wanted), 0});
  }
  const UniqueFont& font = fonts_.back().Font;
  return font ? font.Get() : static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
}

PixelSize FontCache::Measure(std::string_view text, const ScaledFont& wanted) {
  const HFONT font = Get(wanted);
  // What Get gave is the last one.
  Entry& entry = fonts_.back();
  if (const auto width = entry.Widths.WidthOf(text)) return {*width, entry.LineHeight};
  const SelectedObject selected(dc_.Get(), font);
  if (entry.LineHeight == 0) {
    TEXTMETRICW metrics{};
    GetTextMetricsW(dc_.Get(), &metrics);
    entry.LineHeight = static_cast<int>(metrics.tmHeight);
    entry.Widths = PlainWidths([this](std::string_view of) { return WidthOf(of); });
  }
  return {WidthOf(text), entry.LineHeight};
}

int FontCache::WidthOf(std::string_view text) const {
  const std::wstring wide = Wide(text);
  SIZE size{};
  GetTextExtentPoint32W(dc_.Get(), wide.data(), static_cast<int>(wide.size()), &size);
  return static_cast<int>(size.cx);
}

}  // namespace corvelle::win32
