#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Graphic.h"
#include "forms/Window.h"

namespace corvelle::forms {

/// A window that can be drawn on and that holds controls. What is drawn while AutoRedraw is on goes
/// into a persistent image that every repaint brings back; what is drawn while it is off goes to
/// the screen and lasts until the next paint. From back to front a paint shows the back colour, the
/// Picture, the persistent image, what the paint handler draws, and the controls without a window.
/// Measures are twips inside the border.
class Surface : public Window {
 public:
  ~Surface() override;

  OleColor BackColor() const noexcept { return backColor_; }
  /// Wipes out what was drawn.
  void SetBackColor(OleColor colour);
  bool AutoRedraw() const noexcept { return autoRedraw_; }
  void SetAutoRedraw(bool autoRedraw) noexcept { autoRedraw_ = autoRedraw; }
  const FontSpec& Font() const noexcept { return font_; }
  void SetFont(FontSpec font) { font_ = std::move(font); }

  /// Wipes out all that was drawn; the Picture stays.
  void Cls();
  /// From one point to another, the last pixel left out; `drawWidth` in pixels.
  void DrawLine(float x1, float y1, float x2, float y2, OleColor colour, int drawWidth = 1);
  /// A filled box, both corners included.
  void FillBox(float x1, float y1, float x2, float y2, OleColor colour);
  /// One line of text in the surface's font; "&" is a character like any other.
  void Print(float x, float y, std::string_view text, OleColor colour);
  void PaintPicture(const Picture& picture, float x, float y);
  /// The part of `picture` that is `width` by `height` from its upper left corner.
  void PaintPicture(const Picture& picture, float x, float y, float width, float height);

  /// Draws by pixels on whatever the surface draws on now: `draw` gets a canvas in the surface's
  /// own pixel coordinates (for icons), or is not called when there is nothing to draw on.
  void DrawPixels(const PixelRect& touched, const std::function<void(Canvas&)>& draw);

  /// A copy of the persistent image, of the size of the window's inside.
  [[nodiscard]] Picture Image() const;
  /// A background under the persistent image; empty for none. Setting it clears what was drawn.
  void SetBackground(Picture picture);
  const Picture& Background() const noexcept { return background_; }

  /// The inside of the window, in twips.
  [[nodiscard]] float ScaleWidth() const noexcept;
  [[nodiscard]] float ScaleHeight() const noexcept;

  /// Repaints a part at the next paint. Pixels of the inside.
  void Invalidate(const PixelRect& part);
  void InvalidateAll();

  /// Mouse events in twips of the inside. Whoever was pressed gets the moves and the release.
  std::function<void(MouseButton, ShiftState, float, float)> MouseDown;
  std::function<void(MouseButton, ShiftState, float, float)> MouseMove;
  std::function<void(MouseButton, ShiftState, float, float)> MouseUp;
  std::function<void()> DblClick;
  /// Where the last press was, the second one of a double click too. When its event is dealt with,
  /// the pointer may be elsewhere.
  [[nodiscard]] TwipPoint PressPlace() const;
  /// True from a press on it, or on a graphic of it, to the release or the loss of the mouse.
  [[nodiscard]] bool IsPressed() const noexcept { return down_ != MouseButton::None; }
  /// The press on the surface itself ended without a release: a message box came up, another window
  /// took the mouse, or this one was hidden. A graphic that was pressed is told instead.
  std::function<void()> CaptureLost;
  /// Drags of other programs over a surface that takes drops, in twips of the inside: over it
  /// (again and again), dropped, and gone without a drop. A control without a window that has
  /// handlers of its own gets the first two instead of its surface.
  DragHandler OLEDragOver;
  DragHandler OLEDragDrop;
  std::function<void()> OLEDragLeave;
  /// Asked to draw what is not in the persistent image.
  std::function<void()> Paint;

  /// Controls without a window, from the back to the front.
  const std::vector<Graphic*>& Graphics() const noexcept { return graphics_; }

 protected:
  Surface(WindowSystem& windows, std::string name);
  Surface(Window& container, std::string name);

