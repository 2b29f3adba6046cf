#include "icons/IconLibrary.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/CoreDoubles.h"
#include "core/Program.h"
#include "icons/IconsWiring.h"
#include "icons/LibraryBytes.h"
#include "sim/World.h"

namespace corvelle {
namespace {

using std::string_literals::operator""s;

constexpr char kContainer[] = "C:\\Corvelle\\icon.lib";

/// A program while it starts, with an empty folder of icons.
class LibraryDesk : public ::testing::Test {
 protected:
  LibraryDesk() {
    program.Paths.AppPath = "C:\\Corvelle\\";
    program.Paths.IconsPath = "C:\\Corvelle\\Icons\\";
    program.Guards.StartingUp = true;
    program.Ports.Startup = &startup;
    world.Files.MakeFolders(program.Paths.IconsPath);
  }

  void Pack(const std::string& bytes) { world.Files.Put(kContainer, bytes); }
  void Unpack() { IconLibrary(UnpackPartsOf(program)).ExtractIconLibrary(); }

  std::vector<std::string> Unpacked() { return world.Files.Names(program.Paths.IconsPath); }
  std::string Content(const std::string& name) {
    return world.Files.Get(program.Paths.IconsPath + name).value_or("(missing)");
  }

  CallLog log;
  LoggingStartup startup{log};
  sim::World world;
  Program program{world.Services(), world.Windows()};
};

TEST_F(LibraryDesk, EveryEntryBecomesAFile) {
  Pack(Entry("a.ico", "first") + Entry("Tools.ini", "a.ico\r\n") + End());
  Unpack();
  EXPECT_EQ(Unpacked(), (std::vector<std::string>{"Tools.ini", "a.ico"}));
  EXPECT_EQ(Content("a.ico"), "first");
  EXPECT_EQ(Content("Tools.ini"), "a.ico\r\n");
}

TEST_F(LibraryDesk, TheDiskIsWaitedForOnceHoweverManyFilesThereAre) {
  std::string bytes;
  for (int i = 0; i < 40; ++i) bytes += Entry("a" + std::to_string(i) + ".ico", "icon");
  Pack(bytes + End());
  Unpack();
  EXPECT_EQ(Unpacked().size(), 40U);
  EXPECT_EQ(world.Files.Count("Replace"), 0);
  EXPECT_EQ(world.Files.Count("Flush"), 1);
  EXPECT_EQ(world.Files.Log().back(),
            (sim::SimFiles::Call{"Flush", "C:\\Corvelle\\Icons\\a39.ico", {}}));
}

TEST_F(LibraryDesk, TheContainerIsTheOneThatThePackerWrites) {
  Pack(
      "a.ico               \4\0\0\0first"
      "W95MBX02.ICO        \1\0\0\0\0\xFF"
      "                    \0\0\0\0"s);
  Unpack();
  EXPECT_EQ(Unpacked(), (std::vector<std::string>{"W95MBX02.ICO", "a.ico"}));
  EXPECT_EQ(Content("a.ico"), "first");
  EXPECT_EQ(Content("W95MBX02.ICO"), "\0\xFF"s);
}

TEST_F(LibraryDesk, FoldersAreTakenWithAndWithoutTheirBackslash) {
  Pack(Entry("a.ico", "first"));
  world.Files.MakeFolders("C:\\Elsewhere");
  ExtractIconLibrary(UnpackPartsOf(program), "C:\\Elsewhere", "C:\\Corvelle");
  EXPECT_EQ(world.Files.Get("C:\\Elsewhere\\a.ico"), "first");
}

TEST_F(LibraryDesk, AMissingContainerIsToldAndTheProgramGoesOn) {
  world.Desktop.Answer(forms::msgbox::AnswerOk);
  Unpack();
  ASSERT_EQ(world.Desktop.Boxes().size(), 1U);
  const auto& message = world.Desktop.Boxes().front();
  EXPECT_EQ(message.Text,
            "Icon Library couldn't be found in your system. You need to reinstall the program to "
            "fix this error.");
  EXPECT_EQ(message.Title, "Corvelle");
  EXPECT_EQ(message.Flags, 262160U);
  EXPECT_EQ(message.Owner, kNoWindow);
  EXPECT_TRUE(Unpacked().empty());
}

TEST_F(LibraryDesk, AnEntryOfLengthNoughtInTheMiddleEndsTheUnpacking) {
  Pack(Entry("a.ico", "first") + End() + Entry("b.ico", "second"));
  Unpack();
  EXPECT_EQ(Unpacked(), std::vector<std::string>{"a.ico"});
}

TEST_F(LibraryDesk, FilesOfTheSameNameAreReplacedAndOthersStay) {
  world.Files.Put(program.Paths.IconsPath + "A.ICO", "old and longer");
  world.Files.Put(program.Paths.IconsPath + "mine.ico", "mine");
  Pack(Entry("a.ico", "first") + End());
  Unpack();
  EXPECT_EQ(Content("a.ico"), "first");
  EXPECT_EQ(Content("mine.ico"), "mine");
  EXPECT_EQ(Unpacked().size(), 2U);
}

TEST_F(LibraryDesk, EveryFifthEntryIsADotAndTheRestIsNotCounted) {
  struct Row {
    const char* name;
    int entries;
    bool end;
    int dots;
  };
  const Row rows[] = {
      {"four files", 4, false, 0},
      {"four files and the end, a fifth entry", 4, true, 1},
      {"five files", 5, false, 1},
      {"nine files", 9, false, 1},
      {"nine files and the end", 9, true, 2},
      {"twelve files", 12, true, 2},
  };
  for (const Row& row : rows) {
    std::string bytes;
    for (int i = 0; i < row.entries; ++i) bytes += Entry(std::to_string(i) + ".ico", "data");
    Pack(bytes + (row.end ? End() : ""));
    log.clear();
    Unpack();
    EXPECT_EQ(log, CallLog(static_cast<std::size_t>(row.dots), "dot")) << row.name;
  }
}

TEST_F(LibraryDesk, EventsRunBeforeAnEntryIsRead) {
  Pack(Entry("a.ico", "first") + End());
  bool ran = false;
  const forms::TimerId timer = world.Desktop.StartTimer(1, [&] {
    ran = true;
    EXPECT_TRUE(Unpacked().empty());
    Pack(Entry("b.ico", "2nd..") + End());
  });
  world.Desktop.Jump(1);
  Unpack();
  world.Desktop.StopTimer(timer);
  EXPECT_TRUE(ran);
  EXPECT_EQ(Unpacked(), std::vector<std::string>{"b.ico"});
}

TEST_F(LibraryDesk, WithTheStartupWindowTurnedOffNoDotIsCounted) {
  program.OptionFlags.Set(Option::NoStartupScreen, '1');
  std::string bytes;
  for (int i = 0; i < 10; ++i) bytes += Entry(std::to_string(i) + ".ico", "data");
  Pack(bytes);
  Unpack();
  EXPECT_TRUE(log.empty());
  EXPECT_EQ(Unpacked().size(), 10U);
}

TEST_F(LibraryDesk, APartialContainerLeavesTheFilesWrittenSoFar) {
  const std::string whole = Entry("a.ico", "first") + Entry("b.ico", "second");
  const std::size_t first = Entry("a.ico", "first").size();
  for (std::size_t size = 0; size < whole.size(); ++size) {
    world.Files.Vanish(program.Paths.IconsPath);
    world.Files.MakeFolders(program.Paths.IconsPath);
    Pack(whole.substr(0, size));
    Unpack();
    EXPECT_EQ(Unpacked(),
              size < first ? std::vector<std::string>() : std::vector<std::string>{"a.ico"})
        << size;
  }
}

TEST_F(LibraryDesk, LengthsThatLieEndTheUnpackingWithoutTakingMemory) {
  for (const std::string& length :
       {"\xFF\xFF\xFF\x7F"s, "\x10\0\0\0"s, "\xFF\xFF\xFF\xFF"s, "\0\0\0\x80"s}) {
    std::string liar = "liar.ico";
    liar.resize(kLibraryName, ' ');
    Pack(Entry("a.ico", "first") + liar + length + "short");
    Unpack();
    EXPECT_EQ(Unpacked(), std::vector<std::string>{"a.ico"});
  }
}

TEST_F(LibraryDesk, NoEntryWritesOutsideTheFolder) {
  world.Files.Put("C:\\Corvelle\\corvelle.exe", "the program");
  std::string bytes;
  for (const char* name : {"..\\corvelle.exe", "C:\\evil.exe", "\\evil.exe", "a/evil.ico", "C:evil",
                           "..", "nul.ico", "a.ico.", "corvelle.exe:x", ""}) {
    bytes += Entry(name, "evil");
  }
  Pack(bytes + Entry("good.ico", "good") + End());
  Unpack();
  EXPECT_EQ(Unpacked(), std::vector<std::string>{"good.ico"});
  EXPECT_EQ(world.Files.Names("C:\\"), std::vector<std::string>{"Corvelle"});
  EXPECT_EQ(world.Files.Names("C:\\Corvelle"),
            (std::vector<std::string>{"Icons", "corvelle.exe", "icon.lib"}));
  EXPECT_EQ(world.Files.Get("C:\\Corvelle\\corvelle.exe"), "the program");
}

TEST_F(LibraryDesk, AFileThatCannotBeWrittenDoesNotKeepTheOthersBack) {
  world.Files.Put(program.Paths.IconsPath + "a.ico", "read-only");
  world.Files.SetReadOnly(program.Paths.IconsPath + "a.ico", true);
  world.Files.Put(program.Paths.IconsPath + "b.ico", "held");
  world.Files.HoldOpen(program.Paths.IconsPath + "b.ico");
  world.Files.MakeFolders(program.Paths.IconsPath + "c.ico");
  Pack(Entry("a.ico", "new") + Entry("b.ico", "new") + Entry("c.ico", "new") +
       Entry("d.ico", "new"));
  Unpack();
  EXPECT_EQ(Content("a.ico"), "read-only");
  EXPECT_EQ(Content("d.ico"), "new");
  world.Files.LetGo(program.Paths.IconsPath + "b.ico");
  EXPECT_EQ(Content("b.ico"), "held");
}

TEST_F(LibraryDesk, AFullDiskLeavesWholeFilesOnly) {
  const std::string data(1000, 'x');
  for (std::uint64_t room = 0; room < 4000; room += 499) {
    world.Files.FreeDisk();
    world.Files.Vanish(program.Paths.IconsPath);
    world.Files.MakeFolders(program.Paths.IconsPath);
    Pack(Entry("a.ico", data) + Entry("b.ico", data) + Entry("c.ico", data) + Entry("d.ico", "ab"));
    world.Files.FillDisk(room);
    Unpack();
    for (const std::string& name : Unpacked()) {
      EXPECT_EQ(Content(name), name == "d.ico" ? "ab" : data) << name << " at " << room;
    }
  }
}

TEST_F(LibraryDesk, AnyOneFailureLeavesEachFileOldOrNew) {
  for (int n = 1;; ++n) {
    world.Files.Put(program.Paths.IconsPath + "a.ico", "old a");
    world.Files.Put(program.Paths.IconsPath + "b.ico", "old b");
    Pack(Entry("a.ico", "new a") + Entry("b.ico", "new b") + End());
    world.Desktop.AnswerAnyOther(forms::msgbox::AnswerOk);
    world.Files.FailCall(n, FileError::DiskFull);
    Unpack();
    const bool hit = world.Files.Hit();
    world.Files.StopFailing();
    for (const char* name : {"a", "b"}) {
      const std::string content = Content(name + ".ico"s);
      EXPECT_TRUE(content == "old "s + name || content == "new "s + name)
          << content << ", failing call " << n;
    }
    EXPECT_EQ(Unpacked().size(), 2U) << "failing call " << n;
    if (!hit) break;
  }
  EXPECT_EQ(Content("a.ico"), "new a");
}

}  // namespace
}  // namespace corvelle
