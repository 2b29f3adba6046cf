// Popup menus.

#include "win32/Wide.h"
#include "win32/Win32WindowSystem.h"

namespace corvelle::win32 {

namespace {

// Its lines bear the numbers from 1 on, since 0 is nothing chosen.
UniqueMenu MakeMenu(const std::vector<forms::PopupItem>& items) {
  UniqueMenu menu(CreatePopupMenu());
  for (std::size_t i = 0; menu && i < items.size(); ++i) {
    const forms::PopupItem& item = items[i];
    if (!item.Visible) continue;
    if (item.IsSeparator()) {
      AppendMenuW(menu.Get(), MF_SEPARATOR, 0, nullptr);
      continue;
    }
    UINT look = MF_STRING;
    if (!item.Enabled) look |= MF_GRAYED;
    if (item.Checked) look |= MF_CHECKED;
    AppendMenuW(menu.Get(), look, i + 1, Wide(item.Caption).c_str());
  }
  return menu;
}

}  // namespace

int Win32WindowSystem::ShowPopup(WindowId owner, const std::vector<forms::PopupItem>& items,
                                 PixelPoint at, unsigned flags) {
  const HWND window = ToHwnd(owner);
  const UniqueMenu menu = MakeMenu(items);
  if (!menu || IsWindow(window) == 0) return forms::popup::kNothing;
  // A popup whose owner is not in the foreground stays up when the user clicks elsewhere.
  if (GetForegroundWindow() != window) SetForegroundWindow(window);
  UINT how = TPM_RETURNCMD | TPM_NONOTIFY;
  if ((flags & forms::popup::RightButton) != 0) how |= TPM_RIGHTBUTTON;
  const int chosen =
      static_cast<int>(TrackPopupMenu(menu.Get(), how, at.x, at.y, 0, window, nullptr));
  // The system sees only at the next message that the owner is done with the popup.
  PostMessageW(window, WM_NULL, 0, 0);
  return chosen - 1;
}

}  // namespace corvelle::win32
