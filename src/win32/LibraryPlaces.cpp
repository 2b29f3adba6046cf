#include "win32/LibraryPlaces.h"

#include "win32/Sys.h"

namespace corvelle::win32 {

namespace {

// LOAD_LIBRARY_SEARCH_SYSTEM32.
constexpr DWORD kSystemFolder = 0x800;

}  // namespace

// SetDllDirectory would be handed down to every program that is started.
void KeepLibrariesToTheSystem() noexcept {
  using SetPlaces = BOOL(WINAPI*)(DWORD);
  const auto set = reinterpret_cast<SetPlaces>(reinterpret_cast<void*>(
      GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "SetDefaultDllDirectories")));
  if (set != nullptr) set(kSystemFolder);
}

}  // namespace corvelle::win32
