#include "desk/SlowQuestions.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "sim/World.h"

namespace corvelle {
namespace {

class Questions : public testing::Test {
 protected:
  /// Asks whether a file is there and notes the answer under a name.
  void Ask(const std::string& name, const std::string& lane, std::uint64_t generation,
           std::function<void()> then = {}) {
    slow->Ask({.Path = "C:\\there.txt", .Lane = lane, .Generation = generation},
              [this, name, then](const LookupAnswer& answer) {
                told.push_back(name + (answer.Value == LookupValue(true) ? " yes" : " no"));
                if (then) then();
              });
  }

  sim::World world;
  std::vector<std::string> told;
  std::optional<SlowQuestions> slow{std::in_place, world.SlowAnswers};
};

using Told = std::vector<std::string>;

TEST_F(Questions, EachAnswerGoesToWhoAsked) {
  Ask("a", "one", 1);
  world.Files.Put("C:\\there.txt", "x");
  world.SlowAnswers.Delay("two", 100);
  Ask("b", "two", 2);
  EXPECT_EQ(told, Told{}) << "told inside the call";
  world.Desktop.Pump();
  EXPECT_EQ(told, Told{"a no"});
  world.Desktop.Advance(200);
  EXPECT_EQ(told, (Told{"a no", "b yes"}));
}

TEST_F(Questions, GenerationsAreNeverUsedTwice) {
  EXPECT_NE(slow->NewGeneration(), slow->NewGeneration());
}

TEST_F(Questions, WhatWasDroppedIsNotToldAndOthersAre) {
  world.SlowAnswers.Delay("c", 100);
  Ask("a", "c", 1);
  Ask("b", "c", 2);
  slow->Drop(1);
  world.Desktop.Advance(500);
  EXPECT_EQ(told, Told{"b no"});
}

TEST_F(Questions, AnAnswerMayDropTheOneBehindIt) {
  Ask("a", "one", 1, [this] { slow->Drop(2); });
  Ask("b", "two", 2);
  world.Desktop.Pump();
  EXPECT_EQ(told, Told{"a no"});
}

TEST_F(Questions, AnAnswerMayAsk) {
  Ask("a", "one", 1, [this] { Ask("b", "one", 1); });
  world.Desktop.Pump();
  EXPECT_EQ(told, (Told{"a no", "b no"}));
}

TEST_F(Questions, NothingIsToldAfterTheEnd) {
  world.SlowAnswers.Delay("c", 100);
  Ask("a", "c", 1);
  slow.reset();
  world.Desktop.Advance(500);
  EXPECT_EQ(told, Told{});
}

}  // namespace
}  // namespace corvelle
