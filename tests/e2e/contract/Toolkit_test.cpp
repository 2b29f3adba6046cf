#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

#include "RealHome.h"
#include "forms/Form.h"
#include "forms/Graphic.h"
#include "forms/PictureBox.h"
#include "forms/Timer.h"

// Forms and controls on real windows: what a user of the toolkit relies on and only Windows shows.

namespace corvelle::forms {
namespace {

class Sheet final : public Form {
 public:
  explicit Sheet(WindowSystem& windows) : Form(windows, "CorvelleSheet", BorderStyle::Raised) {
    Move(3000, 2250, 3000, 1500);
    Caption.Move(75, 75, 1500, 300);
    Box.Move(75, 600, 1500, 600);
    Box.SetBackColor(0x00336699);
  }

  int Paints = 0;
  Label Caption{*this, "Caption"};
  PictureBox Box{*this, "CorvelleSheetBox"};
  std::function<void()> WhenClosed;

 private:
  void Form_QueryClose() override {
    if (WhenClosed) WhenClosed();
  }
  std::optional<std::intptr_t> WindowProc(std::uint32_t message, std::uintptr_t,
                                          std::intptr_t) override {
    if (message == WM_PAINT) ++Paints;
    return std::nullopt;
  }
};

struct ToolkitTest : testing::Test {
  RealHome Home;
  Sheet Form{Home.Windows()};

  void ShowOnTop() {
    ASSERT_TRUE(Form.Load());
    Form.SetWindowPos(InsertAfter::Topmost, swp::KeepActivation);
    Form.Show();
    Home.Wait(200);
    Form.Paints = 0;
  }
  Rgb ScreenPixel(int x, int y) {
    const HDC screen = GetDC(nullptr);
    const COLORREF colour = GetPixel(screen, x, y);
    ReleaseDC(nullptr, screen);
    return colour;
  }
};

TEST_F(ToolkitTest, ManyChangesArePaintedOnce) {
  ShowOnTop();
  Form.Caption.SetCaption("one");
  Form.Caption.SetCaption("two");
  Form.Caption.SetLeft(150);
  EXPECT_EQ(Form.Paints, 0);
  Home.Wait(100);
  EXPECT_EQ(Form.Paints, 1);
}

TEST_F(ToolkitTest, AChangeToTheSameIsNotPainted) {
  Form.Caption.SetCaption("one");
  ShowOnTop();
  Form.Caption.SetCaption("one");
  Form.Box.SetVisible(true);
  Home.Wait(100);
  EXPECT_EQ(Form.Paints, 0);
}

TEST_F(ToolkitTest, TheScreenShowsTheBoxInsideTheFrame) {
  ShowOnTop();
  const ScreenInfo screen = Form.Screen();
  const int left = static_cast<int>(3075 / screen.TwipsPerPixelX) + 3;
  const int top = static_cast<int>(2850 / screen.TwipsPerPixelY) + 3;
  EXPECT_EQ(ScreenPixel(left, top), 0x00336699U);
  EXPECT_NE(ScreenPixel(left - 1, top), 0x00336699U);
  EXPECT_NE(ScreenPixel(left, top - 1), 0x00336699U);
}

TEST_F(ToolkitTest, WhatIsHiddenAndShownAgainIsPaintedWhole) {
  ShowOnTop();
  Form.Box.SetVisible(false);
  Home.Wait(50);
  Form.Box.SetVisible(true);
  Home.Wait(100);
  const ScreenInfo screen = Form.Screen();
  EXPECT_EQ(ScreenPixel(static_cast<int>(3500 / screen.TwipsPerPixelX),
                        static_cast<int>(3000 / screen.TwipsPerPixelY)),
            0x00336699U);
}

TEST_F(ToolkitTest, AFormMayUnloadInAnyOfItsEvents) {
  ShowOnTop();
  Form.Box.MouseDown = [this](MouseButton, ShiftState, float, float) { Form.Unload(); };
  SendMessageW(reinterpret_cast<HWND>(Form.Box.hWnd()), WM_LBUTTONDOWN, MK_LBUTTON, 0);
  EXPECT_FALSE(Form.IsLoaded());
  EXPECT_EQ(GetCapture(), nullptr);
  ShowOnTop();
  Form.WhenClosed = [this] { Form.Unload(); };
  SendMessageW(reinterpret_cast<HWND>(Form.hWnd()), WM_CLOSE, 0, 0);
  EXPECT_FALSE(Form.IsLoaded());
  ShowOnTop();
  Timer timer(Home.Windows());
  timer.Tick = [this] { Form.Unload(); };
  timer.SetInterval(10);
  timer.SetEnabled(true);
  Home.Wait(100);
  EXPECT_FALSE(Form.IsLoaded());
}

TEST_F(ToolkitTest, AFormThatOthersMoveKnowsItsPlace) {
  ShowOnTop();
  const ScreenInfo screen = Form.Screen();
  ::SetWindowPos(reinterpret_cast<HWND>(Form.hWnd()), nullptr, 40, 30, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  EXPECT_EQ(Form.Left(), 40 * screen.TwipsPerPixelX);
  EXPECT_EQ(Form.Top(), 30 * screen.TwipsPerPixelY);
  EXPECT_EQ(Form.Width(), 3000);
}

}  // namespace
}  // namespace corvelle::forms
