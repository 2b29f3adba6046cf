#include "desk/DeskRule.h"

#include <algorithm>

#include "desk/LookupPlaces.h"

namespace corvelle::desk {

namespace {

/// How old the knowledge of where a link leads may be. Milliseconds.
constexpr std::int64_t kTargetAge = 60'000;

bool IsRemote(const State& state, const std::string& lane) {
  const std::string place = PlaceOfLane(lane);
  return place != PlaceOfPath({}) && !state.LocalPlaces.contains(place);
}

int GivenUp(const State& state) {
  int count = 0;
  for (const auto& [name, lane] : state.Lanes) count += lane.GivenUp;
  return count;
}

/// True while so many calls hang that questions of a lane are not passed on.
bool IsFull(const State& state, const std::string& name) {
  const auto lane = state.Lanes.find(name);
  if (lane != state.Lanes.end() && lane->second.GivenUp >= state.Numbers.MostOwnGivenUp)
    return true;
  return IsRemote(state, name) && GivenUp(state) >= state.Numbers.MostGivenUp;
}

std::int64_t RestEnd(const State& state, const std::string& name) {
  const auto lane = state.Lanes.find(name);
  return lane != state.Lanes.end() ? lane->second.RestsUntil : 0;
}

/// When a question of that key may be asked again; for a lane that is not full.
std::int64_t RestEnd(const State& state, const std::string& lane, const std::string& key) {
  const auto resting = state.RestingKeys.find(key);
  const std::int64_t own = resting != state.RestingKeys.end() ? resting->second.Until : 0;
  return std::max({own, RestEnd(state, lane), RestEnd(state, PlaceOfLane(lane))});
}

/// One step of the rule.
class Turn {
 public:
  Turn(State& state, std::int64_t now) : state_(state), now_(now) {}

  void Take(const Event& event) {
    std::visit([this](const auto& happened) { On(happened); }, event);
    // Whatever happened, time has passed too.
    TellStages();
    CheckDeadlines();
    BeginWhatCan();
    TellWhatIsBack();
  }

  std::vector<Command> Commands;

 private:
  void On(const Asked& asked) {
    const Request& what = asked.What;
    const std::string key = KeyOfLookup(what.Question);
    if (const auto* const kept = what.MaxAge > 0 ? state_.Kept.Find(key) : nullptr;
        kept != nullptr && now_ - kept->At <= what.MaxAge && kept->At > state_.AllLookedAtSince) {
      Commands.push_back(TellEnd{{asked.Number, End::Answered, kept->Value, {}}});
      return;
    }
    if (KeyRests(key)) {
      Commands.push_back(TellEnd{{asked.Number, End::NotAvailable, {}, {}}});
      if (what.TellWhenBack)
        state_.Watchers[state_.RestingKeys.at(key).Lane][asked.Number] = {what.Owner, key};
      return;
    }
    const std::uint64_t job = JobFor(key, what.Question, what.How);
    state_.Jobs.at(job).Waiters.insert(asked.Number);
    state_.Waiters[asked.Number] = {what.How, what.Owner, job, now_, 0, what.TellWhenBack};
    state_.StagesDue.emplace(now_ + state_.Numbers.Quick, asked.Number);
    SetUrgency(job);
    const std::uint64_t leader = state_.Jobs.at(job).Leader;
    const std::uint64_t first = leader != 0 ? leader : job;
    if (IsRefused(state_.Jobs.at(first))) EndJob(first, End::NotAvailable, {});
  }

  void On(const Returned& returned) {
    const auto found = state_.Operations.find(returned.Number);
    if (found == state_.Operations.end()) return;
    const State::Under under = found->second;
    state_.Operations.erase(found);
    State::Lane& lane = state_.Lanes.at(under.Lane);
    const LookupAnswer& answer = returned.Answer;
    const bool answered = answer.End == LookupEnd::Answered;
    if (answered) {
      lane.RestsUntil = 0;
      lane.Rest = 0;
      state_.RestingKeys.erase(under.Key);
      state_.Kept.Keep(under.Key, answer.Value, now_);
    }
    if (under.Job == 0) {
      --lane.GivenUp;
      return;
    }
    lane.Busy.reset();
    // What had to be called back did not answer in time.
    if (!answered && under.Cancelled) {
      EndJob(under.Job, End::NotAvailable, answer);
      // What looks for icons on a disk of this machine can stop at one file alone.
      if (IsIconLane(under.Lane) && !IsRemote(under.Lane)) {
        RestKey(under.Key, under.Lane);
      } else {
        RestLane(under.Lane);
      }
      return;
    }
    // What was shown of it is gone or cannot be read now.
    if (!answered) state_.Kept.Forget(under.Key);
    EndJob(under.Job, answered ? End::Answered : End::Failed, answer);
  }

