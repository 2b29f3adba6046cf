// The process is ended from outside while it moves entries from one file to another.

#include <gtest/gtest.h>

#include <map>
#include <random>

#include "base/CodePage.h"
#include "core/FileTransaction.h"
#include "core/MenuRecord.h"
#include "e2e/WineDesk.h"
#include "scenario/Strip.h"

namespace corvelle::e2e {
namespace {

using scenario::Button;
using scenario::InstalledFlags;
using scenario::kFlagsFile;
using scenario::kPositionFile;
using scenario::PositionBytes;
using scenario::StartAndWait;
using scenario::Witness;
using scenario::WriteMenu;

constexpr int kKills = 5;       // in each test
constexpr int kItemsThere = 6;  // in each of the two menus when a test begins
constexpr int kSinglesThere = 4;

/// How often each entry stands in the menus and in the row.
using Count = std::map<std::string, int>;

/// A strip with two menus and some single buttons, which is ended in the middle of its work. The
/// parameter is the seed of the moments.
class EndedMoves : public ::testing::TestWithParam<int> {
 protected:
  void SetUp() override {
    desk_.WriteFile(kFlagsFile, InstalledFlags({24, 26}));
    desk_.WriteFile(kPositionFile, PositionBytes(static_cast<float>(300 * desk_.TwipsPerPixel())));
    for (int menu = 1; menu <= 2; ++menu) {
      std::vector<MenuRecord> items;
      for (int item = 1; item <= kItemsThere; ++item) {
        items.push_back(Witness(desk_, std::to_string(menu) + "-" + std::to_string(item)));
      }
      WriteMenu(desk_, menu, "Menu", items);
    }
    for (int single = 1; single <= kSinglesThere; ++single) {
      desk_.WriteFile("Menus\\" + SingleFileName(single),
                      FormatRecord(Witness(desk_, "s-" + std::to_string(single)), Windows1252()));
    }
    all_ = Entries();
    ASSERT_EQ(all_.size(), 2U * kItemsThere + kSinglesThere);
  }

  [[nodiscard]] static bool HoldsEntries(const std::string& name) {
    return name.ends_with(".MNU") || name.ends_with(".BTN");
  }
  [[nodiscard]] Count Entries() const {
    Count count;
    for (const std::string& name : desk_.Files("Menus")) {
      if (!HoldsEntries(name)) continue;
      const std::string bytes = desk_.ReadFile("Menus\\" + name).value_or("");
      // The first record of a menu is its button's.
      std::size_t at = name.ends_with(".MNU") ? kRecordLength : 0;
      for (; at < bytes.size(); at += kRecordLength) {
        ++count[ParseRecord(std::string_view(bytes).substr(at, kRecordLength), Windows1252())
                    .FTitle];
      }
    }
    return count;
  }
  [[nodiscard]] int ItemsOf(int menu) const {
    const std::string bytes = desk_.ReadFile("Menus\\" + MenuFileName(menu)).value_or("");
    return static_cast<int>(bytes.size() / kRecordLength) - 1;
  }

  [[nodiscard]] PixelPoint Single(int single) const {
    const PixelRect box = desk_.BoundsOf("picSingleButton");
    return {box.left + 5 + (single - 1) * 18 + 8, (box.top + box.bottom) / 2};
  }
  void PickUpItem(int menu, int item) {
    ASSERT_TRUE(OpenMenu(desk_, menu + 1));
    desk_.MovePointer(ItemMiddle(desk_, item, ItemsOf(menu)));
    desk_.Pause(150);
    desk_.HoldKey(scenario::kKeyControl);
    desk_.Pause(50);
    desk_.Press(Button::Left);
    desk_.Pause(100);
    desk_.LetKeyGo(scenario::kKeyControl);
  }
  /// All of a move but the release.
  void Carry(int kind) {
    if (kind == 0) {
      desk_.MovePointer(Single(3));
      desk_.Pause(100);
      desk_.Press(Button::Left);
      desk_.CarryTo(Single(1));
    } else if (kind == 1) {
      ASSERT_NO_FATAL_FAILURE(PickUpItem(1, 2));
      desk_.CarryTo(ButtonMiddle(desk_, 3));
    } else {
      ASSERT_NO_FATAL_FAILURE(PickUpItem(2, 1));
      desk_.CarryTo(Single(2));
    }
  }

  /// Ends the process at some moment of what follows a release: after a time from its first change
  /// of the disk on that no other end has had.
  void EndInTheMiddle() {
    const Count before = Entries();
    const std::vector<std::string> names = desk_.Files("Menus");
    const bool waits = moments_() % 3 != 0;
    desk_.Release(Button::Left);
    LARGE_INTEGER second{};
    QueryPerformanceFrequency(&second);
    const auto now = [&second] {
      LARGE_INTEGER ticks{};
      QueryPerformanceCounter(&ticks);
      return static_cast<double>(ticks.QuadPart) * 1e6 / static_cast<double>(second.QuadPart);
    };
    const double released = now();
    while (waits && desk_.Files("Menus") == names && now() - released < 3e6) {
    }
    const double most = waits ? 6000 : 60000;  // microseconds
    const double until = now() + most * static_cast<double>(moments_() % 1000) / 1000;
    while (now() < until) {
    }
    desk_.Kill();
    sawJournal_ += desk_.ReadFile("Menus\\" + std::string(kJournalFileName)) ? 1 : 0;
    sawTwice_ += Entries() != before ? 1 : 0;
  }

  WineDesk desk_;
  Count all_;
  std::mt19937 moments_{static_cast<unsigned>(GetParam())};
  int sawJournal_ = 0;
  int sawTwice_ = 0;
};

TEST_P(EndedMoves, LeaveEachEntryOnceAfterTheNextStart) {
  desk_.MovePointer(scenario::FarAway(desk_));
  ASSERT_TRUE(StartAndWait(desk_));
  for (int kill = 0; kill < kKills; ++kill) {
    ASSERT_NO_FATAL_FAILURE(Carry((kill + GetParam()) % 3));
    EndInTheMiddle();
    desk_.MovePointer(scenario::FarAway(desk_));
    ASSERT_TRUE(StartAndWait(desk_)) << kill;
    EXPECT_EQ(Entries(), all_) << kill;
    EXPECT_FALSE(desk_.ReadFile("Menus\\" + std::string(kJournalFileName))) << kill;
    // What is left of the hand's release has come to its end.
    desk_.Pause(100);
  }
  std::printf("%d kills: a journal was left after %d, entries twice or missing after %d\n", kKills,
              sawJournal_, sawTwice_);
}

INSTANTIATE_TEST_SUITE_P(Seeds, EndedMoves, ::testing::Range(1, 11));

}  // namespace
}  // namespace corvelle::e2e
