#pragma once

#include <mutex>
#include <optional>
#include <string>
#include <utility>

#include "forms/LookupWire.h"
#include "win32/UniqueHandle.h"

namespace corvelle::win32 {

/// One process that looks for icons. It lies in a job that dies with this program, and its only way
/// to the world are the two pipes that it inherits.
class ShellHelper {
 public:
  explicit ShellHelper(std::string program) : program_(std::move(program)) {}
  ShellHelper(const ShellHelper&) = delete;
  ShellHelper& operator=(const ShellHelper&) = delete;
  ~ShellHelper() { Kill(); }

  /// Starts the process if it does not run. False when it cannot be started.
  [[nodiscard]] bool Start();
  /// Asks and waits for the answer; nothing when the process has died meanwhile, or was killed.
  /// One caller at a time.
  [[nodiscard]] std::optional<LookupAnswer> Ask(LookupId id, const Lookup& question);
  /// Ends the process, from any thread.
  void Kill();

 private:
  void Close();
  [[nodiscard]] std::optional<LookupAnswer> Receive(LookupId id);

  std::string program_;
  std::mutex mutex_;  // holds the process while it is killed
  UniqueKernel job_;
  UniqueKernel process_;
  UniqueKernel to_;
  UniqueKernel from_;
  forms::WireReader reader_;
};

}  // namespace corvelle::win32
