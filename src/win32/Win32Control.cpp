// Controls of the system: how they are made, and what of their messages becomes events.

#include "win32/Wide.h"
#include "win32/Win32Window.h"
#include "win32/Win32WindowSystem.h"

namespace corvelle::win32 {

// The class of the system's own buttons.
constexpr wchar_t kButtonClass[] = L"BUTTON";

// The tick of a check box is the program's affair, not the control's own.
bool Win32Window::CreateControl(const forms::PeerSpec& wanted) {
  if (wanted.Parent == nullptr) return false;
  const DWORD style = kind_ == forms::PeerKind::CheckBox ? BS_CHECKBOX : BS_PUSHBUTTON;
  told_ = wanted.Bounds;
  handle_ = CreateWindowExW(WS_EX_NOPARENTNOTIFY, kButtonClass, L"",
                            WS_CHILD | WS_CLIPSIBLINGS | WS_TABSTOP | style, wanted.Bounds.left,
                            wanted.Bounds.top, wanted.Bounds.Width(), wanted.Bounds.Height(),
                            ToHwnd(wanted.Parent->Id()), nullptr, Module(), nullptr);
  if (handle_ == nullptr) return false;
  SetWindowLongPtrW(handle_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  systemProcedure_ = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrW(handle_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&ControlProcedure)));
  font_ = system_.Tools()->Fonts.Make({});
  SendMessageW(handle_, WM_SETFONT, reinterpret_cast<WPARAM>(font_.Get()), FALSE);
  ::SetWindowPos(handle_, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  return true;
}

// Nothing that an event does may throw into Windows: noexcept ends the program first.
LRESULT CALLBACK Win32Window::ControlProcedure(HWND handle, UINT message, WPARAM wParam,
                                               LPARAM lParam) noexcept {
  auto* const window = reinterpret_cast<Win32Window*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
  if (window == nullptr) return DefWindowProcW(handle, message, wParam, lParam);
  const std::shared_ptr<Win32Window> keep = window->shared_from_this();
  if (message != WM_NCDESTROY) return window->TreatControl(message, wParam, lParam);
  const LRESULT answer = window->Default(message, wParam, lParam);
  SetWindowLongPtrW(handle, GWLP_USERDATA, 0);
  window->handle_ = nullptr;
  window->events_ = nullptr;
  return answer;
}

LRESULT Win32Window::TreatControl(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_WINDOWPOSCHANGED) {
    const WINDOWPOS position = *reinterpret_cast<const WINDOWPOS*>(lParam);
    const LRESULT answer = Default(message, wParam, lParam);
    PositionChanged(position);
    return answer;
  }
  if (events_ == nullptr) return Default(message, wParam, lParam);
  switch (message) {
    case WM_KEYDOWN:
      // Space presses, and the control does that itself.
      if (wParam == VK_SPACE) break;
      return TreatKeys(message, wParam, lParam).value_or(0);
    case WM_SYSKEYDOWN:
      if (wParam == VK_SPACE || wParam == VK_F4) break;
      if (const auto answer = TreatKeys(message, wParam, lParam)) return *answer;
      break;
    case WM_CHAR:
      return TreatKeys(message, wParam, lParam).value_or(0);
    case WM_SYSCHAR:
      // Access keys have been dealt with as keys. Alt+Space is the system's.
      if (wParam == VK_SPACE) break;
      return 0;
    default:
      break;
  }
  return Default(message, wParam, lParam);
}

std::optional<LRESULT> Win32Window::TreatCommand(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != WM_COMMAND || HIWORD(wParam) != BN_CLICKED || lParam == 0) return std::nullopt;
  // Other programs can send this message with any handle in it.
  const HWND child = reinterpret_cast<HWND>(lParam);
  if (GetParent(child) != handle_ ||
      GetWindowLongPtrW(child, GWLP_WNDPROC) != reinterpret_cast<LONG_PTR>(&ControlProcedure)) {
    return std::nullopt;
  }
  auto* const control = reinterpret_cast<Win32Window*>(GetWindowLongPtrW(child, GWLP_USERDATA));
  if (control == nullptr) return std::nullopt;
  const std::shared_ptr<Win32Window> keep = control->shared_from_this();
  if (keep->events_ != nullptr) keep->events_->OnPress();
  return 0;
}

}  // namespace corvelle::win32
