// The monkey's hand: one gesture at a time, and the places to make it at.

#include <algorithm>
#include <array>

#include "MonkeyLife.h"
#include "forms/Types.h"

namespace corvelle::fuzz {
namespace {

using forms::MouseButton;

constexpr int kShift = 16;
constexpr int kControl = 17;
constexpr std::array<int, 14> kKeys = {13, 27, 33, 34, 35, 36, 37, 38, 39, 40, 116, 121, 17, 16};

std::string Where(PixelPoint at) { return std::to_string(at.x) + "," + std::to_string(at.y); }

std::string_view NameOf(MouseButton button) {
  return button == MouseButton::Left ? "left" : "right";
}

}  // namespace

// ---- gestures ----

void MonkeyLife::MoveTo(PixelPoint at) {
  Tell("move " + Where(at));
  world_->Desktop.MovePointer(at.x, at.y);
}

void MonkeyLife::MoveSomewhere() { MoveTo(SomePoint()); }

bool MonkeyLife::IsDown(MouseButton button) const {
  return world_->Desktop.IsKeyDown(button == MouseButton::Left ? 1 : 2);
}

void MonkeyLife::Press(MouseButton button) {
  if (IsDown(button)) return;
  FollowTree();
  Tell("press " + std::string(NameOf(button)));
  world_->Desktop.Press(button);
}

void MonkeyLife::Release(MouseButton button) {
  if (!IsDown(button)) return;
  FollowTree();
  Tell("release " + std::string(NameOf(button)));
  sim::SimDesktop& desktop = world_->Desktop;
  const bool dragged = desktop.Dragging();
  const bool carried = parts_->TheProgram.Entry.ItemDragging;
  const std::string from = parts_->TheProgram.Entry.CurMenuTag.substr(0, 1);
  const std::string under = desktop.ClassName(desktop.WindowAt(desktop.PointerPosition()));
  const int changes = world_->Files.Changes();
  desktop.Release(button);
  const std::string by = std::string(" ") + std::string(NameOf(button));
  if (dragged && !desktop.Dragging()) {
    const bool taken = desktop.DragEffect() != forms::DropEffect::None;
    tally_.Note("drag" + by + (taken ? " dropped on " + under : " let go"));
  }
  if (carried && !parts_->TheProgram.Entry.ItemDragging) {
    const bool changed = world_->Files.Changes() != changes;
    tally_.Note("carry from " + from + " to " + under + by + (changed ? "" : " in vain"));
  }
}

void MonkeyLife::PressOrRelease() {
  const MouseButton button = Chance(75) ? MouseButton::Left : MouseButton::Right;
  if (IsDown(button)) {
    Release(button);
  } else {
    Press(button);
  }
}

void MonkeyLife::ClickAt(PixelPoint at, MouseButton button) {
  MoveTo(at);
  if (!IsDown(button)) Press(button);
  Release(button);
}

void MonkeyLife::DoubleClickAt(PixelPoint at) {
  MoveTo(at);
  Release(MouseButton::Left);
  Tell("double click");
  FollowTree();
  world_->Desktop.DoubleClick([this] { FollowTree(); });
}

void MonkeyLife::ClickSomewhere() {
  const PixelPoint at = SomePoint();
  if (Chance(10)) {
    DoubleClickAt(at);
  } else {
    ClickAt(at, Chance(80) ? MouseButton::Left : MouseButton::Right);
  }
}

void MonkeyLife::HoldControl(bool down) {
  if (keysDown_.contains(kControl) == down) return;
  Tell(down ? "ctrl down" : "ctrl up");
  if (down) {
    world_->Desktop.KeyDown(kControl);
    keysDown_.insert(kControl);
  } else {
    world_->Desktop.KeyUp(kControl);
    keysDown_.erase(kControl);
  }
}

void MonkeyLife::UseKeys() {
  if (Chance(30)) {
    const std::string letter(1, static_cast<char>('a' + Number(26)));
    Tell("type " + letter);
    world_->Desktop.Type(letter);
    return;
  }
  const int key = kKeys[static_cast<std::size_t>(Number(static_cast<int>(kKeys.size())))];
  if (key == kControl) return HoldControl(!keysDown_.contains(kControl));
  if (key == kShift) {
    const bool down = keysDown_.contains(key);
    Tell(down ? "shift up" : "shift down");
    if (down) {
      world_->Desktop.KeyUp(key);
      keysDown_.erase(key);
    } else {
      world_->Desktop.KeyDown(key);
      keysDown_.insert(key);
    }
    return;
  }
  Tell("key " + std::to_string(key));
  const bool dragged = world_->Desktop.Dragging();
  world_->Desktop.PressKey(key);
  if (dragged && !world_->Desktop.Dragging()) tally_.Note("drag given up");
}

void MonkeyLife::LetPass(int milliseconds) {
  Tell("wait " + std::to_string(milliseconds));
  world_->Desktop.Advance(milliseconds);
}

void MonkeyLife::LetTimePass() { LetPass(Chance(80) ? Number(120) : Number(1200)); }

void MonkeyLife::LetGo() {
  if (world_->Desktop.Dragging()) {
    Tell("the drag is given up");
    world_->Desktop.PressKey(27);
  }
  Release(MouseButton::Left);
  Release(MouseButton::Right);
  const std::set<int> keys = keysDown_;
  for (const int key : keys) world_->Desktop.KeyUp(key);
  keysDown_.clear();
}

// ---- places ----

PixelPoint MonkeyLife::InWindow(std::string_view className, float x, float y) const {
  const PixelRect bounds = world_->Desktop.BoundsOf(world_->Desktop.Find(className));
  const float twips = parts_->Toolbar.TwipsX;
  return {bounds.left + static_cast<int>(x / twips), bounds.top + static_cast<int>(y / twips)};
}

PixelPoint MonkeyLife::OnScreen() {
  const forms::ScreenInfo screen = world_->Desktop.Screen();
  return {Number(static_cast<int>(screen.Width / screen.TwipsPerPixelX)),
          Number(static_cast<int>(screen.Height / screen.TwipsPerPixelY))};
}

PixelPoint MonkeyLife::PointIn(std::string_view className) {
  const WindowId window = world_->Desktop.Find(className);
  if (window == kNoWindow || !world_->Desktop.IsShown(window)) return OnScreen();
  const PixelRect bounds = world_->Desktop.BoundsOf(window);
  return {bounds.left + Number(std::max(bounds.Width(), 1)),
          bounds.top + Number(std::max(bounds.Height(), 1))};
}

PixelPoint MonkeyLife::ButtonPoint(int index) const {
  const auto& buttons = parts_->Toolbar.Buttons.ToolbarButtons;
  if (index < 1 || static_cast<std::size_t>(index) >= buttons.size()) return GripPoint();
  const ButtonRect& at = buttons[static_cast<std::size_t>(index)];
  return InWindow("picToolbar", at.Left + at.Width / 2, at.Top + at.Height / 2);
}

PixelPoint MonkeyLife::SinglePoint(int index) const {
  const auto& singles = parts_->Toolbar.Singles.SingleButtons;
  if (index < 1 || static_cast<std::size_t>(index) >= singles.size()) return GripPoint();
  const SingleRect& at = singles[static_cast<std::size_t>(index)];
  return InWindow("picSingleButton", at.Left + at.Width / 2, at.Top + at.Height / 2);
}

PixelPoint MonkeyLife::ItemPoint(int index) const {
  const frmQMenu& menu = parts_->Menu;
  if (!menu.Lbl.Has(index)) return InWindow("frmQMenu", 300, 100);
  const forms::Label& label = menu.Lbl[index];
  return InWindow("frmQMenu", label.Left() + 300, label.Top() + label.Height() / 2);
}

PixelPoint MonkeyLife::GripPoint() const {
  if (!parts_->Toolbar.lblSep.Has(0)) return InWindow("frmToolbar", 0, 0);
  const forms::Label& grip = parts_->Toolbar.lblSep[0];
  return InWindow("frmToolbar", grip.Left() + grip.Width() / 2, grip.Top() + grip.Height() / 2);
}

PixelPoint MonkeyLife::DatePoint() const {
  const forms::Label& date = parts_->Toolbar.lblDate;
  return InWindow("picSingleButton", date.Left() + date.Width() / 2,
                  date.Top() + date.Height() / 2);
}

PixelPoint MonkeyLife::EdgePoint(Edge edge) {
  const forms::ScreenInfo screen = world_->Desktop.Screen();
  const int width = static_cast<int>(screen.Width / screen.TwipsPerPixelX);
  const int height = static_cast<int>(screen.Height / screen.TwipsPerPixelY);
  const int near = Chance(50) ? 0 : Number(30);
  switch (edge) {
    case Edge::Left:
      return {near, height / 4 + Number(height / 2)};
    case Edge::Right:
      return {width - 1 - near, height / 4 + Number(height / 2)};
    case Edge::Bottom:
      return {width / 4 + Number(width / 2), height - 1 - near};
    case Edge::Top:
      break;
  }
  return {width / 4 + Number(width / 2), near};
}

int MonkeyLife::AnyButton() {
  const int count = parts_->Toolbar.Buttons.ButtonCount;
  return count < 2 ? count : 2 + Number(count - 1);
}

int MonkeyLife::AnySingle() {
  const int count = parts_->Toolbar.Singles.SingleCount;
  return count < 1 ? 0 : 1 + Number(count);
}

int MonkeyLife::AnyItem() {
  const frmQMenu& menu = parts_->Menu;
  const int count = menu.Pages().LastLabel() - menu.Pages().FirstLabel() + 1;
  return count < 1 ? 0 : menu.Pages().FirstLabel() + Number(count);
}

PixelPoint MonkeyLife::SomePoint() {
  switch (Number(12)) {
    case 0:
    case 1:
    case 2:
      return PointIn("frmQMenu");
    case 3:
      return ItemPoint(AnyItem());
    case 4:
    case 5:
    case 6:
      return PointIn("picToolbar");
    case 7:
      return PointIn("picSingleButton");
    case 8:
      return PointIn("frmToolbar");
    case 9:
      return Chance(50) ? PointIn("frmTip") : PointIn("cmdOK");
    case 10:
      return EdgePoint(static_cast<Edge>(Number(4)));
    default:
      return OnScreen();
  }
}

PixelPoint MonkeyLife::DropPoint() {
  switch (Number(9)) {
    case 0:
    case 1:
    case 2:
      return ItemPoint(AnyItem());
    case 3:
    case 4:
      return ButtonPoint(Chance(15) ? 1 : AnyButton());
    case 5:
    case 6:
      return SinglePoint(AnySingle());
    case 7:
      return PointIn("picSingleButton");
    default:
      if (forms::Form* const window = WindowInFront(); window != nullptr && Chance(70))
        return PointInControl(*window);
      return Chance(50) ? PointIn("frmQMenu") : OnScreen();
  }
}

}  // namespace corvelle::fuzz
