#pragma once

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ShellExec.h"
#include "sim/CallCosts.h"
#include "sim/SimFiles.h"
#include "sim/SimShellLinks.h"

namespace corvelle::sim {

/// One program, document or address that was to be started.
struct Launch {
  enum class Kind { Open, Run };
  Kind How = Kind::Open;
  std::string File;  // of Run: the whole command line
  std::optional<std::string> Parameters;
  std::optional<std::string> Folder;
  bool Started = false;

  friend bool operator==(const Launch&, const Launch&) = default;
};

/// A shell that starts nothing and remembers everything. Programs (exe, com, bat, pif) start when
/// their file is on the disk, links when they are whole and lead to a file or an item; documents
/// need an association; folders and addresses open.
class SimShellExec final : public ShellExec, public Priced {
 public:
  SimShellExec(SimFiles& files, const SimShellLinks& links) : files_(files), links_(links) {}

  /// Files with this extension (".txt") open from now on.
  void Associate(std::string_view extension, std::string_view program);
  /// A program that starts by its bare name, wherever it is ("notepad.exe").
  void AddToPath(std::string_view program);
  /// Opening or running this text fails, whatever it is; for Run with this error.
  void Fail(std::string_view file, RunError error = RunError::Other);
  /// Opening this text fails like this; running it is as ever.
  void FailToOpen(std::string_view file, OpenError error);

  /// Runs at each attempt, when it is in the log and before its answer.
  void WhileAsked(std::function<void(const Launch&)> action) { whileAsked_ = std::move(action); }

  /// All attempts in their order.
  const std::vector<Launch>& Log() const noexcept { return log_; }
  void ClearLog() { log_.clear(); }
  /// Texts of what was started, in order.
  [[nodiscard]] std::vector<std::string> Started() const;

  Result<Done, OpenError> Open(std::string_view file, std::optional<std::string_view> parameters,
                               std::optional<std::string_view> folder) override;
  Result<Done, RunError> Run(std::string_view commandLine) override;

 private:
  void Note(const Launch& launch);
  [[nodiscard]] bool Exists(std::string_view file) const;
  [[nodiscard]] bool CanOpen(std::string_view file) const;
  [[nodiscard]] std::optional<OpenError> WhyNotOpened(std::string_view file) const;
  [[nodiscard]] bool CanFollow(std::string_view link) const;
  [[nodiscard]] std::optional<RunError> WhyNotRun(std::string_view commandLine) const;

  SimFiles& files_;
  const SimShellLinks& links_;
  std::map<std::string, std::string> associations_;
  std::set<std::string> path_;
  std::map<std::string, RunError> failures_;
  std::map<std::string, OpenError> openFailures_;
  std::function<void(const Launch&)> whileAsked_;
  std::vector<Launch> log_;
};

}  // namespace corvelle::sim
