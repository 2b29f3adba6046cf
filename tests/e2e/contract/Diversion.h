#pragma once

#include <windows.h>

namespace corvelle {

/// Leads the calls that this program makes of one routine of the system to another as long as it
/// lives. `slot` is where the program keeps the routine's address (`__imp_` and its name).
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
