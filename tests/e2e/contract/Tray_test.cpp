#include <gtest/gtest.h>
#include <windows.h>

#include "RealHome.h"
#include "platform/TrayContract.h"
#include "win32/Win32TrayIcons.h"

namespace corvelle {
namespace {

/// The task bar's area, with a window of this thread that is never shown.
class RealTray final : public ContractTray {
 public:
  RealTray()
      : window_(CreateWindowExW(0, L"Static", L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                                GetModuleHandleW(nullptr), nullptr)) {}
  RealTray(const RealTray&) = delete;
  RealTray& operator=(const RealTray&) = delete;
  ~RealTray() override { DestroyWindow(window_); }

  TrayIcons& Tray() override { return tray_; }
  WindowId Window() override { return reinterpret_cast<WindowId>(window_); }

 private:
  RealHome home_;
  win32::Win32TrayIcons tray_;
  HWND window_;
};

std::unique_ptr<ContractTray> MakeRealTray() { return std::make_unique<RealTray>(); }

INSTANTIATE_TEST_SUITE_P(Windows, TrayContract, testing::Values(MakeRealTray));

}  // namespace
}  // namespace corvelle
