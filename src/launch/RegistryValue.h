#pragma once

#include <string>
#include <string_view>

#include "platform/Registry.h"

namespace corvelle {

/// A value of the registry as text: a number in decimal, bytes as two hexadecimal capitals each
/// with blanks between them.
[[nodiscard]] std::string TextOfValue(const RegistryValue& value);

/// Reads a value into `text`; `value` empty is the key's default value. False, and `text` left as
/// it is, when the key or the value is missing.
bool ReadRegistryValue(const Registry& keys, RegistryRoot hive, std::string_view key,
                       std::string_view value, std::string& text);

}  // namespace corvelle
