#include "toolbar/singles/SingleLayout.h"

#include <gtest/gtest.h>

#include "base/Numbers.h"
#include "toolbar/RuleText.h"

namespace corvelle {
namespace {

/// One row of small icons, or two rows in a strip for icons of 32 pixels.
SingleScene Scene(Edge at, bool twoRows, float twips) {
  const float pixels = twoRows ? 38 : 22;
  return {.Scale = {IsVertical(at), twips, twips},
          .At = at,
          .TwoRows = twoRows,
          .IconSize = 16,
          .Template = {pixels * twips, pixels * twips}};
}

/// The places of entries of these kinds ('b' button, 's' separator), one behind the other.
std::vector<TwipRect> Places(const SingleScene& scene, const std::string& kinds) {
  std::vector<TwipRect> places;
  SingleRect previous = SingleTemplate(scene.Scale);
  for (const char kind : kinds) {
    SingleRect next;
    next.Kind = kind == 's' ? SingleKind::Separator : SingleKind::Button;
    const TwipRect place = PlaceSingle(scene, previous, next.Kind);
    next.Left = place.Left;
    next.Top = place.Top;
    next.Width = place.Width;
    next.Height = place.Height;
    places.push_back(place);
    previous = next;
  }
  return places;
}

/// Expected places are in pixels.
void ExpectPlaces(const char* name, Edge at, bool twoRows, const std::string& kinds,
                  const std::vector<TwipRect>& expected) {
  for (const float twips : {15.0F, 12.0F}) {
    const std::vector<TwipRect> places = Places(Scene(at, twoRows, twips), kinds);
    ASSERT_EQ(places.size(), expected.size()) << name;
    for (std::size_t i = 0; i < places.size(); ++i) {
      const TwipRect want{expected[i].Left * twips, expected[i].Top * twips,
                          expected[i].Width * twips, expected[i].Height * twips};
      EXPECT_EQ(places[i], want) << name << ", entry " << i + 1 << " at " << twips
                                 << " twips: " << Text(places[i]);
    }
  }
}

TEST(PlaceSingle, OneRowOnEachEdge) {
  for (const Edge at : {Edge::Top, Edge::Bottom}) {
    ExpectPlaces("lying", at, false, "bbsb",
                 {{5, 0, 16, 22}, {23, 0, 16, 22}, {41, 0, 6, 22}, {49, 0, 16, 22}});
  }
  for (const Edge at : {Edge::Left, Edge::Right}) {
    ExpectPlaces("upright", at, false, "bbsb",
                 {{0, 5, 22, 16}, {0, 23, 22, 16}, {0, 41, 22, 6}, {0, 49, 22, 16}});
  }
}

TEST(PlaceSingle, TwoRowsOnEachEdge) {
  for (const Edge at : {Edge::Top, Edge::Bottom}) {
    ExpectPlaces("lying", at, true, "bbb",
                 {{5, 2.5F, 16, 16}, {5, 19.5F, 16, 16}, {23, 2.5F, 16, 16}});
  }
  ExpectPlaces("left", Edge::Left, true, "bbb",
               {{1.5F, 5, 16, 16}, {19.5F, 5, 16, 16}, {1.5F, 23, 16, 16}});
  ExpectPlaces("right", Edge::Right, true, "bbb",
               {{2.5F, 5, 16, 16}, {20.5F, 5, 16, 16}, {2.5F, 23, 16, 16}});
}

TEST(PlaceSingle, InTwoRowsASeparatorBeginsANewRow) {
  ExpectPlaces("lying, behind one", Edge::Top, true, "bsb",
               {{5, 2.5F, 16, 16}, {23, 0, 6, 38}, {31, 2.5F, 16, 16}});
  ExpectPlaces("lying, behind two", Edge::Top, true, "bbsbb",
               {{5, 2.5F, 16, 16},
                {5, 19.5F, 16, 16},
                {23, 0, 6, 38},
                {31, 2.5F, 16, 16},
                {31, 19.5F, 16, 16}});
  ExpectPlaces("left", Edge::Left, true, "bsb",
               {{1.5F, 5, 16, 16}, {0, 23, 38, 6}, {1.5F, 31, 16, 16}});
  ExpectPlaces("first of all", Edge::Left, true, "sb", {{0, 5, 38, 6}, {1.5F, 13, 16, 16}});
}

TEST(PlaceSingle, AnyNumberOfButtonsFillsTwoRowsInTurns) {
  for (const Edge at : {Edge::Top, Edge::Bottom, Edge::Left, Edge::Right}) {
    for (const int large : {18, 24, 32, 48}) {
      SingleScene scene = Scene(at, true, 12);
      const float side = static_cast<float>(large + 6) * 12;
      scene.Template = {side, side};
      const std::vector<TwipRect> places = Places(scene, std::string(20, 'b'));
      for (std::size_t i = 2; i < places.size(); ++i) {
        const bool upright = IsVertical(at);
        EXPECT_EQ(upright ? places[i].Left : places[i].Top,
                  upright ? places[i - 2].Left : places[i - 2].Top)
            << large;
        EXPECT_GT(upright ? places[i].Top : places[i].Left,
                  upright ? places[i - 2].Top : places[i - 2].Left)
            << large;
      }
    }
  }
}

TEST(SinglesLength, SixPixelsFollowTheLastEntry) {
  const StripScale lying{false, 15, 12};
  const StripScale upright{true, 15, 12};
  EXPECT_EQ(SinglesLength(lying, SingleTemplate(lying)), 9 * 15);
  EXPECT_EQ(SinglesLength(upright, SingleTemplate(upright)), 9 * 12);
  SingleRect last;
  last.Left = 100;
  last.Width = 240;
  last.Top = 50;
  last.Height = 192;
  EXPECT_EQ(SinglesLength(lying, last), 430);
  EXPECT_EQ(SinglesLength(upright, last), 314);
}

TEST(SeparatorLines, LieAcrossTheStripOnePixelApart) {
  const StripScale lying{false, 15, 15};
  const StripScale upright{true, 15, 12};
  EXPECT_EQ(SeparatorPosition(lying, {600, 0, 90, 330}), 630);
  EXPECT_EQ(SeparatorPosition(upright, {0, 600, 330, 72}), 624);
  EXPECT_EQ(SeparatorLines(lying, 630, {5000, 330}),
            (LinePair{{630, 0, 630, 330}, {645, 0, 645, 330}}));
  EXPECT_EQ(SeparatorLines(upright, 624, {330, 5000}),
            (LinePair{{0, 624, 330, 624}, {0, 636, 330, 636}}));
}

TEST(HoverLines, StandInTheGapsBesideTheButton) {
  EXPECT_EQ(HoverLines({false, 15, 15}, {75, 0, 240, 330}),
            (LinePair{{60, 0, 60, 330}, {315, 0, 315, 330}}));
  EXPECT_EQ(HoverLines({true, 12, 12}, {0, 60, 264, 192}),
            (LinePair{{0, 48, 264, 48}, {0, 252, 264, 252}}));
}

TEST(HoverLines, InTwoRowsTheyBeginWhereTheIconDoes) {
  for (const float twips : {15.0F, 12.0F}) {
    const SingleScene scene = Scene(Edge::Left, true, twips);
    for (const TwipRect& place : Places(scene, "bb")) {
      const PixelPoint icon = SingleIconPlace(scene, place, Placement::AtEdge, 7);
      const LinePair lines = HoverLines(scene.Scale, place);
      EXPECT_EQ(RoundToInt(lines.Line1.X1 / twips), icon.x) << twips;
      EXPECT_EQ(RoundToInt(lines.Line2.X2 / twips), icon.x + 16) << twips;
    }
  }
}

TEST(SingleIconPlace, OneRowLinesUpWithTheMenuButtons) {
  for (const float twips : {15.0F, 12.0F}) {
    for (const int topCut : {4, 7}) {
      for (const Placement where : {Placement::TopHugging, Placement::AtEdge}) {
        const SingleScene scene = Scene(Edge::Top, false, twips);
        const TwipRect place = PlaceSingle(scene, SingleTemplate(scene.Scale), SingleKind::Button);
        const PixelPoint icon = SingleIconPlace(scene, place, where, topCut);
        const PixelPoint beside = IconPlace({.Button = {0, 0, 23 * twips, 22 * twips},
                                             .TwipsX = twips,
                                             .TwipsY = twips,
                                             .Where = where,
                                             .TopCut = topCut});
        EXPECT_EQ(icon.y, beside.y) << twips << ' ' << topCut;
        EXPECT_EQ(icon.x, 5);
      }
    }
  }
}

TEST(SingleIconPlace, UprightTheIconIsInTheMiddle) {
  const SingleScene scene = Scene(Edge::Left, false, 15);
  EXPECT_EQ(SingleIconPlace(scene, {0, 75, 330, 240}, Placement::AtEdge, 4), (PixelPoint{3, 5}));
}

TEST(SingleIconPlace, InTwoRowsNoIconTouchesTheOther) {
  for (const float twips : {15.0F, 12.0F}) {
    for (const Edge at : {Edge::Top, Edge::Bottom, Edge::Left, Edge::Right}) {
      for (const Placement where : {Placement::TopHugging, Placement::AtEdge}) {
        if (where == Placement::TopHugging && at != Edge::Top) continue;
        const SingleScene scene = Scene(at, true, twips);
        const std::vector<TwipRect> places = Places(scene, "bb");
        const PixelPoint first = SingleIconPlace(scene, places[0], where, 7);
        const PixelPoint second = SingleIconPlace(scene, places[1], where, 7);
        const int apart = IsVertical(at) ? second.x - first.x : second.y - first.y;
        EXPECT_GE(apart, 16) << twips;
        const int last = (IsVertical(at) ? second.x : second.y) + 16;
        EXPECT_LE(last, 38) << twips;
      }
    }
  }
}

TEST(SingleIconPlace, InTwoRowsUnderTheTopOfTheScreenTheIconIsTwoPixelsLower) {
  for (const float twips : {15.0F, 12.0F}) {
    const SingleScene scene = Scene(Edge::Top, true, twips);
    const TwipRect place = Places(scene, "bb")[0];
    const PixelPoint whole = SingleIconPlace(scene, place, Placement::AtEdge, 7);
    EXPECT_EQ(SingleIconPlace(scene, place, Placement::TopHugging, 4), whole) << twips;
    EXPECT_EQ(SingleIconPlace(scene, place, Placement::TopHugging, 7),
              (PixelPoint{whole.x, whole.y + 2}))
        << twips;
  }
}

TEST(SingleAt, AnEntryHoldsItsUpperLeftSidesOnly) {
  std::vector<SingleRect> singles(3);
  singles[0] = SingleTemplate({});
  singles[1].Left = 75;
  singles[1].Width = 240;
  singles[1].Height = 330;
  singles[2].Left = 345;
  singles[2].Width = 240;
  singles[2].Height = 330;
  EXPECT_EQ(SingleAt(singles, {10, 10}), 0);  // the template
  EXPECT_EQ(SingleAt(singles, {75, 0}), 1);
  EXPECT_EQ(SingleAt(singles, {314, 329}), 1);
  EXPECT_EQ(SingleAt(singles, {315, 100}), 0);
  EXPECT_EQ(SingleAt(singles, {345, 330}), 0);
  EXPECT_EQ(SingleAt(singles, {584, 1}), 2);
  EXPECT_EQ(SingleAt({}, {0, 0}), 0);
}

// ---- the date ----

DateScene Wide() {
  return {.Box = {12000, 330},
          .Label = {800, 195},
          .SingleCount = 3,
          .LastRight = 900,
          .WindowWidth = 15360,
          .ButtonsWidth = 1080,
          .TwipsX = 15};
}

TEST(PlaceDate, ItStandsAtTheFarEndBehindTwoLines) {
  EXPECT_EQ(PlaceDate(Wide()), (DateSpot{.Visible = true,
                                         .Left = 11150,
                                         .Top = 67.5F,
                                         .Line1 = {11050, 0, 11050, 330},
                                         .Line2 = {11035, 0, 11035, 330}}));
}

TEST(PlaceDate, ItHidesRatherThanTouchTheLastButton) {
  DateScene scene = Wide();
  scene.LastRight = 11049;
  EXPECT_TRUE(PlaceDate(scene).Visible);
  scene.LastRight = 11050;
  EXPECT_FALSE(PlaceDate(scene).Visible);
  EXPECT_EQ(PlaceDate(scene).Left, 11350);
  scene.SingleCount = 0;
  EXPECT_TRUE(PlaceDate(scene).Visible);
}

TEST(PlaceDate, ItHidesBesideManyMenuButtons) {
  DateScene scene = Wide();
  scene.ButtonsWidth = 15360 - 800 - 250;
  EXPECT_TRUE(PlaceDate(scene).Visible);
  scene.ButtonsWidth += 1;
  EXPECT_FALSE(PlaceDate(scene).Visible);
}

TEST(IsOnDateArea, BeginsAtFiftyTwipsBeforeTheDate) {
  EXPECT_FALSE(IsOnDateArea(949, 1000));
  EXPECT_TRUE(IsOnDateArea(950, 1000));
}

}  // namespace
}  // namespace corvelle
