#include "toolbar/singles/SingleLayout.h"

#include <cmath>

#include "base/Numbers.h"

namespace corvelle {
namespace {

constexpr float kTemplateSize = 3;   // pixels
constexpr float kBetween = 2;        // between two entries
constexpr float kSeparatorSize = 6;  // of a separator, along the row
constexpr float kLineInSeparator = 2;
constexpr float kEnd = 6;         // behind the last entry
constexpr float kDateEnd = 50;    // twips behind the date
constexpr float kDateRoom = 100;  // twips between the buttons and the date
constexpr float kDateLine = 100;  // twips between the date's lines and the date

/// Across the strip: where the two rows begin.
struct Rows {
  float First = 0;
  float Second = 0;
};

// The rows lie in the halves of the strip, and those at a border move a pixel towards the middle:
// lying, both; upright, the one at the screen's side or at the window's border.
Rows RowsOf(const SingleScene& s) noexcept {
  const auto icon = static_cast<float>(s.IconSize);
  if (s.Scale.Vertical) {
    const float half = s.Template.Width / 2;
    const float first = (half - icon * s.Scale.TwipsX) / 2;
    return {first + (s.At == Edge::Right ? s.Scale.TwipsX : 0),
            first + half - (s.At == Edge::Left ? s.Scale.TwipsX : 0)};
  }
  const float half = s.Template.Height / 2;
  const float first = (half - icon * s.Scale.TwipsY) / 2;
  return {first + s.Scale.TwipsY, first + half - s.Scale.TwipsY};
}

bool StandsSecond(const SingleScene& s, const SingleRect& single) noexcept {
  const Rows rows = RowsOf(s);
  const float across = s.Scale.Vertical ? single.Left : single.Top;
  return single.Kind == SingleKind::Button && across > (rows.First + rows.Second) / 2;
}

TwipRect PlaceInTwoRows(const SingleScene& s, const SingleRect& previous) noexcept {
  const auto icon = static_cast<float>(s.IconSize);
  const TwipSize size{icon * s.Scale.TwipsX, icon * s.Scale.TwipsY};
  const Rows rows = RowsOf(s);
  const bool first = previous.Kind != SingleKind::Button || StandsSecond(s, previous);
  if (s.Scale.Vertical) {
    if (!first) return {rows.Second, previous.Top, size.Width, size.Height};
    return {rows.First, previous.Bottom() + kBetween * s.Scale.TwipsY, size.Width, size.Height};
  }
  if (!first) return {previous.Left, rows.Second, size.Width, size.Height};
  return {previous.Right() + kBetween * s.Scale.TwipsX, rows.First, size.Width, size.Height};
}

}  // namespace

SingleRect SingleTemplate(const StripScale& scale) {
  SingleRect single;
  single.Width = kTemplateSize * scale.TwipsX;
  single.Height = kTemplateSize * scale.TwipsY;
  single.Kind = SingleKind::Template;
  return single;
}

TwipRect PlaceSingle(const SingleScene& s, const SingleRect& previous, SingleKind kind) noexcept {
  if (s.TwoRows && kind == SingleKind::Button) return PlaceInTwoRows(s, previous);
  const float along =
      kind == SingleKind::Separator ? kSeparatorSize : static_cast<float>(s.IconSize);
  if (s.Scale.Vertical) {
    return {0, previous.Bottom() + kBetween * s.Scale.TwipsY, s.Template.Width,
            along * s.Scale.TwipsY};
  }
  return {previous.Right() + kBetween * s.Scale.TwipsX, 0, along * s.Scale.TwipsX,
          s.Template.Height};
}

float SeparatorPosition(const StripScale& scale, const TwipRect& place) noexcept {
  return scale.Vertical ? place.Top + kLineInSeparator * scale.TwipsY
                        : place.Left + kLineInSeparator * scale.TwipsX;
}

LinePair SeparatorLines(const StripScale& scale, float position, TwipSize box) noexcept {
  if (scale.Vertical) {
    const float below = position + scale.TwipsY;
    return {{0, position, box.Width, position}, {0, below, box.Width, below}};
  }
  const float right = position + scale.TwipsX;
  return {{position, 0, position, box.Height}, {right, 0, right, box.Height}};
}

LinePair HoverLines(const StripScale& scale, const TwipRect& button) noexcept {
  // On the same pixels as the icon, whose place is cut to whole twips.
  const float left = std::floor(button.Left);
  const float top = std::floor(button.Top);
  const float right = left + button.Width;
  const float bottom = top + button.Height;
  if (scale.Vertical) {
    const float above = top - scale.TwipsY;
    return {{left, above, right, above}, {left, bottom, right, bottom}};
  }
  const float before = left - scale.TwipsX;
  return {{before, top, before, bottom}, {right, top, right, bottom}};
}

float SinglesLength(const StripScale& scale, const SingleRect& last) noexcept {
  return scale.Vertical ? last.Bottom() + kEnd * scale.TwipsY : last.Right() + kEnd * scale.TwipsX;
}

PixelPoint SingleIconPlace(const SingleScene& s, const TwipRect& button, Placement where,
                           int topCut) noexcept {
  const auto icon = static_cast<float>(s.IconSize);
  const float x = std::floor(button.Left + (button.Width - icon * s.Scale.TwipsX) / 2);
  float y = std::floor(button.Top + (button.Height - icon * s.Scale.TwipsY) / 2);
  if (!s.Scale.Vertical) {
    const bool cut = where == Placement::TopHugging && topCut == 7;
    if (s.TwoRows) {
      if (cut) y += 2 * s.Scale.TwipsY;
    } else {
      y += cut ? 2 * s.Scale.TwipsY : s.Scale.TwipsY;
    }
  }
  return {RoundToInt(static_cast<double>(x / s.Scale.TwipsX)),
          RoundToInt(static_cast<double>(y / s.Scale.TwipsY))};
}

int SingleAt(std::span<const SingleRect> singles, TwipPoint at) noexcept {
  for (std::size_t i = 1; i < singles.size(); ++i) {
    const SingleRect& single = singles[i];
    if (at.X >= single.Left && at.X < single.Right() && at.Y >= single.Top &&
        at.Y < single.Bottom()) {
      return static_cast<int>(i);
    }
  }
  return 0;
}

DateSpot PlaceDate(const DateScene& s) noexcept {
  DateSpot spot;
  spot.Visible = true;
  spot.Left = s.Box.Width - s.Label.Width - kDateEnd;
  spot.Top = (s.Box.Height - s.Label.Height) / 2;
  const float room = s.LastRight + kDateRoom;
  if (s.SingleCount > 0 && spot.Left <= room) {
    spot.Left = room + 200;
    spot.Visible = false;
  }
  if (s.WindowWidth - s.Label.Width - 250 < s.ButtonsWidth) spot.Visible = false;
  const float x = spot.Left - kDateLine;
  spot.Line1 = {x, 0, x, s.Box.Height};
  spot.Line2 = {x - s.TwipsX, 0, x - s.TwipsX, s.Box.Height};
  return spot;
}

}  // namespace corvelle
