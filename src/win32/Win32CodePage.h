#pragma once

#include "base/CodePage.h"

namespace corvelle::win32 {

/// The ANSI code page that the system is set to, whichever it is.
class Win32CodePage final : public CodePage {
 public:
  std::string Decode(std::string_view bytes) const override;
  std::optional<std::string> Encode(std::string_view text) const override;
};

}  // namespace corvelle::win32
