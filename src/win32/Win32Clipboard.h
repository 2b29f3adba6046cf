#pragma once

#include "platform/Clipboard.h"

namespace corvelle::win32 {

/// The clipboard of the desktop.
class Win32Clipboard final : public Clipboard {
 public:
  bool PutText(WindowId owner, std::string_view text) override;
};

}  // namespace corvelle::win32
