#pragma once

#include "platform/FileAssociations.h"

namespace corvelle::win32 {

/// The associations of the shell.
class Win32FileAssociations final : public FileAssociations {
 public:
  std::optional<std::string> ProgramFor(std::string_view file) override;
};

}  // namespace corvelle::win32
