#pragma once

#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "platform/Starter.h"
#include "sim/CallCosts.h"

namespace corvelle::sim {

/// Starts inside the call, unless a test says that the system takes its time, or that the event
/// which tells how a start ended waits behind others.
class SimStarter final : public Starter, public Priced {
 public:
  explicit SimStarter(const StartServices& services) { Use(services); }

  void Use(const StartServices& services) { services_.emplace(services); }

  /// From now on nothing is started until the system comes back.
  void Hang() { hangs_ = true; }
  /// What hung is started now, in its order.
  void Resume() {
    hangs_ = false;
    for (const auto& [work, done] : std::exchange(waiting_, {})) Carry(work, done);
  }
  /// From now on what is started is told to be only when TellEnds is called.
  void HoldEnds() { holdsEnds_ = true; }
  void TellEnds() {
    holdsEnds_ = false;
    for (const auto& done : std::exchange(ends_, {})) done();
  }
  /// How many starts hang.
  [[nodiscard]] int UnderWay() const noexcept { return static_cast<int>(waiting_.size()); }

  void Start(Work work, std::function<void()> done) override {
    if (hangs_) {
      waiting_.emplace_back(std::move(work), std::move(done));
    } else {
      Carry(work, done);
    }
  }

 private:
  void Carry(const Work& work, const std::function<void()>& done) {
    {
      const CallCosts::Apart thread(Costs());
      work(*services_);
    }
    if (holdsEnds_) {
      ends_.push_back(done);
    } else {
      done();
    }
  }

  std::optional<StartServices> services_;
  std::vector<std::pair<Work, std::function<void()>>> waiting_;
  std::vector<std::function<void()>> ends_;
  bool hangs_ = false;
  bool holdsEnds_ = false;
};

}  // namespace corvelle::sim
