#include "launch/FileSearch.h"

#include <string_view>

#include "core/Program.h"
#include "platform/ShellExec.h"

namespace corvelle {

namespace {

constexpr std::string_view kUnavailableText = "File/Device unavailable.";

/// A way to the search, and what is registered where the machine has it. The second is for machines
/// whose administrator has taken the protocol away.
struct SearchWay {
  std::string_view Address;
  std::string_view Key;  // below HKEY_CLASSES_ROOT
  std::string_view Value;
};

constexpr SearchWay kSearchWays[] = {
    {"search-ms:query=&", "search-ms", "URL Protocol"},
    {"shell:::{9343812E-1C37-4A49-A12E-4B2D810D956B}",
     "CLSID\\{9343812E-1C37-4A49-A12E-4B2D810D956B}", ""},
};

bool Has(const Registry& keys, const SearchWay& way) {
  return keys.Value(RegistryRoot::ClassesRoot, way.Key, way.Value).has_value();
}

}  // namespace

void OpenFileSearch(Program& program) {
  for (const SearchWay& way : kSearchWays) {
    if (!Has(program.Services.Keys, way)) continue;
    const auto opened = program.Services.Shell.Open(way.Address, std::nullopt, std::nullopt);
    if (opened || opened.Error() == OpenError::Cancelled) return;
  }
  program.Say(program.ToolbarWindow(), kUnavailableText,
              forms::msgbox::IconStop | forms::msgbox::OnTop);
}

bool HasFileSearch(const Registry& keys) {
  for (const SearchWay& way : kSearchWays) {
    if (Has(keys, way)) return true;
  }
  return false;
}

}  // namespace corvelle