  void On(const OwnerLeft& left) {
    std::vector<Ticket> gone;
    for (const auto& [ticket, waiter] : state_.Waiters) {
      if (waiter.Owner == left.Owner) gone.push_back(ticket);
    }
    for (const Ticket ticket : gone) {
      const std::uint64_t job = state_.Waiters.at(ticket).Job;
      TellOne(ticket, End::Dropped, {});
      state_.Jobs.at(job).Waiters.erase(ticket);
      LeaveIfIdle(job);
    }
    for (auto& [lane, watchers] : state_.Watchers)
      std::erase_if(watchers, [&](const auto& each) { return each.second.Owner == left.Owner; });
    std::erase_if(state_.Watchers, [](const auto& each) { return each.second.empty(); });
  }

  void On(const UrgencyChanged& changed) {
    const auto found = state_.Waiters.find(changed.Number);
    if (found == state_.Waiters.end()) return;
    found->second.How = changed.How;
    SetUrgency(found->second.Job);
  }

  void On(const TryAgain& again) {
    const std::string lane = LaneOfLookup(again.Question);
    const std::string place = PlaceOfLane(lane);
    for (const std::string& each : {place, place + kIconMark}) {
      const auto found = state_.Lanes.find(each);
      if (found != state_.Lanes.end()) found->second.RestsUntil = 0;
    }
    std::erase_if(state_.RestingKeys,
                  [&place](const auto& each) { return PlaceOfLane(each.second.Lane) == place; });
  }

  void On(const TryAllAgain& /*again*/) {
    for (auto& [name, lane] : state_.Lanes) lane.RestsUntil = 0;
    state_.RestingKeys.clear();
    state_.AllLookedAtSince = now_;
  }

  void On(const TimePassed& /*passed*/) {}

  std::uint64_t JobFor(const std::string& key, const Lookup& question, Urgency how) {
    const auto found = state_.JobOfKey.find(key);
    if (found != state_.JobOfKey.end()) return found->second;
    const std::uint64_t number = ++state_.LastJob;
    state_.JobOfKey[key] = number;
    State::Job& job = state_.Jobs[number];
    job.Question = question;
    job.Key = key;
    job.How = how;
    if (DependsOnTarget(question)) {
      FindTarget(number, how);
    } else {
      SetLane(number, LaneOfLookup(question));
    }
    return number;
  }

  /// The icon of a link waits until it is known which place it depends on.
  void FindTarget(std::uint64_t follower, Urgency how) {
    const std::string path = state_.Jobs.at(follower).Question.Path;
    const Lookup question{.Kind = LookupKind::IconTarget, .Path = path};
    const std::string key = KeyOfLookup(question);
    if (const auto* const kept = state_.Kept.Find(key);
        kept != nullptr && now_ - kept->At <= kTargetAge) {
      Follow(follower, kept->Value);
      return;
    }
    const std::uint64_t job = JobFor(key, question, how);
    state_.Jobs.at(job).Following.push_back(follower);
    state_.Jobs.at(follower).Leader = job;
    SetUrgency(job);
  }

  void Follow(std::uint64_t follower, const LookupValue& target) {
    const std::string* const path = std::get_if<std::string>(&target);
    State::Job& job = state_.Jobs.at(follower);
    job.Leader = 0;
    const std::string& own = job.Question.Path;
    SetLane(follower, IconLaneOf(path != nullptr && !path->empty() ? *path : own));
  }

  void SetLane(std::uint64_t number, const std::string& lane) {
    State::Job& job = state_.Jobs.at(number);
    job.Lane = lane;
    state_.Lanes[lane].Waiting.emplace(job.How, number);
  }

  /// A job is as urgent as the most urgent of those who wait for it.
  void SetUrgency(std::uint64_t number) {
    State::Job& job = state_.Jobs.at(number);
    Urgency how = Urgency::Ahead;
    for (const Ticket ticket : job.Waiters) how = std::min(how, state_.Waiters.at(ticket).How);
    for (const std::uint64_t follower : job.Following)
      how = std::min(how, state_.Jobs.at(follower).How);
    if (how == job.How) return;
    const bool waits = !job.Lane.empty() && !job.Under;
    if (waits) state_.Lanes.at(job.Lane).Waiting.erase({job.How, number});
    job.How = how;
    if (waits) state_.Lanes.at(job.Lane).Waiting.emplace(how, number);
    // The link that it waits for is as urgent.
    if (job.Leader != 0) SetUrgency(job.Leader);
  }

  [[nodiscard]] bool IsRemote(const std::string& lane) const {
    return desk::IsRemote(state_, lane);
  }

