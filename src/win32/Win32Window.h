#pragma once

#include <memory>
#include <optional>

#include "forms/WindowSystem.h"
#include "win32/Sys.h"
#include "win32/UniqueHandle.h"

namespace corvelle::win32 {

class Win32WindowSystem;

/// One window of the program and what its procedure needs. It is held by its peer and by every call
/// of the procedure that is under way, so that the procedure survives whatever its events do.
class Win32Window : public std::enable_shared_from_this<Win32Window> {
 public:
  Win32Window(Win32WindowSystem& system, forms::PeerKind kind) : system_(system), kind_(kind) {}
  Win32Window(const Win32Window&) = delete;
  Win32Window& operator=(const Win32Window&) = delete;

  /// Makes the window, hidden and silent. False when the system refuses.
  [[nodiscard]] bool Create(const forms::PeerSpec& wanted);
  /// From now on the window tells `events` what happens to it; null for silence.
  void Tell(forms::WindowEvents* events) noexcept { events_ = events; }
  void Destroy();

  HWND Handle() const noexcept { return handle_; }
  /// Whom it tells; null for silence.
  forms::WindowEvents* Events() const noexcept { return events_; }
  /// Begins or ends to take what other programs drag here. False when the system refuses.
  [[nodiscard]] bool SetTakesDrops(bool takesDrops);
  [[nodiscard]] bool IsForm() const noexcept { return kind_ == forms::PeerKind::Form; }

  /// True for a window that the system draws and works.
  [[nodiscard]] bool IsControl() const noexcept {
    return kind_ == forms::PeerKind::CommandButton || kind_ == forms::PeerKind::CheckBox;
  }

  /// Outer bounds, relative to the parent or the screen.
  [[nodiscard]] PixelRect Bounds() const;

 private:
  static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wParam,
                                    LPARAM lParam) noexcept;
  static LRESULT CALLBACK ControlProcedure(HWND handle, UINT message, WPARAM wParam,
                                           LPARAM lParam) noexcept;
  LRESULT Receive(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT Treat(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT Default(UINT message, WPARAM wParam, LPARAM lParam);

  // Each answers a group of messages, or nothing for messages that are not its own.
  std::optional<LRESULT> TreatMouse(UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> TreatKeys(UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> TreatFrame(UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> TreatEnd(UINT message, WPARAM wParam);

  // Controls of the system.
  [[nodiscard]] bool CreateControl(const forms::PeerSpec& wanted);
  LRESULT TreatControl(UINT message, WPARAM wParam, LPARAM lParam);
  /// A child tells of a press.
  std::optional<LRESULT> TreatCommand(UINT message, WPARAM wParam, LPARAM lParam);

  LRESULT Press(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT ReleaseButton(UINT message, WPARAM wParam, LPARAM lParam);
  void Character(wchar_t unit);
  void Paint();
  void Activated(WPARAM wParam, LPARAM lParam);
  void PositionChanged(const WINDOWPOS& position);
  [[nodiscard]] HWND FocusTarget() const;

  static bool RegisterClassNamed(const wchar_t* name);

  Win32WindowSystem& system_;
  forms::PeerKind kind_;
  HWND handle_ = nullptr;
  WNDPROC systemProcedure_ = nullptr;  // of a control of the system
  UniqueFont font_;                    // the same
  forms::WindowEvents* events_ = nullptr;
  bool takesDrops_ = false;
  PixelRect told_;             // the bounds that the events know
  HWND focus_ = nullptr;       // the child that had the focus last
  wchar_t highSurrogate_ = 0;  // the first half of a character that is not complete yet
};

}  // namespace corvelle::win32
