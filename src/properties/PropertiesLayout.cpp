#include "properties/PropertiesLayout.h"

#include "properties/PreviewPlan.h"
#include "properties/ScaledPixels.h"

namespace corvelle {

namespace {

// Pixels of a screen of 96 dots an inch.
constexpr int kPageWidth = 356;
constexpr int kButtonWidth = 76;
constexpr int kButtonHeight = 25;
constexpr int kEdgeWidth = 64;
constexpr PixelRect kPreviewRoom{84, 44, 272, 204};

class LayoutScale {
 public:
  explicit LayoutScale(int dpi) : dpi_(dpi) {}

  [[nodiscard]] int Of(int pixels) const noexcept { return ScaledPixels(pixels, dpi_); }
  /// Corner and size are scaled by themselves, so that what is equal stays equal.
  [[nodiscard]] PixelRect Rect(int left, int top, int width, int height) const noexcept {
    return RectAt({Of(left), Of(top)}, {Of(width), Of(height)});
  }

 private:
  int dpi_;
};

void LayOutItem(const LayoutScale& scale, PropertiesLayout& layout) noexcept {
  constexpr int kLeft = 10;
  constexpr int kWide = kPageWidth - 2 * kLeft;
  constexpr int kNarrow = 226;
  constexpr int kFirst = 240;
  constexpr int kSecond = 294;
  constexpr int kFlat = 52;
  constexpr int kBox = 21;
  constexpr int kLabel = 15;
  layout.Picture = scale.Rect(kLeft, 8, 32, 32);
  layout.Heading = scale.Rect(52, 17, kWide - 42, kLabel);
  layout.TitleLabel = scale.Rect(kLeft, 48, kNarrow, kLabel);
  layout.Title = scale.Rect(kLeft, 64, kWide, kBox);
  layout.IconLabel = scale.Rect(kLeft, 92, kNarrow, kLabel);
  layout.Icon = scale.Rect(kLeft, 108, kNarrow, kBox);
  layout.Library = scale.Rect(kFirst, 108, kFlat, kBox);
  layout.AllFiles = scale.Rect(kSecond, 108, kFlat, kBox);
  layout.CommandLabel = scale.Rect(kLeft, 136, 60, kLabel);
  layout.Missing = scale.Rect(kLeft + 70, 136, kNarrow - 70, kLabel);
  layout.Command = scale.Rect(kLeft, 152, kNarrow, kBox);
  layout.SelectFile = scale.Rect(kFirst, 152, kFlat, kBox);
  layout.SelectFolder = scale.Rect(kSecond, 152, kFlat, kBox);
  layout.Frame = scale.Rect(kLeft, 186, kWide, 54);
  layout.File = scale.Rect(12, 20, kButtonWidth, kButtonHeight);
  layout.Folder = scale.Rect(96, 20, kButtonWidth, kButtonHeight);
}

void LayOutButtons(const LayoutScale& scale, PropertiesLayout& layout) noexcept {
  layout.Tree = scale.Rect(10, 10, 252, 194);
  layout.Up = scale.Rect(270, 10, kButtonWidth, kButtonHeight);
  layout.Down = scale.Rect(270, 41, kButtonWidth, kButtonHeight);
  layout.Hint = scale.Rect(10, 210, 336, 15);
  layout.HintCommand = scale.Rect(10, 226, 336, 15);
}

void LayOutEdges(const LayoutScale& scale, PixelSize screen, PropertiesLayout& layout) noexcept {
  const PixelRect room =
      scale.Rect(kPreviewRoom.left, kPreviewRoom.top, kPreviewRoom.Width(), kPreviewRoom.Height());
  const PixelSize size = PreviewSize(screen, room.Size());
  layout.Screen = RectAt(
      {room.left + (room.Width() - size.width) / 2, room.top + (room.Height() - size.height) / 2},
      size);
  constexpr int kMiddle = (kPageWidth - kEdgeWidth) / 2;
  constexpr int kHeart = (kPreviewRoom.top + kPreviewRoom.bottom - kButtonHeight) / 2;
  layout.Top = scale.Rect(kMiddle, 11, kEdgeWidth, kButtonHeight);
  layout.Bottom = scale.Rect(kMiddle, 212, kEdgeWidth, kButtonHeight);
  layout.Left = scale.Rect(10, kHeart, kEdgeWidth, kButtonHeight);
  layout.Right = scale.Rect(282, kHeart, kEdgeWidth, kButtonHeight);
}

}  // namespace

PropertiesLayout LayOutProperties(const PropertiesScene& scene) noexcept {
  const LayoutScale scale(scene.Dpi);
  PropertiesLayout layout;
  layout.Inside = {scale.Of(384), scale.Of(330)};
  layout.TabStrip = scale.Rect(8, 8, 368, 280);
  layout.Page = scale.Rect(14, 34, kPageWidth, 248);
  layout.Ok = scale.Rect(136, 296, kButtonWidth, kButtonHeight);
  layout.Cancel = scale.Rect(218, 296, kButtonWidth, kButtonHeight);
  layout.Apply = scale.Rect(300, 296, kButtonWidth, kButtonHeight);
  LayOutItem(scale, layout);
  LayOutButtons(scale, layout);
  LayOutEdges(scale, scene.Screen, layout);
  return layout;
}

}  // namespace corvelle
