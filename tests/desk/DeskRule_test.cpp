#include "desk/DeskRule.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "desk/LookupPlaces.h"

namespace corvelle::desk {
namespace {

/// The rule with a clock and a system that answers when a test says.
class RuleDesk {
 public:
  RuleDesk() : state_(Figures()) { state_.LocalPlaces = {"C:", "E:"}; }

  Ticket Ask(const Lookup& question, Urgency how = Urgency::OnShow, std::uint64_t owner = 1,
             std::int64_t maxAge = 0) {
    const Ticket ticket = ++last_;
    asked_.insert(ticket);
    Take(Asked{ticket, {question, how, owner, maxAge, TellWhenBack}});
    return ticket;
  }
  Ticket AskIsThere(const std::string& path, Urgency how = Urgency::OnShow,
                    std::uint64_t owner = 1) {
    return Ask({.Path = path}, how, owner);
  }
  void Take(const Event& event) {
    Outcome outcome = Step(std::move(state_), event, Now);
    state_ = std::move(outcome.Next);
    for (const Command& command : outcome.Commands) Note(command);
  }
  /// The time goes on and the rule is woken when it wants to be.
  void Advance(std::int64_t milliseconds) {
    const std::int64_t end = Now + milliseconds;
    for (auto next = NextMoment(state_); next && *next <= end; next = NextMoment(state_)) {
      EXPECT_GE(*next, Now) << "a moment that is over";
      Now = std::max(*next, Now);
      Take(TimePassed{});
    }
    Now = end;
  }
  /// The system comes back from the question about that path.
  void Return(const std::string& path, LookupValue value = true) {
    Return(path, LookupAnswer{.Value = std::move(value)});
  }
  void Fail(const std::string& path) {
    Return(path, LookupAnswer{.End = LookupEnd::Failed, .Error = FileError::NotFound});
  }
  void Return(const std::string& path, LookupAnswer answer) {
    const auto found = std::find_if(Under.begin(), Under.end(),
                                    [&](const auto& each) { return each.second.Path == path; });
    ASSERT_NE(found, Under.end()) << path;
    const Operation number = found->first;
    Under.erase(found);
    Take(Returned{number, std::move(answer)});
  }
  /// What is being asked, in the order in which it was begun.
  [[nodiscard]] std::vector<std::string> Begun() const {
    std::vector<std::string> paths;
    for (const auto& [number, question] : Under) paths.push_back(question.Path);
    return paths;
  }
  [[nodiscard]] bool Ended(Ticket ticket, End how) const {
    const auto found = Ends.find(ticket);
    return found != Ends.end() && found->second.How == how;
  }
  [[nodiscard]] bool IsOpen(Ticket ticket) const { return !Ends.contains(ticket); }
  [[nodiscard]] const State& Desk() const { return state_; }

  std::int64_t Now = 1000;
  std::map<Operation, Lookup> Under;  // what the system is asked
  std::map<Ticket, Reply> Ends;
  std::map<Ticket, std::vector<Stage>> Stages;
  std::vector<std::string> Cancelled;
  std::set<Ticket> Back;  // of these it was told that they may be asked again
  int Begins = 0;
  bool TellWhenBack = false;  // asked from now on

 private:
  void Note(const Command& command) {
    if (const auto* const begun = std::get_if<BeginOperation>(&command)) {
      ++Begins;
      for (const auto& [number, question] : Under)
        EXPECT_NE(question.Lane, begun->Question.Lane) << "two at a time in one lane of the port";
      EXPECT_TRUE(Under.emplace(begun->Number, begun->Question).second);
    } else if (const auto* const cancelled = std::get_if<CancelOperation>(&command)) {
      Cancelled.push_back(Under.at(cancelled->Number).Path);
    } else if (const auto* const stage = std::get_if<TellStage>(&command)) {
      EXPECT_TRUE(IsOpen(stage->Number)) << "a stage after the end";
      Stages[stage->Number].push_back(stage->What);
    } else if (const auto* const back = std::get_if<TellBack>(&command)) {
      EXPECT_TRUE(Ended(back->Number, End::NotAvailable)) << "back before it was gone";
      EXPECT_TRUE(Back.insert(back->Number).second) << "back twice";
    } else if (const auto* const end = std::get_if<TellEnd>(&command)) {
      EXPECT_TRUE(asked_.contains(end->Told.Number));
      EXPECT_TRUE(Ends.emplace(end->Told.Number, end->Told).second) << "ended twice";
    }
  }

