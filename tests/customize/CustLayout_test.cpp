#include "customize/CustLayout.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace corvelle {
namespace {

struct Named {
  const char* name;
  TwipRect at;
};

std::vector<Named> OnWindow(const CustLayout& l) {
  return {{"head", l.MenuTree},      {"tree", l.Tree}, {"bar", l.ToolBar},
          {"side", l.PropertiesBox}, {"save", l.Save}, {"exit", l.Exit}};
}
std::vector<Named> InSide(const CustLayout& l) {
  return {{"properties", l.Properties},
          {"files", l.Files},
          {"ok", l.Ok},
          {"add", l.Add},
          {"from", l.From}};
}
std::vector<Named> InFiles(const CustLayout& l) {
  return {{"title label", l.TitleLabel},
          {"icon label", l.IconLabel},
          {"file label", l.FileLabel},
          {"title", l.Title},
          {"icon", l.Icon},
          {"file", l.File},
          {"library", l.Library},
          {"all files", l.AllFiles},
          {"select file", l.SelectFile},
          {"select folder", l.SelectFolder}};
}

std::string Text(const TwipRect& at) {
  const auto whole = [](float twips) { return std::to_string(static_cast<int>(twips)); };
  return whole(at.Left) + "," + whole(at.Top) + " " + whole(at.Width) + "x" + whole(at.Height);
}

bool Overlap(const TwipRect& a, const TwipRect& b) {
  return a.Left < b.Right() && b.Left < a.Right() && a.Top < b.Bottom() && b.Top < a.Bottom();
}

void ExpectNeat(const std::vector<Named>& controls, float width, float height, float one,
                const std::string& scene) {
  for (const Named& a : controls) {
    EXPECT_GT(a.at.Width, 0) << scene << a.name;
    EXPECT_GT(a.at.Height, 0) << scene << a.name;
    EXPECT_GE(a.at.Left, 0) << scene << a.name;
    EXPECT_LE(a.at.Right(), width + one) << scene << a.name;
    EXPECT_LE(a.at.Bottom(), height + one) << scene << a.name;
    for (const float edge : {a.at.Left, a.at.Top, a.at.Width, a.at.Height}) {
      EXPECT_FLOAT_EQ(edge / one, std::round(edge / one)) << scene << a.name;
    }
    for (const Named& b : controls) {
      EXPECT_TRUE(a.name == b.name || !Overlap(a.at, b.at)) << scene << a.name << " " << b.name;
    }
  }
}

TEST(ArrangeCustomize, GoldenPlacesOnFourScreens) {
  struct Row {
    float one;
    const char* tree;
    const char* bar;
    const char* side;
    const char* icon;
    const char* library;
    const char* save;
    const char* exit;
  };
  const Row rows[] = {
      {15, "90,330 2805x4575", "90,4995 4575x420", "3075,90 4770x4815", "0,870 3315x315",
       "3405,870 660x315", "4755,5040 1500x375", "6345,5040 1500x375"},
      {12, "96,336 2796x4608", "96,5040 4560x372", "3072,96 4764x4848", "0,876 3312x312",
       "3408,876 660x312", "4752,5040 1500x372", "6336,5040 1500x372"},
      {10, "90,330 2800x4620", "90,5040 4570x370", "3070,90 4770x4860", "0,870 3320x320",
       "3410,870 660x320", "4750,5040 1500x370", "6340,5040 1500x370"},
      {7.5F, "90,330 2797x4612", "90,5032 4567x375", "3067,90 4770x4852", "0,870 3315x315",
       "3405,870 660x315", "4747,5032 1500x375", "6337,5032 1500x375"},
  };
  for (const Row& row : rows) {
    const CustLayout at = ArrangeCustomize({.TwipsPerPixel = row.one});
    EXPECT_EQ(Text(at.Tree), row.tree) << row.one;
    EXPECT_EQ(Text(at.ToolBar), row.bar) << row.one;
    EXPECT_EQ(Text(at.PropertiesBox), row.side) << row.one;
    EXPECT_EQ(Text(at.Icon), row.icon) << row.one;
    EXPECT_EQ(Text(at.Library), row.library) << row.one;
    EXPECT_EQ(Text(at.Save), row.save) << row.one;
    EXPECT_EQ(Text(at.Exit), row.exit) << row.one;
  }
}

TEST(ArrangeCustomize, NothingOverlapsAtAnySizeThatTheUserCanMake) {
  for (const float one : {15.0F, 12.0F, 10.0F, 7.5F}) {
    for (float width = kCustLeastWidth - 200; width < 20000; width += 777) {
      for (float height = kCustLeastHeight - 1000; height < 15000; height += 777) {
        for (const bool finding : {false, true}) {
          const CustLayout at = ArrangeCustomize({width, height, one, finding, finding});
          const std::string scene = std::to_string(one) + " " + std::to_string(width) + "x" +
                                    std::to_string(height) + " ";
          std::vector<Named> window = OnWindow(at);
          if (finding) {
            window.push_back({"find", at.Find});
            window.push_back({"show", at.ShowDraft});
            window.push_back({"forget", at.ForgetDraft});
          }
          ExpectNeat(window, width, height, one, scene);
          ExpectNeat(InSide(at), at.PropertiesBox.Width, at.PropertiesBox.Height, one, scene);
          ExpectNeat(InFiles(at), at.Files.Width, at.Files.Height, one, scene);
          ExpectNeat({{"files", at.BrowseFiles}, {"folders", at.BrowseFolders}}, at.Add.Width,
                     at.Add.Height, one, scene);
          if (testing::Test::HasFailure()) return;
        }
      }
    }
  }
}

TEST(ArrangeCustomize, OfMoreWidthTheTreeTakesThreeQuarters) {
  const CustLayout small = ArrangeCustomize({});
  const CustLayout wide = ArrangeCustomize({.Width = 7930 + 4000});
  EXPECT_NEAR(wide.Tree.Width - small.Tree.Width, 3000, 15);
  EXPECT_NEAR(wide.PropertiesBox.Width - small.PropertiesBox.Width, 1000, 15);
  EXPECT_NEAR(wide.Icon.Width - small.Icon.Width, 1000, 15);
}

TEST(ArrangeCustomize, TheBoxesHaveTheirDesignedPlacesAtFirst) {
  const CustLayout at = ArrangeCustomize({});
  EXPECT_FLOAT_EQ(at.Title.Left, 0);
  EXPECT_FLOAT_EQ(at.Title.Top, 210);
  EXPECT_FLOAT_EQ(at.Icon.Top, 870);
  EXPECT_FLOAT_EQ(at.File.Top, 1530);
  EXPECT_FLOAT_EQ(at.Title.Width, 3315);
  EXPECT_FLOAT_EQ(at.Title.Height, 315);
}

}  // namespace
}  // namespace corvelle
