// When a strip hides and comes back, on a stand-in for the strip.

#include "toolbar/docking/StripHiding.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/Program.h"
#include "forms/Form.h"
#include "sim/World.h"
#include "toolbar/strip/StripWiring.h"

namespace corvelle {
namespace {

using Calls = std::vector<std::string>;

/// A floating strip at the top of the screen.
struct FloatingStrip final : forms::Form, HidingStrip {
  explicit FloatingStrip(forms::WindowSystem& windows) : Form(windows, "frmFloating") {
    static_cast<void>(Load());
    Move(3000, 0, 1500, 300);
    ShowNoActivate();
  }
  forms::Form& AsForm() noexcept override { return *this; }
  StripShape Shape() const override { return {}; }
  bool ContentsVisible() const override { return Contents; }
  bool IsPartOfStrip(WindowId window) const override { return window == hWnd(); }
  bool IsOursActive() const override { return Active; }
  bool MenuUp() const override { return HasMenu; }
  void UpdateLabelDate() override {}

  bool Contents = true;
  bool Active = false;
  bool HasMenu = false;
};

struct HidingDocking final : DockingPort {
  explicit HidingDocking(FloatingStrip& strip) : Strip(strip) {}
  FloatingStrip& Strip;
  Calls Asked;
  std::function<void()> Meanwhile;

  void RegisterAppBar() override {}
  void RemoveAppBar() override {}
  void EndAppBar() override {}
  bool AutoHideFree(Edge) override { return true; }
  void SetAppBar(std::optional<Edge>, bool) override {}
  void RevealToolbar() override {
    Asked.emplace_back("reveal");
    Strip.Contents = true;
  }
  void HideToolbar() override {
    Asked.emplace_back("hide");
    Strip.Contents = false;
    if (Meanwhile) Meanwhile();
  }
  void ShowAutoHideTaken() override {}
  void ResizeToEdge() override {}
};

struct HidingDesk {
  HidingDesk() { TheProgram.Ports.Docking = &Docking; }
  ~HidingDesk() { Strip.Unload(); }

  sim::World World;
  Program TheProgram{World.Services(), World.Windows()};
  FloatingStrip Strip{World.Windows()};
  HidingDocking Docking{Strip};
  StripHiding Hiding{HidingPartsOf(TheProgram), Strip};
};

TEST(StripHiding, AStripThatThePointerLeftHidesAndItsLineBringsItBack) {
  HidingDesk desk;
  desk.World.Desktop.MovePointer(500, 500);
  desk.Hiding.HideAndReveal();
  EXPECT_EQ(desk.Docking.Asked, Calls{"hide"});
  desk.Hiding.HideAndReveal();
  EXPECT_EQ(desk.Docking.Asked, Calls{"hide"});
  desk.World.Desktop.MovePointer(220, 5);
  desk.Hiding.HideAndReveal();
  EXPECT_EQ(desk.Docking.Asked, (Calls{"hide", "reveal"}));
}

TEST(StripHiding, AStripInUseStays) {
  struct Row {
    const char* name;
    std::function<void(HidingDesk&)> use;
  };
  const Row rows[] = {
      {"pointer", [](HidingDesk& desk) { desk.World.Desktop.MovePointer(220, 5); }},
      {"menu", [](HidingDesk& desk) { desk.Strip.HasMenu = true; }},
      {"active", [](HidingDesk& desk) { desk.Strip.Active = true; }},
  };
  for (const Row& row : rows) {
    HidingDesk desk;
    desk.World.Desktop.MovePointer(500, 500);
    row.use(desk);
    desk.Hiding.HideAndReveal();
    EXPECT_EQ(desk.Docking.Asked, Calls{}) << row.name;
  }
}

TEST(StripHiding, ALookInsideALookDoesNothing) {
  HidingDesk desk;
  desk.World.Desktop.MovePointer(500, 500);
  desk.Docking.Meanwhile = [&desk] {
    desk.Strip.Contents = true;
    desk.Hiding.HideAndReveal();
  };
  desk.Hiding.HideAndReveal();
  EXPECT_EQ(desk.Docking.Asked, Calls{"hide"});
  EXPECT_FALSE(desk.TheProgram.Guards.HideBusy);
}

}  // namespace
}  // namespace corvelle
