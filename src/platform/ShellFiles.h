#pragma once

#include <optional>
#include <string>

#include "platform/WindowId.h"

namespace corvelle {

/// Functions and flags of a file operation of the shell, by their numbers in Windows.
namespace fileop {
inline constexpr unsigned Delete = 3;
inline constexpr unsigned Silent = 4;
inline constexpr unsigned NoConfirmation = 16;
inline constexpr unsigned AllowUndo = 64;  // into the Recycle Bin
inline constexpr unsigned FilesOnly = 128;
inline constexpr unsigned NoErrorBoxes = 1024;
}  // namespace fileop

/// One operation on the files that a pattern takes.
struct FileOperation {
  WindowId Owner = kNoWindow;
  unsigned Function = fileop::Delete;
  std::string From;  // a whole path, whose last name may hold "*" and "?"
  unsigned Flags = 0;

  friend bool operator==(const FileOperation&, const FileOperation&) = default;
};

/// What the shell does with files beyond the disk's own operations.
class ShellFiles {
 public:
  virtual ~ShellFiles() = default;

  /// The user's folder for temporary files; nothing when the system names none. It need not exist.
  [[nodiscard]] virtual std::optional<std::string> TempPath() = 0;

  /// Carries the operation out with the shell's own questions, as its flags ask for them. 0 when
  /// that succeeded, else the system's number for what went wrong; the user's "no" is one of them.
  [[nodiscard]] virtual int ShFileOperation(const FileOperation& operation) = 0;
};

}  // namespace corvelle
