#pragma once

#include "forms/ScrollBarPeer.h"
#include "sim/SimPeer.h"

namespace corvelle::sim {

/// An upright scroll bar: an arrow of kArrow pixels at either end, a thumb between them.
class SimScrollBar final : public SimPeerOf<forms::ScrollBarPeer>, public SimControl {
 public:
  static constexpr int kArrow = 16;

  SimScrollBar(SimDesktop& desktop, WindowId window, forms::ScrollBarEvents& events)
      : SimPeerOf(desktop, window), events_(events) {}

  void SetRange(const forms::ScrollRange& range) override;

  void Paint(SimCanvas& canvas, const SimWindow& window, bool focused) const override;
  bool TakesFocus() const override { return false; }
  void Press(forms::MouseButton button, forms::ShiftState shift, PixelPoint at,
             bool second) override;
  void MouseMove(forms::MouseButton down, PixelPoint at) override;
  void Release(forms::MouseButton button, forms::ShiftState shift, PixelPoint at,
               bool over) override;
  void CaptureLost() override { dragging_ = false; }

 private:
  [[nodiscard]] PixelRect Thumb() const;
  /// The value whose thumb begins at this height.
  [[nodiscard]] int ValueAt(int top) const;

  forms::ScrollBarEvents& events_;
  forms::ScrollRange range_;
  bool dragging_ = false;
  int grip_ = 0;  // where in the thumb it was pressed
};

}  // namespace corvelle::sim
