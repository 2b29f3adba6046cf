#include "launch/BuiltInTempFiles.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "launch/BuiltInDesk.h"
#include "launch/LaunchItem.h"

namespace corvelle {

namespace {

using Strings = std::vector<std::string>;

constexpr char kQuestion[] =
    "Quit any running application before deleting files from the Temp folder. Not doing so may "
    "lead to undesirable result. \r\n\r\nContinue ?";
constexpr char kNoFolder[] =
    "An error occured while trying to delete files the Temp Folder. No file has been deleted.";
constexpr char kTemp[] = "C:\\Users\\Ann\\Temp\\";

std::string Report(int count) {
  return std::to_string(count) +
         " Files have been deleted. Files in-use and non-temporary files have been skipped.";
}

/// A progress window with ears.
class LookingOn final : public StartupPort {
 public:
  std::function<void()> Shown;
  std::function<void()> Unloaded;

  void LoadWindow() override {}
  void UnloadWindow() override {
    if (Unloaded) Unloaded();
  }
  bool WindowLoaded() const override { return true; }
  void AddDot() override {}
  void HideWindow() override {}
  void ShowProgress(std::string_view, std::string_view) override {
    if (Shown) Shown();
  }
};

struct ClearTempFolderTest : BuiltInDesk {
  ClearTempFolderTest() {
    world.Files.MakeFolders("C:\\Users\\Ann\\Temp");
    world.FileOps.SetTempPath("C:\\Users\\Ann\\Temp");
  }

  void Put(const std::string& name) { world.Files.Put(kTemp + name, "x"); }
  void PutMany(int count) {
    for (int i = 0; i < count; ++i) Put("~df" + std::to_string(i) + ".tmp");
  }
  [[nodiscard]] Strings Left() const { return world.Files.Names(kTemp); }

