#include "toolbar/strip/RefusedFiles.h"

#include <gtest/gtest.h>

#include <string>

#include "forms/Timer.h"
#include "toolbar/PlainStrip.h"

namespace corvelle {
namespace {

TEST(RefusedFiles, AreToldTogetherOnceTheDropHasReturned) {
  PlainDesk desk;
  forms::Timer soon(desk.World.Windows());
  RefusedFiles refused(desk.TheProgram.Messages, desk.Strip.AsForm(), soon);
  desk.World.Desktop.Answer(1);
  refused.Tell({"C:\\first.txt"});
  refused.Tell({"C:\\second.txt"});
  EXPECT_TRUE(desk.World.Desktop.Boxes().empty());
  desk.World.Desktop.Advance(10);
  ASSERT_EQ(desk.World.Desktop.Boxes().size(), 1U);
  const std::string text = desk.World.Desktop.Boxes()[0].Text;
  EXPECT_NE(text.find("C:\\first.txt"), std::string::npos);
  EXPECT_NE(text.find("C:\\second.txt"), std::string::npos);
  EXPECT_FALSE(soon.Enabled());
  refused.Tell({});
  EXPECT_FALSE(soon.Enabled());
}

}  // namespace
}  // namespace corvelle
