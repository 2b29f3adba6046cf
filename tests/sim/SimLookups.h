#pragma once

#include <map>
#include <string>

#include "forms/Alive.h"
#include "forms/LookupLedger.h"
#include "platform/Lookups.h"
#include "sim/SimDesktop.h"
#include "sim/SimFiles.h"
#include "sim/SimShellLinks.h"

namespace corvelle::sim {

/// Slow answers without threads: a test says how long each lane takes. At first every question is
/// answered as soon as its lane is free, and told by the next turn of the message loop.
class SimLookups final : public Lookups {
 public:
  SimLookups(SimDesktop& desktop, SimFiles& files, SimShellLinks& links, const SystemInfo& system)
      : desktop_(desktop), files_(files), links_(links), system_(system) {}
  SimLookups(const SimLookups&) = delete;
  SimLookups& operator=(const SimLookups&) = delete;
  ~SimLookups() override;

  // Setting up and asking. A lane keeps what was said of it last.
  /// From now on each question of a lane takes so long. Milliseconds.
  void Delay(const std::string& lane, int milliseconds);
  /// From now on the lane answers nothing, until it is resumed.
  void Hang(const std::string& lane);
  /// The system comes back: what hung is answered now.
  void Resume(const std::string& lane);
  /// How many questions were begun, and how many of them have not come back.
  [[nodiscard]] int Asked() const noexcept { return asked_; }
  [[nodiscard]] int UnderWay() const noexcept { return static_cast<int>(underWay_.size()); }

  void SetListener(Listener listener) override { listener_ = std::move(listener); }
  LookupId Ask(Lookup question) override;
  void Drop(std::uint64_t generation) override;

 private:
  static constexpr int kHangs = -1;
  using Begun = forms::LookupLedger::Begun;

  struct UnderWayEntry {
    Begun Question;
    forms::TimerId Timer = 0;  // none while the lane hangs
  };

  void BeginAll();
  void Finish(LookupId id);
  void Complete(LookupId id);
  void PostTelling();

  SimDesktop& desktop_;
  SimFiles& files_;
  SimShellLinks& links_;
  const SystemInfo& system_;
  Listener listener_;
  forms::LookupLedger ledger_;
  std::map<std::string, int> delays_;
  std::map<LookupId, UnderWayEntry> underWay_;
  int asked_ = 0;
  forms::Alive alive_;
};

}  // namespace corvelle::sim
