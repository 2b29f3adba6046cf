#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/Geometry.h"
#include "forms/ControlArray.h"
#include "forms/Types.h"
#include "platform/WindowId.h"
#include "toolbar/layout/StripWindow.h"

namespace corvelle {

namespace forms {
class Label;
class Line;
class PictureBox;
}  // namespace forms

/// The strip's controls that the row of single buttons has to itself.
struct RowControls {
  forms::PictureBox& Box;
  // Lines in the box: element 0 is before the date, the others are separators.
  forms::ControlArray<forms::Line>& Line1;
  forms::ControlArray<forms::Line>& Line2;
  forms::Line& LineLeft;
  forms::Label& lblDate;
};

/// The strip as the row of single buttons sees it: what is beside the row, and what the row asks of
/// it.
class RowHost : public virtual StripWindow {
 public:
  /// The box of the menu buttons, beside which the row is.
  [[nodiscard]] virtual const forms::PictureBox& ButtonsBox() const noexcept = 0;
  /// Sizes and places everything.
  virtual void SetToolbar() = 0;
  /// A move of the pointer over the bare parts of the row, which are the strip's frame. Twips of
  /// the strip's window.
  virtual void FrameMouseMove(forms::MouseButton down, float x, float y) = 0;

  [[nodiscard]] virtual bool IsOverMenu(WindowId window) const = 0;
  virtual void ResetMenu() = 0;
  virtual void RemoveQMenu(std::string_view tag) = 0;
  /// The pointer has left the menu buttons for the row.
  virtual void EndHovering() = 0;
  /// The timer that follows the pointer over the strip.
  virtual void SetPointerWatch(bool enabled) = 0;

  /// Index of the menu button at a point of the screen, 0 for none.
  [[nodiscard]] virtual int ButtonUnder(PixelPoint pointer) const = 0;
  /// Something that is carried from the row is over the menu buttons. Twips of their box.
  virtual void CarryOverButtons(forms::MouseButton down, forms::ShiftState shift, float x,
                                float y) = 0;
  virtual void DoButtonDrag(int button, forms::MouseButton released) = 0;
  /// The same on the row itself.
  virtual void DropOnRow(forms::MouseButton released) = 0;
  virtual void TellRefused(std::vector<std::string> files) = 0;
};

}  // namespace corvelle
