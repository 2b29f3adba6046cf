#include "library/OtherFiles.h"

#include <gtest/gtest.h>

#include "core/Program.h"
#include "library/LibraryWiring.h"
#include "sim/World.h"

namespace corvelle {
namespace {

constexpr char kOthers[] = "C:\\Corvelle\\Icons\\others.dat";
constexpr char kTool[] = "C:\\Tools\\tool.exe";

using Rows = std::vector<std::string>;

class OtherFilesDesk : public testing::Test {
 protected:
  OtherFilesDesk() {
    program.Paths.AppPath = "C:\\Corvelle\\";
    program.Paths.IconsPath = "C:\\Corvelle\\Icons\\";
    world.Files.MakeFolders(program.Paths.IconsPath);
    world.Files.Put(kTool, "x");
    world.Icons.SetIconCount(kTool, 3);
  }
  std::string Stored() { return world.Files.Get(kOthers).value_or("(missing)"); }
  std::string Shortcut(const std::string& target) {
    const std::string link = "C:\\Links\\some.lnk";
    world.Links.Put(link, {.Path = target});
    return link;
  }

  sim::World world;
  Program program{world.Services(), world.Windows()};
  Rows rows;
};

TEST_F(OtherFilesDesk, AFileWithIconsIsAddedInItsOrderAndStored) {
  rows = {"a.dll |C:\\a.dll", "z.dll |C:\\z.dll"};
  const AddedFile added = AddOtherFile(OtherFilePartsOf(program), rows, kTool);
  EXPECT_EQ(added.Refusal, "");
  EXPECT_EQ(added.Row, 1);
  EXPECT_EQ(rows, (Rows{"a.dll |C:\\a.dll", "tool.exe |C:\\Tools\\tool.exe", "z.dll |C:\\z.dll"}));
  EXPECT_EQ(Stored(), "C:\\a.dll\r\nC:\\Tools\\tool.exe\r\nC:\\z.dll\r\n");
}

TEST_F(OtherFilesDesk, AShortcutStandsForItsTarget) {
  EXPECT_EQ(AddOtherFile(OtherFilePartsOf(program), rows, Shortcut(kTool)).Refusal, "");
  EXPECT_EQ(rows, Rows{"tool.exe |C:\\Tools\\tool.exe"});
}

TEST_F(OtherFilesDesk, WhatIsRefusedIsToldToTheLetterAndTheListsStay) {
  world.Files.Put("C:\\Tools\\bare.exe", "x");
  const Rows before = {"tool.exe |C:\\Tools\\tool.exe"};
  struct Row {
    const char* name;
    std::string chosen;
    const char* expected;
  };
  const Row all[] = {
      {"listed already", "c:\\TOOLS\\tool.exe", "\"tool.exe\" is already in the library."},
      {"without icons", "C:\\Tools\\bare.exe", "\"bare.exe\" does not contain icons."},
      {"missing", "C:\\Tools\\gone.exe", "\"gone.exe\" does not contain icons."},
  };
  for (const Row& row : all) {
    rows = before;
    const AddedFile added = AddOtherFile(OtherFilePartsOf(program), rows, row.chosen);
    EXPECT_EQ(added.Refusal, row.expected) << row.name;
    EXPECT_EQ(added.Row, -1) << row.name;
    EXPECT_EQ(rows, before) << row.name;
    EXPECT_EQ(Stored(), "(missing)") << row.name;
  }
}

TEST_F(OtherFilesDesk, AShortcutHasItsOwnWording) {
  world.Files.Put("C:\\Tools\\bare.exe", "x");
  rows = {"tool.exe |C:\\Tools\\tool.exe"};
  EXPECT_EQ(AddOtherFile(OtherFilePartsOf(program), rows, Shortcut(kTool)).Refusal,
            "\"tool.exe\" that the selected shortcut refers to is already in the library.");
  EXPECT_EQ(AddOtherFile(OtherFilePartsOf(program), rows, Shortcut("C:\\Tools\\bare.exe")).Refusal,
            "\"bare.exe\" that the selected shortcut refers to does not contain icons.");
}

TEST_F(OtherFilesDesk, AShortcutWithoutAPathIsToldSo) {
  const char* const kText = "Cannot find a path for the selected shortcut.";
  EXPECT_EQ(AddOtherFile(OtherFilePartsOf(program), rows, Shortcut("")).Refusal, kText);
  world.Files.Put("C:\\Links\\damaged.LNK", "none");
  EXPECT_EQ(AddOtherFile(OtherFilePartsOf(program), rows, "C:\\Links\\damaged.LNK").Refusal, kText);
  EXPECT_EQ(rows, Rows{});
}

TEST_F(OtherFilesDesk, TheQuestionBeforeARowGoesNamesTheFile) {
  EXPECT_EQ(RemoveQuestion("tool.exe |C:\\Tools\\tool.exe"),
            "Are you sure you want to remove \"tool.exe\"");
}

TEST_F(OtherFilesDesk, ARowIsTakenOutAndTheRestStored) {
  rows = {"a.dll |C:\\a.dll", "z.dll |C:\\z.dll"};
  RemoveOtherFile(OtherIconsOf(program), rows, 2);
  RemoveOtherFile(OtherIconsOf(program), rows, -1);
  EXPECT_EQ(rows.size(), 2U);
  RemoveOtherFile(OtherIconsOf(program), rows, 0);
  EXPECT_EQ(rows, Rows{"z.dll |C:\\z.dll"});
  EXPECT_EQ(Stored(), "C:\\z.dll\r\n");
}

TEST_F(OtherFilesDesk, WithoutItsLastRowTheListIsDeletedAndMadeAgain) {
  world.Files.Put("C:\\Windows\\System32\\Shell32.dll", "x");
  world.Files.Put("C:\\Windows\\Explorer.exe", "x");
  AddOtherFile(OtherFilePartsOf(program), rows, kTool);
  RemoveOtherFile(OtherIconsOf(program), rows, 0);
  EXPECT_EQ(Stored(), "(missing)");
  EXPECT_EQ(OtherIconsOf(program).Read(),
            (Rows{"Explorer.exe |C:\\Windows\\Explorer.exe",
                  "Shell32.dll |C:\\Windows\\System32\\Shell32.dll"}));
}

TEST_F(OtherFilesDesk, ADiskThatRefusesKeepsTheOldListOnIt) {
  world.Files.Put(kOthers, "C:\\a.dll\r\n");
  rows = {"a.dll |C:\\a.dll"};
  world.Files.FailCall(1, FileError::DiskFull);
  EXPECT_EQ(AddOtherFile(OtherFilePartsOf(program), rows, kTool).Refusal, "");
  EXPECT_EQ(rows.size(), 2U);
  EXPECT_EQ(Stored(), "C:\\a.dll\r\n");
}

// ---- the program ends in the middle ----

/// An act on the list that is stored, and the lists that the next start may find after it.
struct StoredAct {
  const char* Name;
  Rows Before;
  void (*Do)(Program& program, Rows& rows);
  Rows After;
};

const Rows kShellFiles = {"Explorer.exe |C:\\Windows\\Explorer.exe",
                          "Shell32.dll |C:\\Windows\\System32\\Shell32.dll"};
const Rows kTwo = {"a.dll |C:\\a.dll", "z.dll |C:\\z.dll"};
const StoredAct kStoredActs[] = {
    {"the first list is made",
     {},
     [](Program& program, Rows&) { static_cast<void>(OtherIconsOf(program).Read()); },
     kShellFiles},
    {"a file is added",
     kTwo,
     [](Program& program, Rows& rows) { AddOtherFile(OtherFilePartsOf(program), rows, kTool); },
     {"a.dll |C:\\a.dll", "tool.exe |C:\\Tools\\tool.exe", "z.dll |C:\\z.dll"}},
    {"a row is removed",
     kTwo,
     [](Program& program, Rows& rows) { RemoveOtherFile(OtherIconsOf(program), rows, 0); },
     {"z.dll |C:\\z.dll"}},
    // The next start makes the list that a new user has.
    {"the last row is removed",
     {"a.dll |C:\\a.dll"},
     [](Program& program, Rows& rows) { RemoveOtherFile(OtherIconsOf(program), rows, 0); },
     kShellFiles},
    {"the library is reset", kTwo, [](Program& program, Rows&) { LibraryListsOf(program).Reset(); },
     kShellFiles},
};

TEST_F(OtherFilesDesk, AfterAnEndAtAnyCallTheNextStartFindsTheOldListOrTheNew) {
  world.Files.Put("C:\\Windows\\System32\\Shell32.dll", "x");
  world.Files.Put("C:\\Windows\\Explorer.exe", "x");
  for (const StoredAct& act : kStoredActs) {
    bool ended = true;
    int foundNew = 0;
    for (int n = 1; ended; ++n) {
      SCOPED_TRACE(std::string(act.Name) + ", ended at call " + std::to_string(n));
      world.Files.Vanish(kOthers);
      if (!act.Before.empty()) OtherIconsOf(program).Save(act.Before);
      rows = act.Before;
      world.Files.FailFrom(n, FileError::DiskFull);
      act.Do(program, rows);
      ended = world.Files.Hit();
      world.Files.StopFailing();
      const Rows found = OtherIconsOf(program).Read();
      // Without a list there was none to keep.
      const bool old = found == (act.Before.empty() ? kShellFiles : act.Before);
      EXPECT_TRUE(old || found == act.After) << found.size() << " rows";
      foundNew += found == act.After ? 1 : 0;
      if (!ended) {
        EXPECT_EQ(found, act.After);
      }
      EXPECT_LT(n, 50);
    }
    EXPECT_GT(foundNew, 0) << act.Name;
  }
}

}  // namespace
}  // namespace corvelle
