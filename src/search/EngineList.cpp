#include "search/EngineList.h"

#include <cstddef>
#include <optional>

#include "base/FieldText.h"
#include "base/Text.h"
#include "base/Utf8.h"

namespace corvelle {

namespace {

constexpr std::string_view kNameKey = "NAME=";
constexpr std::string_view kUrlKey = "URL=";
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kLittleEndianMark = "\xFF\xFE";
constexpr std::string_view kBigEndianMark = "\xFE\xFF";

/// UTF-16 bytes as UTF-8; an odd byte at the end is left out.
std::string FromUtf16(std::string_view bytes, bool bigEndian) {
  std::u16string wide;
  for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
    const auto first = static_cast<unsigned char>(bytes[at]);
    const auto second = static_cast<unsigned char>(bytes[at + 1]);
    const unsigned high = bigEndian ? first : second;
    const unsigned low = bigEndian ? second : first;
    wide.push_back(static_cast<char16_t>(high << 8U | low));
  }
  return FromWide(wide);
}

/// The list without the mark that an editor puts at the beginning of a file, as UTF-8 where the
/// mark says how it is written.
std::string WithoutMark(std::string_view bytes) {
  if (bytes.starts_with(kUtf8Mark)) return std::string(bytes.substr(kUtf8Mark.size()));
  if (bytes.starts_with(kLittleEndianMark)) return FromUtf16(bytes.substr(2), false);
  if (bytes.starts_with(kBigEndianMark)) return FromUtf16(bytes.substr(2), true);
  return std::string(bytes);
}

/// What follows the key at the beginning of the line; nothing for a line of another form.
std::optional<std::string> ValueOf(std::string_view line, std::string_view key) {
  if (!StartsWithNoCase(line, key)) return std::nullopt;
  return Trim(line.substr(key.size()));
}

}  // namespace

std::vector<SearchEngine> ParseEngines(std::string_view bytes, const CodePage& ansi) {
  std::vector<SearchEngine> engines;
  bool named = false;  // by the line before
  for (const std::string& stored : SplitLines(WithoutMark(bytes))) {
    // A NUL would end the text of a control.
    const std::string line = StripAtNull(DecodeText(stored, ansi));
    const std::optional<std::string> url = named ? ValueOf(line, kUrlKey) : std::nullopt;
    named = false;
    if (url) {
      engines.back().Url = *url;
    } else if (const std::optional<std::string> name = ValueOf(line, kNameKey)) {
      engines.push_back({*name, {}});
      named = true;
    }
  }
  return engines;
}

}  // namespace corvelle
