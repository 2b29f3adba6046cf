#include "toolbar/strip/StripDrops.h"

#include <utility>

#include "base/Text.h"
#include "core/Carry.h"
#include "core/DragState.h"
#include "core/DroppedTitle.h"
#include "core/GuardFlags.h"
#include "core/MenuState.h"
#include "core/StripPlacement.h"
#include "core/WindowPorts.h"
#include "forms/Form.h"
#include "forms/PictureBox.h"
#include "forms/Scopes.h"
#include "forms/WindowSystem.h"
#include "platform/DesktopWindows.h"
#include "platform/Input.h"
#include "toolbar/singles/SingleRow.h"
#include "toolbar/strip/ButtonRow.h"
#include "toolbar/strip/MenuTracking.h"
#include "toolbar/strip/RefusedFiles.h"

namespace corvelle {

using forms::DragData;
using forms::DropEffect;
using forms::MouseButton;

namespace {

constexpr int kDragPoll = 100;  // milliseconds
// A drop comes right after the release of the button. When so many ticks have heard nothing of the
// drag with no button down, its program is gone.
constexpr int kMostQuietTicks = 5;
// On the way from the strip into the menu a drag leaves the one before it comes to the other, and a
// busy source takes a moment.
constexpr int kMostLostTicks = 3;

}  // namespace

StripDrops::StripDrops(const StripDropParts& with, StripWindow& strip, ButtonRow& buttons,
                       MenuTracking& menus, SingleRow& singles, forms::PictureBox& picToolbar,
                       forms::PictureBox& picSingleButton, forms::Timer& timer2,
                       forms::Timer& tmrDragDrop, RefusedFiles& refused)
    : with_(with),
      window_(strip.AsForm()),
      buttons_(buttons),
      menus_(menus),
      singles_(singles),
      picToolbar_(picToolbar),
      picSingleButton_(picSingleButton),
      timer2_(timer2),
      tmrDragDrop_(tmrDragDrop),
      refused_(refused) {
  WireDrags();
}

void StripDrops::WireDrags() {
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
}

bool StripDrops::TakesDrag(const DragData& data) const {
  return IsOfUse(data) && with_.Guards.ToolbarReady && with_.Guards.TakesDrops() &&
         !menus_.MenuRefreshing;
}

// ---- over the buttons ----

void StripDrops::picToolbar_OLEDragOver(DragData& data, DropEffect& effect, MouseButton down,
                                        float x, float y) {
  if (!TakesDrag(data)) {
    effect = DropEffect::None;
    return;
  }
  tmrDragDrop_.SetEnabled(true);
  quietTicks_ = 0;
  EnterDrag();
  NoteDrag(data, down);
  effect = effect & EffectOfDrag(down);
  menus_.GetCurButton();
  if (with_.Menu.CurButton == 1) {
    effect = DropEffect::None;
    menus_.ResetMenu();
    // The drag is still here.
    with_.Drag.DragOverButton = true;
    return;
  }
  // A drop between the buttons would go nowhere.
  if (with_.Menu.CurButton == 0) effect = DropEffect::None;
  with_.Menu.MenuOpen = true;
  menus_.picToolbar_MouseMove(down, x, y);
}

// The first time: who had the foreground, and where an address comes from.
void StripDrops::EnterDrag() {
  with_.Drag.DragOverButton = true;
  if (std::exchange(with_.Drag.DragEntered, true)) return;
  with_.Ports.SetHint("");
  const DesktopWindows& desktop = with_.Desktop;
  SavedForeground = desktop.ForegroundWindow();
  if (!with_.Strip.NotOnTop && desktop.ActiveWindow() != window_.hWnd()) {
    picToolbar_.ZOrder(forms::ZPlace::Front);
  }
}

void StripDrops::NoteDrag(const DragData& data, MouseButton down) {
  with_.Drag.DragButtons = down;
  if (with_.Entry.ItemDragging) with_.Carry.AbandonCarry();
  if (with_.Drag.DragIsUrl || !data.Text || !DroppedAddress(*data.Text)) return;
  with_.Drag.DragIsUrl = true;
  if (with_.Ports.Browser != nullptr) {
    with_.Ports.Browser->NoteDropSource(with_.Desktop.ForegroundWindow());
  }
}

// ---- the end of a drag ----

void StripDrops::tmrDragDrop_Timer() {
  if (!with_.Drag.DragEntered) {
    StopDrag();
    return;
  }
  const Input& input = with_.Pointer;
  const WindowId under = with_.Desktop.WindowAt(input.PointerPosition());
  const bool held = with_.Drag.DragHolds(with_.Pointer);
  const bool over = under == picToolbar_.hWnd() || menus_.IsOverMenu(under);
  // On the way from the strip into the menu lies the strip's own frame.
  if (held && under == window_.hWnd()) return;
  if (with_.Drag.DragOverButton && held) {
    quietTicks_ = 0;
  } else {
    ++quietTicks_;
  }
  const int most = with_.Drag.DragOverButton ? kMostQuietTicks : kMostLostTicks;
  if (over && quietTicks_ < most) return;
  EndDragOver();
}

void StripDrops::StopDrag() {
  tmrDragDrop_.SetEnabled(false);
  with_.Drag.EndDrag();
}

void StripDrops::EndDragOver() {
  StopDrag();
  with_.Menu.MenuOpen = true;
  menus_.ResetMenu();
  if (window_.IsLoaded()) GiveForegroundBack();
}

// Only what the strip or its menu took is given back: the user may be elsewhere by now. A window
// that has gone off the screen meanwhile, such as a menu that was up when the drag came, gets
// nothing.
void StripDrops::GiveForegroundBack() {
  DesktopWindows& desktop = with_.Desktop;
  const WindowId before = std::exchange(SavedForeground, kNoWindow);
  const WindowId now = desktop.ForegroundWindow();
  const QMenuPort* const menu = with_.Ports.QMenu;
  const bool ours = now == window_.hWnd() || (menu != nullptr && now == menu->WindowHandle());
  if (ours && before != kNoWindow && before != now && desktop.IsVisible(before)) {
    desktop.BringForward(before);
  }
}

// ---- dropped on the buttons ----

void StripDrops::picToolbar_OLEDragDrop(DragData& data, DropEffect& effect) {
  const bool takes = TakesDrag(data);
  effect = takes ? effect & EffectOfDrag(with_.Drag.DragButtons) : DropEffect::None;
  menus_.GetCurButton();
  // Events run from here on: the pointer may go on, and the buttons may be other ones.
  const std::string path = buttons_.IsItemButton(with_.Menu.CurButton)
                               ? buttons_.PathOf(with_.Menu.CurButton)
                               : std::string();
  StopDrag();
  timer2_.SetEnabled(false);
  if (with_.Ports.QMenu != nullptr) with_.Ports.QMenu->SetPoll(false);
  with_.Ports.SetHint("");
  if (with_.Drag.DragButtons == MouseButton::Right) menus_.ResetMenu();
  if (!window_.IsLoaded()) return;
  CapturePort* const capture = with_.Ports.Capture;
  if (capture != nullptr && capture->MenuCaptured()) capture->ReleaseMenu();
  const int button = buttons_.ItemButtonOf(path);
  if (!takes || button == 0) {
    effect = DropEffect::None;
    EndDragOver();
  } else if (data.Files) {
    DropFiles(std::exchange(*data.Files, {}), button);
  } else {
    DropAddress(data, button);
  }
}

void StripDrops::DropFiles(std::vector<std::string> names, int button) {
  const std::string path = buttons_.PathOf(button);
  FileDrops::Written written;
  {
    const forms::FlagScope dragging(with_.Entry.ItemDragging);
    written = with_.Files.Append(path, std::move(names));
  }
  if (!window_.IsLoaded()) return;
  if (written.Outcome == EditOutcome::Edited) {
    ShowDropped(button);
  } else {
    // The menu as it is shows that nothing was added.
    EndDragOver();
  }
  // Last, so that nothing here lets its timer through.
  if (window_.IsLoaded()) refused_.Tell(std::move(written.Refused));
}

// The menu comes up and stays only in front, and the system leaves that to the program dragged
// from.
void StripDrops::ShowDropped(int button) {
  if (!menus_.IsOursActive()) with_.Desktop.BringForward(window_.hWnd());
  if (window_.IsLoaded()) menus_.RefreshMenu("F" + std::to_string(button));
}

void StripDrops::DropAddress(const DragData& data, int button) {
  const std::string path = buttons_.PathOf(button);
  EndDragOver();
  if (window_.IsLoaded()) OfferAddress(data, std::to_string(button), path);
}

void StripDrops::OfferAddress(const DragData& data, std::string_view tag, const std::string& file) {
  WebLinkPort* const links = with_.Ports.WebLink;
  const auto address = DroppedAddress(*data.Text);
  if (links == nullptr || !address) return;
  links->OfferWebLink(*address, TitleOfDrop(with_.Ports.Browser, data, *address), tag, file);
}

// ---- the row of single buttons ----

void StripDrops::picSingleButton_OLEDragOver(DragData& data, DropEffect& effect, MouseButton down) {
  const bool wanted = data.Files ? with_.Ports.SingleButtons != nullptr
                                 : data.Text && with_.Ports.WebLink != nullptr;
  effect = wanted && TakesDrag(data) ? effect & EffectOfDrag(down) : DropEffect::None;
  if (!IsOfUse(data) || with_.Guards.OpenQuestions > 0) return;
  with_.Ports.SetHint("");
  NoteDrag(data, down);
  menus_.ResetMenu();
}

void StripDrops::picSingleButton_OLEDragDrop(DragData& data, DropEffect& effect) {
  const bool takes = TakesDrag(data);
  effect = takes ? effect & EffectOfDrag(with_.Drag.DragButtons) : DropEffect::None;
  StopDrag();
  SingleButtonsPort* const singles = with_.Ports.SingleButtons;
  if (takes && data.Files && singles != nullptr) {
    // First of all it looks where the drop is; then it closes the hint and the menu.
    singles->DropFilesOnSingles(std::exchange(*data.Files, {}), with_.Drag.DragButtons);
    return;
  }
  // Events run from here on: the pointer may go on, and the row may be another one.
  const std::string target = singles_.FileUnderPointer();
  with_.Ports.SetHint("");
  menus_.ResetMenu();
  if (takes && window_.IsLoaded() && data.Text) OfferAddress(data, kSinglesTag, target);
}

}  // namespace corvelle
