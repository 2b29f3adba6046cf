#include <gtest/gtest.h>
#include <windows.h>

#include "RealHome.h"
#include "platform/AppBarsContract.h"
#include "win32/Win32AppBars.h"

namespace corvelle {
namespace {

constexpr UINT kCallback = 1174;
int news = 0;

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == kCallback && wParam == ABN_POSCHANGED) ++news;
  return DefWindowProcW(window, message, wParam, lParam);
}

/// A window that is never shown.
class BarWindow {
 public:
  explicit BarWindow(const wchar_t* name, WNDPROC procedure) {
    WNDCLASSW made{};
    made.lpfnWndProc = procedure;
    made.hInstance = GetModuleHandleW(nullptr);
    made.lpszClassName = name;
    RegisterClassW(&made);
    handle_ = CreateWindowExW(WS_EX_TOOLWINDOW, name, L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                              made.hInstance, nullptr);
  }
  BarWindow(const BarWindow&) = delete;
  BarWindow& operator=(const BarWindow&) = delete;
  ~BarWindow() { DestroyWindow(handle_); }
  [[nodiscard]] WindowId Id() const { return reinterpret_cast<WindowId>(handle_); }

 private:
  HWND handle_ = nullptr;
};

class RealBars final : public ContractBars {
 public:
  RealBars() { news = 0; }
  AppBars& Bars() override { return bars_; }
  PixelSize Screen() override {
    return {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
  }
  WindowId First() override { return first_.Id(); }
  WindowId Second() override { return second_.Id(); }
  int NewsOfSecond() override { return news; }
  void Settle() override { home_.Wait(200); }

 private:
  RealHome home_;
  win32::Win32AppBars bars_;
  BarWindow first_{L"CorvelleFirstBar", &DefWindowProcW};
  BarWindow second_{L"CorvelleSecondBar", &Procedure};
};

std::unique_ptr<ContractBars> MakeRealBars() { return std::make_unique<RealBars>(); }

INSTANTIATE_TEST_SUITE_P(Windows, AppBarsContract, testing::Values(MakeRealBars));

}  // namespace
}  // namespace corvelle
