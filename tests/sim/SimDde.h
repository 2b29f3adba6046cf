#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/DdeClient.h"
#include "sim/CallCosts.h"

namespace corvelle::sim {

/// One command as a server got it.
struct DdeCommand {
  std::string Service;
  std::string Topic;
  std::string Command;

  friend bool operator==(const DdeCommand&, const DdeCommand&) = default;
};

/// Programs that offer services, as a test sets them up: each takes every command, or refuses it,
/// or does not answer.
class SimDde final : public DdeClient, public Priced {
 public:
  /// A program that answers so from now on.
  void AddServer(std::string_view service, std::string_view topic,
                 DdeOutcome answer = DdeOutcome::Done);
  void RemoveServer(std::string_view service, std::string_view topic);

  /// What the servers were told, whatever they answered.
  [[nodiscard]] const std::vector<DdeCommand>& Told() const noexcept { return told_; }
  /// How often a conversation was tried.
  [[nodiscard]] int Tries() const noexcept { return tries_; }

  DdeOutcome Execute(std::string_view service, std::string_view topic,
                     std::string_view command) override;

 private:
  std::map<std::pair<std::string, std::string>, DdeOutcome> servers_;
  std::vector<DdeCommand> told_;
  int tries_ = 0;
};

}  // namespace corvelle::sim
