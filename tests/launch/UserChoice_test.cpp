#include "launch/UserChoice.h"

#include <gtest/gtest.h>

#include <string>

#include "sim/World.h"

namespace corvelle {

TEST(UserChoice, IsTheProgramOfTheChosenClass) {
  constexpr char kMail[] =
      "Software\\Microsoft\\Windows\\Shell\\Associations\\UrlAssociations\\mailto\\UserChoice";
  struct Row {
    const char* Name;
    const char* Chosen;   // null for none
    const char* Command;  // of the class "Post"; null for none
    UserChoice Expected;
  };
  const Row rows[] = {
      {"none", nullptr, "C:\\post.exe", {}},
      {"blank", "  ", "C:\\post.exe", {}},
      {"the class of the protocol", "MailTo", "C:\\post.exe", {}},
      {"a program", "Post", "\"C:\\My Mail\\post.exe\" /to %1", {true, "C:\\My Mail\\post.exe"}},
      {"blanks around it", " Post ", "C:\\post.exe %1", {true, "C:\\post.exe"}},
      {"a packaged program", "Post", nullptr, {true, ""}},
      {"a class that is gone", "Gone", "C:\\post.exe", {true, ""}},
  };
  for (const Row& row : rows) {
    sim::World world;
    if (row.Chosen != nullptr)
      world.Keys.Set(RegistryRoot::CurrentUser, kMail, "ProgId", row.Chosen);
    if (row.Command != nullptr)
      world.Keys.Set(RegistryRoot::ClassesRoot, "Post\\shell\\open\\command", "", row.Command);
    EXPECT_EQ(UserChoiceFor(world.Keys, "mailto"), row.Expected) << row.Name;
    EXPECT_EQ(UserChoiceFor(world.Keys, "http"), UserChoice{}) << row.Name;
  }
}

// A Windows that keeps the choice in the newer place writes the older one no more.
TEST(UserChoice, TheNewerPlaceCountsBeforeTheOlderOne) {
  const std::string http =
      "Software\\Microsoft\\Windows\\Shell\\Associations\\UrlAssociations\\http\\";
  sim::World world;
  const auto set = [&](const char* place, const char* chosen) {
    world.Keys.Set(RegistryRoot::CurrentUser, http + place, "ProgId", chosen);
  };
  world.Keys.Set(RegistryRoot::ClassesRoot, "Old\\shell\\open\\command", "", "C:\\old.exe %1");
  world.Keys.Set(RegistryRoot::ClassesRoot, "New\\shell\\open\\command", "", "C:\\new.exe %1");
  set("UserChoice", "Old");
  EXPECT_EQ(UserChoiceFor(world.Keys, "http").Program, "C:\\old.exe");
  set("UserChoiceLatest\\ProgId", " ");
  EXPECT_EQ(UserChoiceFor(world.Keys, "http").Program, "C:\\old.exe");
  set("UserChoiceLatest\\ProgId", "New");
  EXPECT_EQ(UserChoiceFor(world.Keys, "http").Program, "C:\\new.exe");
  set("UserChoice", " ");
  EXPECT_EQ(UserChoiceFor(world.Keys, "http").Program, "C:\\new.exe");
}

TEST(ProgramOfACommand, StandsBeforeItsArgumentsAndWithoutQuotes) {
  EXPECT_EQ(ProgramOfCommand("\"C:\\Program Files\\Post\\post.EXE\" -mail %1"),
            "C:\\Program Files\\Post\\post.EXE");
  EXPECT_EQ(ProgramOfCommand("C:\\post.exe %1"), "C:\\post.exe");
  EXPECT_EQ(ProgramOfCommand("\"C:\\post.com\""), "C:\\post.com");
  EXPECT_EQ(ProgramOfCommand(""), "");
}

}  // namespace corvelle
