#include "win32/Win32ComboBox.h"

#include "win32/Wide.h"
#include "win32/Win32TextBox.h"
#include "win32/Win32WindowSystem.h"

namespace corvelle::win32 {

bool Win32ComboBox::Create(const forms::PeerSpec& wanted) {
  forms::PeerSpec withList = wanted;
  withList.Bounds.bottom += kListHeight;
  const DWORD kind = withEntry_ ? CBS_DROPDOWN | CBS_AUTOHSCROLL : CBS_DROPDOWNLIST;
  if (!CreateAs(WC_COMBOBOXW, WS_TABSTOP | WS_VSCROLL | kind, 0, withList)) return false;
  told_ = Bounds();
  COMBOBOXINFO info{};
  info.cbSize = sizeof(info);
  if (withEntry_ && GetComboBoxInfo(handle_, &info) != 0 && info.hwndItem != nullptr) {
    entryWindow_ = info.hwndItem;
    SetWindowSubclass(entryWindow_, &EntryProcedure, 1, reinterpret_cast<DWORD_PTR>(this));
  }
  return true;
}

// The entry covers most of the box.
void Win32ComboBox::SetToolTip(std::string_view text) {
  Win32Control::SetToolTip(text);
  if (entryWindow_ != nullptr) system_.ToolTips().Set(entryWindow_, text);
}

// The keys of the entry follow the rules of dialogs. It is a part of the combo box and ends first.
LRESULT CALLBACK Win32ComboBox::EntryProcedure(HWND entry, UINT message, WPARAM wParam,
                                               LPARAM lParam, UINT_PTR id,
                                               DWORD_PTR combo) noexcept {
  auto* const window = reinterpret_cast<Win32ComboBox*>(combo);
  if (message == WM_NCDESTROY) {
    window->system_.ToolTips().Forget(entry);
    window->entryWindow_ = nullptr;
    RemoveWindowSubclass(entry, &EntryProcedure, id);
    return DefSubclassProc(entry, message, wParam, lParam);
  }
  const std::shared_ptr<Win32Window> keep = window->shared_from_this();
  window->system_.ToolTips().Relay(entry, message, wParam, lParam);
  if (window->events_ != nullptr) {
    if (const auto answer = window->TreatControlKeys(message, wParam, lParam)) return *answer;
  }
  return DefSubclassProc(entry, message, wParam, lParam);
}

std::optional<LRESULT> Win32ComboBox::Notified(UINT message, WPARAM wParam, LPARAM /*lParam*/) {
  if (message != WM_COMMAND) return std::nullopt;
  if (events_ == nullptr) return 0;
  switch (HIWORD(wParam)) {
    case CBN_SETFOCUS:
    case CBN_KILLFOCUS:
      events_->OnFocus(HIWORD(wParam) == CBN_SETFOCUS);
      break;
    case CBN_SELCHANGE:
      if (!Muted()) comboEvents_.OnChosen();
      break;
    case CBN_EDITCHANGE:
      if (!Muted()) comboEvents_.OnEntryChanged();
      break;
    case CBN_DROPDOWN:
    case CBN_CLOSEUP:
      comboEvents_.OnDropped(HIWORD(wParam) == CBN_DROPDOWN);
      break;
    default:
      break;
  }
  return 0;
}

void Win32ComboBoxPeer::SetBounds(const PixelRect& bounds) {
  PixelRect withList = bounds;
  withList.bottom += Win32ComboBox::kListHeight;
  Win32PeerOf::SetBounds(withList);
}

void Win32ComboBoxPeer::Insert(int at, std::string_view text) {
  SendMessageW(Handle(), CB_INSERTSTRING, static_cast<WPARAM>(at),
               reinterpret_cast<LPARAM>(Wide(text).c_str()));
}

void Win32ComboBoxPeer::Remove(int at) {
  const Win32Control::Mute mute(Window());
  SendMessageW(Handle(), CB_DELETESTRING, static_cast<WPARAM>(at), 0);
}

void Win32ComboBoxPeer::Clear() {
  const Win32Control::Mute mute(Window());
  SendMessageW(Handle(), CB_RESETCONTENT, 0, 0);
}

void Win32ComboBoxPeer::Select(int row) {
  const Win32Control::Mute mute(Window());
  SendMessageW(Handle(), CB_SETCURSEL, static_cast<WPARAM>(row), 0);
}

int Win32ComboBoxPeer::Selected() const {
  return static_cast<int>(SendMessageW(Handle(), CB_GETCURSEL, 0, 0));
}

void Win32ComboBoxPeer::SetText(std::string_view text) {
  const Win32Control::Mute mute(Window());
  SendMessageW(Handle(), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
  SetWindowTextW(Handle(), Wide(text).c_str());
}

std::string Win32ComboBoxPeer::Text() const { return TextOf(Handle()); }

void Win32ComboBoxPeer::SelectText() {
  SendMessageW(Handle(), CB_SETEDITSEL, 0, MAKELPARAM(0, -1));
}

void Win32ComboBoxPeer::Drop(bool down) {
  SendMessageW(Handle(), CB_SHOWDROPDOWN, down ? TRUE : FALSE, 0);
}

}  // namespace corvelle::win32
