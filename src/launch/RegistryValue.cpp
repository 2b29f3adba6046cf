#include "launch/RegistryValue.h"

namespace corvelle {

namespace {

constexpr std::string_view kDigits = "0123456789ABCDEF";

std::string Hexadecimal(const std::vector<unsigned char>& bytes) {
  std::string text;
  for (const unsigned char byte : bytes) {
    if (!text.empty()) text += ' ';
    text += kDigits[byte / 16U];
    text += kDigits[byte % 16U];
  }
  return text;
}

}  // namespace

std::string TextOfValue(const RegistryValue& value) {
  if (const auto* const text = std::get_if<std::string>(&value)) return *text;
  if (const auto* const number = std::get_if<std::uint32_t>(&value)) return std::to_string(*number);
  return Hexadecimal(std::get<std::vector<unsigned char>>(value));
}

bool ReadRegistryValue(const Registry& keys, RegistryRoot hive, std::string_view key,
                       std::string_view value, std::string& text) {
  const auto read = keys.Value(hive, key, value);
  if (!read) return false;
  text = TextOfValue(*read);
  return true;
}

}  // namespace corvelle
