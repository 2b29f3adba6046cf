#include "win32/Win32ListBox.h"

#include "win32/Wide.h"

namespace corvelle::win32 {

bool Win32ListBox::Create(const forms::PeerSpec& wanted) {
  return CreateAs(WC_LISTBOXW, WS_TABSTOP | WS_VSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT,
                  WS_EX_CLIENTEDGE, wanted);
}

std::optional<LRESULT> Win32ListBox::Notified(UINT message, WPARAM wParam, LPARAM /*lParam*/) {
  if (message != WM_COMMAND) return std::nullopt;
  if (events_ == nullptr) return 0;
  if (HIWORD(wParam) == LBN_SELCHANGE) listEvents_.OnRowChosen();
  if (HIWORD(wParam) == LBN_DBLCLK) listEvents_.OnRowActivated();
  return 0;
}

void Win32ListBoxPeer::Insert(int at, std::string_view text) {
  SendMessageW(Handle(), LB_INSERTSTRING, static_cast<WPARAM>(at),
               reinterpret_cast<LPARAM>(Wide(text).c_str()));
}

void Win32ListBoxPeer::Remove(int at) {
  SendMessageW(Handle(), LB_DELETESTRING, static_cast<WPARAM>(at), 0);
}

void Win32ListBoxPeer::Clear() { SendMessageW(Handle(), LB_RESETCONTENT, 0, 0); }

void Win32ListBoxPeer::Select(int row) {
  SendMessageW(Handle(), LB_SETCURSEL, static_cast<WPARAM>(row), 0);
}

int Win32ListBoxPeer::Selected() const {
  return static_cast<int>(SendMessageW(Handle(), LB_GETCURSEL, 0, 0));
}

void Win32ListBoxPeer::SetTopRow(int row) {
  SendMessageW(Handle(), LB_SETTOPINDEX, static_cast<WPARAM>(row), 0);
}

int Win32ListBoxPeer::TopRow() const {
  return static_cast<int>(SendMessageW(Handle(), LB_GETTOPINDEX, 0, 0));
}

int Win32ListBoxPeer::RowAt(PixelPoint at) const {
  const LRESULT found = SendMessageW(Handle(), LB_ITEMFROMPOINT, 0, MAKELPARAM(at.x, at.y));
  const int row = static_cast<int>(LOWORD(found));
  RECT rect{};
  // Below the last row the nearest one is given.
  if (HIWORD(found) != 0 ||
      SendMessageW(Handle(), LB_GETITEMRECT, static_cast<WPARAM>(row),
                   reinterpret_cast<LPARAM>(&rect)) == LB_ERR ||
      at.y < rect.top || at.y >= rect.bottom) {
    return -1;
  }
  return row;
}

}  // namespace corvelle::win32
