#include "library/OtherFiles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "core/Program.h"
#include "icons/IconsWiring.h"
#include "library/LibraryWiring.h"
#include "sim/World.h"

namespace corvelle {
namespace {

constexpr char kOthers[] = "C:\\Corvelle\\Icons\\others.dat";
constexpr char kTool[] = "C:\\Tools\\tool.exe";
constexpr char kFar[] = "D:\\far.exe";

using Rows = std::vector<std::string>;

class OtherFilesDesk : public testing::Test {
 protected:
  OtherFilesDesk() {
    program.Paths.AppPath = "C:\\Corvelle\\";
    program.Paths.IconsPath = "C:\\Corvelle\\Icons\\";
    world.Files.MakeFolders(program.Paths.IconsPath);
    world.Files.AddDrive('D');
    Put(kTool, 3);
    Put(kFar, 2);
    others.Added = [this](const AddedFile& added) { told.push_back(added); };
    others.Made = [this] { ++made; };
  }
  /// A file that holds so many icons.
  void Put(const std::string& path, int icons) {
    world.Files.Put(path, "x");
    world.Icons.SetIconCount(path, icons);
  }
  void PutShellFiles() {
    world.Files.Put("C:\\Windows\\System32\\Shell32.dll", "x");
    world.Files.Put("C:\\Windows\\Explorer.exe", "x");
  }
  /// A program that is registered with this path, and holds so many icons.
  void Register(const std::string& name, const std::string& path, int icons) {
    world.Keys.Set(RegistryRoot::LocalMachine,
                   "Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\" + name, "", path);
    world.Icons.SetIconCount(path, icons);
  }
  /// The list that is stored, and read.
  void Begin(const Rows& paths) {
    std::string lines;
    for (const std::string& path : paths) lines += path + "\r\n";
    world.Files.Put(kOthers, lines);
    others.Read();
  }
  /// Adds a file. What came of it; -2 for its row when nothing did.
  AddedFile Add(const std::string& chosen) {
    told.clear();
    others.Add(chosen);
    return told.size() == 1 ? told.front() : AddedFile{.Row = -2};
  }
  void Advance(int milliseconds) { world.Desktop.Advance(milliseconds); }
  sim::SimLookups& Slow() { return world.SlowAnswers; }
  std::string Stored() { return world.Files.Get(kOthers).value_or("(missing)"); }
  std::string Shortcut(const std::string& target) {
    const std::string link = "C:\\Links\\some.lnk";
    world.Links.Put(link, {.Path = target});
    return link;
  }

  sim::World world;
  Program program{world.Services(), world.Windows()};
  OtherFiles others{OtherFilePartsOf(program)};
  std::vector<AddedFile> told;
  int made = 0;
};

const Rows kShellFiles = {"Explorer.exe |C:\\Windows\\Explorer.exe",
                          "Shell32.dll |C:\\Windows\\System32\\Shell32.dll"};

// ---- the list to begin with ----

TEST_F(OtherFilesDesk, TheFirstListIsTheShellsFilesAndTheRegisteredPrograms) {
  PutShellFiles();
  Register("paint.exe", "C:\\TOOLS\\PAINT.EXE", 3);
  Register("bare.exe", "C:\\Tools\\bare.exe", 0);
  const Rows expected = {"Explorer.exe |C:\\Windows\\Explorer.exe",
                         "paint.exe |C:\\tools\\paint.exe",
                         "Shell32.dll |C:\\Windows\\System32\\Shell32.dll"};
  others.Read();
  EXPECT_EQ(others.Rows(), expected);
  EXPECT_FALSE(others.IsBeingMade());
  EXPECT_EQ(Stored(),
            "C:\\Windows\\Explorer.exe\r\nC:\\tools\\paint.exe\r\n"
            "C:\\Windows\\System32\\Shell32.dll\r\n");
  others.Read();
  EXPECT_EQ(others.Rows(), expected);
  EXPECT_EQ(made, 0) << "it was there at once";
}

TEST_F(OtherFilesDesk, ShellFilesThatAreNotThereAreLeftOut) {
  world.Files.Put("C:\\Windows\\Explorer.exe", "x");
  others.Read();
  EXPECT_EQ(others.Rows(), Rows{"Explorer.exe |C:\\Windows\\Explorer.exe"});
}

TEST_F(OtherFilesDesk, AProgramThatIsRegisteredTwiceIsListedOnce) {
  PutShellFiles();
  Register("a.exe", "C:\\Tools\\a.exe", 1);
  Register("b.exe", "\"C:\\TOOLS\\A.EXE\"", 1);
  Register("c.exe", "C:\\WINDOWS\\EXPLORER.EXE", 1);
  others.Read();
  EXPECT_EQ(others.Rows(), (Rows{"a.exe |C:\\tools\\a.exe", kShellFiles[0], kShellFiles[1]}));
}

TEST_F(OtherFilesDesk, AFirstListWithoutAnyFileIsEmptyAndNotStored) {
  others.Read();
  EXPECT_EQ(others.Rows(), Rows());
  EXPECT_EQ(Stored(), "(missing)");
}

TEST_F(OtherFilesDesk, AProgramThatTakesItsTimeComesIntoTheFirstListWhenItIsCounted) {
  PutShellFiles();
  Register("far.exe", "D:\\FAR.EXE", 2);
  Slow().Delay("D:*", 1000);
  others.Read();
  EXPECT_TRUE(others.IsBeingMade());
  EXPECT_EQ(others.Rows(), kShellFiles);
  EXPECT_EQ(Stored(), "(missing)") << "what is stored is the whole list";
  Advance(1100);
  EXPECT_FALSE(others.IsBeingMade());
  EXPECT_EQ(others.Rows(), (Rows{kShellFiles[0], "far.exe |D:\\far.exe", kShellFiles[1]}));
  EXPECT_EQ(Stored(),
            "C:\\Windows\\Explorer.exe\r\nD:\\far.exe\r\n"
            "C:\\Windows\\System32\\Shell32.dll\r\n");
  EXPECT_EQ(made, 1);
}

TEST_F(OtherFilesDesk, AProgramThatNeverAnswersIsLeftOutOfAListThatIsMadeAgain) {
  PutShellFiles();
  Register("far.exe", "D:\\FAR.EXE", 2);
  Slow().HangForGood("D:*");
  others.Read();
  Advance(6000);
  EXPECT_EQ(made, 1);
  EXPECT_EQ(others.Rows(), kShellFiles);
  EXPECT_EQ(Stored(), "(missing)");
  Slow().Resume("D:*");
  Advance(1000);
  others.Read();
  EXPECT_EQ(others.Rows().size(), 3U);
  EXPECT_NE(Stored(), "(missing)");
}

TEST_F(OtherFilesDesk, AListThatIsDroppedWhileItIsMadeIsNotStored) {
  PutShellFiles();
  Register("far.exe", "D:\\FAR.EXE", 2);
  Slow().Delay("D:*", 1000);
  others.Read();
  others.Drop();
  EXPECT_FALSE(others.IsBeingMade());
  Advance(5000);
  EXPECT_EQ(made, 0);
  EXPECT_EQ(Stored(), "(missing)");
}

// ---- adding ----

TEST_F(OtherFilesDesk, AFileWithIconsIsAddedInItsOrderAndStored) {
  Begin({"C:\\a.dll", "C:\\z.dll"});
  const AddedFile added = Add(kTool);
  EXPECT_EQ(added.Refusal, "");
  EXPECT_EQ(added.Row, 1);
  EXPECT_EQ(others.Rows(),
            (Rows{"a.dll |C:\\a.dll", "tool.exe |C:\\Tools\\tool.exe", "z.dll |C:\\z.dll"}));
  EXPECT_EQ(Stored(), "C:\\a.dll\r\nC:\\Tools\\tool.exe\r\nC:\\z.dll\r\n");
}

TEST_F(OtherFilesDesk, AShortcutStandsForItsTarget) {
  EXPECT_EQ(Add(Shortcut(kTool)).Refusal, "");
  EXPECT_EQ(others.Rows(), Rows{"tool.exe |C:\\Tools\\tool.exe"});
}

TEST_F(OtherFilesDesk, WhatIsRefusedIsToldToTheLetterAndTheListsStay) {
  Put("C:\\Tools\\bare.exe", 0);
  Begin({kTool});
  const Rows before = others.Rows();
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
    const AddedFile added = Add(row.chosen);
    EXPECT_EQ(added.Refusal, row.expected) << row.name;
    EXPECT_EQ(added.Row, -1) << row.name;
    EXPECT_EQ(others.Rows(), before) << row.name;
    EXPECT_EQ(Stored(), "C:\\Tools\\tool.exe\r\n") << row.name;
  }
}

TEST_F(OtherFilesDesk, AShortcutHasItsOwnWording) {
  Put("C:\\Tools\\bare.exe", 0);
  Begin({kTool});
  EXPECT_EQ(Add(Shortcut(kTool)).Refusal,
            "\"tool.exe\" that the selected shortcut refers to is already in the library.");
  EXPECT_EQ(Add(Shortcut("C:\\Tools\\bare.exe")).Refusal,
            "\"bare.exe\" that the selected shortcut refers to does not contain icons.");
}

TEST_F(OtherFilesDesk, AShortcutWithoutAPathIsToldSo) {
  const char* const kText = "Cannot find a path for the selected shortcut.";
  EXPECT_EQ(Add(Shortcut("")).Refusal, kText);
  world.Files.Put("C:\\Links\\damaged.LNK", "none");
  EXPECT_EQ(Add("C:\\Links\\damaged.LNK").Refusal, kText);
  EXPECT_EQ(others.Rows(), Rows{});
}

TEST_F(OtherFilesDesk, AFileThatTakesItsTimeIsAddedWhenItIsCounted) {
  Begin({"C:\\a.dll", "C:\\z.dll"});
  Slow().Delay("D:*", 1000);
  EXPECT_EQ(Add(kFar).Row, -2) << "nothing is known yet";
  EXPECT_EQ(others.Rows().size(), 2U);
  EXPECT_EQ(Add(kTool).Row, 1) << "others go on";
  Advance(1100);
  ASSERT_EQ(told.size(), 2U);
  EXPECT_EQ(told[1].Refusal, "");
  EXPECT_EQ(told[1].Row, 1);
  EXPECT_EQ(Stored(), "C:\\a.dll\r\nD:\\far.exe\r\nC:\\Tools\\tool.exe\r\nC:\\z.dll\r\n");
}

TEST_F(OtherFilesDesk, AShortcutThatTakesItsTimeIsAddedWhenItHasBeenRead) {
  Begin({});
  world.Links.Put("D:\\some.lnk", {.Path = kTool});
  Slow().Delay("D:", 1000);
  EXPECT_EQ(Add("D:\\some.lnk").Row, -2);
  Advance(1100);
  ASSERT_EQ(told.size(), 1U);
  EXPECT_EQ(told[0].Row, 0);
  EXPECT_EQ(Stored(), "C:\\Tools\\tool.exe\r\n");
}

TEST_F(OtherFilesDesk, OneThatNeverAnswersHasNoIconsAndItsShortcutNoPath) {
  Begin({"C:\\a.dll"});
  world.Links.Put("D:\\some.lnk", {.Path = kTool});
  Slow().HangForGood("D:*");
  Slow().HangForGood("D:");
  EXPECT_EQ(Add(kFar).Row, -2);
  others.Add("D:\\some.lnk");
  Advance(6000);
  ASSERT_EQ(told.size(), 2U);
  Rows texts = {told[0].Refusal, told[1].Refusal};
  std::sort(texts.begin(), texts.end());
  EXPECT_EQ(texts, (Rows{"\"far.exe\" does not contain icons.",
                         "Cannot find a path for the selected shortcut."}));
  EXPECT_EQ(Stored(), "C:\\a.dll\r\n");
}

TEST_F(OtherFilesDesk, OneOnAPlaceThatDidNotAnswerIsCountedAllTheSameWhenItIsChosen) {
  Begin({});
  Slow().HangForGood("D:*");
  Add(kFar);
  Advance(6000);
  Slow().Resume("D:*");
  EXPECT_EQ(Add(kFar).Refusal, "") << "its place does not rest when the user wants it";
  Advance(100);
  EXPECT_EQ(others.Rows(), Rows{"far.exe |D:\\far.exe"});
}

TEST_F(OtherFilesDesk, OneThatIsChosenTwiceWhileItIsCountedIsAddedOnce) {
  Begin({});
  Slow().Delay("D:*", 1000);
  others.Add(kFar);
  others.Add("d:\\FAR.EXE");
  Advance(3000);
  ASSERT_EQ(told.size(), 2U);
  EXPECT_EQ(told[0].Refusal, "");
  EXPECT_EQ(told[1].Refusal, "\"FAR.EXE\" is already in the library.");
  EXPECT_EQ(Stored(), "D:\\far.exe\r\n");
}

TEST_F(OtherFilesDesk, WhatIsDroppedIsNeitherAddedNorTold) {
  Begin({"C:\\a.dll"});
  Slow().Delay("D:*", 1000);
  others.Add(kFar);
  others.Drop();
  Advance(5000);
  EXPECT_EQ(told.size(), 0U);
  EXPECT_EQ(Stored(), "C:\\a.dll\r\n");
}

// ---- removing ----

TEST_F(OtherFilesDesk, TheQuestionBeforeARowGoesNamesTheFile) {
  EXPECT_EQ(RemoveQuestion("tool.exe |C:\\Tools\\tool.exe"),
            "Are you sure you want to remove \"tool.exe\"");
}

TEST_F(OtherFilesDesk, ARowIsTakenOutAndTheRestStored) {
  Begin({"C:\\a.dll", "C:\\z.dll"});
  others.Remove("b.dll |C:\\b.dll");
  others.Remove("");
  EXPECT_EQ(others.Rows().size(), 2U);
  others.Remove("a.dll |C:\\a.dll");
  EXPECT_EQ(others.Rows(), Rows{"z.dll |C:\\z.dll"});
  EXPECT_EQ(Stored(), "C:\\z.dll\r\n");
}

TEST_F(OtherFilesDesk, WithoutItsLastRowTheListIsDeletedAndMadeAgain) {
  PutShellFiles();
  Add(kTool);
  others.Remove("tool.exe |C:\\Tools\\tool.exe");
  EXPECT_EQ(Stored(), "(missing)");
  others.Read();
  EXPECT_EQ(others.Rows(), kShellFiles);
}

TEST_F(OtherFilesDesk, ADiskThatRefusesKeepsTheOldListOnIt) {
  Begin({"C:\\a.dll"});
  world.Files.FailCall(1, FileError::DiskFull);
  EXPECT_EQ(Add(kTool).Refusal, "");
  EXPECT_EQ(others.Rows().size(), 2U);
  EXPECT_EQ(Stored(), "C:\\a.dll\r\n");
}

// ---- the program ends in the middle ----

/// An act on the list that is stored, and the lists that the next start may find after it.
struct StoredAct {
  const char* Name;
  Rows Before;
  void (*Do)(Program& program, OtherFiles& others);
  Rows After;
};

const Rows kTwo = {"a.dll |C:\\a.dll", "z.dll |C:\\z.dll"};
const StoredAct kStoredActs[] = {
    {"the first list is made",
     {},
     [](Program&, OtherFiles& others) { others.Read(); },
     kShellFiles},
    {"a file is added",
     kTwo,
     [](Program&, OtherFiles& others) { others.Add(kTool); },
     {"a.dll |C:\\a.dll", "tool.exe |C:\\Tools\\tool.exe", "z.dll |C:\\z.dll"}},
    {"a row is removed",
     kTwo,
     [](Program&, OtherFiles& others) { others.Remove("a.dll |C:\\a.dll"); },
     {"z.dll |C:\\z.dll"}},
    // The next start makes the list that a new user has.
    {"the last row is removed",
     {"a.dll |C:\\a.dll"},
     [](Program&, OtherFiles& others) { others.Remove("a.dll |C:\\a.dll"); },
     kShellFiles},
    {"the library is reset", kTwo,
     [](Program& program, OtherFiles&) { LibraryListsOf(program).Reset(); }, kShellFiles},
};

TEST_F(OtherFilesDesk, AfterAnEndAtAnyCallTheNextStartFindsTheOldListOrTheNew) {
  PutShellFiles();
  for (const StoredAct& act : kStoredActs) {
    bool ended = true;
    int foundNew = 0;
    for (int n = 1; ended; ++n) {
      SCOPED_TRACE(std::string(act.Name) + ", ended at call " + std::to_string(n));
      world.Files.Vanish(kOthers);
      if (!act.Before.empty()) OtherIconsOf(program).Save(act.Before);
      if (!act.Before.empty()) others.Read();
      world.Files.FailFrom(n, FileError::DiskFull);
      act.Do(program, others);
      ended = world.Files.Hit();
      world.Files.StopFailing();
      others.Read();
      const Rows found = others.Rows();
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
