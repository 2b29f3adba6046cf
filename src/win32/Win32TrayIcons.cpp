#include "win32/Win32TrayIcons.h"

#include <algorithm>
#include <string>

#include "win32/Sys.h"
#include "win32/UniqueHandle.h"
#include "win32/Wide.h"

namespace corvelle::win32 {

namespace {

constexpr std::size_t kLongestTip = 63;

NOTIFYICONDATAW DataOf(WindowId window, std::uint32_t id) {
  NOTIFYICONDATAW data{};
  data.cbSize = sizeof data;
  data.hWnd = ToHwnd(window);
  data.uID = id;
  return data;
}

/// The first icon of a file in both sizes, as the system gives them.
struct FileIcons {
  UniqueIcon Large;
  UniqueIcon Small;
};

FileIcons ExtractIcons(const std::string& file) {
  FileIcons icons;
  if (file.empty()) return icons;
  ExtractIconExW(Wide(file).c_str(), 0, icons.Large.Receive(), icons.Small.Receive(), 1);
  return icons;
}

// What the system lends is not given back.
HICON FallbackIcon() {
  const HICON own = LoadIconW(Module(), MAKEINTRESOURCEW(kProgramIcon));
  return own != nullptr ? own : LoadIconW(nullptr, IDI_APPLICATION);
}

}  // namespace

bool Win32TrayIcons::Add(const TrayIcon& icon) {
  NOTIFYICONDATAW data = DataOf(icon.Window, icon.Id);
  // Not every task bar refuses an icon of nobody's.
  if (IsWindow(data.hWnd) == 0) return false;
  data.uFlags = NIF_MESSAGE | NIF_ICON | NIF_TIP;
  data.uCallbackMessage = icon.CallbackMessage;
  // The task bar takes a copy.
  const FileIcons icons = ExtractIcons(icon.IconFile);
  data.hIcon = icons.Small ? icons.Small.Get() : FallbackIcon();
  const std::wstring tip = Wide(icon.Tip).substr(0, kLongestTip);
  std::copy(tip.begin(), tip.end(), data.szTip);
  return Shell_NotifyIconW(NIM_ADD, &data) != FALSE;
}

void Win32TrayIcons::Remove(WindowId window, std::uint32_t id) {
  NOTIFYICONDATAW data = DataOf(window, id);
  Shell_NotifyIconW(NIM_DELETE, &data);
}

std::uint32_t Win32TrayIcons::TaskbarCreatedMessage() const {
  // Asked with each message of a window, and the same as long as Windows runs.
  static const UINT number = RegisterWindowMessageW(L"TaskbarCreated");
  return number;
}

}  // namespace corvelle::win32
