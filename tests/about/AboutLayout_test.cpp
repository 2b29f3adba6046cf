#include "about/AboutLayout.h"

#include <gtest/gtest.h>

#include <ostream>

namespace corvelle {

static void PrintTo(const TwipRect& r, std::ostream* out) {
  *out << "{" << r.Left << ", " << r.Top << ", " << r.Width << ", " << r.Height << "}";
}

namespace {

struct Screen {
  const char* name;
  AboutScene scene;
  TwipRect window, tabs, copy, ok;
};

// Text of 13 pixels at 96 dots an inch, 16 at 120, 19 at 144, 25 at 192.
const Screen kScreens[] = {
    {"96 dpi",
     {195, 480, 720, 450, 90, 435},
     {0, 0, 6690, 4680},
     {120, 120, 6360, 3510},
     {4140, 3750, 1125, 375},
     {5355, 3750, 1125, 375}},
    {"120 dpi",
     {192, 480, 720, 456, 96, 420},
     {0, 0, 6696, 4608},
     {120, 120, 6360, 3456},
     {4140, 3696, 1125, 372},
     {5355, 3696, 1125, 372}},
    {"144 dpi",
     {190, 470, 720, 450, 100, 420},
     {0, 0, 6700, 4570},
     {120, 120, 6360, 3420},
     {4140, 3660, 1125, 370},
     {5355, 3660, 1125, 370}},
    {"192 dpi",
     {187.5F, 472.5F, 720, 450, 90, 412.5F},
     {0, 0, 6690, 4515},
     {120, 120, 6360, 3375},
     {4140, 3615, 1125, 367.5F},
     {5355, 3615, 1125, 367.5F}},
};

bool Within(const TwipRect& inner, float width, float height) {
  return inner.Left >= 0 && inner.Top >= 0 && inner.Right() <= width && inner.Bottom() <= height;
}

}  // namespace

TEST(AboutLayout, GoldenPlaces) {
  for (const Screen& screen : kScreens) {
    const AboutLayout l = LayOutAbout(screen.scene);
    EXPECT_EQ(l.Window, screen.window) << screen.name;
    EXPECT_EQ(l.TabStrip1, screen.tabs) << screen.name;
    EXPECT_EQ(l.cmdCopy, screen.copy) << screen.name;
    EXPECT_EQ(l.cmdOK, screen.ok) << screen.name;
  }
}

TEST(AboutPanels, GoldenPlaces) {
  const AboutPanels l = LayOutPanels({6240, 3150}, kScreens[0].scene);
  EXPECT_EQ(l.Drive1, (TwipRect{120, 120, 1500, 315}));
  EXPECT_EQ(l.InfoBelowDrives, (TwipRect{120, 525, 6000, 2505}));
  EXPECT_EQ(l.InfoAlone, (TwipRect{120, 120, 6000, 2910}));
  EXPECT_EQ(l.picCorvelle, (TwipRect{120, 120, 6000, 900}));
  EXPECT_EQ(l.picLogo, (TwipRect{120, 90, 720, 720}));
  EXPECT_EQ(l.picTitle, (TwipRect{960, 210, 4920, 480}));
  EXPECT_EQ(l.lblVersion, (TwipRect{120, 1110, 6000, 195}));
  EXPECT_EQ(l.lblCompany, (TwipRect{120, 1305, 6000, 195}));
  EXPECT_EQ(l.lblCopyright, (TwipRect{120, 1500, 6000, 195}));
  EXPECT_EQ(l.Frame1, (TwipRect{120, 1935, 6000, 1095}));
  EXPECT_EQ(l.txtCopyright, (TwipRect{90, 195, 5820, 810}));
}

TEST(AboutPanels, HaveRoomForAllLinesAndCoverNothingWhateverTheScale) {
  for (const Screen& screen : kScreens) {
    const AboutScene& scene = screen.scene;
    // A page is what the tabs leave of the strip: here two lines of it.
    const TwipSize page = {screen.tabs.Width - 120, screen.tabs.Height - 2 * scene.TextHeight};
    const AboutPanels l = LayOutPanels(page, scene);
    for (const TwipRect& place :
         {l.Drive1, l.InfoBelowDrives, l.InfoAlone, l.picCorvelle, l.lblVersion, l.lblCompany,
          l.lblCopyright, l.lblMail, l.lblURL, l.Frame1}) {
      EXPECT_TRUE(Within(place, page.Width, page.Height)) << screen.name;
    }
    EXPECT_TRUE(Within(l.txtCopyright, l.Frame1.Width, l.Frame1.Height)) << screen.name;
    EXPECT_TRUE(Within(l.picTitle, l.picCorvelle.Width, l.picCorvelle.Height)) << screen.name;
    EXPECT_LE(l.Drive1.Bottom(), l.InfoBelowDrives.Top) << screen.name;
    EXPECT_LE(l.picLogo.Right(), l.picTitle.Left) << screen.name;
    EXPECT_LE(l.lblMail.Right(), l.lblURL.Left) << screen.name;
    EXPECT_LE(l.lblURL.Bottom(), l.Frame1.Top) << screen.name;
    // Seven lines, one and a half high each, below the drive list too (there are six of them).
    EXPECT_GE(l.InfoAlone.Height, 7 * 1.5F * scene.TextHeight) << screen.name;
    EXPECT_GE(l.InfoBelowDrives.Height, 6 * 1.5F * scene.TextHeight) << screen.name;
    EXPECT_GE(l.txtCopyright.Height, 3 * scene.TextHeight) << screen.name;
  }
}

}  // namespace corvelle
