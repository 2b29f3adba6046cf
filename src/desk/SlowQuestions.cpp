#include "desk/SlowQuestions.h"

#include <utility>
#include <vector>

namespace corvelle {

SlowQuestions::~SlowQuestions() {
  if (listening_) lookups_.SetListener(nullptr);
}

LookupId SlowQuestions::Ask(Lookup question, Answered answered) {
  if (!listening_) {
    lookups_.SetListener([this](const std::vector<LookupAnswer>& ends) {
      for (const LookupAnswer& end : ends) Tell(end);
    });
    listening_ = true;
  }
  const std::uint64_t generation = question.Generation;
  const LookupId id = lookups_.Ask(std::move(question));
  waiting_.emplace(id, Waiting{generation, std::move(answered)});
  return id;
}

void SlowQuestions::Drop(std::uint64_t generation) {
  // Some of them may be in the answers that are being told just now.
  std::erase_if(waiting_,
                [generation](const auto& entry) { return entry.second.Generation == generation; });
  lookups_.Drop(generation);
}

void SlowQuestions::Tell(const LookupAnswer& end) {
  const auto found = waiting_.find(end.Id);
  if (found == waiting_.end()) return;
  const Answered answered = std::move(found->second.Tell);
  waiting_.erase(found);
  answered(end);
}

}  // namespace corvelle
