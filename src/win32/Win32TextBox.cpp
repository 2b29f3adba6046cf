#include "win32/Win32TextBox.h"

#include "win32/Wide.h"
#include "win32/Win32WindowSystem.h"

namespace corvelle::win32 {

std::string TextOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  const int length = GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
  text.resize(static_cast<std::size_t>(length));
  return Narrow(text);
}

bool Win32TextBox::Create(const forms::PeerSpec& wanted) {
  const DWORD lines = style_.ManyLines ? ES_MULTILINE | ES_WANTRETURN | ES_AUTOVSCROLL | WS_VSCROLL
                                       : ES_AUTOHSCROLL;
  return CreateAs(WC_EDITW, WS_TABSTOP | lines, style_.Border ? WS_EX_CLIENTEDGE : 0, wanted);
}

void Win32TextBox::SetBackColor(forms::OleColor colour) {
  backColor_ = colour;
  InvalidateRect(handle_, nullptr, TRUE);
}

std::optional<LRESULT> Win32TextBox::Notified(UINT message, WPARAM wParam, LPARAM /*lParam*/) {
  // A read-only or disabled box asks as if it were a label.
  if (message == WM_CTLCOLOREDIT || message == WM_CTLCOLORSTATIC) {
    const HDC dc = reinterpret_cast<HDC>(wParam);
    const COLORREF ground = forms::Resolve(system_, backColor_);
    SetBkColor(dc, ground);
    SetTextColor(dc, GetSysColor(COLOR_WINDOWTEXT));
    SetDCBrushColor(dc, ground);
    return reinterpret_cast<LRESULT>(GetStockObject(DC_BRUSH));
  }
  if (message != WM_COMMAND) return std::nullopt;
  if (HIWORD(wParam) == EN_CHANGE && events_ != nullptr && !Muted()) textEvents_.OnTextChanged();
  return 0;
}

void Win32TextBoxPeer::SetText(std::string_view text) {
  const Win32Control::Mute mute(Window());
  SetWindowTextW(Handle(), Wide(text).c_str());
}

std::string Win32TextBoxPeer::Text() const { return TextOf(Handle()); }

void Win32TextBoxPeer::Select(const forms::TextSelection& selection) {
  SendMessageW(Handle(), EM_SETSEL, static_cast<WPARAM>(selection.Start),
               selection.Start + selection.Length);
}

forms::TextSelection Win32TextBoxPeer::Selection() const {
  DWORD start = 0;
  DWORD end = 0;
  SendMessageW(Handle(), EM_GETSEL, reinterpret_cast<WPARAM>(&start),
               reinterpret_cast<LPARAM>(&end));
  return {static_cast<int>(start), static_cast<int>(end - start)};
}

void Win32TextBoxPeer::SetLimit(int characters) {
  SendMessageW(Handle(), EM_SETLIMITTEXT, static_cast<WPARAM>(characters), 0);
}

void Win32TextBoxPeer::SetReadOnly(bool readOnly) {
  SendMessageW(Handle(), EM_SETREADONLY, readOnly ? TRUE : FALSE, 0);
}

void Win32TextBoxPeer::SetCue(std::string_view cue) {
  SendMessageW(Handle(), EM_SETCUEBANNER, FALSE, reinterpret_cast<LPARAM>(Wide(cue).c_str()));
}

void Win32TextBoxPeer::Replace(std::string_view text) {
  SendMessageW(Handle(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(Wide(text).c_str()));
}

}  // namespace corvelle::win32
