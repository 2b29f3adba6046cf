#include "win32/Win32SystemInfo.h"

#include <algorithm>
#include <cstddef>

#include "win32/MonitorScale.h"
#include "win32/UniqueHandle.h"
#include "win32/Wide.h"

namespace corvelle::win32 {

namespace {

constexpr DWORD kMoment = 50;  // milliseconds
constexpr wchar_t kSessionName[] = L"Local\\Corvelle";
constexpr std::size_t kLongestPath = 32768;
constexpr std::size_t kLongestDate = 256;

/// The folder that a call of the system writes down.
std::string FolderOf(UINT(WINAPI* ask)(LPWSTR, UINT)) {
  const UINT size = ask(nullptr, 0);
  std::wstring path(size, L'\0');
  const UINT length = ask(path.data(), size);
  path.resize(std::min<std::size_t>(length, path.size()));
  return Narrow(path);
}

std::string DateNow(DWORD flags) {
  std::wstring text(kLongestDate, L'\0');
  const int length = GetDateFormatW(LOCALE_USER_DEFAULT, flags, nullptr, nullptr, text.data(),
                                    static_cast<int>(text.size()));
  // The length counts the NUL at the end.
  text.resize(length > 0 ? static_cast<std::size_t>(length) - 1 : 0);
  return Narrow(text);
}

std::string TimeNow(const wchar_t* format) {
  std::wstring text(kLongestDate, L'\0');
  const int length = GetTimeFormatW(LOCALE_USER_DEFAULT, 0, nullptr, format, text.data(),
                                    static_cast<int>(text.size()));
  text.resize(length > 0 ? static_cast<std::size_t>(length) - 1 : 0);
  return Narrow(text);
}

}  // namespace

/// The named object that the first process of a session holds until it ends.
struct Win32SystemInfo::Claim {
  UniqueKernel Mutex;
  bool TakenBefore = false;
};

Win32SystemInfo::Win32SystemInfo() = default;
Win32SystemInfo::~Win32SystemInfo() = default;

std::string Win32SystemInfo::ApplicationFolder() const {
  std::wstring path(MAX_PATH, L'\0');
  DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
  while (length == path.size() && path.size() < kLongestPath) {
    path.resize(path.size() * 2);
    length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
  }
  path.resize(length);
  const std::size_t slash = path.rfind(L'\\');
  return slash == std::wstring::npos ? std::string() : Narrow(path.substr(0, slash));
}

std::string Win32SystemInfo::CurrentFolder() const {
  const DWORD size = GetCurrentDirectoryW(0, nullptr);
  std::wstring path(size, L'\0');
  const DWORD length = GetCurrentDirectoryW(size, path.data());
  path.resize(std::min<std::size_t>(length, path.size()));
  return Narrow(path);
}

std::string Win32SystemInfo::WindowsFolder() const { return FolderOf(GetSystemWindowsDirectoryW); }

std::string Win32SystemInfo::SystemFolder() const { return FolderOf(GetSystemDirectoryW); }

bool Win32SystemInfo::AnotherInstanceRuns() {
  if (claim_ && claim_->TakenBefore) {
    // The other must be the only one that holds the name while it is looked whether it ends.
    claim_.reset();
    Sleep(kMoment);
  }
  if (!claim_) {
    claim_ = std::make_unique<Claim>();
    claim_->Mutex.Reset(CreateMutexW(nullptr, FALSE, kSessionName));
    const DWORD error = GetLastError();
    // One that was made with other rights cannot even be opened, but it is there.
    claim_->TakenBefore =
        claim_->Mutex ? error == ERROR_ALREADY_EXISTS : error == ERROR_ACCESS_DENIED;
  }
  return claim_->TakenBefore;
}

int Win32SystemInfo::CaptionHeight(int dpi) const { return MetricForDpi(SM_CYCAPTION, dpi); }

int Win32SystemInfo::CaptionButtonWidth(int dpi) const { return MetricForDpi(SM_CXSIZE, dpi); }

std::string Win32SystemInfo::ShortDate() const { return DateNow(DATE_SHORTDATE); }

std::string Win32SystemInfo::LongDate() const { return DateNow(DATE_LONGDATE); }

std::string Win32SystemInfo::TimeOfDay() const {
  return TimeNow(L"tt").empty() ? TimeNow(L"HH':'mm") : TimeNow(L"hh':'mm tt");
}

int Win32SystemInfo::ColourDepth() const {
  const WindowDc screen(nullptr);
  return GetDeviceCaps(screen.Get(), BITSPIXEL) * GetDeviceCaps(screen.Get(), PLANES);
}

bool Win32SystemInfo::ShowHelpTopic(WindowId window, const std::string& file, int topic) {
  const HWND owner = window == kNoWindow ? GetDesktopWindow() : ToHwnd(window);
  return WinHelpW(owner, Wide(file).c_str(), HELP_CONTEXT, static_cast<ULONG_PTR>(topic)) != 0;
}

}  // namespace corvelle::win32
