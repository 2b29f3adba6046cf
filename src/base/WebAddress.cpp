#include "base/WebAddress.h"

#include <algorithm>

#include "base/Text.h"

namespace corvelle {

namespace {

constexpr std::string_view kStart = "http://";
constexpr std::string_view kSecureStart = "https://";

}  // namespace

bool IsWebAddress(std::string_view text) noexcept {
  return StartsWithNoCase(text, kStart) || StartsWithNoCase(text, kSecureStart);
}

bool IsPlainWebAddress(std::string_view text) noexcept {
  return text.starts_with(kStart) || text.starts_with(kSecureStart);
}

std::size_t FindWebAddress(std::string_view text) noexcept {
  return std::min(FindNoCase(text, kStart), FindNoCase(text, kSecureStart));
}

}  // namespace corvelle
