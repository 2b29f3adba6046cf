#include "search/QueryUrl.h"

#include <cstddef>

#include "base/Text.h"

namespace corvelle {

namespace {

constexpr char kHexDigits[] = "0123456789ABCDEF";
constexpr std::string_view kPlain = "*-.";
constexpr std::string_view kUtf8Word = "utf8";

bool IsPunctuation(unsigned char code) {
  return (code >= 33 && code <= 47) || (code >= 58 && code <= 64) || (code >= 91 && code <= 96) ||
         (code >= 123 && code <= 126);
}

bool IsBeyondAscii(unsigned char code) { return code > 127; }

std::string Encode(std::string_view query, bool percentBeyondAscii) {
  std::string encoded;
  encoded.reserve(query.size());
  for (const char character : query) {
    const auto code = static_cast<unsigned char>(character);
    const bool punctuation = IsPunctuation(code) && kPlain.find(character) == kPlain.npos;
    if (character == ' ') {
      encoded += '+';
    } else if (punctuation || (percentBeyondAscii && IsBeyondAscii(code))) {
      encoded += '%';
      encoded += kHexDigits[code >> 4U];
      encoded += kHexDigits[code & 0xFU];
    } else {
      encoded += character;
    }
  }
  return encoded;
}

}  // namespace

std::string EncodeQuery(std::string_view query) { return Encode(query, false); }

std::string EncodeQueryUtf8(std::string_view query) { return Encode(query, true); }

std::optional<std::string> QueryUrl(std::string_view urlTemplate, std::string_view query) {
  const std::size_t open = urlTemplate.find('[');
  const std::size_t close = urlTemplate.find(']');
  if (open == std::string_view::npos || close == std::string_view::npos) return std::nullopt;
  const bool utf8 =
      open < close && EqualNoCase(Trim(urlTemplate.substr(open + 1, close - open - 1)), kUtf8Word);
  std::string url(urlTemplate.substr(0, open));
  url += utf8 ? EncodeQueryUtf8(query) : EncodeQuery(query);
  url += urlTemplate.substr(close + 1);
  return url;
}

}  // namespace corvelle
