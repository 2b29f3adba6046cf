#pragma once

#include "forms/ButtonPeer.h"
#include "sim/SimPeer.h"

namespace corvelle::sim {

/// A button, check box, option or frame, as plain as the classic ones.
class SimButton final : public SimPeerOf<forms::ButtonPeer>, public SimControl {
 public:
  SimButton(SimDesktop& desktop, WindowId window, forms::ButtonLook look,
            forms::ButtonEvents& events)
      : SimPeerOf(desktop, window), look_(look), events_(events) {}

  void SetChecked(bool checked) override;
  void SetDefault(bool isDefault) override;
  [[nodiscard]] bool Checked() const noexcept { return checked_; }

  void Paint(SimCanvas& canvas, const SimWindow& window, bool focused) const override;
  bool TakesFocus() const override { return look_ != forms::ButtonLook::Frame; }
  void Release(forms::MouseButton button, forms::ShiftState shift, PixelPoint at,
               bool over) override;
  void Key(int keyCode, forms::ShiftState shift) override;

 private:
  void PaintMark(SimCanvas& canvas, PixelSize size, Rgb ink) const;

  forms::ButtonLook look_;
  forms::ButtonEvents& events_;
  bool checked_ = false;
  bool default_ = false;
};

}  // namespace corvelle::sim
