// The kinds of control without a window.

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

#include "base/Utf8.h"
#include "forms/Graphic.h"
#include "forms/Scale.h"
#include "forms/Surface.h"

namespace corvelle::forms {

namespace {

/// A caption as it is drawn: "&&" is "&", a single "&" is not seen.
std::string Unescape(std::string_view caption) {
  std::string text;
  for (std::size_t at = 0; at < caption.size(); ++at) {
    if (caption[at] == '&') ++at;
    if (at < caption.size()) text += caption[at];
  }
  return text;
}

/// As many whole characters of `text` as are no wider than `pixels`.
std::string FitText(const Window& window, std::string text, const FontSpec& font, int pixels) {
  while (!text.empty() && window.MeasureText(text, font).width > pixels) {
    text = CutUtf8(text, text.size() - 1);
  }
  return text;
}

}  // namespace

// Label

Label::Label(Surface& container, std::string name) : Graphic(container, std::move(name)) {}

void Label::SetCaption(std::string caption) {
  if (caption == caption_) return;
  caption_ = std::move(caption);
  Changed();
  Fit();
}

void Label::SetForeColor(OleColor colour) {
  if (colour == foreColor_) return;
  foreColor_ = colour;
  Changed();
}

void Label::SetFont(FontSpec font) {
  if (font == font_) return;
  font_ = std::move(font);
  Changed();
  Fit();
}

void Label::SetAutoSize(bool autoSize) {
  if (autoSize == autoSize_) return;
  autoSize_ = autoSize;
  Fit();
}

void Label::Fit() {
  if (!autoSize_) return;
  const PixelSize text = Container().MeasureText(Unescape(caption_), font_);
  const PixelScale scale = Container().Scale();
  Move(Left(), Top(), static_cast<float>(text.width) * scale.TwipsPerPixelX,
       static_cast<float>(text.height) * scale.TwipsPerPixelY);
}

void Label::Paint(Canvas& canvas) const {
  const PixelRect box = PaintBounds();
  std::string text = Unescape(caption_);
  if (!autoSize_) text = FitText(Container(), std::move(text), font_, box.Width());
  if (text.empty()) return;
  canvas.DrawString(box.TopLeft(), text, Container().Scaled(font_),
                    Resolve(Container().Windows(), foreColor_));
}

// Line

Line::Line(Surface& container, std::string name) : Graphic(container, std::move(name)) {}

Line::~Line() { Changed(); }

void Line::SetPoints(float x1, float y1, float x2, float y2) {
  AdoptBounds(std::min(x1, x2), std::min(y1, y2), std::abs(x2 - x1), std::abs(y2 - y1));
  if (x1 == x1_ && y1 == y1_ && x2 == x2_ && y2 == y2_) return;
  Changed();
  x1_ = x1;
  y1_ = y1;
  x2_ = x2;
  y2_ = y2;
  Changed();
}

void Line::BoundsChanged(float oldLeft, float oldTop, float /*oldWidth*/, float /*oldHeight*/) {
  const float right = Left() - oldLeft;
  const float down = Top() - oldTop;
  SetPoints(x1_ + right, y1_ + down, x2_ + right, y2_ + down);
}

void Line::SetBorderColor(OleColor colour) {
  if (colour == colour_) return;
  colour_ = colour;
  Changed();
}

void Line::SetBorderWidth(int pixels) {
  if (pixels == drawWidth_) return;
  Changed();
  drawWidth_ = pixels;
  Changed();
}

PixelRect Line::PaintBounds() const {
  const PixelScale scale = Container().Scale();
  const PixelPoint from = ToPixels(x1_, y1_, scale);
  const PixelPoint to = ToPixels(x2_, y2_, scale);
  const int reach = drawWidth_ / 2;
  return {std::min(from.x, to.x) - reach, std::min(from.y, to.y) - reach,
          std::max(from.x, to.x) + reach + 1, std::max(from.y, to.y) + reach + 1};
}

void Line::Paint(Canvas& canvas) const {
  WindowSystem& windows = Container().Windows();
  const PixelScale scale = Container().Scale();
  canvas.DrawLine(ToPixels(x1_, y1_, scale), ToPixels(x2_, y2_, scale), Resolve(windows, colour_),
                  drawWidth_);
}

// Shape

Shape::Shape(Surface& container, std::string name) : Graphic(container, std::move(name)) {}

void Shape::SetFillColor(OleColor colour) {
  if (colour == colour_) return;
  colour_ = colour;
  Changed();
}

void Shape::Paint(Canvas& canvas) const {
  canvas.FillBox(PaintBounds(), Resolve(Container().Windows(), colour_));
}

// Image

Image::Image(Surface& container, std::string name) : Graphic(container, std::move(name)) {}

void Image::SetPicture(corvelle::Picture picture) {
  if (picture == picture_) return;
  picture_ = std::move(picture);
  FindParts();
  Changed();
  Fit();
}

void Image::Fit() {
  if (!picture_) return;
  const PixelScale scale = Container().Scale();
  Move(Left(), Top(), static_cast<float>(picture_->Size().width) * scale.TwipsPerPixelX,
       static_cast<float>(picture_->Size().height) * scale.TwipsPerPixelY);
}

void Image::FindParts() {
  parts_.clear();
  if (!picture_) return;
  const PixelSize size = picture_->Size();
  for (int y = 0; y < size.height; ++y) {
    int x = 0;
    while (x < size.width) {
      const int left = x;
      while (x < size.width && picture_->PixelAt({x, y}) != kMask) ++x;
      if (x > left) AddRun({left, y, x, y + 1});
      while (x < size.width && picture_->PixelAt({x, y}) == kMask) ++x;
    }
  }
}

void Image::AddRun(const PixelRect& run) {
  // A run as wide as the one above joins it.
  if (!parts_.empty() && parts_.back().left == run.left && parts_.back().right == run.right &&
      parts_.back().bottom == run.top) {
    parts_.back().bottom = run.bottom;
  } else {
    parts_.push_back(run);
  }
}

void Image::Paint(Canvas& canvas) const {
  const PixelPoint corner = PaintBounds().TopLeft();
  for (const PixelRect& part : parts_) {
    canvas.DrawCanvas(*picture_, part, {corner.x + part.left, corner.y + part.top});
  }
}

}  // namespace corvelle::forms
