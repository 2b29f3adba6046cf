#include "sim/SimPeer.h"

#include <string>
#include <utility>

namespace corvelle::sim {

namespace {

/// Draws on a bitmap that others hold too.
class SharedCanvas final : public Canvas {
 public:
  explicit SharedCanvas(std::shared_ptr<SimCanvas> canvas) : canvas_(std::move(canvas)) {}
  SharedCanvas(const SharedCanvas&) = delete;
  SharedCanvas& operator=(const SharedCanvas&) = delete;
  ~SharedCanvas() override { canvas_->SetOrigin({0, 0}); }

  PixelSize Size() const override { return canvas_->Size(); }
  void SetOrigin(PixelPoint origin) override { canvas_->SetOrigin(origin); }
  void FillBox(const PixelRect& box, Rgb colour) override { canvas_->FillBox(box, colour); }
  void DrawLine(PixelPoint from, PixelPoint to, Rgb colour, int width) override {
    canvas_->DrawLine(from, to, colour, width);
  }
  void DrawString(PixelPoint at, std::string_view text, const ScaledFont& font,
                  Rgb colour) override {
    canvas_->DrawString(at, text, font, colour);
  }
  void DrawCanvas(const Canvas& source, const PixelRect& part, PixelPoint at) override {
    canvas_->DrawCanvas(source, part, at);
  }
  void DrawPixels(const IconPixels& picture, PixelPoint at) override {
    canvas_->DrawPixels(picture, at);
  }
  Rgb PixelAt(PixelPoint at) const override { return canvas_->PixelAt(at); }

 private:
  std::shared_ptr<SimCanvas> canvas_;
};

}  // namespace

void SimPeerCore::SetCaption(std::string_view caption) {
  SimWindow& window = *desktop_.Get(window_);
  window.Text = caption;
  desktop_.Note("caption", window, caption);
  if (IsSystemControl(window)) desktop_.InvalidateTree(window_);
}

void SimPeerCore::SetEnabled(bool enabled) {
  desktop_.SetEnabled(window_, enabled);
  if (IsSystemControl(*desktop_.Get(window_))) desktop_.InvalidateTree(window_);
}

bool SimPeerCore::SetTakesDrops(bool takesDrops) {
  desktop_.Get(window_)->TakesDrops = takesDrops;
  return true;
}

void SimPeerCore::SetForeground() {
  desktop_.Note("foreground", *desktop_.Get(window_));
  desktop_.RequestForeground(window_);
}

std::unique_ptr<Canvas> SimPeerCore::ScreenCanvas() {
  if (!desktop_.IsShown(window_)) return nullptr;
  return std::make_unique<SharedCanvas>(desktop_.Get(window_)->Content);
}

}  // namespace corvelle::sim
