#pragma once

#include "platform/ShellExec.h"

namespace corvelle::win32 {

/// The shell of the machine.
class Win32ShellExec final : public ShellExec {
 public:
  bool Open(std::string_view file, std::optional<std::string_view> parameters,
            std::optional<std::string_view> folder) override;
  Result<Done, RunError> Run(std::string_view commandLine) override;
};

}  // namespace corvelle::win32
