#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "customize/CustTree.h"
#include "desk/SlowQuestions.h"
#include "forms/Timer.h"

namespace corvelle {

/// Finds out in the background which commands lead to a file or folder that is not there. Places
/// that may be slow are left out: servers, drives in the network, removable ones, disks at rest.
/// What never answers is not missing.
class MissingTargets {
 public:
  MissingTargets(SlowQuestions& slow, forms::WindowSystem& windows);
  MissingTargets(const MissingTargets&) = delete;
  MissingTargets& operator=(const MissingTargets&) = delete;
  ~MissingTargets();

  /// True if the target of a command is known to be missing. A command that nobody has asked about
  /// is looked up; Changed is called for the node if that finds it missing.
  [[nodiscard]] bool Ask(CustRef node, const std::string& command);
  /// True if the target of a command is known to be missing.
  [[nodiscard]] bool IsMissing(const std::string& command) const;
  /// True if some command's target is missing.
  [[nodiscard]] bool Any() const noexcept { return missing_ > 0; }
  /// Looks up again what is missing: it may be back.
  void AskAgain();
  /// Forgets all of it; no answer comes any more.
  void Clear();

  /// Whether the command of a node is missing has changed.
  std::function<void(CustRef)> Changed;

 private:
  struct Command {
    bool Missing = false;
    bool Asked = false;                 // and not answered yet
    std::unordered_set<CustRef> Nodes;  // that bear it, or have borne it
  };
  /// A command that is being looked up.
  struct Search {
    std::string Text;
    std::vector<std::string> Targets;  // those that are left, the next one last
  };
  struct Drive {
    bool Known = false;
    bool AtHand = false;
    std::size_t UnderWay = 0;
    std::deque<Search> Waiting;
  };

  void Step();
  void Begin(const std::string& command);
  void AskDrive(const std::string& name);
  void Go(const std::string& name);
  void AskNext(const std::string& name, Search search);
  void End(const std::string& command, bool missing);

  SlowQuestions& slow_;
  forms::Timer tmrStep_;
  std::unordered_map<std::string, Command> commands_;
  std::deque<std::string> fresh_;  // commands that nobody has looked at
  std::unordered_map<std::string, Drive> drives_;
  std::uint64_t generation_ = 0;
  std::size_t missing_ = 0;  // commands
};

}  // namespace corvelle
