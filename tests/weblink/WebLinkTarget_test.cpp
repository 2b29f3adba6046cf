#include "weblink/WebLinkTarget.h"

#include <gtest/gtest.h>

#include "base/CodePage.h"
#include "base/Geometry.h"
#include "core/MenuRecord.h"
#include "weblink/WebLinkLayout.h"

namespace corvelle {
namespace {

using namespace std::string_literals;

const Windows1252 kAnsi;

TEST(LinkTag, SaysWhereTheEntryGoes) {
  struct Row {
    const char* name;
    std::string tag;
    std::string file;
    std::string expected;
    WebLinkTarget target;
  };
  const Row rows[] = {
      {"an item", "F3", "C:\\M\\BMENU002.MNU", "F3", {LinkPlace::MenuItem, "F3", ""}},
      {"a single button",
       "SingleButtons",
       "C:\\M\\BMENU001.BTN",
       "SingleButtons",
       {LinkPlace::SingleRow, "", ""}},
      {"behind the single buttons",
       "SingleButtons",
       "",
       "SingleButtons\0C:\\M\\new.BTN"s,
       {LinkPlace::NewSingle, "", "C:\\M\\new.BTN"}},
      {"a button",
       "3",
       "C:\\M\\BMENU002.MNU",
       "3\0C:\\M\\BMENU002.MNU"s,
       {LinkPlace::MenuEnd, "F3", "C:\\M\\BMENU002.MNU"}},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(LinkTag(row.tag, row.file, "C:\\M\\new.BTN"), row.expected) << row.name;
    EXPECT_EQ(ParseLinkTag(row.expected), row.target) << row.name;
  }
}

TEST(LinkTitle, IsTheGivenOneOrElseWhatCanBeSeenOfTheAddress) {
  EXPECT_EQ(LinkTitle("  A page ", "http://example.com"), "A page");
  EXPECT_EQ(LinkTitle("", "http://example.com/a"), "example.com/a");
  EXPECT_EQ(LinkTitle("  ", "https://example.com"), "example.com");
  EXPECT_EQ(LinkTitle("", "example.com"), "example.com");
  EXPECT_EQ(LinkTitle("", ""), "");
}

TEST(FitsRecord, CountsStoredBytes) {
  EXPECT_TRUE(FitsRecord(std::string(260, 'a'), kAnsi));
  EXPECT_FALSE(FitsRecord(std::string(261, 'a'), kAnsi));
  EXPECT_TRUE(FitsRecord("", kAnsi));
}

TEST(PlaceOfRecord, FollowsTheItemThatWasDroppedOn) {
  const auto record = [](const char* title) { return FormatRecord({title, "", "x"}, kAnsi); };
  const std::string menu = record("Menu") + record("A") + record("B") + record("A");
  EXPECT_EQ(PlaceOfRecord(menu, record("B"), 3), 3);
  EXPECT_EQ(PlaceOfRecord(menu, record("B"), 2), 3);  // moved on meanwhile
  EXPECT_EQ(PlaceOfRecord(menu, record("A"), 2), 2);
  EXPECT_EQ(PlaceOfRecord(menu, record("A"), 4), 4);  // the nearest of two
  EXPECT_EQ(PlaceOfRecord(menu, record("C"), 3), 0);
  EXPECT_EQ(PlaceOfRecord(menu, record("Menu"), 2), 0);  // the button itself is no item
  EXPECT_EQ(PlaceOfRecord(menu, "", 3), 3);
  EXPECT_EQ(PlaceOfRecord("", record("A"), 2), 0);
}

// Pixels of each screen.
TEST(WebLinkLayout, GoldenPlacesAtEachScale) {
  struct Row {
    const char* name;
    float twips;
    int label;
    int text;
    int check;
    PixelRect title;
    PixelRect ok;
    PixelSize inside;
  };
  const Row rows[] = {
      {"96 dpi", 15, 45, 13, 190, {65, 12, 365, 33}, {197, 99, 277, 124}, {377, 136}},
      {"120 dpi", 12, 56, 16, 236, {81, 15, 456, 41}, {246, 123, 346, 154}, {471, 169}},
      {"144 dpi", 10, 67, 19, 285, {97, 18, 547, 49}, {295, 147, 415, 185}, {565, 203}},
      {"192 dpi", 7.5F, 90, 26, 380, {130, 24, 730, 66}, {394, 198, 554, 248}, {754, 272}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const auto twips = [&](int pixels) { return static_cast<float>(pixels) * row.twips; };
    const WebLinkLayout at = LayOutWebLink({.LabelWidth = twips(row.label),
                                            .TextHeight = twips(row.text),
                                            .CheckWidth = twips(row.check)});
    const auto pixel = [&](float x) { return static_cast<int>(x / row.twips + 0.5F); };
    const auto rect = [&](const TwipRect& r) {
      return PixelRect{pixel(r.Left), pixel(r.Top), pixel(r.Right()), pixel(r.Bottom())};
    };
    EXPECT_EQ(rect(at.Title), row.title);
    EXPECT_EQ(rect(at.Ok), row.ok);
    EXPECT_EQ((PixelSize{pixel(at.Inside.Width), pixel(at.Inside.Height)}), row.inside);
    // Nothing reaches over another.
    EXPECT_LE(at.TitleLabel.Right(), at.Title.Left);
    EXPECT_LE(at.Title.Bottom(), at.Address.Top);
    EXPECT_LE(at.Address.Bottom(), at.Check.Top);
    EXPECT_LE(at.Check.Bottom(), at.Ok.Top);
    EXPECT_LE(at.Ok.Right(), at.Cancel.Left);
    EXPECT_LE(at.Cancel.Right(), at.Inside.Width);
  }
}

TEST(WebLinkLayout, AWideCheckBoxWidensTheWindow) {
  const WebLinkLayout at = LayOutWebLink({.LabelWidth = 600, .CheckWidth = 9000});
  EXPECT_LE(at.Check.Right(), at.Cancel.Right());
}

}  // namespace
}  // namespace corvelle
