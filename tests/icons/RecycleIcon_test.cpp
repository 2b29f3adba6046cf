#include "icons/RecycleIcon.h"

#include <gtest/gtest.h>

#include <string>

#include "core/Program.h"
#include "sim/World.h"

namespace corvelle {

namespace {

constexpr char kKey[] = "CLSID\\{645FF040-5081-101B-9F08-00AA002F954E}\\DefaultIcon";
constexpr char kEmptyBin[] = "C:\\Windows\\System\\shell32.dll,31";
constexpr char kFullBin[] = "C:\\Windows\\System\\shell32.dll,32";

struct CheckRecycleIconTest : testing::Test {
  void SetIcon(const std::string& value) {
    world.Keys.Set(RegistryRoot::ClassesRoot, kKey, {}, value);
  }
  /// Looks, and tells whether a change was noted.
  bool Look() {
    program.Icons.RecycleIconChanged = false;
    CheckRecycleIcon(world.Keys, world.Folders, program.Icons);
    return program.Icons.RecycleIconChanged;
  }

  sim::World world;
  Program program{world.Services(), world.Windows()};
};

}  // namespace

TEST_F(CheckRecycleIconTest, TheFirstLookNotesTheIcon) {
  SetIcon(kEmptyBin);
  EXPECT_TRUE(Look());
  EXPECT_EQ(program.Icons.RecycleIconPath, kEmptyBin);
}

TEST_F(CheckRecycleIconTest, TheSameIconIsNoChange) {
  SetIcon(kEmptyBin);
  Look();
  EXPECT_FALSE(Look());
}

TEST_F(CheckRecycleIconTest, FollowsTheBinWhenItFillsAndWhenItIsEmptied) {
  SetIcon(kEmptyBin);
  Look();
  SetIcon(kFullBin);
  EXPECT_TRUE(Look());
  EXPECT_EQ(program.Icons.RecycleIconPath, kFullBin);
  SetIcon(kEmptyBin);
  EXPECT_TRUE(Look());
  EXPECT_EQ(program.Icons.RecycleIconPath, kEmptyBin);
}

TEST_F(CheckRecycleIconTest, FollowsTheCurrentUsersKeyBeforeThatOfAll) {
  const std::string users =
      std::string("Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\") + kKey;
  SetIcon(kEmptyBin);
  Look();
  world.Keys.Set(RegistryRoot::CurrentUser, users, {}, kFullBin);
  EXPECT_TRUE(Look());
  EXPECT_EQ(program.Icons.RecycleIconPath, kFullBin);
  // The key of all users stays as it was installed.
  SetIcon("other.ico");
  EXPECT_FALSE(Look());
  world.Keys.Set(RegistryRoot::CurrentUser, users, {}, " ");
  EXPECT_TRUE(Look());
  EXPECT_EQ(program.Icons.RecycleIconPath, "other.ico");
}

TEST_F(CheckRecycleIconTest, FollowsWhatTheShellDrawsThoughNoKeyChanges) {
  SetIcon(kEmptyBin);
  world.Folders.SetSelf(10, {"Bin", 31});
  EXPECT_TRUE(Look());
  EXPECT_FALSE(Look());
  world.Folders.SetSelf(10, {"Bin", 32});
  EXPECT_TRUE(Look());
  EXPECT_EQ(program.Icons.RecycleIconIndex, 32);
  EXPECT_EQ(program.Icons.RecycleIconPath, kEmptyBin);
  world.Folders.Remove(10);
  EXPECT_FALSE(Look()) << "one that is not told";
  EXPECT_EQ(program.Icons.RecycleIconIndex, 32);
}

TEST_F(CheckRecycleIconTest, AChangeThatNobodyLookedAtYetStays) {
  SetIcon(kEmptyBin);
  CheckRecycleIcon(world.Keys, world.Folders, program.Icons);
  CheckRecycleIcon(world.Keys, world.Folders, program.Icons);
  EXPECT_TRUE(program.Icons.RecycleIconChanged);
}

TEST_F(CheckRecycleIconTest, BlanksAtTheEndsDoNotCount) {
  SetIcon(kEmptyBin);
  Look();
  SetIcon("  " + std::string(kEmptyBin) + " ");
  EXPECT_FALSE(Look());
  EXPECT_EQ(program.Icons.RecycleIconPath, kEmptyBin);
}

TEST_F(CheckRecycleIconTest, WhatIsMissingOrEmptyLeavesTheIconAsItWas) {
  EXPECT_FALSE(Look());
  SetIcon(kEmptyBin);
  Look();
  for (const char* value : {"", "   "}) {
    SetIcon(value);
    EXPECT_FALSE(Look()) << '"' << value << '"';
    EXPECT_EQ(program.Icons.RecycleIconPath, kEmptyBin);
  }
  world.Keys.Remove(RegistryRoot::ClassesRoot, kKey, {});
  EXPECT_FALSE(Look());
  EXPECT_EQ(program.Icons.RecycleIconPath, kEmptyBin);
}

}  // namespace corvelle
