#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "win32/UniqueHandle.h"
#include "win32/Win32Canvas.h"
#include "win32/Win32ShellIcons.h"
#include "win32/Win32WindowSystem.h"

namespace corvelle::win32 {
namespace {

std::vector<int>& Closed() {
  static std::vector<int> closed;
  return closed;
}

/// Handles that are numbers, 0 for none, and whose closing is noted.
struct NumberTraits {
  using Handle = int;
  static int None() noexcept { return 0; }
  static void Close(int handle) noexcept { Closed().push_back(handle); }
};
using Number = UniqueHandle<NumberTraits>;
using Numbers = std::vector<int>;

struct UniqueHandleTest : testing::Test {
  UniqueHandleTest() { Closed().clear(); }
};

TEST_F(UniqueHandleTest, ClosesItsHandleOnceAtItsEnd) {
  {
    const Number number(7);
    EXPECT_EQ(number.Get(), 7);
    EXPECT_TRUE(number);
    EXPECT_EQ(Closed(), Numbers{});
  }
  EXPECT_EQ(Closed(), Numbers{7});
}

TEST_F(UniqueHandleTest, NoHandleIsNotClosed) {
  {
    const Number none;
    EXPECT_FALSE(none);
  }
  EXPECT_EQ(Closed(), Numbers{});
}

TEST_F(UniqueHandleTest, AMovedFromOwnerHoldsNothing) {
  {
    Number first(7);
    const Number second(std::move(first));
    EXPECT_FALSE(first);  // NOLINT(bugprone-use-after-move): that is the question
    EXPECT_EQ(second.Get(), 7);
  }
  EXPECT_EQ(Closed(), Numbers{7});
}

TEST_F(UniqueHandleTest, AnAssignedOwnerClosesWhatItHeld) {
  {
    Number first(7);
    Number second(8);
    second = std::move(first);
    EXPECT_EQ(Closed(), Numbers{8});
    EXPECT_EQ(second.Get(), 7);
  }
  EXPECT_EQ(Closed(), (Numbers{8, 7}));
}

TEST_F(UniqueHandleTest, AssignedToItselfItKeepsItsHandle) {
  {
    Number number(7);
    Number& same = number;
    number = std::move(same);
    EXPECT_EQ(number.Get(), 7);
    EXPECT_EQ(Closed(), Numbers{});
  }
  EXPECT_EQ(Closed(), Numbers{7});
}

TEST_F(UniqueHandleTest, ResetToTheSameHandleKeepsIt) {
  Number number(7);
  number.Reset(7);
  EXPECT_EQ(Closed(), Numbers{});
  number.Reset();
  EXPECT_EQ(Closed(), Numbers{7});
  number.Reset();
  EXPECT_EQ(Closed(), Numbers{7});
}

TEST_F(UniqueHandleTest, AReleasedHandleIsTheCallers) {
  {
    Number number(7);
    EXPECT_EQ(number.Release(), 7);
  }
  EXPECT_EQ(Closed(), Numbers{});
}

TEST_F(UniqueHandleTest, ReceivingClosesWhatWasHeld) {
  Number number(7);
  *number.Receive() = 9;
  EXPECT_EQ(Closed(), Numbers{7});
  EXPECT_EQ(number.Get(), 9);
}

TEST(SelectedObject, GivesTheOldObjectBack) {
  const UniqueMemoryDc dc(CreateCompatibleDC(nullptr));
  const HGDIOBJ before = GetCurrentObject(dc.Get(), OBJ_PEN);
  {
    const UniquePen pen(CreatePen(PS_SOLID, 3, 0));
    const SelectedObject selected(dc.Get(), pen.Get());
    EXPECT_EQ(GetCurrentObject(dc.Get(), OBJ_PEN), pen.Get());
  }
  EXPECT_EQ(GetCurrentObject(dc.Get(), OBJ_PEN), before);
}

// A process holds some 10,000 objects for drawing, 16,384 at most; who keeps one from each round
// has none left at the end.

constexpr int kMoreThanAProcessHolds = 17'000;

TEST(ObjectCounts, CanvasesAndWhatIsDrawnOnThemAreGivenBack) {
  Win32WindowSystem windows;
  const auto source = windows.CreateCanvas({4, 4});
  Rgb last = 0;
  for (int round = 0; round < kMoreThanAProcessHolds; ++round) {
    const auto canvas = windows.CreateCanvas({8, 8});
    canvas->FillBox({0, 0, 8, 8}, 0x00123456);
    canvas->DrawLine({0, 0}, {7, 5}, 0, 2);
    canvas->DrawLine({0, 5}, {3, 7}, 0, 1);
    canvas->DrawCanvas(*source, {0, 0, 4, 4}, {0, 0});
    last = canvas->PixelAt({7, 0});
  }
  EXPECT_EQ(last, 0x00123456U);
}

TEST(ObjectCounts, FontsAreGivenBack) {
  Win32WindowSystem windows;
  const PixelSize first = windows.MeasureText("Text", {{.Points = 9.5F, .Bold = true}, 96});
  for (int round = 0; round < kMoreThanAProcessHolds; ++round) {
    const ScaledFont font{{.Points = 6 + static_cast<float>(round % 50) / 4}, 96};
    EXPECT_GT(windows.MeasureText("T", font).width, 0);
  }
  EXPECT_EQ(windows.MeasureText("Text", {{.Points = 9.5F, .Bold = true}, 96}), first);
}

/// The highest place in the system's table of icons and windows that some new icons get. It rises
/// by the number of those that nobody gave back.
int HighestIconPlace() {
  constexpr int kProbes = 200;
  std::vector<UniqueIcon> probes;
  int highest = 0;
  for (int i = 0; i < kProbes; ++i) {
    const BYTE mask[2 * 8]{};
    probes.emplace_back(CreateIcon(Module(), 8, 8, 1, 1, mask, mask));
    highest = std::max(highest,
                       static_cast<int>(LOWORD(reinterpret_cast<WindowId>(probes.back().Get()))));
  }
  return highest;
}

TEST(ObjectCounts, IconsAreGivenBack) {
  constexpr int kRounds = 1000;
  Win32WindowSystem windows;
  Win32ShellIcons icons;
  const auto canvas = windows.CreateCanvas({16, 16});
  const auto draw = [&] {
    return icons.DrawFileIcon(*canvas, "C:\\windows\\notepad.exe", 0, {0, 0}, 16);
  };
  ASSERT_TRUE(draw());
  const int before = HighestIconPlace();
  for (int round = 0; round < kRounds; ++round) ASSERT_TRUE(draw()) << round;
  EXPECT_LT(HighestIconPlace() - before, kRounds / 4);
}

TEST(MemoryCanvas, OneThatTheSystemHasNoMemoryForSwallowsWhatIsDrawn) {
  Win32WindowSystem windows;
  const auto canvas = windows.CreateCanvas({1'000'000, 1'000'000});
  const auto small = windows.CreateCanvas({4, 4});
  canvas->FillBox({0, 0, 10, 10}, 0x00FFFFFF);
  canvas->DrawLine({0, 0}, {5, 5}, 0x00FFFFFF, 1);
  canvas->DrawString({0, 0}, "Text", {{}, 96}, 0x00FFFFFF);
  canvas->DrawCanvas(*small, {0, 0, 4, 4}, {0, 0});
  small->DrawCanvas(*canvas, {0, 0, 4, 4}, {0, 0});
  EXPECT_EQ(canvas->Size(), (PixelSize{1'000'000, 1'000'000}));
  EXPECT_EQ(canvas->PixelAt({0, 0}), 0U);
  EXPECT_EQ(small->PixelAt({0, 0}), 0U);
}

TEST(MemoryCanvas, APictureOutlivesItsWindowSystem) {
  auto windows = std::make_unique<Win32WindowSystem>();
  const auto canvas = windows->CreateCanvas({4, 4});
  canvas->FillBox({0, 0, 4, 4}, 0x00123456);
  windows.reset();
  EXPECT_EQ(canvas->PixelAt({3, 3}), 0x00123456U);
}

TEST(FontCache, GivesTheSameFontAgain) {
  FontCache fonts;
  const int dpi = forms::kPlainDpi;
  const HFONT first = fonts.Get({{}, dpi});
  EXPECT_NE(fonts.Get({{.Bold = true}, dpi}), first);
  EXPECT_NE(fonts.Get({{}, 2 * dpi}), first);
  EXPECT_EQ(fonts.Get({{}, dpi}), first);
}

TEST(FontCache, AFontThatDoesNotExistIsReplacedByOneThatDoes) {
  FontCache fonts;
  EXPECT_GT(fonts.Measure("Text", {{.Face = "No Such Face"}, forms::kPlainDpi}).width, 0);
  EXPECT_GT(fonts.Measure("Text", {{.Face = std::string(100, 'x')}, forms::kPlainDpi}).width, 0);
}

}  // namespace
}  // namespace corvelle::win32
