#include "launch/HelpViewer.h"

#include <gtest/gtest.h>

#include "core/Program.h"
#include "sim/World.h"

namespace corvelle {
namespace {

constexpr char kMissing[] = "Corvelle help file could not be found in Corvelle folder.";

class Help : public testing::Test {
 protected:
  Help() { program.Paths.AppPath = "C:\\Corvelle\\"; }

  void PutPages() {
    for (const char* name : {"index.html", "first-steps.html", "net-search.html"}) {
      world.Files.Put("C:\\Corvelle\\Help\\" + std::string(name), "<html>");
    }
    world.Shell.Associate(".html", "C:\\Browser\\browser.exe");
  }
  [[nodiscard]] std::string Opened() const {
    if (world.Shell.Log().empty()) return "nothing";
    const sim::Launch& last = world.Shell.Log().back();
    return last.Started ? last.File : "failed";
  }

  sim::World world;
  Program program{world.Services(), world.Windows()};
  HelpViewer help{program.Paths, program.Services.Files, program.Launch};
};

TEST_F(Help, APageOpensInTheBrowser) {
  PutPages();
  EXPECT_TRUE(help.ShowPage(HelpPage::Contents));
  EXPECT_EQ(Opened(), "C:\\Corvelle\\Help\\index.html");
  help.ShowPageOf("frmNetSearch");
  EXPECT_EQ(Opened(), "C:\\Corvelle\\Help\\net-search.html");
  help.OfferPage(HelpPage::FirstSteps);
  EXPECT_EQ(Opened(), "C:\\Corvelle\\Help\\first-steps.html");
}

TEST_F(Help, WithoutItsPagesItOpensNothing) {
  EXPECT_FALSE(help.ShowPage(HelpPage::Contents));
  help.OfferPage(HelpPage::FirstSteps);
  EXPECT_EQ(Opened(), "nothing");
}

TEST_F(Help, WhoAsksForAPageThatIsMissingIsTold) {
  world.Desktop.Answer(kMissing, forms::msgbox::AnswerOk);
  help.ShowPageOf("frmAbout");
  EXPECT_EQ(world.Desktop.Boxes().back().Flags, 0x40010U);
  EXPECT_EQ(Opened(), "nothing");
}

TEST_F(Help, APageThatNobodyAskedForFailsWithoutAWord) {
  PutPages();
  world.Shell.Fail("C:\\Corvelle\\Help\\first-steps.html");
  help.OfferPage(HelpPage::FirstSteps);
  EXPECT_EQ(Opened(), "failed");
  EXPECT_TRUE(world.Desktop.Boxes().empty());
  EXPECT_EQ(world.Shell.Log().size(), 1U);
}

}  // namespace
}  // namespace corvelle
