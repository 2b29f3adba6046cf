#include "win32/Win32TabStrip.h"

#include "win32/CommonControls.h"
#include "win32/Wide.h"

namespace corvelle::win32 {

bool Win32TabStrip::Create(const forms::PeerSpec& wanted) {
  StartCommonControls();
  return CreateAs(WC_TABCONTROLW, WS_TABSTOP, 0, wanted);
}

std::optional<LRESULT> Win32TabStrip::Notified(UINT message, WPARAM /*wParam*/, LPARAM lParam) {
  if (message != WM_NOTIFY) return std::nullopt;
  const UINT code = reinterpret_cast<const NMHDR*>(lParam)->code;
  if (events_ == nullptr) return 0;
  if (code == TCN_SELCHANGING) return tabEvents_.OnTabLeaving() ? FALSE : TRUE;
  if (code == TCN_SELCHANGE) tabEvents_.OnTabChosen();
  return 0;
}

void Win32TabStripPeer::Add(std::string_view text) {
  std::wstring wide = Wide(text);
  TCITEMW item{};
  item.mask = TCIF_TEXT;
  item.pszText = wide.data();
  const LRESULT count = SendMessageW(Handle(), TCM_GETITEMCOUNT, 0, 0);
  SendMessageW(Handle(), TCM_INSERTITEMW, static_cast<WPARAM>(count),
               reinterpret_cast<LPARAM>(&item));
}

void Win32TabStripPeer::SetText(int tab, std::string_view text) {
  std::wstring wide = Wide(text);
  TCITEMW item{};
  item.mask = TCIF_TEXT;
  item.pszText = wide.data();
  SendMessageW(Handle(), TCM_SETITEMW, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&item));
}

// Not TCM_SETCURFOCUS, which notifies and under Wine spoils the clicks that follow.
void Win32TabStripPeer::Select(int tab) {
  SendMessageW(Handle(), TCM_SETCURSEL, static_cast<WPARAM>(tab), 0);
}

int Win32TabStripPeer::Selected() const {
  return static_cast<int>(SendMessageW(Handle(), TCM_GETCURSEL, 0, 0));
}

PixelRect Win32TabStripPeer::PageRect() const {
  RECT rect{};
  GetClientRect(Handle(), &rect);
  SendMessageW(Handle(), TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&rect));
  return FromRect(rect);
}

PixelRect Win32TabStripPeer::TabRect(int tab) const {
  RECT rect{};
  SendMessageW(Handle(), TCM_GETITEMRECT, static_cast<WPARAM>(tab),
               reinterpret_cast<LPARAM>(&rect));
  return FromRect(rect);
}

}  // namespace corvelle::win32
