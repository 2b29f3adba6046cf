#include "sim/SimPaths.h"

#include <algorithm>

#include "base/Text.h"
#include "base/Utf8.h"

namespace corvelle::sim {

namespace {

constexpr std::size_t kLongestPath = 259;  // characters of UTF-16
constexpr std::size_t kLongestName = 255;

bool IsLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

bool HasForbiddenCharacter(std::string_view name) {
  return std::any_of(name.begin(), name.end(), [](char c) {
    return static_cast<unsigned char>(c) < 0x20 ||
           std::string_view("<>:\"|?*").find(c) != std::string_view::npos;
  });
}

std::string WithoutTail(std::string_view name) {
  const std::size_t last = name.find_last_not_of(" .");
  return std::string(name.substr(0, last == std::string_view::npos ? 0 : last + 1));
}

bool IsGoodName(std::string_view name) {
  return IsValidUtf8(name) && !HasForbiddenCharacter(name) && !IsDeviceName(name) &&
         ToWide(name).size() <= kLongestName;
}

}  // namespace

ParsedPath ParsePath(std::string_view path, std::string_view currentFolder) {
  std::string text(path);
  std::replace(text.begin(), text.end(), '/', '\\');
  if (text.empty()) return {{}, PathFault::NoDrive};
  if (text.starts_with("\\\\")) return {{}, PathFault::NoDrive};

  ParsedPath parsed;
  std::string_view rest = text;
  if (rest.size() >= 2 && IsLetter(rest[0]) && rest[1] == ':') {
    parsed.Path.Drive = static_cast<char>(rest[0] & ~0x20);
    rest.remove_prefix(2);
  } else {
    const SimPath current = currentFolder.empty() ? SimPath{} : ParsePath(currentFolder, {}).Path;
    parsed.Path.Drive = current.Drive;
    if (!rest.starts_with('\\')) parsed.Path.Parts = current.Parts;
  }
  parsed.Path.EndsInBackslash = rest.ends_with('\\');

  while (!rest.empty()) {
    const std::string_view name = rest.substr(0, rest.find('\\'));
    rest.remove_prefix(std::min(name.size() + 1, rest.size()));
    if (name.empty() || name == ".") continue;
    if (name == "..") {
      if (!parsed.Path.Parts.empty()) parsed.Path.Parts.pop_back();
      continue;
    }
    std::string kept = WithoutTail(name);
    if (kept.empty() || !IsGoodName(kept)) return {parsed.Path, PathFault::BadName};
    parsed.Path.Parts.push_back(std::move(kept));
  }
  if (ToWide(FormatPath(parsed.Path)).size() > kLongestPath) parsed.Fault = PathFault::BadName;
  return parsed;
}

std::string FormatPath(const SimPath& path) {
  std::string text{path.Drive, ':'};
  for (const std::string& part : path.Parts) text += "\\" + part;
  if (path.IsRoot()) text += "\\";
  return text;
}

bool IsDeviceName(std::string_view name) {
  const std::string base = UpperCase(Trim(name.substr(0, name.find('.'))));
  if (base == "CON" || base == "PRN" || base == "AUX" || base == "NUL") return true;
  return base.size() == 4 && (base.starts_with("COM") || base.starts_with("LPT")) &&
         base[3] >= '1' && base[3] <= '9';
}

}  // namespace corvelle::sim
