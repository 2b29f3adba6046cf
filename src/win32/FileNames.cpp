#include "win32/FileNames.h"

#include <algorithm>
#include <cstddef>
#include <string>

#include "base/Text.h"
#include "base/Utf8.h"

namespace corvelle::win32 {

namespace {

constexpr std::string_view kDevices[] = {"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"};

bool StandsForNone(std::u16string_view name, std::size_t at) {
  return at == name.size() || name[at] == u'.';
}

// True if the pattern's character takes the name's.
bool Takes(char16_t form, std::u16string_view name, std::size_t at) {
  if (at == name.size()) return false;
  return form == u'?' ? name[at] != u'.' : form == name[at];
}

// Goes on from the last "*" whenever the way from there turns out wrong, so that no pattern takes
// long.
bool Fits(std::u16string_view name, std::u16string_view pattern) {
  std::size_t n = 0;
  std::size_t p = 0;
  std::size_t star = std::u16string_view::npos;
  std::size_t starName = 0;
  while (n < name.size() || p < pattern.size()) {
    const char16_t form = p < pattern.size() ? pattern[p] : u'\0';
    if (form == u'*') {
      star = p++;
      starName = n;
    } else if (Takes(form, name, n)) {
      ++p;
      ++n;
    } else if (form == u'?' && StandsForNone(name, n)) {
      ++p;
    } else if (star != std::u16string_view::npos && starName < name.size()) {
      p = star + 1;
      n = ++starName;
    } else {
      return false;
    }
  }
  return true;
}

}  // namespace

bool FitsPattern(std::string_view name, std::string_view pattern) {
  if (pattern == "*.*") return true;
  if (pattern.ends_with('.')) {
    if (name.find('.') != std::string_view::npos) return false;
    pattern.remove_suffix(1);
  }
  return Fits(ToWide(UpperCase(name)), ToWide(UpperCase(pattern)));
}

bool NamesDevice(std::string_view path) {
  const std::size_t slash = path.find_last_of("\\/");
  const std::string_view name = slash == std::string_view::npos ? path : path.substr(slash + 1);
  const std::string base = UpperCase(Trim(name.substr(0, name.find_first_of(".:"))));
  if (std::find(std::begin(kDevices), std::end(kDevices), base) != std::end(kDevices)) return true;
  return base.size() == 4 && (base.starts_with("COM") || base.starts_with("LPT")) &&
         base[3] >= '1' && base[3] <= '9';
}

bool CanNameFile(std::string_view text) {
  constexpr unsigned char kFirstPrintable = 0x20;
  if (text.empty() || text.starts_with("/:")) return false;
  return std::none_of(text.begin(), text.end(), [](char character) {
    return static_cast<unsigned char>(character) < kFirstPrintable ||
           std::string_view("<>|?*\"").find(character) != std::string_view::npos;
  });
}

}  // namespace corvelle::win32
