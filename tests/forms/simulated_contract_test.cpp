#include <gtest/gtest.h>

#include "forms/ActivationContract.h"
#include "forms/CanvasContract.h"
#include "forms/ComboBoxContract.h"
#include "forms/ControlsContract.h"
#include "forms/DisabledLookContract.h"
#include "forms/FocusContract.h"
#include "forms/FrameContract.h"
#include "forms/InputContract.h"
#include "forms/ListBoxContract.h"
#include "forms/PictureContract.h"
#include "forms/PostContract.h"
#include "forms/ScrollBarContract.h"
#include "forms/TabStripContract.h"
#include "forms/TextBoxContract.h"
#include "forms/ToolBarContract.h"
#include "forms/ToolTipContract.h"
#include "forms/TreeContract.h"
#include "forms/WindowSystemContract.h"
#include "sim/World.h"

namespace corvelle::forms {
namespace {

class SimulatedHome final : public ActivationHome {
 public:
  WindowSystem& Windows() override { return world_.Desktop; }
  DesktopWindows& Desktop() override { return world_.Desktop; }
  Input& Pointer() override { return world_.Desktop; }
  void Wait(int milliseconds) override { world_.Desktop.Advance(milliseconds); }
  void MovePointer(PixelPoint at) override { world_.Desktop.MovePointer(at.x, at.y); }
  void Press(MouseButton button) override { world_.Desktop.Press(button); }
  void Release(MouseButton button) override { world_.Desktop.Release(button); }
  void DoubleClick() override { world_.Desktop.DoubleClick(); }
  void PressKey(int virtualKey) override { world_.Desktop.PressKey(virtualKey); }
  void KeyDown(int virtualKey) override { world_.Desktop.KeyDown(virtualKey); }
  void KeyUp(int virtualKey) override { world_.Desktop.KeyUp(virtualKey); }
  void Type(std::string_view text) override { world_.Desktop.Type(text); }
  void TurnWheel(int delta) override { world_.Desktop.TurnWheel(delta); }
  std::string ToolTip() const override { return world_.Desktop.ToolTip(); }
  void WhilePopupIsUp(std::function<void()> action) override {
    world_.Desktop.WhilePopupIsUp([action = std::move(action)](const sim::Popup&) { action(); });
  }
  void ClosePopup() override { world_.Desktop.PressKey(key::Escape); }
  WindowId OpenOther() override {
    const WindowId other = world_.Desktop.AddOtherWindow({.Title = "Contract other"});
    world_.Desktop.TakeForeground(other);
    return other;
  }
  void AnswerBox(std::function<void()> whileUp) override {
    world_.Desktop.Answer(msgbox::AnswerOk);
    world_.Desktop.WhileBoxIsUp(
        [whileUp = std::move(whileUp)](const sim::MessageBox&) { whileUp(); });
  }

 private:
  sim::World world_;
};

INSTANTIATE_TEST_SUITE_P(Simulated, WindowSystemContract,
                         testing::Values([] { return std::make_unique<SimulatedHome>(); }));
INSTANTIATE_TEST_SUITE_P(Simulated, PostContract,
                         testing::Values([] { return std::make_unique<SimulatedHome>(); }));
INSTANTIATE_TEST_SUITE_P(Simulated, CanvasContract,
                         testing::Values([] { return std::make_unique<SimulatedHome>(); }));
INSTANTIATE_TEST_SUITE_P(Simulated, InputContract,
                         testing::Values([] { return std::make_unique<SimulatedHome>(); }));
INSTANTIATE_TEST_SUITE_P(Simulated, ActivationContract,
                         testing::Values([] { return std::make_unique<SimulatedHome>(); }));
INSTANTIATE_TEST_SUITE_P(Simulated, ControlContract,
                         testing::Values([] { return std::make_unique<SimulatedHome>(); }));
INSTANTIATE_TEST_SUITE_P(Simulated, ButtonsContract,
                         testing::Values([] { return std::make_unique<SimulatedHome>(); }));
INSTANTIATE_TEST_SUITE_P(Simulated, TextBoxContract,
                         testing::Values([] { return std::make_unique<SimulatedHome>(); }));
INSTANTIATE_TEST_SUITE_P(Simulated, ListBoxContract,
                         testing::Values([] { return std::make_unique<SimulatedHome>(); }));
INSTANTIATE_TEST_SUITE_P(Simulated, ComboBoxContract,
                         testing::Values([] { return std::make_unique<SimulatedHome>(); }));
INSTANTIATE_TEST_SUITE_P(Simulated, ScrollBarContract,
                         testing::Values([] { return std::make_unique<SimulatedHome>(); }));
INSTANTIATE_TEST_SUITE_P(Simulated, TabStripContract,
                         testing::Values([] { return std::make_unique<SimulatedHome>(); }));
INSTANTIATE_TEST_SUITE_P(Simulated, TreeContract,
                         testing::Values([] { return std::make_unique<SimulatedHome>(); }));
INSTANTIATE_TEST_SUITE_P(Simulated, FrameContract,
                         testing::Values([] { return std::make_unique<SimulatedHome>(); }));
INSTANTIATE_TEST_SUITE_P(Simulated, ToolBarContract,
                         testing::Values([] { return std::make_unique<SimulatedHome>(); }));
INSTANTIATE_TEST_SUITE_P(Simulated, PictureContract,
                         testing::Values([] { return std::make_unique<SimulatedHome>(); }));
INSTANTIATE_TEST_SUITE_P(Simulated, ToolTipContract,
                         testing::Values([] { return std::make_unique<SimulatedHome>(); }));
INSTANTIATE_TEST_SUITE_P(Simulated, FocusContract,
                         testing::Values([] { return std::make_unique<SimulatedHome>(); }));
INSTANTIATE_TEST_SUITE_P(Simulated, TreeLookContract,
                         testing::Values([] { return std::make_unique<SimulatedHome>(); }));
INSTANTIATE_TEST_SUITE_P(Simulated, DisabledLookContract,
                         testing::Values([] { return std::make_unique<SimulatedHome>(); }));

}  // namespace
}  // namespace corvelle::forms
