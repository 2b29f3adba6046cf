#include "forms/Surface.h"

#include <algorithm>
#include <utility>

#include "forms/Scale.h"

namespace corvelle::forms {

namespace {

PixelSize AtLeastOne(PixelSize size) noexcept {
  return {std::max(size.width, 1), std::max(size.height, 1)};
}

PixelRect Whole(PixelSize size) noexcept { return {0, 0, size.width, size.height}; }

/// Around a line of some width, whichever way it goes.
PixelRect AroundLine(PixelPoint from, PixelPoint to, int width) noexcept {
  return {std::min(from.x, to.x) - width, std::min(from.y, to.y) - width,
          std::max(from.x, to.x) + width + 1, std::max(from.y, to.y) + width + 1};
}

}  // namespace

Surface::Surface(WindowSystem& windows, std::string name) : Window(windows, std::move(name)) {}

Surface::Surface(Window& container, std::string name) : Window(container, std::move(name)) {}

Surface::~Surface() = default;

PixelSize Surface::WindowSize() const {
  const PixelSize bounds = PixelBounds().Size();
  const FrameMargins margins = Margins();
  return {std::max(bounds.width - margins.Left - margins.Right, 0),
          std::max(bounds.height - margins.Top - margins.Bottom, 0)};
}

PixelSize Surface::InsideSize() const {
  const PixelSize window = WindowSize();
  const int border = BorderPixels();
  return {std::max(window.width - 2 * border, 0), std::max(window.height - 2 * border, 0)};
}

float Surface::ScaleWidth() const noexcept {
  const FrameMargins margins = Margins();
  const float border = static_cast<float>(2 * BorderPixels() + margins.Left + margins.Right) *
                       Scale().TwipsPerPixelX;
  return std::max(Width() - border, 0.0F);
}

float Surface::ScaleHeight() const noexcept {
  const FrameMargins margins = Margins();
  const float border = static_cast<float>(2 * BorderPixels() + margins.Top + margins.Bottom) *
                       Scale().TwipsPerPixelY;
  return std::max(Height() - border, 0.0F);
}

// What was drawn keeps its pixels until it is drawn again.
void Surface::ScaleChanged() {
  for (Graphic* graphic : graphics_) graphic->ScaleChanged();
  InvalidateAll();
  Window::ScaleChanged();
}

void Surface::Invalidate(const PixelRect& part) {
  if (Peer() == nullptr) return;
  const PixelRect inside = Intersect(part, Whole(InsideSize()));
  if (inside.IsEmpty()) return;
  const int border = BorderPixels();
  Peer()->Invalidate(
      {inside.left + border, inside.top + border, inside.right + border, inside.bottom + border});
}

void Surface::InvalidateAll() {
  if (Peer() != nullptr) Peer()->Invalidate(Whole(WindowSize()));
}

// What was drawn.

void Surface::DropDrawing() {
  persistent_.reset();
  InvalidateAll();
}

void Surface::SetBackColor(OleColor colour) {
  if (colour == backColor_) return;
  backColor_ = colour;
  DropDrawing();
}

void Surface::SetBackground(Picture picture) {
  background_ = std::move(picture);
  DropDrawing();
}

void Surface::Cls() { DropDrawing(); }

void Surface::PaintGround(Canvas& canvas, PixelSize size) const {
  canvas.FillBox(Whole(size), Resolve(Windows(), backColor_));
  if (background_) canvas.DrawCanvas(*background_, Whole(background_->Size()), {0, 0});
}

std::shared_ptr<Canvas> Surface::MakeImage() const {
  const PixelSize size = AtLeastOne(InsideSize());
  std::shared_ptr<Canvas> image = Windows().CreateCanvas(size);
  PaintGround(*image, size);
  if (persistent_) image->DrawCanvas(*persistent_, Whole(persistent_->Size()), {0, 0});
  return image;
}

Canvas& Surface::PersistentToWrite() {
  const PixelSize size = InsideSize();
  const bool tooSmall = persistent_ && (persistent_->Size().width < size.width ||
                                        persistent_->Size().height < size.height);
  if (!persistent_ || tooSmall) {
    persistent_ = MakeImage();
  } else if (persistent_.use_count() > 1) {
    // Snapshots of the image never change.
    const PixelSize kept = persistent_->Size();
    std::shared_ptr<Canvas> copy = Windows().CreateCanvas(kept);
    copy->DrawCanvas(*persistent_, Whole(kept), {0, 0});
    persistent_ = std::move(copy);
  }
  return *persistent_;
}

Picture Surface::Image() const {
  if (persistent_ && persistent_->Size() == AtLeastOne(InsideSize())) return persistent_;
  return MakeImage();
}

void Surface::DrawOn(const PixelRect& touched, const std::function<void(Canvas&)>& draw) {
  if (painting_ != nullptr) {
    draw(*painting_);
    return;
  }
  if (autoRedraw_) {
    draw(PersistentToWrite());
    Invalidate(touched);
    return;
  }
  if (Peer() == nullptr) return;
  const std::unique_ptr<Canvas> screen = Peer()->ScreenCanvas();
  if (!screen) return;
  screen->SetOrigin({BorderPixels(), BorderPixels()});
  draw(*screen);
}

void Surface::DrawLine(float x1, float y1, float x2, float y2, OleColor colour, int drawWidth) {
  const PixelPoint from = ToPixels(x1, y1, Scale());
  const PixelPoint to = ToPixels(x2, y2, Scale());
  const Rgb rgb = Resolve(Windows(), colour);
  DrawOn(AroundLine(from, to, drawWidth),
         [&](Canvas& canvas) { canvas.DrawLine(from, to, rgb, drawWidth); });
}

void Surface::FillBox(float x1, float y1, float x2, float y2, OleColor colour) {
  const PixelPoint a = ToPixels(x1, y1, Scale());
  const PixelPoint b = ToPixels(x2, y2, Scale());
  const PixelRect box{std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x) + 1,
                      std::max(a.y, b.y) + 1};
  const Rgb rgb = Resolve(Windows(), colour);
  DrawOn(box, [&](Canvas& canvas) { canvas.FillBox(box, rgb); });
}

