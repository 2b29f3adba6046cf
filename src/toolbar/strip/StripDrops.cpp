#include "toolbar/strip/StripDrops.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "core/Carry.h"
#include "core/DroppedFiles.h"
#include "core/EntryCommands.h"
#include "core/Program.h"
#include "forms/Form.h"
#include "forms/PictureBox.h"
#include "forms/Scopes.h"
#include "platform/DesktopWindows.h"
#include "platform/Input.h"
#include "toolbar/strip/ButtonRow.h"
#include "toolbar/strip/MenuTracking.h"

namespace corvelle {
namespace {

constexpr int kDragPoll = 100;  // milliseconds
constexpr int kLeftButtonKey = 1;
constexpr int kRightButtonKey = 2;
constexpr int kNoKey = 0;

}  // namespace

StripDrops::StripDrops(Program& program, StripWindow& strip, ButtonRow& buttons,
                       MenuTracking& menus, SingleRow& singles, forms::PictureBox& picToolbar,
                       forms::PictureBox& picSingleButton, forms::Timer& timer2,
                       forms::Timer& tmrDragDrop, forms::Timer& tmrRefused)
    : program_(program),
      window_(strip.AsForm()),
      buttons_(buttons),
      menus_(menus),
      singles_(singles),
      picToolbar_(picToolbar),
      picSingleButton_(picSingleButton),
      timer2_(timer2),
      tmrDragDrop_(tmrDragDrop),
      tmrRefused_(tmrRefused) {
  WireDrags();
}

void StripDrops::WireDrags() {
  using forms::DragData;
  using forms::DropEffect;
  using forms::MouseButton;
  using forms::ShiftState;
  picToolbar_.OLEDragOver = [this](DragData& data, DropEffect& effect, MouseButton down, ShiftState,
                                   float x,
                                   float y) { picToolbar_OLEDragOver(data, effect, down, x, y); };
  picToolbar_.OLEDragDrop = [this](DragData& data, DropEffect& effect, MouseButton, ShiftState,
                                   float, float) { picToolbar_OLEDragDrop(data, effect); };
  // The timer sees whether the drag has gone on into the menu or is over.
  picToolbar_.OLEDragLeave = [this] { program_.Drag.DragOverButton = false; };
  picSingleButton_.OLEDragOver = [this](DragData& data, DropEffect& effect, MouseButton down,
                                        ShiftState, float,
                                        float) { picSingleButton_OLEDragOver(data, effect, down); };
  picSingleButton_.OLEDragDrop = [this](DragData& data, DropEffect& effect, MouseButton, ShiftState,
                                        float,
                                        float) { picSingleButton_OLEDragDrop(data, effect); };
  // No timer watches the row, and the next address may come from another window.
  picSingleButton_.OLEDragLeave = [this] { program_.Drag.DragIsUrl = false; };
  picToolbar_.SetTakesDrops(true);
  picSingleButton_.SetTakesDrops(true);
  tmrDragDrop_.SetInterval(kDragPoll);
  tmrDragDrop_.Tick = [this] { tmrDragDrop_Timer(); };
  tmrRefused_.SetInterval(1);
  tmrRefused_.Tick = [this] { tmrRefused_Timer(); };
}

int StripDrops::dragCurButton() {
  if (!window_.IsLoaded()) return 0;
  const PixelPoint pointer = program_.Services.Pointer.PointerPosition();
  menus_.FindCurButton(pointer);
  const bool over = program_.Services.Desktop.WindowAt(pointer) == picToolbar_.hWnd();
  const bool carries = program_.Entry.ItemDragging && !program_.Drag.ItemDropping;
  program_.Drag.ButtonDragging = carries && over;
  if (!over) return 0;
  const int button = program_.Menu.CurButton;
  // The menu window holds the press, so that the strip hears of no move: the carry is followed
  // here.
  if (carries && !program_.Guards.MenuBuilding && buttons_.LooksAtRest(button) &&
      menus_.IsOursActive()) {
    menus_.HoverButton(button);
  }
  return button;
}

void StripDrops::WatchCarry() {
  if (!program_.Entry.ItemDragging || program_.Drag.ItemDropping) {
    carryWatch_.Reset();
    return;
  }
  const Input& input = program_.Services.Pointer;
  const bool anyDown = input.IsKeyDown(kLeftButtonKey) || input.IsKeyDown(kRightButtonKey);
  if (carryWatch_.Look(anyDown, program_.Windows.Now())) AbandonDrag();
}

// The release of a carried item went to another program.
void StripDrops::AbandonDrag() {
  carryWatch_.Reset();
  program_.Carry.AbandonCarry();
}

void StripDrops::DoButtonDrag(int button, forms::MouseButton released) {
  timer2_.SetEnabled(false);
  if (!buttons_.IsItemButton(button) || program_.Guards.ItemActionBusy) return;
  if (program_.Entry.CurFile.empty()) return;
  const std::string path = buttons_.PathOf(button);
  const forms::FlagScope dropping(program_.Drag.ItemDropping);
  const std::string tag = "F" + std::to_string(button);
  // What the disk refuses stays where it was, and the menu shows that.
  static_cast<void>(
      program_.Commands.DropItem(tag, {.File = path}, released == forms::MouseButton::Right));
  if (window_.IsLoaded()) menus_.RefreshMenu(tag);
  program_.Entry.ItemDragging = false;
  ForgetCurrentEntry(program_.Entry);
  if (window_.IsLoaded()) ShowDroppedMenu(button);
}

// The menu that took the entry has the keyboard now, and the pointer shows whose it is.
void StripDrops::ShowDroppedMenu(int button) {
  if (!menus_.MenuUp() || !buttons_.Has(button)) return;
  program_.Ports.QMenu->ActivateKeyDown(kNoKey);
  if (!window_.IsLoaded()) return;
  if (!program_.Strip.AppBarDocked) {
    program_.Services.Pointer.SetPointerPosition(buttons_.Middle(button));
    program_.Menu.CurButton = button;
    menus_.SetMenuPosition();
  }
  timer2_.SetEnabled(true);
}

// A source that drags waits until the drop returns, and a message would hold it.
void StripDrops::TellRefused(std::vector<std::string> files) {
  if (files.empty()) return;
  std::move(files.begin(), files.end(), std::back_inserter(refused_));
  tmrRefused_.SetEnabled(true);
}

void StripDrops::tmrRefused_Timer() {
  tmrRefused_.SetEnabled(false);
  const std::vector<std::string> files = std::exchange(refused_, {});
  if (files.empty() || !window_.IsLoaded()) return;
  program_.Messages.Say(window_.hWnd(), RefusedFilesText(files),
                        forms::msgbox::IconInformation | forms::msgbox::OnTop);
}

}  // namespace corvelle
