#include <gtest/gtest.h>
#include <windows.h>

#include <atomic>
#include <thread>

#include "platform/ClipboardContract.h"
#include "win32/UniqueHandle.h"
#include "win32/Wide.h"
#include "win32/Win32Clipboard.h"

namespace corvelle {
namespace {

HWND MakeWindow() {
  return CreateWindowExW(0, L"Static", L"Contract clipboard", WS_POPUP, 0, 0, 10, 10, nullptr,
                         nullptr, nullptr, nullptr);
}

class RealClipboard final : public ContractClipboard {
 public:
  RealClipboard() = default;
  RealClipboard(const RealClipboard&) = delete;
  RealClipboard& operator=(const RealClipboard&) = delete;
  ~RealClipboard() override { LetGo(); }

  Clipboard& Copies() override { return clipboard_; }
  WindowId Window() override { return reinterpret_cast<WindowId>(window_.Get()); }
  std::string Pasted() override {
    if (OpenClipboard(window_.Get()) == 0) return "not to be opened";
    std::string text;
    const HANDLE data = GetClipboardData(CF_UNICODETEXT);
    if (data != nullptr) {
      text = win32::Narrow(static_cast<const wchar_t*>(GlobalLock(data)));
      GlobalUnlock(data);
    }
    CloseClipboard();
    return text;
  }
  // A window of another thread stands for another program.
  void Hold() override {
    letGo_ = false;
    holder_ = std::thread([this] {
      const win32::UniqueWindow window(MakeWindow());
      held_ = OpenClipboard(window.Get()) != 0;
      ready_ = true;
      while (!letGo_) Sleep(5);
      CloseClipboard();
    });
    while (!ready_) Sleep(5);
    EXPECT_TRUE(held_);
  }
  void LetGo() override {
    letGo_ = true;
    if (holder_.joinable()) holder_.join();
    ready_ = false;
  }

 private:
  win32::Win32Clipboard clipboard_;
  win32::UniqueWindow window_{MakeWindow()};
  std::thread holder_;
  std::atomic<bool> letGo_ = false;
  std::atomic<bool> ready_ = false;
  std::atomic<bool> held_ = false;
};

std::unique_ptr<ContractClipboard> MakeRealClipboard() { return std::make_unique<RealClipboard>(); }

INSTANTIATE_TEST_SUITE_P(Windows, ClipboardContract, testing::Values(MakeRealClipboard));

}  // namespace
}  // namespace corvelle
