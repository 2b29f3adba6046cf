#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "desk/DeskRule.h"
#include "desk/SlowQuestions.h"
#include "forms/Alive.h"
#include "forms/Timer.h"
#include "platform/SystemInfo.h"

namespace corvelle::desk {

/// What an asker is told, always by a later turn of the message loop and never inside a call of the
/// desk. Each may ask, drop and let events run. An empty one is passed over.
struct Asker {
  /// How it ended; called once, but not for what was dropped.
  std::function<void(const Reply&)> Ended;
  /// It takes longer: first NotAtOnce after 100 ms, then BeingRead after 150 ms.
  std::function<void(Stage)> TakesLonger;
  /// After an end of NotAvailable, once: it may be asked again, as the place has answered or has
  /// rested, or the user wants it to be tried.
  std::function<void()> Back = {};
};

/// Where windows ask what may be slow: folders, names, icons, links, drives. The desk keeps
/// answers, asks equal questions once, asks what is on show first, and gives up what does not
/// answer: that place then rests (NotAvailable) while all others go on. Nothing here waits but
/// AskAtOnce.
///
/// A menu that shows what it knows and reads the folder again, then the icon of an entry:
///
///   owner_ = desk.NewOwner();
///   const Lookup folder{.Kind = LookupKind::FolderEntries, .Path = "D:\\Tools\\"};
///   if (const LookupValue* last = desk.LastKnown(folder)) Show(std::get<...>(*last));
///   const auto now = desk.AskAtOnce({.Question = folder, .Owner = owner_},
///                                   {.Ended = [this](const Reply& r) { ShowEntries(r); },
///                                    .TakesLonger = [this](Stage s) { ShowStage(s); }});
///   if (now) ShowEntries(*now);  // a quick disk: as if it had been listed here; Ended is not
///   called
///
///   desk.Ask({.Question = {.Kind = LookupKind::FileIcon, .Path = path, .List = IconList::Small},
///             .How = Urgency::OnShow, .Owner = owner_, .MaxAge = kIconAge},
///            {.Ended = [this, item](const Reply& r) {
///              if (r.How == End::Answered) DrawIcon(item, std::get<IconPixels>(r.Value));
///            }});
///   ...
///   desk.Drop(owner_);  // the menu closes: nothing of it is told any more
///
/// For an End of NotAvailable the item says so, and a press on it calls TryAgain and asks once
/// more.
class AnswerDesk {
 public:
  /// How long AskAtOnce waits for a disk, in milliseconds: with what follows it stays under a tenth
  /// of a second.
  static constexpr int kAtOnce = 60;

  AnswerDesk(SlowQuestions& questions, const SystemInfo& system, forms::WindowSystem& windows);
  AnswerDesk(const AnswerDesk&) = delete;
  AnswerDesk& operator=(const AnswerDesk&) = delete;

  /// A number for Request::Owner that nobody else has.
  [[nodiscard]] std::uint64_t NewOwner() noexcept { return ++lastOwner_; }

  Ticket Ask(Request request, Asker asker);

  /// Asks, and waits up to `milliseconds` for the answer without running events. Gives the reply
  /// when it came in that time, and then `later` is not called; nothing when it did not, and
  /// `later` is told. What comes for others meanwhile is told later. All calls in one turn of the
  /// message loop wait for kAtOnce together; with 0 only what is there already is taken.
  [[nodiscard]] std::optional<Reply> AskAtOnce(Request request, Asker later,
                                               int milliseconds = kAtOnce);

  /// From now on questions wait until GoOn is called: something more urgent is to be done first,
  /// and the system is to be left alone. AskAtOnce does not wait for them.
  void Hold() { held_ = true; }
  void GoOn();

  /// The answer to a question that came last, however old; null when none is kept. Good until the
  /// next call.
  [[nodiscard]] const LookupValue* LastKnown(const Lookup& question);

  /// Nobody wants to know any more what that owner asked.
  void Drop(std::uint64_t owner);
  /// What was asked ahead of time has come on show, or the other way round.
  void SetUrgency(Ticket ticket, Urgency how);
  /// The place that the question depends on is asked again at once, though it rests.
  void TryAgain(const Lookup& question);
  /// The same for all places: the user wants all to be looked at again.
  void TryAllAgain();

 private:
  using Told = std::variant<TellStage, TellEnd, TellBack>;
  struct Open {
    Asker Who;
    std::uint64_t Owner = 0;
  };
  struct Watcher {
    std::function<void()> Back;
    std::uint64_t Owner = 0;
  };

  void Take(const Event& event);
  void Carry(const std::vector<Command>& commands);
  void Begin(const BeginOperation& begun);
  void NoteWait(std::int64_t milliseconds);
  void PostTelling();
  void TellWaiting();
  void TellOne(const Told& told);
  /// Keeps what is to be called when it may be asked again.
  void Watch(Ticket ticket, Open& asker, End how);
  void SetTimer();
  void NoteLocalPlaces();

  SlowQuestions& questions_;
  const SystemInfo& system_;
  forms::WindowSystem& windows_;
  forms::Timer timer_;
  std::optional<std::int64_t> timerAt_;
  State state_;
  std::map<Ticket, Open> askers_;
  std::map<Ticket, Watcher> watchers_;
  std::map<Operation, LookupId> asked_;
  std::deque<Told> told_;
  forms::Alive alive_;
  std::uint64_t lastOwner_ = 0;
  Ticket lastTicket_ = 0;
  bool held_ = false;
  std::vector<Asked> heldBack_;
  bool telling_ = false;
  bool posted_ = false;
  std::int64_t waited_ = 0;  // in this turn of the message loop, milliseconds
  int waiting_ = 0;          // calls of AskAtOnce: nobody is told inside them
  bool knowsPlaces_ = false;
};

}  // namespace corvelle::desk
