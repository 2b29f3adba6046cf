// Controls of the system: how they are made, and what of their messages becomes events.

#include "win32/Win32Control.h"

#include <cstdint>
#include <utility>

#include "win32/Win32WindowSystem.h"

namespace corvelle::win32 {

namespace {

bool IsDown(int virtualKey) { return GetKeyState(virtualKey) < 0; }

forms::ShiftState ShiftNow() {
  return {.Shift = IsDown(VK_SHIFT), .Ctrl = IsDown(VK_CONTROL), .Alt = IsDown(VK_MENU)};
}

bool FormHasMenu(HWND handle) { return GetMenu(GetAncestor(handle, GA_ROOT)) != nullptr; }

}  // namespace

bool Win32Control::Is(LONG_PTR procedure) noexcept {
  return procedure == reinterpret_cast<LONG_PTR>(&Procedure);
}

bool Win32Control::CreateAs(const wchar_t* name, DWORD style, DWORD exStyle,
                            const forms::PeerSpec& wanted) {
  if (wanted.Parent == nullptr) return false;
  told_ = wanted.Bounds;
  handle_ = CreateWindowExW(exStyle | WS_EX_NOPARENTNOTIFY, name, L"",
                            WS_CHILD | WS_CLIPSIBLINGS | style, wanted.Bounds.left,
                            wanted.Bounds.top, wanted.Bounds.Width(), wanted.Bounds.Height(),
                            ToHwnd(wanted.Parent->Id()), nullptr, Module(), nullptr);
  if (handle_ == nullptr) return false;
  SetWindowLongPtrW(handle_, GWLP_USERDATA,
                    reinterpret_cast<LONG_PTR>(static_cast<Win32Window*>(this)));
  systemProcedure_ = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrW(handle_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure)));
  SetDpi(wanted.Dpi);
  ::SetWindowPos(handle_, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  return true;
}

void Win32Control::SetDpi(int dpi) {
  // The old font must outlive its use.
  UniqueFont font = system_.Tools()->Fonts.Make({{}, dpi});
  SendMessageW(handle_, WM_SETFONT, reinterpret_cast<WPARAM>(font.Get()), TRUE);
  font_ = std::move(font);
}

LRESULT Win32Control::Default(UINT message, WPARAM wParam, LPARAM lParam) {
  if (handle_ == nullptr) return 0;
  return CallWindowProcW(systemProcedure_, handle_, message, wParam, lParam);
}

// Nothing that an event does may throw into Windows: noexcept ends the program first.
LRESULT CALLBACK Win32Control::Procedure(HWND handle, UINT message, WPARAM wParam,
                                         LPARAM lParam) noexcept {
  Win32Window* const window =
      reinterpret_cast<Win32Window*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
  if (window == nullptr) return DefWindowProcW(handle, message, wParam, lParam);
  const std::shared_ptr<Win32Window> keep = window->shared_from_this();
  auto& control = static_cast<Win32Control&>(*window);
  if (message == WM_DESTROY) control.Ending();
  if (message != WM_NCDESTROY) {
    control.RelayToToolTip(message, wParam, lParam);
    return control.Treat(message, wParam, lParam);
  }
  const LRESULT answer = control.Default(message, wParam, lParam);
  SetWindowLongPtrW(handle, GWLP_USERDATA, 0);
  control.handle_ = nullptr;
  control.events_ = nullptr;
  return answer;
}

LRESULT Win32Control::Treat(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_WINDOWPOSCHANGED) {
    const WINDOWPOS position = *reinterpret_cast<const WINDOWPOS*>(lParam);
    const LRESULT answer = Default(message, wParam, lParam);
    PositionChanged(position);
    return answer;
  }
  // A frame holds other controls.
  if (const auto teller = TellerOf(handle_, message, wParam, lParam)) {
    if (const auto answer = teller->Notified(message, wParam, lParam)) return *answer;
  }
  if (events_ == nullptr) return Default(message, wParam, lParam);
  if (const auto answer = Own(message, wParam, lParam)) return *answer;
  if (events_ == nullptr) return Default(message, wParam, lParam);
  if (const auto answer = TreatControlKeys(message, wParam, lParam)) return *answer;
  if (message == WM_CONTEXTMENU) {
    if (const auto answer = TreatMenuKey(lParam)) return *answer;
  }
  if (message == WM_SETFOCUS || message == WM_KILLFOCUS) {
    // The control shows first that it has the focus.
    const LRESULT answer = Default(message, wParam, lParam);
    if (events_ != nullptr && TellsFocus()) TreatFocus(message, wParam, lParam);
    return answer;
  }
  if (const auto answer = TreatFocus(message, wParam, lParam)) return *answer;
  return Default(message, wParam, lParam);
}

// The menu key has been told as a key when it went down; unused, it brings the system's own menu.
std::optional<LRESULT> Win32Control::TreatMenuKey(LPARAM lParam) {
  if (lParam == -1) {
    if (usedUp_) return 0;
    return std::nullopt;
  }
  POINT at{static_cast<std::int16_t>(LOWORD(lParam)), static_cast<std::int16_t>(HIWORD(lParam))};
  ScreenToClient(handle_, &at);
  if (events_->OnContextMenu({static_cast<int>(at.x), static_cast<int>(at.y)})) return 0;
  return std::nullopt;
}

std::optional<LRESULT> Win32Control::TreatControlKeys(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_SYSKEYDOWN:
      // Alt by itself is the system's.
      if (wParam == VK_MENU) return std::nullopt;
      [[fallthrough]];
    case WM_KEYDOWN: {
      // Without a menu of the form, F10 is a key like others.
      if (wParam == VK_F10 && !IsDown(VK_SHIFT) && FormHasMenu(handle_)) return std::nullopt;
      usedUp_ = false;
      const HWND handle = handle_;  // the key may end the control
      // What the key does may bring the next one.
      const bool used = events_->OnControlKey(static_cast<int>(wParam), ShiftNow());
      usedUp_ = used;
      if (!used) return std::nullopt;
      // Alt with a key that was used asks for no menu when it goes up, which the system must learn.
      if (message == WM_SYSKEYDOWN && wParam != VK_F4 && wParam != VK_F10) {
        DefWindowProcW(handle, message, wParam, lParam);
      }
      return 0;
    }
    case WM_KEYUP:
    case WM_SYSKEYUP:
      events_->OnKeyUp(static_cast<int>(wParam), ShiftNow());
      return std::nullopt;
    case WM_CHAR: {
      const auto character = Complete(static_cast<wchar_t>(wParam));
      const bool told = character && events_->OnControlCharacter(*character);
      if (told || usedUp_) return 0;
      return std::nullopt;
    }
    case WM_SYSCHAR:
      // Access keys have been dealt with as keys. Alt+Space is the system's, as are its menus.
      if (!usedUp_ && (wParam == VK_SPACE || FormHasMenu(handle_))) return std::nullopt;
      return 0;
    default:
      return std::nullopt;
  }
}

}  // namespace corvelle::win32
