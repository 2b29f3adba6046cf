#include "properties/PropertiesLayout.h"

#include <gtest/gtest.h>

#include <string>

namespace corvelle {
namespace {

std::string Text(const PixelRect& r) {
  return std::to_string(r.left) + "," + std::to_string(r.top) + " " + std::to_string(r.Width()) +
         "x" + std::to_string(r.Height());
}

struct Named {
  const char* name;
  PixelRect at;
};

std::vector<Named> OnForm(const PropertiesLayout& l) {
  return {{"tabs", l.TabStrip}, {"ok", l.Ok}, {"cancel", l.Cancel}, {"apply", l.Apply}};
}
std::vector<Named> OnItem(const PropertiesLayout& l) {
  return {{"picture", l.Picture},
          {"heading", l.Heading},
          {"title label", l.TitleLabel},
          {"title", l.Title},
          {"icon label", l.IconLabel},
          {"icon", l.Icon},
          {"library", l.Library},
          {"all files", l.AllFiles},
          {"command label", l.CommandLabel},
          {"missing", l.Missing},
          {"command", l.Command},
          {"select file", l.SelectFile},
          {"select folder", l.SelectFolder},
          {"frame", l.Frame}};
}
std::vector<Named> OnButtons(const PropertiesLayout& l) {
  return {{"tree", l.Tree},
          {"up", l.Up},
          {"down", l.Down},
          {"hint", l.Hint},
          {"hint command", l.HintCommand}};
}
std::vector<Named> OnEdges(const PropertiesLayout& l) {
  return {{"screen", l.Screen},
          {"top", l.Top},
          {"bottom", l.Bottom},
          {"left", l.Left},
          {"right", l.Right}};
}

TEST(PropertiesLayout, GoldenPlacesAtEachScale) {
  struct Row {
    int dpi;
    const char* inside;
    const char* page;
    const char* apply;
    const char* title;
    const char* library;
    const char* tree;
    const char* screen;
    const char* right;
  };
  const Row rows[] = {
      {96, "384x330", "14,34 356x248", "300,296 76x25", "10,64 336x21", "240,108 52x21",
       "10,10 252x194", "84,53 188x141", "282,111 64x25"},
      {120, "480x413", "18,43 445x310", "375,370 95x31", "13,80 420x26", "300,135 65x26",
       "13,13 315x243", "105,67 235x176", "353,139 80x31"},
      {144, "576x495", "21,51 534x372", "450,444 114x38", "15,96 504x32", "360,162 78x32",
       "15,15 378x291", "126,80 282x212", "423,167 96x38"},
      {192, "768x660", "28,68 712x496", "600,592 152x50", "20,128 672x42", "480,216 104x42",
       "20,20 504x388", "168,107 376x282", "564,222 128x50"},
  };
  for (const Row& row : rows) {
    const PropertiesLayout l = LayOutProperties({.Dpi = row.dpi, .Screen = {1024, 768}});
    const std::string inside =
        std::to_string(l.Inside.width) + "x" + std::to_string(l.Inside.height);
    EXPECT_EQ(inside, row.inside) << row.dpi;
    EXPECT_EQ(Text(l.Page), row.page) << row.dpi;
    EXPECT_EQ(Text(l.Apply), row.apply) << row.dpi;
    EXPECT_EQ(Text(l.Title), row.title) << row.dpi;
    EXPECT_EQ(Text(l.Library), row.library) << row.dpi;
    EXPECT_EQ(Text(l.Tree), row.tree) << row.dpi;
    EXPECT_EQ(Text(l.Screen), row.screen) << row.dpi;
    EXPECT_EQ(Text(l.Right), row.right) << row.dpi;
  }
}

TEST(PropertiesLayout, NothingOverlapsAndAllLiesInside) {
  for (const int dpi : {96, 120, 144, 168, 192}) {
    for (const PixelSize screen : {PixelSize{1024, 768}, {1920, 1080}, {1080, 1920}}) {
      const PropertiesLayout l = LayOutProperties({.Dpi = dpi, .Screen = screen});
      const PixelRect form{0, 0, l.Inside.width, l.Inside.height};
      const PixelRect page{0, 0, l.Page.Width(), l.Page.Height()};
      EXPECT_TRUE(Union(l.TabStrip, l.Page) == l.TabStrip) << dpi;
      const std::pair<PixelRect, std::vector<Named>> groups[] = {
          {form, OnForm(l)},
          {page, OnItem(l)},
          {page, OnButtons(l)},
          {page, OnEdges(l)},
          {{0, 0, l.Frame.Width(), l.Frame.Height()}, {{"file", l.File}, {"folder", l.Folder}}}};
      for (const auto& [inside, group] : groups) {
        for (std::size_t i = 0; i < group.size(); ++i) {
          EXPECT_TRUE(Union(inside, group[i].at) == inside) << dpi << group[i].name;
          for (std::size_t j = 0; j < i; ++j) {
            EXPECT_TRUE(Intersect(group[i].at, group[j].at).IsEmpty())
                << dpi << group[i].name << " and " << group[j].name;
          }
        }
      }
    }
  }
}

TEST(PropertiesLayout, TheSmallScreenHasTheShapeOfTheScreen) {
  const PropertiesLayout wide = LayOutProperties({.Screen = {1920, 1080}});
  EXPECT_EQ(Text(wide.Screen), "84,71 188x106");
  const PropertiesLayout tall = LayOutProperties({.Screen = {1080, 1920}});
  EXPECT_EQ(Text(tall.Screen), "133,44 90x160");
}

}  // namespace
}  // namespace corvelle
