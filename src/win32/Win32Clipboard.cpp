#include "win32/Win32Clipboard.h"

#include <cstring>
#include <string>

#include "win32/Sys.h"
#include "win32/Wide.h"

namespace corvelle::win32 {

namespace {

constexpr int kTries = 10;
constexpr DWORD kPause = 20;  // milliseconds

/// The clipboard, open for one window.
class OpenedClipboard {
 public:
  explicit OpenedClipboard(HWND owner) noexcept {
    for (int tried = 0; tried < kTries && !open_; ++tried) {
      if (tried > 0) Sleep(kPause);
      open_ = OpenClipboard(owner) != 0;
    }
  }
  OpenedClipboard(const OpenedClipboard&) = delete;
  OpenedClipboard& operator=(const OpenedClipboard&) = delete;
  ~OpenedClipboard() {
    if (open_) CloseClipboard();
  }
  explicit operator bool() const noexcept { return open_; }

 private:
  bool open_ = false;
};

/// The text with its NUL in memory that the clipboard can take over; null without memory.
HGLOBAL MemoryOf(const std::wstring& text) {
  const SIZE_T bytes = (text.size() + 1) * sizeof(wchar_t);
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
  if (memory == nullptr) return nullptr;
  std::memcpy(GlobalLock(memory), text.c_str(), bytes);
  GlobalUnlock(memory);
  return memory;
}

}  // namespace

bool Win32Clipboard::PutText(WindowId owner, std::string_view text) {
  const HGLOBAL memory = MemoryOf(Wide(text));
  if (memory == nullptr) return false;
  const OpenedClipboard clipboard(ToHwnd(owner));
  // From a success on the memory is the clipboard's.
  if (clipboard && EmptyClipboard() != 0 && SetClipboardData(CF_UNICODETEXT, memory) != nullptr) {
    return true;
  }
  GlobalFree(memory);
  return false;
}

}  // namespace corvelle::win32
