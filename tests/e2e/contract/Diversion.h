#pragma once

#include <windows.h>

/// The name under which a program keeps the address of a routine of the system: in 32 bits it tells
/// how many bytes the arguments take. `extern void* slot CORVELLE_IMPORT(CloseHandle, 4);`
#ifdef _WIN64
#define CORVELLE_IMPORT(routine, bytes) __asm__("__imp_" #routine)
#else
#define CORVELLE_IMPORT(routine, bytes) __asm__("__imp__" #routine "@" #bytes)
#endif

namespace corvelle {

/// Leads the calls that this program makes of one routine of the system to another as long as it
/// lives. `slot` is where the program keeps the routine's address.
class Diversion {
 public:
  Diversion(void*& slot, void* to) : slot_(slot), before_(slot) { Lead(to); }
  Diversion(const Diversion&) = delete;
  Diversion& operator=(const Diversion&) = delete;
  ~Diversion() { Lead(before_); }

 private:
  void Lead(void* to) {
    DWORD before = 0;
    VirtualProtect(&slot_, sizeof(slot_), PAGE_READWRITE, &before);
    slot_ = to;
    VirtualProtect(&slot_, sizeof(slot_), before, &before);
  }

  void*& slot_;
  void* before_;
};

}  // namespace corvelle
