#include "toolbar/layout/StripLayout.h"

#include <cmath>
#include <optional>

#include "base/Numbers.h"
#include "base/Text.h"
#include "core/MenuRecord.h"

namespace corvelle {
namespace {

constexpr int kGap = 8;  // pixels between the boxes, taken by the grip

ButtonRect TemplateRect(const TemplateSize& size) {
  ButtonRect button;
  button.Width = size.Width;
  button.Height = size.Height;
  return button;
}

bool IsUpright(const ControlsScene& s) noexcept {
  return s.Where == Placement::AtEdge && IsVertical(s.At);
}

void PlaceAtHorizontalEdge(const ControlsScene& s, StripControls& out) noexcept {
  out.Buttons.Top = s.At == Edge::Top ? s.TwipsY : 2 * s.TwipsY;
  out.Buttons.Left = s.TwipsX;
  out.Buttons.Height = s.Template.Height;
  out.Singles.Top = out.Buttons.Top;
  out.Singles.Left = out.Buttons.Right() + kGap * s.TwipsX;
  out.Singles.Height = s.Template.Height;
  out.Window.Height = out.Buttons.Bottom() + 2 * s.TwipsY;
}

void PlaceAtVerticalEdge(const ControlsScene& s, StripControls& out) noexcept {
  out.Buttons.Top = s.TwipsY;
  out.Buttons.Left = s.At == Edge::Left ? s.TwipsX : 2 * s.TwipsX;
  out.Buttons.Width = s.Template.Width;
  out.Buttons.Height = s.LastButton.Bottom() + s.TwipsY;
  out.Singles.Top = out.Buttons.Bottom() + kGap * s.TwipsY;
  out.Singles.Left = out.Buttons.Left;
  out.Singles.Width = out.Buttons.Width;
  out.Window.Width = out.Buttons.Right() + 2 * s.TwipsX;
}

void PlaceTopHuggingBoxes(const ControlsScene& s, StripControls& out) noexcept {
  out.Buttons = {s.TwipsX, 2 * s.TwipsY, s.LastButton.Width + s.LastButton.Left + s.TwipsX,
                 s.Template.Height};
  out.Singles.Height = out.Buttons.Height;
  out.Singles.Width = s.SingleCount == 0 ? kGap * s.TwipsX : s.LastSingleRight + 6 * s.TwipsX;
  out.Singles.Top = out.Buttons.Top;
  out.Singles.Left = out.Buttons.Right() + kGap * s.TwipsX;
  out.Window.Width = out.Singles.Right() + s.TwipsX;
  out.Window.Height = s.Template.Height + 3 * s.TwipsY;
  out.Window.Top = -static_cast<float>(s.TopCut) * s.TwipsY;
}

/// A separator behind the last of `buttons`, of which entry 0 is the template.
TwipRect PlaceSeparator(std::span<const ButtonRect> buttons, const StripScale& scale) {
  const ButtonRect& last = buttons.back();
  const TwipSize size = TemplateSeparator(buttons.front(), scale);
  if (scale.Vertical) return {scale.TwipsX, last.Bottom(), size.Width, size.Height};
  return {last.Right() + scale.TwipsX, 0, size.Width, size.Height};
}

/// The next button; `separator` is the last one placed.
ButtonRect PlaceButton(std::span<const ButtonRect> buttons,
                       const std::optional<TwipRect>& separator, const StripScale& scale,
                       std::string_view path) {
  const ButtonRect& last = buttons.back();
  const bool isFirst = buttons.size() == 1;
  ButtonRect button;
  button.Path = path;
  button.Key = "B" + std::to_string(buttons.size());
  button.Height = buttons.front().Height;
  if (scale.Vertical) {
    button.Width = buttons.front().Width;
    button.Left = scale.TwipsX;
    button.Top = isFirst ? 0 : last.Bottom();
    // Only a separator that was added since the last button lies exactly here.
    if (!isFirst && separator && button.Top == separator->Top) button.Top = separator->Bottom();
    return button;
  }
  button.Width = buttons.front().Width + scale.TwipsX;
  button.Top = buttons.front().Top;
  button.Left = isFirst ? 0 : last.Right() + scale.TwipsX;
  if (!isFirst && separator && button.Left == separator->Left) button.Left = separator->Right();
  return button;
}

TwipSize ButtonBoxSize(const ButtonRect& templateButton, const ButtonRect& last,
                       const StripScale& scale) noexcept {
  if (scale.Vertical) return {templateButton.Width, last.Bottom() + scale.TwipsY};
  return {last.Right() + scale.TwipsX, templateButton.Height};
}

}  // namespace

TemplateSize TemplateButton(const TemplateScene& s) noexcept {
  if (s.LargeIcons) {
    const auto pixels = static_cast<float>(s.IconSize + 6);
    return {pixels * s.TwipsX, pixels * s.TwipsY, 7};
  }
  TemplateSize size{22 * s.TwipsX, 22 * s.TwipsY, 4};
  const float pixels = std::floor((3 * s.TwipsY + size.Height) / s.TwipsX);
  const int caption = s.CaptionHeight != 0 ? s.CaptionHeight + 1 : 22;
  if (static_cast<float>(caption) < pixels) size.TopCut = 7;
  return size;
}

ButtonLines TemplateLines(const ButtonRect& button, const StripScale& scale) noexcept {
  if (scale.Vertical) {
    return {{0, 0, button.Width, 0}, {0, scale.TwipsY, button.Width, scale.TwipsY}};
  }
  const float right = button.Left + button.Width + scale.TwipsX;
  return {{0, 0, 0, button.Height}, {right, 0, right, button.Height}};
}

TwipSize TemplateSeparator(const ButtonRect& button, const StripScale& scale) noexcept {
  if (scale.Vertical) return {button.Width, kGap * scale.TwipsY};
  return {kGap * scale.TwipsX, button.Height};
}

EntryKind EntryKindOf(std::string_view icon, std::string_view name) {
  if (IsHiddenFlag(name)) return EntryKind::Hidden;
  return EqualNoCase(Trim(icon), kSeparatorIcon) ? EntryKind::Separator : EntryKind::Button;
}

ButtonLines LinesOf(const ButtonRect& button, const ButtonRect& templateButton,
                    const StripScale& scale) noexcept {
  if (scale.Vertical) {
    const float upper = button.Top + scale.TwipsY;
    const float lower = button.Bottom();
    return {{0, upper, templateButton.Width, upper}, {0, lower, templateButton.Width, lower}};
  }
  return {{button.Left, 0, button.Left, templateButton.Height},
          {button.Right(), 0, button.Right(), templateButton.Height}};
}

StripContents LayOutStrip(const TemplateSize& size, std::span<const StripEntry> entries,
                          const StripScale& scale) {
  StripContents strip;
  strip.Buttons.reserve(entries.size() + 2);
  strip.Buttons.push_back(TemplateRect(size));
  strip.Buttons.push_back(PlaceButton(strip.Buttons, std::nullopt, scale, kMainMenuPath));
  std::optional<TwipRect> separator;
  for (const StripEntry& entry : entries) {
    if (entry.Kind == EntryKind::Separator) {
      separator = PlaceSeparator(strip.Buttons, scale);
      strip.Separators.push_back(*separator);
    } else if (entry.Kind == EntryKind::Button) {
      strip.Buttons.push_back(PlaceButton(strip.Buttons, separator, scale, entry.Path));
    }
  }
  strip.Box = ButtonBoxSize(strip.Buttons.front(), strip.Buttons.back(), scale);
  return strip;
}

PixelPoint IconPlace(const IconScene& s) noexcept {
  const auto size = static_cast<float>(s.IconSize);
  // A little left of the middle on purpose: 2.5, not 2. And a pixel low.
  const float x = std::floor(s.Button.Left + (s.Button.Width - size * s.TwipsX) / 2.5F);
  float y = std::floor(s.Button.Height / 2 - size * s.TwipsY / 2 + s.Button.Top + s.TwipsY);
  if (s.Where == Placement::TopHugging && s.TopCut == 7) y += s.TwipsY;
  return {RoundToInt(static_cast<double>(x / s.TwipsX)) + (s.Vertical ? 0 : 1),
          RoundToInt(static_cast<double>(y / s.TwipsY))};
}

StripControls SetControlsRule(const ControlsScene& s) noexcept {
  StripControls out{s.Buttons, s.Singles, {}, s.Window};
  if (s.Where == Placement::TopHugging) {
    PlaceTopHuggingBoxes(s, out);
  } else if (IsUpright(s)) {
    PlaceAtVerticalEdge(s, out);
  } else {
    PlaceAtHorizontalEdge(s, out);
  }
  if (IsUpright(s)) {
    out.Grip = {0, out.Buttons.Bottom(), out.Window.Width, kGap * s.TwipsY};
  } else {
    out.Grip = {out.Buttons.Right(), 0, kGap * s.TwipsX, out.Window.Height};
  }
  return out;
}

}  // namespace corvelle
