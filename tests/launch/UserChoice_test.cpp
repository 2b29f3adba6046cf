#include "launch/UserChoice.h"

#include <gtest/gtest.h>

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

TEST(ProgramOfACommand, StandsBeforeItsArgumentsAndWithoutQuotes) {
  EXPECT_EQ(ProgramOfCommand("\"C:\\Program Files\\Post\\post.EXE\" -mail %1"),
            "C:\\Program Files\\Post\\post.EXE");
  EXPECT_EQ(ProgramOfCommand("C:\\post.exe %1"), "C:\\post.exe");
  EXPECT_EQ(ProgramOfCommand("\"C:\\post.com\""), "C:\\post.com");
  EXPECT_EQ(ProgramOfCommand(""), "");
}

}  // namespace corvelle
