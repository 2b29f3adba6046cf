// The process is ended from outside while the Customize window saves.

#include <gtest/gtest.h>

#include <cstdio>
#include <map>
#include <random>
#include <string>

#include "base/CodePage.h"
#include "core/FileTransaction.h"
#include "core/MenuRecord.h"
#include "e2e/WineDesk.h"
#include "scenario/Strip.h"

namespace corvelle::e2e {
namespace {

using scenario::InstalledFlags;
using scenario::kFlagsFile;
using scenario::MainChoice;
using scenario::StartAndWait;
using scenario::Witness;
using scenario::WriteMenu;

constexpr int kEndedSaves = 3;  // in each test
constexpr int kMenusThere = 16;
constexpr int kSinglesSaved = 4;

/// The files of menus and single buttons with what they hold.
using Contents = std::map<std::string, std::string>;

double Microseconds() {
  LARGE_INTEGER second{};
  LARGE_INTEGER ticks{};
  QueryPerformanceFrequency(&second);
  QueryPerformanceCounter(&ticks);
  return static_cast<double>(ticks.QuadPart) * 1e6 / static_cast<double>(second.QuadPart);
}

/// A strip with many menus of one item each. Every save takes the first menu away, so that each
/// file gets what the next one held, and the last one goes. The parameter is the seed of the
/// moments.
class EndedSaves : public ::testing::TestWithParam<int> {
 protected:
  void SetUp() override {
    desk_.WriteFile(kFlagsFile, InstalledFlags());
    for (int menu = 1; menu <= kMenusThere; ++menu) {
      const std::string title = "m" + std::to_string(menu);
      WriteMenu(desk_, menu, title, {Witness(desk_, title)});
    }
    for (int single = 1; single <= kSinglesSaved; ++single) {
      desk_.WriteFile("Menus\\" + SingleFileName(single),
                      FormatRecord(Witness(desk_, "s" + std::to_string(single)), Windows1252()));
    }
  }

  [[nodiscard]] Contents Now() const {
    Contents now;
    for (const std::string& name : desk_.Files("Menus")) {
      if (!name.ends_with(".MNU") && !name.ends_with(".BTN")) continue;
      now[name] = desk_.ReadFile("Menus\\" + name).value_or("");
    }
    return now;
  }
  [[nodiscard]] static Contents WithoutFirstMenu(const Contents& before) {
    Contents after;
    for (const auto& [name, bytes] : before) {
      if (name.ends_with(".BTN")) after[name] = bytes;
    }
    for (int menu = 2; before.contains(MenuFileName(menu)); ++menu) {
      after[MenuFileName(menu - 1)] = before.at(MenuFileName(menu));
    }
    return after;
  }
  [[nodiscard]] bool HasJournal() const {
    return desk_.ReadFile("Menus\\" + std::string(kJournalFileName)).has_value();
  }

  void DeleteFirstMenu() {
    ASSERT_TRUE(ChooseInMainMenu(desk_, MainChoice::Customize));
    ASSERT_TRUE(desk_.Wait([this] { return desk_.ForegroundClass() == "frmCust"; }));
    desk_.Pause(1300);
    desk_.Key(scenario::kKeyDown);
    desk_.Pause(50);
    desk_.Key(kKeyDelete);
    desk_.Pause(200);
  }
  void PressUpdate() {
    desk_.HoldKey(kKeyAlt);
    desk_.Key('U');
    desk_.LetKeyGo(kKeyAlt);
  }
  /// Ends the process some time after the key, or after the journal has come.
  void EndInTheMiddle(bool waits) {
    PressUpdate();
    const double pressed = Microseconds();
    while (waits && !HasJournal() && Microseconds() - pressed < 3e6) {
    }
    const double most = waits ? 100e3 : 300e3;
    const double until = Microseconds() + most * static_cast<double>(moments_() % 1000) / 1000;
    while (Microseconds() < until) {
    }
    desk_.Kill();
  }

  WineDesk desk_;
  std::mt19937 moments_{static_cast<unsigned>(GetParam())};
};

TEST_P(EndedSaves, LeaveTheOldMenusOrTheNewOnesAfterTheNextStart) {
  int journals = 0;
  int mixed = 0;
  int saved = 0;
  desk_.MovePointer(scenario::FarAway(desk_));
  ASSERT_TRUE(StartAndWait(desk_));
  for (int kill = 0; kill < kEndedSaves; ++kill) {
    const Contents before = Now();
    const Contents after = WithoutFirstMenu(before);
    ASSERT_NO_FATAL_FAILURE(DeleteFirstMenu());
    EndInTheMiddle((kill + GetParam()) % 3 != 0);
    const Contents cut = Now();
    journals += HasJournal() ? 1 : 0;
    mixed += cut != before && cut != after ? 1 : 0;
    desk_.MovePointer(scenario::FarAway(desk_));
    ASSERT_TRUE(StartAndWait(desk_)) << kill;
    const Contents found = Now();
    EXPECT_TRUE(found == before || found == after) << kill;
    EXPECT_FALSE(HasJournal()) << kill;
    saved += found == after ? 1 : 0;
    desk_.Pause(100);
  }
  // And one that nobody ends.
  const Contents before = Now();
  ASSERT_NO_FATAL_FAILURE(DeleteFirstMenu());
  PressUpdate();
  EXPECT_TRUE(desk_.Wait([&] { return Now() == WithoutFirstMenu(before) && !HasJournal(); }));
  desk_.Picture("saved");
  std::printf("%d kills: a journal was left after %d, a mixture after %d, saved were %d\n",
              kEndedSaves, journals, mixed, saved);
}

INSTANTIATE_TEST_SUITE_P(Seeds, EndedSaves, ::testing::Range(1, 11));

}  // namespace
}  // namespace corvelle::e2e
