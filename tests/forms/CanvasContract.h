#pragma once

// What every bitmap must do, in memory and of Windows. A test program includes this header once and
// instantiates the suite with makers of its own homes.

#include "forms/ContractHome.h"

namespace corvelle::forms {

class CanvasContract : public testing::TestWithParam<ContractHomeFactory> {
 protected:
  static constexpr Rgb kRed = 0x000000FF;
  static constexpr Rgb kGreen = 0x0000FF00;

  std::unique_ptr<ContractHome> home_ = GetParam()();

  [[nodiscard]] WindowSystem& Windows() { return home_->Windows(); }
  std::unique_ptr<Canvas> Sheet(int width = 40, int height = 30) {
    return Windows().CreateCanvas({width, height});
  }
  /// Pixels of a colour in a part.
  static int Count(const Canvas& canvas, Rgb colour, const PixelRect& part) {
    int count = 0;
    for (int y = part.top; y < part.bottom; ++y) {
      for (int x = part.left; x < part.right; ++x) {
        if (canvas.PixelAt({x, y}) == colour) ++count;
      }
    }
    return count;
  }
};

TEST_P(CanvasContract, StartsAllBlackAndOfItsSize) {
  const auto sheet = Sheet();
  EXPECT_EQ(sheet->Size(), (PixelSize{40, 30}));
  EXPECT_EQ(Count(*sheet, 0, {0, 0, 40, 30}), 1200);
}

TEST_P(CanvasContract, ABoxLeavesOutItsRightAndBottomSide) {
  const auto sheet = Sheet();
  sheet->FillBox({5, 6, 15, 16}, kRed);
  EXPECT_EQ(Count(*sheet, kRed, {0, 0, 40, 30}), 100);
  EXPECT_EQ(Count(*sheet, kRed, {5, 6, 15, 16}), 100);
}

TEST_P(CanvasContract, AnEmptyBoxFillsNothing) {
  const auto sheet = Sheet();
  sheet->FillBox({5, 5, 5, 15}, kRed);
  sheet->FillBox({15, 15, 5, 5}, kRed);
  EXPECT_EQ(Count(*sheet, kRed, {0, 0, 40, 30}), 0);
}

TEST_P(CanvasContract, WhatFallsOutsideIsCutOff) {
  const auto sheet = Sheet();
  sheet->FillBox({-10, -10, 5, 5}, kRed);
  sheet->FillBox({35, 25, 400, 300}, kRed);
  sheet->DrawLine({-100, 10}, {100, 10}, kGreen, 1);
  sheet->DrawString({-500, -500}, "text", {{}, kPlainDpi}, kRed);
  EXPECT_EQ(Count(*sheet, kRed, {0, 0, 40, 30}), 50);
  EXPECT_EQ(Count(*sheet, kGreen, {0, 0, 40, 30}), 40);
  EXPECT_EQ(sheet->PixelAt({-1, 0}), 0U);
  EXPECT_EQ(sheet->PixelAt({40, 0}), 0U);
  EXPECT_EQ(sheet->PixelAt({0, 30}), 0U);
}

TEST_P(CanvasContract, ALineLeavesOutItsLastPoint) {
  struct Row {
    const char* name;
    PixelPoint from;
    PixelPoint to;
    int pixels;
  };
  const Row rows[] = {{"right", {5, 5}, {15, 5}, 10},     {"left", {15, 5}, {5, 5}, 10},
                      {"down", {5, 5}, {5, 15}, 10},      {"up", {5, 15}, {5, 5}, 10},
                      {"slanting", {5, 5}, {15, 15}, 10}, {"no length", {5, 5}, {5, 5}, 0}};
  for (const Row& row : rows) {
    const auto sheet = Sheet();
    sheet->DrawLine(row.from, row.to, kRed, 1);
    EXPECT_EQ(Count(*sheet, kRed, {0, 0, 40, 30}), row.pixels) << row.name;
    EXPECT_EQ(sheet->PixelAt(row.from), row.pixels > 0 ? kRed : 0U) << row.name;
    EXPECT_EQ(sheet->PixelAt(row.to), 0U) << row.name;
  }
}

TEST_P(CanvasContract, AWideLineIsAsWideAsItSays) {
  const auto sheet = Sheet();
  sheet->DrawLine({5, 10}, {25, 10}, kRed, 3);
  EXPECT_EQ(Count(*sheet, kRed, {15, 0, 16, 30}), 3);
  EXPECT_EQ(sheet->PixelAt({15, 10}), kRed);
}

TEST_P(CanvasContract, TheOriginShiftsAllDrawing) {
  const auto sheet = Sheet();
  sheet->SetOrigin({10, 5});
  sheet->FillBox({0, 0, 2, 2}, kRed);
  sheet->DrawLine({0, 10}, {5, 10}, kGreen, 1);
  EXPECT_EQ(Count(*sheet, kRed, {10, 5, 12, 7}), 4);
  EXPECT_EQ(Count(*sheet, kGreen, {10, 15, 15, 16}), 5);
  sheet->SetOrigin({-10, 0});
  sheet->FillBox({10, 20, 12, 22}, kRed);
  EXPECT_EQ(Count(*sheet, kRed, {0, 20, 2, 22}), 4);
}

TEST_P(CanvasContract, APartOfAnotherCanvasIsCopied) {
  const auto source = Sheet(10, 10);
  source->FillBox({0, 0, 10, 10}, kGreen);
  source->FillBox({2, 2, 5, 5}, kRed);
  const auto sheet = Sheet();
  sheet->DrawCanvas(*source, {2, 2, 6, 6}, {20, 20});
  EXPECT_EQ(Count(*sheet, kRed, {20, 20, 23, 23}), 9);
  EXPECT_EQ(Count(*sheet, kGreen, {20, 20, 24, 24}), 7);
  EXPECT_EQ(Count(*sheet, 0, {0, 0, 40, 30}), 1200 - 16);
}

TEST_P(CanvasContract, TheOriginOfACopiedCanvasDoesNotCount) {
  const auto source = Sheet(10, 10);
  source->FillBox({0, 0, 1, 1}, kRed);
  source->SetOrigin({5, 5});
  const auto sheet = Sheet();
  sheet->SetOrigin({1, 2});
  sheet->DrawCanvas(*source, {0, 0, 10, 10}, {10, 10});
  EXPECT_EQ(sheet->PixelAt({11, 12}), kRed);
  EXPECT_EQ(Count(*sheet, kRed, {0, 0, 40, 30}), 1);
}

TEST_P(CanvasContract, PartsOutsideTheSourceAreLeftOut) {
  const auto source = Sheet(10, 10);
  source->FillBox({0, 0, 10, 10}, kRed);
  const auto sheet = Sheet();
  sheet->FillBox({0, 0, 40, 30}, kGreen);
  sheet->DrawCanvas(*source, {-5, -5, 20, 20}, {0, 0});
  EXPECT_EQ(Count(*sheet, kRed, {0, 0, 40, 30}), 100);
  EXPECT_EQ(Count(*sheet, kRed, {5, 5, 15, 15}), 100);
  EXPECT_EQ(Count(*sheet, kGreen, {0, 0, 40, 30}), 1100);
}

TEST_P(CanvasContract, APictureCoversMixesOrLeavesTheGroundByItsAlpha) {
  const auto sheet = Sheet();
  sheet->FillBox({0, 0, 40, 30}, 0x00204060);
  sheet->SetOrigin({1, 2});
  sheet->DrawPixels({3, 1, {0xFF0000FFU, 0x800000FFU, 0x000000FFU}}, {4, 5});
  EXPECT_EQ(sheet->PixelAt({5, 7}), kRed);
  EXPECT_EQ(sheet->PixelAt({6, 7}), 0x001020B0U);
  EXPECT_EQ(sheet->PixelAt({7, 7}), 0x00204060U);
  EXPECT_EQ(Count(*sheet, 0x00204060, {0, 0, 40, 30}), 1198);
}

TEST_P(CanvasContract, APictureIsCutOffAtTheEdgesAndAWrongOneDrawsNothing) {
  const auto sheet = Sheet();
  const IconPixels square{4, 4, std::vector<std::uint32_t>(16, 0xFF00FF00U)};
  sheet->DrawPixels(square, {-2, -2});
  sheet->DrawPixels(square, {38, 28});
  EXPECT_EQ(Count(*sheet, kGreen, {0, 0, 40, 30}), 8);
  sheet->DrawPixels({4, 4, std::vector<std::uint32_t>(15, 0xFF0000FFU)}, {10, 10});
  sheet->DrawPixels({}, {10, 10});
  EXPECT_EQ(Count(*sheet, kRed, {0, 0, 40, 30}), 0);
}

TEST_P(CanvasContract, TextIsDrawnWithinItsMeasureOnTheGroundThatIsThere) {
  const auto sheet = Sheet(200, 60);
  constexpr Rgb kWhite = 0x00FFFFFF;
  sheet->FillBox({0, 0, 200, 60}, kWhite);
  const ScaledFont font{{}, kPlainDpi};
  const PixelSize size = Windows().MeasureText("Text", font);
  sheet->DrawString({20, 20}, "Text", font, 0);
  const int touched = size.width * size.height - Count(*sheet, kWhite, RectAt({20, 20}, size));
  EXPECT_GT(touched, 10);
  EXPECT_LT(touched, size.width * size.height);
  // Smoothed edges may reach over by a pixel or two.
  EXPECT_EQ(Count(*sheet, kWhite, {0, 0, 200, 20}), 200 * 20);
  EXPECT_EQ(Count(*sheet, kWhite, {20 + size.width + 2, 0, 200, 60}), (200 - 22 - size.width) * 60);
  EXPECT_EQ(Count(*sheet, kWhite, {0, 20 + size.height, 200, 60}), 200 * (40 - size.height));
}

TEST_P(CanvasContract, AnAmpersandIsACharacterLikeOthers) {
  const ScaledFont font{{}, kPlainDpi};
  EXPECT_GT(Windows().MeasureText("a&b", font).width, Windows().MeasureText("ab", font).width);
}

}  // namespace corvelle::forms
