#include "sim/SimRegistry.h"

#include <utility>

#include "base/Text.h"

namespace corvelle::sim {

namespace {

std::tuple<RegistryRoot, std::string, std::string> KeyOf(RegistryRoot root, std::string_view key,
                                                         std::string_view name) {
  return {root, UpperCase(DropBackslash(key)), UpperCase(name)};
}

}  // namespace

void SimRegistry::Set(RegistryRoot root, std::string_view key, std::string_view name,
                      std::string value) {
  values_[KeyOf(root, key, name)] = std::move(value);
}

void SimRegistry::Remove(RegistryRoot root, std::string_view key, std::string_view name) {
  values_.erase(KeyOf(root, key, name));
}

std::optional<std::string> SimRegistry::Text(RegistryRoot root, std::string_view key,
                                             std::string_view name) const {
  const auto found = values_.find(KeyOf(root, key, name));
  if (found == values_.end()) return std::nullopt;
  return found->second;
}

}  // namespace corvelle::sim
