#pragma once

// What every home for forms must do, the simulated desktop and Windows alike. A test program
// includes this header once and instantiates the suites with its own homes.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "forms/ButtonPeer.h"
#include "forms/ControlMaker.h"
#include "forms/WindowSystem.h"
#include "platform/DesktopWindows.h"

namespace corvelle::forms {

/// A home for forms under test.
class ContractHome {
 public:
  virtual ~ContractHome() = default;
  virtual WindowSystem& Windows() = 0;
  virtual DesktopWindows& Desktop() = 0;
  /// Lets time pass, with events running. The home may take longer.
  virtual void Wait(int milliseconds) = 0;
  /// What happens while the next popup menu is up, in a home whose time does not pass by itself.
  virtual void WhilePopupIsUp(std::function<void()> action) { static_cast<void>(action); }
  /// The user closes the popup menu that is up, by Esc.
  virtual void ClosePopup() = 0;
};

using ContractHomeFactory = std::function<std::unique_ptr<ContractHome>()>;

/// Notes what a window is told, and does in it what a test wants.
class EventNotes final : public WindowEvents, public ButtonEvents {
 public:
  std::vector<std::string> Seen;
  std::vector<std::string> Focus;
  std::vector<std::string> KeysUp;
  bool UsesKeys = false;  // of a control, and the wheel
  int Paints = 0;
  PixelRect LastDirty;
  std::vector<PixelRect> Moves;
  std::function<void(Canvas&)> WhenPainted;
  std::function<void()> WhenPressed;
  std::function<void()> WhenMoved;
  std::function<void()> WhenClosed;
  std::function<std::optional<std::intptr_t>(std::uint32_t, std::uintptr_t, std::intptr_t)>
      Procedure;

  void OnMouseDown(MouseButton button, ShiftState, PixelPoint at) override {
    Note("down " + std::to_string(static_cast<unsigned>(button)), at);
    if (WhenPressed) WhenPressed();
  }
  void OnMouseMove(MouseButton down, ShiftState, PixelPoint at) override {
    Note("move " + std::to_string(static_cast<unsigned>(down)), at);
  }
  void OnMouseUp(MouseButton button, ShiftState, PixelPoint at) override {
    Note("up " + std::to_string(static_cast<unsigned>(button)), at);
  }
  void OnDoubleClick(PixelPoint at) override { Note("double", at); }
  void OnKeyDown(int keyCode, ShiftState) override {
    Seen.push_back("key " + std::to_string(keyCode));
  }
  void OnKeyPress(char32_t character) override {
    Seen.push_back("char " + std::to_string(static_cast<unsigned>(character)));
  }
  void OnKeyUp(int keyCode, ShiftState shift) override {
    KeysUp.push_back(std::to_string(keyCode) + (shift.Shift ? " shift" : ""));
  }
  void OnPress() override {
    Seen.emplace_back("press");
    // What it does may end what is noted here.
    const auto action = WhenPressed;
    if (action) action();
  }
  bool OnControlKey(int keyCode, ShiftState) override {
    Seen.push_back("key " + std::to_string(keyCode));
    return UsesKeys;
  }
  bool OnControlCharacter(char32_t character) override {
    Seen.push_back("char " + std::to_string(static_cast<unsigned>(character)));
    return UsesKeys;
  }
  void OnFocus(bool gained) override { Focus.emplace_back(gained ? "gained" : "lost"); }
  void OnCaptureLost() override { Seen.emplace_back("capture lost"); }
  bool OnWheel(int delta, ShiftState) override {
    Seen.push_back("wheel " + std::to_string(delta));
    return UsesKeys;
  }
  bool OnContextMenu(PixelPoint at) override {
    Note("menu", at);
    return true;
  }
  void OnPaint(Canvas& canvas, const PixelRect& dirty) override {
    ++Paints;
    LastDirty = dirty;
    canvas.FillBox(dirty, 0x00C0C0C0);
    if (WhenPainted) WhenPainted(canvas);
  }
  void OnMoved(const PixelRect& bounds) override {
    Moves.push_back(bounds);
    if (WhenMoved) WhenMoved();
  }
  void OnActivated(bool active) override { Seen.emplace_back(active ? "active" : "inactive"); }
  void OnClose() override {
    Seen.emplace_back("close");
    if (WhenClosed) WhenClosed();
  }
  void OnSessionEnd() override { Seen.emplace_back("session end"); }
  std::optional<std::intptr_t> OnMessage(std::uint32_t message, std::uintptr_t wParam,
                                         std::intptr_t lParam) override {
    return Procedure ? Procedure(message, wParam, lParam) : std::nullopt;
  }

  [[nodiscard]] bool Saw(const std::string& what) const {
    return std::find(Seen.begin(), Seen.end(), what) != Seen.end();
  }

 private:
  void Note(const std::string& what, PixelPoint at) {
    Seen.push_back(what + " " + std::to_string(at.x) + "," + std::to_string(at.y));
  }
};

}  // namespace corvelle::forms
