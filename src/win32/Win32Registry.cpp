#include "win32/Win32Registry.h"

#include <algorithm>
#include <cstring>
#include <utility>

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

struct RawValue {
  DWORD Type = REG_NONE;
  std::vector<unsigned char> Bytes;
};

std::optional<RawValue> Read(RegistryRoot root, std::string_view key, std::string_view name) {
  UniqueRegistryKey open;
  if (RegOpenKeyExW(RootOf(root), Wide(key).c_str(), 0, KEY_QUERY_VALUE, open.Receive()) !=
      ERROR_SUCCESS) {
    return std::nullopt;
  }
  const std::wstring wideName = Wide(name);
  RawValue value;
  DWORD size = 0;
  if (RegQueryValueExW(open.Get(), wideName.c_str(), nullptr, &value.Type, nullptr, &size) !=
      ERROR_SUCCESS) {
    return std::nullopt;
  }
  // One more, so that there is a place for the bytes of an empty value too.
  value.Bytes.resize(size + 1);
  size = static_cast<DWORD>(value.Bytes.size());
  if (RegQueryValueExW(open.Get(), wideName.c_str(), nullptr, &value.Type, value.Bytes.data(),
                       &size) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  value.Bytes.resize(size);
  return value;
}

bool IsText(const RawValue& value) { return value.Type == REG_SZ || value.Type == REG_EXPAND_SZ; }

/// The bytes of a value as text. Whoever wrote it may have left out the zero at its end, or the
/// second half of its last character.
std::wstring RawText(const std::vector<unsigned char>& bytes) {
  std::wstring text(bytes.size() / sizeof(wchar_t), L'\0');
  std::memcpy(text.data(), bytes.data(), text.size() * sizeof(wchar_t));
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
  auto value = Value(root, key, name);
  if (!value || !std::holds_alternative<std::string>(*value)) return std::nullopt;
  return std::get<std::string>(std::move(*value));
}

std::optional<RegistryValue> Win32Registry::Value(RegistryRoot root, std::string_view key,
                                                  std::string_view name) const {
  auto value = Read(root, key, name);
  if (!value) return std::nullopt;
  if (IsText(*value)) {
    const std::wstring text = RawText(value->Bytes);
    return RegistryValue(Narrow(value->Type == REG_EXPAND_SZ ? Expanded(text) : text));
  }
  std::uint32_t number = 0;
  if (value->Type == REG_DWORD && value->Bytes.size() == sizeof(number)) {
    std::memcpy(&number, value->Bytes.data(), sizeof(number));
    return RegistryValue(number);
  }
  return RegistryValue(std::move(value->Bytes));
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
