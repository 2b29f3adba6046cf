#pragma once

#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Canvas.h"

namespace corvelle::sim {

/// A bitmap in memory. Its text is of one built-in fixed-width font.
class SimCanvas final : public Canvas {
 public:
  /// At least 1 by 1, all black.
  explicit SimCanvas(PixelSize size);

  PixelSize Size() const override { return size_; }
  void SetOrigin(PixelPoint origin) override { origin_ = origin; }
  void FillBox(const PixelRect& box, Rgb colour) override;
  void DrawLine(PixelPoint from, PixelPoint to, Rgb colour, int width) override;
  void DrawString(PixelPoint at, std::string_view text, const ScaledFont& font,
                  Rgb colour) override;
  void DrawCanvas(const Canvas& source, const PixelRect& part, PixelPoint at) override;
  void DrawPixels(const IconPixels& picture, PixelPoint at) override;
  Rgb PixelAt(PixelPoint at) const override;

  /// Another size; what fits stays, the rest is black. Memory is taken for a size that is larger
  /// than any before, and only then.
  void Resize(PixelSize size);

  /// True if a pixel of `part` (without regard to the origin) has this colour.
  [[nodiscard]] bool Shows(Rgb colour, const PixelRect& part) const;

 private:
  /// Leaves new pixels as they are: under a sanitizer to set each by itself is most of a canvas.
  struct UnsetPixels : std::allocator<Rgb> {
    template <class T>
    struct rebind {
      using other = UnsetPixels;
    };
    void construct(Rgb* pixel) { ::new (static_cast<void*>(pixel)) Rgb; }
  };

  [[nodiscard]] Rgb* Row(int y);
  [[nodiscard]] const Rgb* Row(int y) const;
  void DrawGlyph(const PixelRect& cell, char32_t character, Rgb colour);

  PixelSize size_;
  PixelSize room_;  // of pixels_, which size_ is a part of
  PixelPoint origin_;
  std::vector<Rgb, UnsetPixels> pixels_;
};

/// Size of one character of the built-in font.
[[nodiscard]] PixelSize CharacterSize(const ScaledFont& font);

/// Size of a line of text in the built-in font.
[[nodiscard]] PixelSize TextSize(std::string_view text, const ScaledFont& font);

}  // namespace corvelle::sim
