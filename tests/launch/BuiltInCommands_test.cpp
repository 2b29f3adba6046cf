#include "launch/BuiltInCommands.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "launch/BuiltInDesk.h"
#include "launch/LaunchItem.h"

namespace corvelle {

namespace {

using Strings = std::vector<std::string>;

constexpr int kRecentFolder = 8;
constexpr char kFailure[] = "An error occured while trying to clear the Recent Documents Folder.";
constexpr char kRecent[] = "C:\\Users\\Ann\\Recent\\";

/// A window that only counts how often it was loaded.
class CountingWindow final : public LoadedWindow {
 public:
  void LoadWindow() override { ++Loads; }
  void UnloadWindow() override {}
  bool WindowLoaded() const override { return Loads > 0; }
  int Loads = 0;
};

struct ClearRecentDocsTest : BuiltInDesk {
  ClearRecentDocsTest() { world.Links.SetFolder(kRecentFolder, "C:\\Users\\Ann\\Recent"); }

  /// The command as an entry has it.
  void Clear() { LaunchItem(program.Launch, "ClearRecentDocs"); }
  void Put(const std::string& name) { world.Files.Put(kRecent + name, "x"); }
};

using NetSearchTest = BuiltInDesk;

}  // namespace

TEST_F(ClearRecentDocsTest, MovesAllFilesIntoTheBinWithOneCallOfTheShell) {
  Put("letter.doc.lnk");
  Put("notes.lnk");
  Clear();
  const FileOperation expected{.Owner = toolbar.WindowHandle(),
                               .Function = 3,
                               .From = "C:\\Users\\Ann\\Recent\\*.*",
                               .Flags = 192};
  EXPECT_EQ(world.FileOps.Log(), std::vector{expected});
  EXPECT_EQ(world.FileOps.RecycleBin(),
            (Strings{std::string(kRecent) + "letter.doc.lnk", std::string(kRecent) + "notes.lnk"}));
  EXPECT_TRUE(world.Files.Names(kRecent).empty());
  EXPECT_EQ(BoxCount(), 0U);
}

TEST_F(ClearRecentDocsTest, LeavesFoldersAndAllThatIsElsewhere) {
  Put("notes.lnk");
  world.Files.Put("C:\\Users\\Ann\\Recent\\Auto\\list.lnk", "x");
  world.Files.Put("C:\\Users\\Ann\\other.lnk", "x");
  Clear();
  EXPECT_EQ(world.Files.Names(kRecent), Strings{"Auto"});
  EXPECT_TRUE(world.Files.Has("C:\\Users\\Ann\\Recent\\Auto\\list.lnk"));
  EXPECT_TRUE(world.Files.Has("C:\\Users\\Ann\\other.lnk"));
}

TEST_F(ClearRecentDocsTest, AnEmptyFolderIsLeftAlone) {
  Clear();
  EXPECT_TRUE(world.FileOps.Log().empty());
  EXPECT_EQ(BoxCount(), 0U);
}

TEST_F(ClearRecentDocsTest, AFolderWithFoldersOnlyCountsAsEmpty) {
  world.Files.MakeFolders("C:\\Users\\Ann\\Recent\\Auto");
  Clear();
  EXPECT_TRUE(world.FileOps.Log().empty());
}

TEST_F(ClearRecentDocsTest, AHiddenFileIsAFileToo) {
  Put("notes.lnk");
  world.Files.SetHidden(std::string(kRecent) + "notes.lnk", true);
  Clear();
  EXPECT_EQ(world.FileOps.Log().size(), 1U);
}

TEST_F(ClearRecentDocsTest, TheShellsOwnFileIsNoDocument) {
  Put("Desktop.ini");
  Clear();
  EXPECT_TRUE(world.FileOps.Log().empty());
  Put("desktop.ini.lnk");
  Clear();
  EXPECT_EQ(world.FileOps.Log().size(), 1U);
}

TEST_F(ClearRecentDocsTest, AFailureOfTheShellIsTold) {
  Put("notes.lnk");
  world.FileOps.FailNext(5);
  world.Desktop.Answer(kFailure, kOk);
  Clear();
  EXPECT_EQ(Box().Title, "Corvelle");
  EXPECT_EQ(Box().Flags, 262160U);
  EXPECT_EQ(Box().Owner, toolbar.WindowHandle());
}

TEST_F(ClearRecentDocsTest, TheUsersNoToTheShellIsToldAsAFailure) {
  constexpr int kCancelled = 1223;
  Put("notes.lnk");
  world.FileOps.FailNext(kCancelled);
  world.Desktop.Answer(kFailure, kOk);
  Clear();
  EXPECT_TRUE(world.Files.Has(std::string(kRecent) + "notes.lnk"));
}

TEST_F(ClearRecentDocsTest, AFolderThatWentAwayHoldsNothingToClear) {
  world.Files.Vanish("C:\\Users\\Ann\\Recent");
  Clear();
  EXPECT_TRUE(world.FileOps.Log().empty());
  EXPECT_EQ(BoxCount(), 0U);
}

TEST_F(ClearRecentDocsTest, AFolderThatCannotBeListedIsAFailure) {
  Put("notes.lnk");
  world.Files.FailFrom(1, FileError::AccessDenied);
  world.Desktop.Answer(kFailure, kOk);
  Clear();
  EXPECT_TRUE(world.FileOps.Log().empty());
}

// Without a folder the pattern would be that of the drive's root.
TEST_F(ClearRecentDocsTest, AFolderWithoutAPathIsAFailureAndNothingElseIsDeleted) {
  world.Files.Put("C:\\boot.ini", "x");
  world.Links.SetVirtualFolder(kRecentFolder);
  world.Desktop.Answer(kFailure, kOk);
  Clear();
  EXPECT_TRUE(world.FileOps.Log().empty());
  EXPECT_TRUE(world.Files.Has("C:\\boot.ini"));
}

TEST_F(ClearRecentDocsTest, AShellWithoutThatFolderIsAFailure) {
  sim::World bare;
  Program other(bare.Services(), bare.Windows());
  bare.Files.Put("C:\\boot.ini", "x");
  bare.Desktop.Answer(kFailure, kOk);
  BuiltInCommands(other).ClearRecentDocs();
  EXPECT_TRUE(bare.FileOps.Log().empty());
}

TEST_F(NetSearchTest, LoadsTheSearchWindowInAnyCase) {
  CountingWindow window;
  program.Ports.NetSearch = &window;
  for (const char* word : {"netsearch", "NetSearch", "NETSEARCH", "?netsearch"})
    LaunchItem(program.Launch, word);
  EXPECT_EQ(window.Loads, 4);
}

TEST_F(NetSearchTest, WithoutThatWindowNothingIsStarted) {
  LaunchItem(program.Launch, "NetSearch");
  EXPECT_TRUE(world.Shell.Log().empty());
  EXPECT_EQ(BoxCount(), 0U);
}

}  // namespace corvelle
