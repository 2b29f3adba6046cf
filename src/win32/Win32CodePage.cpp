#include "win32/Win32CodePage.h"

#include "win32/Sys.h"
#include "win32/Wide.h"

namespace corvelle::win32 {

std::string Win32CodePage::Decode(std::string_view bytes) const {
  const int length = static_cast<int>(bytes.size());
  const int size = MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, nullptr, 0);
  if (size <= 0) return {};
  std::wstring wide(static_cast<std::size_t>(size), L'\0');
  MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, wide.data(), size);
  return Narrow(wide);
}

std::optional<std::string> Win32CodePage::Encode(std::string_view text) const {
  if (text.empty()) return std::string();
  // UTF-8 as the code page of the system knows neither the flag nor the report.
  const bool unicode = GetACP() == CP_UTF8;
  const DWORD flags = unicode ? 0 : WC_NO_BEST_FIT_CHARS;
  BOOL replaced = FALSE;
  BOOL* const report = unicode ? nullptr : &replaced;
  const std::wstring wide = Wide(text);
  const int length = static_cast<int>(wide.size());
  const int size =
      WideCharToMultiByte(CP_ACP, flags, wide.data(), length, nullptr, 0, nullptr, report);
  if (size <= 0 || replaced != FALSE) return std::nullopt;
  std::string bytes(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_ACP, flags, wide.data(), length, bytes.data(), size, nullptr, report);
  // The report is not to be relied on for every code page.
  if (replaced != FALSE || Decode(bytes) != text) return std::nullopt;
  return bytes;
}

}  // namespace corvelle::win32
