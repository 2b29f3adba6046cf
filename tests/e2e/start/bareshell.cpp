// The same with what a strip at the edge of the screen cannot do without: OLE, the shell's first
// icon, a place at the edge.

#include <windows.h>

#include <ole2.h>
#include <shellapi.h>

#include "e2e/start/Bare.h"

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int) {
  if (FAILED(OleInitialize(nullptr))) return 1;
  HWND window = corvelle::bare::MakeWindow(instance, L"bareshell", 0);
  if (window == nullptr) return 1;
  wchar_t program[MAX_PATH] = {};
  GetModuleFileNameW(nullptr, program, MAX_PATH);
  SHFILEINFOW info = {};
  SHGetFileInfoW(program, 0, &info, sizeof(info), SHGFI_SYSICONINDEX | SHGFI_SMALLICON);
  APPBARDATA bar = {};
  bar.cbSize = sizeof(bar);
  bar.hWnd = window;
  bar.uCallbackMessage = WM_APP;
  bar.uEdge = ABE_TOP;
  bar.rc = {0, 0, GetSystemMetrics(SM_CXSCREEN), 30};
  SHAppBarMessage(ABM_NEW, &bar);
  SHAppBarMessage(ABM_QUERYPOS, &bar);
  SHAppBarMessage(ABM_SETPOS, &bar);
  SetWindowPos(window, HWND_TOPMOST, bar.rc.left, bar.rc.top, bar.rc.right - bar.rc.left, 30,
               SWP_SHOWWINDOW);
  corvelle::bare::RunMessages();
  SHAppBarMessage(ABM_REMOVE, &bar);
  OleUninitialize();
  return 0;
}
