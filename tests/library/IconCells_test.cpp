#include "library/IconCells.h"

#include <gtest/gtest.h>

namespace corvelle {
namespace {

using Places = std::vector<std::size_t>;

TEST(ReadableName, BeginsWithACapitalAndIsCutBehindElevenCharacters) {
  struct Row {
    const char* name;
    const char* expected;
  };
  const Row rows[] = {
      {"", ""},
      {"PRINTFLD.ICO", "Printfld. .."},  // 12 characters
      {"arrowdn.ico", "Arrowdn.ico"},    // exactly 11
      {"aRROWdN.iCO", "Arrowdn.ico"},
      {"a.ico", "A.ico"},
      {"a very long name.ico", "A very lo .."},
      {"\xC3\xA4rger\xC3\x9C.ico", "\xC3\x84rger\xC3\xBC.ico"},  // 10 characters in 12 bytes
      {"12345678\xC3\x96\xC3\x96\xC3\x96\xC3\x96", "12345678\xC3\xB6 .."},
  };
  for (const Row& row : rows) EXPECT_EQ(ReadableName(row.name), row.expected) << row.name;
}

TEST(LibraryCells, StandForFilesBelowTheProgramsFolder) {
  const auto cells = LibraryCells({"clock.ico", "PRINTFLD.ICO"}, "C:\\Corvelle\\Icons\\");
  ASSERT_EQ(cells.size(), 2U);
  EXPECT_EQ(cells[0], (IconCell{.Caption = "Clock.ico",
                                .Name = "clock.ico",
                                .Text = "\\icons\\clock.ico",
                                .File = "C:\\Corvelle\\Icons\\clock.ico",
                                .Index = 0}));
  EXPECT_EQ(cells[1].Caption, "Printfld. ..");
  EXPECT_EQ(cells[1].Text, "\\icons\\PRINTFLD.ICO");
}

TEST(FileCells, AreNumberedFromZeroWithABlankBeforeTheBar) {
  const auto cells = FileCells("C:\\Tools\\tool.exe", 1001);
  ASSERT_EQ(cells.size(), 1001U);
  EXPECT_EQ(cells[0], (IconCell{.Caption = "Icon: 000",
                                .Name = "Icon: 000",
                                .Text = "C:\\Tools\\tool.exe |0",
                                .File = "C:\\Tools\\tool.exe",
                                .Index = 0}));
  EXPECT_EQ(cells[12].Caption, "Icon: 012");
  EXPECT_EQ(cells[12].Text, "C:\\Tools\\tool.exe |12");
  EXPECT_EQ(cells[12].Index, 12);
  EXPECT_EQ(cells[1000].Caption, "Icon: 1000");
}

TEST(FileCells, OfAFileWithoutIconsAreNone) {
  EXPECT_TRUE(FileCells("C:\\a.exe", 0).empty());
  EXPECT_TRUE(FileCells("C:\\a.exe", -1).empty());
}

TEST(FilterCells, KeepsTheNamesThatHoldTheText) {
  const auto cells = LibraryCells({"arrowdn.ico", "Clock.ico", "a very long name.ico"}, "C:\\");
  EXPECT_EQ(FilterCells(cells, ""), (Places{0, 1, 2}));
  EXPECT_EQ(FilterCells(cells, "  "), (Places{0, 1, 2}));
  EXPECT_EQ(FilterCells(cells, "CLO"), Places{1});
  EXPECT_EQ(FilterCells(cells, " clo "), Places{1});
  // Also by what the caption leaves out.
  EXPECT_EQ(FilterCells(cells, "long name"), Places{2});
  EXPECT_EQ(FilterCells(cells, "zebra"), Places{});
}

TEST(CellByLetter, GoesOnToTheNextNameAndAroundTheEnd) {
  const auto cells =
      LibraryCells({"apple.ico", "bell.ico", "Anchor.ico", "\xC3\xA4rger.ico"}, "C:\\");
  const Places all = {0, 1, 2, 3};
  EXPECT_EQ(CellByLetter(cells, all, -1, U'a'), 0);
  EXPECT_EQ(CellByLetter(cells, all, 0, U'A'), 2);
  EXPECT_EQ(CellByLetter(cells, all, 2, U'a'), 0);
  EXPECT_EQ(CellByLetter(cells, all, 1, U'b'), 1);  // the only one of its letter
  EXPECT_EQ(CellByLetter(cells, all, 0, U'\u00C4'), 3);
  EXPECT_EQ(CellByLetter(cells, all, 0, U'x'), -1);
  EXPECT_EQ(CellByLetter(cells, {}, -1, U'a'), -1);
  // Places count among the cells that are shown.
  EXPECT_EQ(CellByLetter(cells, {1, 2}, -1, U'a'), 1);
}

}  // namespace
}  // namespace corvelle
