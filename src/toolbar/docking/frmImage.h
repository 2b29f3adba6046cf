#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/WindowPorts.h"
#include "forms/Form.h"
#include "forms/Graphic.h"
#include "toolbar/layout/StripWindow.h"

namespace corvelle {

class DesktopWindows;
struct GuardFlags;
namespace forms {
class EventPump;
}

/// What the still picture works with. All of it outlives it.
struct StillPictureParts {
  forms::WindowSystem& Windows;
  DesktopWindows& Desktop;
  const WindowPorts& Ports;
  forms::EventPump& Events;
  const OptionFlags& Options;
  const GuardFlags& Guards;
};

/// A still picture on top of all windows: of the menu or the strip while it is rebuilt behind it,
/// or an outline of the strip at an edge to which it is being pulled. It is loaded on demand and
/// unloaded after each use.
class frmImage final : public forms::Form, public LoadedWindow, public CapturePort {
 public:
  frmImage(const StillPictureParts& with, StripWindow& strip);

  void LoadWindow() override { static_cast<void>(Load()); }
  void UnloadWindow() override { Unload(); }
  [[nodiscard]] bool WindowLoaded() const override { return IsLoaded(); }

  /// Freezes the menu's look; nothing when no menu is up or one is frozen already.
  void CaptureMenu() override;
  void ReleaseMenu() override;
  [[nodiscard]] bool MenuCaptured() const override { return menuCaptured_; }

  /// Freezes the strip's look: only with Option::AboveFullScreen, and not while a change of mode
  /// runs.
  void SetPicture1() override;
  void ResetPicture1() override;

  void SetPosition(Edge edge) override;
  void ClearBg() override;
  [[nodiscard]] std::optional<Edge> OutlineEdge() const override { return outline_; }

  /// The outline of the strip is being moved to another edge.
  bool MovingToolbar = false;

  // The sides of the outline: above, left, below, right.
  forms::Line bLine1;
  forms::Line bLine2;
  forms::Line bLine3;
  forms::Line bLine4;

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  /// Covers a window with what it shows now, as far as it is on the screen. False when there is
  /// nothing to show.
  bool Cover(WindowId window);
  void PlaceAt(const PixelRect& bounds);
  void ShowOutline(Edge edge);
  void ShowLines(bool visible);

  StillPictureParts with_;
  StripWindow& strip_;
  bool menuCaptured_ = false;
  std::optional<Edge> outline_;
};

}  // namespace corvelle
