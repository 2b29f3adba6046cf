#include "launch/FileSearch.h"

#include <string>
#include <string_view>

#include "core/LaunchParts.h"
#include "core/MessageBoxes.h"
#include "core/WindowPorts.h"
#include "launch/StartBeside.h"
#include "platform/ShellExec.h"

namespace corvelle {

namespace {

// Among all that is under way; no entry can bear such a text.
constexpr std::string_view kSearch = "\"\"search";
constexpr std::string_view kNoSearchText = "File/Device unavailable.";

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

/// False when the machine has no search, or none that starts.
bool OpenSearchApart(const StartServices& services) {
  for (const SearchWay& way : kSearchWays) {
    if (!Has(services.Keys, way)) continue;
    if (IsSettled(services.Shell.Open(way.Address, std::nullopt, std::nullopt))) return true;
  }
  return false;
}

}  // namespace

void OpenFileSearch(const LaunchParts& with) {
  StartBeside<bool>(with.Starts, std::string(kSearch), &OpenSearchApart, [with](bool opened) {
    if (opened) return;
    with.Messages.Say(with.Ports.ToolbarWindow(), kNoSearchText,
                      forms::msgbox::IconStop | forms::msgbox::OnTop);
  });
}

bool HasFileSearch(const Registry& keys) {
  for (const SearchWay& way : kSearchWays) {
    if (Has(keys, way)) return true;
  }
  return false;
}

}  // namespace corvelle
