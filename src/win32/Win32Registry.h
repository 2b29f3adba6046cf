#pragma once

#include "platform/Registry.h"

namespace corvelle::win32 {

/// The registry of the machine.
class Win32Registry final : public Registry {
 public:
  std::optional<std::string> Text(RegistryRoot root, std::string_view key,
                                  std::string_view name) const override;
  std::optional<RegistryValue> Value(RegistryRoot root, std::string_view key,
                                     std::string_view name) const override;
  std::vector<std::string> SubKeys(RegistryRoot root, std::string_view key) const override;
};

}  // namespace corvelle::win32
