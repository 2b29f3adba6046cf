#include "launch/FileSearch.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "launch/BuiltInDesk.h"
#include "launch/LaunchItem.h"

namespace corvelle {
namespace {

using Strings = std::vector<std::string>;

constexpr char kAddress[] = "search-ms:query=&";
constexpr char kFolder[] = "shell:::{9343812E-1C37-4A49-A12E-4B2D810D956B}";
constexpr char kFolderKey[] = "CLSID\\{9343812E-1C37-4A49-A12E-4B2D810D956B}";
constexpr char kUnavailable[] = "File/Device unavailable.";

struct FileSearchTest : BuiltInDesk {
  void RemoveProtocol() {
    world.Keys.Remove(RegistryRoot::ClassesRoot, "search-ms", "URL Protocol");
  }
  void AddFolder() { world.Keys.Set(RegistryRoot::ClassesRoot, kFolderKey, "", "Search"); }
};

TEST_F(FileSearchTest, TheWordOpensTheSearchAndPressesNoKey) {
  for (const char* word : {"FileFind", "filefind", "?FILEFIND", " fileFind "}) {
    world.Shell.ClearLog();
    LaunchItem(program.Launch, word);
    EXPECT_EQ(world.Shell.Started(), Strings{kAddress}) << word;
  }
  EXPECT_TRUE(world.Keyboard.Log().empty());
  EXPECT_EQ(BoxCount(), 0U);
}

TEST_F(FileSearchTest, WithoutTheProtocolItsFolderIsOpened) {
  RemoveProtocol();
  AddFolder();
  LaunchItem(program.Launch, "FileFind");
  EXPECT_EQ(world.Shell.Started(), Strings{kFolder});
}

TEST_F(FileSearchTest, AProtocolThatFailsLeavesItToTheFolder) {
  AddFolder();
  world.Shell.FailToOpen(kAddress, OpenError::Other);
  LaunchItem(program.Launch, "FileFind");
  EXPECT_EQ(world.Shell.Started(), Strings{kFolder});
}

TEST_F(FileSearchTest, WhatTheUserRefusesEndsThere) {
  AddFolder();
  world.Shell.FailToOpen(kAddress, OpenError::Cancelled);
  LaunchItem(program.Launch, "FileFind");
  EXPECT_EQ(world.Shell.Log().size(), 1U);
  EXPECT_EQ(BoxCount(), 0U);
}

TEST_F(FileSearchTest, ASearchThatTakesItsTimeIsOpenedOnceAndHoldsUpNothing) {
  world.Starts.Hang();
  for (int i = 0; i < 2; ++i) LaunchItem(program.Launch, "FileFind");
  EXPECT_EQ(world.Starts.UnderWay(), 1);
  EXPECT_TRUE(world.Shell.Log().empty());
  world.Starts.Resume();
  EXPECT_EQ(world.Shell.Started(), Strings{kAddress});
}

TEST_F(FileSearchTest, AMachineWithoutASearchSaysSo) {
  RemoveProtocol();
  EXPECT_FALSE(HasFileSearch(world.Keys));
  world.Desktop.Answer(kUnavailable, kOk);
  LaunchItem(program.Launch, "FileFind");
  EXPECT_EQ(Box().Flags, 262160U);
  EXPECT_TRUE(world.Shell.Log().empty());
  AddFolder();
  EXPECT_TRUE(HasFileSearch(world.Keys));
}

}  // namespace
}  // namespace corvelle
