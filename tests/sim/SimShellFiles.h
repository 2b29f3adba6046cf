#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/ShellFiles.h"
#include "sim/CallCosts.h"
#include "sim/SimFiles.h"

namespace corvelle::sim {

/// A shell that deletes files of the simulated disk, into a bin where it may.
class SimShellFiles final : public ShellFiles, public Priced {
 public:
  explicit SimShellFiles(SimFiles& files) : files_(files) {}

  /// None at first.
  void SetTempPath(std::optional<std::string> path) { tempPath_ = std::move(path); }
  /// The next operation changes nothing and gives this number.
  void FailNext(int error) { failure_ = error; }

  /// All operations in their order.
  const std::vector<FileOperation>& Log() const noexcept { return log_; }
  /// Paths of the files in the bin, in the order of their going.
  const std::vector<std::string>& RecycleBin() const noexcept { return bin_; }

  std::optional<std::string> TempPath() override { return tempPath_; }
  int ShFileOperation(const FileOperation& operation) override;

 private:
  SimFiles& files_;
  std::optional<std::string> tempPath_;
  int failure_ = 0;
  std::vector<FileOperation> log_;
  std::vector<std::string> bin_;
};

}  // namespace corvelle::sim