void Surface::Print(float x, float y, std::string_view text, OleColor colour) {
  const PixelPoint at = ToPixels(x, y, Scale());
  const Rgb rgb = Resolve(Windows(), colour);
  const ScaledFont font = Scaled(font_);
  DrawOn(RectAt(at, Windows().MeasureText(text, font)),
         [&](Canvas& canvas) { canvas.DrawString(at, text, font, rgb); });
}

void Surface::PaintPicture(const Picture& picture, float x, float y) {
  if (!picture) return;
  const PixelPoint at = ToPixels(x, y, Scale());
  const PixelRect part = Whole(picture->Size());
  DrawOn(RectAt(at, part.Size()), [&](Canvas& canvas) { canvas.DrawCanvas(*picture, part, at); });
}

void Surface::PaintPicture(const Picture& picture, float x, float y, float width, float height) {
  if (!picture) return;
  const PixelPoint at = ToPixels(x, y, Scale());
  const PixelRect wanted = ToPixels(0, 0, width, height, Scale());
  const PixelRect part = Intersect(wanted, Whole(picture->Size()));
  if (part.IsEmpty()) return;
  DrawOn(RectAt(at, part.Size()), [&](Canvas& canvas) { canvas.DrawCanvas(*picture, part, at); });
}

void Surface::DrawPixels(const PixelRect& touched, const std::function<void(Canvas&)>& draw) {
  DrawOn(touched, draw);
}

// Painting.

void Surface::OnPaint(Canvas& canvas, const PixelRect& dirty) {
  const int border = BorderPixels();
  const PixelSize window = WindowSize();
  if (border > 0) PaintBorder(canvas, window);
  const PixelRect shifted{dirty.left - border, dirty.top - border, dirty.right - border,
                          dirty.bottom - border};
  const PixelRect inside = Intersect(shifted, Whole(InsideSize()));
  if (inside.IsEmpty()) return;
  // All is put together out of sight, so that nothing flickers and nothing reaches into the border.
  const std::unique_ptr<Canvas> buffer = Windows().CreateCanvas(inside.Size());
  buffer->SetOrigin({-inside.left, -inside.top});
  // The handler may have destroyed this surface; from here on only what is local counts.
  PaintInside(*buffer, inside);
  buffer->SetOrigin({0, 0});
  canvas.DrawCanvas(*buffer, Whole(inside.Size()), {inside.left + border, inside.top + border});
}

void Surface::PaintInside(Canvas& canvas, const PixelRect& dirty) {
  PaintGround(canvas, InsideSize());
  if (persistent_) canvas.DrawCanvas(*persistent_, Whole(persistent_->Size()), {0, 0});
  if (Paint) {
    const std::function<void()> handler = Paint;
    const Alive::Watch watch = MakeWatch();
    // The handler may let events through, and with them another paint.
    Canvas* const before = std::exchange(painting_, &canvas);
    handler();
    if (watch.Gone()) return;
    painting_ = before;
  }
  for (const Graphic* graphic : graphics_) {
    if (graphic->Visible() && !Intersect(graphic->PaintBounds(), dirty).IsEmpty()) {
      graphic->Paint(canvas);
    }
  }
}

void Surface::PaintBorder(Canvas& canvas, PixelSize window) const {
  constexpr OleColor kLight3D = 0x80000016;
  const auto frame = [&](int inset, OleColor leftTop, OleColor rightBottom) {
    const PixelRect box{inset, inset, window.width - inset, window.height - inset};
    if (box.IsEmpty()) return;
    const Rgb light = Resolve(Windows(), leftTop);
    const Rgb dark = Resolve(Windows(), rightBottom);
    canvas.FillBox({box.left, box.top, box.right - 1, box.top + 1}, light);
    canvas.FillBox({box.left, box.top, box.left + 1, box.bottom - 1}, light);
    canvas.FillBox({box.left, box.bottom - 1, box.right, box.bottom}, dark);
    canvas.FillBox({box.right - 1, box.top, box.right, box.bottom}, dark);
  };
  frame(0, kLight3D, color::DarkShadow3D);
  frame(1, color::Highlight3D, color::ButtonShadow);
  frame(2, color::ButtonFace, color::ButtonFace);
}

}  // namespace corvelle::forms