  /// True when a question that is not under way is not passed on to the system.
  [[nodiscard]] bool IsRefused(const State::Job& job) const {
    if (job.Lane.empty() || job.Under) return false;
    return IsResting(state_, job.Lane, now_) || IsFull(state_, job.Lane);
  }

  void TellOne(Ticket ticket, End how, const LookupAnswer& answer) {
    const State::Waiter& waiter = state_.Waiters.at(ticket);
    const int told = waiter.StagesTold;
    if (told < 2) state_.StagesDue.erase({StageMoment(waiter.AskedAt, told), ticket});
    state_.Waiters.erase(ticket);
    Reply reply{ticket, how, {}, answer.Error};
    if (how == End::Answered) reply.Value = answer.Value;
    Commands.push_back(TellEnd{std::move(reply)});
  }

  [[nodiscard]] std::int64_t StageMoment(std::int64_t asked, int told) const {
    return asked + (told == 0 ? state_.Numbers.Quick : state_.Numbers.Reading);
  }

  /// `lane`: which of them is not available; empty for the job's own.
  void EndJob(std::uint64_t number, End how, const LookupAnswer& answer, std::string lane = {}) {
    State::Job job = std::move(state_.Jobs.at(number));
    Erase(number, job);
    if (lane.empty()) lane = job.Lane;
    for (const Ticket ticket : job.Waiters) {
      const State::Waiter& waiter = state_.Waiters.at(ticket);
      if (how == End::NotAvailable && waiter.TellWhenBack)
        state_.Watchers[lane][ticket] = {waiter.Owner, job.Key};
      TellOne(ticket, how, answer);
    }
    for (const std::uint64_t follower : job.Following) {
      if (how == End::NotAvailable) {
        EndJob(follower, how, {}, lane);
        continue;
      }
      // A link that cannot be read leads nowhere; its icon is a matter of its own place.
      Follow(follower, answer.Value);
      if (IsRefused(state_.Jobs.at(follower))) EndJob(follower, End::NotAvailable, {});
    }
  }

  void Erase(std::uint64_t number, const State::Job& job) {
    if (!job.Lane.empty() && !job.Under) state_.Lanes.at(job.Lane).Waiting.erase({job.How, number});
    state_.JobOfKey.erase(job.Key);
    state_.Jobs.erase(number);
  }

  /// A question that nobody waits for is not begun; one that is under way goes on, and its answer
  /// is kept.
  void LeaveIfIdle(std::uint64_t number) {
    const auto found = state_.Jobs.find(number);
    if (found == state_.Jobs.end()) return;
    const State::Job& job = found->second;
    if (!job.Waiters.empty() || !job.Following.empty() || job.Under) return;
    const State::Job gone = job;
    Erase(number, gone);
    if (gone.Leader == 0) return;
    // The link that it waited for may have been asked for its sake alone.
    std::erase(state_.Jobs.at(gone.Leader).Following, number);
    LeaveIfIdle(gone.Leader);
  }

  void TellStages() {
    while (!state_.StagesDue.empty() && state_.StagesDue.begin()->first <= now_) {
      const Ticket ticket = state_.StagesDue.begin()->second;
      state_.StagesDue.erase(state_.StagesDue.begin());
      State::Waiter& waiter = state_.Waiters.at(ticket);
      Commands.push_back(
          TellStage{ticket, waiter.StagesTold == 0 ? Stage::NotAtOnce : Stage::BeingRead});
      if (++waiter.StagesTold == 1)
        state_.StagesDue.emplace(StageMoment(waiter.AskedAt, 1), ticket);
    }
  }

  void CheckDeadlines() {
    std::vector<Operation> late;
    for (auto& [number, under] : state_.Operations) {
      if (under.Job == 0) continue;
      if (now_ - under.Since >= state_.Numbers.GiveUp) {
        late.push_back(number);
      } else if (!under.Cancelled && now_ - under.Since >= state_.Numbers.Cancel) {
        under.Cancelled = true;
        Commands.push_back(CancelOperation{number});
      }
    }
    for (const Operation number : late) GiveUp(number);
  }

  void GiveUp(Operation number) {
    State::Under& under = state_.Operations.at(number);
    const std::uint64_t job = std::exchange(under.Job, 0);
    State::Lane& lane = state_.Lanes.at(under.Lane);
    lane.Busy.reset();
    ++lane.GivenUp;
    EndJob(job, End::NotAvailable, {});
    RestLane(under.Lane);
  }

  /// Ends all that waits in a lane that did not answer in time.
  void RestLane(const std::string& name) {
    State::Lane& lane = state_.Lanes.at(name);
    lane.Rest = NextRest(lane.Rest);
    lane.RestsUntil = now_ + lane.Rest;
    EndRefused();
  }

