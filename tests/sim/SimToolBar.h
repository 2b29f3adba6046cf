#pragma once

#include <memory>
#include <vector>

#include "forms/ToolBarPeer.h"
#include "sim/SimPeer.h"

namespace corvelle::sim {

class SimToolBar final : public SimPeerOf<forms::ToolBarPeer>, public SimControl {
 public:
  SimToolBar(SimDesktop& desktop, WindowId window, forms::ToolBarEvents& events)
      : SimPeerOf(desktop, window), events_(events) {}

  void AddImage(const Canvas& image) override;
  void Add(const forms::ToolBarButton& button) override;
  void SetButton(int at, bool enabled, bool checked) override;
  PixelRect ButtonRect(int at) const override;

  [[nodiscard]] const std::vector<forms::ToolBarButton>& Buttons() const noexcept {
    return buttons_;
  }
  void Paint(SimCanvas& canvas, const SimWindow& window, bool focused) const override;
  bool TakesFocus() const override { return false; }
  void Press(forms::MouseButton button, forms::ShiftState shift, PixelPoint at,
             bool second) override;
  void Release(forms::MouseButton button, forms::ShiftState shift, PixelPoint at,
               bool over) override;
  void CaptureLost() override { pressed_ = -1; }
  std::string ToolTipAt(PixelPoint at) const override;

 private:
  [[nodiscard]] int ButtonAt(PixelPoint at) const;

  forms::ToolBarEvents& events_;
  std::vector<std::shared_ptr<SimCanvas>> images_;
  std::vector<forms::ToolBarButton> buttons_;
  int pressed_ = -1;
};

}  // namespace corvelle::sim
