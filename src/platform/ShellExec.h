#pragma once

#include <optional>
#include <string_view>

#include "base/Result.h"

namespace corvelle {

/// Why a command line could not be started.
enum class RunError {
  BadFileName,   // the text is no file name
  FileNotFound,  // no such program
  Other,         // the file is there but cannot be run
};

/// Starting programs and documents.
class ShellExec {
 public:
  virtual ~ShellExec() = default;

  /// Opens a file, program or address as a double click would, for the desktop window and with a
  /// normal window. `parameters` and `folder` may be absent. False when the system's answer is a
  /// failure (below 33), and for no text. Shows no message of its own.
  virtual bool Open(std::string_view file, std::optional<std::string_view> parameters,
                    std::optional<std::string_view> folder) = 0;

  /// Starts a process from a whole command line, with a normal focused window, without waiting.
  virtual Result<Done, RunError> Run(std::string_view commandLine) = 0;
};

}  // namespace corvelle
