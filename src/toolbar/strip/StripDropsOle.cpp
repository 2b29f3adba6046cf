// What other programs drag over the strip and drop on it.

#include <utility>

#include "base/Text.h"
#include "core/Carry.h"
#include "core/DroppedFiles.h"
#include "core/DroppedTitle.h"
#include "core/Program.h"
#include "forms/Form.h"
#include "forms/PictureBox.h"
#include "forms/Scopes.h"
#include "launch/FileTitle.h"
#include "platform/DesktopWindows.h"
#include "platform/Input.h"
#include "toolbar/singles/SingleRow.h"
#include "toolbar/strip/ButtonRow.h"
#include "toolbar/strip/MenuTracking.h"
#include "toolbar/strip/StripDrops.h"

namespace corvelle {

using forms::DragData;
using forms::DropEffect;
using forms::MouseButton;

namespace {

// A drop comes right after the release of the button. When so many ticks have heard nothing of the
// drag with no button down, its program is gone.
constexpr int kMostQuietTicks = 5;
// On the way from the strip into the menu a drag leaves the one before it comes to the other, and a
// busy source takes a moment.
constexpr int kMostLostTicks = 3;

}  // namespace

bool StripDrops::TakesDrag(const DragData& data) const {
  return IsOfUse(data) && program_.Guards.ToolbarReady && program_.Guards.TakesDrops() &&
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
  if (program_.Menu.CurButton == 1) {
    effect = DropEffect::None;
    menus_.ResetMenu();
    // The drag is still here.
    program_.Drag.DragOverButton = true;
    return;
  }
  // A drop between the buttons would go nowhere.
  if (program_.Menu.CurButton == 0) effect = DropEffect::None;
  program_.Menu.MenuOpen = true;
  menus_.picToolbar_MouseMove(down, x, y);
}

// The first time: who had the foreground, and where an address comes from.
void StripDrops::EnterDrag() {
  program_.Drag.DragOverButton = true;
  if (std::exchange(program_.Drag.DragEntered, true)) return;
  program_.Ports.SetHint("");
  const DesktopWindows& desktop = program_.Services.Desktop;
  SavedForeground = desktop.ForegroundWindow();
  if (!program_.Strip.NotOnTop && desktop.ActiveWindow() != window_.hWnd()) {
    picToolbar_.ZOrder(forms::ZPlace::Front);
  }
}

void StripDrops::NoteDrag(const DragData& data, MouseButton down) {
  program_.Drag.DragButtons = down;
  if (program_.Entry.ItemDragging) program_.Carry.AbandonCarry();
  if (program_.Drag.DragIsUrl || !data.Text || !DroppedAddress(*data.Text)) return;
  program_.Drag.DragIsUrl = true;
  if (program_.Ports.Browser != nullptr) {
    program_.Ports.Browser->NoteDropSource(program_.Services.Desktop.ForegroundWindow());
  }
}

// ---- the end of a drag ----

void StripDrops::tmrDragDrop_Timer() {
  if (!program_.Drag.DragEntered) {
    StopDrag();
    return;
  }
  const Input& input = program_.Services.Pointer;
  const WindowId under = program_.Services.Desktop.WindowAt(input.PointerPosition());
  const bool held = program_.Drag.DragHolds(program_.Services.Pointer);
  const bool over = under == picToolbar_.hWnd() || menus_.IsOverMenu(under);
  // On the way from the strip into the menu lies the strip's own frame.
  if (held && under == window_.hWnd()) return;
  if (program_.Drag.DragOverButton && held) {
    quietTicks_ = 0;
  } else {
    ++quietTicks_;
  }
  const int most = program_.Drag.DragOverButton ? kMostQuietTicks : kMostLostTicks;
  if (over && quietTicks_ < most) return;
  EndDragOver();
}

void StripDrops::StopDrag() {
  tmrDragDrop_.SetEnabled(false);
  program_.Drag.EndDrag();
}

void StripDrops::EndDragOver() {
  StopDrag();
  program_.Menu.MenuOpen = true;
  menus_.ResetMenu();
  if (window_.IsLoaded()) GiveForegroundBack();
}

// Only what the strip or its menu took is given back: the user may be elsewhere by now. A window
// that has gone off the screen meanwhile, such as a menu that was up when the drag came, gets
// nothing.
void StripDrops::GiveForegroundBack() {
  DesktopWindows& desktop = program_.Services.Desktop;
  const WindowId before = std::exchange(SavedForeground, kNoWindow);
  const WindowId now = desktop.ForegroundWindow();
  const QMenuPort* const menu = program_.Ports.QMenu;
  const bool ours = now == window_.hWnd() || (menu != nullptr && now == menu->WindowHandle());
  if (ours && before != kNoWindow && before != now && desktop.IsVisible(before)) {
    desktop.BringForward(before);
  }
}

// ---- dropped on the buttons ----

void StripDrops::picToolbar_OLEDragDrop(DragData& data, DropEffect& effect) {
  const bool takes = TakesDrag(data);
  effect = takes ? effect & EffectOfDrag(program_.Drag.DragButtons) : DropEffect::None;
  menus_.GetCurButton();
  // Events run from here on: the pointer may go on, and the buttons may be other ones.
  const std::string path = buttons_.IsItemButton(program_.Menu.CurButton)
                               ? buttons_.PathOf(program_.Menu.CurButton)
                               : std::string();
  StopDrag();
  timer2_.SetEnabled(false);
  if (program_.Ports.QMenu != nullptr) program_.Ports.QMenu->SetPoll(false);
  program_.Ports.SetHint("");
  if (program_.Drag.DragButtons == MouseButton::Right) menus_.ResetMenu();
  if (!window_.IsLoaded()) return;
  CapturePort* const capture = program_.Ports.Capture;
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
  auto outcome = EditOutcome::NothingToDo;
  DroppedEntries dropped;
  {
    const forms::FlagScope dragging(program_.Entry.ItemDragging);
    const forms::FlagScope busy(program_.Guards.ItemActionBusy);
    FileSystem& files = program_.Services.Files;
    const CodePage& ansi = program_.Services.Ansi;
    dropped = DroppedRecords(std::move(names), [this](const std::vector<std::string>& paths) {
      return FileTitles(program_.Starts, program_.Services.Ansi, program_.OptionFlags)
          .GetTrimmedNames(paths);
    });
    outcome = AppendDropped(files, ansi, path, dropped.Records);
    if (outcome == EditOutcome::Edited) program_.Ports.TellMenusEdited();
  }
  if (!window_.IsLoaded()) return;
  if (outcome == EditOutcome::Edited) {
    ShowDropped(button);
  } else {
    // The menu as it is shows that nothing was added.
    EndDragOver();
  }
  // Last, so that nothing here lets its timer through.
  if (window_.IsLoaded()) TellRefused(std::move(dropped.Refused));
}

// The menu comes up and stays only in front, and the system leaves that to the program dragged
// from.
void StripDrops::ShowDropped(int button) {
  if (!menus_.IsOursActive()) program_.Services.Desktop.BringForward(window_.hWnd());
  if (window_.IsLoaded()) menus_.RefreshMenu("F" + std::to_string(button));
}

void StripDrops::DropAddress(const DragData& data, int button) {
  const std::string path = buttons_.PathOf(button);
  EndDragOver();
  if (window_.IsLoaded()) OfferAddress(data, std::to_string(button), path);
}

void StripDrops::OfferAddress(const DragData& data, std::string_view tag, const std::string& file) {
  WebLinkPort* const links = program_.Ports.WebLink;
  const auto address = DroppedAddress(*data.Text);
  if (links == nullptr || !address) return;
  links->OfferWebLink(*address, TitleOfDrop(program_.Ports.Browser, data, *address), tag, file);
}

// ---- the row of single buttons ----

void StripDrops::picSingleButton_OLEDragOver(DragData& data, DropEffect& effect, MouseButton down) {
  const bool wanted = data.Files ? program_.Ports.SingleButtons != nullptr
                                 : data.Text && program_.Ports.WebLink != nullptr;
  effect = wanted && TakesDrag(data) ? effect & EffectOfDrag(down) : DropEffect::None;
  if (!IsOfUse(data) || program_.Guards.OpenQuestions > 0) return;
  program_.Ports.SetHint("");
  NoteDrag(data, down);
  menus_.ResetMenu();
}

void StripDrops::picSingleButton_OLEDragDrop(DragData& data, DropEffect& effect) {
  const bool takes = TakesDrag(data);
  effect = takes ? effect & EffectOfDrag(program_.Drag.DragButtons) : DropEffect::None;
  StopDrag();
  SingleButtonsPort* const singles = program_.Ports.SingleButtons;
  if (takes && data.Files && singles != nullptr) {
    // First of all it looks where the drop is; then it closes the hint and the menu.
    singles->DropFilesOnSingles(std::exchange(*data.Files, {}), program_.Drag.DragButtons);
    return;
  }
  // Events run from here on: the pointer may go on, and the row may be another one.
  const std::string target = singles_.FileUnderPointer();
  program_.Ports.SetHint("");
  menus_.ResetMenu();
  if (takes && window_.IsLoaded() && data.Text) OfferAddress(data, kSinglesTag, target);
}

}  // namespace corvelle
