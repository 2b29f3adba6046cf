#pragma once

#include <memory>
#include <string_view>

#include "sim/SimDesktop.h"

namespace corvelle::sim {

/// The desktop's side of one window of the program.
class SimPeerCore {
 public:
  SimPeerCore(SimDesktop& desktop, WindowId window) : desktop_(desktop), window_(window) {}
  SimPeerCore(const SimPeerCore&) = delete;
  SimPeerCore& operator=(const SimPeerCore&) = delete;
  ~SimPeerCore() { desktop_.Destroy(window_); }

  [[nodiscard]] WindowId Id() const noexcept { return window_; }
  [[nodiscard]] SimDesktop& Desktop() const noexcept { return desktop_; }
  [[nodiscard]] SimWindow& Window() const { return *desktop_.Get(window_); }

  void SetBounds(const PixelRect& bounds) { desktop_.SetBounds(window_, bounds); }
  void Show(forms::ShowKind kind) { desktop_.Show(window_, kind); }
  [[nodiscard]] bool IsMinimized() const { return desktop_.IsMinimized(window_); }
  void SetCaption(std::string_view caption);
  void SetEnabled(bool enabled);
  bool SetTakesDrops(bool takesDrops);
  void SetToolTip(std::string_view text) { desktop_.SetToolTip(window_, text); }
  void Invalidate(const PixelRect& part) { desktop_.Invalidate(window_, part); }
  void InvalidateAll() { desktop_.InvalidateTree(window_); }
  void PaintNow() { desktop_.PaintNow(window_); }
  void SetFocus() { desktop_.SetFocusTo(window_); }
  void SetForeground();
  [[nodiscard]] bool IsForeground() const { return desktop_.ForegroundWindow() == window_; }
  void SetZOrder(forms::ZPlace place) { desktop_.SetZOrder(window_, place); }
  void SetWindowPos(forms::InsertAfter after, unsigned flags) {
    desktop_.SetWindowPos(window_, after, flags);
  }
  std::unique_ptr<Canvas> ScreenCanvas();

 private:
  SimDesktop& desktop_;
  WindowId window_;
};

/// A peer of some kind over a window of the simulated desktop.
template <class Interface>
class SimPeerOf : public Interface {
 public:
  SimPeerOf(SimDesktop& desktop, WindowId window) : core_(desktop, window) {}
  SimPeerOf(const SimPeerOf&) = delete;
  SimPeerOf& operator=(const SimPeerOf&) = delete;

  WindowId Id() const noexcept override { return core_.Id(); }
  void SetBounds(const PixelRect& bounds) override { core_.SetBounds(bounds); }
  void Show(forms::ShowKind kind) override { core_.Show(kind); }
  bool IsMinimized() const override { return core_.IsMinimized(); }
  void SetCaption(std::string_view caption) override { core_.SetCaption(caption); }
  void SetEnabled(bool enabled) override { core_.SetEnabled(enabled); }
  void SetToolTip(std::string_view text) override { core_.SetToolTip(text); }
  bool SetTakesDrops(bool takesDrops) override { return core_.SetTakesDrops(takesDrops); }
  void Invalidate(const PixelRect& part) override { core_.Invalidate(part); }
  void PaintNow() override { core_.PaintNow(); }
  void SetFocus() override { core_.SetFocus(); }
  void SetForeground() override { core_.SetForeground(); }
  bool IsForeground() const override { return core_.IsForeground(); }
  void SetZOrder(forms::ZPlace place) override { core_.SetZOrder(place); }
  void SetWindowPos(forms::InsertAfter after, unsigned flags) override {
    core_.SetWindowPos(after, flags);
  }
  void SetLeastSize(PixelSize size) override { core_.Window().LeastSize = size; }
  void SetMenuBar(const std::vector<forms::PopupItem>& items) override {
    core_.Desktop().SetMenuBar(core_.Id(), items);
  }
  void SetDpi(int dpi) override {
    core_.Window().Dpi = dpi;
    core_.InvalidateAll();
  }
  std::unique_ptr<Canvas> ScreenCanvas() override { return core_.ScreenCanvas(); }

 protected:
  [[nodiscard]] SimDesktop& Desktop() const noexcept { return core_.Desktop(); }
  [[nodiscard]] SimWindow& Window() const { return core_.Window(); }
  /// What it shows has changed.
  void Changed() { core_.InvalidateAll(); }

 private:
  SimPeerCore core_;
};

/// The peer of a form or picture box.
using SimPeer = SimPeerOf<forms::WindowPeer>;

}  // namespace corvelle::sim
