#include <gtest/gtest.h>

#include "RealHome.h"
#include "e2e/dragsource/DragSource.h"
#include "forms/DragContract.h"
#include "win32/Wide.h"

namespace corvelle::forms {
namespace {

class OleScope {
 public:
  OleScope() { OleInitialize(nullptr); }
  OleScope(const OleScope&) = delete;
  OleScope& operator=(const OleScope&) = delete;
  ~OleScope() { OleUninitialize(); }
};

class WindowsDragHome final : public DragHome {
 public:
  WindowSystem& Windows() override { return home_.Windows(); }
  DesktopWindows& Desktop() override { return home_.Desktop(); }
  void Wait(int milliseconds) override { home_.Wait(milliseconds); }
  void Offer(const DragData& data, DropEffect allowed) override {
    dragsource::Offer offer{.Files = {}, .Text = {}, .Allowed = static_cast<DWORD>(allowed)};
    for (const std::string& file : data.Files.value_or(std::vector<std::string>{})) {
      offer.Files.push_back(win32::Wide(file));
    }
    if (data.Text) offer.Text = win32::Wide(*data.Text);
    if (!data.Title.empty()) offer.Link = *offer.Text + L"\n" + win32::Wide(data.Title);
    source_ = std::make_unique<dragsource::DragSource>(RECT{600, 450, 800, 550}, offer);
    home_.Wait(200);
  }
  void MovePointer(PixelPoint at) override { home_.MovePointer(at); }
  void Press(MouseButton button) override { home_.Press(button); }
  void Release(MouseButton button) override { home_.Release(button); }
  void PressKey(int virtualKey) override { home_.PressKey(virtualKey); }
  DropEffect DragEffect() override { return static_cast<DropEffect>(source_->Effect()); }

 private:
  OleScope ole_;
  RealHome home_;
  std::unique_ptr<dragsource::DragSource> source_;
};

INSTANTIATE_TEST_SUITE_P(Windows, DragContract,
                         testing::Values([] { return std::make_unique<WindowsDragHome>(); }));

TEST(DropTarget, EndsWithItsWindowAndCanBeMadeAnew) {
  const OleScope ole;
  win32::Win32WindowSystem windows;
  DragNotes notes;
  for (int round = 0; round < 3; ++round) {
    const auto peer = windows.CreatePeer(
        {.Kind = PeerKind::Form, .ClassName = "CorvelleDrag", .Bounds = {0, 0, 50, 50}}, notes);
    ASSERT_TRUE(peer->SetTakesDrops(true));
    EXPECT_TRUE(peer->SetTakesDrops(true));
    HWND handle = reinterpret_cast<HWND>(peer->Id());
    // The system lets a window take drops once.
    EXPECT_EQ(RevokeDragDrop(handle), S_OK);
    EXPECT_EQ(RevokeDragDrop(handle), DRAGDROP_E_NOTREGISTERED);
    EXPECT_TRUE(peer->SetTakesDrops(false));
    EXPECT_TRUE(peer->SetTakesDrops(true));
    EXPECT_EQ(RevokeDragDrop(handle), S_OK);
  }
}

TEST(DropTarget, AThreadWithoutOleIsRefusedAndTheWindowLives) {
  bool refused = false;
  bool stands = false;
  std::thread other([&] {
    win32::Win32WindowSystem windows;
    DragNotes notes;
    const auto peer = windows.CreatePeer(
        {.Kind = PeerKind::Form, .ClassName = "CorvelleDrag", .Bounds = {0, 0, 50, 50}}, notes);
    refused = !peer->SetTakesDrops(true);
    stands = IsWindow(reinterpret_cast<HWND>(peer->Id())) != FALSE;
  });
  other.join();
  EXPECT_TRUE(refused);
  EXPECT_TRUE(stands);
}

}  // namespace
}  // namespace corvelle::forms