  void RestKey(const std::string& key, const std::string& lane) {
    State::Resting& resting = state_.RestingKeys[key];
    resting.Lane = lane;
    resting.Rest = NextRest(resting.Rest);
    resting.Until = now_ + resting.Rest;
  }

  [[nodiscard]] bool KeyRests(const std::string& key) const {
    const auto found = state_.RestingKeys.find(key);
    return found != state_.RestingKeys.end() && now_ < found->second.Until;
  }

  [[nodiscard]] std::int64_t NextRest(std::int64_t last) const {
    return last == 0 ? state_.Numbers.FirstRest : std::min(2 * last, state_.Numbers.LongestRest);
  }

  void EndRefused() {
    std::vector<std::uint64_t> refused;
    for (const auto& [name, lane] : state_.Lanes) {
      for (const auto& [how, job] : lane.Waiting) {
        if (!IsRefused(state_.Jobs.at(job))) break;  // as the others of the lane
        refused.push_back(job);
      }
    }
    for (const std::uint64_t job : refused) {
      if (state_.Jobs.contains(job)) EndJob(job, End::NotAvailable, {});
    }
  }

  void TellWhatIsBack() {
    for (auto& [lane, watchers] : state_.Watchers) {
      if (IsResting(state_, lane, now_) || IsFull(state_, lane)) continue;
      for (auto at = watchers.begin(); at != watchers.end();) {
        if (KeyRests(at->second.Key)) {
          ++at;
          continue;
        }
        Commands.push_back(TellBack{at->first});
        at = watchers.erase(at);
      }
    }
    std::erase_if(state_.Watchers, [](const auto& each) { return each.second.empty(); });
  }

  void BeginWhatCan() {
    int remote = 0;
    for (const auto& [name, lane] : state_.Lanes) {
      if (lane.Busy && IsRemote(name)) ++remote;
    }
    for (;;) {
      const std::string* best = nullptr;
      std::pair<Urgency, std::uint64_t> first;
      for (const auto& [name, lane] : state_.Lanes) {
        if (lane.Busy || lane.Waiting.empty()) continue;
        if (remote >= state_.Numbers.MostRemote && IsRemote(name)) continue;
        if (best != nullptr && first < *lane.Waiting.begin()) continue;
        best = &name;
        first = *lane.Waiting.begin();
      }
      if (best == nullptr) return;
      if (IsRemote(*best)) ++remote;
      Begin(*best, first.second);
    }
  }

  void Begin(const std::string& name, std::uint64_t number) {
    State::Lane& lane = state_.Lanes.at(name);
    State::Job& job = state_.Jobs.at(number);
    const Operation operation = ++state_.LastOperation;
    lane.Waiting.erase({job.How, number});
    lane.Busy = operation;
    job.Under = operation;
    state_.Operations[operation] = {name, job.Key, number, now_, false};
    Lookup question = job.Question;
    question.Lane = name;
    // Behind a call that does not come back it would wait for ever.
    if (lane.GivenUp > 0) question.Lane += '#' + std::to_string(operation);
    question.Generation = 0;
    Commands.push_back(BeginOperation{operation, std::move(question)});
  }

  State& state_;
  std::int64_t now_;
};

}  // namespace

Outcome Step(State state, const Event& event, std::int64_t now) {
  Turn turn(state, now);
  turn.Take(event);
  return {std::move(state), std::move(turn.Commands)};
}

std::optional<std::int64_t> NextMoment(const State& state) {
  std::optional<std::int64_t> next;
  const auto consider = [&next](std::int64_t moment) {
    if (!next || moment < *next) next = moment;
  };
  if (!state.StagesDue.empty()) consider(state.StagesDue.begin()->first);
  for (const auto& [number, under] : state.Operations) {
    if (under.Job == 0) continue;
    consider(under.Since + (under.Cancelled ? state.Numbers.GiveUp : state.Numbers.Cancel));
  }
  for (const auto& [lane, watchers] : state.Watchers) {
    // A call that comes back is an event of its own.
    if (IsFull(state, lane)) continue;
    for (const auto& [ticket, watcher] : watchers) {
      consider(RestEnd(state, lane, watcher.Key));
      // Without files that rest by themselves it is the same for all.
      if (state.RestingKeys.empty()) break;
    }
  }
  return next;
}

bool IsResting(const State& state, const std::string& lane, std::int64_t now) {
  const auto rests = [&](const std::string& name) {
    const auto found = state.Lanes.find(name);
    return found != state.Lanes.end() && now < found->second.RestsUntil;
  };
  return rests(lane) || rests(PlaceOfLane(lane));
}

}  // namespace corvelle::desk
