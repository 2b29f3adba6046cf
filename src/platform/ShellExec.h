#pragma once

#include <optional>
#include <string_view>

#include "base/Result.h"

namespace corvelle {

/// Why a file, program or address could not be opened.
enum class OpenError {
  Cancelled,     // the user was asked (a security warning, elevation) and said no
  AccessDenied,  // no right to it, or another program holds it
  Other,         // not there, no program for it, or anything else
};

/// Why a command line could not be started.
enum class RunError {
  BadFileName,     // the text cannot name a file
  FileNotFound,    // no such program
  AccessDenied,    // no right to it, or another program holds it
  NeedsElevation,  // only the shell can start it, after a question to the user
  Other,           // the file is there but cannot be run
};

/// Starting programs and documents.
class ShellExec {
 public:
  virtual ~ShellExec() = default;

  /// Opens a file, program or address as a double click would, for the desktop window and with a
  /// normal window. `parameters` and `folder` may be absent. OpenError::Other for no text. Shows no
  /// message of its own; the system may ask the user before it starts a program.
  [[nodiscard]] virtual Result<Done, OpenError> Open(std::string_view file,
                                                     std::optional<std::string_view> parameters,
                                                     std::optional<std::string_view> folder) = 0;

  /// Starts a process from a whole command line, with a normal focused window, without waiting. The
  /// system asks the user nothing.
  virtual Result<Done, RunError> Run(std::string_view commandLine) = 0;
};

}  // namespace corvelle
