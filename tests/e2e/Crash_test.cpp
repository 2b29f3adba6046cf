#include <gtest/gtest.h>

#include <shlobj.h>
#include <tlhelp32.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "e2e/DeskFiles.h"
#include "e2e/WineDesk.h"
#include "scenario/Strip.h"

// corvelle.exe is made to crash by a thread that is put into it, in each of the ways that leave a
// report.

namespace corvelle::e2e {
namespace {

// The runner of the session writes it: where, in the program, the library of C++ throws because
// there is no memory. Hexadecimal, from the program's beginning.
constexpr wchar_t kThrowPlace[] = L"C:\\e2e\\throw-place.txt";

std::wstring Crashes() {
  wchar_t path[MAX_PATH] = L"";
  SHGetFolderPathW(nullptr, CSIDL_LOCAL_APPDATA, nullptr, 0, path);
  return std::wstring(path) + L"\\Corvelle\\Crashes\\";
}

std::uintptr_t ProgramIn(DWORD process) {
  HANDLE list = CreateToolhelp32Snapshot(TH32CS_SNAPMODULE, process);
  MODULEENTRY32W module = {};
  module.dwSize = sizeof(module);
  // The first is the program itself.
  const bool found = Module32FirstW(list, &module) != FALSE;
  CloseHandle(list);
  return found ? reinterpret_cast<std::uintptr_t>(module.modBaseAddr) : 0;
}

class Crash : public testing::Test {
 protected:
  // The desk is made by the test's own home; the program floats or stands at its first edge.
  void Start(bool atEdge) {
    desk.WriteFile(scenario::kFlagsFile,
                   atEdge ? scenario::InstalledFlags({14, 15, 16}) : scenario::InstalledFlags());
    scenario::WriteMenu(desk, 1, "One", {scenario::Witness(desk, "one")});
    desk.MovePointer(scenario::FarAway(desk));
    ASSERT_TRUE(scenario::StartAndWait(desk));
    GetWindowThreadProcessId(FindWindowW(L"frmToolbar", nullptr), &process_);
    ASSERT_NE(process_, 0U);
  }

  /// Runs a thread of the program from there. The program's exit code; 0 when it did not end.
  DWORD RunAt(std::uintptr_t place) {
    HANDLE program = OpenProcess(PROCESS_ALL_ACCESS, FALSE, process_);
    HANDLE thread = CreateRemoteThread(
        program, nullptr, 0, reinterpret_cast<LPTHREAD_START_ROUTINE>(place), nullptr, 0, nullptr);
    EXPECT_NE(thread, nullptr);
    DWORD code = 0;
    if (desk.Wait([&] { return WaitForSingleObject(program, 0) == WAIT_OBJECT_0; }, 70000)) {
      GetExitCodeProcess(program, &code);
    }
    CloseHandle(thread);
    CloseHandle(program);
    return code;
  }

  std::vector<std::wstring> Reports() {
    std::vector<std::wstring> names = FilesIn(Crashes(), L"corvelle-*.txt");
    std::sort(names.begin(), names.end());
    return names;
  }

  /// The last report says that, and a dump lies beside it.
  void ExpectReport(std::string_view happened) {
    const std::vector<std::wstring> reports = Reports();
    ASSERT_EQ(reports.size(), 1U);
    const std::string text = ReadBytes(Crashes() + reports[0]).value_or("");
    EXPECT_TRUE(text.starts_with("Corvelle 4.")) << text;
    EXPECT_NE(text.find("\r\nWindows "), std::string::npos) << text;
    EXPECT_NE(text.find("\r\nWhat happened: " + std::string(happened) + "\r\n"), std::string::npos)
        << text;
    EXPECT_NE(text.find("corvelle.exe\r\n"), std::string::npos) << text;
    EXPECT_NE(text.find("kernel32.dll\r\n"), std::string::npos) << text;
    const std::wstring dump = Crashes() + reports[0].substr(0, reports[0].size() - 3) + L"dmp";
    EXPECT_TRUE(ReadBytes(dump).value_or("").starts_with("MDMP"));
  }

  WineDesk desk;

 private:
  DWORD process_ = 0;
};

TEST_F(Crash, AnAccessViolationLeavesAReportThatTheNextStartTellsOnce) {
  Start(false);
  EXPECT_EQ(RunAt(16), EXCEPTION_ACCESS_VIOLATION);
  ExpectReport("access violation");
  desk.AnswerNext(scenario::kButtonOk);
  ASSERT_TRUE(scenario::StartAndWait(desk));
  ASSERT_TRUE(desk.Wait([&] { return !desk.Messages().empty(); }, 8000));
  const std::string said = desk.Messages()[0].Text;
  EXPECT_NE(said.find("Corvelle ended unexpectedly the last time."), std::string::npos) << said;
  EXPECT_NE(said.find("\\Corvelle\\Crashes\\corvelle-"), std::string::npos) << said;
  ASSERT_TRUE(scenario::CloseAndWait(desk));
  ASSERT_TRUE(scenario::StartAndWait(desk));
  desk.Pause(1500);
  EXPECT_EQ(desk.Messages().size(), 1U);
  EXPECT_TRUE(scenario::CloseAndWait(desk)) << "a box that nobody answers would hold it";
}

TEST_F(Crash, AnAbortLeavesAReport) {
  Start(false);
  const auto place = reinterpret_cast<std::uintptr_t>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"msvcrt.dll"), "abort")));
  EXPECT_EQ(RunAt(place), 0xE0C0FFE2U);
  ExpectReport("the program called abort");
}

// In 64 bits it goes the way of the system's exceptions. In 32 bits the compiler has a way of its
// own, at whose end the program is told that nobody has caught it.
TEST_F(Crash, AnExceptionOfTheLanguageThatNobodyCatchesLeavesAReport) {
  constexpr DWORD code = sizeof(void*) == 8 ? 0x20474343 : 0xE0C0FFE1;
  Start(false);
  const std::string place = ReadBytes(kThrowPlace).value_or("");
  ASSERT_FALSE(place.empty());
  DWORD process = 0;
  GetWindowThreadProcessId(FindWindowW(L"frmToolbar", nullptr), &process);
  EXPECT_EQ(RunAt(ProgramIn(process) +
                  static_cast<std::uintptr_t>(std::strtoull(place.c_str(), nullptr, 16))),
            code);
  ExpectReport("a C++ exception was not caught");
}

TEST_F(Crash, TheEdgeIsGivenBack) {
  Start(true);
  const PixelRect strip = desk.BoundsOf("frmToolbar");
  ASSERT_EQ(strip.right, desk.ScreenSize().width);
  const PixelRect beside = desk.OpenOtherBar(Edge::Right, 40);
  EXPECT_EQ(beside.right, strip.left) << "the shell keeps the strip's edge";
  desk.CloseOtherBar();
  EXPECT_EQ(RunAt(16), EXCEPTION_ACCESS_VIOLATION);
  const PixelRect after = desk.OpenOtherBar(Edge::Right, 40);
  EXPECT_EQ(after.right, desk.ScreenSize().width);
  desk.CloseOtherBar();
}

}  // namespace
}  // namespace corvelle::e2e
