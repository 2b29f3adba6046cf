#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "platform/Canvas.h"
#include "win32/DrawingTools.h"
#include "win32/UniqueHandle.h"

namespace corvelle::win32 {

/// Every canvas of Windows: drawing on whatever device context its kind hands out.
class Win32Canvas : public Canvas {
 public:
  Win32Canvas(const Win32Canvas&) = delete;
  Win32Canvas& operator=(const Win32Canvas&) = delete;

  PixelSize Size() const override { return size_; }
  void SetOrigin(PixelPoint origin) override { origin_ = origin; }
  void FillBox(const PixelRect& box, Rgb colour) override;
  void DrawLine(PixelPoint from, PixelPoint to, Rgb colour, int width) override;
  void DrawString(PixelPoint at, std::string_view text, const ScaledFont& font,
                  Rgb colour) override;
  void DrawCanvas(const Canvas& source, const PixelRect& part, PixelPoint at) override;
  void DrawPixels(const IconPixels& picture, PixelPoint at) override;
  Rgb PixelAt(PixelPoint at) const override;

  PixelPoint Origin() const noexcept { return origin_; }

  /// A device context in pixels of the bitmap, null when there is none. It is handed back by End
  /// before the canvas is used for anything else.
  virtual HDC Begin() const noexcept = 0;
  virtual void End(HDC dc) const noexcept = 0;

 protected:
  Win32Canvas(PixelSize size, std::shared_ptr<DrawingTools> tools)
      : size_(size), tools_(std::move(tools)) {}

  [[nodiscard]] bool IsInside(PixelPoint at) const noexcept {
    return PixelRect{0, 0, size_.width, size_.height}.Contains(at);
  }
  [[nodiscard]] DrawingTools& Tools() const noexcept { return *tools_; }

 private:
  PixelSize size_;
  PixelPoint origin_;
  std::shared_ptr<DrawingTools> tools_;
};

/// The device context of a canvas for the length of a scope.
class CanvasDc {
 public:
  explicit CanvasDc(const Win32Canvas& canvas) noexcept : canvas_(canvas), dc_(canvas.Begin()) {}
  CanvasDc(const CanvasDc&) = delete;
  CanvasDc& operator=(const CanvasDc&) = delete;
  ~CanvasDc() {
    if (dc_ != nullptr) canvas_.End(dc_);
  }

  HDC Get() const noexcept { return dc_; }
  explicit operator bool() const noexcept { return dc_ != nullptr; }

 private:
  const Win32Canvas& canvas_;
  HDC dc_;
};

/// Canvases of this window system have no other kind.
inline const Win32Canvas& AsWin32(const Canvas& canvas) noexcept {
  return static_cast<const Win32Canvas&>(canvas);
}

/// A bitmap in memory. It holds one object of the system, since programs of this kind keep many
/// small pictures; its device context is borrowed for each use.
class MemoryCanvas final : public Win32Canvas {
 public:
  MemoryCanvas(PixelSize size, std::shared_ptr<DrawingTools> tools);

  /// Lays a picture of the canvas's own size over it (see IconPixels).
  void Mix(const std::vector<std::uint32_t>& picture);

  Rgb PixelAt(PixelPoint at) const override;
  HDC Begin() const noexcept override;
  void End(HDC dc) const noexcept override;

 private:
  UniqueBitmap bitmap_;
  std::uint32_t* pixels_ = nullptr;  // 0x00RRGGBB, the top row first; owned by the bitmap
};

/// A canvas on a device context that belongs to someone else, for the time of a paint.
class BorrowedCanvas final : public Win32Canvas {
 public:
  BorrowedCanvas(HDC dc, PixelSize size, std::shared_ptr<DrawingTools> tools)
      : Win32Canvas(size, std::move(tools)), dc_(dc) {}

  HDC Begin() const noexcept override { return dc_; }
  void End(HDC) const noexcept override {}

 private:
  HDC dc_;
};

/// A canvas on the pixels of a window on the screen.
class ScreenCanvas final : public Win32Canvas {
 public:
  ScreenCanvas(HWND window, PixelSize size, std::shared_ptr<DrawingTools> tools)
      : Win32Canvas(size, std::move(tools)), dc_(window) {}

  HDC Begin() const noexcept override { return dc_.Get(); }
  void End(HDC) const noexcept override {}

 private:
  WindowDc dc_;
};

}  // namespace corvelle::win32
