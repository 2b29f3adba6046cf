#include "forms/DropFiles.h"

#include <cstddef>
#include <cstdint>
#include <utility>

#include "base/Text.h"
#include "base/Utf8.h"

namespace corvelle::forms {

namespace {

constexpr std::size_t kHeaderLength = 20;
constexpr std::size_t kWideFlagAt = 16;
// The number of files, and of the first one its class, sizes, marks and times come before its name.
constexpr std::size_t kFirstNameAt = 76;
constexpr std::size_t kNameCharacters = 260;

std::uint32_t NumberAt(std::string_view block, std::size_t at) noexcept {
  std::uint32_t number = 0;
  for (std::size_t i = 0; i < 4; ++i) {
    number |= static_cast<std::uint32_t>(static_cast<unsigned char>(block[at + i])) << (8 * i);
  }
  return number;
}

/// A last odd byte is no character.
std::u16string WideCharacters(std::string_view block) {
  std::u16string text;
  text.reserve(block.size() / 2);
  for (std::size_t i = 0; i + 1 < block.size(); i += 2) {
    const auto low = static_cast<unsigned char>(block[i]);
    const auto high = static_cast<unsigned char>(block[i + 1]);
    text += static_cast<char16_t>(low | (high << 8));
  }
  return text;
}

template <class Text, class Convert>
std::vector<std::string> SplitList(const Text& list, const Convert& convert) {
  using Character = typename Text::value_type;
  std::vector<std::string> names;
  for (std::size_t at = 0; at < list.size() && list[at] != Character{};) {
    const std::size_t found = list.find(Character{}, at);
    const std::size_t end = found == Text::npos ? list.size() : found;
    names.push_back(convert(list.substr(at, end - at)));
    at = end + 1;
  }
  return names;
}

}  // namespace

std::vector<std::string> ParseDropFiles(std::string_view block, const CodePage& ansi) {
  if (block.size() < kHeaderLength) return {};
  const std::size_t start = NumberAt(block, 0);
  if (start < kHeaderLength || start > block.size()) return {};
  const std::string_view list = block.substr(start);
  if (NumberAt(block, kWideFlagAt) == 0) {
    return SplitList(list, [&ansi](std::string_view name) { return ansi.Decode(name); });
  }
  return SplitList(WideCharacters(list), [](std::u16string_view name) { return FromWide(name); });
}

std::string ParseWideText(std::string_view block) {
  std::u16string text = WideCharacters(block);
  return FromWide(std::u16string_view(text).substr(0, text.find(u'\0')));
}

std::string ParseNarrowText(std::string_view block, const CodePage& ansi) {
  return ansi.Decode(block.substr(0, block.find('\0')));
}

DraggedLink ParseLink(std::string_view text) {
  const std::vector<std::string> lines = SplitLines(text);
  DraggedLink link;
  if (!lines.empty()) link.Address = Trim(lines[0]);
  if (lines.size() > 1) link.Title = Trim(lines[1]);
  return link;
}

std::string ParseLinkFileTitle(std::string_view block, bool wide, const CodePage& ansi) {
  constexpr std::string_view kLinkEnd = ".url";
  if (block.size() < kFirstNameAt || NumberAt(block, 0) == 0) return {};
  const std::string_view field = block.substr(kFirstNameAt, kNameCharacters * (wide ? 2 : 1));
  const std::string name = wide ? ParseWideText(field) : ParseNarrowText(field, ansi);
  if (!EndsWithNoCase(name, kLinkEnd)) return {};
  return Trim(std::string_view(name).substr(0, name.size() - kLinkEnd.size()));
}

}  // namespace corvelle::forms
