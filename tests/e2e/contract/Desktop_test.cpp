#include <gtest/gtest.h>
#include <windows.h>

#include <atomic>
#include <thread>

#include "RealHome.h"
#include "platform/DesktopContract.h"
#include "win32/UniqueHandle.h"

namespace corvelle {
namespace {

constexpr wchar_t kOtherClass[] = L"CorvelleOther";

/// What the other window answers with 7, and what it never answers in time.
constexpr UINT kAnswered = WM_APP;
constexpr UINT kNotAnswered = WM_APP + 1;
constexpr DWORD kTooLong = 4000;

/// A window that a thread of its own runs, as another program would.
class OtherWindow {
 public:
  OtherWindow() : thread_([this] { Run(); }) {
    while (handle_ == nullptr) Sleep(1);
  }
  OtherWindow(const OtherWindow&) = delete;
  OtherWindow& operator=(const OtherWindow&) = delete;
  ~OtherWindow() {
    Close();
    thread_.join();
  }

  HWND Handle() const { return handle_; }
  void Close() { SendMessageW(handle_, WM_CLOSE, 0, 0); }

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DESTROY) PostQuitMessage(0);
    if (message == kAnswered) return 7;
    if (message == kNotAnswered) Sleep(kTooLong);
    return DefWindowProcW(window, message, wParam, lParam);
  }

  void Run() {
    WNDCLASSW made{};
    made.lpfnWndProc = &Procedure;
    made.hInstance = GetModuleHandleW(nullptr);
    made.lpszClassName = kOtherClass;
    RegisterClassW(&made);
    const HWND window =
        CreateWindowExW(0, kOtherClass, L"Contract other", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 100,
                        100, 200, 150, nullptr, nullptr, made.hInstance, nullptr);
    UpdateWindow(window);
    handle_ = window;
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  }

  std::atomic<HWND> handle_ = nullptr;
  std::thread thread_;
};

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
  EXPECT_EQ(desktop.Send(window, kNotAnswered, 0, 0), 0);
  const ULONGLONG waited = GetTickCount64() - before;
  EXPECT_GE(waited, 1900U);
  EXPECT_LT(waited, 3500U);
}

}  // namespace
}  // namespace corvelle
