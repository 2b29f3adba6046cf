#pragma once

#include <string>
#include <string_view>

#include "base/Edge.h"
#include "base/Geometry.h"
#include "base/Twips.h"
#include "core/WindowPorts.h"
#include "platform/AppBars.h"
#include "toolbar/docking/AppBarRules.h"
#include "toolbar/docking/DockedStrip.h"

namespace corvelle {

class DesktopWindows;
class EntryCarry;
class MessageBoxes;
struct GuardFlags;
struct StripPlacement;
namespace forms {
class EventPump;
}

/// What docking works with. All of it outlives it.
struct AppBarParts {
  AppBars& Bars;
  const DesktopWindows& Desktop;
  const WindowPorts& Ports;
  GuardFlags& Guards;
  StripPlacement& Strip;
  OptionFlags& Options;
  const EntryCarry& Carry;
  MessageBoxes& Messages;
  forms::EventPump& Events;
};

/// The strip as an application desktop toolbar: it is registered with the shell, keeps a screen
/// edge for itself or hides there behind a line of one pixel, and follows the shell's notices.
/// Screen rectangles are pixels, the strip's own measures twips. What the shell answers is used
/// unchanged: the only failure that is told to the user is an edge at which another window hides
/// already.
class mAppBar final : public DockingPort {
 public:
  mAppBar(const AppBarParts& with, DockedStrip& strip)
      : with_(with), strip_(strip), window_(strip.AsForm()) {}
  mAppBar(const mAppBar&) = delete;
  mAppBar& operator=(const mAppBar&) = delete;

  void RegisterAppBar() override;
  void RemoveAppBar() override;
  void EndAppBar() override;
  void LeaveEdge() override;
  [[nodiscard]] bool AutoHideFree(Edge edge) override;
  void SetAppBar(std::optional<Edge> edge, bool rebuild) override;
  void HideToolbar() override;
  void RevealToolbar() override;
  void ShowAutoHideTaken() override;
  void ResizeToEdge() override;

  /// Keeps room at the edge and puts the strip there, on top of all windows.
  void DockAppBar(Edge edge);
  /// Puts the strip at the edge and keeps no room, so that other windows may cover it.
  void DockNotOnTop(Edge edge);
  /// Shrinks the strip to a line at the edge and claims the edge for hiding. False when another
  /// window hides there: the user was told, and the strip is docked in full sight.
  bool AutoHideAppBar(Edge edge);
  /// The answer to the news that bars have moved. True when it dealt with the change.
  bool AppBarPosChanged();

 private:
  std::uintptr_t Send(std::uint32_t message);
  void GiveUpHiding();
  void Remove();
  [[nodiscard]] bool Waits() const;
  void ReturnTo(Edge edge);
  void TurnTo(Edge edge, bool rebuild);
  void PlaceAt(Edge at);
  void FinishPlacing(Edge at);
  void ComeOutOfHiding();
  /// The whole edge by the strip's thickness as it is.
  [[nodiscard]] PixelSize WholeEdge(Edge at) const;
  /// Asks the shell for room at the edge.
  BarPlace AskForPlace(Edge at, PixelSize bar, bool mayLift);
  /// Keeps that room, or what the shell gives instead.
  BarPlace KeepPlace(Edge at, PixelSize bar, bool mayLift);
  void StandAt(Edge at, bool keepsRoom);
  void MoveWindow(const PixelRect& bounds);
  void StretchSingles(Edge at);
  void PinHere();
  [[nodiscard]] Edge CurrentEdge() const;
  [[nodiscard]] TwipSize Twips() const;
  [[nodiscard]] PixelSize ScreenPixels() const;

  AppBarParts with_;
  DockedStrip& strip_;
  forms::Form& window_;
  /// Kept for the whole run. Its lParam remembers that the strip has claimed uEdge for hiding.
  AppBarRecord AppBarData;
  /// The shell keeps room for the strip.
  bool keepsRoom_ = false;
  /// How thick the strip's line was when it hid last. Pixels.
  int line_ = 1;
};

}  // namespace corvelle
