#pragma once

#include "platform/ShellExec.h"

namespace corvelle::win32 {

/// What becomes of the thread that starts something.
enum class ShellExecThread { RunsEvents, EndsSoon };

/// The shell of the machine.
class Win32ShellExec final : public ShellExec {
 public:
  explicit Win32ShellExec(ShellExecThread thread = ShellExecThread::RunsEvents) : thread_(thread) {}

  Result<Done, OpenError> Open(std::string_view file, std::optional<std::string_view> parameters,
                               std::optional<std::string_view> folder) override;
  Result<Done, RunError> Run(std::string_view commandLine) override;

 private:
  ShellExecThread thread_;
};

/// What the last errors of ShellExecuteEx and of CreateProcess mean.
[[nodiscard]] OpenError OpenErrorOf(unsigned long error) noexcept;
[[nodiscard]] RunError RunErrorOf(unsigned long error) noexcept;

}  // namespace corvelle::win32
