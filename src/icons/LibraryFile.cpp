#include "icons/LibraryFile.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "base/FieldText.h"
#include "base/Text.h"

namespace corvelle {

namespace {

std::int32_t ReadInt(std::string_view bytes, std::size_t at) noexcept {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < sizeof value && at + i < bytes.size(); ++i) {
    value |= std::uint32_t{static_cast<unsigned char>(bytes[at + i])} << (8 * i);
  }
  return static_cast<std::int32_t>(value);
}

std::string IntBytes(std::int32_t value) {
  const auto bits = static_cast<std::uint32_t>(value);
  std::string bytes;
  for (unsigned i = 0; i < sizeof bits; ++i) {
    bytes.push_back(static_cast<char>(static_cast<unsigned char>((bits >> (8 * i)) & 0xFFU)));
  }
  return bytes;
}

bool IsForbidden(char c) noexcept {
  return static_cast<unsigned char>(c) < 0x20 ||
         std::string_view("\\/:*?\"<>|").find(c) != std::string_view::npos;
}

/// "1" to "9", and the superscript digits that Windows takes for the first three of them.
bool IsPortNumber(std::string_view text) noexcept {
  if (text.size() == 1) return text[0] >= '1' && text[0] <= '9';
  return text == "\xC2\xB9" || text == "\xC2\xB2" || text == "\xC2\xB3";
}

/// Windows opens a device under these names, whatever ending they bear and wherever they stand.
bool IsDeviceName(std::string_view name) {
  const std::string stem = Trim(name.substr(0, name.find('.')));
  static constexpr std::array<std::string_view, 6> kDevices = {"CON", "PRN",    "AUX",
                                                               "NUL", "CONIN$", "CONOUT$"};
  if (std::any_of(kDevices.begin(), kDevices.end(),
                  [&](std::string_view device) { return EqualNoCase(stem, device); })) {
    return true;
  }
  return (StartsWithNoCase(stem, "COM") || StartsWithNoCase(stem, "LPT")) &&
         IsPortNumber(std::string_view(stem).substr(3));
}

}  // namespace

std::optional<LibraryEntry> ParseLibraryEntry(std::string_view bytes, const CodePage& ansi) {
  if (bytes.size() < kLibraryHeader) return std::nullopt;
  return LibraryEntry{.Name = DecodeField(bytes.substr(0, kLibraryName), ansi),
                      .Highest = ReadInt(bytes, kLibraryName)};
}

std::uint64_t LibraryDataLength(const LibraryEntry& entry) noexcept {
  return entry.Highest <= 0 ? 0 : static_cast<std::uint64_t>(entry.Highest) + 1;
}

bool IsPlainFileName(std::string_view name) {
  if (name.empty() || name.front() == ' ' || name.back() == ' ' || name.back() == '.') return false;
  return std::none_of(name.begin(), name.end(), IsForbidden) && !IsDeviceName(name);
}

std::vector<std::string> LibraryLines(std::string_view bytes, const CodePage& ansi) {
  std::vector<std::string> lines;
  for (const std::string& line : SplitLines(bytes)) {
    std::string text = Trim(DecodeText(line, ansi));
    if (!text.empty()) lines.push_back(std::move(text));
  }
  return lines;
}

std::string FormatLibraryLines(const std::vector<std::string>& lines, const CodePage& ansi) {
  std::string bytes;
  for (const std::string& line : lines) bytes += EncodeText(line, ansi) + "\r\n";
  return bytes;
}

std::string OtherFileRow(std::string_view path) {
  const std::size_t slash = path.rfind('\\');
  const std::string_view name = slash == std::string_view::npos ? path : path.substr(slash + 1);
  return std::string(name) + " |" + std::string(path);
}

std::string OtherFileName(std::string_view row) { return Trim(row.substr(0, row.find('|'))); }

std::string OtherFilePath(std::string_view row) {
  const std::size_t bar = row.find('|');
  return bar == std::string_view::npos ? std::string() : Trim(row.substr(bar + 1));
}

std::string PlainCase(std::string_view path) {
  // One letter of UTF-8, which may take several bytes.
  std::size_t first = path.empty() ? 0 : 1;
  while (first < path.size() && (static_cast<unsigned char>(path[first]) & 0xC0U) == 0x80U) ++first;
  return UpperCase(path.substr(0, first)) + LowerCase(path.substr(first));
}

DisplayValues ParseDisplayRecord(std::string_view bytes) noexcept {
  return {.WindowColour = ReadInt(bytes, 0), .BitsPerPixel = ReadInt(bytes, 4)};
}

std::string FormatDisplayRecord(const DisplayValues& values) {
  std::string record = IntBytes(values.WindowColour) + IntBytes(values.BitsPerPixel);
  record.resize(kDisplayRecord, '\0');
  return record;
}

}  // namespace corvelle
