// Windows that the user moved to another monitor.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "program/ProgramDesk.h"

namespace corvelle {
namespace {

constexpr PixelRect kPrimary{0, 0, 1024, 768};
constexpr PixelRect kSecond{1024, 100, 2304, 1124};

/// A running program on two monitors.
class TwoMonitorDesk : public ProgramDesk, public testing::Test {
 protected:
  TwoMonitorDesk() : ProgramDesk({.OtherMonitors = {{.Bounds = kSecond}}}) {}

  struct OpenedWindow {
    const char* Name;
    LoadedWindow* Port;
  };
  /// The windows with a caption that are opened on demand.
  [[nodiscard]] std::vector<OpenedWindow> Windows() const {
    const WindowPorts& ports = parts->TheProgram.Ports;
    return {{"frmCust", ports.Customize},
            {"frmLibrary", ports.Library},
            {"frmNetSearch", ports.NetSearch},
            {"frmAbout", ports.About},
            {"frmProperties", ports.Properties}};
  }
  PixelRect Open(const OpenedWindow& window) {
    window.Port->LoadWindow();
    // Whoever opens this one shows it after it is filled.
    if (window.Port == parts->TheProgram.Ports.Properties) parts->Properties.Show();
    world.Desktop.Advance(10);
    return Place(window);
  }
  PixelRect Place(const OpenedWindow& window) const {
    return world.Desktop.BoundsOf(world.Desktop.Find(window.Name));
  }
  /// The user drags the window by its caption to the second monitor.
  void DragToSecond(const OpenedWindow& window) {
    const PixelRect place = Place(window);
    world.Desktop.MovePointer(place.left + 40, place.top + 10);
    world.Desktop.Press();
    world.Desktop.MovePointer(place.left + 40 + 1100, place.top + 10 + 60);
    world.Desktop.Release();
    ASSERT_GT(Place(window).left, kSecond.left) << window.Name;
  }
  void Close(const OpenedWindow& window) {
    window.Port->UnloadWindow();
    world.Desktop.Advance(10);
  }
  static void ExpectInTheMiddle(const PixelRect& window, const PixelRect& monitor,
                                const char* name) {
    EXPECT_NEAR(window.left + window.right, monitor.left + monitor.right, 2) << name;
    EXPECT_NEAR(window.top + window.bottom, monitor.top + monitor.bottom, 2) << name;
  }
};

TEST_F(TwoMonitorDesk, EachWindowOpensAgainInTheMiddleOfTheMonitorOnWhichItWasClosed) {
  for (const OpenedWindow& window : Windows()) {
    const PixelRect first = Open(window);
    ExpectInTheMiddle(first, kPrimary, window.Name);
    DragToSecond(window);
    Close(window);
    const PixelRect again = Open(window);
    ExpectInTheMiddle(again, kSecond, window.Name);
    EXPECT_EQ(again.Size(), first.Size()) << window.Name;
    Close(window);
  }
}

TEST_F(TwoMonitorDesk, EachWindowOpensOnThePrimaryOneWhenTheOtherWasUnplugged) {
  for (const OpenedWindow& window : Windows()) {
    static_cast<void>(Open(window));
    DragToSecond(window);
    Close(window);
  }
  world.Desktop.UnplugOtherMonitors();
  for (const OpenedWindow& window : Windows()) {
    ExpectInTheMiddle(Open(window), kPrimary, window.Name);
    Close(window);
  }
}

}  // namespace
}  // namespace corvelle
