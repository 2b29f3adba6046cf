// How long it takes until the strip stands and answers, beside what the bare calls of the system
// take.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "base/CodePage.h"
#include "core/MenuRecord.h"
#include "e2e/Heartbeat.h"
#include "e2e/Median.h"
#include "e2e/Times.h"
#include "e2e/WineDesk.h"
#include "scenario/Strip.h"

namespace corvelle::e2e {
namespace {

using scenario::ButtonMiddle;
using scenario::InstalledFlags;
using scenario::kFlagsFile;
using scenario::WriteMenu;

constexpr double kTooLong = 20'000;
constexpr int kMenusOfStart = 8;

std::string Told(const std::vector<double>& values) {
  const auto [least, most] = std::minmax_element(values.begin(), values.end());
  char text[100] = {};
  std::snprintf(text, sizeof text, "%.0f ms (%.0f to %.0f)", MedianOf(values), *least, *most);
  return text;
}

bool StandsOnScreen(HWND window) {
  RECT at = {};
  return window != nullptr && IsWindowVisible(window) != FALSE &&
         GetWindowRect(window, &at) != FALSE && at.left < GetSystemMetrics(SM_CXSCREEN);
}

/// When there was a window of that class, when it stood on the screen, and when it answered a
/// message after that.
struct Start {
  double Exists = kTooLong;
  double Stands = kTooLong;
  double Answers = kTooLong;
};

Start WatchStart(const wchar_t* className, double began) {
  Start start;
  HWND window = nullptr;
  while (NowInMilliseconds() < began + kTooLong) {
    if (!StandsOnScreen(window)) {
      window = FindWindowW(className, nullptr);
      if (window != nullptr) start.Exists = std::min(start.Exists, NowInMilliseconds() - began);
      if (!StandsOnScreen(window)) {
        Sleep(1);
        continue;
      }
    }
    start.Stands = NowInMilliseconds() - began;
    DWORD_PTR answer = 0;
    if (SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, 10'000, &answer) != 0)
      start.Answers = NowInMilliseconds() - began;
    return start;
  }
  return start;
}

/// Starts one of the programs beside the tests and ends it when its window answers.
double TimeOfBare(const wchar_t* name) {
  STARTUPINFOW info = {};
  info.cb = sizeof(info);
  PROCESS_INFORMATION process = {};
  const std::wstring program = std::wstring(L"C:\\e2e\\") + name + L".exe";
  std::wstring command = L"\"" + program + L"\"";
  const double began = NowInMilliseconds();
  if (CreateProcessW(program.c_str(), command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                     &info, &process) == FALSE) {
    return kTooLong;
  }
  const Start start = WatchStart(name, began);
  PostMessageW(FindWindowW(name, nullptr), WM_CLOSE, 0, 0);
  WaitForSingleObject(process.hProcess, 10'000);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return start.Answers;
}

/// Eight menus and eight single buttons, each with an icon of its own to be fetched.
void PutEntries(WineDesk& desk) {
  const std::wstring folder = L"C:\\tools";
  CreateDirectoryW(folder.c_str(), nullptr);
  int number = 100;
  const auto tool = [&] {
    const std::wstring name = folder + L"\\tool " + std::to_wstring(++number) + L".exe";
    CopyFileW(Wide(desk.WitnessProgram()).c_str(), name.c_str(), TRUE);
    return Narrow(name);
  };
  for (int menu = 1; menu <= kMenusOfStart; ++menu) {
    std::vector<MenuRecord> items;
    for (int i = 1; i <= 10; ++i) {
      const std::string path = tool();
      items.push_back({.FTitle = "Tool " + std::to_string(i), .FIcon = path, .FName = path});
    }
    WriteMenu(desk, menu, "Menu " + std::to_string(menu), items);
  }
  for (int single = 1; single <= kMenusOfStart; ++single) {
    const std::string path = tool();
    desk.WriteFile("Menus\\" + SingleFileName(single),
                   FormatRecord({.FTitle = "Single", .FIcon = path, .FName = path}, Windows1252()));
  }
}

/// Presses a button of the strip and gives the time until its menu stands.
double TimeOfPress(WineDesk& desk, int button) {
  desk.MovePointer(ButtonMiddle(desk, button));
  const double pressed = NowInMilliseconds();
  desk.Press(scenario::Button::Left);
  while (NowInMilliseconds() < pressed + 5000) {
    if (StandsOnScreen(desk.Handle("frmQMenu"))) return NowInMilliseconds() - pressed;
    Sleep(1);
  }
  return kTooLong;
}

TEST(StartTime, OfTheStripBesideThatOfTheBareCalls) {
  WineDesk desk;
  desk.WriteFile(kFlagsFile, InstalledFlags());
  PutEntries(desk);
  std::vector<double> bare;
  std::vector<double> shell;
  std::vector<double> exists;
  std::vector<double> stands;
  std::vector<double> answers;
  std::vector<double> busy;
  std::vector<double> processor;
  std::vector<double> press;
  const int rounds = 3 * Times();
  for (int round = 0; round < rounds; ++round) {
    bare.push_back(TimeOfBare(L"bare"));
    shell.push_back(TimeOfBare(L"bareshell"));
    const double began = NowInMilliseconds();
    desk.StartCorvelle();
    const Start start = WatchStart(L"frmToolbar", began);
    ASSERT_LT(start.Answers, kTooLong) << round;
    exists.push_back(start.Exists);
    stands.push_back(start.Stands);
    answers.push_back(start.Answers);
    busy.push_back(start.Answers - start.Stands);
    processor.push_back(desk.ProcessorTime());
    // At different moments of the first half second.
    desk.Pause(round * 450 / rounds);
    press.push_back(TimeOfPress(desk, 2 + round % kMenusOfStart));
    desk.Release(scenario::Button::Left);
    EXPECT_LT(press.back(), kTooLong) << round;
    desk.Key(scenario::kKeyEscape);
    ASSERT_TRUE(scenario::CloseAndWait(desk)) << round;
  }
  std::printf("a bare window: %s\n", Told(bare).c_str());
  std::printf("with OLE, the shell's first icon and an edge: %s\n", Told(shell).c_str());
  std::printf("the strip exists: %s, stands: %s, answers: %s; of the processor: %s\n",
              Told(exists).c_str(), Told(stands).c_str(), Told(answers).c_str(),
              Told(processor).c_str());
  std::printf("a press within half a second: %s\n", Told(press).c_str());
  // No icon of a menu is looked for before it answers.
  EXPECT_LT(*std::min_element(busy.begin(), busy.end()), 50);
}

}  // namespace
}  // namespace corvelle::e2e
