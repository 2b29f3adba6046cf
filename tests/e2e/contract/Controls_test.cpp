#include <gtest/gtest.h>
#include <windows.h>
// After windows.h, which it builds on.
#include <commctrl.h>

#include <string>
#include <vector>

#include "RealHome.h"
#include "forms/CommandButton.h"
#include "forms/Form.h"
#include "forms/Scopes.h"
#include "forms/TextBox.h"
#include "forms/TreeView.h"

// Controls of the system inside a form: what only Windows sees of them.

namespace corvelle::forms {
namespace {

class Panel final : public Form {
 public:
  explicit Panel(WindowSystem& windows) : Form(windows, "CorvellePanel", BorderStyle::Raised) {
    Move(3000, 2250, 5000, 4000);
    Text.Move(75, 75, 1500, 315);
    Press.Move(75, 500, 1500, 375);
    Press.SetCaption("O&K");
    Press.Click = [this] { ++Presses; };
    Tree.Move(1800, 75, 2900, 3500);
    for (const char* text : {"one", "two", "three"}) {
      Nodes.push_back(Tree.Insert(kNoNode, kNoNode, {.Text = text}));
    }
    Tree.DragBegin = [](NodeId) { return true; };
  }

  std::vector<std::uintptr_t> Commands;  // of the system
  int Presses = 0;
  std::vector<NodeId> Nodes;
  TextBox Text{*this, "Text"};
  CommandButton Press{*this, "Press"};
  TreeView Tree{*this, "Tree"};

 private:
  std::optional<std::intptr_t> WindowProc(std::uint32_t message, std::uintptr_t wParam,
                                          std::intptr_t) override {
    if (message != WM_SYSCOMMAND) return std::nullopt;
    Commands.push_back(wParam & 0xFFF0U);
    return 0;
  }
};

HWND HandleOf(const Window& window) { return reinterpret_cast<HWND>(window.hWnd()); }

struct ControlsTest : testing::Test {
  RealHome Home;
  Panel Form{Home.Windows()};

