// The mouse over the single buttons: hovering, running, carrying, right clicks.

#include <utility>

#include "base/Text.h"
#include "core/Carry.h"
#include "core/GuardFlags.h"
#include "core/MenuState.h"
#include "core/MessageBoxes.h"
#include "core/OptionFlags.h"
#include "core/RecordEdits.h"
#include "forms/Form.h"
#include "forms/PictureBox.h"
#include "forms/Scopes.h"
#include "launch/LaunchItem.h"
#include "platform/DesktopWindows.h"
#include "platform/Input.h"
#include "toolbar/docking/StripPull.h"
#include "toolbar/layout/StripLook.h"
#include "toolbar/layout/StripPlace.h"
#include "toolbar/singles/SingleRow.h"

namespace corvelle {
namespace {

constexpr std::string_view kNoCommandText =
    "No executable file found under this button. Check your configuration in the Customize window.";

/// The icon text that a carried button shows. A folder of the shell by its number goes with the
/// entry's title, as it does for an entry of a menu that shows such a folder.
std::string CarriedIcon(const SingleRect& single) {
  const std::string_view icon = single.Icon;
  const std::size_t start = kSpecialFolderStart.size();
  const bool byNumber =
      StartsWithNoCase(icon, kSpecialFolderStart) && ParseNumber(icon.substr(start)).has_value();
  return byNumber ? single.Title + "\\" + single.Icon : single.Icon;
}

}  // namespace

bool SingleRow::Has(int index) const { return index > 0 && index <= SingleCount; }

bool SingleRow::IsButton(int index) const {
  return Has(index) && SingleButtons[static_cast<std::size_t>(index)].Kind == SingleKind::Button;
}

bool SingleRow::MenuUp() const {
  return with_.Ports.QMenu != nullptr && with_.Ports.QMenu->MenuVisible();
}

int SingleRow::GetCurIndex() noexcept {
  with_.Menu.CurSingle = 0;
  const PixelPoint pointer = with_.Pointer.PointerPosition();
  const forms::PictureBox& box = controls_.Box;
  if (with_.Desktop.WindowAt(pointer) != box.hWnd()) return 0;
  const TwipPoint at{
      static_cast<float>(pointer.x) * strip_.Shape().Scale.TwipsX - window_.Left() - box.Left(),
      static_cast<float>(pointer.y) * strip_.Shape().Scale.TwipsY - window_.Top() - box.Top()};
  with_.Menu.CurSingle = SingleAt(SingleButtons, at);
  return with_.Menu.CurSingle;
}

SingleRect SingleRow::Under() {
  const int index = GetCurIndex();
  return Has(index) ? SingleButtons[static_cast<std::size_t>(index)] : SingleRect();
}

// ---- hovering ----

void SingleRow::ShowHover(int index) {
  hovered_ = index;
  const bool shown = IsButton(index);
  if (shown) {
    const SingleRect& single = SingleButtons[static_cast<std::size_t>(index)];
    const LinePair lines =
        HoverLines(strip_.Shape().Scale, {single.Left, single.Top, single.Width, single.Height});
    hover1_.SetPoints(lines.Line1.X1, lines.Line1.Y1, lines.Line1.X2, lines.Line1.Y2);
    hover2_.SetPoints(lines.Line2.X1, lines.Line2.Y1, lines.Line2.X2, lines.Line2.Y2);
    hover1_.SetBorderColor(ColorValue(LineColor::Highlight));
    hover2_.SetBorderColor(ColorValue(LineColor::Shadow));
  }
  hover1_.SetVisible(shown);
  hover2_.SetVisible(shown);
  watch_.SetEnabled(shown || with_.Menu.CurSingle == MenuState::kDateArea);
}

void SingleRow::sMouseMove() {
  if (with_.Guards.IsSettling()) return;
  const int before = with_.Menu.CurSingle;
  const int now = GetCurIndex();
  if (now == before && now == hovered_) return;
  ShowHover(now);
  // Back on a menu button, its own hint is due again.
  strip_.EndHovering();
  if (!with_.Menu.MenuOpen) with_.Menu.CurButton = 0;
  with_.Ports.SetHint(IsButton(now)
                          ? DoubleAmpersands(SingleButtons[static_cast<std::size_t>(now)].Title)
                          : std::string());
}

// Ends the look and the hint of a button, or of the date, that the pointer has left.
void SingleRow::LookAround() {
  const PixelPoint pointer = with_.Pointer.PointerPosition();
  const WindowId under = with_.Desktop.WindowAt(pointer);
  if (under == controls_.Box.hWnd()) return;
  if (!carrying_) with_.Menu.CurSingle = 0;
  ShowHover(0);
  watch_.SetEnabled(false);
  // Over the menu buttons the hint is theirs by now.
  if (!with_.Entry.ItemDragging && under != strip_.ButtonsBox().hWnd()) with_.Ports.SetHint("");
}

// ---- presses ----

void SingleRow::ToFrame(forms::MouseButton button, float x, float y) {
  press_.On = PressOn::Frame;
  strip_.SetPointerWatch(false);
  pull_.MouseDown(button, x + controls_.Box.Left(), y + controls_.Box.Top());
}

bool SingleRow::IsBesidePull(forms::MouseButton button) const {
  return press_.On == PressOn::Frame && pull_.IsBesidePull(button);
}

void SingleRow::picSingleButton_MouseDown(forms::MouseButton button, forms::ShiftState /*shift*/,
                                          float x, float y) {
  if (with_.Entry.ItemDragging || IsBesidePull(button)) return;
  OnDate = Date.IsUnder(x);
  // The place of the press: by now the pointer may be elsewhere.
  const int index = OnDate ? MenuState::kDateArea : SingleAt(SingleButtons, {x, y});
  with_.Menu.CurSingle = index;
  press_ = {.On = PressOn::Single, .Index = index, .X = x, .Y = y};
  if (MenuUp()) pull_.FrameDragging = true;
  // The bare parts of the box are the strip's frame, and so is a separator for the left button.
  const bool bare = !Has(index) || (button == forms::MouseButton::Left && !IsButton(index));
  if (bare) {
    ToFrame(button, x, y);
  } else if (button == forms::MouseButton::Left && !MenuUp()) {
    BeginCarry(index);
  }
  // Last, since a hint that goes lets events through, and the release may be among them.
  with_.Ports.SetHint("");
}

void SingleRow::picSingleButton_MouseMove(forms::MouseButton down, forms::ShiftState shift, float x,
                                          float y) {
  if (carrying_) {
    if (FrameHasMoved({press_.X, press_.Y}, {x, y}, strip_.Shape().Scale.TwipsX,
                      strip_.Shape().Scale.TwipsY)) {
      press_.Moved = true;
    }
    if (press_.Moved) FollowCarry(down, shift);
    return;
  }
  const bool anyDown = down != forms::MouseButton::None;
  if (!anyDown) press_.On = PressOn::Nothing;
  if (!anyDown || press_.On == PressOn::Frame) {
    strip_.FrameMouseMove(down, x + controls_.Box.Left(), y + controls_.Box.Top());
  }
  if (!anyDown && window_.IsLoaded() && !with_.Entry.ItemDragging) sMouseMove();
}

void SingleRow::picSingleButton_MouseUp(forms::MouseButton button, forms::ShiftState shift,
                                        float /*x*/, float /*y*/) {
  with_.Ports.SetHint("");
  if (IsBesidePull(button)) return;
  const Press press = std::exchange(press_, {});
  // Wherever on the row the press ends, it was the frame's; a pull is ended by the frame itself.
  if (press.On == PressOn::Frame && !pull_.FrameMoved) pull_.LetFrameGo();
  if (carrying_) {
    // The left button is still down when the right one drops a copy.
    if (button != forms::MouseButton::Left) press_.On = PressOn::Spent;
    EndCarry(press, button, shift);
    return;
  }
  if (with_.Entry.ItemDragging || press.On == PressOn::Spent) return;
  if (button == forms::MouseButton::Right && OffersPopup(press)) {
    if (const int index = GetCurIndex(); Has(index)) {
      ShowSinglePopup(index, shift.Ctrl);
    } else {
      ShowRowPopup();
    }
  } else if (press.On == PressOn::Frame) {
    pull_.MouseUp(button);
  } else if (pull_.FrameDragging) {
    // Pressed while a menu was up: the release only closes it.
    pull_.FrameDragging = false;
    CloseMenus();
  }
}

// True if a right release is one on the row: inside its box, beside the date, and no pull.
bool SingleRow::OffersPopup(const Press& press) const {
  const PixelPoint pointer = with_.Pointer.PointerPosition();
  return with_.Desktop.WindowAt(pointer) == controls_.Box.hWnd() &&
         press.Index != MenuState::kDateArea && !(press.On == PressOn::Frame && pull_.FrameMoved);
}

void SingleRow::picSingleButton_DblClick() {
  // The second press of a quick pair is no press of its own on a button.
  press_ = {.On = PressOn::Spent};
  if (with_.Entry.ItemDragging) return;
  if (OnDate) {
    Date.lblDate_DblClick();
    return;
  }
  // The place of the press, as with every press.
  const int index = SingleAt(SingleButtons, controls_.Box.PressPlace());
  with_.Menu.CurSingle = index;
  if (!IsButton(index)) return;
  if (!pull_.FrameMoved && !with_.Options.Is(Option::SingleClick)) RunSingleButton();
}

// No release will come: nothing was pressed, and what is carried is put down nowhere.
void SingleRow::picSingleButton_CaptureLost() {
  if (carrying_) return LoseCarry();
  const Press press = std::exchange(press_, {});
  if (press.On == PressOn::Frame) pull_.LosePress();
}

void SingleRow::LoseCarry() {
  press_ = {};
  StopCarry();
  CloseMenus();
}

void SingleRow::CloseMenus() {
  with_.Menu.MenuOpen = true;
  strip_.ResetMenu();
}

// ---- running ----

void SingleRow::RunSingleButton() {
  if (with_.Entry.ItemDragging || running_ || with_.Guards.StartingUp) return;
  const forms::FlagScope running(running_);
  with_.Guards.RestoreBusy = false;
  pull_.FrameDragging = false;
  pull_.FrameMoved = false;
  const int index = with_.Menu.CurSingle;
  const bool runs = IsButton(index);
  // Events run from here on, and the row may be another one after them.
  const std::string command =
      runs ? SingleButtons[static_cast<std::size_t>(index)].Command : std::string();
  CloseMenus();
  with_.Ports.SetHint("");
  if (!runs || !window_.IsLoaded()) return;
  const forms::HourglassScope hourglass(window_.Windows());
  if (command.empty()) {
    with_.Launch.Messages.Say(window_.hWnd(), kNoCommandText,
                              forms::msgbox::IconStop | forms::msgbox::OnTop);
  } else {
    LaunchItem(with_.Launch, command);
  }
}

// ---- carrying ----

void SingleRow::BeginCarry(int index) {
  const SingleRect& single = SingleButtons[static_cast<std::size_t>(index)];
  carrying_ = true;
  EntryEdit& entry = with_.Entry;
  entry.ItemDragging = true;
  strip_.SetPointerWatch(true);
  with_.Menu.MenuOpen = true;
  entry.CurTitle = single.Title;
  entry.CurIcon = single.Icon;
  entry.CurCommand = single.Command;
  entry.CurMenuTag = kSinglesTag;
  entry.CurFile = single.File;
  entry.CurRecord = 1;
  entry.CurStored.clear();
  CopyEntry(entry);
  const std::string icon = CarriedIcon(single);
  if (with_.Ports.DragImage != nullptr) with_.Ports.DragImage->SetDragImage(icon);
}

void SingleRow::FollowCarry(forms::MouseButton down, forms::ShiftState shift) {
  if (down == forms::MouseButton::None || !with_.Entry.ItemDragging) {
    // The release went to another program.
    LoseCarry();
    return;
  }
  const PixelPoint pointer = with_.Pointer.PointerPosition();
  const WindowId under = with_.Desktop.WindowAt(pointer);
  const float x = static_cast<float>(pointer.x) * strip_.Shape().Scale.TwipsX;
  const float y = static_cast<float>(pointer.y) * strip_.Shape().Scale.TwipsY;
  ShowHover(GetCurIndex());
  if (under == strip_.ButtonsBox().hWnd()) {
    strip_.CarryOverButtons(down, shift, x - window_.Left() - strip_.ButtonsBox().Left(),
                            y - window_.Top() - strip_.ButtonsBox().Top());
  } else if (strip_.IsOverMenu(under)) {
    with_.Ports.QMenu->mMouseMove(x, y);
  }
}

// A press that did not move is a click; anything else is a drop where the pointer is.
void SingleRow::EndCarry(const Press& press, forms::MouseButton released, forms::ShiftState shift) {
  carrying_ = false;
  strip_.SetPointerWatch(false);
  if (press.Moved) {
    const forms::FlagScope dropping = with_.Carry.Dropping();
    DropCarried(released, shift);
  }
  StopCarry();
  if (!window_.IsLoaded()) return;
  const bool clicked = !press.Moved && released == forms::MouseButton::Left;
  if (clicked && with_.Options.Is(Option::SingleClick)) {
    with_.Menu.CurSingle = press.Index;
    RunSingleButton();
  } else if (!MenuUp()) {
    CloseMenus();
  }
  with_.Menu.CurSingle = 0;
  ShowHover(0);
}

void SingleRow::DropCarried(forms::MouseButton released, forms::ShiftState shift) {
  const PixelPoint pointer = with_.Pointer.PointerPosition();
  const WindowId under = with_.Desktop.WindowAt(pointer);
  if (under == controls_.Box.hWnd()) {
    strip_.DropOnRow(released);
  } else if (under == strip_.ButtonsBox().hWnd()) {
    const int button = strip_.ButtonUnder(pointer);
    if (button > 0) strip_.DoButtonDrag(button, released);
  } else if (strip_.IsOverMenu(under)) {
    // In a menu it is Ctrl that copies.
    if (released == forms::MouseButton::Right) shift.Ctrl = true;
    with_.Ports.QMenu->DoItemDrag(shift);
  }
}

void SingleRow::StopCarry() {
  carrying_ = false;
  with_.Carry.AbandonCarry();
}

// ---- right clicks ----

// Option::SystemPopupWithCtrl tells which of the two popups needs the Ctrl key.
void SingleRow::ShowSinglePopup(int index, bool ctrl) {
  const SingleRect single = SingleButtons[static_cast<std::size_t>(index)];
  CloseMenus();
  if (!window_.IsLoaded()) return;
  const EntryEdit entry{.CurTitle = single.Title,
                        .CurIcon = single.Icon,
                        .CurCommand = single.Command,
                        .CurMenuTag = std::string(kSinglesTag),
                        .CurFile = single.File,
                        .CurRecord = 1};
  const bool shell = with_.Options.Is(Option::SystemPopupWithCtrl) == ctrl;
  if (!shell) {
    if (with_.Ports.Popup != nullptr) with_.Ports.Popup->ShowToolbarPopup(entry);
  } else if (with_.Ports.SpecialFolders != nullptr && !single.Command.empty()) {
    SetCurrentEntry(with_.Entry, entry);
    const forms::CountScope asking(with_.Guards.OpenQuestions);
    with_.Ports.SpecialFolders->ShowContextMenu(single.Command, {}, with_.Pointer.PointerPosition(),
                                                window_.hWnd());
  }
}

// On the bare row the popup can paste behind the last button.
void SingleRow::ShowRowPopup() { pull_.ShowFramePopup(kSinglesTag); }

}  // namespace corvelle
