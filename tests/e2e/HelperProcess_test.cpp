// The process that looks for icons may end at any moment: the menu is whole all the same.

#include <gtest/gtest.h>

#include <tlhelp32.h>

#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "core/MenuRecord.h"
#include "e2e/WineDesk.h"
#include "scenario/Strip.h"

namespace corvelle::e2e {
namespace {

using scenario::StartAndWait;

constexpr int kFiles = 1000;
constexpr wchar_t kHelper[] = L"corvelle-shell.exe";

std::vector<DWORD> Helpers() {
  std::vector<DWORD> found;
  HANDLE all = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
  PROCESSENTRY32W entry{};
  entry.dwSize = sizeof(entry);
  for (BOOL more = Process32FirstW(all, &entry); more != FALSE;
       more = Process32NextW(all, &entry)) {
    if (lstrcmpiW(entry.szExeFile, kHelper) == 0) found.push_back(entry.th32ProcessID);
  }
  CloseHandle(all);
  return found;
}

void ForEachHelper(const std::function<void(HANDLE)>& act) {
  for (const DWORD id : Helpers()) {
    HANDLE process = OpenProcess(PROCESS_ALL_ACCESS, FALSE, id);
    if (process == nullptr) continue;
    act(process);
    CloseHandle(process);
  }
}

void Kill(HANDLE process) { TerminateProcess(process, 9); }

/// As an extension of the shell that calls what is not there.
void Crash(HANDLE process) {
  HANDLE thread = CreateRemoteThread(process, nullptr, 0,
                                     reinterpret_cast<LPTHREAD_START_ROUTINE>(std::uintptr_t{16}),
                                     nullptr, 0, nullptr);
  if (thread == nullptr) return;
  EXPECT_EQ(WaitForSingleObject(process, 20'000), WAIT_OBJECT_0) << "it has not crashed";
  CloseHandle(thread);
}

class HelperProcess : public testing::Test {
 protected:
  /// A menu over a folder of a thousand programs, each with an icon of its own.
  void Start() {
    CreateDirectoryW(L"C:\\tools", nullptr);
    for (int i = 0; i < kFiles; ++i) {
      const std::wstring name = L"C:\\tools\\tool " + std::to_wstring(1000 + i) + L".exe";
      // The same file under many names: a copy of each would take long.
      if (CreateHardLinkW(name.c_str(), Wide(desk_.WitnessProgram()).c_str(), nullptr) == FALSE)
        CopyFileW(Wide(desk_.WitnessProgram()).c_str(), name.c_str(), TRUE);
    }
    desk_.WriteFile(scenario::kFlagsFile, scenario::InstalledFlags());
    scenario::WriteMenu(desk_, 1, "Tools",
                        {{.FTitle = "Tools", .FIcon = "", .FName = "C:\\tools\\*.*"}});
    scenario::WriteMenu(desk_, 2, "Letters", {scenario::Witness(desk_, "alpha")});
    desk_.MovePointer(scenario::FarAway(desk_));
    ASSERT_TRUE(StartAndWait(desk_));
    ASSERT_TRUE(scenario::OpenMenu(desk_, 2));
    desk_.MovePointer(scenario::FarAway(desk_));
  }
  /// Ends the helper so often, a while apart, and pages through the menu meanwhile. Returns how
  /// often there was one to end.
  int EndHelpers(int times, const std::function<void(HANDLE)>& act) {
    int ended = 0;
    for (int i = 0; i < times; ++i) {
      const bool there = desk_.Wait([&] { return !Helpers().empty(); }, 3000);
      if (there) ++ended;
      ForEachHelper(act);
      desk_.Key(scenario::kKeyPageDown);
      desk_.Pause(300);
    }
    return ended;
  }
  /// Every icon of the page on show is there, whoever found it.
  void ExpectIcons() {
    const PixelRect menu = desk_.BoundsOf("frmQMenu");
    ASSERT_GT(menu.Height(), 300);
    const PixelRect icons = {5, 20, 21, menu.Height() - 40};
    EXPECT_TRUE(desk_.Wait([&] { return desk_.ColoursIn("frmQMenu", icons) > 3; }, 20'000));
  }
  void ExpectAlive() {
    EXPECT_EQ(desk_.RunningCopies(), 1);
    desk_.Key(scenario::kKeyEscape);
    ASSERT_TRUE(scenario::WaitForNoMenu(desk_));
    ASSERT_TRUE(scenario::OpenMenu(desk_, 3));
    scenario::ClickItem(desk_, scenario::ItemMiddle(desk_, 1, 1));
    EXPECT_TRUE(desk_.Wait([&] { return desk_.Launched().size() == 1; }));
  }

  WineDesk desk_;
};

TEST_F(HelperProcess, KilledInTheMiddleOfAThousandIconsLeavesTheMenuWhole) {
  Start();
  const int ended = EndHelpers(6, &Kill);
  std::printf("killed %d times\n", ended);
  EXPECT_GE(ended, 2);
  ExpectIcons();
  desk_.Picture("after-the-kills");
  ExpectAlive();
}

TEST_F(HelperProcess, ThatCrashesInTheMiddleOfAThousandIconsLeavesTheMenuWhole) {
  Start();
  const int ended = EndHelpers(6, &Crash);
  std::printf("crashed %d times\n", ended);
  EXPECT_GE(ended, 2);
  ExpectIcons();
  desk_.Picture("after-the-crashes");
  ExpectAlive();
}

}  // namespace
}  // namespace corvelle::e2e
