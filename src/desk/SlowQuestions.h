#pragma once

#include <cstdint>
#include <functional>
#include <map>

#include "platform/Lookups.h"

namespace corvelle {

/// The slow questions of all windows of a program, each answered to whoever asked. It is the one
/// listener of the service, from the first question on.
class SlowQuestions {
 public:
  using Answered = std::function<void(const LookupAnswer&)>;

  explicit SlowQuestions(Lookups& lookups) : lookups_(lookups) {}
  SlowQuestions(const SlowQuestions&) = delete;
  SlowQuestions& operator=(const SlowQuestions&) = delete;
  ~SlowQuestions();

  /// A number for Lookup::Generation that nobody else has.
  [[nodiscard]] std::uint64_t NewGeneration() noexcept { return ++generation_; }

  /// `answered` is called once, by a later turn of the message loop; never for a question that was
  /// dropped. It may ask and drop.
  LookupId Ask(Lookup question, Answered answered);
  /// Nobody wants to know the answers to the questions of that generation any more.
  void Drop(std::uint64_t generation);
  /// See Lookups.
  void Cancel(LookupId id) { lookups_.Cancel(id); }
  bool Collect(int milliseconds) { return lookups_.Collect(milliseconds); }

 private:
  struct Waiting {
    std::uint64_t Generation = 0;
    Answered Tell;
  };

  void Tell(const LookupAnswer& end);

  Lookups& lookups_;
  std::map<LookupId, Waiting> waiting_;
  std::uint64_t generation_ = 0;
  bool listening_ = false;
};

}  // namespace corvelle
