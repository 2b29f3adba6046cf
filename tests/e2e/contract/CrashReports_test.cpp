#include "platform/CrashReportsContract.h"

#include <algorithm>
#include <filesystem>

#include "e2e/contract/TempFolder.h"
#include "win32/CrashFiles.h"
#include "win32/CrashLine.h"
#include "win32/Wide.h"
#include "win32/Win32CrashReports.h"

namespace corvelle {
namespace {

class RealCrashes final : public ContractCrashes {
 public:
  CrashReports& Reports() override { return reports_; }
  std::string Crash() override {
    const std::wstring report = root_ + L"corvelle-" + std::to_wstring(++count_) + L".txt";
    EXPECT_TRUE(win32::WriteWhole(report, "report"));
    win32::NoteUntold(root_, report);
    return win32::Narrow(report);
  }

 private:
  TempFolder folder_;
  std::wstring root_ = win32::Wide(folder_.Path());
  win32::Win32CrashReports reports_{root_};
  int count_ = 0;
};

std::unique_ptr<ContractCrashes> MakeRealCrashes() { return std::make_unique<RealCrashes>(); }

INSTANTIATE_TEST_SUITE_P(Windows, CrashReportsContract, testing::Values(MakeRealCrashes));

TEST(CrashFiles, AReportThatIsGoneIsNotTold) {
  const TempFolder folder;
  const std::wstring root = win32::Wide(folder.Path());
  win32::NoteUntold(root, root + L"corvelle-1.txt");
  EXPECT_EQ(win32::TakeUntoldFrom(root), L"");
}

TEST(CrashFiles, TheLastFiveReportsStayWithTheirDumps) {
  const TempFolder folder;
  const std::wstring root = win32::Wide(folder.Path());
  for (int i = 1; i <= 7; ++i) {
    const std::wstring base = root + L"corvelle-2026010" + std::to_wstring(i);
    ASSERT_TRUE(win32::WriteWhole(base + L".txt", "report"));
    if (i != 6) {
      ASSERT_TRUE(win32::WriteWhole(base + L".dmp", "dump"));
    }
  }
  ASSERT_TRUE(win32::WriteWhole(root + L"another.txt", "not a report"));
  win32::DropOldReports(root);
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(root)) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  const std::vector<std::string> expected = {"another.txt",           "corvelle-20260103.dmp",
                                             "corvelle-20260103.txt", "corvelle-20260104.dmp",
                                             "corvelle-20260104.txt", "corvelle-20260105.dmp",
                                             "corvelle-20260105.txt", "corvelle-20260106.txt",
                                             "corvelle-20260107.dmp", "corvelle-20260107.txt"};
  EXPECT_EQ(names, expected);
}

TEST(CrashLine, WhatIsFormattedIsRead) {
  const win32::CrashLine facts{.Process = 0x1234, .Thread = 7, .Pointers = 0xABCDEF01, .Bar = 0};
  wchar_t line[win32::kLongestCrashLine];
  win32::FormatCrashLine(L"C:\\Program Files\\Corvelle\\corvelle.exe", facts, line);
  EXPECT_TRUE(std::wstring_view(line).starts_with(
      L"\"C:\\Program Files\\Corvelle\\corvelle.exe\" /crashed 0"));
  EXPECT_EQ(win32::ParseCrashLine(line), facts);
}

TEST(CrashLine, OtherCommandLinesAreNone) {
  const wchar_t* const lines[] = {
      L"",
      L"corvelle.exe",
      L"\"C:\\corvelle.exe\"",
      L"\"C:\\corvelle.exe\" /crashed",
      L"\"C:\\corvelle.exe\" /crashed 1 2 3",
      L"\"C:\\corvelle.exe\" /crashed 1 2 3 4 5",
      L"\"C:\\corvelle.exe\" /crashed 1 2 3 g",
      L"\"C:\\corvelle.exe\" /crashed 1 2 3 11112222333344445",
      L"\"C:\\corvelle.exe\" document.txt /crashed 1 2 3 4",
      L"\"C:\\corvelle.exe /crashed 1 2 3 4",
  };
  for (const wchar_t* line : lines) EXPECT_EQ(win32::ParseCrashLine(line), std::nullopt) << line;
  EXPECT_TRUE(win32::ParseCrashLine(L"\"C:\\corvelle.exe\" /crashed 1 2 3 4"));
}

}  // namespace
}  // namespace corvelle
