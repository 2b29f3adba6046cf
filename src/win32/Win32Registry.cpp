#include "win32/Win32Registry.h"

#include <algorithm>

#include "win32/UniqueHandle.h"
#include "win32/Wide.h"

namespace corvelle::win32 {

namespace {

constexpr DWORD kLongestKeyName = 255;

HKEY RootOf(RegistryRoot root) {
  switch (root) {
    case RegistryRoot::ClassesRoot:
      return HKEY_CLASSES_ROOT;
    case RegistryRoot::CurrentUser:
      return HKEY_CURRENT_USER;
    case RegistryRoot::LocalMachine:
      break;
  }
  return HKEY_LOCAL_MACHINE;
}

/// The bytes of a value as text. Whoever wrote it may have left out the zero at its end, or the
/// second half of its last character.
std::optional<std::wstring> RawText(HKEY key, const std::wstring& name, DWORD& type) {
  DWORD bytes = 0;
  if (RegQueryValueExW(key, name.c_str(), nullptr, &type, nullptr, &bytes) != ERROR_SUCCESS)
    return std::nullopt;
  if (type != REG_SZ && type != REG_EXPAND_SZ) return std::nullopt;
  std::wstring text(bytes / sizeof(wchar_t) + 1, L'\0');
  bytes = static_cast<DWORD>(text.size() * sizeof(wchar_t));
  if (RegQueryValueExW(key, name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(text.data()),
                       &bytes) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  text.resize(bytes / sizeof(wchar_t));
  text.resize(std::min(text.find(L'\0'), text.size()));
  return text;
}

std::wstring Expanded(const std::wstring& text) {
  const DWORD size = ExpandEnvironmentStringsW(text.c_str(), nullptr, 0);
  std::wstring expanded(size, L'\0');
  if (size == 0 || ExpandEnvironmentStringsW(text.c_str(), expanded.data(), size) == 0) return text;
  expanded.resize(std::min(expanded.find(L'\0'), expanded.size()));
  return expanded;
}

}  // namespace

std::optional<std::string> Win32Registry::Text(RegistryRoot root, std::string_view key,
                                               std::string_view name) const {
  UniqueRegistryKey open;
  if (RegOpenKeyExW(RootOf(root), Wide(key).c_str(), 0, KEY_QUERY_VALUE, open.Receive()) !=
      ERROR_SUCCESS) {
    return std::nullopt;
  }
  DWORD type = 0;
  const std::optional<std::wstring> text = RawText(open.Get(), Wide(name), type);
  if (!text) return std::nullopt;
  return Narrow(type == REG_EXPAND_SZ ? Expanded(*text) : *text);
}

std::vector<std::string> Win32Registry::SubKeys(RegistryRoot root, std::string_view key) const {
  std::vector<std::string> names;
  UniqueRegistryKey open;
  if (RegOpenKeyExW(RootOf(root), Wide(key).c_str(), 0, KEY_ENUMERATE_SUB_KEYS, open.Receive()) !=
      ERROR_SUCCESS) {
    return names;
  }
  wchar_t name[kLongestKeyName + 1] = {};
  for (DWORD index = 0;; ++index) {
    DWORD length = kLongestKeyName + 1;
    if (RegEnumKeyExW(open.Get(), index, name, &length, nullptr, nullptr, nullptr, nullptr) !=
        ERROR_SUCCESS) {
      return names;
    }
    names.push_back(Narrow(std::wstring(name, length)));
  }
}

}  // namespace corvelle::win32