  State state_;
  std::set<Ticket> asked_;
  Ticket last_ = 0;
};

struct DeskRule : testing::Test {
  RuleDesk desk;
};

TEST_F(DeskRule, AQuestionIsAskedAndItsAnswerTold) {
  const Ticket asked = desk.AskIsThere("C:\\a");
  EXPECT_EQ(desk.Begun(), std::vector<std::string>{"C:\\a"});
  EXPECT_EQ(desk.Under.begin()->second.Lane, "C:");
  EXPECT_TRUE(desk.IsOpen(asked));
  desk.Return("C:\\a", true);
  ASSERT_TRUE(desk.Ended(asked, End::Answered));
  EXPECT_EQ(desk.Ends[asked].Value, LookupValue(true));
  EXPECT_FALSE(NextMoment(desk.Desk()).has_value()) << "a timer that runs for nobody";
}

TEST_F(DeskRule, AFailureIsToldWithItsReasonAndWhatWasKeptOfItGoes) {
  const Lookup question{.Path = "C:\\a"};
  desk.Ask(question);
  desk.Return("C:\\a");
  EXPECT_EQ(desk.Desk().Kept.Count(), 1U);
  const Ticket asked = desk.Ask(question);
  desk.Fail("C:\\a");
  ASSERT_TRUE(desk.Ended(asked, End::Failed));
  EXPECT_EQ(desk.Ends[asked].Error, FileError::NotFound);
  EXPECT_EQ(desk.Desk().Kept.Count(), 0U);
}

TEST_F(DeskRule, EqualQuestionsAreAskedOnce) {
  const Ticket first = desk.AskIsThere("C:\\a");
  const Ticket second = desk.AskIsThere("c:\\A\\");
  EXPECT_EQ(desk.Begins, 1);
  desk.Return("C:\\a");
  EXPECT_TRUE(desk.Ended(first, End::Answered));
  EXPECT_TRUE(desk.Ended(second, End::Answered));
}

TEST_F(DeskRule, AKeptAnswerServesOnlyAsLongAsItMayBeOld) {
  desk.AskIsThere("C:\\a");
  desk.Return("C:\\a");
  desk.Now += 500;
  EXPECT_TRUE(desk.Ended(desk.Ask({.Path = "C:\\a"}, Urgency::OnShow, 1, 500), End::Answered));
  EXPECT_EQ(desk.Begins, 1);
  desk.Now += 1;
  EXPECT_TRUE(desk.IsOpen(desk.Ask({.Path = "C:\\a"}, Urgency::OnShow, 1, 500)));
  EXPECT_EQ(desk.Begins, 2);
}

TEST_F(DeskRule, NoKeptAnswerIsYoungEnoughWhenTheUserWantsAllToBeLookedAtAgain) {
  const Lookup question{.Path = "C:\\a"};
  desk.Ask(question);
  desk.Return("C:\\a");
  desk.Now += 1;
  desk.Take(TryAllAgain{});
  EXPECT_EQ(desk.Desk().Kept.Count(), 1U);
  EXPECT_TRUE(desk.IsOpen(desk.Ask(question, Urgency::OnShow, 1, 500)));
  desk.Now += 1;
  desk.Return("C:\\a");
  EXPECT_TRUE(desk.Ended(desk.Ask(question, Urgency::OnShow, 1, 500), End::Answered));
}

TEST_F(DeskRule, ALaneIsAskedOneByOneTheMostUrgentFirst) {
  desk.AskIsThere("D:\\first", Urgency::Ahead);
  const Ticket ahead = desk.AskIsThere("D:\\ahead", Urgency::Ahead);
  desk.AskIsThere("D:\\other", Urgency::Ahead);
  desk.AskIsThere("D:\\selected", Urgency::Selected);
  desk.AskIsThere("D:\\shown", Urgency::OnShow);
  const auto next = [this](const std::string& now) {
    EXPECT_EQ(desk.Begun(), std::vector<std::string>{now});
    desk.Return(now);
  };
  next("D:\\first");
  next("D:\\shown");
  desk.Take(UrgencyChanged{ahead, Urgency::OnShow});
  next("D:\\selected");  // it was under way
  next("D:\\ahead");
  next("D:\\other");
  EXPECT_TRUE(desk.Begun().empty());
}

TEST_F(DeskRule, WhoJoinsWithMoreUrgencyMovesTheQuestionForward) {
  desk.AskIsThere("D:\\first");
  desk.AskIsThere("D:\\a", Urgency::Ahead);
  desk.AskIsThere("D:\\b", Urgency::Ahead);
  desk.AskIsThere("D:\\b", Urgency::OnShow, 2);
  desk.Return("D:\\first");
  EXPECT_EQ(desk.Begun(), std::vector<std::string>{"D:\\b"});
}

TEST_F(DeskRule, WhatTakesLongerIsToldInTwoStages) {
  const Ticket asked = desk.AskIsThere("D:\\a");
  desk.Advance(99);
  EXPECT_TRUE(desk.Stages[asked].empty());
  desk.Advance(1);
  EXPECT_EQ(desk.Stages[asked], std::vector<Stage>{Stage::NotAtOnce});
  desk.Advance(49);
  EXPECT_EQ(desk.Stages[asked].size(), 1U);
  desk.Advance(1);
  EXPECT_EQ(desk.Stages[asked], (std::vector<Stage>{Stage::NotAtOnce, Stage::BeingRead}));
  desk.Return("D:\\a");
  desk.Advance(10'000);
  EXPECT_EQ(desk.Stages[asked].size(), 2U);
}

TEST_F(DeskRule, ACallIsCancelledAfterTwoSecondsAndGivenUpAfterFive) {
  const Ticket asked = desk.AskIsThere("D:\\a");
  const Ticket behind = desk.AskIsThere("D:\\b");
  desk.Advance(1999);
  EXPECT_TRUE(desk.Cancelled.empty());
  desk.Advance(1);
  EXPECT_EQ(desk.Cancelled, std::vector<std::string>{"D:\\a"});
  desk.Advance(2999);
  EXPECT_TRUE(desk.IsOpen(asked));
  desk.Advance(1);
  EXPECT_TRUE(desk.Ended(asked, End::NotAvailable));
  EXPECT_TRUE(desk.Ended(behind, End::NotAvailable));
  EXPECT_EQ(desk.Cancelled.size(), 1U);
}

TEST_F(DeskRule, ACancelledCallThatComesBackLeavesItsLaneToRest) {
  const Ticket asked = desk.AskIsThere("D:\\a");
  desk.Advance(2000);
  desk.Fail("D:\\a");
  EXPECT_TRUE(desk.Ended(asked, End::NotAvailable));
  EXPECT_TRUE(desk.Ended(desk.AskIsThere("D:\\b"), End::NotAvailable));
  EXPECT_EQ(desk.Begins, 1);
}

TEST_F(DeskRule, ACancelledCallThatAnswersAllTheSameCounts) {
  const Ticket asked = desk.AskIsThere("D:\\a");
  desk.Advance(2500);
  desk.Return("D:\\a");
  EXPECT_TRUE(desk.Ended(asked, End::Answered));
  EXPECT_TRUE(desk.IsOpen(desk.AskIsThere("D:\\b")));
}

TEST_F(DeskRule, ARestDoublesUntilThreeHundredSeconds) {
  for (const std::int64_t rest : {10'000, 20'000, 40'000, 80'000, 160'000, 300'000, 300'000}) {
    const Ticket asked = desk.AskIsThere("D:\\a");
    EXPECT_TRUE(desk.IsOpen(asked)) << rest;
    desk.Advance(2000);
    desk.Fail("D:\\a");
    EXPECT_TRUE(desk.Ended(asked, End::NotAvailable)) << rest;
    desk.Advance(rest - 1);
    EXPECT_TRUE(desk.Ended(desk.AskIsThere("D:\\a"), End::NotAvailable)) << rest;
    desk.Advance(1);
  }
  // An answer makes all good.
  desk.AskIsThere("D:\\a");
  desk.Return("D:\\a");
  desk.AskIsThere("D:\\a");
  desk.Advance(2000);
  desk.Fail("D:\\a");
  desk.Advance(10'000);
  EXPECT_TRUE(desk.IsOpen(desk.AskIsThere("D:\\a")));
}

TEST_F(DeskRule, APressTriesAgainAtOnce) {
  desk.AskIsThere("D:\\a");
  desk.Advance(5000);
  EXPECT_TRUE(desk.Ended(desk.AskIsThere("D:\\a"), End::NotAvailable));
  desk.Take(TryAgain{{.Path = "D:\\a"}});
  const Ticket again = desk.AskIsThere("D:\\b");
  EXPECT_TRUE(desk.IsOpen(again));
  // The old call still hangs, and the new one must not wait behind it.
  EXPECT_EQ(desk.Under.size(), 2U);
  desk.Return("D:\\b");
  EXPECT_TRUE(desk.Ended(again, End::Answered));
}

TEST_F(DeskRule, ALateAnswerIsKeptAndWakesItsLaneAndIsToldToNobody) {
  const Ticket asked = desk.AskIsThere("D:\\a");
  desk.Advance(6000);
  EXPECT_TRUE(desk.Ended(asked, End::NotAvailable));
  desk.Return("D:\\a");
  EXPECT_EQ(desk.Desk().Kept.Count(), 1U);
  EXPECT_TRUE(desk.IsOpen(desk.AskIsThere("D:\\b")));
}

/// What was not available may be asked again...
struct BackDeskRule : DeskRule {
  BackDeskRule() { desk.TellWhenBack = true; }
};

TEST_F(BackDeskRule, WhenItsPlaceHasRested) {
  const Ticket asked = desk.AskIsThere("D:\\a");
  const Ticket behind = desk.AskIsThere("D:\\b");
  desk.Advance(2000);
  desk.Fail("D:\\a");
  ASSERT_TRUE(desk.Ended(asked, End::NotAvailable));
  const Ticket later = desk.AskIsThere("D:\\c");
  desk.Advance(9999);
  EXPECT_TRUE(desk.Back.empty());
  desk.Advance(1);
  EXPECT_EQ(desk.Back, (std::set<Ticket>{asked, behind, later}));
  EXPECT_FALSE(NextMoment(desk.Desk()).has_value());
  EXPECT_TRUE(desk.IsOpen(desk.AskIsThere("D:\\a")));
}

TEST_F(BackDeskRule, WhenTheCallThatHungComesBackAfterAll) {
  const Ticket asked = desk.AskIsThere("D:\\a");
  desk.Advance(5000);
  ASSERT_TRUE(desk.Ended(asked, End::NotAvailable));
  desk.Return("D:\\a");
  EXPECT_EQ(desk.Back, std::set<Ticket>{asked});
}

TEST_F(BackDeskRule, WhenTheUserWantsItToBeTried) {
  const Ticket asked = desk.AskIsThere("D:\\a");
  const Ticket other = desk.AskIsThere("G:\\a");
  desk.Advance(5000);
  desk.Take(TryAgain{{.Path = "D:\\a"}});
  EXPECT_EQ(desk.Back, std::set<Ticket>{asked});
  desk.Take(TryAllAgain{});
  EXPECT_EQ(desk.Back, (std::set<Ticket>{asked, other}));
}

TEST_F(BackDeskRule, NotWhileSoManyCallsHangThatItWouldBeRefused) {
  std::set<Ticket> asked;
  for (const char* path : {"D:\\a", "G:\\a", "H:\\a", "I:\\a", "J:\\a"})
    asked.insert(desk.AskIsThere(path));
  desk.Advance(400'000);
  EXPECT_TRUE(desk.Back.empty());
  EXPECT_FALSE(NextMoment(desk.Desk()).has_value()) << "nothing to wait for but the calls";
  desk.Return("G:\\a");
  EXPECT_TRUE(desk.Back.empty()) << "four still hang";
  desk.Return("H:\\a");
  EXPECT_EQ(desk.Back, asked);
}

TEST_F(BackDeskRule, WhenTheOneFileOfThisMachineHasRested) {
  const Ticket asked = desk.Ask({.Kind = LookupKind::FileIcon, .Path = "C:\\a.exe"});
  desk.Advance(2000);
  desk.Fail("C:\\a.exe");
  const Ticket later = desk.Ask({.Kind = LookupKind::FileIcon, .Path = "C:\\a.exe"});
  ASSERT_TRUE(desk.Ended(later, End::NotAvailable));
  desk.Ask({.Kind = LookupKind::FileIcon, .Path = "C:\\b.exe"});
  desk.Return("C:\\b.exe");
  EXPECT_TRUE(desk.Back.empty()) << "the others of its lane went on";
  desk.Advance(10'000);
  EXPECT_EQ(desk.Back, (std::set<Ticket>{asked, later}));
}

TEST_F(BackDeskRule, AnIconOfALinkWhenThePlaceOfTheLinkHasRested) {
  const Ticket asked = desk.Ask({.Kind = LookupKind::FileIcon, .Path = "D:\\a.lnk"});
  desk.Advance(2000);
  desk.Fail("D:\\a.lnk");
  ASSERT_TRUE(desk.Ended(asked, End::NotAvailable));
  desk.Advance(9999);
  EXPECT_TRUE(desk.Back.empty());
  desk.Advance(1);
  EXPECT_EQ(desk.Back, std::set<Ticket>{asked});
}

TEST_F(BackDeskRule, ToldToNobodyWhoHasLeftOrDidNotAsk) {
  desk.AskIsThere("D:\\a", Urgency::OnShow, 2);
  desk.TellWhenBack = false;
  desk.AskIsThere("D:\\b", Urgency::OnShow, 1);
  desk.Advance(5000);
  desk.Take(OwnerLeft{2});
  EXPECT_FALSE(NextMoment(desk.Desk()).has_value());
  desk.Advance(20'000);
  EXPECT_TRUE(desk.Back.empty());
}

TEST_F(DeskRule, AfterFourCallsThatHangRemotePlacesFailAtOnceAndLocalOnesGoOn) {
  for (const char* path : {"D:\\a", "H:\\a", "\\\\one\\a", "\\\\two\\a"}) desk.AskIsThere(path);
  desk.Advance(5000);
  EXPECT_EQ(desk.Under.size(), 4U);
  EXPECT_TRUE(desk.Ended(desk.AskIsThere("F:\\a"), End::NotAvailable));
  const Ticket local = desk.AskIsThere("C:\\a");
  EXPECT_TRUE(desk.IsOpen(local));
  const Ticket shell = desk.Ask({.Kind = LookupKind::ShellEntries, .Number = 3});
  EXPECT_TRUE(desk.IsOpen(shell));
  desk.Fail("H:\\a");  // one of them has come back
  EXPECT_TRUE(desk.IsOpen(desk.AskIsThere("F:\\a")));
}

TEST_F(DeskRule, ALocalPlaceFailsAtOnceWhileTwoCallsOfItsOwnHang) {
  for (int i = 0; i < 2; ++i) {
    EXPECT_TRUE(desk.IsOpen(desk.AskIsThere("C:\\a"))) << i;
    desk.Advance(5000);
    desk.Take(TryAgain{{.Path = "C:\\a"}});
  }
  EXPECT_TRUE(desk.Ended(desk.AskIsThere("C:\\a"), End::NotAvailable));
  EXPECT_EQ(desk.Begins, 2);
}

TEST_F(DeskRule, ManyRemotePlacesLeaveRoomForLocalOnes) {
  for (char letter = 'F'; letter < 'Q'; ++letter)
    desk.AskIsThere(std::string(1, letter) + ":\\a", Urgency::OnShow);
  EXPECT_EQ(desk.Begins, 6);
  EXPECT_TRUE(desk.IsOpen(desk.AskIsThere("C:\\a", Urgency::Ahead)));
  EXPECT_EQ(desk.Begins, 7);
  desk.Return("F:\\a");
  EXPECT_EQ(desk.Begins, 8);
}

TEST_F(DeskRule, AnIconThatHangsHoldsUpNoListingOfItsDrive) {
  desk.Ask({.Kind = LookupKind::FileIcon, .Path = "D:\\a.exe"});
  const Ticket folder = desk.Ask({.Kind = LookupKind::FolderEntries, .Path = "D:\\"});
  EXPECT_EQ(desk.Begins, 2);
  desk.Advance(5000);
  EXPECT_TRUE(
      desk.Ended(desk.Ask({.Kind = LookupKind::FileIcon, .Path = "D:\\b.exe"}), End::NotAvailable));
  static_cast<void>(folder);
}

TEST_F(DeskRule, AFileOfThisMachineWhoseIconHangsHoldsUpNoOther) {
  const auto icon = [](const std::string& path) {
    return Lookup{.Kind = LookupKind::FileIcon, .Path = path};
  };
  const Ticket bad = desk.Ask(icon("C:\\bad.foo"));
  const Ticket behind = desk.Ask(icon("C:\\good.txt"));
  desk.Advance(2000);
  desk.Fail("C:\\bad.foo");
  EXPECT_TRUE(desk.Ended(bad, End::NotAvailable));
  EXPECT_EQ(desk.Begun(), std::vector<std::string>{"C:\\good.txt"});
  desk.Return("C:\\good.txt");
  EXPECT_TRUE(desk.Ended(behind, End::Answered));
  // It is left alone for a while, and then for longer.
  for (const std::int64_t rest : {10'000, 20'000}) {
    desk.Now += rest - 1;
    EXPECT_TRUE(desk.Ended(desk.Ask(icon("c:\\BAD.foo")), End::NotAvailable)) << rest;
    desk.Now += 1;
    EXPECT_TRUE(desk.IsOpen(desk.Ask(icon("C:\\bad.foo")))) << rest;
    desk.Advance(2000);
    desk.Fail("C:\\bad.foo");
  }
  // A press asks at once; an answer makes all good.
  desk.Take(TryAgain{icon("C:\\other.txt")});
  const Ticket again = desk.Ask(icon("C:\\bad.foo"));
  EXPECT_TRUE(desk.IsOpen(again));
  desk.Return("C:\\bad.foo");
  EXPECT_TRUE(desk.Ended(again, End::Answered));
  EXPECT_TRUE(desk.Desk().RestingKeys.empty());
}

TEST_F(DeskRule, NoIconIsLookedForWhereNothingAnswers) {
  desk.AskIsThere("D:\\a");
  desk.Advance(2000);
  desk.Fail("D:\\a");
  EXPECT_TRUE(
      desk.Ended(desk.Ask({.Kind = LookupKind::FileIcon, .Path = "D:\\b.exe"}), End::NotAvailable));
}

TEST_F(DeskRule, TheIconOfALinkIsAskedInTheLaneOfItsTarget) {
  const Lookup icon{.Kind = LookupKind::FileIcon, .Path = "C:\\a.lnk"};
  const Ticket asked = desk.Ask(icon);
  ASSERT_EQ(desk.Under.size(), 1U);
  EXPECT_EQ(desk.Under.begin()->second.Kind, LookupKind::IconTarget);
  desk.Return("C:\\a.lnk", std::string("\\\\dead\\share\\a.exe"));
  ASSERT_EQ(desk.Under.size(), 1U);
  EXPECT_EQ(desk.Under.begin()->second.Kind, LookupKind::FileIcon);
  EXPECT_EQ(desk.Under.begin()->second.Lane, "\\\\DEAD*");
  // Meanwhile another icon of the same folder is free to go.
  EXPECT_TRUE(desk.IsOpen(desk.Ask({.Kind = LookupKind::FileIcon, .Path = "C:\\b.exe"})));
  EXPECT_EQ(desk.Under.size(), 2U);
  desk.Advance(5000);
  EXPECT_TRUE(desk.Ended(asked, End::NotAvailable));
}

TEST_F(DeskRule, WhereALinkLeadsIsAskedOnceForManyAndKeptForAMinute) {
  const Lookup small{.Kind = LookupKind::FileIcon, .Path = "C:\\a.lnk"};
  const Lookup large{.Kind = LookupKind::FileIcon, .Path = "C:\\a.lnk", .List = IconList::Large};
  desk.Ask(small);
  desk.Ask(large);
  EXPECT_EQ(desk.Begins, 1);
  desk.Return("C:\\a.lnk", std::string("C:\\a.exe"));
  desk.Return("C:\\a.lnk", IconPixels{1, 1, {1}});
  desk.Return("C:\\a.lnk", IconPixels{1, 1, {2}});
  EXPECT_EQ(desk.Ends.size(), 2U);
  desk.Ask(small);
  ASSERT_EQ(desk.Under.size(), 1U);
  EXPECT_EQ(desk.Under.begin()->second.Kind, LookupKind::FileIcon);
}

TEST_F(DeskRule, ALinkThatCannotBeReadHasAnIconOfItsOwnPlace) {
  desk.Ask({.Kind = LookupKind::FileIcon, .Path = "D:\\a.lnk"});
  desk.Fail("D:\\a.lnk");
  ASSERT_EQ(desk.Under.size(), 1U);
  EXPECT_EQ(desk.Under.begin()->second.Lane, "D:*");
}

TEST_F(DeskRule, TheIconOfALinkOnADeadDriveIsNotAvailable) {
  const Ticket asked = desk.Ask({.Kind = LookupKind::FileIcon, .Path = "D:\\a.lnk"});
  desk.Advance(5000);
  EXPECT_TRUE(desk.Ended(asked, End::NotAvailable));
}

TEST_F(DeskRule, ALinkIsNotReadWhereNothingAnswers) {
  desk.AskIsThere("D:\\a");
  desk.Advance(5000);
  const Ticket asked = desk.Ask({.Kind = LookupKind::FileIcon, .Path = "D:\\a.lnk"});
  EXPECT_TRUE(desk.Ended(asked, End::NotAvailable));
  EXPECT_EQ(desk.Begins, 1);
}

TEST_F(DeskRule, WhatIsDroppedBeforeItBeganIsNeverAsked) {
  const Ticket other = desk.AskIsThere("D:\\a", Urgency::OnShow, 2);
  const Ticket dropped = desk.AskIsThere("D:\\b", Urgency::OnShow, 1);
  const Ticket link = desk.Ask({.Kind = LookupKind::FileIcon, .Path = "D:\\c.lnk"});
  desk.Take(OwnerLeft{1});
  EXPECT_TRUE(desk.Ended(dropped, End::Dropped));
  EXPECT_TRUE(desk.Ended(link, End::Dropped));
  EXPECT_TRUE(desk.IsOpen(other));
  desk.Return("D:\\a");
  EXPECT_EQ(desk.Begins, 1);
  EXPECT_TRUE(desk.Desk().Jobs.empty());
}

TEST_F(DeskRule, WhatIsDroppedUnderWayIsKeptForTheNextTime) {
  const Ticket dropped = desk.AskIsThere("D:\\a");
  desk.Take(OwnerLeft{1});
  EXPECT_TRUE(desk.Ended(dropped, End::Dropped));
  desk.Return("D:\\a");
  EXPECT_EQ(desk.Desk().Kept.Count(), 1U);
  EXPECT_TRUE(desk.Desk().Jobs.empty());
}

TEST_F(DeskRule, WhatAnotherOwnerStillWantsGoesOn) {
  desk.AskIsThere("D:\\first");
  const Ticket one = desk.AskIsThere("D:\\a", Urgency::OnShow, 1);
  const Ticket two = desk.AskIsThere("D:\\a", Urgency::Ahead, 2);
  desk.Take(OwnerLeft{1});
  EXPECT_TRUE(desk.Ended(one, End::Dropped));
  desk.Return("D:\\first");
  desk.Return("D:\\a");
  EXPECT_TRUE(desk.Ended(two, End::Answered));
}

TEST_F(DeskRule, AnOperationThatIsNotKnownChangesNothing) {
  desk.Take(Returned{77, {}});
  EXPECT_TRUE(desk.Ends.empty());
}

/// A system with lanes that are quick, slow, dead, or dead and come back.
class Chance {
 public:
  explicit Chance(unsigned seed) : random_(seed) {}
  int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

 private:
  std::mt19937 random_;
};

Lookup AnyQuestion(Chance& chance, bool quickOnly) {
  static const char* const kQuick[] = {"C:\\", "E:\\"};
  static const char* const kSlow[] = {"D:\\", "\\\\dead\\x\\", "\\\\slow\\x\\", "G:\\"};
  static const LookupKind kKinds[] = {LookupKind::IsThere, LookupKind::FolderEntries,
                                      LookupKind::FileIcon, LookupKind::LinkTarget,
                                      LookupKind::FileName};
  const bool quick = quickOnly || chance.Below(3) == 0;
  std::string path = quick ? kQuick[chance.Below(2)] : kSlow[chance.Below(4)];
  path += static_cast<char>('a' + chance.Below(6));
  if (chance.Below(3) == 0) path += ".lnk";
  return {.Kind = kKinds[chance.Below(5)], .Path = path};
}

/// What the system answers; a link of a quick place leads to a quick one.
LookupAnswer AnyAnswer(Chance& chance, const Lookup& question) {
  if (chance.Below(8) == 0) return {.End = LookupEnd::Failed};
  if (question.Kind == LookupKind::LinkTarget || question.Kind == LookupKind::IconTarget) {
    const bool quick = question.Path.starts_with("C:") || question.Path.starts_with("E:");
    return {.Value = std::string(quick ? "C:\\target" : "\\\\dead\\x\\target")};
  }
  return {.Value = true};
}

// Steps of some milliseconds; the system comes back from quick lanes within 40, from others within
// seconds or not at all.
TEST(DeskRuleProperty, EachTicketEndsOnceAndADeadLaneDelaysNoOther) {
  constexpr int kSeeds = 16;
  constexpr int kSteps = 1500;
  for (unsigned seed = 1; seed <= kSeeds; ++seed) {
    Chance chance(seed);
    RuleDesk desk;
    std::map<Operation, std::int64_t> back;  // when the system comes back; absent: never
    std::map<Ticket, std::int64_t> quick;    // asked of quick lanes
    std::set<Ticket> all;
    const auto plan = [&] {
      for (const auto& [number, question] : desk.Under) {
        if (back.contains(number)) continue;
        const bool isQuick = question.Lane.starts_with("C:") || question.Lane.starts_with("E:");
        const bool never = !isQuick && chance.Below(2) == 0;
        const int takes = isQuick ? chance.Below(40) : chance.Below(9000);
        back[number] = never ? INT64_MAX : desk.Now + takes;
      }
    };
    const auto comeBack = [&] {
      for (;;) {
        plan();
        const auto due = std::find_if(desk.Under.begin(), desk.Under.end(), [&](const auto& each) {
          return back.at(each.first) <= desk.Now;
        });
        if (due == desk.Under.end()) return;
        const Operation number = due->first;
        const LookupAnswer answer = AnyAnswer(chance, due->second);
        desk.Under.erase(due);
        desk.Take(Returned{number, answer});
      }
    };
    for (int step = 0; step < kSteps; ++step) {
      switch (chance.Below(8)) {
        case 0: {
          desk.Take(OwnerLeft{static_cast<std::uint64_t>(chance.Below(4))});
          break;
        }
        case 1:
          if (chance.Below(4) == 0) {
            desk.Take(TryAllAgain{});
          } else {
            desk.Take(TryAgain{AnyQuestion(chance, false)});
          }
          break;
        case 2:
          desk.Take(UrgencyChanged{static_cast<Ticket>(chance.Below(step + 1)),
                                   static_cast<Urgency>(chance.Below(3))});
          break;
        default: {
          const bool quickOnly = chance.Below(4) == 0;
          desk.TellWhenBack = chance.Below(2) == 0;
          const Ticket ticket =
              desk.Ask(AnyQuestion(chance, quickOnly), static_cast<Urgency>(chance.Below(3)),
                       static_cast<std::uint64_t>(chance.Below(4)), chance.Below(2) * 300);
          all.insert(ticket);
          if (quickOnly) quick[ticket] = desk.Now;
          break;
        }
      }
      comeBack();
      for (int wait = chance.Below(60); wait > 0; --wait) {
        desk.Advance(1);
        comeBack();
      }
      for (auto at = quick.begin(); at != quick.end();) {
        if (!desk.IsOpen(at->first)) {
          EXPECT_FALSE(desk.Ended(at->first, End::NotAvailable))
              << "seed " << seed << ", ticket " << at->first << " of a quick place";
          at = quick.erase(at);
          continue;
        }
        // At most 12 * 5 questions of a lane, in two steps, of less than 40 ms each.
        ASSERT_LT(desk.Now - at->second, 5000) << "seed " << seed << ", ticket " << at->first;
        ++at;
      }
      // Three given up and six more under way, and one in each lane of the quick places.
      ASSERT_LE(desk.Under.size(), 3U + 6U + 4U) << "threads, seed " << seed;
    }
    desk.Advance(2'000'000);
    comeBack();
    desk.Advance(2'000'000);
    comeBack();
    for (const Ticket ticket : all) EXPECT_FALSE(desk.IsOpen(ticket)) << "seed " << seed;
    EXPECT_TRUE(desk.Desk().Jobs.empty()) << "seed " << seed;
    EXPECT_TRUE(desk.Desk().Waiters.empty()) << "seed " << seed;
    if (testing::Test::HasFailure()) return;
  }
}

}  // namespace
}  // namespace corvelle::desk
