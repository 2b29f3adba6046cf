#pragma once

#include <cstdint>
#include <optional>

#include "base/Edge.h"
#include "core/WindowPorts.h"
#include "forms/Form.h"

namespace corvelle {

class OptionFile;
class TrayIcons;
struct GuardFlags;
struct ProgramPaths;
struct StripPlacement;
namespace forms {
class EventPump;
}

/// What the companion works with. All of it outlives it.
struct CompanionParts {
  forms::WindowSystem& Windows;
  TrayIcons& Tray;
  const WindowPorts& Ports;
  GuardFlags& Guards;
  StripPlacement& Strip;
  OptionFile& Options;
  const ProgramPaths& Paths;
  forms::EventPump& Events;
};

/// The hidden companion of the strip. It carries the program's title, hears what the task bar, the
/// tray and a second start have to say, and its end is the program's end.
class frmMinimize final : public forms::Form, public MinimizePort {
 public:
  explicit frmMinimize(const CompanionParts& with);

  void LoadWindow() override { static_cast<void>(Load()); }
  void UnloadWindow() override { Unload(); }
  [[nodiscard]] bool WindowLoaded() const override { return IsLoaded(); }
  /// Puts the program's icon into the tray; what the mouse does on it comes to Form_MouseMove.
  void ShowInSysTray() override;
  void RemoveFromSysTray();
  void ActivateSysTray() override;
  void DeActivateSysTray() override;
  void MinimizeFor(const TwipRect& strip) override;
  void HideCompanion() override { SetVisible(false); }
  /// Brings the strip to the foreground from another program's turn.
  void subShowToolbar();

  /// The icon is in the tray.
  bool InTray = false;
  /// The edge that the strip left for the task bar, and its top then, twips.
  std::optional<Edge> WasEdge;
  float WasTop = 0;

 protected:
  void Form_Load() override;
  /// Ends the program: every other window first, in a fixed order.
  void Form_Unload() override;
  void Form_Resize() override;
  void Form_SessionEnd() override;
  std::optional<std::intptr_t> WindowProc(std::uint32_t message, std::uintptr_t wParam,
                                          std::intptr_t lParam) override;

 private:
  void Form_MouseMove(float x);
  void WakeToolbar();
  void ReturnToEdge();
  void LeaveEdge(float top);
  void DockAnew();
  void SetMenuLevel();

  CompanionParts with_;
  bool wasMinimized_ = false;
};

}  // namespace corvelle
