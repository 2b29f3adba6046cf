#include "win32/Wide.h"

#include "base/Utf8.h"

namespace corvelle::win32 {

static_assert(sizeof(wchar_t) == sizeof(char16_t));

std::wstring Wide(std::string_view text) {
  const std::u16string wide = ToWide(text);
  return {wide.begin(), wide.end()};
}

std::string Narrow(std::wstring_view text) {
  return FromWide(std::u16string(text.begin(), text.end()));
}

}  // namespace corvelle::win32
