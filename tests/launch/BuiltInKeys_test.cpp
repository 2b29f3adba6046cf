#include "launch/BuiltInKeys.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "launch/BuiltInDesk.h"
#include "launch/LaunchItem.h"
#include "platform/KeySynthesis.h"

namespace corvelle {

namespace {

using Strings = std::vector<std::string>;
using BuiltInKeysTest = BuiltInDesk;

struct WordRow {
  const char* Word;
  Strings Keys;
};

const WordRow kWords[] = {
    {"FindComputer", {"+17", "+91", "+70", "-17", "-91", "-70"}},
    {"MinimizeAllWindows", {"+91", "+77", "-91", "-77"}},
    {"UndoMinimizeAll", {"+16", "+91", "+77", "-16", "-91", "-77"}},
};

}  // namespace

TEST(KeySequence, AllKeysGoDownAndThenUpInTheSameOrder) {
  struct Row {
    const char* Name;
    ShellKeys Keys;
    std::vector<KeyStroke> Expected;
  };
  const Row rows[] = {
      {"find computer",
       ShellKeys::FindComputer,
       {{17, 0}, {91, 0}, {70, 0}, {17, 2}, {91, 2}, {70, 2}}},
      {"minimize all", ShellKeys::MinimizeAllWindows, {{91, 0}, {77, 0}, {91, 2}, {77, 2}}},
      {"undo minimize all",
       ShellKeys::UndoMinimizeAll,
       {{16, 0}, {91, 0}, {77, 0}, {16, 2}, {91, 2}, {77, 2}}},
  };
  for (const Row& row : rows) EXPECT_EQ(KeySequence(row.Keys), row.Expected) << row.Name;
}

TEST_F(BuiltInKeysTest, EachWordPressesItsKeys) {
  for (const WordRow& row : kWords) {
    world.Keyboard.ClearLog();
    LaunchItem(program.Launch, row.Word);
    EXPECT_EQ(world.Keyboard.Log(), row.Keys) << row.Word;
  }
  EXPECT_TRUE(world.Shell.Log().empty());
}

TEST_F(BuiltInKeysTest, TheCaseOfAWordDoesNotCount) {
  for (const char* word : {"findcomputer", "FINDCOMPUTER", " findCOMPUTER ", "?FindComputer"}) {
    world.Keyboard.ClearLog();
    LaunchItem(program.Launch, word);
    EXPECT_EQ(world.Keyboard.Log(), kWords[0].Keys) << word;
  }
}

TEST_F(BuiltInKeysTest, AWordWithMoreBehindItIsNone) {
  world.Desktop.Answer("File/Device unavailable.", kOk);
  LaunchItem(program.Launch, "FindComputer x");
  EXPECT_TRUE(world.Keyboard.Log().empty());
}

TEST_F(BuiltInKeysTest, RunDialogIsNoWordAndEndsAsAFileThatIsNotThere) {
  world.Desktop.Answer("File/Device unavailable.", kOk);
  LaunchItem(program.Launch, "RunDialog");
  EXPECT_TRUE(world.Keyboard.Log().empty());
  EXPECT_EQ(BoxCount(), 1U);
}

TEST_F(BuiltInKeysTest, AShellThatDoesNotKnowTheKeysShowsNothing) {
  const WindowId other = world.Desktop.AddOtherWindow({.Title = "Other"});
  world.Desktop.TakeForeground(other);
  LaunchItem(program.Launch, "MinimizeAllWindows");
  LaunchItem(program.Launch, "UndoMinimizeAll");
  EXPECT_FALSE(world.Desktop.IsMinimized(other));
  EXPECT_EQ(world.Desktop.ForegroundWindow(), other);
  EXPECT_EQ(BoxCount(), 0U);
}

}  // namespace corvelle
