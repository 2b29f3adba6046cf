// Choices in menus while other programs take all of the processor: each of them starts.

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <cstdio>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "e2e/Times.h"
#include "e2e/WineDesk.h"
#include "scenario/Strip.h"

namespace corvelle::e2e {
namespace {

/// Takes what the processor has to give while it lives.
class Load {
 public:
  Load() {
    for (std::thread& burner : burners_) {
      burner = std::thread([this] {
        volatile unsigned sum = 0;
        while (!over_) sum = sum + 1;
      });
    }
  }
  Load(const Load&) = delete;
  Load& operator=(const Load&) = delete;
  ~Load() {
    over_ = true;
    for (std::thread& burner : burners_) burner.join();
  }

 private:
  std::atomic<bool> over_ = false;
  std::array<std::thread, 2> burners_;
};

/// How many programs were started; cheaper than reading what each of them wrote.
int Started() {
  int count = 0;
  WIN32_FIND_DATAW found = {};
  HANDLE search = FindFirstFileW((std::wstring(kWitnessFolder) + L"*.seen").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return 0;
  do {
    ++count;
  } while (FindNextFileW(search, &found) != FALSE);
  FindClose(search);
  return count;
}

class Choices : public testing::Test {
 protected:
  void SetUp() override {
    desk_.WriteFile(scenario::kFlagsFile, scenario::InstalledFlags());
    std::vector<MenuRecord> items;
    for (int item = 1; item <= kItems; ++item) {
      items.push_back(scenario::Witness(desk_, "item " + std::to_string(item)));
    }
    scenario::WriteMenu(desk_, 1, "Menu", items);
    ASSERT_TRUE(scenario::StartAndWait(desk_));
    button_ = scenario::ButtonMiddle(desk_, 2);
    // Learns where the items are.
    ASSERT_TRUE(scenario::OpenMenu(desk_, 2));
    for (int item = 1; item <= kItems; ++item) {
      items_.push_back(scenario::ItemMiddle(desk_, item, kItems));
    }
    desk_.Key(scenario::kKeyEscape);
    ASSERT_TRUE(scenario::WaitForNoMenu(desk_));
  }

  bool MenuUp() { return desk_.IsVisible("frmQMenu"); }
  /// Waits for nothing but the menu's window.
  void WaitForMenu() {
    if (!desk_.Wait([this] { return MenuUp(); }, kLongest)) ++unopened_;
  }

  /// Carries out so many choices, each with its number, and counts what starts.
  void Choose(int count, const std::function<void(int)>& choose) {
    const Load load;
    int lost = 0;
    const ULONGLONG began = GetTickCount64();
    for (int done = 0; done < count; ++done) {
      const int before = Started();
      choose(done);
      if (!desk_.Wait([before] { return Started() > before; }, kLongest)) {
        ++lost;
        std::printf("choice %d started nothing; the menu is %s, %s is in front\n", done,
                    MenuUp() ? "up" : "closed", desk_.ForegroundClass().c_str());
        desk_.Picture("lost-" + std::to_string(done));
        if (MenuUp()) desk_.Key(scenario::kKeyEscape);
      }
      ASSERT_TRUE(scenario::WaitForNoMenu(desk_)) << done;
    }
    std::printf("%d choices in %llu ms, %d started nothing, %d times no menu came\n", count,
                GetTickCount64() - began, lost, unopened_);
    EXPECT_EQ(lost, 0);
    EXPECT_EQ(unopened_, 0);
    EXPECT_EQ(Started(), count);
  }

  static constexpr int kItems = 3;
  static constexpr int kLongest = 20000;  // milliseconds, of a machine that has no time

  WineDesk desk_;
  PixelPoint button_;
  std::vector<PixelPoint> items_;
  int unopened_ = 0;
};

TEST_F(Choices, ByKeysEachStartsUnderLoad) {
  Choose(50 * Times(), [this](int done) {
    // The pointer rests: what comes late of its moves could put it on another button.
    desk_.Click(button_);
    // A hand that knows its way does not look whether the menu is up; but only a program that is in
    // front hears keys.
    if (done % 2 == 0) {
      WaitForMenu();
    } else {
      desk_.Wait([this] { return desk_.ForegroundClass().starts_with("frm"); }, kLongest);
    }
    desk_.Key(scenario::kKeyUp);
    desk_.Key(scenario::kKeyEnter);
  });
}

TEST_F(Choices, ByMouseEachStartsUnderLoad) {
  Choose(50 * Times(), [this](int done) {
    const PixelPoint item = items_[static_cast<std::size_t>(done / 3 % kItems)];
    if (done % 3 == 0) {
      // One press from the button to the item.
      desk_.MovePointer(button_);
      desk_.Press(scenario::Button::Left);
      WaitForMenu();
      desk_.MovePointer(item);
      desk_.Release(scenario::Button::Left);
      return;
    }
    desk_.Click(button_);
    WaitForMenu();
    desk_.Click(item);
    // The pointer leaves the menu at once.
    if (done % 3 == 2) desk_.MovePointer(scenario::FarAway(desk_));
  });
}

}  // namespace
}  // namespace corvelle::e2e
