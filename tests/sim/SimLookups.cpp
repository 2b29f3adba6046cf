#include "sim/SimLookups.h"

#include <utility>
#include <vector>

#include "sim/Complain.h"

namespace corvelle::sim {

namespace {

/// What a lane depends on: without the mark that tells it from one that hangs.
std::string SystemLane(const std::string& lane) { return lane.substr(0, lane.find('#')); }

}  // namespace

SimLookups::~SimLookups() {
  for (const auto& [id, entry] : underWay_) {
    if (entry.Timer != 0) desktop_.StopTimer(entry.Timer);
  }
}

void SimLookups::Delay(const std::string& lane, int milliseconds) { delays_[lane] = milliseconds; }

void SimLookups::Hang(const std::string& lane) { delays_[lane] = kHangs; }

void SimLookups::HangForGood(const std::string& lane) { delays_[lane] = kHangsForGood; }

void SimLookups::Resume(const std::string& lane) {
  delays_.erase(lane);
  std::vector<LookupId> hanging;
  for (const auto& [id, entry] : underWay_) {
    if (entry.Timer == 0 && SystemLane(entry.Question.Question.Lane) == lane) hanging.push_back(id);
  }
  for (const LookupId id : hanging) Finish(id);
}

LookupId SimLookups::Ask(Lookup question) {
  const LookupId id = ledger_.Open(std::move(question));
  open_.insert(id);
  BeginAll();
  return id;
}

void SimLookups::Drop(std::uint64_t generation) {
  if (ledger_.Drop(generation)) PostTelling();
}

void SimLookups::Cancel(LookupId id) {
  const auto found = underWay_.find(id);
  if (found == underWay_.end()) return;
  if (DelayOf(found->second.Question.Question.Lane) == kHangsForGood) return;
  Complete(id, {.End = LookupEnd::Failed});
  BeginAll();
}

bool SimLookups::Collect(int milliseconds) {
  if (Tell()) return true;
  if (Costs() != nullptr) Costs()->Wait(milliseconds);
  return false;
}

void SimLookups::BeginAll() {
  while (auto begun = ledger_.Begin()) {
    ++asked_;
    const LookupId id = begun->Id;
    const int milliseconds = DelayOf(begun->Question.Lane);
    UnderWayEntry& entry = underWay_[id];
    entry.Question = std::move(*begun);
    if (milliseconds > 0) {
      entry.Timer = desktop_.StartTimer(milliseconds, [this, id] { Finish(id); });
    } else if (milliseconds == 0) {
      Complete(id, Answer(id));
    }
  }
}

void SimLookups::Finish(LookupId id) {
  Complete(id, Answer(id));
  BeginAll();
}

int SimLookups::DelayOf(const std::string& lane) const {
  const auto delay = delays_.find(SystemLane(lane));
  return delay != delays_.end() ? delay->second : 0;
}

LookupAnswer SimLookups::Answer(LookupId id) const {
  const CallCosts::Apart thread(Costs());
  return forms::AnswerLookup(*services_, underWay_.at(id).Question.Question);
}

void SimLookups::Complete(LookupId id, LookupAnswer answer) {
  const auto found = underWay_.find(id);
  const UnderWayEntry entry = std::move(found->second);
  underWay_.erase(found);
  if (entry.Timer != 0) desktop_.StopTimer(entry.Timer);
  if (ledger_.End(entry.Question, std::move(answer))) PostTelling();
}

void SimLookups::PostTelling() {
  desktop_.Post([this, watch = alive_.MakeWatch()] {
    if (!watch.Gone()) Tell();
  });
}

bool SimLookups::Tell() {
  if (telling_) {
    late_ = true;
    return false;
  }
  const std::vector<LookupAnswer> ends = ledger_.TakeEnds();
  // The listener may set another one, and may end the program.
  const Listener listener = listener_;
  if (!listener || ends.empty()) return false;
  for (const LookupAnswer& end : ends) {
    if (open_.erase(end.Id) == 0) Complain("a question ended twice");
  }
  const auto watch = alive_.MakeWatch();
  telling_ = true;
  listener(ends);
  if (watch.Gone()) return true;
  telling_ = false;
  if (std::exchange(late_, false)) PostTelling();
  return true;
}

}  // namespace corvelle::sim
