#pragma once

#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>

#include "win32/ShellHelper.h"

namespace corvelle::win32 {

/// The processes that look for icons, one for each lane that has asked, as long as there are not
/// too many. One that dies is started again, three times; then icons come by the type of the file.
/// One that was ended with a cancelled question has not died. Several threads may ask.
class ShellHelpers {
 public:
  /// Path of the program that they run.
  explicit ShellHelpers(std::string program);

  /// The answer to a question about an icon or a name; nothing when there is no process to ask, so
  /// that the caller's thread does it.
  [[nodiscard]] std::optional<LookupAnswer> Answer(LookupId id, const Lookup& question);
  /// Ends the process that is at that question, which then fails.
  void Cancel(LookupId id);
  /// Ends all of them; none is started any more.
  void Close();

 private:
  struct Lane {
    explicit Lane(const std::string& program) : Helper(program) {}

    std::mutex Asking;
    ShellHelper Helper;
    int Deaths = 0;
    bool CannotStart = false;
  };

  [[nodiscard]] std::shared_ptr<Lane> LaneOf(const std::string& lane);
  /// Null while the process of the lane starts, since nobody can kill it then. False when the
  /// question is not to be asked.
  [[nodiscard]] bool Begin(LookupId id, std::shared_ptr<Lane> lane);
  /// True when the question was cancelled.
  [[nodiscard]] bool End(LookupId id);

  std::string program_;
  std::mutex mutex_;
  std::map<std::string, std::shared_ptr<Lane>> lanes_;
  std::map<LookupId, std::shared_ptr<Lane>> asking_;
  std::set<LookupId> cancelled_;
  bool closed_;
};

/// The icon, or the name, that a file has by its type alone: no disk, no extension of the shell and
/// no cloud is asked. Fails for other questions, and when the path names no file.
[[nodiscard]] LookupAnswer AnswerByType(const Lookup& question);

}  // namespace corvelle::win32
