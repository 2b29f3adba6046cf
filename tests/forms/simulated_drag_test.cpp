#include <gtest/gtest.h>

#include "forms/DragContract.h"
#include "sim/World.h"

namespace corvelle::forms {
namespace {

class SimulatedDragHome final : public DragHome {
 public:
  SimulatedDragHome() {
    source_ = world_.Desktop.AddOtherWindow({.Title = "Source", .Bounds = {600, 450, 800, 550}});
  }
  WindowSystem& Windows() override { return world_.Desktop; }
  DesktopWindows& Desktop() override { return world_.Desktop; }
  void Wait(int milliseconds) override { world_.Desktop.Advance(milliseconds); }
  void Offer(const DragData& data, DropEffect allowed) override {
    offer_ = {.Data = data, .Allowed = allowed, .Window = source_};
  }
  void MovePointer(PixelPoint at) override { world_.Desktop.MovePointer(at.x, at.y); }
  void Press(MouseButton button) override {
    offer_.Button = button;
    world_.Desktop.StartDrag(offer_);
  }
  void Release(MouseButton button) override { world_.Desktop.Release(button); }
  void PressKey(int virtualKey) override { world_.Desktop.PressKey(virtualKey); }
  DropEffect DragEffect() override { return world_.Desktop.DragEffect(); }

 private:
  sim::World world_;
  WindowId source_ = kNoWindow;
  sim::DragSource offer_;
};

INSTANTIATE_TEST_SUITE_P(Simulated, DragContract,
                         testing::Values([] { return std::make_unique<SimulatedDragHome>(); }));

TEST(SimulatedDrag, ASourceThatDiesTellsNothing) {
  sim::World world;
  DragNotes notes;
  const auto peer = world.Desktop.CreatePeer(
      {.Kind = PeerKind::Form, .ClassName = "Box", .Bounds = {200, 150, 400, 250}}, notes);
  static_cast<void>(peer->SetTakesDrops(true));
  peer->Show(ShowKind::NoActivate);
  world.Desktop.DragFilesOver({"C:\\a.txt"}, {210, 160});
  world.Desktop.KillDragSource();
  const int overs = notes.Overs;
  world.Desktop.Advance(500);
  world.Desktop.Release();
  EXPECT_EQ(notes.Seen, std::vector<std::string>{"over 1"});
  EXPECT_EQ(notes.Overs, overs);
  EXPECT_FALSE(world.Desktop.Dragging());
}

TEST(SimulatedDrag, ADisabledFormIsNotToldOfIt) {
  sim::World world;
  DragNotes notes;
  const auto peer = world.Desktop.CreatePeer(
      {.Kind = PeerKind::Form, .ClassName = "Box", .Bounds = {200, 150, 400, 250}}, notes);
  static_cast<void>(peer->SetTakesDrops(true));
  peer->Show(ShowKind::NoActivate);
  peer->SetEnabled(false);
  world.Desktop.DragFilesOver({"C:\\a.txt"}, {210, 160});
  EXPECT_EQ(notes.Overs, 0);
  peer->SetEnabled(true);
  world.Desktop.Advance(50);
  EXPECT_EQ(notes.Overs, 1);
}

}  // namespace
}  // namespace corvelle::forms
