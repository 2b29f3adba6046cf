// Popup menus.

#include <algorithm>
#include <string>

#include "forms/Menu.h"
#include "win32/MenuBar.h"
#include "win32/Wide.h"
#include "win32/Win32WindowSystem.h"

namespace corvelle::win32 {

namespace {

// Its lines bear the numbers from `first` on, which is at least 1, since 0 is nothing chosen.
UniqueMenu Fill(UniqueMenu menu, const std::vector<forms::PopupItem>& items, UINT first) {
  UINT next = first;
  for (std::size_t i = 0; menu && i < items.size(); ++i) {
    const forms::PopupItem& item = items[i];
    const UINT number = next;
    next += 1 + static_cast<UINT>(forms::CountLines(item.Items));
    if (!item.Visible) continue;
    if (item.IsSeparator()) {
      AppendMenuW(menu.Get(), MF_SEPARATOR, 0, nullptr);
      continue;
    }
    UINT look = MF_STRING;
    if (!item.Enabled) look |= MF_GRAYED;
    if (item.Checked) look |= MF_CHECKED;
    if (item.Items.empty()) {
      AppendMenuW(menu.Get(), look, number, Wide(item.Caption).c_str());
      continue;
    }
    UniqueMenu inside = Fill(UniqueMenu(CreatePopupMenu()), item.Items, number + 1);
    // The menu around it owns it from then on.
    if (inside && AppendMenuW(menu.Get(), look | MF_POPUP, reinterpret_cast<UINT_PTR>(inside.Get()),
                              Wide(item.Caption).c_str()) != 0) {
      static_cast<void>(inside.Release());
    }
  }
  return menu;
}

bool HaveSameLines(const std::vector<forms::PopupItem>& a, const std::vector<forms::PopupItem>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](const forms::PopupItem& one, const forms::PopupItem& other) {
                      return one.Visible == other.Visible &&
                             one.IsSeparator() == other.IsSeparator() &&
                             HaveSameLines(one.Items, other.Items);
                    });
}

void Update(HMENU menu, const std::vector<forms::PopupItem>& items) {
  UINT place = 0;
  for (const forms::PopupItem& item : items) {
    if (!item.Visible) continue;
    std::wstring caption = Wide(item.Caption);
    MENUITEMINFOW info{};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_STATE;
    info.fState = (item.Enabled ? MFS_ENABLED : MFS_GRAYED) | (item.Checked ? MFS_CHECKED : 0U);
    if (!item.IsSeparator()) {
      info.fMask |= MIIM_STRING;
      info.dwTypeData = caption.data();
    }
    SetMenuItemInfoW(menu, place, TRUE, &info);
    if (!item.Items.empty()) Update(GetSubMenu(menu, static_cast<int>(place)), item.Items);
    ++place;
  }
}

}  // namespace

bool UpdateMenuBar(HMENU bar, const std::vector<forms::PopupItem>& before,
                   const std::vector<forms::PopupItem>& now) {
  if (bar == nullptr || !HaveSameLines(before, now)) return false;
  Update(bar, now);
  return true;
}

UniqueMenu MakeMenuBar(const std::vector<forms::PopupItem>& items) {
  return Fill(UniqueMenu(CreateMenu()), items, 1);
}

int Win32WindowSystem::ShowPopup(WindowId owner, const std::vector<forms::PopupItem>& items,
                                 PixelPoint at, unsigned flags) {
  const HWND window = ToHwnd(owner);
  const UniqueMenu menu = Fill(UniqueMenu(CreatePopupMenu()), items, 1);
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