  void SetUp() override {
    Home.MovePointer({700, 600});
    ASSERT_TRUE(Form.Load());
    Form.SetWindowPos(InsertAfter::Topmost, swp::KeepActivation);
    Form.Show();
    Home.Wait(200);
  }
  void TearDown() override {
    Home.Release(MouseButton::Left);
    Form.Unload();
  }
  /// As the system asks when the pointer is over a window.
  static HCURSOR PointerOver(const Window& window) {
    SetCursor(LoadCursorW(nullptr, IDC_CROSS));
    SendMessageW(HandleOf(window), WM_SETCURSOR, reinterpret_cast<WPARAM>(HandleOf(window)),
                 MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    return GetCursor();
  }
  /// What the thread takes for the state of Alt.
  static void SetAlt(bool down) {
    BYTE keys[256] = {};
    GetKeyboardState(keys);
    keys[VK_MENU] = down ? 0x80 : 0;
    SetKeyboardState(keys);
  }
  /// A key of the text box, with Alt held at the time.
  void SendKey(UINT message, WPARAM key) const {
    constexpr LPARAM kOnceWithAlt = 0x20000001;
    SendMessageW(HandleOf(Form.Text), message, key, message == WM_KEYUP ? 1 : kOnceWithAlt);
  }
  /// The middle of a node's row, in pixels of the screen.
  PixelPoint NodePoint(NodeId node) const {
    const PixelRect row = Form.Tree.RowRect(node);
    POINT at{row.left + 40, (row.top + row.bottom) / 2};
    ClientToScreen(HandleOf(Form.Tree), &at);
    return {static_cast<int>(at.x), static_cast<int>(at.y)};
  }
  void BeginDrag() {
    const PixelPoint from = NodePoint(Form.Nodes[0]);
    Home.MovePointer(from);
    Home.Press(MouseButton::Left);
    Home.MovePointer({from.x + 12, from.y + 4});
    Home.Wait(200);
    ASSERT_EQ(Form.Tree.Dragged(), Form.Nodes[0]);
  }
};

TEST_F(ControlsTest, EachShowsThePointerOfItsKindUnlessTheProgramHasOneOfItsOwn) {
  EXPECT_EQ(PointerOver(Form.Text), LoadCursorW(nullptr, IDC_IBEAM));
  EXPECT_EQ(PointerOver(Form.Tree), LoadCursorW(nullptr, IDC_ARROW));
  EXPECT_EQ(PointerOver(Form), LoadCursorW(nullptr, IDC_ARROW));
  const HourglassScope hourglass(Home.Windows());
  EXPECT_EQ(PointerOver(Form.Text), LoadCursorW(nullptr, IDC_WAIT));
  EXPECT_EQ(PointerOver(Form), LoadCursorW(nullptr, IDC_WAIT));
}

TEST_F(ControlsTest, AltThatIsReleasedBeforeItsLetterAsksForNoMenu) {
  SetAlt(true);
  SendKey(WM_SYSKEYDOWN, VK_MENU);
  SendKey(WM_SYSKEYDOWN, 'K');
  SetAlt(false);
  SendKey(WM_KEYUP, VK_MENU);
  EXPECT_EQ(Form.Presses, 1);
  EXPECT_EQ(Form.Commands, std::vector<std::uintptr_t>{});
}

TEST_F(ControlsTest, AltByItselfStillAsksForTheMenu) {
  SetAlt(true);
  SendKey(WM_SYSKEYDOWN, VK_MENU);
  SetAlt(false);
  SendKey(WM_SYSKEYUP, VK_MENU);
  EXPECT_EQ(Form.Commands, std::vector<std::uintptr_t>{SC_KEYMENU});
}

TEST_F(ControlsTest, TheGroundOfATextBoxFollowsTheColoursOfTheSystem) {
  const auto ground = [this] {
    const HDC screen = GetDC(nullptr);
    const HDC dc = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, 4, 4);
    const HGDIOBJ before = SelectObject(dc, bitmap);
    const auto brush = reinterpret_cast<HBRUSH>(
        SendMessageW(HandleOf(Form), WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc),
                     reinterpret_cast<LPARAM>(HandleOf(Form.Text))));
    const RECT whole{0, 0, 4, 4};
    FillRect(dc, &whole, brush);
    const COLORREF colour = GetPixel(dc, 1, 1);
    EXPECT_EQ(GetBkColor(dc), colour);
    SelectObject(dc, before);
    DeleteObject(bitmap);
    DeleteDC(dc);
    ReleaseDC(nullptr, screen);
    return colour;
  };
  const INT index = COLOR_WINDOW;
  const COLORREF before = GetSysColor(index);
  const COLORREF other = RGB(0, 0, 128);
  EXPECT_EQ(ground(), before);
  SetSysColors(1, &index, &other);
  EXPECT_EQ(ground(), other);
  SetSysColors(1, &index, &before);
  EXPECT_EQ(ground(), before);
  Form.Text.SetBackColor(0x00336699);
  EXPECT_EQ(ground(), 0x00336699U);
}

TEST_F(ControlsTest, ATreeThatEndsDuringItsDragEndsTheDragOfTheSystem) {
  BeginDrag();
  EXPECT_NE(ImageList_GetDragImage(nullptr, nullptr), nullptr);
  Form.Unload();
  EXPECT_EQ(ImageList_GetDragImage(nullptr, nullptr), nullptr);
}

TEST_F(ControlsTest, AnInsertMarkPaintsTheTreeAtOnceAndOnlyWhenItChanges) {
  const HWND tree = HandleOf(Form.Tree);
  // A spot that a paint would take away.
  const PixelPoint spot{100, 150};
  const auto paint = [&] {
    const HDC dc = GetDC(tree);
    SetPixel(dc, spot.x, spot.y, RGB(255, 0, 0));
    ReleaseDC(tree, dc);
  };
  const auto painted = [&] {
    EXPECT_EQ(GetUpdateRect(tree, nullptr, FALSE), FALSE) << "something waits to be painted";
    UpdateWindow(tree);
    const HDC dc = GetDC(tree);
    const bool gone = GetPixel(dc, spot.x, spot.y) != RGB(255, 0, 0);
    ReleaseDC(tree, dc);
    return gone;
  };
  UpdateWindow(tree);
  paint();
  EXPECT_FALSE(painted());
  Form.Tree.SetInsertMark(Form.Nodes[1], false);
  EXPECT_TRUE(painted());
  paint();
  Form.Tree.SetInsertMark(Form.Nodes[1], false);
  EXPECT_FALSE(painted()) << "the same mark";
  Form.Tree.SetInsertMark(Form.Nodes[1], true);
  EXPECT_TRUE(painted()) << "the other side";
  paint();
  Form.Tree.SetInsertMark(kNoNode, false);
  EXPECT_TRUE(painted());
  paint();
  Form.Tree.SetInsertMark(kNoNode, false);
  EXPECT_FALSE(painted());
}

}  // namespace
}  // namespace corvelle::forms
