#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/Alive.h"
#include "forms/Control.h"
#include "forms/DialogKeys.h"
#include "forms/WindowSystem.h"

namespace corvelle::forms {

class Form;
class OptionButton;

/// A control with a window of its own: the base of forms, picture boxes and all that take the
/// focus. Any window may hold others, which it outlives. The peer exists while the form is loaded;
/// without it all properties can be set and asked, and are handed to the peer when it is made.
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

  /// The scale that this window is laid out for, in dots of an inch: that of its form.
  [[nodiscard]] int Dpi() const noexcept;
  /// The same in twips.
  [[nodiscard]] PixelScale Scale() const noexcept;
  /// The screen by that scale. Asks the system for its size: whoever wants only the scale asks for
  /// that.
  [[nodiscard]] ScreenInfo Screen() const;
  /// A font as large as it is in this window.
  [[nodiscard]] ScaledFont Scaled(const FontSpec& font = {}) const { return {font, Dpi()}; }
  /// Size in pixels of one line of text in this window.
  [[nodiscard]] PixelSize MeasureText(std::string_view text, const FontSpec& font = {}) const;

  /// The window around this one; null for a form.
  [[nodiscard]] Window* Container() const noexcept { return container_; }
  /// The windows inside this one, in the order in which they were made.
  [[nodiscard]] const std::vector<Window*>& Children() const noexcept { return children_; }
  /// This window if it is an option button, which looks for those of its group; else null.
  [[nodiscard]] virtual OptionButton* AsOption() noexcept { return nullptr; }

  /// Tab and Shift+Tab stop here, and the keys follow the rules of dialogs. Controls that take keys
  /// stop the Tab key from the start.
  [[nodiscard]] bool TabStop() const noexcept { return tabStop_; }
  void SetTabStop(bool tabStop) noexcept { tabStop_ = tabStop; }
  /// The window has the keyboard. A control that is hidden or disabled hands it to the next one, a
  /// page of tabs to its tabs.
  [[nodiscard]] bool HasFocus() const noexcept { return hasFocus_; }

  /// The window has the focus, or has it no more.
  std::function<void()> GotFocus;
  std::function<void()> LostFocus;
  /// A key or character for a window that the Tab key reaches, before anything becomes of it. True
  /// uses it up.
  std::function<bool(int keyCode, ShiftState shift)> KeyDown;
  std::function<bool(char32_t character)> KeyPress;
  /// A key went up while the window had the focus.
  std::function<void(int keyCode, ShiftState shift)> KeyUp;
  /// The wheel was turned: 120 is one notch, away from the user. True uses it up; otherwise the
  /// container gets it.
  std::function<bool(int delta, ShiftState shift)> Wheel;

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
  Window(WindowSystem& windows, std::string name);
  Window(Window& container, std::string name);

  WindowPeer* Peer() const noexcept { return peer_.get(); }
  /// The form that this window is or lies in.
  [[nodiscard]] Form& OwnForm();
  /// Where the insides of this window begin in it, in pixels.
  [[nodiscard]] virtual PixelPoint InsideOrigin() const noexcept { return {}; }
  /// The bounds in pixels that the peer is to have.
  [[nodiscard]] PixelRect PixelBounds() const;

  /// Gives a window without a container, and all inside it, another scale. Its corner stays where
  /// it is in pixels, its size stays in twips.
  void ChangeDpi(int dpi);
  /// The scale is another one, of this window and of what lies around it.
  virtual void ScaleChanged();

  /// Makes the peer in `parent`. Null when the system refuses.
  virtual std::unique_ptr<WindowPeer> NewPeer(WindowPeer* parent) = 0;
  /// The peer was made and is to show what the window holds.
  virtual void PeerMade() {}
  /// The peer is about to go.
  virtual void PeerGoing() {}
  /// Makes this window and all inside it. False when the system refuses one.
  [[nodiscard]] bool CreateWindows(WindowPeer* parent);
  void DestroyWindows();
  /// What a peer of this window is asked for.
  [[nodiscard]] PeerSpec SpecIn(WindowPeer* parent) const;

  void VisibleChanged() override;
  void EnabledChanged() override;
  void ToolTipChanged() override;
  void BoundsChanged(float oldLeft, float oldTop, float oldWidth, float oldHeight) override;

  /// Tells after a handler ran whether this window still exists.
  [[nodiscard]] Alive::Watch MakeWatch() const { return alive_.MakeWatch(); }

  /// What the rules of the keyboard need to know.
  [[nodiscard]] virtual KeyFacts Keys() const { return {}; }
  /// The Tab key stops here now. All around it can be seen and is enabled.
  [[nodiscard]] virtual bool StopsTab() const noexcept { return tabStop_; }
  /// Enter, Esc or the access key presses this window, which has the focus if it takes it.
  virtual void PressByKey() {}
  /// An arrow goes on or back in the group of this window.
  virtual void MoveInGroup(int /*step*/) {}
  /// Goes on or back by tabs, where there are some.
  virtual void ChangeTab(int /*step*/) {}
  /// True if this is `around` or lies in it.
  [[nodiscard]] bool IsWithin(const Window& around) const noexcept;
  /// True if this or one in it has the focus and stops the Tab key.
  [[nodiscard]] bool HoldsFocus() const noexcept;
  /// Gives the focus to the first window inside that takes it.
  void FocusFirst();
  /// The Tab key brought the focus.
  virtual void TabbedInto() {}
  /// The context menu is asked for, at a point of the window in pixels. False when the window has
  /// no context menu.
  virtual bool MenuAsked(PixelPoint /*at*/, bool /*byKey*/) { return false; }

  // Events that a kind of window may have no use for.
  void OnMouseDown(MouseButton, ShiftState, PixelPoint) override {}
  void OnMouseMove(MouseButton, ShiftState, PixelPoint) override {}
  void OnMouseUp(MouseButton, ShiftState, PixelPoint) override {}
  void OnDoubleClick(PixelPoint) override {}
  void OnKeyDown(int, ShiftState) override {}
  void OnKeyPress(char32_t) override {}
  void OnKeyUp(int keyCode, ShiftState shift) override;
  bool OnControlKey(int keyCode, ShiftState shift) override;
  bool OnControlCharacter(char32_t character) override;
  void OnFocus(bool gained) override;
  bool OnWheel(int delta, ShiftState shift) override;
  bool OnContextMenu(PixelPoint at) override { return MenuAsked(at, false); }
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
  friend class Form;

  /// Before the window is hidden or disabled. False when a handler has destroyed it.
  [[nodiscard]] bool KeepsAfterPassingFocus();

  WindowSystem& windows_;
  Window* container_ = nullptr;
  std::vector<Window*> children_;
  Alive alive_;
  std::unique_ptr<WindowPeer> peer_;
  bool takesDrops_ = false;
  bool tabStop_ = false;
  bool hasFocus_ = false;
  int inputHolds_ = 0;
  int dpi_ = kPlainDpi;    // of a window without a container
  PixelRect shownBounds_;  // as the peer last told
};

}  // namespace corvelle::forms
