#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace corvelle {

enum class RegistryRoot { ClassesRoot, CurrentUser, LocalMachine };

/// A text, as Registry::Text gives it; a number of 32 bits; the bytes of any other kind.
using RegistryValue = std::variant<std::string, std::uint32_t, std::vector<unsigned char>>;

/// The registry, which the program only reads.
class Registry {
 public:
  virtual ~Registry() = default;

  /// A text value, its environment variables expanded where it asks for it; `name` empty is the
  /// key's default value. Nothing when the key or the value is missing or is no text.
  [[nodiscard]] virtual std::optional<std::string> Text(RegistryRoot root, std::string_view key,
                                                        std::string_view name) const = 0;

  /// A value of any kind. Nothing when the key or the value is missing.
  [[nodiscard]] virtual std::optional<RegistryValue> Value(RegistryRoot root, std::string_view key,
                                                           std::string_view name) const = 0;

  /// Names of the keys directly below a key, in no particular order; empty when the key is missing
  /// or cannot be read.
  [[nodiscard]] virtual std::vector<std::string> SubKeys(RegistryRoot root,
                                                         std::string_view key) const = 0;
};

}  // namespace corvelle
