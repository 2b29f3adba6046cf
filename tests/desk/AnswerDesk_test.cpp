#include "desk/AnswerDesk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "sim/World.h"

namespace corvelle::desk {
namespace {

class AnswerDeskTest : public testing::Test {
 protected:
  AnswerDeskTest() {
    for (const char letter : {'D', 'E'}) World.Files.AddDrive(letter);
    for (const char* path : {"C:\\here\\a.txt", "D:\\here\\a.txt", "E:\\here\\a.txt"})
      World.Files.Put(path, "abc");
  }
  Request IsThere(const std::string& path) { return {.Question = {.Path = path}, .Owner = owner_}; }
  /// Notes what is told under a name.
  Asker Noted(const std::string& name) {
    return {.Ended =
                [this, name](const Reply& reply) {
                  told_.push_back(name + " " + Word(reply));
                  if (then_) std::exchange(then_, nullptr)();
                },
            .TakesLonger =
                [this, name](Stage stage) {
                  told_.push_back(name + (stage == Stage::NotAtOnce ? " longer" : " being read"));
                }};
  }
  static std::string Word(const Reply& reply) {
    switch (reply.How) {
      case End::Answered:
        return reply.Value == LookupValue(true) ? "yes" : "no";
      case End::Failed:
        return "failed";
      case End::NotAvailable:
        return "not available";
      case End::Dropped:
        break;
    }
    return "dropped";
  }

