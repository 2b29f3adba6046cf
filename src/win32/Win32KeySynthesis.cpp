#include "win32/Win32KeySynthesis.h"

#include "win32/Sys.h"

namespace corvelle::win32 {

void Win32KeySynthesis::KeybdEvent(int virtualKey, unsigned flags) {
  keybd_event(static_cast<BYTE>(virtualKey), 0, flags, 0);
}

}  // namespace corvelle::win32
