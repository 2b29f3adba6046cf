#pragma once

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

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
  virtual ~Win32Window() = default;

  /// Makes the window, hidden and silent. False when the system refuses.
  [[nodiscard]] bool Create(const forms::PeerSpec& wanted);
  /// From now on the window tells `events` what happens to it; null for silence.
  void Tell(forms::WindowEvents* events) noexcept { events_ = events; }
  virtual void Destroy();

  HWND Handle() const noexcept { return handle_; }
  /// Whom it tells; null for silence.
  forms::WindowEvents* Events() const noexcept { return events_; }
  /// Begins or ends to take what other programs drag here. False when the system refuses.
  [[nodiscard]] bool SetTakesDrops(bool takesDrops);
  virtual void SetToolTip(std::string_view text);
  [[nodiscard]] bool IsForm() const noexcept { return kind_ == forms::PeerKind::Form; }

  void SetMenuBar(const std::vector<forms::PopupItem>& items);
  /// A window whose text the system draws has it in another size.
  virtual void SetDpi(int /*dpi*/) {}
  void SetLeastSize(PixelSize size) noexcept { leastSize_ = size; }
  /// One of ours; null for any other window.
  static Win32Window* Of(HWND handle) noexcept;
  /// True for a child that may get the focus when its form becomes active for the first time. A
  /// picture box that only holds others does not.
  [[nodiscard]] virtual bool TakesFocus() const;
  /// A child that tells something of itself to the window around it (WM_COMMAND and its like); none
  /// for other messages.
  static std::shared_ptr<Win32Window> TellerOf(HWND parent, UINT message, WPARAM wParam,
                                               LPARAM lParam);
  /// What such a child makes of its own notification.
  virtual std::optional<LRESULT> Notified(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/) {
    return std::nullopt;
  }

  /// Outer bounds, relative to the parent or the screen.
  [[nodiscard]] PixelRect Bounds() const;

 protected:
  /// What the system does with a message.
  virtual LRESULT Default(UINT message, WPARAM wParam, LPARAM lParam);
  void PositionChanged(const WINDOWPOS& position);
  /// The system's window is about to end, whoever ends it.
  virtual void Ending();
  /// The focus came or went, or the wheel was turned.
  std::optional<LRESULT> TreatFocus(UINT message, WPARAM wParam, LPARAM lParam);
  /// Tells the tool tips of a mouse message; the window may be gone by then.
  void RelayToToolTip(UINT message, WPARAM wParam, LPARAM lParam) const;
  /// The character that this half of UTF-16 completes; nothing for a half that is not complete.
  std::optional<char32_t> Complete(wchar_t unit) noexcept;

  Win32WindowSystem& system_;
  HWND handle_ = nullptr;
  forms::WindowEvents* events_ = nullptr;
  bool takesDrops_ = false;
  bool hasToolTip_ = false;
  PixelRect told_;  // the bounds that the events know

 private:
  static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wParam,
                                    LPARAM lParam) noexcept;
  LRESULT Receive(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT Treat(UINT message, WPARAM wParam, LPARAM lParam);

  // Each answers a group of messages, or nothing for messages that are not its own.
  std::optional<LRESULT> TreatMouse(UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> TreatKeys(UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> TreatFrame(UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> TreatEnd(UINT message, WPARAM wParam);
  std::optional<LRESULT> TreatMenu(UINT message, WPARAM wParam, LPARAM lParam);

  LRESULT Press(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT ReleaseButton(UINT message, WPARAM wParam, LPARAM lParam);
  void ReplaceMenuBar(const std::vector<forms::PopupItem>& items);
  static void ReplaceLater(const std::weak_ptr<Win32Window>& window);
  void Paint();
  void Activated(WPARAM wParam, LPARAM lParam);
  [[nodiscard]] HWND FocusTarget() const;
  [[nodiscard]] static HWND FirstFocusIn(HWND container);

  static bool RegisterClassNamed(const wchar_t* name);

  forms::PeerKind kind_;
  forms::FrameStyle frame_ = forms::FrameStyle::None;
  PixelSize leastSize_{1, 1};
  std::vector<forms::PopupItem> menuItems_;
  std::optional<std::vector<forms::PopupItem>> menuItemsLater_;  // when no menu is up any more
  bool menuIsUp_ = false;
  bool tabStop_ = false;
  bool pressed_ = false;       // it took the mouse with a press
  HWND focus_ = nullptr;       // the child that had the focus last
  wchar_t highSurrogate_ = 0;  // the first half of a character that is not complete yet
};

/// The style bits of a frame of the system.
[[nodiscard]] DWORD FrameStyleOf(forms::FrameStyle frame) noexcept;

}  // namespace corvelle::win32
