#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <variant>
#include <vector>

#include "desk/KeptAnswers.h"
#include "platform/Lookups.h"

namespace corvelle::desk {

// The rule by which slow questions are answered: pure, without a clock or a window. Time comes in
// as milliseconds that never go back. See AnswerDesk for the class that windows use.

/// Names what was asked by one asker. Never 0, and never used twice.
using Ticket = std::uint64_t;
/// Names what the system was asked.
using Operation = std::uint64_t;

/// How soon an answer is wanted; the most urgent first.
enum class Urgency { OnShow, Selected, Ahead };

struct Request {
  Lookup Question;  // its Lane and Generation are the desk's to set
  Urgency How = Urgency::OnShow;
  std::uint64_t Owner = 0;  // see OwnerLeft
  /// An answer that was kept serves at once when it is at most so old. Milliseconds; 0: never.
  std::int64_t MaxAge = 0;
  /// After an end of NotAvailable: TellBack, once, when it may be asked again.
  bool TellWhenBack = false;
};

enum class End {
  Answered,
  Failed,        // the disk or the shell refused
  NotAvailable,  // it did not answer in time, or has not lately and rests
  Dropped,       // nobody wants to know any more
};

/// What an asker is told before the end.
enum class Stage {
  NotAtOnce,  // show what is there
  BeingRead,  // say that it is being read
};

struct Reply {
  Ticket Number = 0;
  End How = End::Answered;
  LookupValue Value;                    // of an answer
  FileError Error = FileError::Failed;  // of a failure

  friend bool operator==(const Reply&, const Reply&) = default;
};

// What happens.

struct Asked {
  Ticket Number = 0;
  Request What;
};
/// The system has come back from an operation, however late.
struct Returned {
  Operation Number = 0;
  LookupAnswer Answer;
};
/// All that an owner asked is dropped.
struct OwnerLeft {
  std::uint64_t Owner = 0;
};
struct UrgencyChanged {
  Ticket Number = 0;
  Urgency How = Urgency::OnShow;
};
/// The user wants a place that rests to be asked again at the next question.
struct TryAgain {
  Lookup Question;
};
/// The same for all places, and no answer that is kept is young enough to do without a question.
struct TryAllAgain {};
struct TimePassed {};

using Event =
    std::variant<Asked, Returned, OwnerLeft, UrgencyChanged, TryAgain, TryAllAgain, TimePassed>;

// What is to be done, in this order.

struct BeginOperation {
  Operation Number = 0;
  Lookup Question;
};
struct CancelOperation {
  Operation Number = 0;
};
struct TellStage {
  Ticket Number = 0;
  Stage What = Stage::NotAtOnce;
};
struct TellEnd {
  Reply Told;
};
/// What was not available may be asked again: its place has answered or has rested, or the user
/// wants it to be tried.
struct TellBack {
  Ticket Number = 0;
};

using Command = std::variant<BeginOperation, CancelOperation, TellStage, TellEnd, TellBack>;

/// Milliseconds, and counts.
struct Figures {
  std::int64_t Quick = 100;  // an answer within that time still counts as "at once"
  std::int64_t Reading = 150;
  std::int64_t Cancel = 2000;  // from here on they count from the operation's beginning
  std::int64_t GiveUp = 5000;
  std::int64_t FirstRest = 10'000;
  std::int64_t LongestRest = 300'000;
  int MostGivenUp = 4;  // then remote places fail at once; what was under way may still come to it
  int MostOwnGivenUp = 2;            // of one lane; then it fails at once, remote or not
  int MostRemote = 6;                // operations at a time; the port has threads for more
  std::size_t KeptRoom = 4U << 20U;  // bytes
};

struct State {
  struct Waiter {
    Urgency How = Urgency::OnShow;
    std::uint64_t Owner = 0;
    std::uint64_t Job = 0;
    std::int64_t AskedAt = 0;
    int StagesTold = 0;
    bool TellWhenBack = false;
  };
  /// Who was told NotAvailable, and wants to know when it may be asked again.
  struct Watcher {
    std::uint64_t Owner = 0;
    std::string Key;
  };
  /// One question to the system, for all who want to know the same.
  struct Job {
    Lookup Question;
    std::string Key;
    std::string Lane;  // empty until it is known where the link leads
    std::set<Ticket> Waiters;
    std::vector<std::uint64_t> Following;  // jobs that wait to be told where this link leads
    std::uint64_t Leader = 0;              // the job that this one follows
    std::optional<Operation> Under;
    Urgency How = Urgency::OnShow;
  };
  struct Lane {
    std::set<std::pair<Urgency, std::uint64_t>> Waiting;  // jobs, the next one first
    std::optional<Operation> Busy;
    std::int64_t RestsUntil = 0;
    std::int64_t Rest = 0;  // how long it rested last
    int GivenUp = 0;        // operations that have not come back yet
  };
  struct Under {
    std::string Lane;
    std::string Key;
    std::uint64_t Job = 0;  // 0 once the operation is given up
    std::int64_t Since = 0;
    bool Cancelled = false;
  };

  /// A question about an icon of this machine that had to be called back, and so is not asked again
  /// for a while. Its lane goes on: one such file holds up none of the others.
  struct Resting {
    std::string Lane;
    std::int64_t Until = 0;
    std::int64_t Rest = 0;
  };

  explicit State(Figures figures = {}) : Numbers(figures), Kept(figures.KeptRoom) {}

  Figures Numbers;
  /// Places that are never called remote: the drives of Windows and of the program.
  std::set<std::string> LocalPlaces;
  KeptAnswers Kept;
  std::map<Ticket, Waiter> Waiters;
  std::map<std::uint64_t, Job> Jobs;
  std::map<std::string, std::uint64_t> JobOfKey;
  std::map<std::string, Lane> Lanes;
  std::map<std::string, Resting> RestingKeys;
  /// When the user last wanted all to be looked at again: answers that came before are only good
  /// until new ones come, however young they are.
  std::int64_t AllLookedAtSince = -1;
  std::map<std::string, std::map<Ticket, Watcher>> Watchers;  // by lane
  std::map<Operation, Under> Operations;
  std::set<std::pair<std::int64_t, Ticket>> StagesDue;
  std::uint64_t LastJob = 0;
  Operation LastOperation = 0;
};

struct Outcome {
  State Next;
  std::vector<Command> Commands;
};

[[nodiscard]] Outcome Step(State state, const Event& event, std::int64_t now);

/// When TimePassed is due; nothing while nobody waits for anything.
[[nodiscard]] std::optional<std::int64_t> NextMoment(const State& state);

/// True while questions about that place are not passed on.
[[nodiscard]] bool IsResting(const State& state, const std::string& lane, std::int64_t now);

}  // namespace corvelle::desk
