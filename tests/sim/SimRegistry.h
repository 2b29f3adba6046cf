#pragma once

#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "platform/Registry.h"

namespace corvelle::sim {

/// A registry of a test; names of keys and values without regard to case.
class SimRegistry final : public Registry {
 public:
  /// Sets a value; `name` empty is the key's default value.
  void Set(RegistryRoot root, std::string_view key, std::string_view name, RegistryValue value);
  void Remove(RegistryRoot root, std::string_view key, std::string_view name);

  std::optional<std::string> Text(RegistryRoot root, std::string_view key,
                                  std::string_view name) const override;
  std::optional<RegistryValue> Value(RegistryRoot root, std::string_view key,
                                     std::string_view name) const override;
  std::vector<std::string> SubKeys(RegistryRoot root, std::string_view key) const override;

 private:
  std::map<std::tuple<RegistryRoot, std::string, std::string>, RegistryValue> values_;
};

}  // namespace corvelle::sim
