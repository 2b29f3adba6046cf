#pragma once

#include <windows.h>

#include <ole2.h>

namespace corvelle {

/// COM for this thread, before and after everything else of a test.
class Com {
 public:
  Com() : ready_(SUCCEEDED(OleInitialize(nullptr))) {}
  Com(const Com&) = delete;
  Com& operator=(const Com&) = delete;
  ~Com() {
    if (ready_) OleUninitialize();
  }

 private:
  bool ready_;
};

}  // namespace corvelle
