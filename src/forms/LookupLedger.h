#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <vector>

#include "base/LaneQueue.h"
#include "platform/Lookups.h"
#include "platform/ShellLinks.h"

namespace corvelle::forms {

/// The books of an implementation of Lookups: what waits, what is being answered, and which ends
/// are still to be told. Each question ends once. One caller at a time.
class LookupLedger {
 public:
  /// A question that is being answered.
  struct Begun {
    LookupId Id = 0;
    Lookup Question;
  };

  LookupId Open(Lookup question);

  /// The oldest question whose lane is free; the lane is busy until End.
  [[nodiscard]] std::optional<Begun> Begin();
  /// How many could be begun now.
  [[nodiscard]] std::size_t Ready() const { return waiting_.Ready(); }

  /// The question has come back from the system; its lane is free. The answer does not count when
  /// the question was dropped meanwhile. Like Drop it is true when ends are to be told and none
  /// were before.
  [[nodiscard]] bool End(const Begun& begun, LookupAnswer answer);
  [[nodiscard]] bool Drop(std::uint64_t generation);

  /// The ends that have not been told yet, in their order. They are told with this.
  [[nodiscard]] std::vector<LookupAnswer> TakeEnds();
  [[nodiscard]] bool HasEnds() const noexcept { return !ends_.empty(); }

 private:
  struct Ended {
    std::uint64_t Generation = 0;
    LookupAnswer Answer;
  };

  LaneQueue<Begun> waiting_;
  std::map<LookupId, std::uint64_t> begun_;  // generations of what was not dropped
  std::vector<Ended> ends_;
  LookupId last_ = 0;
};

/// What questions are answered with.
struct LookupServices {
  FileSystem& Files;
  ShellLinks& Links;
  const SystemInfo& System;
  ShellIcons& Icons;
  ShellFolders& Folders;
};

/// Answers a question with these services, and takes as long as they do. The id is left to the
/// ledger.
[[nodiscard]] LookupAnswer AnswerLookup(const LookupServices& services, const Lookup& question);

}  // namespace corvelle::forms
