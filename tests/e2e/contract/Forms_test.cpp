#include <gtest/gtest.h>

#include <optional>

#include "OtherWindow.h"
#include "RealHome.h"
#include "forms/ActivationContract.h"
#include "forms/CanvasContract.h"
#include "forms/ComboBoxContract.h"
#include "forms/ControlsContract.h"
#include "forms/DisabledLookContract.h"
#include "forms/FocusContract.h"
#include "forms/FrameContract.h"
#include "forms/InputContract.h"
#include "forms/ListBoxContract.h"
#include "forms/PictureContract.h"
#include "forms/PostContract.h"
#include "forms/ScrollBarContract.h"
#include "forms/TabStripContract.h"
#include "forms/TextBoxContract.h"
#include "forms/ToolBarContract.h"
#include "forms/ToolTipContract.h"
#include "forms/TreeContract.h"
#include "forms/WindowSystemContract.h"

namespace corvelle::forms {
namespace {

class WindowsHome final : public ActivationHome {
 public:
  explicit WindowsHome(int shortestWait) : shortestWait_(shortestWait) {}

  WindowSystem& Windows() override { return home_.Windows(); }
  DesktopWindows& Desktop() override { return home_.Desktop(); }
  Input& Pointer() override { return home_.Pointer(); }
  // What the mouse does takes a moment to come through, and under Wine to settle.
  void Wait(int milliseconds) override { home_.Wait(std::max(milliseconds, shortestWait_)); }
  void MovePointer(PixelPoint at) override { home_.MovePointer(at); }
  void Press(MouseButton button) override { home_.Press(button); }
  void Release(MouseButton button) override { home_.Release(button); }
  void DoubleClick() override { home_.DoubleClick(); }
  void PressKey(int virtualKey) override { home_.PressKey(virtualKey); }
  void KeyDown(int virtualKey) override { home_.KeyDown(virtualKey); }
  void KeyUp(int virtualKey) override { home_.KeyUp(virtualKey); }
  void Type(std::string_view text) override { home_.Type(text); }
  // The boxes of a frame let nothing through until the release.
  void DragAlong(const std::vector<PixelPoint>& points) override {
    if (points.size() > 1) return ActivationHome::DragAlong(points);
    home_.ClickInOneGo(points.front());
  }
  void TurnWheel(int delta) override { home_.TurnWheel(delta); }
  std::string ToolTip() const override { return home_.ToolTip(); }
  void ClosePopup() override {
    INPUT keys[2]{};
    for (INPUT& key : keys) {
      key.type = INPUT_KEYBOARD;
      key.ki.wVk = VK_ESCAPE;
    }
    keys[1].ki.dwFlags = KEYEVENTF_KEYUP;
    SendInput(2, keys, sizeof(INPUT));
  }
  WindowId OpenOther() override {
    const auto other = reinterpret_cast<WindowId>(other_.emplace().Handle());
    home_.Desktop().BringForward(other);
    Wait(200);
    return other;
  }
  void AnswerBox(std::function<void()> whileUp) override {
    timer_ = home_.Windows().StartTimer(50, [this, whileUp = std::move(whileUp)] {
      const HWND box = FindWindowW(L"#32770", nullptr);
      if (box == nullptr || IsWindowVisible(box) == 0) return;
      home_.Windows().StopTimer(timer_);
      whileUp();
      SendMessageW(box, WM_COMMAND, IDOK, 0);
    });
  }

 private:
  int shortestWait_;
  RealHome home_;
  std::optional<OtherWindow> other_;
  TimerId timer_ = 0;
};

INSTANTIATE_TEST_SUITE_P(Windows, WindowSystemContract,
                         testing::Values([] { return std::make_unique<WindowsHome>(0); }));
INSTANTIATE_TEST_SUITE_P(Windows, PostContract,
                         testing::Values([] { return std::make_unique<WindowsHome>(0); }));
INSTANTIATE_TEST_SUITE_P(Windows, CanvasContract,
                         testing::Values([] { return std::make_unique<WindowsHome>(0); }));
INSTANTIATE_TEST_SUITE_P(Windows, InputContract,
                         testing::Values([] { return std::make_unique<WindowsHome>(250); }));
INSTANTIATE_TEST_SUITE_P(Windows, ActivationContract,
                         testing::Values([] { return std::make_unique<WindowsHome>(250); }));
INSTANTIATE_TEST_SUITE_P(Windows, ControlContract,
                         testing::Values([] { return std::make_unique<WindowsHome>(250); }));
INSTANTIATE_TEST_SUITE_P(Windows, ButtonsContract,
                         testing::Values([] { return std::make_unique<WindowsHome>(100); }));
INSTANTIATE_TEST_SUITE_P(Windows, TextBoxContract,
                         testing::Values([] { return std::make_unique<WindowsHome>(100); }));
INSTANTIATE_TEST_SUITE_P(Windows, ListBoxContract,
                         testing::Values([] { return std::make_unique<WindowsHome>(100); }));
INSTANTIATE_TEST_SUITE_P(Windows, ComboBoxContract,
                         testing::Values([] { return std::make_unique<WindowsHome>(100); }));
INSTANTIATE_TEST_SUITE_P(Windows, ScrollBarContract,
                         testing::Values([] { return std::make_unique<WindowsHome>(100); }));
INSTANTIATE_TEST_SUITE_P(Windows, TabStripContract,
                         testing::Values([] { return std::make_unique<WindowsHome>(100); }));
INSTANTIATE_TEST_SUITE_P(Windows, TreeContract,
                         testing::Values([] { return std::make_unique<WindowsHome>(100); }));
INSTANTIATE_TEST_SUITE_P(Windows, FrameContract,
                         testing::Values([] { return std::make_unique<WindowsHome>(100); }));
INSTANTIATE_TEST_SUITE_P(Windows, ToolBarContract,
                         testing::Values([] { return std::make_unique<WindowsHome>(100); }));
INSTANTIATE_TEST_SUITE_P(Windows, PictureContract,
                         testing::Values([] { return std::make_unique<WindowsHome>(100); }));
INSTANTIATE_TEST_SUITE_P(Windows, ToolTipContract,
                         testing::Values([] { return std::make_unique<WindowsHome>(100); }));
INSTANTIATE_TEST_SUITE_P(Windows, FocusContract,
                         testing::Values([] { return std::make_unique<WindowsHome>(100); }));
INSTANTIATE_TEST_SUITE_P(Windows, TreeLookContract,
                         testing::Values([] { return std::make_unique<WindowsHome>(100); }));
INSTANTIATE_TEST_SUITE_P(Windows, DisabledLookContract,
                         testing::Values([] { return std::make_unique<WindowsHome>(100); }));

}  // namespace
}  // namespace corvelle::forms