  using Lines = std::vector<std::string>;
  sim::World World;
  std::optional<SlowQuestions> Slow{std::in_place, World.SlowAnswers};
  std::optional<AnswerDesk> Desk{std::in_place, *Slow, World.System, World.Desktop};
  std::uint64_t owner_ = Desk->NewOwner();
  Lines told_;
  std::function<void()> then_;
};

TEST_F(AnswerDeskTest, ALinkThatLiesElsewhereIsNotReadForItsIconAlone) {
  const auto loads = [this] {
    return std::count_if(World.Links.Log().begin(), World.Links.Log().end(),
                         [](const std::string& call) { return call.starts_with("Load "); });
  };
  for (const char* path : {"C:\\here\\far.lnk", "C:\\here\\near.lnk"})
    World.Links.Put(path, {.Path = "D:\\here\\a.txt"});
  World.Links.PutElsewhere("C:\\here\\far.lnk");
  const auto ask = [this](LookupKind kind, const char* path) {
    const auto reply = Desk->AskAtOnce({.Question = {.Kind = kind, .Path = path}}, Asker());
    return reply && reply->How == End::Answered;
  };
  EXPECT_TRUE(ask(LookupKind::FileIcon, "C:\\here\\far.lnk"));
  EXPECT_EQ(loads(), 0);
  EXPECT_TRUE(ask(LookupKind::FileIcon, "C:\\here\\near.lnk"));
  EXPECT_EQ(loads(), 1);
  // What the user has chosen is read.
  EXPECT_TRUE(ask(LookupKind::LinkTarget, "C:\\here\\far.lnk"));
  EXPECT_EQ(loads(), 2);
}

TEST_F(AnswerDeskTest, WhatIsHeldBackIsAskedWhenItGoesOnAndNotWaitedFor) {
  World.Costs.SetPrice([](std::string_view, std::string_view) { return 1; });
  World.Costs.WhenCharged([this](int milliseconds) { World.Desktop.Jump(milliseconds); });
  const std::int64_t began = World.Desktop.Now();
  Desk->Hold();
  Desk->Ask(IsThere("C:\\here\\a.txt"), Noted("one"));
  EXPECT_FALSE(Desk->AskAtOnce(IsThere("D:\\nowhere.txt"), Noted("two")));
  World.Desktop.Pump();
  EXPECT_EQ(World.Desktop.Now(), began);
  // However long that takes, the disk is not taken for a dead one.
  World.Desktop.Advance(60'000);
  EXPECT_EQ(World.SlowAnswers.Asked(), 0);
  EXPECT_EQ(told_, Lines{});
  Desk->GoOn();
  World.Desktop.Pump();
  EXPECT_EQ(told_, (Lines{"one yes", "two no"}));
  EXPECT_TRUE(Desk->AskAtOnce(IsThere("D:\\here\\a.txt"), Noted("three")));
}

TEST_F(AnswerDeskTest, WhatIsDroppedWhileItIsHeldBackIsToldToNobody) {
  Desk->Hold();
  Desk->Ask(IsThere("C:\\here\\a.txt"), Noted("one"));
  Desk->Drop(owner_);
  Desk->GoOn();
  World.Desktop.Pump();
  EXPECT_EQ(told_, Lines{});
  EXPECT_EQ(World.SlowAnswers.Asked(), 0);
}

TEST_F(AnswerDeskTest, AllThatIsWaitedForInOneTurnIsWaitedForOnce) {
  for (const char* lane : {"D:", "E:"}) World.SlowAnswers.Hang(lane);
  World.Costs.SetPrice([](std::string_view, std::string_view) { return 1; });
  World.Costs.WhenCharged([this](int milliseconds) { World.Desktop.Jump(milliseconds); });
  const auto wait = [this] {
    const auto before = World.Desktop.Now();
    EXPECT_EQ(Desk->AskAtOnce(IsThere("D:\\here\\a.txt"), Noted("d")), std::nullopt);
    EXPECT_EQ(Desk->AskAtOnce(IsThere("E:\\here\\a.txt"), Noted("e"), 60), std::nullopt);
    return World.Desktop.Now() - before;
  };
  EXPECT_EQ(wait(), AnswerDesk::kAtOnce);
  World.Desktop.Pump();
  EXPECT_EQ(wait(), AnswerDesk::kAtOnce) << "the next turn";
}

TEST_F(AnswerDeskTest, AnAnswerComesByALaterTurnAndNotInsideTheCall) {
  Desk->Ask(IsThere("C:\\here\\a.txt"), Noted("a"));
  EXPECT_EQ(told_, Lines{});
  World.Desktop.Pump();
  EXPECT_EQ(told_, Lines{"a yes"});
}

TEST_F(AnswerDeskTest, AKeptAnswerIsNotToldInsideTheCallEither) {
  Desk->Ask(IsThere("C:\\here\\a.txt"), {});
  World.Desktop.Pump();
  Request again = IsThere("C:\\here\\a.txt");
  again.MaxAge = 1000;
  Desk->Ask(again, Noted("again"));
  EXPECT_EQ(told_, Lines{});
  World.Desktop.Pump();
  EXPECT_EQ(told_, Lines{"again yes"});
  EXPECT_EQ(World.SlowAnswers.Asked(), 1);
}

TEST_F(AnswerDeskTest, AQuickAnswerIsThereAtOnceAndTakesNoTime) {
  const std::int64_t before = World.Desktop.Now();
  bool ran = false;
  World.Desktop.Post([&ran] { ran = true; });
  const auto reply = Desk->AskAtOnce(IsThere("C:\\here\\a.txt"), Noted("later"));
  ASSERT_TRUE(reply.has_value());
  EXPECT_EQ(reply->Value, LookupValue(true));
  EXPECT_EQ(World.Desktop.Now(), before);
  EXPECT_FALSE(ran) << "events ran";
  World.Desktop.Advance(1000);
  EXPECT_EQ(told_, Lines{}) << "told twice";
}

TEST_F(AnswerDeskTest, ASlowAnswerIsToldLaterInItsStages) {
  World.SlowAnswers.Delay("D:", 400);
  EXPECT_FALSE(Desk->AskAtOnce(IsThere("D:\\here\\a.txt"), Noted("d")).has_value());
  World.Desktop.Advance(99);
  EXPECT_EQ(told_, Lines{});
  World.Desktop.Advance(1);
  EXPECT_EQ(told_, Lines{"d longer"});
  World.Desktop.Advance(50);
  EXPECT_EQ(told_, (Lines{"d longer", "d being read"}));
  World.Desktop.Advance(250);
  EXPECT_EQ(told_, (Lines{"d longer", "d being read", "d yes"}));
}

TEST_F(AnswerDeskTest, WhatComesForOthersWhileOneIsWaitedForIsToldLater) {
  Desk->Ask(IsThere("E:\\here\\a.txt"), Noted("e"));
  EXPECT_TRUE(Desk->AskAtOnce(IsThere("C:\\here\\a.txt"), Noted("c")).has_value());
  EXPECT_EQ(told_, Lines{});
  World.Desktop.Pump();
  EXPECT_EQ(told_, Lines{"e yes"});
}

TEST_F(AnswerDeskTest, TheLastAnswerIsKnownWhileTheNextIsWaitedFor) {
  const Lookup question{.Path = "D:\\here\\a.txt"};
  EXPECT_EQ(Desk->LastKnown(question), nullptr);
  Desk->Ask({.Question = question}, {});
  World.Desktop.Pump();
  World.SlowAnswers.Hang("D:");
  Desk->Ask({.Question = question}, Noted("d"));
  World.Desktop.Pump();
  ASSERT_NE(Desk->LastKnown(question), nullptr);
  EXPECT_EQ(*Desk->LastKnown(question), LookupValue(true));
}

TEST_F(AnswerDeskTest, WhatIsDroppedIsNotTold) {
  World.SlowAnswers.Delay("D:", 300);
  Desk->Ask(IsThere("D:\\here\\a.txt"), Noted("slow"));
  Desk->Ask(IsThere("C:\\here\\a.txt"), Noted("quick"));
  Desk->Drop(owner_);
  World.Desktop.Advance(1000);
  EXPECT_EQ(told_, Lines{});
}

// What is dropped may already wait to be told; there are several ways to come to that.

TEST_F(AnswerDeskTest, WhatCameWhileAnotherWasWaitedForIsNotToldOnceItIsDropped) {
  const std::uint64_t other = Desk->NewOwner();
  Desk->Ask(IsThere("E:\\here\\a.txt"), Noted("e"));
  Desk->Ask({.Question = {.Path = "D:\\here\\a.txt"}, .Owner = other}, Noted("other"));
  EXPECT_TRUE(Desk->AskAtOnce({.Question = {.Path = "C:\\here\\a.txt"}}, Noted("c")).has_value());
  Desk->Drop(owner_);
  World.Desktop.Advance(1000);
  EXPECT_EQ(told_, Lines{"other yes"});
}

TEST_F(AnswerDeskTest, AKeptAnswerIsNotToldOnceItIsDropped) {
  Desk->Ask(IsThere("C:\\here\\a.txt"), {});
  World.Desktop.Pump();
  Request again = IsThere("C:\\here\\a.txt");
  again.MaxAge = 1000;
  Desk->Ask(again, Noted("again"));
  Desk->Drop(owner_);
  World.Desktop.Advance(1000);
  EXPECT_EQ(told_, Lines{});
}

TEST_F(AnswerDeskTest, ThatAPlaceRestsIsNotToldOnceItIsDropped) {
  World.SlowAnswers.HangForGood("D:");
  Desk->Ask(IsThere("D:\\here\\a.txt"), {});
  World.Desktop.Advance(5000);
  int back = 0;
  Asker asker = Noted("d");
  asker.Back = [&back] { ++back; };
  Desk->Ask(IsThere("D:\\here\\a.txt"), asker);
  Desk->Drop(owner_);
  World.Desktop.Pump();
  World.SlowAnswers.Resume("D:");
  Desk->TryAllAgain();
  World.Desktop.Advance(600'000);
  EXPECT_EQ(told_, Lines{});
  EXPECT_EQ(back, 0);
}

TEST_F(AnswerDeskTest, WhatCameWhileAnAskerLetEventsRunIsNotToldOnceItIsDropped) {
  World.SlowAnswers.HangForGood("D:");
  Desk->Ask({.Question = {.Path = "D:\\here\\a.txt"}, .Owner = Desk->NewOwner()}, Noted("first"));
  World.Desktop.Advance(4999);
  then_ = [this] {
    Desk->Ask(IsThere("E:\\here\\a.txt"), Noted("second"));
    World.Desktop.Pump();
    EXPECT_NE(Desk->LastKnown({.Path = "E:\\here\\a.txt"}), nullptr);
    Desk->Drop(owner_);
  };
  World.Desktop.Advance(1000);
  EXPECT_EQ(told_.back(), "first not available");
}

TEST_F(AnswerDeskTest, AnAskerMayDropWhatIsToldTogetherWithIt) {
  for (const char* path : {"C:\\here\\a.txt", "D:\\here\\a.txt", "E:\\here\\a.txt"})
    Desk->Ask(IsThere(path), Noted(path));
  EXPECT_TRUE(Desk->AskAtOnce({.Question = {.Path = "C:\\here\\b.txt"}}, {}).has_value());
  then_ = [this] { Desk->Drop(owner_); };
  World.Desktop.Advance(1000);
  EXPECT_EQ(told_.size(), 1U);
}

TEST_F(AnswerDeskTest, WhatFallsDueWhenSomethingElseIsDroppedIsToldAllTheSame) {
  World.SlowAnswers.HangForGood("D:");
  Desk->Ask(IsThere("D:\\here\\a.txt"), Noted("d"));
  World.Desktop.Advance(4999);
  World.Desktop.Jump(1);
  Desk->Drop(Desk->NewOwner());
  World.Desktop.Pump();
  EXPECT_EQ(told_.back(), "d not available");
}

TEST_F(AnswerDeskTest, AnAskerMayDropWhatIsToldNextAndMayAskAgain) {
  const std::uint64_t other = Desk->NewOwner();
  Desk->Ask(IsThere("C:\\here\\a.txt"), Noted("first"));
  Desk->Ask({.Question = {.Path = "E:\\here\\a.txt"}, .Owner = other}, Noted("second"));
  then_ = [this, other] {
    Desk->Drop(other);
    Desk->Ask(IsThere("E:\\here\\missing"), Noted("third"));
  };
  World.Desktop.Advance(10);
  EXPECT_EQ(told_, (Lines{"first yes", "third no"}));
}

TEST_F(AnswerDeskTest, AnAskerThatLetsEventsRunIsNotEnteredByAnother) {
  World.SlowAnswers.Delay("E:", 20);
  Desk->Ask(IsThere("C:\\here\\a.txt"), Noted("first"));
  Desk->Ask(IsThere("E:\\here\\a.txt"), Noted("second"));
  then_ = [this] {
    World.Desktop.Advance(200);
    EXPECT_EQ(told_, Lines{"first yes"});
  };
  World.Desktop.Pump();
  World.Desktop.Advance(10);
  EXPECT_EQ(told_.back(), "second yes");
}

TEST_F(AnswerDeskTest, APlaceThatDoesNotAnswerRestsAndAPressTriesAgain) {
  World.SlowAnswers.HangForGood("D:");
  Desk->Ask(IsThere("D:\\here\\a.txt"), Noted("d"));
  World.Desktop.Advance(4999);
  Desk->Ask(IsThere("C:\\here\\a.txt"), Noted("c"));
  World.Desktop.Advance(1);
  EXPECT_EQ(told_, (Lines{"d longer", "d being read", "c yes", "d not available"}));
  const int asked = World.SlowAnswers.Asked();
  Desk->Ask(IsThere("D:\\here\\a.txt"), Noted("again"));
  World.Desktop.Pump();
  EXPECT_EQ(told_.back(), "again not available");
  EXPECT_EQ(World.SlowAnswers.Asked(), asked);
  World.SlowAnswers.Resume("D:");
  World.Desktop.Pump();
  Desk->TryAgain({.Path = "D:\\here\\a.txt"});
  Desk->Ask(IsThere("D:\\here\\a.txt"), Noted("press"));
  World.Desktop.Pump();
  EXPECT_EQ(told_.back(), "press yes");
}

TEST_F(AnswerDeskTest, ACallThatTakesTwoSecondsIsCancelled) {
  World.SlowAnswers.Hang("D:");
  Desk->Ask(IsThere("D:\\here\\a.txt"), Noted("d"));
  World.Desktop.Advance(1999);
  EXPECT_EQ(World.SlowAnswers.UnderWay(), 1);
  World.Desktop.Advance(1);
  EXPECT_EQ(World.SlowAnswers.UnderWay(), 0);
  EXPECT_EQ(told_.back(), "d not available");
}

TEST_F(AnswerDeskTest, NoTimerRunsWhileNobodyWaits) {
  ASSERT_EQ(World.Desktop.Clock().Running(), 0);
  Desk->Ask(IsThere("C:\\here\\a.txt"), Noted("c"));
  World.Desktop.Pump();
  EXPECT_EQ(World.Desktop.Clock().Running(), 0);
}

TEST_F(AnswerDeskTest, TheEndOfTheDeskTellsNobody) {
  World.SlowAnswers.Delay("D:", 50);
  Desk->Ask(IsThere("C:\\here\\a.txt"), Noted("c"));
  Desk->Ask(IsThere("D:\\here\\a.txt"), Noted("d"));
  Desk.reset();
  Slow.reset();
  World.Desktop.Advance(1000);
  EXPECT_EQ(told_, Lines{});
}

}  // namespace
}  // namespace corvelle::desk
