#include "sim/SimLookups.h"

#include <utility>
#include <vector>

namespace corvelle::sim {

SimLookups::~SimLookups() {
  for (const auto& [id, entry] : underWay_) {
    if (entry.Timer != 0) desktop_.StopTimer(entry.Timer);
  }
}

void SimLookups::Delay(const std::string& lane, int milliseconds) { delays_[lane] = milliseconds; }

void SimLookups::Hang(const std::string& lane) { delays_[lane] = kHangs; }

void SimLookups::Resume(const std::string& lane) {
  delays_.erase(lane);
  std::vector<LookupId> hanging;
  for (const auto& [id, entry] : underWay_) {
    if (entry.Timer == 0 && entry.Question.Question.Lane == lane) hanging.push_back(id);
  }
  for (const LookupId id : hanging) Finish(id);
}

LookupId SimLookups::Ask(Lookup question) {
  const LookupId id = ledger_.Open(std::move(question));
  BeginAll();
  return id;
}

void SimLookups::Drop(std::uint64_t generation) {
  if (ledger_.Drop(generation)) PostTelling();
}

void SimLookups::BeginAll() {
  while (auto begun = ledger_.Begin()) {
    ++asked_;
    const LookupId id = begun->Id;
    const auto delay = delays_.find(begun->Question.Lane);
    const int milliseconds = delay != delays_.end() ? delay->second : 0;
    UnderWayEntry& entry = underWay_[id];
    entry.Question = std::move(*begun);
    if (milliseconds > 0) {
      entry.Timer = desktop_.StartTimer(milliseconds, [this, id] { Finish(id); });
    } else if (milliseconds == 0) {
      Complete(id);
    }
  }
}

void SimLookups::Finish(LookupId id) {
  Complete(id);
  BeginAll();
}

void SimLookups::Complete(LookupId id) {
  const auto found = underWay_.find(id);
  const UnderWayEntry entry = std::move(found->second);
  underWay_.erase(found);
  if (entry.Timer != 0) desktop_.StopTimer(entry.Timer);
  LookupAnswer answer = forms::AnswerLookup(files_, links_, system_, entry.Question.Question);
  if (ledger_.End(entry.Question, std::move(answer))) PostTelling();
}

void SimLookups::PostTelling() {
  desktop_.Post([this, watch = alive_.MakeWatch()] {
    if (watch.Gone()) return;
    const std::vector<LookupAnswer> ends = ledger_.TakeEnds();
    const Listener listener = listener_;
    if (listener && !ends.empty()) listener(ends);
  });
}

}  // namespace corvelle::sim