  /// Pixels of border on each side that the surface paints itself; 0 for most.
  [[nodiscard]] virtual int BorderPixels() const noexcept { return 0; }

  /// What the system's frame takes of the bounds.
  [[nodiscard]] virtual FrameMargins Margins() const { return {}; }
  PixelPoint InsideOrigin() const noexcept override { return {BorderPixels(), BorderPixels()}; }

  void OnMouseDown(MouseButton button, ShiftState shift, PixelPoint at) override;
  void OnMouseMove(MouseButton down, ShiftState shift, PixelPoint at) override;
  void OnMouseUp(MouseButton button, ShiftState shift, PixelPoint at) override;
  void OnDoubleClick(PixelPoint at) override;
  void OnCaptureLost() override;
  void ToolTipChanged() override;
  void ScaleChanged() override;
  void PeerGoing() override { shownToolTip_ = ToolTip(); }
  DropEffect OnDragOver(DragData& data, DropEffect allowed, const DragPoint& where) override;
  void OnDragLeave() override;
  DropEffect OnDrop(DragData& data, DropEffect allowed, const DragPoint& where) override;
  void OnPaint(Canvas& canvas, const PixelRect& dirty) override;
  void Resized() override { InvalidateAll(); }

 private:
  friend class Graphic;
  using MouseHandler = std::function<void(MouseButton, ShiftState, float, float)>;

  void Add(Graphic& graphic);
  void Remove(Graphic& graphic);
  void Restack(Graphic& graphic, ZPlace place);
  /// The tool tip of what is under the pointer is the window's from now on.
  void ShowToolTipOf(const Graphic* graphic);
  /// The graphic will get no more of the press that is going on.
  void DropCapture(const Graphic& graphic) noexcept;

  /// Without the system's frame, and without the surface's own border too.
  [[nodiscard]] PixelSize WindowSize() const;
  [[nodiscard]] PixelSize InsideSize() const;
  [[nodiscard]] Graphic* GraphicAt(PixelPoint inside) const;
  /// Who gets a mouse event at a point of the window: a graphic, or null for the surface itself.
  [[nodiscard]] Graphic* TargetAt(PixelPoint at) const;
  void StartPress(MouseButton button, Graphic* target) noexcept;
  /// A point of the window in twips of the inside.
  [[nodiscard]] TwipPoint InsideTwips(PixelPoint at) const;
  void CallMouse(Graphic* target, MouseHandler Graphic::*ofGraphic,
                 MouseHandler Surface::*ofSurface, MouseButton button, ShiftState shift,
                 PixelPoint at);
  DropEffect CallDrag(DragHandler Graphic::*ofGraphic, const DragHandler& ofSurface, DragData& data,
                      DropEffect allowed, const DragPoint& where);

  void DrawOn(const PixelRect& touched, const std::function<void(Canvas&)>& draw);
  /// A canvas of the inside's size that shows the ground and what was drawn.
  [[nodiscard]] std::shared_ptr<Canvas> MakeImage() const;
  Canvas& PersistentToWrite();
  void DropDrawing();
  void PaintGround(Canvas& canvas, PixelSize size) const;
  void PaintInside(Canvas& canvas, const PixelRect& dirty);
  void PaintBorder(Canvas& canvas, PixelSize window) const;

  std::vector<Graphic*> graphics_;
  Graphic* captured_ = nullptr;           // the graphic that was pressed
  std::string shownToolTip_;              // of the window: its own or that of a graphic
  MouseButton down_ = MouseButton::None;  // buttons down since a press on whom it concerns
  PixelPoint pressedAt_;                  // the last press, in the window
  OleColor backColor_ = color::ButtonFace;
  FontSpec font_;
  bool autoRedraw_ = false;
  Picture background_;
  std::shared_ptr<Canvas> persistent_;  // null until something is drawn; shared with its snapshots
  Canvas* painting_ = nullptr;          // set while the paint handler runs
};

}  // namespace corvelle::forms