  /// The user says yes, and is told that so many files went.
  void ClearExpecting(int count) {
    world.Desktop.Answer(kQuestion, kYes);
    world.Desktop.Answer(Report(count), kOk);
    LaunchItem(program.Launch, "ClearTempFolder");
  }
};

}  // namespace

TEST(IsTemporaryName, TellsTemporaryFilesByTheirName) {
  struct Row {
    const char* Name;
    bool Expected;
  };
  const Row rows[] = {
      {"README", true},  {"~df1234.tmp", true}, {"x.TMP", true},        {"x.Tmp", true},
      {".tmp", true},    {"a.b.tmp", true},     {" x.tmp ", true},      {"x.tmp.bak", false},
      {"x.tmpx", false}, {"x.txt", false},      {"x.", false},          {".hidden", false},
      {"tmp", true},     {"xtmp", true},        {"x.tm", false},        {"setup.exe", false},
      {"", false},       {"  ", false},         {"\xC3\x84lter", true}, {"\xC3\x84.TMP", true},
  };
  for (const Row& row : rows) EXPECT_EQ(IsTemporaryName(row.Name), row.Expected) << row.Name;
}

TEST(IsTemporaryName, EndsAtTheFirstNul) {
  EXPECT_TRUE(IsTemporaryName(std::string_view("x.tmp\0.bak", 10)));
  EXPECT_FALSE(IsTemporaryName(std::string_view("x.bak\0.tmp", 10)));
}

TEST(ShowsProgress, AfterEachTenthFile) {
  for (const int deleted : {10, 20, 100, 10000}) EXPECT_TRUE(ShowsProgress(deleted)) << deleted;
  for (const int deleted : {0, 1, 9, 11, 19, 9999}) EXPECT_FALSE(ShowsProgress(deleted)) << deleted;
}

TEST_F(ClearTempFolderTest, DeletesWhatHasNoPointOrEndsInTmpAndNothingElse) {
  for (const char* name :
       {"README", "~df1234.tmp", "x.TMP", "x.tmp.bak", "letter.doc", ".hidden", "log.txt"}) {
    Put(name);
  }
  ClearExpecting(3);
  EXPECT_EQ(Left(), (Strings{".hidden", "letter.doc", "log.txt", "x.tmp.bak"}));
}

TEST_F(ClearTempFolderTest, AsksFirstAndReportsAtTheEndOnTopOfAllWindows) {
  ClearExpecting(0);
  ASSERT_EQ(BoxCount(), 2U);
  for (const sim::MessageBox& box : world.Desktop.Boxes()) {
    EXPECT_EQ(box.Title, "Corvelle");
    EXPECT_EQ(box.Owner, toolbar.WindowHandle());
  }
  EXPECT_EQ(world.Desktop.Boxes()[0].Flags, 262148U);
  EXPECT_EQ(world.Desktop.Boxes()[1].Flags, 262144U);
}

TEST_F(ClearTempFolderTest, ANoDeletesNothing) {
  PutMany(3);
  world.Desktop.Answer(kQuestion, kNo);
  LaunchItem(program.Launch, "ClearTempFolder");
  EXPECT_EQ(Left().size(), 3U);
  EXPECT_EQ(world.Files.Count("List"), 0);
  EXPECT_EQ(BoxCount(), 1U);
}

TEST_F(ClearTempFolderTest, NothingIsLookedAtBeforeTheAnswer) {
  PutMany(1);
  world.Desktop.WhileBoxIsUp([this](const sim::MessageBox& box) {
    if (box.Text == kQuestion) {
      EXPECT_EQ(Left().size(), 1U);
      Put("late.tmp");
    } else {
      EXPECT_TRUE(Left().empty());
    }
  });
  ClearExpecting(2);
}

TEST_F(ClearTempFolderTest, WithoutAFolderItSaysSoAndDeletesNothing) {
  PutMany(1);
  world.FileOps.SetTempPath(std::nullopt);
  world.Desktop.Answer(kQuestion, kYes);
  world.Desktop.Answer(kNoFolder, kOk);
  LaunchItem(program.Launch, "ClearTempFolder");
  EXPECT_EQ(Box().Title, "Corvelle");
  EXPECT_EQ(Box().Flags, 262160U);
  EXPECT_EQ(Left().size(), 1U);
  EXPECT_EQ(world.Files.Count("Remove"), 0);
}

TEST_F(ClearTempFolderTest, AFolderThatWentAwayIsTold) {
  world.Files.Vanish("C:\\Users\\Ann\\Temp");
  world.Desktop.Answer(kQuestion, kYes);
  world.Desktop.Answer(kNoFolder, kOk);
  LaunchItem(program.Launch, "ClearTempFolder");
}

TEST_F(ClearTempFolderTest, AFolderThatCannotBeListedIsTold) {
  PutMany(1);
  world.Files.FailCall(1, FileError::AccessDenied);
  world.Desktop.Answer(kQuestion, kYes);
  world.Desktop.Answer(kNoFolder, kOk);
  LaunchItem(program.Launch, "ClearTempFolder");
  EXPECT_EQ(Left().size(), 1U);
}

TEST_F(ClearTempFolderTest, FilesInUseArePassedOverAndNotCounted) {
  Put("a.tmp");
  Put("held.tmp");
  Put("read.tmp");
  world.Files.HoldOpen(std::string(kTemp) + "held.tmp");
  world.Files.HoldOpen(std::string(kTemp) + "read.tmp", sim::SimFiles::Hold::ForReading);
  ClearExpecting(1);
  EXPECT_EQ(Left(), (Strings{"held.tmp", "read.tmp"}));
}

TEST_F(ClearTempFolderTest, ReadOnlyFilesGoAndTheOthersKeepTheirMarks) {
  Put("a.tmp");
  Put("b.txt");
  for (const char* name : {"a.tmp", "b.txt"})
    world.Files.SetReadOnly(std::string(kTemp) + name, true);
  ClearExpecting(1);
  EXPECT_EQ(Left(), Strings{"b.txt"});
  EXPECT_EQ(world.Files.Count("ClearAttributes"), 1);
  EXPECT_EQ(world.Files.Remove(std::string(kTemp) + "b.txt").Error(), FileError::AccessDenied);
}

TEST_F(ClearTempFolderTest, ARightThatIsMissingIsPassedOver) {
  Put("a.tmp");
  world.Files.SetReadOnly(std::string(kTemp) + "a.tmp", true);
  world.Files.Protect(kTemp);
  ClearExpecting(0);
  EXPECT_EQ(Left().size(), 1U);
}

TEST_F(ClearTempFolderTest, FoldersStayWhateverTheirName) {
  world.Files.Put(std::string(kTemp) + "Setup\\a.tmp", "x");
  world.Files.Put(std::string(kTemp) + "work.tmp\\b.tmp", "x");
  ClearExpecting(0);
  EXPECT_EQ(world.Files.Count("Remove"), 0);
  EXPECT_EQ(Left(), (Strings{"Setup", "work.tmp"}));
  EXPECT_TRUE(world.Files.Has(std::string(kTemp) + "Setup\\a.tmp"));
  EXPECT_TRUE(world.Files.Has(std::string(kTemp) + "work.tmp\\b.tmp"));
}

TEST_F(ClearTempFolderTest, WhatALinkToAFolderLeadsToStays) {
  world.Files.Put("C:\\Work\\README", "x");
  world.Files.Put("C:\\Work\\a.tmp", "x");
  world.Files.LinkFolder(std::string(kTemp) + "link", "C:\\Work");
  world.Files.LinkFolder(std::string(kTemp) + "link.tmp", "C:\\Work");
  ClearExpecting(0);
  EXPECT_EQ(world.Files.Names("C:\\Work"), (Strings{"README", "a.tmp"}));
  EXPECT_EQ(Left(), (Strings{"link", "link.tmp"}));
}

TEST_F(ClearTempFolderTest, FilesBesideTheFolderStay) {
  world.Files.Put("C:\\Users\\Ann\\Temporary", "x");
  world.Files.Put("C:\\Users\\Ann\\a.tmp", "x");
  Put("b.tmp");
  ClearExpecting(1);
  EXPECT_EQ(world.Files.Names("C:\\Users\\Ann"), (Strings{"Temp", "Temporary", "a.tmp"}));
}

TEST_F(ClearTempFolderTest, AFolderThatGoesAwayMeanwhileEndsTheWorkQuietly) {
  PutMany(12);
  LookingOn window;
  // Whoever runs beside the program may take the folder away.
  window.Shown = [this] { world.Files.Vanish("C:\\Users\\Ann\\Temp"); };
  program.Ports.Startup = &window;
  ClearExpecting(10);
}

TEST_F(ClearTempFolderTest, AnyOneFailureCostsOneFileAndNoOther) {
  for (int n = 2;; ++n) {
    PutMany(3);
    world.Files.SetReadOnly(std::string(kTemp) + "~df1.tmp", true);
    world.Files.FailCall(n, FileError::InUse);
    world.Desktop.AnswerAnyOther(kYes);
    words.ClearTempFolder();
    const bool hit = world.Files.Hit();
    world.Files.StopFailing();
    EXPECT_EQ(Box().Text, Report(hit ? 2 : 3)) << "failing call " << n;
    EXPECT_EQ(Left().size(), hit ? 1U : 0U) << "failing call " << n;
    if (!hit) break;
  }
}

TEST_F(ClearTempFolderTest, NineFilesGoWithoutAProgressWindow) {
  PutMany(9);
  Put("stays.txt");
  ClearExpecting(9);
  EXPECT_EQ(log, Strings{});
}

TEST_F(ClearTempFolderTest, WithTenFilesTheProgressWindowComesOnce) {
  PutMany(10);
  ClearExpecting(10);
  EXPECT_EQ(log, (Strings{"progress \"Deleting \" with C:\\Corvelle\\Icons\\delfile.ico",
                          "startup window unloads"}));
}

TEST_F(ClearTempFolderTest, EachFurtherTenFilesAddADot) {
  PutMany(39);
  ClearExpecting(39);
  EXPECT_EQ(log, (Strings{"progress \"Deleting \" with C:\\Corvelle\\Icons\\delfile.ico", "dot",
                          "dot", "startup window unloads"}));
}

TEST_F(ClearTempFolderTest, SkippedFilesAreNoProgress) {
  PutMany(9);
  for (int i = 0; i < 30; ++i) Put("stays" + std::to_string(i) + ".txt");
  for (int i = 0; i < 30; ++i) {
    Put("held" + std::to_string(i));
    world.Files.HoldOpen(kTemp + ("held" + std::to_string(i)));
  }
  ClearExpecting(9);
  EXPECT_EQ(log, Strings{});
}

TEST_F(ClearTempFolderTest, TheProgressWindowIsGoneBeforeTheReport) {
  PutMany(10);
  std::string last;
  world.Desktop.WhileBoxIsUp([&](const sim::MessageBox&) { last = log.empty() ? "" : log.back(); });
  ClearExpecting(10);
  EXPECT_EQ(last, "startup window unloads");
}

TEST_F(ClearTempFolderTest, EventsWaitUntilTheLastFileIsGone) {
  PutMany(30);
  LookingOn window;
  bool ran = false;
  bool ranTooEarly = false;
  const forms::TimerId timer = world.Desktop.StartTimer(1, [&] { ran = true; });
  window.Shown = [&] {
    ran = false;
    world.Desktop.Jump(1000);
  };
  window.Unloaded = [&] { ranTooEarly = ran; };
  program.Ports.Startup = &window;
  ClearExpecting(30);
  EXPECT_FALSE(ranTooEarly);
  world.Desktop.Pump();
  EXPECT_TRUE(ran);
  world.Desktop.StopTimer(timer);
}

TEST_F(ClearTempFolderTest, AProgramWithoutAProgressWindowDeletesTheSame) {
  PutMany(10);
  program.Ports.Startup = nullptr;
  ClearExpecting(10);
  EXPECT_TRUE(Left().empty());
}

TEST_F(ClearTempFolderTest, TenThousandFilesGoWithOneListing) {
  Strings names;
  for (int i = 0; i < 10'000; ++i) names.push_back("~df" + std::to_string(i) + ".tmp");
  world.Files.PutNew(kTemp, names);
  ClearExpecting(10'000);
  EXPECT_TRUE(Left().empty());
  EXPECT_EQ(world.Files.Count("List"), 1);
  EXPECT_EQ(world.Files.Count("Remove"), 10'000);
  EXPECT_EQ(log.size(), 1001U);  // the window, 999 dots, its end
}

}  // namespace corvelle
