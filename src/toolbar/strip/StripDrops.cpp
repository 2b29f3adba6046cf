#include "toolbar/strip/StripDrops.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "core/Carry.h"
#include "core/DragState.h"
#include "core/DroppedFiles.h"
#include "core/EntryCommands.h"
#include "core/GuardFlags.h"
#include "core/MenuState.h"
#include "core/MessageBoxes.h"
#include "core/StripPlacement.h"
#include "core/WindowPorts.h"
#include "forms/Form.h"
#include "forms/PictureBox.h"
#include "forms/Scopes.h"
#include "forms/WindowSystem.h"
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

StripDrops::StripDrops(const StripDropParts& with, StripWindow& strip, ButtonRow& buttons,
                       MenuTracking& menus, SingleRow& singles, forms::PictureBox& picToolbar,
                       forms::PictureBox& picSingleButton, forms::Timer& timer2,
                       forms::Timer& tmrDragDrop, forms::Timer& tmrRefused)
    : with_(with),
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
  picToolbar_.OLEDragLeave = [this] { with_.Drag.DragOverButton = false; };
  picSingleButton_.OLEDragOver = [this](DragData& data, DropEffect& effect, MouseButton down,
                                        ShiftState, float,
                                        float) { picSingleButton_OLEDragOver(data, effect, down); };
  picSingleButton_.OLEDragDrop = [this](DragData& data, DropEffect& effect, MouseButton, ShiftState,
                                        float,
                                        float) { picSingleButton_OLEDragDrop(data, effect); };
  // No timer watches the row, and the next address may come from another window.
  picSingleButton_.OLEDragLeave = [this] { with_.Drag.DragIsUrl = false; };
  picToolbar_.SetTakesDrops(true);
  picSingleButton_.SetTakesDrops(true);
  tmrDragDrop_.SetInterval(kDragPoll);
  tmrDragDrop_.Tick = [this] { tmrDragDrop_Timer(); };
  tmrRefused_.SetInterval(1);
  tmrRefused_.Tick = [this] { tmrRefused_Timer(); };
}

int StripDrops::dragCurButton() {
  if (!window_.IsLoaded()) return 0;
  const PixelPoint pointer = with_.Pointer.PointerPosition();
  menus_.FindCurButton(pointer);
  const bool over = with_.Desktop.WindowAt(pointer) == picToolbar_.hWnd();
  const bool carries = with_.Carry.IsCarrying() && !with_.Carry.IsDropping();
  with_.Drag.ButtonDragging = carries && over;
  if (!over) return 0;
  const int button = with_.Menu.CurButton;
  // The menu window holds the press, so that the strip hears of no move: the carry is followed
  // here.
  if (carries && !with_.Guards.MenuBuilding && buttons_.LooksAtRest(button) &&
      menus_.IsOursActive()) {
    menus_.HoverButton(button);
  }
  return button;
}

void StripDrops::WatchCarry() {
  if (!with_.Carry.IsCarrying() || with_.Carry.IsDropping()) {
    carryWatch_.Reset();
    return;
  }
  const Input& input = with_.Pointer;
  const bool anyDown = input.IsKeyDown(kLeftButtonKey) || input.IsKeyDown(kRightButtonKey);
  if (carryWatch_.Look(anyDown, window_.Windows().Now())) AbandonDrag();
}

// The release of a carried item went to another program.
void StripDrops::AbandonDrag() {
  carryWatch_.Reset();
  with_.Carry.AbandonCarry();
}

void StripDrops::DoButtonDrag(int button, forms::MouseButton released) {
  timer2_.SetEnabled(false);
  if (!buttons_.IsItemButton(button) || with_.Guards.ItemActionBusy) return;
  if (with_.Entry.CurFile.empty()) return;
  const std::string path = buttons_.PathOf(button);
  const forms::FlagScope dropping = with_.Carry.Dropping();
  const std::string tag = "F" + std::to_string(button);
  // What the disk refuses stays where it was, and the menu shows that.
  static_cast<void>(
      with_.Commands.DropItem(tag, {.File = path}, released == forms::MouseButton::Right));
  if (window_.IsLoaded()) menus_.RefreshMenu(tag);
  with_.Entry.ItemDragging = false;
  ForgetCurrentEntry(with_.Entry);
  if (window_.IsLoaded()) ShowDroppedMenu(button);
}

// The menu that took the entry has the keyboard now, and the pointer shows whose it is.
void StripDrops::ShowDroppedMenu(int button) {
  if (!menus_.MenuUp() || !buttons_.Has(button)) return;
  with_.Ports.QMenu->ActivateKeyDown(kNoKey);
  if (!window_.IsLoaded()) return;
  if (!with_.Strip.AppBarDocked) {
    with_.Pointer.SetPointerPosition(buttons_.Middle(button));
    with_.Menu.CurButton = button;
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
  with_.Messages.Say(window_.hWnd(), RefusedFilesText(files),
                     forms::msgbox::IconInformation | forms::msgbox::OnTop);
}

}  // namespace corvelle
