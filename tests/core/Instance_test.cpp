#include "core/Instance.h"

#include <gtest/gtest.h>

#include "core/Program.h"
#include "sim/World.h"

namespace corvelle {
namespace {

class ActivatePrevInstanceTest : public testing::Test {
 protected:
  sim::World world;
  Program program{world.Services(), world.Windows()};
};

TEST_F(ActivatePrevInstanceTest, WithoutSuchAWindowAnswersFalse) {
  world.Desktop.AddOtherWindow({.Title = ""});
  world.Desktop.AddOtherWindow({.Title = "Corvelle Help - contents"});
  EXPECT_FALSE(ActivatePrevInstance(program.Services.Desktop, "Corvelle Help"));
}

TEST_F(ActivatePrevInstanceTest, BringsAnyOtherWindowToTheForeground) {
  const WindowId help = world.Desktop.AddOtherWindow({.Title = "corvelle HELP"});
  const WindowId other = world.Desktop.AddOtherWindow({.Title = "Letters"});
  world.Desktop.TakeForeground(other);
  EXPECT_TRUE(ActivatePrevInstance(program.Services.Desktop, "Corvelle Help"));
  EXPECT_EQ(world.Desktop.ForegroundWindow(), help);
}

TEST_F(ActivatePrevInstanceTest, RestoresAMinimizedWindowToItsNormalSize) {
  const WindowId help = world.Desktop.AddOtherWindow({.Title = "Corvelle Help", .Minimized = true});
  EXPECT_TRUE(ActivatePrevInstance(program.Services.Desktop, "Corvelle Help"));
  EXPECT_FALSE(world.Desktop.IsMinimized(help));
  EXPECT_FALSE(world.Desktop.Look(help)->Maximized);
}

TEST_F(ActivatePrevInstanceTest, RestoresMaximizedWhatWasMaximized) {
  const WindowId help = world.Desktop.AddOtherWindow(
      {.Title = "Corvelle Help", .Minimized = true, .RestoresMaximized = true});
  EXPECT_TRUE(ActivatePrevInstance(program.Services.Desktop, "Corvelle Help"));
  EXPECT_TRUE(world.Desktop.Look(help)->Maximized);
}

}  // namespace
}  // namespace corvelle
