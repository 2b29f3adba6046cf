#include "search/NetSearchLayout.h"

#include <gtest/gtest.h>

#include <ostream>

namespace corvelle {

static void PrintTo(const TwipRect& r, std::ostream* out) {
  *out << "{" << r.Left << ", " << r.Top << ", " << r.Width << ", " << r.Height << "}";
}

namespace {

/// A screen's scale with the sizes that the system's dialog font has there.
struct Screen {
  const char* name;
  NetSearchScene scene;
};

// Text of 13 pixels at 96 dots an inch, 16 at 120, 19 at 144, 25 at 192.
const Screen kScreens[] = {
    {"96 dpi", {195, 945, 390, 90, 435}},
    {"120 dpi", {192, 948, 396, 96, 420}},
    {"144 dpi", {190, 940, 390, 100, 420}},
    {"192 dpi", {187.5F, 937.5F, 390, 90, 412.5F}},
};

bool Within(const TwipRect& inner, const TwipRect& outer) {
  return inner.Left >= 0 && inner.Top >= 0 && inner.Right() <= outer.Width &&
         inner.Bottom() <= outer.Height;
}

}  // namespace

TEST(NetSearchLayout, GoldenPlaces) {
  struct Row {
    TwipRect window, frame, inside, text, engine, find, clear;
  };
  const Row rows[] = {
      {{0, 0, 5500, 2137.5F},
       {120, 60, 5170, 1027.5F},
       {120, 187.5F, 4930, 720},
       {1035, 0, 3895, 315},
       {1035, 405, 3895, 315},
       {2950, 1207.5F, 1125, 375},
       {4165, 1207.5F, 1125, 375}},
      {{0, 0, 5500, 2112},
       {120, 60, 5164, 1020},
       {120, 186, 4924, 714},
       {1038, 0, 3886, 312},
       {1038, 402, 3886, 312},
       {2944, 1200, 1125, 372},
       {4159, 1200, 1125, 372}},
      {{0, 0, 5500, 2105},
       {120, 60, 5160, 1015},
       {120, 185, 4920, 710},
       {1030, 0, 3890, 310},
       {1030, 400, 3890, 310},
       {2940, 1195, 1125, 370},
       {4155, 1195, 1125, 370}},
      {{0, 0, 5500, 2088.75F},
       {120, 60, 5170, 1008.75F},
       {120, 183.75F, 4930, 705},
       {1027.5F, 0, 3902.5F, 307.5F},
       {1027.5F, 397.5F, 3902.5F, 307.5F},
       {2950, 1188.75F, 1125, 367.5F},
       {4165, 1188.75F, 1125, 367.5F}},
  };
  for (std::size_t i = 0; i < std::size(kScreens); ++i) {
    const NetSearchLayout l = LayOutNetSearch(kScreens[i].scene);
    EXPECT_EQ(l.Window, rows[i].window) << kScreens[i].name;
    EXPECT_EQ(l.Frame1, rows[i].frame) << kScreens[i].name;
    EXPECT_EQ(l.Inside, rows[i].inside) << kScreens[i].name;
    EXPECT_EQ(l.cmbText, rows[i].text) << kScreens[i].name;
    EXPECT_EQ(l.cmbEngine, rows[i].engine) << kScreens[i].name;
    EXPECT_EQ(l.cmdFind, rows[i].find) << kScreens[i].name;
    EXPECT_EQ(l.cmdClear, rows[i].clear) << kScreens[i].name;
  }
}

TEST(NetSearchLayout, NothingReachesOverAnotherWhateverTheFont) {
  for (float text = 120; text <= 600; text += 7.5F) {
    const NetSearchScene scene = {text, text * 5, text * 3, 90, 435};
    const NetSearchLayout l = LayOutNetSearch(scene);
    const TwipRect inside = {0, 0, l.Window.Width - 90, l.Window.Height - 435};
    EXPECT_FLOAT_EQ(l.Window.Width, 5500);
    for (const TwipRect& place : {l.Frame1, l.cmdFind, l.cmdClear}) {
      EXPECT_TRUE(Within(place, inside)) << text;
    }
    EXPECT_TRUE(Within(l.Inside, l.Frame1)) << text;
    for (const TwipRect& place : {l.Label1, l.cmbText, l.Label2, l.cmbEngine}) {
      EXPECT_TRUE(Within(place, l.Inside)) << text;
    }
    EXPECT_LE(l.Label1.Right(), l.cmbText.Left) << text;
    EXPECT_LE(l.Label2.Right(), l.cmbEngine.Left) << text;
    EXPECT_LE(l.cmbText.Bottom(), l.cmbEngine.Top) << text;
    EXPECT_LE(l.Frame1.Bottom(), l.cmdFind.Top) << text;
    EXPECT_LE(l.cmdFind.Right(), l.cmdClear.Left) << text;
    EXPECT_GE(l.cmdFind.Width, scene.CaptionWidth) << text;
  }
}

}  // namespace corvelle
