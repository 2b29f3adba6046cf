#pragma once

#include "platform/ShellFiles.h"

namespace corvelle::win32 {

/// The shell of the machine and the folder for temporary files of this process.
class Win32ShellFiles final : public ShellFiles {
 public:
  std::optional<std::string> TempPath() override;
  int ShFileOperation(const FileOperation& operation) override;
};

}  // namespace corvelle::win32
