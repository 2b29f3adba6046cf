#include "win32/Win32FileAssociations.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

#include "win32/Sys.h"
#include "win32/Wide.h"

namespace corvelle::win32 {

namespace {

constexpr std::intptr_t kLowestFound = 33;

}  // namespace

std::optional<std::string> Win32FileAssociations::ProgramFor(std::string_view file) {
  // The call takes no length; some systems write long paths here.
  wchar_t program[32768] = {};
  const auto result =
      reinterpret_cast<std::intptr_t>(FindExecutableW(Wide(file).c_str(), nullptr, program));
  if (result < kLowestFound) return std::nullopt;
  const auto* const end = std::find(std::begin(program), std::end(program), L'\0');
  if (end == std::begin(program)) return std::nullopt;
  return Narrow({program, static_cast<std::size_t>(end - program)});
}

}  // namespace corvelle::win32
