#include "core/OptionFlags.h"

#include <gtest/gtest.h>

#include "core/CoreTexts.h"
#include "sim/SimFiles.h"

namespace corvelle {
namespace {

using sim::SimFiles;

const std::string kFlagFile = kApp + "tmenu425.dat";

TEST(OptionFlags, StartAsThirtyTwoZeros) { EXPECT_EQ(OptionFlags().Text(), std::string(32, '0')); }

TEST(OptionFlags, PositionsCountFromOne) {
  OptionFlags flags;
  flags.Set(Option::FirstRunDone, '1');
  flags.Set(Option::UpgradeDone, '1');
  EXPECT_EQ(flags.Text(), "1" + std::string(30, '0') + "1");
  EXPECT_TRUE(flags.Is(Option::UpgradeDone));
  EXPECT_EQ(flags.At(Option::UpgradeDone), '1');
  EXPECT_EQ(flags.At(OptionAt(31)), '0');
}

TEST(OptionFlags, OutsideOfTheirPositionsNothingHappens) {
  OptionFlags flags;
  for (const int position : {0, -1, 33, 1000}) {
    flags.Set(OptionAt(position), '1');
    flags.Flip(OptionAt(position));
    EXPECT_EQ(flags.At(OptionAt(position)), '0') << position;
  }
  EXPECT_EQ(flags, OptionFlags());
}

TEST(OptionFlags, HoldZerosAndOnesOnly) {
  OptionFlags flags;
  flags.Set(Option::AutoHide, 'x');
  EXPECT_EQ(flags.At(Option::AutoHide), '0');
  flags.Set(Option::AutoHide, true);
  flags.Flip(Option::AboveFullScreen);
  EXPECT_EQ(flags.Text().substr(2, 2), "11");
  flags.Flip(Option::AboveFullScreen);
  flags.Set(Option::AutoHide, false);
  EXPECT_EQ(flags, OptionFlags());
}

TEST(OptionFlags, WhatIsStoredIsCleanedOnReading) {
  struct Row {
    const char* name;
    std::string bytes;
    std::string expected;
  };
  const std::string zeros(32, '0');
  const Row rows[] = {
      {"as written", "10101010101010101010101010101010", "10101010101010101010101010101010"},
      {"anything but 1 reads as 0",
       "1x1 1\t1\xFF"
       "12131415161718191a1b1c1d1",
       "10101010101111111111111010101010"},
      {"short", "11", "11" + std::string(30, '0')},
      {"empty", "", zeros},
      {"long", std::string(40, '1'), std::string(32, '1')},
      {"NULs", std::string(32, '\0'), zeros},
  };
  for (const Row& row : rows) {
    const std::string text = OptionFlags::Clean(row.bytes).Text();
    ASSERT_EQ(text.size(), 32U) << row.name;
    for (std::size_t i = 0; i < 32; ++i) {
      const char stored = i < row.bytes.size() ? row.bytes[i] : '0';
      EXPECT_EQ(text[i], stored == '1' ? '1' : '0') << row.name << " at " << i;
    }
  }
  EXPECT_EQ(OptionFlags::Clean("11").Text(), "11" + std::string(30, '0'));
  EXPECT_EQ(OptionFlags::Clean("1x0 21").Text(), "100001" + std::string(26, '0'));
}

TEST(SaveOptionFlags, StoresThirtyTwoBytesAndNothingElse) {
  SimFiles disk;
  disk.Put(kFlagFile, std::string(100, 'x'));
  OptionFlags flags;
  flags.Set(Option::DefaultEntriesOffered, '1');
  ASSERT_TRUE(SaveOptionFlags(disk, kApp, flags));
  EXPECT_EQ(disk.Get(kFlagFile), "01" + std::string(30, '0'));
}

TEST(SaveOptionFlags, AFailureLeavesTheOldFile) {
  SimFiles disk;
  disk.Put(kFlagFile, std::string(32, '1'));
  disk.FillDisk(10);
  EXPECT_FALSE(SaveOptionFlags(disk, kApp, OptionFlags()));
  EXPECT_EQ(disk.Get(kFlagFile), std::string(32, '1'));
  disk.FreeDisk();
  disk.SetReadOnly(kFlagFile, true);
  EXPECT_FALSE(SaveOptionFlags(disk, kApp, OptionFlags()));
  EXPECT_EQ(disk.Get(kFlagFile), std::string(32, '1'));
  disk.SetReadOnly(kFlagFile, false);
  for (int n = 1;; ++n) {
    disk.Put(kFlagFile, std::string(32, '1'));
    disk.FailCall(n, FileError::DiskFull);
    const FileStatus status = SaveOptionFlags(disk, kApp, OptionFlags());
    EXPECT_EQ(disk.Get(kFlagFile), std::string(32, status ? '0' : '1'));
    if (!disk.Hit()) break;
  }
}

TEST(FlagsAfterUpgrade, AreTheDefaults) {
  //                                              1234567890123456789012345678901234567890
  EXPECT_EQ(FlagsAfterUpgrade().Text(), "00000000000001110010000101000001");
}

TEST(FlagsAfterUpgrade, OnceTheFirstRunIsDoneTheRestIsZero) {
  OptionFlags flags = FlagsAfterUpgrade();
  flags.Set(Option::FirstRunDone, '1');
  flags.Set(Option::DefaultEntriesOffered, '1');
  for (int position = 1; position <= 32; ++position) {
    bool expected = false;
    for (const int set : {1, 2, 14, 15, 16, 19, 24, 26, 32}) expected = expected || set == position;
    EXPECT_EQ(flags.Is(OptionAt(position)), expected) << position;
  }
}

TEST(ResetHelpTips, ShowsTheFiveTipsAgainAndChangesNothingElse) {
  OptionFlags flags = OptionFlags::Clean(std::string(32, '1'));
  ResetHelpTips(flags);
  for (int position = 1; position <= 32; ++position) {
    const bool tip = (position >= 5 && position <= 8) || position == 29;
    EXPECT_EQ(flags.Is(OptionAt(position)), !tip) << position;
  }
}

struct EdgeRow {
  const char* code;
  Edge edge;
  bool vertical;
};

constexpr EdgeRow kEdges[] = {{"00", Edge::Top, false},
                              {"01", Edge::Bottom, false},
                              {"10", Edge::Left, true},
                              {"11", Edge::Right, true}};

TEST(EdgeFlags, SaveTheEdgeAndReadItBack) {
  for (const EdgeRow& row : kEdges) {
    EXPECT_EQ(EdgeCode(row.edge), row.code);
    OptionFlags flags;
    SaveEdgeFlags(flags, true, row.edge);
    EXPECT_EQ(flags.Text().substr(13, 3), "1" + std::string(row.code)) << row.code;
    EdgePlacement placement;
    ReadEdgeFlags(flags, placement);
    EXPECT_EQ(placement, (EdgePlacement{true, row.vertical, row.edge})) << row.code;
  }
}

TEST(EdgeFlags, AnUnknownEdgeIsSavedAsTheTop) {
  for (const int number : {-1, 4, 100}) EXPECT_EQ(EdgeCode(static_cast<Edge>(number)), "00");
  EXPECT_EQ(EdgeCode(Edge::Right), "11");
}

TEST(EdgeFlags, AFloatingStripLeavesTheSavedEdgeAlone) {
  OptionFlags flags = FlagsAfterUpgrade();
  SaveEdgeFlags(flags, false, Edge::Bottom);
  EXPECT_EQ(flags.Text().substr(13, 3), "011");
}

TEST(EdgeFlags, WithoutPosition14NoEdgeIsAskedFor) {
  OptionFlags flags;
  flags.Set(Option::EdgeCodeFirst, '1');
  EdgePlacement placement{true, false, Edge::Bottom};
  ReadEdgeFlags(flags, placement);
  EXPECT_EQ(placement, (EdgePlacement{false, false, Edge::Bottom}));
}

TEST(EdgeFlags, AnyOtherCodeLeavesTheEdge) {
  for (const char* code : {"", "0", "2", "0x", "111", "  "}) {
    EdgePlacement placement{false, true, Edge::Left};
    ApplyEdgeCode('1', code, placement);
    EXPECT_EQ(placement, (EdgePlacement{true, true, Edge::Left})) << code;
  }
}

}  // namespace
}  // namespace corvelle
