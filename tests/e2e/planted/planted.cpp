// A library that only writes down that it was loaded: beside it, under its own name and ".loaded".

#include <windows.h>

BOOL WINAPI DllMain(HINSTANCE self, DWORD reason, void*) {
  if (reason != DLL_PROCESS_ATTACH) return TRUE;
  wchar_t path[MAX_PATH + 16] = L"";
  GetModuleFileNameW(self, path, MAX_PATH);
  lstrcatW(path, L".loaded");
  CloseHandle(CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
  return TRUE;
}
