#pragma once

#include <string>
#include <string_view>

#include "icons/LibraryFile.h"

namespace corvelle {

/// A container's entry of any name, at most as wide as its field, and of two bytes or more.
inline std::string Entry(std::string_view name, std::string_view data) {
  std::string bytes(name);
  bytes.resize(kLibraryName, ' ');
  const auto highest = static_cast<unsigned>(data.size() - 1);
  for (unsigned shift = 0; shift < 32; shift += 8) {
    bytes.push_back(static_cast<char>((highest >> shift) & 0xFFU));
  }
  return bytes.append(data);
}

/// The entry that ends a container.
inline std::string End() { return std::string(kLibraryName, ' ') + std::string(4, '\0'); }

}  // namespace corvelle
