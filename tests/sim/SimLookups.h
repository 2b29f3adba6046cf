#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>

#include "forms/Alive.h"
#include "forms/LookupLedger.h"
#include "platform/Lookups.h"
#include "sim/CallCosts.h"
#include "sim/SimDesktop.h"

namespace corvelle::sim {

/// Slow answers without threads: a test says how long each lane takes. At first every question is
/// answered as soon as its lane is free, and told by the next turn of the message loop.
class SimLookups final : public Lookups, public Priced {
 public:
  SimLookups(SimDesktop& desktop, const forms::LookupServices& services) : desktop_(desktop) {
    Use(services);
  }
  SimLookups(const SimLookups&) = delete;
  SimLookups& operator=(const SimLookups&) = delete;
  ~SimLookups() override;

  /// What the answers come from, from now on.
  void Use(const forms::LookupServices& services) { services_.emplace(services); }

  // Setting up and asking. A lane keeps what was said of it last.
  /// From now on each question of a lane takes so long. Milliseconds.
  void Delay(const std::string& lane, int milliseconds);
  /// From now on the lane answers nothing, until it is resumed.
  void Hang(const std::string& lane);
  /// The same, and it cannot be cancelled.
  void HangForGood(const std::string& lane);
  /// The system comes back: what hung is answered now.
  void Resume(const std::string& lane);
  /// How many questions were begun, and how many of them have not come back.
  [[nodiscard]] int Asked() const noexcept { return asked_; }
  [[nodiscard]] int UnderWay() const noexcept { return static_cast<int>(underWay_.size()); }

  void SetListener(Listener listener) override { listener_ = std::move(listener); }
  LookupId Ask(Lookup question) override;
  void Drop(std::uint64_t generation) override;
  void Cancel(LookupId id) override;
  /// Time stands still: what takes its time is not waited for.
  bool Collect(int milliseconds) override;

 private:
  static constexpr int kHangs = -1;
  static constexpr int kHangsForGood = -2;
  using Begun = forms::LookupLedger::Begun;

  struct UnderWayEntry {
    Begun Question;
    forms::TimerId Timer = 0;  // none while the lane hangs
  };

  void BeginAll();
  void Finish(LookupId id);
  [[nodiscard]] int DelayOf(const std::string& lane) const;
  [[nodiscard]] LookupAnswer Answer(LookupId id) const;
  void Complete(LookupId id, LookupAnswer answer);
  void PostTelling();
  bool Tell();

  SimDesktop& desktop_;
  std::optional<forms::LookupServices> services_;
  Listener listener_;
  forms::LookupLedger ledger_;
  std::map<std::string, int> delays_;
  std::map<LookupId, UnderWayEntry> underWay_;
  int asked_ = 0;
  std::set<LookupId> open_;  // asked, and nobody was told of their ends
  bool telling_ = false;
  bool late_ = false;  // a turn to tell came while the listener was at work
  forms::Alive alive_;
};

}  // namespace corvelle::sim
