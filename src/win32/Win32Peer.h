#pragma once

#include <memory>
#include <string_view>

#include "forms/WindowSystem.h"
#include "win32/Win32Window.h"

namespace corvelle::win32 {

class Win32WindowSystem;

/// What any peer asks of its window.
class Win32PeerCore {
 public:
  Win32PeerCore(Win32WindowSystem& system, std::shared_ptr<Win32Window> window)
      : system_(system), window_(std::move(window)) {}
  Win32PeerCore(const Win32PeerCore&) = delete;
  Win32PeerCore& operator=(const Win32PeerCore&) = delete;
  ~Win32PeerCore() { window_->Destroy(); }

  [[nodiscard]] HWND Handle() const noexcept { return window_->Handle(); }
  [[nodiscard]] Win32Window& Window() const noexcept { return *window_; }

  void SetBounds(const PixelRect& bounds);
  void Show(forms::ShowKind kind);
  [[nodiscard]] bool IsMinimized() const;
  void SetCaption(std::string_view caption);
  void SetEnabled(bool enabled);
  void Invalidate(const PixelRect& part);
  void PaintNow();
  void SetFocus();
  void SetForeground();
  [[nodiscard]] bool IsForeground() const;
  void SetZOrder(forms::ZPlace place);
  void SetWindowPos(forms::InsertAfter after, unsigned flags);
  std::unique_ptr<Canvas> ScreenCanvas();

 private:
  void SetRestoredBounds(const PixelRect& bounds);

  Win32WindowSystem& system_;
  std::shared_ptr<Win32Window> window_;
};

/// A peer of some kind over a window of the system. `WindowKind` is the window's class.
template <class Interface, class WindowKind = Win32Window>
class Win32PeerOf : public Interface {
 public:
  Win32PeerOf(Win32WindowSystem& system, std::shared_ptr<WindowKind> window)
      : core_(system, std::move(window)) {}
  Win32PeerOf(const Win32PeerOf&) = delete;
  Win32PeerOf& operator=(const Win32PeerOf&) = delete;

  WindowId Id() const noexcept override { return ToId(core_.Handle()); }
  void SetBounds(const PixelRect& bounds) override { core_.SetBounds(bounds); }
  void Show(forms::ShowKind kind) override { core_.Show(kind); }
  bool IsMinimized() const override { return core_.IsMinimized(); }
  void SetCaption(std::string_view caption) override { core_.SetCaption(caption); }
  void SetEnabled(bool enabled) override { core_.SetEnabled(enabled); }
  void SetToolTip(std::string_view text) override { core_.Window().SetToolTip(text); }
  bool SetTakesDrops(bool takesDrops) override { return core_.Window().SetTakesDrops(takesDrops); }
  void Invalidate(const PixelRect& part) override { core_.Invalidate(part); }
  void PaintNow() override { core_.PaintNow(); }
  void SetFocus() override { core_.SetFocus(); }
  void SetForeground() override { core_.SetForeground(); }
  bool IsForeground() const override { return core_.IsForeground(); }
  void SetZOrder(forms::ZPlace place) override { core_.SetZOrder(place); }
  void SetWindowPos(forms::InsertAfter after, unsigned flags) override {
    core_.SetWindowPos(after, flags);
  }
  void SetLeastSize(PixelSize size) override { core_.Window().SetLeastSize(size); }
  void SetMenuBar(const std::vector<forms::PopupItem>& items) override {
    core_.Window().SetMenuBar(items);
  }
  void SetDpi(int dpi) override { core_.Window().SetDpi(dpi); }
  std::unique_ptr<Canvas> ScreenCanvas() override { return core_.ScreenCanvas(); }

 protected:
  [[nodiscard]] HWND Handle() const noexcept { return core_.Handle(); }
  [[nodiscard]] WindowKind& Window() const noexcept {
    return static_cast<WindowKind&>(core_.Window());
  }

 private:
  Win32PeerCore core_;
};

/// The peer of a form or picture box.
using Win32Peer = Win32PeerOf<forms::WindowPeer>;

}  // namespace corvelle::win32
