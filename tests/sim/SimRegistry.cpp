#include "sim/SimRegistry.h"

#include <set>
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
                      RegistryValue value) {
  values_[KeyOf(root, key, name)] = std::move(value);
}

void SimRegistry::Remove(RegistryRoot root, std::string_view key, std::string_view name) {
  values_.erase(KeyOf(root, key, name));
}

std::optional<std::string> SimRegistry::Text(RegistryRoot root, std::string_view key,
                                             std::string_view name) const {
  auto value = Value(root, key, name);
  if (!value || !std::holds_alternative<std::string>(*value)) return std::nullopt;
  return std::get<std::string>(std::move(*value));
}

std::optional<RegistryValue> SimRegistry::Value(RegistryRoot root, std::string_view key,
                                                std::string_view name) const {
  const auto found = values_.find(KeyOf(root, key, name));
  if (found == values_.end()) return std::nullopt;
  return found->second;
}

std::vector<std::string> SimRegistry::SubKeys(RegistryRoot root, std::string_view key) const {
  const std::string start = UpperCase(DropBackslash(key)) + "\\";
  std::set<std::string> names;
  for (const auto& [place, value] : values_) {
    const auto& [placeRoot, placeKey, name] = place;
    if (placeRoot != root || !placeKey.starts_with(start)) continue;
    names.insert(placeKey.substr(start.size(), placeKey.find('\\', start.size()) - start.size()));
  }
  return {names.begin(), names.end()};
}

}  // namespace corvelle::sim
