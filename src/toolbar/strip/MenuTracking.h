#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/Geometry.h"
#include "base/Twips.h"
#include "forms/Types.h"
#include "platform/WindowId.h"
#include "toolbar/layout/StripPlace.h"
#include "toolbar/layout/StripWindow.h"
#include "toolbar/strip/HintTimes.h"

namespace corvelle {

class ButtonRow;
class DesktopWindows;
class EntryCarry;
class Input;
class OptionFlags;
struct DragState;
struct GuardFlags;
struct MenuState;
struct StripPlacement;
struct WindowPorts;
class StripPull;
namespace forms {
class PictureBox;
class Timer;
}  // namespace forms

/// The strip as the tracking of its menus sees it.
class TrackedStrip : public virtual StripWindow {
 public:
  /// The box of the single buttons.
  [[nodiscard]] virtual forms::PictureBox& SinglesBox() noexcept = 0;
  /// The pointer is over the row of single buttons, or was released there.
  virtual void RowMouseMove() = 0;
  virtual void RowMouseUp(forms::MouseButton button, forms::ShiftState shift, float x, float y) = 0;
  /// Looks whether the release of what is carried went to another program.
  virtual void WatchCarry() = 0;
  /// Puts a floating strip where it belongs, or keeps its hidden line.
  virtual void CheckToolbarMove() = 0;
  /// Shows the window in front, without making it active, if it is hidden.
  virtual void ShowToolbar() = 0;
};

/// What the tracking of menus works with. All of it outlives it.
struct TrackingParts {
  const OptionFlags& Options;
  const StripPlacement& Strip;
  DesktopWindows& Desktop;
  const Input& Pointer;
  const WindowPorts& Ports;
  GuardFlags& Guards;
  MenuState& Menu;
  DragState& Drag;
  EntryCarry& Carry;
};

/// The menus of the strip's buttons: opening, following the pointer, handing it to the menu window,
/// placing and closing. It alone decides whether the pointer is the strip's or the menu's. Floats
/// are twips, points of the screen pixels.
class MenuTracking {
 public:
  MenuTracking(const TrackingParts& with, TrackedStrip& strip, ButtonRow& buttons, StripPull& pull,
               forms::PictureBox& picToolbar, forms::Timer& timer2);
  MenuTracking(const MenuTracking&) = delete;
  MenuTracking& operator=(const MenuTracking&) = delete;

  // ---- menus (MenuTracking.cpp) ----

  [[nodiscard]] bool MenuUp() const;
  /// True if a press on the button has a menu to open.
  [[nodiscard]] bool OpensMenu(int button) const;
  /// Index of the button that owns the menu, 0 for none.
  [[nodiscard]] int MenuOwner() const;
  /// Opens the menu of a button, or closes it when it is up.
  void ShowMenu(int button);
  /// Opens a menu from its tag; an empty one takes the last.
  void OpenMenu(std::string_view tag);
  /// Builds a menu that is up again, after its file changed. An empty tag takes the last one.
  void RefreshMenu(std::string_view tag);
  /// Drops a built menu from the cache.
  void RemoveQMenu(std::string_view tag);
  /// Closes any open menu and restores the look of the buttons.
  void ResetMenu();
  /// Places the menu window against the strip.
  void SetMenuPosition();
  /// Where the top of a menu of the current button goes.
  [[nodiscard]] float TopOfMenu() const;

  // ---- the pointer (MenuTrackingPointer.cpp) ----

  /// Sets CurButton by the pointer's place on the screen.
  void GetCurButton();
  void FindCurButton(PixelPoint pointer);
  /// Shows CurButton pressed and all others at rest.
  void SetButtonBorders();
  void picToolbar_MouseDown(forms::MouseButton button, float x, float y);
  void picToolbar_MouseMove(forms::MouseButton down, float x, float y);
  void picToolbar_MouseUp(forms::MouseButton button, forms::ShiftState shift, float x, float y);
  void picToolbar_DblClick();
  /// Opens the menu of the current button, or closes it when it is up.
  void PressCurButton();
  /// The pointer has come to a button while menus are tracked: its menu is shown.
  void HoverButton(int button);
  /// Follows the pointer while a menu or a hint is up.
  void Timer2_Timer();
  /// True while the strip, its menu or its hint is the active window.
  [[nodiscard]] bool IsOursActive() const;
  [[nodiscard]] bool IsOverMenu(WindowId window) const;
  /// The next move over the buttons begins to hover again.
  void EndHovering() noexcept { WasHovering = false; }

  /// The next hover changes the menu: one was opened by a press.
  bool MenuOpening = false;
  /// A press has just closed the menu of this button.
  bool LastOpenFlag = false;
  int LastOpenButton = 0;
  /// Pointer tracking has started.
  bool WasHovering = false;
  bool MenuRefreshing = false;
  HintTimes Hint;

 private:
  /// Where a menu of that size goes; nothing without a button that it belongs to.
  [[nodiscard]] std::optional<MenuSpot> SpotFor(const TwipSize& menu) const;
  void ShowMenuOf(int button);
  void ReopenMenu(const std::string& tag);
  /// The strip becomes active if the menu is.
  void TakeOverFromMenu();
  void HideMenuWindow();
  void HideMenuWhileTracking();

  /// A point of the screen in the inside of the menu.
  [[nodiscard]] TwipPoint InMenu(PixelPoint pointer) const;
  /// The point of the screen that a place in the buttons' box was when an event told it.
  [[nodiscard]] PixelPoint InBox(float x, float y) const;
  [[nodiscard]] WindowId WindowUnder(PixelPoint pointer) const;
  /// True if the user has gone to another program's window.
  [[nodiscard]] bool HasLeft(WindowId under) const;
  /// The left button went down at a point of the screen.
  void PressAt(PixelPoint at);
  void StartHovering();
  /// A release over the menu is a choice there. False when the pointer is not over the menu.
  bool ReleaseInMenu(forms::MouseButton button, forms::ShiftState shift, PixelPoint at);
  void ShowButtonPopup();
  void AnnounceHint();
  void TakeHintDown();
  void KeepHintTimes(WindowId under);

  TrackingParts with_;
  TrackedStrip& strip_;
  forms::Form& window_;
  ButtonRow& buttons_;
  StripPull& pull_;
  forms::PictureBox& picToolbar_;
  forms::Timer& timer2_;
  std::string lastTag_;         // of the menu that was opened last
  TwipPoint menuAt_;            // where the menu window was placed
  PixelPoint pressedPlace_;     // where the buttons' box was pressed last, on the screen
  std::int64_t pressedAt_ = 0;  // when a press or a hover last opened a menu, ms
};

}  // namespace corvelle
