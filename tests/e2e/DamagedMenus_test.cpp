// Starts over menu files that a disk may hold after a fault: the strip comes up all the same.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

#include "core/MenuRecord.h"
#include "e2e/Times.h"
#include "e2e/WineDesk.h"
#include "scenario/Strip.h"

namespace corvelle::e2e {
namespace {

struct Damage {
  const char* Name;
  std::string Bytes;
};

/// The bytes differ from run to run of the test, and the same number gives the same.
std::string RandomBytes(std::size_t count, unsigned seed) {
  std::mt19937 random(seed);
  std::string bytes(count, '\0');
  for (char& byte : bytes) byte = static_cast<char>(random() & 0xFFU);
  return bytes;
}

std::vector<Damage> AllDamages(unsigned seed) {
  constexpr std::size_t kManyRecords = 10'000;  // 5.7 MB
  std::string many;
  while (many.size() < kManyRecords * kRecordLength) {
    many += scenario::MenuBytes("Item " + std::to_string(many.size() / kRecordLength), {});
  }
  return {{"no byte", ""},
          {"one byte", "x"},
          {"a byte less than a record", RandomBytes(kRecordLength - 1, seed)},
          {"a byte more than a record", RandomBytes(kRecordLength + 1, seed + 1)},
          {"random bytes", RandomBytes(20 * kRecordLength + 7, seed + 2)},
          {"5.7 MB", many},
          {"5.7 MB of random bytes", RandomBytes(kManyRecords * kRecordLength, seed + 3)},
          {"texts that name nothing",
           scenario::MenuBytes("/:", {{.FTitle = "/:", .FIcon = "/:x", .FName = "/:x"},
                                      {.FTitle = "|", .FIcon = "||", .FName = "<>"},
                                      {.FTitle = "::", .FIcon = "::x", .FName = "\\\\"},
                                      {.FTitle = "*", .FIcon = "*|", .FName = "\x01"}})},
          {"zeros", std::string(20 * kRecordLength, '\0')}};
}

TEST(DamagedMenus, EachStartBringsTheStripSoon) {
  constexpr ULONGLONG kSoon = 20000;  // milliseconds, of a machine that has no time
  const int rounds = Times();
  WineDesk desk;
  ULONGLONG longest = 0;
  int starts = 0;
  for (int round = 0; round < rounds; ++round) {
    const std::vector<Damage> damages = AllDamages(static_cast<unsigned>(round) * 10);
    // Each by itself beside a good menu, and then all of them together.
    for (std::size_t kind = 0; kind <= damages.size(); ++kind) {
      const char* const name = kind < damages.size() ? damages[kind].Name : "all of them";
      SCOPED_TRACE(name);
      for (const std::string& file : desk.Files("Menus")) desk.RemoveFile("Menus\\" + file);
      desk.WriteFile(scenario::kFlagsFile, scenario::InstalledFlags());
      scenario::WriteMenu(desk, 1, "Good", {scenario::Witness(desk, "one")});
      int number = 2;
      for (std::size_t i = 0; i < damages.size(); ++i) {
        if (kind < damages.size() && i != kind) continue;
        desk.WriteFile("Menus\\" + MenuFileName(number), damages[i].Bytes);
        ++number;
      }
      const ULONGLONG began = GetTickCount64();
      desk.StartCorvelle();
      const bool stands = desk.Wait(
          [&desk] {
            return desk.IsVisible("picToolbar") &&
                   desk.BoundsOf("frmToolbar").left < desk.ScreenSize().width;
          },
          static_cast<int>(kSoon));
      const ULONGLONG shown = GetTickCount64() - began;
      // It answers when the start is over.
      DWORD_PTR ignored = 0;
      const bool answers = SendMessageTimeoutW(desk.Handle("frmToolbar"), WM_NULL, 0, 0,
                                               SMTO_NORMAL, kSoon, &ignored) != 0;
      const ULONGLONG ready = GetTickCount64() - began;
      std::printf("%s: the strip after %llu ms, answers after %llu ms\n", name, shown, ready);
      ++starts;
      longest = std::max(longest, ready);
      if (!stands || !answers) {
        std::printf("%d copies run; exit codes:", desk.RunningCopies());
        for (const DWORD code : desk.ExitCodes()) std::printf(" %lu", code);
        std::printf("\n");
        desk.Picture("no-strip-" + std::to_string(starts));
      }
      ASSERT_TRUE(stands);
      ASSERT_TRUE(answers);
      // The good menu is there and opens.
      if (kind == damages.size()) {
        EXPECT_TRUE(scenario::OpenMenu(desk, 2));
        desk.Key(scenario::kKeyEscape);
        EXPECT_TRUE(scenario::WaitForNoMenu(desk));
      }
      ASSERT_TRUE(scenario::CloseAndWait(desk));
    }
  }
  std::printf("%d starts, the longest took %llu ms\n", starts, longest);
}

}  // namespace
}  // namespace corvelle::e2e
