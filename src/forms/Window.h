#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "forms/Alive.h"
#include "forms/Control.h"
#include "forms/WindowSystem.h"

namespace corvelle::forms {

/// A control with a window of its own: the base of forms, picture boxes and all that take the
/// focus. The peer exists while the form is loaded; without it all properties can be set and asked,
/// and are handed to the peer when it is made.
class Window : public Control, protected WindowEvents {
 public:
  ~Window() override;

  /// The window's handle; none while it is not loaded.
  [[nodiscard]] WindowId hWnd() const noexcept;

  /// Paints now all that has changed.
  void Refresh();
  void SetFocus();
  void ZOrder(ZPlace place) override;

  WindowSystem& Windows() const noexcept { return windows_; }

  /// From here to ReleaseInput the window takes neither mouse nor keyboard, whatever Enabled says;
  /// changes of Enabled take effect afterwards. Several holds count.
  void HoldInput();
  /// The same for the owner of a message box, which the box itself disables and enables again:
  /// only the changes of Enabled wait.
  void HoldInputOfOwner() { ++inputHolds_; }
  void ReleaseInput();

  /// Drags of other programs come to this window. Without it, as at first, they go to the window
  /// around it, if that takes them.
  [[nodiscard]] bool TakesDrops() const noexcept { return takesDrops_; }
  void SetTakesDrops(bool takesDrops);

 protected:
  Window(WindowSystem& windows, std::string name) : Control(std::move(name)), windows_(windows) {}

  WindowPeer* Peer() const noexcept { return peer_.get(); }
  /// Where the container's inside begins in its window, in pixels.
  [[nodiscard]] virtual PixelPoint ContainerOrigin() const noexcept { return {}; }
  /// The bounds in pixels that the peer is to have.
  [[nodiscard]] PixelRect PixelBounds() const;
  /// False when the system refuses the window.
  [[nodiscard]] bool CreatePeer(PeerKind kind, WindowPeer* parent, bool inTaskbar);
  void DestroyPeer();

  void VisibleChanged() override;
  void EnabledChanged() override;
  void BoundsChanged(float oldLeft, float oldTop, float oldWidth, float oldHeight) override;

  /// Asks whether this window still stands after a handler ran.
  [[nodiscard]] Alive::Watch MakeWatch() const { return alive_.MakeWatch(); }

  // Events that a kind of window may have no use for.
  void OnMouseDown(MouseButton, ShiftState, PixelPoint) override {}
  void OnMouseMove(MouseButton, ShiftState, PixelPoint) override {}
  void OnMouseUp(MouseButton, ShiftState, PixelPoint) override {}
  void OnDoubleClick(PixelPoint) override {}
  void OnKeyDown(int, ShiftState) override {}
  void OnKeyPress(char32_t) override {}
  void OnPaint(Canvas&, const PixelRect&) override {}
  void OnMoved(const PixelRect& bounds) override;
  /// The window has another size in pixels.
  virtual void Resized() {}
  void OnActivated(bool) override {}
  void OnClose() override {}
  void OnSessionEnd() override {}
  std::optional<std::intptr_t> OnMessage(std::uint32_t, std::uintptr_t, std::intptr_t) override {
    return std::nullopt;
  }

 private:
  WindowSystem& windows_;
  Alive alive_;
  std::unique_ptr<WindowPeer> peer_;
  bool takesDrops_ = false;
  int inputHolds_ = 0;
  PixelRect shownBounds_;  // as the peer last told
};

}  // namespace corvelle::forms
