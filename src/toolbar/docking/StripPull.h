#pragma once

#include <string_view>

#include "base/Edge.h"
#include "base/Geometry.h"
#include "core/HeldButton.h"
#include "forms/Types.h"
#include "toolbar/layout/StripWindow.h"

namespace corvelle {

class EntryCarry;
class Input;
struct GuardFlags;
struct StripPlacement;
struct WindowPorts;

/// What a pull of the frame needs of the strip.
class PulledStrip : public virtual StripWindow {
 public:
  /// Size of the box of menu buttons.
  [[nodiscard]] virtual TwipSize ButtonBox() const = 0;
  /// False while the strip is a line.
  [[nodiscard]] virtual bool ContentsVisible() const = 0;
  [[nodiscard]] virtual bool MenuUp() const = 0;
  virtual void ResetMenu() = 0;
  /// The timer that also looks for a lost release.
  virtual void WatchHiding(bool enabled) = 0;
  /// The border at rest, and while the strip is pulled.
  virtual void DrawBorders() = 0;
  virtual void DrawDragLook() = 0;
  /// The strip stays where it was left along the top, as far as the screen and the options let it.
  virtual void EndSlide() = 0;
  /// The timer that follows the pointer over the strip.
  virtual void SetPointerWatch(bool enabled) = 0;
};

/// What a pull works with. All of it outlives it.
struct PullParts {
  const WindowPorts& Ports;
  GuardFlags& Guards;
  const StripPlacement& Strip;
  const EntryCarry& Carry;
  const Input& Pointer;
};

/// A pull of the strip's frame or grip: slides a strip along the top, or takes it to an edge.
/// Points are twips of the strip's window.
class StripPull {
 public:
  StripPull(const PullParts& with, PulledStrip& strip) : with_(with), strip_(strip) {}
  StripPull(const StripPull&) = delete;
  StripPull& operator=(const StripPull&) = delete;

  void MouseDown(forms::MouseButton button, float x, float y);
  void MouseMove(forms::MouseButton down, float x, float y);
  void MouseUp(forms::MouseButton button);
  /// Follows the pointer while the frame is held, unless the strip is being placed.
  void Follow(forms::MouseButton down, float x, float y);

  /// True for the other button beside a pull with the left one: it does nothing.
  [[nodiscard]] bool IsBesidePull(forms::MouseButton button) const;
  /// The frame is held no more; nothing else changes.
  void LetFrameGo();
  /// Ends a pull for which no release will come: nothing moves any more, and the outline goes.
  void AbandonPull();
  /// The same; a strip that was slid stays where the screen and the options let it.
  void EndLostPull();
  /// A message, a menu or another window took the mouse while the frame was held.
  void LosePress();
  /// Ends a pull when no button has been down for a moment and no event has told so: a strip that
  /// is rebuilt during the pull, or one of two buttons that goes up, leaves the frame held.
  void WatchPull();
  /// Forgets a move of before, as the pointer comes to something else.
  void ForgetMove() noexcept { FrameMoved = false; }
  /// Ends a move of the strip: it takes the place that the screen and the options let it have.
  void AdjustToolbarPosition();
  /// The popup of the bare strip.
  void ShowFramePopup(std::string_view tag);

  /// The pointer at the press on the frame, and the same less the size of the button box.
  float DownX = 0;
  float DownY = 0;
  float GrabX = 0;
  float GrabY = 0;
  /// The pointer went more than 3 pixels from the press on the frame.
  bool FrameMoved = false;
  bool FrameDragging = false;
  /// A mouse button went down on the frame and is still down.
  bool FrameHeld = false;

 private:
  /// Shows where the strip would go, and what a pull along its own edge looks like.
  void FollowPull();
  void ClearOutline();
  /// Goes to the edge of the outline. False when no outline is shown.
  bool EndPull();
  void PutOutlineAway();

  PullParts with_;
  PulledStrip& strip_;
  AbandonWatch watch_;
};

}  // namespace corvelle
