// What other programs drag over the strip and drop on it.

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/Text.h"
#include "core/Carry.h"
#include "core/DroppedFiles.h"
#include "core/DroppedTitle.h"
#include "core/Program.h"
#include "forms/Scopes.h"
#include "launch/FileTitle.h"
#include "platform/DesktopWindows.h"
#include "platform/Input.h"
#include "toolbar/frmToolbar.h"

namespace corvelle {

using forms::DragData;
using forms::DropEffect;
using forms::MouseButton;
using forms::ShiftState;

namespace {

// A drop comes right after the release of the button. When so many ticks have heard nothing of the
// drag with no button down, its program is gone.
constexpr int kMostQuietTicks = 5;
// On the way from the strip into the menu a drag leaves the one before it comes to the other, and a
// busy source takes a moment.
constexpr int kMostLostTicks = 3;

}  // namespace

void frmToolbar::WireDrags() {
  using Handler =
      void (frmToolbar::*)(DragData&, DropEffect&, MouseButton, ShiftState, float, float);
  const auto to = [this](Handler handler) {
    return [this, handler](DragData& data, DropEffect& effect, MouseButton down, ShiftState shift,
                           float x, float y) { (this->*handler)(data, effect, down, shift, x, y); };
  };
  picToolbar.OLEDragOver = to(&frmToolbar::picToolbar_OLEDragOver);
  picToolbar.OLEDragDrop = to(&frmToolbar::picToolbar_OLEDragDrop);
  // The timer sees whether the drag has gone on into the menu or is over.
  picToolbar.OLEDragLeave = [this] { program_.Drag.DragOverButton = false; };
  picSingleButton.OLEDragOver = to(&frmToolbar::picSingleButton_OLEDragOver);
  picSingleButton.OLEDragDrop = to(&frmToolbar::picSingleButton_OLEDragDrop);
  // No timer watches the row, and the next address may come from another window.
  picSingleButton.OLEDragLeave = [this] { program_.Drag.DragIsUrl = false; };
  picToolbar.SetTakesDrops(true);
  picSingleButton.SetTakesDrops(true);
  tmrDragDrop.Tick = [this] { tmrDragDrop_Timer(); };
  tmrRefused.Tick = [this] { tmrRefused_Timer(); };
}

bool frmToolbar::TakesDrag(const DragData& data) const {
  return IsOfUse(data) && program_.Guards.ToolbarReady && program_.Guards.TakesDrops() &&
         !MenuRefreshing;
}

bool frmToolbar::IsItemButton(int button) const noexcept {
  return button > 1 && button <= ButtonCount;
}

int frmToolbar::ItemButtonOf(std::string_view path) const {
  for (int i = 2; i <= ButtonCount; ++i) {
    if (EqualNoCase(ToolbarButtons[static_cast<std::size_t>(i)].Path, path)) return i;
  }
  return 0;
}

// ---- over the buttons ----

void frmToolbar::picToolbar_OLEDragOver(DragData& data, DropEffect& effect, MouseButton down,
                                        ShiftState shift, float x, float y) {
  if (!TakesDrag(data)) {
    effect = DropEffect::None;
    return;
  }
  tmrDragDrop.SetEnabled(true);
  quietTicks_ = 0;
  EnterDrag();
  NoteDrag(data, down);
  effect = effect & EffectOfDrag(down);
  GetCurButton();
  if (program_.Menu.CurButton == 1) {
    effect = DropEffect::None;
    ResetMenu();
    // The drag is still here.
    program_.Drag.DragOverButton = true;
    return;
  }
  // A drop between the buttons would go nowhere.
  if (program_.Menu.CurButton == 0) effect = DropEffect::None;
  program_.Menu.MenuOpen = true;
  picToolbar_MouseMove(down, shift, x, y);
}

// The first time: who had the foreground, and where an address comes from.
void frmToolbar::EnterDrag() {
  program_.Drag.DragOverButton = true;
  if (std::exchange(program_.Drag.DragEntered, true)) return;
  program_.SetHint("");
  const DesktopWindows& desktop = program_.Services.Desktop;
  SavedForeground = desktop.ForegroundWindow();
  if (!program_.Strip.NotOnTop && desktop.ActiveWindow() != hWnd()) {
    picToolbar.ZOrder(forms::ZPlace::Front);
  }
}

void frmToolbar::NoteDrag(const DragData& data, MouseButton down) {
  program_.Drag.DragButtons = down;
  if (program_.Entry.ItemDragging) AbandonCarry(program_);
  if (program_.Drag.DragIsUrl || !data.Text || !DroppedAddress(*data.Text)) return;
  program_.Drag.DragIsUrl = true;
  if (program_.Ports.Browser != nullptr) {
    program_.Ports.Browser->NoteDropSource(program_.Services.Desktop.ForegroundWindow());
  }
}

// ---- the end of a drag ----

void frmToolbar::tmrDragDrop_Timer() {
  if (!program_.Drag.DragEntered) {
    StopDrag();
    return;
  }
  const Input& input = program_.Services.Pointer;
  const WindowId under = program_.Services.Desktop.WindowAt(input.PointerPosition());
  const bool held = program_.DragHolds();
  const bool over = under == picToolbar.hWnd() || IsOverMenu(under);
  // On the way from the strip into the menu lies the strip's own frame.
  if (held && under == hWnd()) return;
  if (program_.Drag.DragOverButton && held) {
    quietTicks_ = 0;
  } else {
    ++quietTicks_;
  }
  const int most = program_.Drag.DragOverButton ? kMostQuietTicks : kMostLostTicks;
  if (over && quietTicks_ < most) return;
  EndDragOver();
}

void frmToolbar::StopDrag() {
  tmrDragDrop.SetEnabled(false);
  program_.Drag.EndDrag();
}

void frmToolbar::EndDragOver() {
  StopDrag();
  program_.Menu.MenuOpen = true;
  ResetMenu();
  if (IsLoaded()) GiveForegroundBack();
}

// Only what the strip or its menu took is given back: the user may be elsewhere by now. A window
// that has gone off the screen meanwhile, such as a menu that was up when the drag came, gets
// nothing.
void frmToolbar::GiveForegroundBack() {
  DesktopWindows& desktop = program_.Services.Desktop;
  const WindowId before = std::exchange(SavedForeground, kNoWindow);
  const WindowId now = desktop.ForegroundWindow();
  const QMenuPort* const menu = program_.Ports.QMenu;
  const bool ours = now == hWnd() || (menu != nullptr && now == menu->WindowHandle());
  if (ours && before != kNoWindow && before != now && desktop.IsVisible(before)) {
    desktop.BringForward(before);
  }
}

// ---- dropped on the buttons ----

void frmToolbar::picToolbar_OLEDragDrop(DragData& data, DropEffect& effect, MouseButton /*down*/,
                                        ShiftState /*shift*/, float /*x*/, float /*y*/) {
  const bool takes = TakesDrag(data);
  effect = takes ? effect & EffectOfDrag(program_.Drag.DragButtons) : DropEffect::None;
  GetCurButton();
  // Events run from here on: the pointer may go on, and the buttons may be other ones.
  const std::string path =
      IsItemButton(program_.Menu.CurButton)
          ? ToolbarButtons[static_cast<std::size_t>(program_.Menu.CurButton)].Path
          : std::string();
  StopDrag();
  Timer2.SetEnabled(false);
  if (program_.Ports.QMenu != nullptr) program_.Ports.QMenu->SetPoll(false);
  program_.SetHint("");
  if (program_.Drag.DragButtons == MouseButton::Right) ResetMenu();
  if (!IsLoaded()) return;
  CapturePort* const capture = program_.Ports.Capture;
  if (capture != nullptr && capture->MenuCaptured()) capture->ReleaseMenu();
  const int button = ItemButtonOf(path);
  if (!takes || button == 0) {
    effect = DropEffect::None;
    EndDragOver();
  } else if (data.Files) {
    DropFiles(std::exchange(*data.Files, {}), button);
  } else {
    DropAddress(data, button);
  }
}

void frmToolbar::DropFiles(std::vector<std::string> names, int button) {
  const std::string path = ToolbarButtons[static_cast<std::size_t>(button)].Path;
  auto outcome = EditOutcome::NothingToDo;
  DroppedEntries dropped;
  {
    const forms::FlagScope dragging(program_.Entry.ItemDragging);
    const forms::FlagScope busy(program_.Guards.ItemActionBusy);
    FileSystem& files = program_.Services.Files;
    const CodePage& ansi = program_.Services.Ansi;
    dropped = DroppedRecords(files, ansi, std::move(names), [this](std::string_view name) {
      return Trim(GetFileTitle(program_, name));
    });
    outcome = AppendDropped(files, ansi, path, dropped.Records);
    if (outcome == EditOutcome::Edited) program_.TellMenusEdited();
  }
  if (!IsLoaded()) return;
  if (outcome == EditOutcome::Edited) {
    ShowDropped(button);
  } else {
    // The menu as it is shows that nothing was added.
    EndDragOver();
  }
  // Last, so that nothing here lets its timer through.
  if (IsLoaded()) TellRefused(std::move(dropped.Refused));
}

// The menu comes up and stays only in front, and the system leaves that to the program dragged
// from.
void frmToolbar::ShowDropped(int button) {
  if (!IsOursActive()) program_.Services.Desktop.BringForward(hWnd());
  if (IsLoaded()) RefreshMenu("F" + std::to_string(button));
}

// A source that drags waits until the drop returns, and a message would hold it.
void frmToolbar::TellRefused(std::vector<std::string> files) {
  if (files.empty()) return;
  std::move(files.begin(), files.end(), std::back_inserter(refused_));
  tmrRefused.SetEnabled(true);
}

void frmToolbar::tmrRefused_Timer() {
  tmrRefused.SetEnabled(false);
  const std::vector<std::string> files = std::exchange(refused_, {});
  if (files.empty() || !IsLoaded()) return;
  program_.Say(hWnd(), RefusedFilesText(files),
               forms::msgbox::IconInformation | forms::msgbox::OnTop);
}

void frmToolbar::DropAddress(const DragData& data, int button) {
  const std::string path = ToolbarButtons[static_cast<std::size_t>(button)].Path;
  EndDragOver();
  if (IsLoaded()) OfferAddress(data, std::to_string(button), path);
}

void frmToolbar::OfferAddress(const DragData& data, std::string_view tag, const std::string& file) {
  WebLinkPort* const links = program_.Ports.WebLink;
  const auto address = DroppedAddress(*data.Text);
  if (links == nullptr || !address) return;
  links->OfferWebLink(*address, TitleOfDrop(program_, data, *address), tag, file);
}

// ---- the row of single buttons ----

void frmToolbar::picSingleButton_OLEDragOver(DragData& data, DropEffect& effect, MouseButton down,
                                             ShiftState /*shift*/, float /*x*/, float /*y*/) {
  const bool wanted = data.Files ? program_.Ports.SingleButtons != nullptr
                                 : data.Text && program_.Ports.WebLink != nullptr;
  effect = wanted && TakesDrag(data) ? effect & EffectOfDrag(down) : DropEffect::None;
  if (!IsOfUse(data) || program_.Guards.OpenQuestions > 0) return;
  program_.SetHint("");
  NoteDrag(data, down);
  ResetMenu();
}

void frmToolbar::picSingleButton_OLEDragDrop(DragData& data, DropEffect& effect,
                                             MouseButton /*down*/, ShiftState /*shift*/,
                                             float /*x*/, float /*y*/) {
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
  const std::string target = Singles.FileUnderPointer();
  program_.SetHint("");
  ResetMenu();
  if (takes && IsLoaded() && data.Text) OfferAddress(data, kSinglesTag, target);
}

}  // namespace corvelle
