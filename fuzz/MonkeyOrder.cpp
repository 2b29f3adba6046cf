// What must hold after every event.

#include <algorithm>
#include <array>
#include <map>

#include "MonkeyLife.h"
#include "base/Text.h"
#include "core/MenuFile.h"
#include "core/MenuRecord.h"
#include "forms/Types.h"

namespace corvelle::fuzz {
namespace {

constexpr int kTwoPolls = 200;       // milliseconds
constexpr int kMostTimers = 16;      // that the program has
constexpr int kMostThickness = 150;  // pixels

}  // namespace

std::string MonkeyLife::WrongState() const {
  const Program& program = parts_->TheProgram;
  if (program.Guards.StartingUp) return "the start has not ended";
  if (program.Guards.MenuBuilding) return "a menu is still being built";
  if (program.Guards.AppBarBusy) return "the strip is still being placed";
  if (program.Guards.PosChangeRunning) return "the edge is still being changed";
  if (program.Guards.HideBusy) return "the strip is still being hidden";
  if (program.Guards.ChangingMode) return "the mode is still being changed";
  if (program.Guards.ItemActionBusy) return "an entry is still being edited";
  if (program.Drag.ItemDropping) return "an entry is still being put down";
  if (parts_->StillPicture.MovingToolbar) return "the outline is still being moved";
  if (program.Strip.ToolbarMinimizing) return "the strip is still on its way into the task bar";
  if (parts_->Toolbar.Menus.MenuRefreshing) return "a menu is still being reread";
  if (!program.Strip.ToolbarMinimized && !program.Guards.ToolbarReady)
    return "the strip does not listen";
  if (!parts_->Toolbar.Enabled() && !parts_->WebLink.IsLoaded()) return "the strip is disabled";
  if (program.Menu.CurButton < 0 || program.Menu.CurButton > parts_->Toolbar.Buttons.ButtonCount)
    return "there is no current button " + std::to_string(program.Menu.CurButton);
  if (program.Menu.CurSingle != MenuState::kDateArea &&
      program.Menu.CurSingle > parts_->Toolbar.Singles.SingleCount)
    return "there is no current single button " + std::to_string(program.Menu.CurSingle);
  if (world_->Desktop.CurrentMousePointer() == forms::MousePointer::Hourglass)
    return "the hourglass stays";
  if (world_->Desktop.Clock().Running() - world_->SlowAnswers.UnderWay() > kMostTimers)
    return "timers pile up";
  return {};
}

std::string MonkeyLife::WrongMenu() const {
  const Program& program = parts_->TheProgram;
  const frmQMenu& menu = parts_->Menu;
  if (!menu.MenuVisible()) return {};
  if (!menu.Timer1.Enabled()) return "a menu is up without its poll";
  if (!menu.MenuReady) return "a menu is up without being ready";
  if (menu.OwnerTag() == "0" || menu.OwnerTag().empty()) return "a menu is up that no button owns";
  if (program.Strip.ToolbarMinimized) return "a menu is up without its strip";
  if (menu.Pages().CurMenu() < 0 || menu.Pages().CurMenu() > menu.Pages().Slides())
    return "there is no such page";
  const bool empty = menu.Pages().LastLabel() < menu.Pages().FirstLabel();
  if (!empty && (menu.Pages().FirstLabel() < 1 || !menu.Lbl.Has(menu.Pages().LastLabel())))
    return "the page has items that the menu has not";
  const int selected = program.Menu.SelectedItem;
  if (selected != 0 &&
      (selected < menu.Pages().FirstLabel() || selected > menu.Pages().LastLabel()))
    return "the selection " + std::to_string(selected) + " is not on the page";
  if (menu.Shape1.Visible() && selected == 0) return "a bar is shown without a selection";
  return {};
}

// What has to be in order a moment after the last button went up: a hold whose release went to
// another program is noticed, and a strip that could not be placed while something was carried is.
std::string MonkeyLife::WrongHold() {
  if (IsDown(forms::MouseButton::Left) || IsDown(forms::MouseButton::Right)) return {};
  const auto wrong = [this]() -> std::string {
    if (parts_->TheProgram.Guards.RestoreBusy) return "the grip is still held";
    if (parts_->Toolbar.Pull.FrameHeld) return "the frame is still held";
    return IsOffScreen() ? "the strip is off the screen" : "";
  };
  if (wrong().empty()) return {};
  constexpr int kNoticed = 800;
  world_->Desktop.Advance(kNoticed);
  return StripStands() ? wrong() : "";
}

bool MonkeyLife::IsOffScreen() const {
  const Program& program = parts_->TheProgram;
  const frmToolbar& strip = parts_->Toolbar;
  if (program.Strip.ToolbarMinimized || !strip.Visible()) return false;
  // Two options let a strip at no edge pass the sides of the screen, without an end.
  if (!program.Strip.AppBarDocked &&
      (program.OptionFlags.Is(Option::MayPassRight) || program.OptionFlags.Is(Option::MayPassLeft)))
    return false;
  const PixelRect bounds = world_->Desktop.BoundsOf(strip.WindowHandle());
  const forms::ScreenInfo info = world_->Desktop.Screen();
  const PixelRect screen{0, 0, static_cast<int>(info.Width / info.TwipsPerPixelX),
                         static_cast<int>(info.Height / info.TwipsPerPixelY)};
  return Intersect(bounds, screen).IsEmpty();
}

// What a tick of the poll has to end: a menu that the desktop hid.
std::string MonkeyLife::WrongRest() {
  if (parts_->Menu.MenuVisible() || !parts_->Menu.Timer1.Enabled()) return {};
  // While it is asked where an address goes, the poll changes nothing.
  if (parts_->WebLink.IsLoaded()) return {};
  world_->Desktop.Advance(kTwoPolls);
  const bool stays = !parts_->Menu.MenuVisible() && parts_->Menu.Timer1.Enabled();
  return stays ? "the poll runs on without a menu" : "";
}

std::string MonkeyLife::WrongCarry() {
  const Program& program = parts_->TheProgram;
  const auto pointer = [this] { return world_->Desktop.CurrentMousePointer(); };
  const auto carries = [&] {
    return pointer() == forms::MousePointer::Custom || pointer() == forms::MousePointer::NoDrop;
  };
  if (!program.Entry.ItemDragging) return carries() ? "the pointer still carries something" : "";
  if (IsDown(forms::MouseButton::Left) || IsDown(forms::MouseButton::Right)) return {};
  constexpr int kNoticed = 500;
  world_->Desktop.Advance(kNoticed);
  if (!StripStands()) return {};
  if (program.Entry.ItemDragging) return "an entry is carried by a hand that let go";
  return carries() ? "the pointer still carries something" : "";
}

std::string MonkeyLife::WrongDrag() {
  const Program& program = parts_->TheProgram;
  if (world_->Desktop.Dragging()) return {};
  const auto open = [&] {
    // A menu that the drag came to straight away forgets it when it goes.
    return (program.Drag.DragOverButton && !MenuUp()) || program.Drag.DragEntered ||
           parts_->Toolbar.tmrDragDrop.Enabled();
  };
  if (!open() || IsDown(forms::MouseButton::Left) || IsDown(forms::MouseButton::Right)) return {};
  constexpr int kNoticed = 2500;
  world_->Desktop.Advance(kNoticed);
  if (!StripStands()) return {};
  if (!open()) return {};
  return std::string("a drag that is over still counts: ") +
         (program.Drag.DragOverButton ? "over " : "") +
         (program.Drag.DragEntered ? "entered " : "") +
         (parts_->Toolbar.tmrDragDrop.Enabled() ? "watched" : "");
}

std::string MonkeyLife::WrongWindows() const {
  constexpr std::array<std::string_view, 13> kKnown = {
      "frmToolbar", "frmQMenu",     "frmMinimize", "frmHelp",       "frmImage",
      "frmTip",     "frmStartup",   "frmCust",     "frmProperties", "frmLibrary",
      "frmURL",     "frmNetSearch", "frmAbout"};
  std::map<std::string, int> seen;
  for (const WindowId id : world_->Desktop.TopLevel()) {
    const sim::SimWindow* const window = world_->Desktop.Look(id);
    if (!window->Own || id == world_->Desktop.DesktopWindow()) continue;
    if (std::find(kKnown.begin(), kKnown.end(), window->ClassName) == kKnown.end())
      return "a window " + window->ClassName + " stays";
    if (++seen[window->ClassName] > 1) return "there are two of " + window->ClassName;
  }
  for (const std::string_view name : {"frmToolbar", "frmQMenu", "frmMinimize"}) {
    if (!seen.contains(std::string(name))) return std::string(name) + " is gone";
  }
  if (seen.contains("frmStartup")) return "the window of the start stays";
  return WrongPicture();
}

// A still picture is that of a menu under a dropped address, until the address is dealt with, or
// the outline of a strip that is being pulled.
std::string MonkeyLife::WrongPicture() const {
  const frmImage& picture = parts_->StillPicture;
  if (picture.MenuCaptured()) {
    if (!picture.IsLoaded()) return "a menu is covered by no picture";
    if (!parts_->WebLink.WebLinkPending) return "a still picture of the menu stays";
    return MenuUp() ? "" : "a still picture covers a menu that is gone";
  }
  const bool held = IsDown(forms::MouseButton::Left) || IsDown(forms::MouseButton::Right);
  return picture.IsLoaded() && !held ? "a still picture stays" : "";
}

// Somebody has the foreground and can take what the user does, and the keyboard is there. A window
// that was disabled for a question or a rebuild is enabled again.
std::string MonkeyLife::WrongForeground() const {
  const sim::SimDesktop& desktop = world_->Desktop;
  for (const WindowId id : desktop.TopLevel()) {
    const sim::SimWindow& window = *desktop.Look(id);
    if (window.Own && !window.Enabled && !MayBeDisabled(window))
      return window.ClassName + " is disabled";
  }
  const WindowId front = desktop.ForegroundWindow();
  const sim::SimWindow* const owner = desktop.Look(front);
  if (owner == nullptr) return front == kNoWindow ? "" : "the foreground is a window that is gone";
  if (owner->Own && owner->Parent != kNoWindow)
    return owner->ClassName + " is no window of its own";
  if (owner->Own && !owner->Visible) return owner->ClassName + " has the foreground, hidden";
  WindowId keys = desktop.FocusWindow();
  while (keys != kNoWindow && keys != front) {
    const sim::SimWindow* const window = desktop.Look(keys);
    if (window == nullptr) return "the keys go to a window that is gone";
    if (window->Parent == kNoWindow)
      return "the keys go to " + window->ClassName + ", the foreground is " + owner->ClassName;
    keys = window->Parent;
  }
  return {};
}

std::string MonkeyLife::WrongPlace() const {
  const Program& program = parts_->TheProgram;
  const frmToolbar& strip = parts_->Toolbar;
  if (program.Strip.ToolbarMinimized) {
    if (strip.Visible()) return "a strip in the task bar is to be seen";
    if (program.Strip.AppBarDocked) return "a strip in the task bar stands at an edge";
    return {};
  }
  if (!strip.Visible() && !program.Strip.AutoHide) return "the strip is not to be seen";
  if (!strip.Visible()) return {};
  if (!program.Strip.AppBarDocked) return {};
  const PixelRect bounds = world_->Desktop.BoundsOf(strip.WindowHandle());
  const int thickness = program.Strip.ToolbarVertical ? bounds.Width() : bounds.Height();
  if (thickness > kMostThickness)
    return "the strip at an edge is " + std::to_string(thickness) + " pixels thick";
  if (IsVertical(program.Strip.ToolbarEdge) != program.Strip.ToolbarVertical)
    return "the strip stands across its edge";
  const bool pinned =
      strip.Left() == program.Strip.PinnedLeft && strip.Top() == program.Strip.PinnedTop;
  if (!program.Strip.AutoHide && !pinned) return "the strip is not where it is pinned";
  return {};
}

std::string MonkeyLife::WrongBars() const {
  const Program& program = parts_->TheProgram;
  const WindowId strip = parts_->Toolbar.WindowHandle();
  const bool docked = program.Strip.AppBarDocked && !program.Strip.ToolbarMinimized;
  const bool hides = docked && program.Strip.AutoHide;
  for (const Edge edge : {Edge::Top, Edge::Bottom, Edge::Left, Edge::Right}) {
    const bool claims = world_->Bars.HiddenBar(edge) == strip;
    const bool should = hides && edge == program.Strip.ToolbarEdge;
    if (claims != should)
      return std::string(claims ? "a claim that was not given up at " : "no claim at ") +
             std::string(EdgeText(edge));
  }
  const bool keeps = !world_->Bars.KeptBy(strip).IsEmpty();
  const bool should = docked && !program.Strip.AutoHide && !program.Strip.NotOnTop;
  if (keeps != should) return keeps ? "room is kept for no strip" : "no room is kept for the strip";
  if (program.Strip.ToolbarMinimized && program.Strip.WasDocked && world_->Bars.IsRegistered(strip))
    return "a strip in the task bar is still a bar";
  const std::size_t icons = program.Strip.NotOnTop ? 1 : 0;
  if (world_->Tray.Shown.size() != icons)
    return "the tray shows " + std::to_string(world_->Tray.Shown.size()) + " icons";
  return {};
}

std::string MonkeyLife::WrongOptions() const {
  const Program& program = parts_->TheProgram;
  if (program.OptionFlags.Is(Option::AutoHide) != program.Strip.AutoHide)
    return "the option of Auto Hide differs";
  if (program.OptionFlags.Is(Option::NotOnTop) != program.Strip.NotOnTop)
    return "the option of Not On Top differs";
  if (program.Strip.AutoHide && program.Strip.NotOnTop) return "the strip hides and can be covered";
  return {};
}

// The last calls, to be seen beside what they did.
std::string MonkeyLife::DiskCalls() const {
  constexpr int kCalls = 20;
  const auto& log = world_->Files.Log();
  std::string text;
  int told = 0;
  for (auto call = log.rbegin(); call != log.rend() && told < kCalls; ++call) {
    const std::string& what = call->Operation;
    if (what == "Read" || what == "List" || what == "Length" || what.ends_with("Exists")) continue;
    text = "\n  disk: " + what + " " + call->Path + " " + call->Other + text;
    ++told;
  }
  return text;
}

std::string MonkeyLife::WrongFiles() {
  SettleFiles();
  if (disk_ != Disk::Failing && !wrongSave_.empty()) return wrongSave_ + DiskCalls();
  const EntryLedger lost = lost_.Without(new_);
  if (disk_ != Disk::Failing && lost.Size() > lossesAllowed_ && !LostByProperties(lost.Size())) {
    const EntryLedger added = new_.Without(lost_);
    return std::to_string(lost.Size()) + " entries are lost, one is\n" + lost.First() + "\n" +
           std::to_string(added.Size()) + " are new, one is\n" + added.First() + DiskCalls();
  }
  if (world_->Files.Changes() == filesLookedAt_) return {};
  filesLookedAt_ = world_->Files.Changes();
  if (!world_->Files.Has(kMenus) || disk_ == Disk::Failing) return {};
  for (const std::string& name : world_->Files.Names(kMenus)) {
    const std::string path = std::string(kMenus) + name;
    if (HoldsEntries(name)) {
      // What the monkey broke itself stays broken, also under another number.
      const auto bytes = world_->Files.Get(path);
      if (bytes && bytes->size() % kRecordLength != 0 && bytes->find(kDamage) == std::string::npos)
        return name + " is no whole number of records any more";
    }
    const bool temporary = UpperCase(name).ends_with(".TMP") || name == kRewriteFileName;
    if (temporary && disk_ == Disk::Well) return name + " was left behind";
  }
  return {};
}

// Nobody has touched anything for some seconds.
std::string MonkeyLife::WrongQuiet() const {
  if (!quiet_) return {};
  const Program& program = parts_->TheProgram;
  // What the dialog for an address holds waits for it; windows that are up have timers.
  if (parts_->WebLink.IsLoaded()) return {};
  const bool windows = !OpenWindows().empty();
  const PixelPoint pointer = world_->Desktop.PointerPosition();
  const bool over = world_->Desktop.WindowAt(pointer) == parts_->Menu.WindowHandle();
  if (MenuUp() && over) return {};  // where the pointer rests a menu stays
  if (MenuUp()) {
    const WindowId active = world_->Desktop.ActiveWindow();
    return "a menu stays though the user has turned away; active is " +
           (active == kNoWindow ? "no window" : world_->Desktop.ClassName(active)) +
           (program.Drag.DragHolds(program.Services.Pointer) ? ", a drag holds" : "");
  }
  if (program.Menu.MenuOpen) return "a menu counts as open";
  const WindowId hint = parts_->Hint.WindowHandle();
  if (hint != kNoWindow && world_->Desktop.IsShown(hint)) return "a hint stays";
  const int running = world_->Desktop.Clock().Running();
  const int expected = program.Strip.AutoHide && !program.Strip.ToolbarMinimized ? 1 : 0;
  // A place that did not answer is asked again for the icons of the strip when it has rested.
  const int mayRun = expected + (slowPlaces_ ? 1 : 0);
  if (running > mayRun && !windows) return std::to_string(running) + " timers run for nothing";
  if (expected == 1 && running == 0) return "nobody watches for a strip that hides";
  return {};
}

void MonkeyLife::NotePlace() {
  const Program& program = parts_->TheProgram;
  std::string place = program.Strip.ToolbarMinimized ? "in the task bar"
                      : program.Strip.AppBarDocked
                          ? "at " + std::string(EdgeText(program.Strip.ToolbarEdge))
                          : "at no edge";
  if (program.Strip.AutoHide) place += ", hiding";
  if (program.Strip.NotOnTop) place += ", not on top";
  if (place == placeBefore_) return;
  Tell("(strip " + place + ")");
  placeBefore_ = place;
  tally_.Note("strip " + place);
}

std::string MonkeyLife::WhatIsWrong() {
  if (!complaints_.empty()) return complaints_.front();
  if (std::string wrong = WrongRest(); !wrong.empty()) return wrong;
  if (std::string wrong = WrongCarry(); !wrong.empty()) return wrong;
  if (std::string wrong = WrongDrag(); !wrong.empty()) return wrong;
  if (StripStands()) {
    if (std::string wrong = WrongLink(); !wrong.empty()) return wrong;
  }
  if (StripStands()) {
    if (std::string wrong = WrongHold(); !wrong.empty()) return wrong;
  }
  if (!StripStands() || world_->Desktop.QuitCalled()) return {};
  NotePlace();
  for (const auto check :
       {&MonkeyLife::WrongState, &MonkeyLife::WrongMenu, &MonkeyLife::WrongWindows,
        &MonkeyLife::WrongForeground, &MonkeyLife::WrongPlace, &MonkeyLife::WrongBars,
        &MonkeyLife::WrongOptions, &MonkeyLife::WrongQuiet, &MonkeyLife::WrongTurns,
        &MonkeyLife::WrongRows}) {
    if (std::string wrong = (this->*check)(); !wrong.empty()) return wrong;
  }
  if (std::string wrong = WrongFiles(); !wrong.empty()) return wrong;
  return WrongTree();
}

std::string MonkeyLife::WrongEnd() {
  HealPlaces();
  // An answer that comes after the end is told to nobody, and the desk would wait for it.
  if (slowPlaces_) LetPass(kAllAnswered);
  if (std::string wrong = WrongFiles(); !wrong.empty()) return wrong;
  // The windows may save what the last event did in them.
  NoteTree();
  if (parts_->Companion.WindowLoaded()) parts_->Companion.UnloadWindow();
  if (!complaints_.empty()) return complaints_.front();
  if (!world_->Desktop.QuitCalled()) return "the end of the companion is not the end";
  for (const std::string_view window :
       {"frmToolbar", "frmQMenu", "frmMinimize", "picToolbar", "frmStartup", "frmImage", "frmCust",
        "frmProperties", "frmLibrary", "frmURL", "frmNetSearch", "frmAbout"}) {
    if (world_->Desktop.Find(window) != kNoWindow) return std::string(window) + " outlives the end";
  }
  if (world_->Bars.IsRegistered(strip_)) return "the strip's bar outlives the end";
  if (!world_->Tray.Shown.empty()) return "an icon in the tray outlives the end";
  const std::pair<const char*, const forms::Timer*> timers[] = {
      {"Timer1 of the strip", &parts_->Toolbar.Timer1},
      {"Timer2 of the strip", &parts_->Toolbar.Timer2},
      {"tmrDragDrop", &parts_->Toolbar.tmrDragDrop},
      {"the poll of the menu", &parts_->Menu.Timer1},
      {"the timer of the hint", &parts_->Hint.Timer1}};
  for (const auto& [name, timer] : timers) {
    if (timer->Enabled()) return std::string(name) + " outlives the end";
  }
  if (world_->Desktop.Clock().Running() > (world_->Desktop.Dragging() ? 1 : 0))
    return "a timer outlives the end";
  return WrongFiles();
}

}  // namespace corvelle::fuzz
