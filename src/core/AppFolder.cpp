#include "core/AppFolder.h"

#include <algorithm>

#include "base/Text.h"
#include "platform/FileSystem.h"
#include "platform/Registry.h"
#include "platform/SystemInfo.h"

namespace corvelle {
namespace {

bool HoldsProgram(const Platform& system, const std::string& folder) {
  const auto entries = system.Files.List(folder, "corvelle.*");
  return entries && std::any_of(entries->begin(), entries->end(),
                                [](const FileEntry& entry) { return !entry.IsFolder; });
}

}  // namespace

std::string GetRegistryPath(const Platform& system) {
  const auto path = system.Keys.Text(RegistryRoot::LocalMachine,
                                     "Software\\Ombrane Fieldworks\\Corvelle", "Path");
  return path && !path->empty() ? EnsureBackslash(*path) : std::string();
}

std::string FindAppPath(const Platform& system) {
  const std::string own = EnsureBackslash(system.System.ApplicationFolder());
  if (HoldsProgram(system, own)) return own;
  const std::string current = EnsureBackslash(system.System.CurrentFolder());
  if (HoldsProgram(system, current)) return current;
  const std::string noted = GetRegistryPath(system);
  if (!noted.empty() && HoldsProgram(system, noted)) return noted;
  return own;
}

}  // namespace corvelle
