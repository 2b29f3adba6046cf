#include "library/LibraryLayout.h"

#include <gtest/gtest.h>

namespace corvelle {
namespace {

LibraryScene SceneAt(float twips, PixelSize caption, int tab, int bar) {
  return {.Cell = CellMetricsAt(twips, caption),
          .TwipsPerPixel = twips,
          .TabHeight = tab,
          .BoxHeight = caption.height + static_cast<int>(120 / twips),
          .BarWidth = bar};
}

TEST(LibraryLayout, GoldenPlacesAtEachScale) {
  struct Row {
    const char* name;
    LibraryScene scene;
    PixelRect frame;
    PixelRect ok;
    PixelSize inside;
  };
  const Row rows[] = {
      {"96 dpi",
       SceneAt(15, {62, 13}, 22, 17),
       {148, 66, 606, 383},
       {464, 392, 540, 417},
       {632, 426}},
      {"120 dpi",
       SceneAt(12, {77, 16}, 26, 21),
       {185, 81, 754, 437},
       {576, 448, 671, 479},
       {786, 490}},
      {"144 dpi",
       SceneAt(10, {93, 19}, 31, 25),
       {223, 98, 909, 573},
       {695, 587, 809, 625},
       {948, 639}},
      {"192 dpi",
       SceneAt(7.5F, {124, 26}, 40, 34),
       {296, 128, 1210, 760},
       {926, 778, 1078, 828},
       {1262, 846}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const LibraryLayout at = LayOutLibrary(row.scene);
    EXPECT_EQ(at.Frame, row.frame)
        << at.Frame.left << " " << at.Frame.top << " " << at.Frame.right << " " << at.Frame.bottom;
    EXPECT_EQ(at.Ok, row.ok) << at.Ok.left << " " << at.Ok.top << " " << at.Ok.right << " "
                             << at.Ok.bottom;
    EXPECT_EQ(at.Inside, row.inside) << at.Inside.width << " " << at.Inside.height;
  }
}

TEST(LibraryLayout, NothingReachesOverAnotherAndAllIsInside) {
  for (const float twips : {15.0F, 12.0F, 10.0F, 7.5F}) {
    const LibraryLayout at = LayOutLibrary(SceneAt(twips, {70, 14}, 0, 17));
    const PixelRect all[] = {at.Tabs, at.List,   at.Filter,  at.Frame, at.Bar,
                             at.Add,  at.Remove, at.Refresh, at.Ok,    at.Cancel};
    for (const PixelRect& a : all) {
      EXPECT_FALSE(a.IsEmpty());
      EXPECT_GE(a.left, 0);
      EXPECT_LE(a.right, at.Inside.width);
      EXPECT_LE(a.bottom, at.Inside.height);
      for (const PixelRect& b : all) {
        if (&a != &b) {
          EXPECT_TRUE(Intersect(a, b).IsEmpty());
        }
      }
    }
  }
}

TEST(LibraryLayout, TheCellsFillTheirColumnsAndRowsWhole) {
  const LibraryScene scene = SceneAt(15, {62, 13}, 22, 17);
  const LibraryLayout at = LayOutLibrary(scene);
  const CellGrid grid{.Cell = scene.Cell, .View = at.Cells, .Count = 100, .TopRow = 0};
  EXPECT_EQ(grid.Columns(), scene.Columns);
  EXPECT_EQ(grid.WholeRows(), scene.Rows);
}

}  // namespace
}  // namespace corvelle
