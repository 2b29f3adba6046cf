#include <gtest/gtest.h>
#include <windows.h>

#include <optional>

#include "OtherWindow.h"
#include "RealHome.h"
#include "platform/DesktopContract.h"
#include "win32/UniqueHandle.h"

namespace corvelle {
namespace {

class RealDesktop final : public ContractDesktop {
 public:
  DesktopWindows& Windows() override { return home_.Desktop(); }
  WindowId Other() override { return reinterpret_cast<WindowId>(other_.Handle()); }
  void CloseOther() override { other_.Close(); }
  void MinimizeOther() override { ShowWindow(other_.Handle(), SW_MINIMIZE); }
  WindowId OpenOwned() override {
    owned_.Reset(CreateWindowExW(0, L"Static", L"Contract owned", WS_POPUP, 0, 0, 10, 10,
                                 other_.Handle(), nullptr, nullptr, nullptr));
    return reinterpret_cast<WindowId>(owned_.Get());
  }
  void Settle() override { home_.Wait(200); }

 private:
  RealHome home_;
  OtherWindow other_;
  win32::UniqueWindow owned_;
};

std::unique_ptr<ContractDesktop> MakeRealDesktop() { return std::make_unique<RealDesktop>(); }

INSTANTIATE_TEST_SUITE_P(Windows, DesktopContract, testing::Values(MakeRealDesktop));

TEST(DesktopOnWindows, SendGivesTheAnswerAndGivesUpAfterTwoSeconds) {
  const OtherWindow other;
  win32::Win32Desktop desktop;
  const auto window = reinterpret_cast<WindowId>(other.Handle());
  EXPECT_EQ(desktop.Send(window, kAnswered, 0, 0), 7);
  const ULONGLONG before = GetTickCount64();
  EXPECT_EQ(desktop.Send(window, kNotAnswered, 0, 0), std::nullopt);
  const ULONGLONG waited = GetTickCount64() - before;
  EXPECT_GE(waited, 1900U);
  EXPECT_LT(waited, 3500U);
}

TEST(DesktopOnWindows, AnotherProgramsWindowIsNotAskedToPaint) {
  const OtherWindow other;
  win32::Win32Desktop desktop;
  // It is busy for a while, and owes a paint.
  PostMessageW(other.Handle(), kNotAnswered, 0, 0);
  Sleep(200);
  InvalidateRect(other.Handle(), nullptr, TRUE);
  const ULONGLONG before = GetTickCount64();
  desktop.PaintVisibleWindows();
  EXPECT_LT(GetTickCount64() - before, 1000U);
  EXPECT_NE(GetUpdateRect(other.Handle(), nullptr, FALSE), 0);
}

}  // namespace
}  // namespace corvelle
