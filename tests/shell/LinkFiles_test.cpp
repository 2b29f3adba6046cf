#include "shell/LinkFiles.h"

#include "shell/ShellDesk.h"

namespace corvelle {
namespace {

class LinkFilesTest : public ShellDesk {};

TEST_F(LinkFilesTest, AMadeLinkHasATargetAndAFolderAndNothingElse) {
  EXPECT_TRUE(MakeLink(program.Services.Links, kLink, kTool, "C:\\Tools"));
  EXPECT_EQ(world.Links.Get(kLink),
            (sim::SimLink{
                .Path = kTool, .WorkDir = "C:\\Tools", .Item = sim::SimShellLinks::ItemOf(kTool)}));
  EXPECT_EQ(ReadLink(program.Services.Links, kLink), (LinkTarget{kTool, ""}));
}

TEST_F(LinkFilesTest, ALinkIsReadWithItsArguments) {
  world.Links.Put(kLink, {.Path = kTool, .Arguments = "/x"});
  EXPECT_EQ(ReadLink(program.Services.Links, kLink), (LinkTarget{kTool, "/x"}));
}

TEST_F(LinkFilesTest, NothingIsReadOfADamagedLink) {
  world.Files.Put(kLink, "x");
  EXPECT_EQ(ReadLink(program.Services.Links, kLink), std::nullopt);
  EXPECT_EQ(LinkReader(program.Services.Links).TargetOf(kLink), "");
  EXPECT_TRUE(world.Desktop.Boxes().empty());
}

TEST_F(LinkFilesTest, TheTargetOfALinkIsToldToWhoeverAsks) {
  world.Links.Put(kLink, {.Path = kTool, .Arguments = "/x"});
  EXPECT_EQ(LinkReader(program.Services.Links).TargetOf(kLink), kTool);
}

TEST_F(LinkFilesTest, ASpecialFolderWithoutAPathIsEmpty) {
  EXPECT_EQ(GetSpecialFolder(program.Services.Links, program.Ports, 7), "C:\\Start\\Startup");
  EXPECT_EQ(GetSpecialFolder(program.Services.Links, program.Ports, 17), "");
  EXPECT_EQ(GetSpecialFolder(program.Services.Links, program.Ports, 99), "");
}

}  // namespace
}  // namespace corvelle
