#pragma once

#include <memory>
#include <string_view>

#include "forms/WindowSystem.h"
#include "win32/Win32Window.h"

namespace corvelle::win32 {

class Win32WindowSystem;

/// What a form or picture box asks of its window.
class Win32Peer final : public forms::WindowPeer {
 public:
  Win32Peer(Win32WindowSystem& system, std::shared_ptr<Win32Window> window)
      : system_(system), window_(std::move(window)) {}
  Win32Peer(const Win32Peer&) = delete;
  Win32Peer& operator=(const Win32Peer&) = delete;
  ~Win32Peer() override { window_->Destroy(); }

  WindowId Id() const noexcept override { return ToId(window_->Handle()); }
  void SetBounds(const PixelRect& bounds) override;
  void Show(forms::ShowKind kind) override;
  bool IsMinimized() const override;
  void SetCaption(std::string_view caption) override;
  void SetEnabled(bool enabled) override;
  bool SetTakesDrops(bool takesDrops) override { return window_->SetTakesDrops(takesDrops); }
  void SetChecked(bool checked) override;
  void Invalidate(const PixelRect& part) override;
  void PaintNow() override;
  void SetFocus() override;
  void SetForeground() override;
  void SetZOrder(forms::ZPlace place) override;
  void SetWindowPos(forms::InsertAfter after, unsigned flags) override;
  std::unique_ptr<Canvas> ScreenCanvas() override;

 private:
  HWND Handle() const noexcept { return window_->Handle(); }
  void SetRestoredBounds(const PixelRect& bounds);

  Win32WindowSystem& system_;
  std::shared_ptr<Win32Window> window_;
};

}  // namespace corvelle::win32
