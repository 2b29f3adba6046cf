#include "win32/Win32Button.h"

namespace corvelle::win32 {

using forms::ButtonLook;

namespace {

DWORD StyleOf(ButtonLook look) {
  switch (look) {
    case ButtonLook::Check:
      return BS_CHECKBOX;
    case ButtonLook::Option:
      return BS_RADIOBUTTON;
    case ButtonLook::Frame:
      return BS_GROUPBOX | WS_CLIPCHILDREN;
    case ButtonLook::Command:
      break;
  }
  return BS_PUSHBUTTON;
}

}  // namespace

bool Win32Button::Create(const forms::PeerSpec& wanted) {
  const bool frame = look_ == ButtonLook::Frame;
  return CreateAs(WC_BUTTONW, StyleOf(look_) | (frame ? 0 : WS_TABSTOP),
                  frame ? WS_EX_CONTROLPARENT : 0, wanted);
}

std::optional<LRESULT> Win32Button::Notified(UINT message, WPARAM wParam, LPARAM /*lParam*/) {
  if (message != WM_COMMAND || HIWORD(wParam) != BN_CLICKED) return std::nullopt;
  if (events_ != nullptr && look_ != ButtonLook::Frame) buttonEvents_.OnPress();
  return 0;
}

std::optional<LRESULT> Win32Button::Own(UINT message, WPARAM wParam, LPARAM /*lParam*/) {
  // A frame leaves its ground to others, which would show through it.
  if (look_ == ButtonLook::Frame && message == WM_ERASEBKGND) {
    RECT inside{};
    GetClientRect(handle_, &inside);
    FillRect(reinterpret_cast<HDC>(wParam), &inside, GetSysColorBrush(COLOR_BTNFACE));
    return 1;
  }
  return std::nullopt;
}

void Win32ButtonPeer::SetChecked(bool checked) {
  SendMessageW(Handle(), BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED, 0);
}

void Win32ButtonPeer::SetDefault(bool isDefault) {
  SendMessageW(Handle(), BM_SETSTYLE, isDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON, TRUE);
}

}  // namespace corvelle::win32
