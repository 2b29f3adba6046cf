#include "win32/Win32ToolBar.h"

#include "win32/CommonControls.h"
#include "win32/Wide.h"
#include "win32/Win32Cursor.h"

namespace corvelle::win32 {

namespace {

constexpr int kImageSize = 16;

BYTE StateOf(bool enabled, bool checked) {
  return static_cast<BYTE>((enabled ? TBSTATE_ENABLED : 0) | (checked ? TBSTATE_CHECKED : 0));
}

}  // namespace

// A text that no button shows is its tip.
bool Win32ToolBar::Create(const forms::PeerSpec& wanted) {
  StartCommonControls();
  const DWORD style = CCS_NOPARENTALIGN | CCS_NORESIZE | CCS_NODIVIDER | TBSTYLE_FLAT |
                      TBSTYLE_TOOLTIPS | TBSTYLE_LIST;
  if (!CreateAs(TOOLBARCLASSNAMEW, style, 0, wanted)) return false;
  SendMessageW(handle_, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
  SendMessageW(handle_, TB_SETEXTENDEDSTYLE, 0, TBSTYLE_EX_MIXEDBUTTONS);
  images_.Reset(ImageList_Create(kImageSize, kImageSize, ILC_COLOR32 | ILC_MASK, 8, 8));
  SendMessageW(handle_, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images_.Get()));
  return true;
}

void Win32ToolBar::AddImage(const Canvas& image) {
  const UniqueCursor masked = MakeCursor(image, {0, 0});
  ImageList_AddIcon(images_.Get(), masked.Get());
}

std::optional<LRESULT> Win32ToolBar::Notified(UINT message, WPARAM wParam, LPARAM /*lParam*/) {
  if (message != WM_COMMAND) return std::nullopt;
  if (events_ != nullptr) toolEvents_.OnToolPressed(static_cast<int>(LOWORD(wParam)) - 1);
  return 0;
}

// Commands are counted from 1, gaps with them.
void Win32ToolBarPeer::Add(const forms::ToolBarButton& button) {
  const std::wstring tip = Wide(button.Tip);
  const LRESULT count = SendMessageW(Handle(), TB_BUTTONCOUNT, 0, 0);
  TBBUTTON made{};
  made.idCommand = static_cast<int>(count) + 1;
  made.fsState = StateOf(button.Enabled, button.Checked);
  if (button.IsGap()) {
    made.fsStyle = BTNS_SEP;
  } else {
    made.fsStyle = BTNS_BUTTON | BTNS_AUTOSIZE;
    made.iBitmap = button.Image >= 0 ? button.Image : I_IMAGENONE;
    made.iString = reinterpret_cast<INT_PTR>(tip.c_str());
  }
  SendMessageW(Handle(), TB_ADDBUTTONSW, 1, reinterpret_cast<LPARAM>(&made));
}

void Win32ToolBarPeer::SetButton(int at, bool enabled, bool checked) {
  SendMessageW(Handle(), TB_SETSTATE, static_cast<WPARAM>(at + 1),
               MAKELPARAM(StateOf(enabled, checked), 0));
}

PixelRect Win32ToolBarPeer::ButtonRect(int at) const {
  RECT rect{};
  SendMessageW(Handle(), TB_GETITEMRECT, static_cast<WPARAM>(at), reinterpret_cast<LPARAM>(&rect));
  return FromRect(rect);
}

}  // namespace corvelle::win32
