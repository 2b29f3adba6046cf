#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "forms/Control.h"
#include "forms/DragDrop.h"
#include "platform/Canvas.h"

namespace corvelle::forms {

/// A control without a window of its own: its container paints it and hands it the mouse. Its
/// container outlives it.
class Graphic : public Control {
 public:
  ~Graphic() override;

  void ZOrder(ZPlace place) override;

  Surface& Container() const noexcept { return *container_; }

  /// Paints the control onto its container's canvas, in pixels of the container.
  virtual void Paint(Canvas& canvas) const = 0;

  /// The pixels of the container that the control can touch.
  [[nodiscard]] virtual PixelRect PaintBounds() const;

  /// True for a control that takes mouse events; a disabled one lets them through to its container.
  [[nodiscard]] virtual bool TakesMouse() const noexcept { return false; }

  /// The container has another scale.
  virtual void ScaleChanged() {}

  /// Mouse events in twips from the control's own upper left corner.
  std::function<void(MouseButton, ShiftState, float, float)> MouseDown;
  std::function<void(MouseButton, ShiftState, float, float)> MouseMove;
  std::function<void(MouseButton, ShiftState, float, float)> MouseUp;
  std::function<void()> DblClick;
  /// The press on the control got no release and ends here: see Surface::CaptureLost.
  std::function<void()> CaptureLost;
  /// Drags of other programs, likewise; without a handler they are the container's.
  DragHandler OLEDragOver;
  DragHandler OLEDragDrop;

 protected:
  Graphic(Surface& container, std::string name);

  /// The control looks different now.
  void Changed();

  void VisibleChanged() override;
  void EnabledChanged() override;
  void BoundsChanged(float oldLeft, float oldTop, float oldWidth, float oldHeight) override;

 private:
  Surface* container_;
};

/// Text on a transparent ground. "&" is shown as an access key unless doubled, so a caption with
/// "&&" shows one "&"; no key ever reaches a label here. A label that is not auto-sized shows as
/// many whole characters as it has room for.
class Label final : public Graphic {
 public:
  Label(Surface& container, std::string name);

  const std::string& Caption() const noexcept { return caption_; }
  void SetCaption(std::string caption);
  OleColor ForeColor() const noexcept { return foreColor_; }
  void SetForeColor(OleColor colour);
  const FontSpec& Font() const noexcept { return font_; }
  void SetFont(FontSpec font);

  /// An auto-sized label is as large as its caption's text.
  bool AutoSize() const noexcept { return autoSize_; }
  void SetAutoSize(bool autoSize);

  void Paint(Canvas& canvas) const override;
  bool TakesMouse() const noexcept override { return true; }
  void ScaleChanged() override { Fit(); }

 private:
  void Fit();

  std::string caption_;
  FontSpec font_;
  OleColor foreColor_ = color::ButtonText;
  bool autoSize_ = false;
};

/// A straight line between two points in twips of its container. Its end is not drawn. Moving it
/// moves both points; its size is theirs.
class Line final : public Graphic {
 public:
  Line(Surface& container, std::string name);
  ~Line() override;

  float X1() const noexcept { return x1_; }
  float Y1() const noexcept { return y1_; }
  float X2() const noexcept { return x2_; }
  float Y2() const noexcept { return y2_; }
  void SetPoints(float x1, float y1, float x2, float y2);

  OleColor BorderColor() const noexcept { return colour_; }
  void SetBorderColor(OleColor colour);
  /// Pixels.
  int BorderWidth() const noexcept { return drawWidth_; }
  void SetBorderWidth(int pixels);

  void Paint(Canvas& canvas) const override;
  PixelRect PaintBounds() const override;

 protected:
  void BoundsChanged(float oldLeft, float oldTop, float oldWidth, float oldHeight) override;

 private:
  float x1_ = 0;
  float y1_ = 0;
  float x2_ = 0;
  float y2_ = 0;
  OleColor colour_ = color::ButtonText;
  int drawWidth_ = 1;
};

/// A filled rectangle without a border.
class Shape final : public Graphic {
 public:
  Shape(Surface& container, std::string name);

  OleColor FillColor() const noexcept { return colour_; }
  void SetFillColor(OleColor colour);

  void Paint(Canvas& canvas) const override;

 private:
  OleColor colour_ = color::Highlight;
};

/// A picture at its natural size. Pixels in the picture's mask colour (0x00FF00FF) are left out.
class Image final : public Graphic {
 public:
  static constexpr Rgb kMask = 0x00FF00FF;

  Image(Surface& container, std::string name);

  const corvelle::Picture& Source() const noexcept { return picture_; }
  /// Takes the picture's size; an empty one leaves it.
  void SetPicture(corvelle::Picture picture);

  void Paint(Canvas& canvas) const override;
  bool TakesMouse() const noexcept override { return true; }
  void ScaleChanged() override { Fit(); }

 private:
  void Fit();
  void FindParts();
  void AddRun(const PixelRect& run);

  corvelle::Picture picture_;
  std::vector<PixelRect> parts_;  // what of the picture is not masked
};

}  // namespace corvelle::forms
