#include "desk/AnswerDesk.h"

#include <algorithm>
#include <utility>

#include "desk/LookupPlaces.h"
#include "forms/Scopes.h"

namespace corvelle::desk {

namespace {

using Told = std::variant<TellStage, TellEnd, TellBack>;

bool IsEndOf(const Told& told, Ticket ticket) {
  const auto* const end = std::get_if<TellEnd>(&told);
  return end != nullptr && end->Told.Number == ticket;
}

Ticket TicketOf(const Told& told) {
  if (const auto* const end = std::get_if<TellEnd>(&told)) return end->Told.Number;
  if (const auto* const back = std::get_if<TellBack>(&told)) return back->Number;
  return std::get<TellStage>(told).Number;
}

}  // namespace

AnswerDesk::AnswerDesk(SlowQuestions& questions, const SystemInfo& system,
                       forms::WindowSystem& windows)
    : questions_(questions), system_(system), windows_(windows), timer_(windows) {
  timer_.Tick = [this] {
    timer_.SetEnabled(false);
    timerAt_.reset();
    Take(TimePassed{});
    TellWaiting();
  };
}

Ticket AnswerDesk::Ask(Request request, Asker asker) {
  NoteLocalPlaces();
  const Ticket ticket = ++lastTicket_;
  request.TellWhenBack = static_cast<bool>(asker.Back);
  askers_.emplace(ticket, Open{std::move(asker), request.Owner});
  if (held_) {
    heldBack_.push_back({ticket, std::move(request)});
    return ticket;
  }
  Take(Asked{ticket, std::move(request)});
  PostTelling();
  return ticket;
}

std::optional<Reply> AnswerDesk::AskAtOnce(Request request, Asker later, int milliseconds) {
  const forms::CountScope waiting(waiting_);
  const Ticket ticket = Ask(std::move(request), std::move(later));
  const std::int64_t began = windows_.Now();
  const std::int64_t end = began + std::min<std::int64_t>(milliseconds, kAtOnce - waited_);
  const auto noteWait = [&] { NoteWait(windows_.Now() - began); };
  for (;;) {
    const auto found = std::find_if(told_.begin(), told_.end(),
                                    [ticket](const Told& told) { return IsEndOf(told, ticket); });
    if (found != told_.end()) {
      Reply reply = std::move(std::get<TellEnd>(*found).Told);
      Watch(ticket, askers_.at(ticket), reply.How);
      askers_.erase(ticket);
      std::erase_if(told_, [ticket](const Told& told) {
        return TicketOf(told) == ticket && !std::holds_alternative<TellBack>(told);
      });
      noteWait();
      return reply;
    }
    const std::int64_t left = held_ ? -1 : end - windows_.Now();
    if (left >= 0 && questions_.Collect(static_cast<int>(left))) continue;
    noteWait();
    return std::nullopt;
  }
}

void AnswerDesk::NoteWait(std::int64_t milliseconds) {
  if (milliseconds <= 0) return;
  if (waited_ == 0) {
    windows_.Post([this, watch = alive_.MakeWatch()] {
      if (!watch.Gone()) waited_ = 0;
    });
  }
  waited_ += milliseconds;
}

const LookupValue* AnswerDesk::LastKnown(const Lookup& question) {
  const auto* const kept = state_.Kept.Find(KeyOfLookup(question));
  return kept != nullptr ? &kept->Value : nullptr;
}

void AnswerDesk::Drop(std::uint64_t owner) {
  const auto isOfOwner = [owner](const auto& each) { return each.second.Owner == owner; };
  std::erase_if(heldBack_, [owner](const Asked& asked) { return asked.What.Owner == owner; });
  // With its askers gone, what has come and waits to be told is passed over.
  std::erase_if(askers_, isOfOwner);
  std::erase_if(watchers_, isOfOwner);
  Take(OwnerLeft{owner});
  PostTelling();
}

void AnswerDesk::SetUrgency(Ticket ticket, Urgency how) {
  Take(UrgencyChanged{ticket, how});
  PostTelling();
}

void AnswerDesk::TryAgain(const Lookup& question) {
  Take(corvelle::desk::TryAgain{question});
  PostTelling();
}

void AnswerDesk::TryAllAgain() {
  Take(corvelle::desk::TryAllAgain{});
  PostTelling();
}

void AnswerDesk::Take(const Event& event) {
  Outcome outcome = Step(std::move(state_), event, windows_.Now());
  state_ = std::move(outcome.Next);
  Carry(outcome.Commands);
  SetTimer();
}

void AnswerDesk::Carry(const std::vector<Command>& commands) {
  for (const Command& command : commands) {
    if (const auto* const begun = std::get_if<BeginOperation>(&command)) {
      Begin(*begun);
    } else if (const auto* const cancelled = std::get_if<CancelOperation>(&command)) {
      if (const auto found = asked_.find(cancelled->Number); found != asked_.end())
        questions_.Cancel(found->second);
    } else if (const auto* const stage = std::get_if<TellStage>(&command)) {
      told_.emplace_back(*stage);
    } else if (const auto* const back = std::get_if<TellBack>(&command)) {
      told_.emplace_back(*back);
    } else if (const auto* const end = std::get_if<TellEnd>(&command)) {
      // Drop has removed the asker already.
      if (end->Told.How != End::Dropped) told_.emplace_back(*end);
    }
  }
}

void AnswerDesk::GoOn() {
  held_ = false;
  for (const Asked& asked : std::exchange(heldBack_, {})) Take(asked);
  PostTelling();
}

void AnswerDesk::Begin(const BeginOperation& begun) {
  const Operation number = begun.Number;
  asked_[number] = questions_.Ask(begun.Question, [this, number](const LookupAnswer& answer) {
    asked_.erase(number);
    Take(Returned{number, answer});
    if (waiting_ > 0) {
      PostTelling();
    } else {
      TellWaiting();
    }
  });
}

void AnswerDesk::PostTelling() {
  if (told_.empty() || std::exchange(posted_, true)) return;
  windows_.Post([this, watch = alive_.MakeWatch()] {
    if (watch.Gone()) return;
    posted_ = false;
    TellWaiting();
  });
}

void AnswerDesk::TellWaiting() {
  // What an asker lets run tells nobody; its own turn goes on with the rest.
  if (telling_) return;
  if (waiting_ > 0) {
    PostTelling();
    return;
  }
  const auto watch = alive_.MakeWatch();
  telling_ = true;
  while (!watch.Gone() && !told_.empty()) {
    const Told told = std::move(told_.front());
    told_.pop_front();
    TellOne(told);
  }
  if (!watch.Gone()) telling_ = false;
}

void AnswerDesk::Watch(Ticket ticket, Open& asker, End how) {
  if (how == End::NotAvailable && asker.Who.Back)
    watchers_.emplace(ticket, Watcher{std::move(asker.Who.Back), asker.Owner});
}

void AnswerDesk::TellOne(const Told& told) {
  if (const auto* const back = std::get_if<TellBack>(&told)) {
    auto watcher = watchers_.extract(back->Number);
    if (!watcher.empty()) watcher.mapped().Back();
    return;
  }
  const auto found = askers_.find(TicketOf(told));
  if (found == askers_.end()) return;
  if (const auto* const stage = std::get_if<TellStage>(&told)) {
    const auto takesLonger = found->second.Who.TakesLonger;
    if (takesLonger) takesLonger(stage->What);
    return;
  }
  const Reply& reply = std::get<TellEnd>(told).Told;
  Watch(reply.Number, found->second, reply.How);
  const auto ended = std::move(found->second.Who.Ended);
  askers_.erase(found);
  if (ended) ended(reply);
}

void AnswerDesk::SetTimer() {
  const auto next = NextMoment(state_);
  if (!next) {
    timer_.SetEnabled(false);
    timerAt_.reset();
    return;
  }
  // One that comes too early sets itself again.
  if (timerAt_ && *timerAt_ <= *next) return;
  timerAt_ = next;
  timer_.SetInterval(static_cast<int>(std::max<std::int64_t>(*next - windows_.Now(), 1)));
  timer_.SetEnabled(true);
}

void AnswerDesk::NoteLocalPlaces() {
  if (std::exchange(knowsPlaces_, true)) return;
  for (const std::string& folder : {system_.WindowsFolder(), system_.ApplicationFolder()}) {
    if (folder.starts_with(R"(\\)")) continue;  // a program on a server is as remote as that
    state_.LocalPlaces.insert(PlaceOfPath(folder));
  }
}

}  // namespace corvelle::desk
