// Drags of other programs over surfaces and the controls on them.

#include <gtest/gtest.h>

#include <memory>

#include "forms/Graphic.h"
#include "forms/TestForm.h"
#include "sim/World.h"

namespace corvelle::forms {
namespace {

/// A form with a frame of three pixels at 100, 100, and a label at 300, 300 twips of its inside.
class SurfaceDrag : public testing::Test {
 protected:
  SurfaceDrag() : form_(world_.Desktop, BorderStyle::Raised), label_(form_, "Text") {
    label_.Move(300, 300, 600, 300);
    form_.SetTakesDrops(true);
    form_.OLEDragOver = Note("form over");
    form_.OLEDragDrop = Note("form drop");
    form_.OLEDragLeave = [this] { seen_.emplace_back("form leave"); };
    form_.Show();
    form_.Box.SetVisible(false);
    world_.Desktop.Pump();
  }

  DragHandler Note(const std::string& what) {
    return [this, what](DragData&, DropEffect& effect, MouseButton, ShiftState, float x, float y) {
      seen_.push_back(what + " " + std::to_string(static_cast<int>(x)) + "," +
                      std::to_string(static_cast<int>(y)));
      effect = effect & DropEffect::Copy;
    };
  }

  sim::World world_;
  TestForm form_;
  Label label_;
  Texts seen_;
};

TEST_F(SurfaceDrag, IsToldInTwipsOfTheInside) {
  world_.Desktop.DragFilesOver({"C:\\a"}, {100 + 3 + 10, 100 + 3 + 4});
  EXPECT_EQ(seen_.back(), "form over 150,60");
  EXPECT_EQ(world_.Desktop.DragEffect(), DropEffect::Copy);
  world_.Desktop.Release();
  EXPECT_EQ(seen_.back(), "form drop 150,60");
}

TEST_F(SurfaceDrag, AControlWithHandlersGetsItInItsOwnTwips) {
  label_.OLEDragOver = Note("label over");
  label_.OLEDragDrop = Note("label drop");
  world_.Desktop.DragFilesOver({"C:\\a"}, {100 + 3 + 22, 100 + 3 + 21});
  EXPECT_EQ(seen_.back(), "label over 30,15");
  world_.Desktop.Release();
  EXPECT_EQ(seen_.back(), "label drop 30,15");
}

TEST_F(SurfaceDrag, AControlWithoutHandlersLeavesItToItsSurface) {
  world_.Desktop.DragFilesOver({"C:\\a"}, {100 + 3 + 22, 100 + 3 + 21});
  EXPECT_EQ(seen_.back(), "form over 330,315");
}

TEST_F(SurfaceDrag, ASurfaceWithoutHandlersRefuses) {
  form_.OLEDragOver = nullptr;
  world_.Desktop.DragFilesOver({"C:\\a"}, {110, 110});
  EXPECT_EQ(world_.Desktop.DragEffect(), DropEffect::None);
  world_.Desktop.Release();
  EXPECT_EQ(seen_, Texts{"form leave"});
}

TEST_F(SurfaceDrag, ASwitchedOffSurfaceHearsNothing) {
  form_.SetTakesDrops(false);
  world_.Desktop.DragFilesOver({"C:\\a"}, {110, 110});
  world_.Desktop.Release();
  EXPECT_EQ(seen_, Texts{});
}

TEST_F(SurfaceDrag, ASurfaceThatIsLoadedAgainTakesDropsAgain) {
  form_.Unload();
  form_.Show();
  world_.Desktop.DragFilesOver({"C:\\a"}, {110, 110});
  EXPECT_EQ(world_.Desktop.DragEffect(), DropEffect::Copy);
}

TEST_F(SurfaceDrag, AHandlerMayDestroyItsControl) {
  auto gone = std::make_unique<Label>(form_, "Gone");
  gone->Move(1500, 300, 600, 300);
  gone->OLEDragOver = [&gone](DragData&, DropEffect& effect, MouseButton, ShiftState, float,
                              float) {
    gone.reset();
    effect = DropEffect::Copy;
  };
  world_.Desktop.DragFilesOver({"C:\\a"}, {100 + 3 + 102, 100 + 3 + 21});
  EXPECT_EQ(gone, nullptr);
  EXPECT_EQ(world_.Desktop.DragEffect(), DropEffect::Copy);
}

TEST_F(SurfaceDrag, AHandlerMayUnloadItsForm) {
  form_.OLEDragDrop = [this](DragData&, DropEffect&, MouseButton, ShiftState, float, float) {
    form_.Unload();
  };
  world_.Desktop.DragFilesOver({"C:\\a"}, {110, 110});
  world_.Desktop.Release();
  EXPECT_FALSE(form_.IsLoaded());
}

}  // namespace
}  // namespace corvelle::forms
