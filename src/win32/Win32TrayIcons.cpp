#include "win32/Win32TrayIcons.h"

#include "win32/Sys.h"

namespace corvelle::win32 {

bool Win32TrayIcons::Add(const TrayIcon& icon) {
  NOTIFYICONDATAW data{};
  data.cbSize = sizeof data;
  data.hWnd = ToHwnd(icon.Window);
  data.uID = icon.Id;
  data.uFlags = NIF_MESSAGE;
  data.uCallbackMessage = icon.CallbackMessage;
  return Shell_NotifyIconW(NIM_ADD, &data) != FALSE;
}

void Win32TrayIcons::Remove(WindowId window, std::uint32_t id) {
  NOTIFYICONDATAW data{};
  data.cbSize = sizeof data;
  data.hWnd = ToHwnd(window);
  data.uID = id;
  Shell_NotifyIconW(NIM_DELETE, &data);
}

}  // namespace corvelle::win32
