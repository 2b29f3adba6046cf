#pragma once

#include "base/Geometry.h"
#include "platform/WindowId.h"
#include "toolbar/layout/StripWindow.h"

namespace corvelle {

class DesktopWindows;
class Input;
class OptionFlags;
struct GuardFlags;
struct StripPlacement;
struct WindowPorts;
namespace forms {
class EventPump;
}

/// The strip as Auto Hide sees it.
class HidingStrip : public virtual StripWindow {
 public:
  /// False while the strip is a line.
  [[nodiscard]] virtual bool ContentsVisible() const = 0;
  /// True for the strip's window and its boxes.
  [[nodiscard]] virtual bool IsPartOfStrip(WindowId window) const = 0;
  /// True while the strip, its menu or its hint is the active window.
  [[nodiscard]] virtual bool IsOursActive() const = 0;
  [[nodiscard]] virtual bool MenuUp() const = 0;
  virtual void UpdateLabelDate() = 0;
};

/// What Auto Hide works with. All of it outlives it.
struct HidingParts {
  const WindowPorts& Ports;
  GuardFlags& Guards;
  const StripPlacement& Strip;
  const OptionFlags& Options;
  const Input& Pointer;
  const DesktopWindows& Desktop;
  forms::EventPump& Events;
};

/// Auto Hide: when the strip hides and when it comes back, and its level under a full-screen
/// program.
class StripHiding {
 public:
  StripHiding(const HidingParts& with, HidingStrip& strip) : with_(with), strip_(strip) {}
  StripHiding(const StripHiding&) = delete;
  StripHiding& operator=(const StripHiding&) = delete;

  /// One look: hides a strip that the pointer left, brings it back when the pointer touches its
  /// line. Does nothing inside itself.
  void HideAndReveal();
  /// Brings the strip back though the pointer was not looked at.
  void RevealFromLine();
  /// After a strip came out of hiding under a full-screen program: it is topmost until it hides
  /// again.
  void EnsureToolbarVisible();
  /// After a strip went into hiding: under a full-screen program it is behind all again.
  void SinkAgain();

 private:
  [[nodiscard]] bool MayHide(PixelPoint pointer, WindowId under) const;
  [[nodiscard]] bool MustReveal(PixelPoint pointer, WindowId under) const;
  [[nodiscard]] PixelRect WindowPixels() const;
  [[nodiscard]] PixelSize ScreenPixels() const;

  HidingParts with_;
  HidingStrip& strip_;
};

}  // namespace corvelle
