#include <gtest/gtest.h>

#include <windows.h>

#include <tlhelp32.h>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Com.h"
#include "RealHome.h"
#include "TempFolder.h"
#include "base/Text.h"
#include "win32/ShellHelpers.h"
#include "win32/UniqueHandle.h"
#include "win32/Win32Files.h"
#include "win32/Win32Lookups.h"
#include "win32/Win32ShellIcons.h"
#include "win32/Win32SystemInfo.h"

namespace corvelle {
namespace {

using win32::Wide;

/// The processes of corvelle-shell.exe that this one has started.
std::vector<DWORD> Helpers() {
  std::vector<DWORD> found;
  const win32::UniqueFile all(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
  PROCESSENTRY32W entry{};
  entry.dwSize = sizeof(entry);
  for (BOOL more = Process32FirstW(all.Get(), &entry); more != 0;
       more = Process32NextW(all.Get(), &entry)) {
    if (entry.th32ParentProcessID == GetCurrentProcessId() &&
        lstrcmpiW(entry.szExeFile, L"corvelle-shell.exe") == 0) {
      found.push_back(entry.th32ProcessID);
    }
  }
  return found;
}

void KillHelpers() {
  for (const DWORD id : Helpers()) {
    const win32::UniqueKernel process(OpenProcess(PROCESS_TERMINATE, FALSE, id));
    TerminateProcess(process.Get(), 9);
  }
}

/// Stops them where they are, as an extension of the shell that hangs does. False when that failed.
bool StopHelpers() {
  using Suspend = LONG(NTAPI*)(HANDLE);
  const auto suspend = reinterpret_cast<Suspend>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtSuspendProcess")));
  if (suspend == nullptr) return false;
  for (const DWORD id : Helpers()) {
    const win32::UniqueKernel process(OpenProcess(PROCESS_SUSPEND_RESUME, FALSE, id));
    if (!process || suspend(process.Get()) != 0) return false;
  }
  return true;
}

class ShellHelperTest : public testing::Test {
 protected:
  ShellHelperTest() {
    for (int i = 0; i < kFiles; ++i) EXPECT_TRUE(files_.Write(File(i), "x"));
    lookups_->SetListener([this](const std::vector<LookupAnswer>& ends) {
      for (const LookupAnswer& end : ends) {
        EXPECT_FALSE(ends_.contains(end.Id)) << "told twice";
        ends_[end.Id] = end;
      }
      if (whenTold_) whenTold_();
    });
  }
  std::string File(int number) { return temp_.Path() + "icon" + std::to_string(number) + ".txt"; }
  LookupId AskIcon(int number, const std::string& lane = "C:*") {
    return lookups_->Ask(
        {.Kind = LookupKind::FileIcon, .Path = File(number % kFiles), .Lane = lane});
  }
  bool RunUntil(const std::function<bool()>& done) {
    const std::int64_t end = windows_->Now() + 60'000;
    while (!done() && windows_->Now() < end) RunEvents(*windows_, 5);
    return done();
  }
  bool IsIcon(LookupId id) {
    const auto* const icon = std::get_if<IconPixels>(&ends_[id].Value);
    return ends_[id].End == LookupEnd::Answered && icon != nullptr && icon->Width == 16 &&
           icon->IsWhole();
  }

  static constexpr int kFiles = 20;
  Com com_;
  TempFolder temp_;
  win32::Win32Files files_;
  std::unique_ptr<win32::Win32WindowSystem> windows_ = std::make_unique<win32::Win32WindowSystem>();
  std::string program_ =
      EnsureBackslash(win32::Win32SystemInfo().ApplicationFolder()) + "corvelle-shell.exe";
  std::optional<win32::Win32Lookups> lookups_{std::in_place, windows_->Posts(), program_};
  std::map<LookupId, LookupAnswer> ends_;
  std::function<void()> whenTold_;
};

TEST_F(ShellHelperTest, LooksForAnIconAsAThreadDoesAndEndsWithTheProgram) {
  const LookupId id = AskIcon(0);
  ASSERT_TRUE(RunUntil([&] { return ends_.contains(id); }));
  ASSERT_TRUE(IsIcon(id));
  EXPECT_EQ(Helpers().size(), 1U);
  win32::Win32ShellIcons icons;
  EXPECT_EQ(std::get<IconPixels>(ends_[id].Value), icons.PixelsOfFile(File(0), IconList::Small));
  lookups_.reset();
  EXPECT_TRUE(RunUntil([] { return Helpers().empty(); }));
}

TEST_F(ShellHelperTest, NoDiskIsAskedThere) {
  const LookupId id = lookups_->Ask({.Path = File(0), .Lane = "C:"});
  ASSERT_TRUE(RunUntil([&] { return ends_.contains(id); }));
  EXPECT_EQ(ends_[id].Value, LookupValue(true));
  EXPECT_TRUE(Helpers().empty());
}

TEST_F(ShellHelperTest, KilledInTheMiddleOfAThousandIconsItLosesNone) {
  std::vector<LookupId> asked;
  for (int i = 0; i < 1000; ++i) asked.push_back(AskIcon(i));
  int kills = 0;
  whenTold_ = [&] {
    // Twice, well apart.
    if (ends_.size() > 300U * static_cast<std::size_t>(kills + 1) && kills < 2) {
      ++kills;
      KillHelpers();
    }
  };
  ASSERT_TRUE(RunUntil([&] { return ends_.size() == asked.size(); })) << ends_.size();
  EXPECT_EQ(kills, 2);
  for (const LookupId id : asked) ASSERT_TRUE(IsIcon(id));
  EXPECT_EQ(Helpers().size(), 1U) << "started again";
}

TEST_F(ShellHelperTest, AfterThreeRestartsIconsComeByType) {
  for (int death = 0; death < 4; ++death) {
    const LookupId id = AskIcon(death);
    ASSERT_TRUE(RunUntil([&] { return ends_.contains(id); }));
    ASSERT_EQ(Helpers().size(), 1U) << death;
    KillHelpers();
    ASSERT_TRUE(RunUntil([] { return Helpers().empty(); }));
  }
  const LookupId id = AskIcon(9);
  ASSERT_TRUE(RunUntil([&] { return ends_.contains(id); }));
  EXPECT_TRUE(IsIcon(id));
  EXPECT_TRUE(Helpers().empty()) << "started a fourth time";
  // Another lane has a process of its own.
  const LookupId other = AskIcon(9, "D:*");
  ASSERT_TRUE(RunUntil([&] { return ends_.contains(other); }));
  EXPECT_EQ(Helpers().size(), 1U);
}

TEST_F(ShellHelperTest, AQuestionThatHangsThereIsCancelledWithItsProcess) {
  const LookupId first = AskIcon(0);
  ASSERT_TRUE(RunUntil([&] { return ends_.contains(first); }));
  ASSERT_EQ(Helpers().size(), 1U);
  ASSERT_TRUE(StopHelpers());
  const LookupId hanging = AskIcon(1);
  RunEvents(*windows_, 500);
  EXPECT_FALSE(ends_.contains(hanging));
  lookups_->Cancel(hanging);
  ASSERT_TRUE(RunUntil([&] { return ends_.contains(hanging); }));
  EXPECT_EQ(ends_[hanging].End, LookupEnd::Failed);
  const LookupId next = AskIcon(2);
  ASSERT_TRUE(RunUntil([&] { return ends_.contains(next); }));
  EXPECT_TRUE(IsIcon(next));
}

TEST_F(ShellHelperTest, AProcessThatIsEndedWithItsQuestionHasNotDied) {
  for (int hung = 0; hung < 4; ++hung) {
    const LookupId first = AskIcon(0);
    ASSERT_TRUE(RunUntil([&] { return ends_.contains(first); }));
    ASSERT_EQ(Helpers().size(), 1U) << hung;
    ASSERT_TRUE(StopHelpers());
    const LookupId hanging = AskIcon(1);
    RunEvents(*windows_, 200);
    lookups_->Cancel(hanging);
    ASSERT_TRUE(RunUntil([&] { return ends_.contains(hanging); }));
    ASSERT_EQ(ends_[hanging].End, LookupEnd::Failed);
  }
  // A file whose icon is not that of its type.
  const std::string path = "C:\\windows\\regedit.exe";
  win32::Win32ShellIcons icons;
  const auto own = icons.PixelsOfFile(path, IconList::Small);
  ASSERT_TRUE(own);
  ASSERT_NE(win32::AnswerByType({.Kind = LookupKind::FileIcon, .Path = path}).Value,
            LookupValue(*own));
  const LookupId id = lookups_->Ask({.Kind = LookupKind::FileIcon, .Path = path, .Lane = "C:*"});
  ASSERT_TRUE(RunUntil([&] { return ends_.contains(id); }));
  EXPECT_EQ(ends_[id].Value, LookupValue(*own));
}

TEST_F(ShellHelperTest, WithoutItsFileTheThreadsLookForIcons) {
  lookups_.emplace(windows_->Posts(), temp_.Path() + "no-such.exe");
  lookups_->SetListener([this](const std::vector<LookupAnswer>& ends) {
    for (const LookupAnswer& end : ends) ends_[end.Id] = end;
  });
  const LookupId id = AskIcon(2);
  ASSERT_TRUE(RunUntil([&] { return ends_.contains(id); }));
  EXPECT_TRUE(IsIcon(id));
  EXPECT_TRUE(Helpers().empty());
}

TEST_F(ShellHelperTest, AProgramThatIsNoneIsNotAskedTwice) {
  const std::string text = temp_.Path() + "text.exe";
  EXPECT_TRUE(files_.Write(text, "no program"));
  lookups_.emplace(windows_->Posts(), text);
  lookups_->SetListener([this](const std::vector<LookupAnswer>& ends) {
    for (const LookupAnswer& end : ends) ends_[end.Id] = end;
  });
  const LookupId id = AskIcon(2);
  ASSERT_TRUE(RunUntil([&] { return ends_.contains(id); }));
  EXPECT_TRUE(IsIcon(id));
}

TEST(IconsByType, NeedNoFileAndNoOtherKindHasOne) {
  Com com;
  const LookupAnswer icon =
      win32::AnswerByType({.Kind = LookupKind::FileIcon, .Path = "Q:\\none\\a.txt"});
  ASSERT_NE(std::get_if<IconPixels>(&icon.Value), nullptr);
  EXPECT_EQ(std::get<IconPixels>(icon.Value).Width, 16);
  EXPECT_EQ(win32::AnswerByType({.Kind = LookupKind::FileName, .Path = "Q:\\none\\a.txt"}).Value,
            LookupValue(std::string("a.txt")));
  for (const LookupKind kind : {LookupKind::IconInFile, LookupKind::ShellIcon})
    EXPECT_EQ(win32::AnswerByType({.Kind = kind, .Path = "Q:\\a"}).End, LookupEnd::Failed);
}

TEST(CloudFiles, AreKnownByTheirAttributes) {
  EXPECT_TRUE(win32::LiesElsewhere(FILE_ATTRIBUTE_OFFLINE));
  EXPECT_TRUE(win32::LiesElsewhere(FILE_ATTRIBUTE_ARCHIVE | 0x00400000U));
  EXPECT_TRUE(win32::LiesElsewhere(0x00040000U));
  EXPECT_FALSE(win32::LiesElsewhere(FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_READONLY));
  EXPECT_FALSE(win32::LiesElsewhere(FILE_ATTRIBUTE_DIRECTORY));
  EXPECT_FALSE(win32::LiesElsewhere(INVALID_FILE_ATTRIBUTES));
}

TEST(CloudFiles, HaveTheIconOfAFolderWhereTheyAreOne) {
  const struct {
    unsigned long Attributes;
    unsigned long ByType;
  } rows[] = {
      {FILE_ATTRIBUTE_DIRECTORY, FILE_ATTRIBUTE_DIRECTORY},
      {FILE_ATTRIBUTE_DIRECTORY | 0x00400000U, FILE_ATTRIBUTE_DIRECTORY},
      {FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY | 0x00040000U, FILE_ATTRIBUTE_DIRECTORY},
      {FILE_ATTRIBUTE_ARCHIVE | 0x00400000U, FILE_ATTRIBUTE_NORMAL},
      {FILE_ATTRIBUTE_OFFLINE, FILE_ATTRIBUTE_NORMAL},
      {FILE_ATTRIBUTE_NORMAL, FILE_ATTRIBUTE_NORMAL},
      // What is not there has all of them.
      {INVALID_FILE_ATTRIBUTES, FILE_ATTRIBUTE_NORMAL},
  };
  for (const auto& row : rows)
    EXPECT_EQ(win32::AttributesOfType(row.Attributes), row.ByType) << row.Attributes;
}

}  // namespace
}  // namespace corvelle
