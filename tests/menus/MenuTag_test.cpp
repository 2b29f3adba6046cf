#include "menus/MenuTag.h"

#include <gtest/gtest.h>

namespace corvelle {
namespace {

using namespace std::string_literals;

TEST(MenuTag, IsKindCommandIconAndNumber) {
  EXPECT_EQ(JoinTag({false, "notepad.exe", "note.ico", 7}), "nnotepad.exe\0note.ico\0007"s);
  EXPECT_EQ(JoinTag({true, "", "", 0}), "s\0\0000"s);
}

TEST(MenuTag, IsTakenApartAgain) {
  const MenuTag tags[] = {
      {false, "notepad.exe", "note.ico", 7},
      {true, "C:\\a b\\*.*/u", "C:\\x.dll|3", 5001},
      {false, "", "", 0},
      {true, "s", "n", 32767},
      {false, "\xC3\xA4.exe", "", 2},
      {false, "CSIDL_DRIVES", "8", 5003, "Disk (C:)"},
  };
  for (const MenuTag& tag : tags) {
    const std::string text = JoinTag(tag);
    EXPECT_EQ(TagCommand(text), tag.Command);
    EXPECT_EQ(TagIcon(text), tag.Icon) << tag.Command;
    EXPECT_EQ(TagRecordNumber(text), tag.RecordNumber) << tag.Command;
    EXPECT_EQ(TagName(text), tag.Name) << tag.Command;
    EXPECT_EQ(TagFollowsSeparator(text), tag.FollowsSeparator) << tag.Command;
  }
}

TEST(MenuTag, AMarkOfTheMainMenuHasAnIconOnly) {
  const std::string marked = "\0xCircle\0"s;
  EXPECT_EQ(TagCommand(marked), "");
  EXPECT_EQ(TagIcon(marked), "xCircle");
  EXPECT_EQ(TagRecordNumber(marked), 0);
  EXPECT_FALSE(TagFollowsSeparator(marked));
  const std::string unmarked = "\0"s;
  EXPECT_EQ(TagCommand(unmarked), "");
  EXPECT_EQ(TagIcon(unmarked), "");
}

TEST(MenuTag, WhatIsMissingIsEmpty) {
  for (const std::string& text : {""s, "n"s}) {
    EXPECT_EQ(TagCommand(text), "");
    EXPECT_EQ(TagIcon(text), "");
    EXPECT_EQ(TagRecordNumber(text), 0);
    EXPECT_FALSE(TagFollowsSeparator(text));
  }
  EXPECT_EQ(TagCommand("srun.exe"), "run.exe");
  EXPECT_TRUE(TagFollowsSeparator("srun.exe"));
  EXPECT_EQ(TagRecordNumber("nrun\0icon\0what"s), 0);
}

TEST(MenuTag, ANulInADamagedFieldDoesNotShiftTheParts) {
  const std::string text = JoinTag({false, "run.exe\0rest"s, "icon.ico\0more"s, 9});
  EXPECT_EQ(TagCommand(text), "run.exe");
  EXPECT_EQ(TagIcon(text), "icon.ico");
  EXPECT_EQ(TagRecordNumber(text), 9);
}

}  // namespace
}  // namespace corvelle
