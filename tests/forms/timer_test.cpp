#include "forms/Timer.h"

#include <gtest/gtest.h>

#include <memory>

#include "TestForm.h"
#include "forms/ControlArray.h"
#include "forms/Graphic.h"
#include "forms/Scopes.h"
#include "sim/World.h"

namespace corvelle::forms {
namespace {

struct TimerTest : testing::Test {
  sim::World World;
  Timer Clock{World.Windows()};
  int Ticks = 0;

  TimerTest() {
    Clock.Tick = [this] { ++Ticks; };
  }
  void Start(int interval) {
    Clock.SetInterval(interval);
    Clock.SetEnabled(true);
  }
  void Advance(int milliseconds) { World.Desktop.Advance(milliseconds); }
};

TEST_F(TimerTest, TicksEachIntervalWhileEnabled) {
  Start(100);
  Advance(99);
  EXPECT_EQ(Ticks, 0);
  Advance(1);
  EXPECT_EQ(Ticks, 1);
  Advance(250);
  EXPECT_EQ(Ticks, 3);
  Clock.SetEnabled(false);
  Advance(1000);
  EXPECT_EQ(Ticks, 3);
}

TEST_F(TimerTest, NeverTicksWithoutAnInterval) {
  Start(0);
  Advance(1000);
  EXPECT_EQ(Ticks, 0);
  Clock.SetInterval(-5);
  Advance(1000);
  EXPECT_EQ(Ticks, 0);
}

TEST_F(TimerTest, AnIntervalOfOneMillisecondTicksEachMillisecond) {
  Start(1);
  Advance(50);
  EXPECT_EQ(Ticks, 50);
}

TEST_F(TimerTest, SettingTheIntervalStartsTheWaitAfresh) {
  Start(100);
  Advance(90);
  Clock.SetInterval(100);
  Advance(90);
  EXPECT_EQ(Ticks, 0);
  Advance(10);
  EXPECT_EQ(Ticks, 1);
}

TEST_F(TimerTest, EnablingWhatIsEnabledDoesNotDelayIt) {
  Start(100);
  Advance(90);
  Clock.SetEnabled(true);
  Advance(10);
  EXPECT_EQ(Ticks, 1);
}

TEST_F(TimerTest, SwitchingOffAndOnStartsTheWaitAfresh) {
  Start(100);
  Advance(90);
  Clock.SetEnabled(false);
  Clock.SetEnabled(true);
  Advance(99);
  EXPECT_EQ(Ticks, 0);
  Advance(1);
  EXPECT_EQ(Ticks, 1);
}

TEST_F(TimerTest, ALateTimerDoesNotCatchUp) {
  Start(100);
  World.Desktop.Jump(1000);
  EXPECT_EQ(Ticks, 0);
  World.Windows().DoEvents();
  World.Windows().DoEvents();
  EXPECT_EQ(Ticks, 1);
  Advance(99);
  EXPECT_EQ(Ticks, 1);
  Advance(1);
  EXPECT_EQ(Ticks, 2);
}

TEST_F(TimerTest, MayStopItselfInItsTick) {
  Clock.Tick = [this] {
    ++Ticks;
    Clock.SetEnabled(false);
  };
  Start(10);
  Advance(1000);
  EXPECT_EQ(Ticks, 1);
}

TEST_F(TimerTest, MayChangeItsIntervalInItsTick) {
  Clock.Tick = [this] {
    ++Ticks;
    Clock.SetInterval(500);
  };
  Start(10);
  Advance(509);
  EXPECT_EQ(Ticks, 1);
  Advance(1);
  EXPECT_EQ(Ticks, 2);
}

TEST_F(TimerTest, MayBeDestroyedInItsTick) {
  auto other = std::make_unique<Timer>(World.Windows());
  bool afterwards = false;
  other->Tick = [&] {
    other.reset();
    afterwards = true;
  };
  other->SetInterval(10);
  other->SetEnabled(true);
  Advance(100);
  EXPECT_TRUE(afterwards);
  EXPECT_EQ(World.Desktop.Clock().Running(), 0);
}

TEST_F(TimerTest, ATickThatLetsEventsThroughIsNotEnteredAgainBeforeItIsDue) {
  int depth = 0;
  int deepest = 0;
  Clock.Tick = [&] {
    deepest = std::max(deepest, ++depth);
    World.Windows().DoEvents();
    --depth;
  };
  Start(10);
  Advance(100);
  EXPECT_EQ(deepest, 1);
}

TEST_F(TimerTest, ATickIsEnteredAgainWhenTimePassesWhileEventsAreLetThrough) {
  int depth = 0;
  int deepest = 0;
  Clock.Tick = [&] {
    deepest = std::max(deepest, ++depth);
    if (depth == 1) {
      World.Desktop.Jump(10);
      World.Windows().DoEvents();
    }
    --depth;
  };
  Start(10);
  Advance(10);
  EXPECT_EQ(deepest, 2);
}

TEST_F(TimerTest, TwoTimersRunInTheOrderInWhichTheyFallDue) {
  Texts order;
  Timer other(World.Windows());
  Clock.Tick = [&] { order.emplace_back("10"); };
  other.Tick = [&] { order.emplace_back("25"); };
  Start(10);
  other.SetInterval(25);
  other.SetEnabled(true);
  Advance(30);
  EXPECT_EQ(order, (Texts{"10", "10", "25", "10"}));
}

TEST_F(TimerTest, OneTimerMayStopAnotherThatIsDueAtTheSameMoment) {
  Timer other(World.Windows());
  int others = 0;
  other.Tick = [&] { ++others; };
  Clock.Tick = [&] { other.SetEnabled(false); };
  Start(10);
  other.SetInterval(10);
  other.SetEnabled(true);
  Advance(100);
  EXPECT_EQ(others, 0);
}

// Control arrays.

TEST(ControlArrays, StartWithTheTemplateAndGrowByLoad) {
  std::vector<int> made;
  ControlArray<int> array([&](int index) {
    made.push_back(index);
    return std::make_unique<int>(index * 10);
  });
  EXPECT_EQ(array.Last(), 0);
  EXPECT_EQ(array.Load(), 10);
  EXPECT_EQ(array.Load(), 20);
  EXPECT_EQ(array.Last(), 2);
  EXPECT_EQ(array[0], 0);
  EXPECT_EQ(made, (std::vector<int>{0, 1, 2}));
  EXPECT_TRUE(array.Has(0));
  EXPECT_TRUE(array.Has(2));
  EXPECT_FALSE(array.Has(3));
  EXPECT_FALSE(array.Has(-1));
}

TEST(ControlArrays, UnloadKeepsTheTemplateAndTheIndexesBelow) {
  ControlArray<int> array([](int index) { return std::make_unique<int>(index); });
  array.Load();
  array.Load();
  array.Load();
  array.UnloadAbove(2);
  EXPECT_EQ(array.Last(), 2);
  array.UnloadAbove(0);
  EXPECT_EQ(array.Last(), 0);
  array.UnloadAbove(0);
  EXPECT_EQ(array.Last(), 0);
  EXPECT_EQ(array.Load(), 1);
}

TEST(ControlArrays, AnElementMayBeUnloadedInItsOwnHandler) {
  sim::World world;
  TestForm form(world.Windows());
  form.Box.SetVisible(false);
  ControlArray<Label> labels([&](int) { return std::make_unique<Label>(form, "labels"); });
  bool afterwards = false;
  Label& label = labels.Load();
  label.Move(0, 0, 600, 300);
  label.MouseUp = [&](MouseButton, ShiftState, float, float) {
    labels.UnloadAbove(0);
    afterwards = true;
  };
  form.Show();
  world.Desktop.ClickAt(101, 101);
  EXPECT_TRUE(afterwards);
  EXPECT_EQ(labels.Last(), 0);
  EXPECT_EQ(form.Graphics().size(), 1U);
}

// Scopes.

// A carry that ends while the program is busy takes its picture off the pointer for good.
TEST(Scopes, TheHourglassLeavesAShapeThatThePointerWasGivenMeanwhile) {
  sim::World world;
  world.Desktop.SetMousePointer(MousePointer::NoDrop);
  {
    const HourglassScope busy(world.Windows());
    world.Desktop.SetMousePointer(MousePointer::Default);
  }
  EXPECT_EQ(world.Desktop.CurrentMousePointer(), MousePointer::Default);
}

TEST(Scopes, TheHourglassGivesWayToThePointerThatWasThere) {
  sim::World world;
  {
    const HourglassScope outer(world.Windows());
    EXPECT_EQ(world.Windows().CurrentMousePointer(), MousePointer::Hourglass);
    { const HourglassScope inner(world.Windows()); }
    EXPECT_EQ(world.Windows().CurrentMousePointer(), MousePointer::Hourglass);
  }
  EXPECT_EQ(world.Windows().CurrentMousePointer(), MousePointer::Default);
}

TEST(Scopes, AFlagIsWhatItWasAfterwards) {
  bool flag = false;
  {
    const FlagScope outer(flag);
    EXPECT_TRUE(flag);
    {
      const FlagScope inner(flag);
      EXPECT_TRUE(flag);
    }
    EXPECT_TRUE(flag);
  }
  EXPECT_FALSE(flag);
}

}  // namespace
}  // namespace corvelle::forms
