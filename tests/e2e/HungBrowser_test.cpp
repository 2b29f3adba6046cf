#include <gtest/gtest.h>

#include <atomic>
#include <cstdio>
#include <thread>

#include "base/CodePage.h"
#include "core/MenuRecord.h"
#include "e2e/WineDesk.h"
#include "scenario/Strip.h"

namespace corvelle::e2e {
namespace {

/// A visible window of another program that looks like a browser's and answers nothing: no message
/// is taken from its queue.
class HungWindow {
 public:
  explicit HungWindow(const wchar_t* title) : thread_([this, title] { Hang(title); }) {
    while (!stands_) Sleep(1);
  }
  HungWindow(const HungWindow&) = delete;
  HungWindow& operator=(const HungWindow&) = delete;
  ~HungWindow() {
    over_ = true;
    thread_.join();
  }

 private:
  void Hang(const wchar_t* title) {
    HWND window = CreateWindowExW(0, L"Static", title, WS_OVERLAPPEDWINDOW | WS_VISIBLE, 500, 300,
                                  300, 200, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    stands_ = true;
    while (!over_) Sleep(10);
    DestroyWindow(window);
  }

  std::atomic<bool> stands_ = false;
  std::atomic<bool> over_ = false;
  std::thread thread_;
};

TEST(HungBrowser, ADroppedAddressDoesNotWaitForAWindowThatAnswersNothing) {
  constexpr ULONGLONG kSoon = 4000;  // milliseconds, on a busy machine
  WineDesk desk;
  desk.WriteFile(scenario::kFlagsFile, scenario::InstalledFlags());
  scenario::WriteMenu(desk, 1, "Letters", {scenario::Witness(desk, "alpha")});
  desk.MovePointer(scenario::FarAway(desk));
  ASSERT_TRUE(scenario::StartAndWait(desk));
  // The source has no title of its own, so that the titles of all windows are looked at.
  const PixelPoint away = scenario::FarAway(desk);
  desk.OpenDragSource({away.x - 100, away.y - 60, away.x + 100, away.y + 60}, {},
                      "http://example.com/page", {});
  SetWindowTextW(desk.Handle("DragSource"), L"");
  const HungWindow browser(L"A page that hangs - Internet Explorer");
  desk.BringToFront("DragSource");
  desk.Pause(200);
  desk.DragTo(away, scenario::ButtonMiddle(desk, 2));
  ASSERT_TRUE(scenario::WaitForMenuAt(desk, 2));
  const ULONGLONG before = GetTickCount64();
  desk.Release(scenario::Button::Left);
  ASSERT_TRUE(desk.Wait([&] { return desk.IsVisible("frmURL"); }, 20000));
  const ULONGLONG waited = GetTickCount64() - before;
  std::printf("the dialog came after %llu ms\n", waited);
  EXPECT_LT(waited, kSoon);
  desk.Picture("dialog");
  // The strip works, and the entry is made.
  ASSERT_TRUE(desk.Wait([&] { return desk.ForegroundClass() == "frmURL"; }));
  desk.Key(scenario::kKeyEnter);
  ASSERT_TRUE(desk.Wait([&] {
    return desk.ReadFile("Menus\\" + MenuFileName(1)).value_or("").size() == 3 * kRecordLength;
  }));
  const std::string bytes = desk.ReadFile("Menus\\" + MenuFileName(1)).value_or("");
  const MenuRecord made =
      ParseRecord(std::string_view(bytes).substr(2 * kRecordLength), Windows1252());
  EXPECT_EQ(made.FName, "http://example.com/page");
  EXPECT_EQ(made.FTitle, "A page that hangs");
}

}  // namespace
}  // namespace corvelle::e2e
