#include "forms/MonitorPlace.h"

#include <gtest/gtest.h>

namespace corvelle::forms {
namespace {

constexpr PixelRect kPrimary{0, 0, 1024, 768};
constexpr PixelRect kRight{1024, 0, 2624, 1200};
constexpr PixelRect kLeft{-800, 100, 0, 700};

TEST(MonitorToOpenOn, GoldenMonitors) {
  struct Row {
    const char* name;
    PixelRect closedAt;
    std::vector<PixelRect> monitors;
    PixelRect expected;
  };
  const Row rows[] = {
      {"not open yet", {}, {kPrimary, kRight, kLeft}, kPrimary},
      {"on the primary one", {100, 100, 300, 200}, {kPrimary, kRight, kLeft}, kPrimary},
      {"on the one at the right", {1200, 100, 1400, 200}, {kPrimary, kRight, kLeft}, kRight},
      {"on the one at the left", {-500, 300, -300, 400}, {kPrimary, kRight, kLeft}, kLeft},
      {"more of it at the right", {1000, 100, 1100, 200}, {kPrimary, kRight, kLeft}, kRight},
      {"more of it on the primary one", {900, 100, 1100, 200}, {kPrimary, kRight}, kPrimary},
      {"half and half", {924, 100, 1124, 200}, {kPrimary, kRight}, kPrimary},
      {"a corner of it on a monitor", {2600, 1190, 2900, 1400}, {kPrimary, kRight}, kRight},
      {"its monitor is gone", {1200, 100, 1400, 200}, {kPrimary, kLeft}, kPrimary},
      {"where no monitor was", {-5000, -5000, -4000, -4000}, {kPrimary, kLeft}, kPrimary},
      {"no monitor at all", {1200, 100, 1400, 200}, {}, {}},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(MonitorToOpenOn(row.closedAt, row.monitors), row.expected) << row.name;
  }
}

}  // namespace
}  // namespace corvelle::forms
