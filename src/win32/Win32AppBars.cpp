#include "win32/Win32AppBars.h"

#include "win32/CrashCatcher.h"
#include "win32/Sys.h"

namespace corvelle::win32 {

std::uintptr_t Win32AppBars::Message(std::uint32_t message, AppBarRecord& data) {
  APPBARDATA bar{};
  bar.cbSize = sizeof bar;
  bar.hWnd = ToHwnd(data.hWnd);
  bar.uCallbackMessage = data.uCallbackMessage;
  bar.uEdge = data.uEdge;
  bar.rc = ToRect(data.rc);
  bar.lParam = data.lParam;
  const std::uintptr_t answer = SHAppBarMessage(message, &bar);
  data.rc = FromRect(bar.rc);
  if (message == ABM_NEW && answer != 0) NoteBar(bar.hWnd);
  if (message == ABM_REMOVE) NoteBar(nullptr);
  return answer;
}

}  // namespace corvelle::win32
