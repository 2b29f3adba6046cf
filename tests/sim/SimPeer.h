#pragma once

#include <memory>
#include <string_view>

#include "sim/SimDesktop.h"

namespace corvelle::sim {

/// The desktop's side of one window of the program.
class SimPeer final : public forms::WindowPeer {
 public:
  SimPeer(SimDesktop& desktop, WindowId window) : desktop_(desktop), window_(window) {}
  SimPeer(const SimPeer&) = delete;
  SimPeer& operator=(const SimPeer&) = delete;
  ~SimPeer() override { desktop_.Destroy(window_); }

  WindowId Id() const noexcept override { return window_; }
  void SetBounds(const PixelRect& bounds) override { desktop_.SetBounds(window_, bounds); }
  void Show(forms::ShowKind kind) override { desktop_.Show(window_, kind); }
  bool IsMinimized() const override { return desktop_.IsMinimized(window_); }
  void SetCaption(std::string_view caption) override;
  void SetEnabled(bool enabled) override;
  bool SetTakesDrops(bool takesDrops) override;
  void SetChecked(bool checked) override;
  void Invalidate(const PixelRect& part) override { desktop_.Invalidate(window_, part); }
  void PaintNow() override { desktop_.PaintNow(window_); }
  void SetFocus() override { desktop_.SetFocusTo(window_); }
  void SetForeground() override;
  void SetZOrder(forms::ZPlace place) override { desktop_.SetZOrder(window_, place); }
  void SetWindowPos(forms::InsertAfter after, unsigned flags) override {
    desktop_.SetWindowPos(window_, after, flags);
  }
  std::unique_ptr<Canvas> ScreenCanvas() override;

 private:
  SimDesktop& desktop_;
  WindowId window_;
};

}  // namespace corvelle::sim
