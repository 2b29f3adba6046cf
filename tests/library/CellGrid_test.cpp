#include "library/CellGrid.h"

#include <gtest/gtest.h>

#include <set>

#include "forms/Types.h"

namespace corvelle {
namespace {

using forms::key::Down;
using forms::key::End;
using forms::key::Home;
using forms::key::Left;
using forms::key::PageDown;
using forms::key::PageUp;
using forms::key::Right;
using forms::key::Up;

// Seven columns of 68 pixels, five rows of 60.
CellGrid Grid(int count, int topRow = 0) {
  return {.Cell = {}, .View = {490, 320}, .Count = count, .TopRow = topRow};
}

TEST(CellMetrics, GoldenMeasuresOfEachScreen) {
  struct Row {
    const char* name;
    float twips;
    PixelSize label;
    CellMetrics expected;
    int width;
    int height;
  };
  const Row rows[] = {
      {"96 dpi", 15, {62, 13}, {32, 62, 13, 12, 15}, 74, 60},
      {"120 dpi", 12, {77, 16}, {32, 77, 16, 15, 19}, 92, 67},
      {"144 dpi", 10, {93, 19}, {48, 93, 19, 18, 23}, 111, 90},
      {"192 dpi", 7.5F, {124, 26}, {64, 124, 26, 24, 30}, 148, 120},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const CellMetrics metrics = CellMetricsAt(row.twips, row.label);
    EXPECT_EQ(metrics, row.expected);
    EXPECT_EQ(metrics.Width(), row.width);
    EXPECT_EQ(metrics.Height(), row.height);
  }
}

TEST(CellMetrics, ACellIsNeverNarrowerThanItsIcon) {
  EXPECT_EQ((CellMetrics{.Icon = 64, .LabelWidth = 20, .MarginX = 12}).Width(), 76);
}

TEST(CellGrid, GoldenPlacesOfCells) {
  const CellGrid grid = Grid(10);
  EXPECT_EQ(grid.Columns(), 7);
  EXPECT_EQ(grid.Rows(), 2);
  EXPECT_EQ(grid.WholeRows(), 5);
  EXPECT_EQ(grid.CellAt(0), (PixelRect{12, 15, 68, 60}));
  EXPECT_EQ(grid.CellAt(6), (PixelRect{420, 15, 476, 60}));
  EXPECT_EQ(grid.CellAt(7), (PixelRect{12, 75, 68, 120}));
  EXPECT_EQ(grid.IconOf(7), (PixelRect{24, 75, 56, 107}));
  EXPECT_EQ(grid.LabelOf(7), (PixelRect{12, 107, 68, 120}));
  EXPECT_EQ(Grid(300, 2).CellAt(14), (PixelRect{12, 15, 68, 60}));
  EXPECT_EQ(Grid(300, 2).CellAt(0), (PixelRect{12, -105, 68, -60}));
}

TEST(CellGrid, AViewThatIsTooSmallHasOneColumnAndOneRow) {
  const CellGrid tiny{.Cell = {}, .View = {1, 1}, .Count = 3, .TopRow = 0};
  EXPECT_EQ(tiny.Columns(), 1);
  EXPECT_EQ(tiny.Rows(), 3);
  EXPECT_EQ(tiny.WholeRows(), 1);
  EXPECT_EQ(tiny.MostTopRow(), 2);
}

TEST(CellGrid, TheBarGoesAsFarAsTheRowsThatDoNotFit) {
  struct Row {
    int count;
    int rows;
    int most;
  };
  const Row rows[] = {{0, 0, 0},     {1, 1, 0},     {35, 5, 0},      {36, 6, 1},
                      {300, 43, 38}, {500, 72, 67}, {3000, 429, 424}};
  for (const Row& row : rows) {
    EXPECT_EQ(Grid(row.count).Rows(), row.rows) << row.count;
    EXPECT_EQ(Grid(row.count).MostTopRow(), row.most) << row.count;
  }
}

TEST(CellGrid, APointFindsItsCellAndNothingBetweenThem) {
  const CellGrid grid = Grid(10);
  EXPECT_EQ(grid.IndexAt({12, 15}), 0);
  EXPECT_EQ(grid.IndexAt({67, 59}), 0);
  EXPECT_EQ(grid.IndexAt({68, 30}), -1);  // the margin beside it
  EXPECT_EQ(grid.IndexAt({30, 60}), -1);  // below it
  EXPECT_EQ(grid.IndexAt({11, 30}), -1);
  EXPECT_EQ(grid.IndexAt({30, 14}), -1);
  EXPECT_EQ(grid.IndexAt({480, 30}), -1);  // behind the last column
  EXPECT_EQ(grid.IndexAt({80, 80}), 8);
  EXPECT_EQ(grid.IndexAt({240, 80}), -1);  // behind the last cell
  EXPECT_EQ(grid.IndexAt({-1, -1}), -1);
  EXPECT_EQ(grid.IndexAt({-200, 30}), -1);
  EXPECT_EQ(Grid(300, 2).IndexAt({12, 15}), 14);
  EXPECT_EQ(Grid(0).IndexAt({20, 20}), -1);
}

TEST(CellGrid, EveryCellIsFoundAtItsOwnMiddle) {
  for (const int top : {0, 3, 38}) {
    const CellGrid grid = Grid(300, top);
    const CellGrid::Range seen = grid.Seen();
    for (int i = seen.First; i < seen.End; ++i) {
      const PixelRect cell = grid.CellAt(i);
      EXPECT_EQ(grid.IndexAt({(cell.left + cell.right) / 2, (cell.top + cell.bottom) / 2}), i);
    }
  }
}

TEST(CellGrid, WhatIsSeenHoldsTheRowsInView) {
  EXPECT_EQ(Grid(0).Seen(), (CellGrid::Range{0, 0}));
  EXPECT_EQ(Grid(10).Seen(), (CellGrid::Range{0, 10}));
  // A sixth row looks in at the bottom.
  EXPECT_EQ(Grid(300).Seen(), (CellGrid::Range{0, 42}));
  EXPECT_EQ(Grid(300, 38).Seen(), (CellGrid::Range{266, 300}));
  // A view that was scrolled before it had fewer cells.
  EXPECT_EQ(Grid(3, 40).Seen(), (CellGrid::Range{3, 3}));
}

TEST(CellGrid, ScrollsNoFurtherThanItMustToShowACell) {
  EXPECT_EQ(Grid(300).TopRowToShow(34), 0);
  EXPECT_EQ(Grid(300).TopRowToShow(35), 1);
  EXPECT_EQ(Grid(300).TopRowToShow(299), 38);
  EXPECT_EQ(Grid(300, 10).TopRowToShow(0), 0);
  EXPECT_EQ(Grid(300, 10).TopRowToShow(69), 9);
  EXPECT_EQ(Grid(300, 10).TopRowToShow(70), 10);
}

TEST(CellByKey, GoldenMoves) {
  struct Row {
    const char* name;
    CellGrid grid;
    int current;
    int key;
    int expected;
  };
  const Row rows[] = {
      {"right", Grid(10), 0, Right, 1},
      {"right goes on in the next row", Grid(10), 6, Right, 7},
      {"right at the end stays", Grid(10), 9, Right, 9},
      {"left", Grid(10), 7, Left, 6},
      {"left at the start stays", Grid(10), 0, Left, 0},
      {"down", Grid(14), 3, Down, 10},
      {"down into a short last row goes to its last cell", Grid(10), 5, Down, 9},
      {"down in the last row stays", Grid(10), 8, Down, 8},
      {"up", Grid(10), 8, Up, 1},
      {"up in the first row stays", Grid(10), 3, Up, 3},
      {"home", Grid(10), 8, Home, 0},
      {"end", Grid(10), 2, End, 9},
      {"page down", Grid(300), 3, PageDown, 38},
      {"page down near the end", Grid(300), 285, PageDown, 299},
      {"page up", Grid(300), 38, PageUp, 3},
      {"page up near the start keeps the column", Grid(300), 17, PageUp, 3},
      {"the first key only comes in", Grid(10), -1, Down, 0},
      {"the first key comes to what is seen", Grid(300, 4), -1, Right, 28},
      {"the first key may be End", Grid(10), -1, End, 9},
      {"any other key stays", Grid(10), 4, forms::key::Space, 4},
      {"any other key marks nothing", Grid(10), -1, forms::key::F5, -1},
      {"without cells", Grid(0), -1, End, -1},
      {"one cell", Grid(1), 0, Down, 0},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(CellByKey(row.grid, row.current, row.key), row.expected) << row.name;
  }
}

TEST(CellByKey, NeverLeavesTheCells) {
  for (int count = 1; count <= 30; ++count) {
    for (int current = -1; current < count; ++current) {
      for (int key = PageUp; key <= Down; ++key) {
        const int next = CellByKey(Grid(count), current, key);
        EXPECT_TRUE(next >= 0 && next < count) << count << " " << current << " " << key;
      }
    }
  }
}

TEST(NextToDraw, DrawsWhatIsSeenBeforeTheRestAndEachCellOnce) {
  const CellGrid grid = Grid(300, 20);
  std::set<int> drawn;
  std::vector<int> order;
  for (int next = 0; next >= 0;) {
    next = NextToDraw(grid, [&](int i) { return drawn.contains(i); });
    if (next < 0) break;
    drawn.insert(next);
    order.push_back(next);
  }
  ASSERT_EQ(order.size(), 300U);
  EXPECT_EQ(order.front(), 140);
  EXPECT_EQ(order[41], 181);
  EXPECT_EQ(order[42], 0);
  EXPECT_EQ(order.back(), 299);
}

}  // namespace
}  // namespace corvelle
