// The program as a whole, from the entry routine to the end of its companion.

#include <gtest/gtest.h>

#include <string>

#include "core/Main.h"
#include "core/MenuFile.h"
#include "core/Program.h"
#include "menus/window/frmQMenu.h"
#include "sim/World.h"
#include "toolbar/companion/frmMinimize.h"
#include "toolbar/docking/mAppBar.h"
#include "toolbar/notices/frmStartup.h"
#include "toolbar/strip/StripWiring.h"
#include "toolbar/strip/frmToolbar.h"

namespace corvelle {
namespace {

class NoStartupLink final : public StartupLinkPort {
 public:
  bool Exists() override { return false; }
  void Remove() override {}
  void Create(std::string_view) override {}
};

class OneDefaultMenu final : public DefaultEntriesPort {
 public:
  explicit OneDefaultMenu(Program& program) : program_(program) {}
  void IncludeCommonFiles() override {
    ++Calls;
    EXPECT_TRUE(CreateButtonFile(program_.Services.Files, program_.Services.Ansi,
                                 program_.Paths.MenusPath));
  }

  int Calls = 0;

 private:
  Program& program_;
};

/// All windows that there are, wired as the program wires them.
struct Installation {
  explicit Installation(sim::World& world) : TheProgram(world.Services(), world.Windows()) {
    WindowPorts& ports = TheProgram.Ports;
    ports.Toolbar = &Strip;
    ports.QMenu = &Menu;
    ports.Minimize = &Companion;
    ports.Startup = &Startup;
    ports.Docking = &Docking;
    ports.StartupLink = &Link;
    ports.DefaultEntries = &Entries;
  }

  Program TheProgram;
  frmToolbar Strip{TheProgram};
  mAppBar Docking{AppBarPartsOf(TheProgram), Strip};
  frmQMenu Menu{TheProgram};
  frmMinimize Companion{CompanionPartsOf(TheProgram)};
  frmStartup Startup{StartupPartsOf(TheProgram)};
  NoStartupLink Link;
  OneDefaultMenu Entries{TheProgram};
};

class WholeStart : public testing::Test {
 protected:
  WholeStart() { world.Files.Put("C:\\Corvelle\\corvelle.exe", "program"); }
  std::string Flags() { return world.Files.Get("C:\\Corvelle\\tmenu425.dat").value_or("none"); }

  sim::World world;
};

TEST_F(WholeStart, AFreshInstallationEndsWithTheDefaultFlagsAndNoOthers) {
  Installation fresh(world);
  world.Desktop.Answer(forms::msgbox::AnswerNo);
  ASSERT_TRUE(Main(fresh.TheProgram));
  EXPECT_EQ(fresh.Entries.Calls, 1);
  EXPECT_EQ(fresh.TheProgram.Strip.ToolbarEdge, Edge::Right);
  // 38 pixels of a large button and the frame, the whole screen high.
  EXPECT_EQ(world.Desktop.BoundsOf(fresh.Strip.hWnd()), (PixelRect{982, 0, 1024, 768}));
  EXPECT_EQ(world.Bars.WorkArea(), (PixelRect{0, 0, 982, 768}));
  fresh.Companion.Unload();
  EXPECT_EQ(Flags(), "11000000000001110010000101000001");
}

TEST_F(WholeStart, TheSecondStartAsksNothingAndMakesNoEntries) {
  {
    Installation first(world);
    world.Desktop.Answer(forms::msgbox::AnswerNo);
    ASSERT_TRUE(Main(first.TheProgram));
    first.Companion.Unload();
  }
  Installation second(world);
  ASSERT_TRUE(Main(second.TheProgram));
  EXPECT_EQ(second.Entries.Calls, 0);
  EXPECT_EQ(second.Strip.Buttons.ButtonCount, 2);
  EXPECT_EQ(world.Desktop.Boxes().size(), 1U);
  second.Companion.Unload();
}

TEST_F(WholeStart, TheEndLeavesNoWindowAndNoTimer) {
  Installation program(world);
  world.Desktop.Answer(forms::msgbox::AnswerNo);
  ASSERT_TRUE(Main(program.TheProgram));
  program.Companion.Unload();
  EXPECT_EQ(world.Bars.WorkArea(), (PixelRect{0, 0, 1024, 768}));
  for (const char* name : {"frmToolbar", "frmQMenu", "frmMinimize", "frmStartup", "picToolbar"}) {
    EXPECT_EQ(world.Desktop.Find(name), kNoWindow) << name;
  }
  EXPECT_EQ(world.Desktop.Clock().Running(), 0);
  EXPECT_TRUE(world.Desktop.QuitCalled());
}

}  // namespace
}  // namespace corvelle
