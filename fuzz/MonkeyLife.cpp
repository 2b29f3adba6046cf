#include "MonkeyLife.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

#include "core/Main.h"
#include "core/MenuRecord.h"
#include "forms/Types.h"

namespace corvelle::fuzz {
namespace {

constexpr char kApp[] = "C:\\Corvelle\\";
constexpr char kMenus[] = "C:\\Corvelle\\Menus\\";
constexpr int kMenuFiles = 6;
constexpr int kRemembered = 25;  // events
constexpr int kControl = 17;
constexpr std::string_view kDamage = "broken by a monkey";

constexpr std::array<int, 14> kKeys = {13, 27, 33, 34, 35, 36, 37, 38, 39, 40, 116, 121, 17, 16};

const std::array<std::string, 12> kTitles = {
    "Notepad",
    "Paint & Co",
    "alpha",
    "Zeta",
    "",
    " blank ",
    "\xC3\x84pfel",
    "Corvelle",
    "a title that is far longer than any field of a menu record could ever hold",
    "7",
    "-",
    "New"};
const std::array<std::string, 12> kIcons = {"",
                                            "MenuLineSeparator",
                                            "MenuLineSeparator",
                                            "Button",
                                            "New",
                                            "\\icons\\folder.ico",
                                            "xCircle",
                                            "C:\\Tools\\tool.exe",
                                            "MenuBreaker",
                                            "imgIcons help",
                                            "CSIDL_DRIVES",
                                            "no such file|3"};
const std::array<std::string, 10> kCommands = {"C:\\Tools\\tool.exe",     "",
                                               "?C:\\Tools\\tool.exe /x", "http://a.example/",
                                               "mailto:a@b.example",      "FileFind",
                                               "C:\\Docs\\*.*/U",         "CSIDL_PROGRAMS/UE",
                                               "C:\\Docs\\*.txt /X",      "ClearTempFolder"};

template <class List>
const auto& Pick(const List& list, std::mt19937_64& random) {
  return list[static_cast<std::size_t>(random() % list.size())];
}

}  // namespace

MonkeyLife::MonkeyLife(std::uint64_t seed, bool tell) : random_(seed), tell_(tell) {}

MonkeyLife::~MonkeyLife() = default;

int MonkeyLife::Number(int below) {
  return static_cast<int>(random_() % static_cast<std::uint64_t>(below));
}

std::string MonkeyLife::MenuPath(int number) const {
  return std::string(kMenus) + "BMENU00" + std::to_string(number) + ".MNU";
}

void MonkeyLife::Tell(std::string event) {
  if (tell_) {
    std::printf("%s\n", event.c_str());
    std::fflush(stdout);
  }
  last_.push_back(std::move(event));
  if (last_.size() > kRemembered) last_.pop_front();
}

// ---- the world before the start ----

std::string MonkeyLife::RandomRecords(int count) {
  std::string bytes;
  for (int i = 0; i < count; ++i) {
    bytes += FormatRecord({.FTitle = Pick(kTitles, random_),
                           .FIcon = Pick(kIcons, random_),
                           .FName = Pick(kCommands, random_)},
                          world_->Ansi);
  }
  return bytes;
}

void MonkeyLife::WriteMenu(int number) {
  const int count = Chance(10) ? 150 : Number(30);
  world_->Files.Put(MenuPath(number), RandomRecords(1 + count));
}

void MonkeyLife::Furnish() {
  sim::WorldOptions options;
  options.TwipsPerPixel = Chance(30) ? 12.0F : 15.0F;
  world_ = std::make_unique<sim::World>(options);
  world_->Desktop.Clock().SetShortestInterval(10);
  world_->Desktop.AnswerAnyOther(Chance(50) ? forms::msgbox::AnswerYes : forms::msgbox::AnswerNo);
  world_->Folders.DismissAnyOther();
  world_->Folders.Put(2, {{"Notepad", 3}, {"Paint", 4}});
  world_->System.WorkFolder = kApp;
  world_->Files.Put(std::string(kApp) + "corvelle.exe", "x");
  world_->Files.Put("C:\\Tools\\tool.exe", "x");
  world_->Files.Put("C:\\Docs\\letter.txt", "x");
  world_->Files.Put("C:\\Docs\\sub\\other.txt", "x");
  world_->Files.MakeFolders(kMenus);
  OptionFlags flags;
  for (int position = 1; position <= 32; ++position) flags.Set(position, Chance(40));
  flags.Set(1, true);
  flags.Set(2, true);
  world_->Files.Put(std::string(kApp) + std::string(kOptionFlagsFileName), flags.Text());
  const int menus = Number(kMenuFiles);
  for (int number = 1; number <= menus; ++number) WriteMenu(number);
}

// ---- events ----

PixelPoint MonkeyLife::PointIn(std::string_view className) {
  const WindowId window = world_->Desktop.Find(className);
  if (window == kNoWindow || !world_->Desktop.IsShown(window)) return {Number(1024), Number(768)};
  const PixelRect bounds = world_->Desktop.BoundsOf(window);
  return {bounds.left + Number(std::max(bounds.Width(), 1)),
          bounds.top + Number(std::max(bounds.Height(), 1))};
}

PixelPoint MonkeyLife::SomePoint() {
  switch (Number(10)) {
    case 0:
    case 1:
    case 2:
    case 3:
      return PointIn("frmQMenu");
    case 4:
    case 5:
    case 6:
      return PointIn("picToolbar");
    case 7:
      return PointIn("picSingleButton");
    case 8:
      return PointIn("frmToolbar");
    default:
      return {Number(1024), Number(768)};
  }
}

void MonkeyLife::MoveSomewhere() {
  const PixelPoint at = SomePoint();
  Tell("move " + std::to_string(at.x) + "," + std::to_string(at.y));
  world_->Desktop.MovePointer(at.x, at.y);
}

void MonkeyLife::PressOrRelease() {
  const forms::MouseButton button =
      Chance(75) ? forms::MouseButton::Left : forms::MouseButton::Right;
  const int key = button == forms::MouseButton::Left ? 1 : 2;
  const bool down = world_->Desktop.IsKeyDown(key);
  Tell(std::string(down ? "release " : "press ") + (key == 1 ? "left" : "right"));
  if (down) {
    world_->Desktop.Release(button);
  } else {
    world_->Desktop.Press(button);
  }
}

void MonkeyLife::ClickSomewhere() {
  const PixelPoint at = SomePoint();
  Tell("click " + std::to_string(at.x) + "," + std::to_string(at.y));
  const bool left = Chance(80);
  if (Chance(10)) {
    world_->Desktop.MovePointer(at.x, at.y);
    world_->Desktop.DoubleClick();
  } else {
    world_->Desktop.ClickAt(at.x, at.y,
                            left ? forms::MouseButton::Left : forms::MouseButton::Right);
  }
}

void MonkeyLife::UseKeys() {
  if (Chance(30)) {
    const std::string letter(1, static_cast<char>('a' + Number(26)));
    Tell("type " + letter);
    world_->Desktop.Type(letter);
    return;
  }
  const int key = Pick(kKeys, random_);
  if (key == kControl || key == 16) {
    const bool down = keysDown_.contains(key);
    Tell((down ? "key up " : "key down ") + std::to_string(key));
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
  world_->Desktop.PressKey(key);
}

void MonkeyLife::LetTimePass() {
  const int milliseconds = Chance(80) ? Number(120) : Number(2000);
  Tell("wait " + std::to_string(milliseconds));
  world_->Desktop.Advance(milliseconds);
}

void MonkeyLife::ChangeFiles() {
  const int number = 1 + Number(kMenuFiles);
  const std::string path = MenuPath(number);
  switch (Number(8)) {
    case 0:
      Tell("write " + path);
      world_->Files.LetGo(path);
      WriteMenu(number);
      break;
    case 1:
      Tell("vanish " + path);
      world_->Files.LetGo(path);
      world_->Files.Vanish(path);
      break;
    case 2:
      Tell("damage " + path);
      world_->Files.LetGo(path);
      world_->Files.Put(path, RandomRecords(Number(4)) + std::string(kDamage) +
                                  std::string(static_cast<std::size_t>(Number(500)), ' '));
      break;
    case 3:
      Tell("hold " + path);
      if (world_->Files.Has(path)) world_->Files.HoldOpen(path);
      break;
    case 4:
      Tell("let go " + path);
      world_->Files.LetGo(path);
      break;
    case 5:
      Tell("the disk fails");
      world_->Files.FailCall(1 + Number(20), Chance(50) ? FileError::DiskFull : FileError::InUse);
      diskFails_ = true;
      break;
    case 6:
      Tell("the disk is well");
      world_->Files.StopFailing();
      break;
    default:
      Tell("a file comes or goes in a listed folder");
      if (Chance(50)) {
        world_->Files.Put("C:\\Docs\\n" + std::to_string(Number(20)) + ".txt", "x");
      } else {
        world_->Files.Vanish("C:\\Docs\\n" + std::to_string(Number(20)) + ".txt");
      }
  }
}

void MonkeyLife::ChangeWindows() {
  if (others_.size() < 4 && Chance(50)) {
    const int left = Number(900);
    const int top = Number(600);
    Tell("another window comes");
    others_.push_back(world_->Desktop.AddOtherWindow(
        {.Bounds = {left, top, left + 50 + Number(300), top + 50 + Number(300)},
         .Topmost = Chance(20)}));
    if (Chance(50)) world_->Desktop.TakeForeground(others_.back());
  } else if (!others_.empty() && Chance(50)) {
    Tell("another window goes");
    world_->Desktop.CloseOther(others_.back());
    others_.pop_back();
  } else if (!others_.empty()) {
    Tell("another window takes the foreground");
    world_->Desktop.TakeForeground(others_.front());
  } else {
    Tell("the strip is chosen in the task bar");
    world_->Desktop.TakeForeground(world_->Desktop.Find("frmToolbar"));
  }
  world_->Desktop.Pump();
}

void MonkeyLife::ChangeSystem() {
  const WindowId strip = world_->Desktop.Find("frmToolbar");
  switch (Number(5)) {
    case 0:
      Tell("another colour");
      world_->Desktop.SetSystemColor(15, static_cast<Rgb>(Number(0xFFFFFF)));
      break;
    case 1: {
      const std::array<PixelSize, 3> sizes = {{{1024, 768}, {800, 600}, {1280, 1024}}};
      const PixelSize size = Pick(sizes, random_);
      Tell("screen " + std::to_string(size.width));
      world_->Desktop.SetScreen(size);
      break;
    }
    case 2:
      Tell("full screen program");
      world_->Desktop.Post(strip, forms::message::AppBarCallback, 2, Number(2));
      break;
    case 3:
      Tell("second start");
      world_->Desktop.Post(world_->Desktop.Find("frmMinimize"), forms::message::Size, 0, 0);
      break;
    default:
      Tell("the clock is set");
      world_->Desktop.Broadcast(forms::message::TimeChange);
  }
  world_->Desktop.Pump();
}

void MonkeyLife::Act() {
  const int what = Number(100);
  if (what < 30) return MoveSomewhere();
  if (what < 50) return ClickSomewhere();
  if (what < 62) return PressOrRelease();
  if (what < 80) return UseKeys();
  if (what < 92) return LetTimePass();
  if (what < 96) return ChangeFiles();
  if (what < 98) return ChangeWindows();
  ChangeSystem();
}

// ---- what must hold ----

std::string MonkeyLife::WrongState() const {
  const Program& program = parts_->TheProgram;
  if (program.StartingUp) return "the start has not ended";
  if (program.MenuBuilding) return "a menu is still being built";
  if (program.AppBarBusy) return "the strip is still being placed";
  if (program.PosChangeRunning) return "the edge is still being changed";
  if (program.IconsLoading) return "icons are still being loaded";
  if (program.HideBusy) return "the strip is still being hidden";
  if (program.ChangingMode) return "the mode is still being changed";
  if (program.ItemActionBusy) return "an entry is still being edited";
  if (parts_->Toolbar.MenuRefreshing) return "a menu is still being reread";
  if (!program.ToolbarMinimized && !program.ToolbarReady) return "the strip does not listen";
  if (!parts_->Toolbar.Enabled()) return "the strip is disabled";
  if (program.CurButton < 0 || program.CurButton > parts_->Toolbar.ButtonCount)
    return "there is no current button " + std::to_string(program.CurButton);
  if (world_->Desktop.CurrentMousePointer() == forms::MousePointer::Hourglass)
    return "the hourglass stays";
  if (world_->Desktop.Clock().Running() > 8) return "timers pile up";
  return {};
}

std::string MonkeyLife::WrongMenu() const {
  const Program& program = parts_->TheProgram;
  const frmQMenu& menu = parts_->Menu;
  if (!menu.MenuVisible()) {
    return {};
  }
  if (!menu.Timer1.Enabled()) return "a menu is up without its poll";
  if (!menu.MenuReady) return "a menu is up without being ready";
  if (menu.OwnerTag() == "0" || menu.OwnerTag().empty()) return "a menu is up that no button owns";
  if (menu.CurMenu < 0 || menu.CurMenu > menu.Slides) return "there is no such page";
  if (menu.Labels > 0 && (menu.FirstLabel < 1 || menu.LastLabel > menu.Labels))
    return "the page has items that the menu has not";
  const int selected = program.SelectedItem;
  if (selected != 0 && (selected < menu.FirstLabel || selected > menu.LastLabel))
    return "the selection " + std::to_string(selected) + " is not on the page";
  if (menu.Shape1.Visible() && selected == 0) return "a bar is shown without a selection";
  return {};
}

std::string MonkeyLife::WrongFiles() const {
  for (const std::string& name : world_->Files.Names(kMenus)) {
    const std::string path = kMenus + name;
    const bool menu = path.ends_with(".MNU") || path.ends_with(".mnu");
    const auto bytes = world_->Files.Get(path);
    // What the monkey broke itself stays broken, also under another number.
    if (menu && bytes && !diskFails_ && bytes->size() % kRecordLength != 0 &&
        bytes->find(kDamage) == std::string::npos)
      return name + " is no whole number of records any more";
    if (!diskFails_ && (path.ends_with(".tmp") || path.ends_with(".TMP")))
      return name + " was left behind";
  }
  return {};
}

// What a tick of the poll has to end: a menu that the desktop hid.
std::string MonkeyLife::WrongRest() {
  constexpr int kTwoPolls = 200;
  if (parts_->Menu.MenuVisible() || !parts_->Menu.Timer1.Enabled()) return {};
  world_->Desktop.Advance(kTwoPolls);
  const bool stays = !parts_->Menu.MenuVisible() && parts_->Menu.Timer1.Enabled();
  return stays ? "the poll runs on without a menu" : "";
}

std::string MonkeyLife::WhatIsWrong() {
  if (std::string wrong = WrongRest(); !wrong.empty()) return wrong;
  if (std::string wrong = WrongState(); !wrong.empty()) return wrong;
  if (std::string wrong = WrongMenu(); !wrong.empty()) return wrong;
  return WrongFiles();
}

std::string MonkeyLife::WrongEnd() {
  if (parts_->Companion.WindowLoaded()) parts_->Companion.UnloadWindow();
  if (!world_->Desktop.QuitCalled()) return "the end of the companion is not the end";
  for (const std::string_view window :
       {"frmToolbar", "frmQMenu", "frmMinimize", "picToolbar", "frmStartup"}) {
    if (world_->Desktop.Find(window) != kNoWindow) return std::string(window) + " outlives the end";
  }
  if (parts_->Toolbar.Timer2.Enabled()) return "the pointer's timer outlives the end";
  if (world_->Desktop.Clock().Running() != 0) return "a timer outlives the end";
  return {};
}

std::string MonkeyLife::Live(int events) {
  Furnish();
  parts_ = std::make_unique<Parts>(world_->Services(), world_->Windows());
  if (!Main(parts_->TheProgram)) return "the program does not start";
  world_->Desktop.Pump();
  std::string wrong;
  for (int event = 0; event < events && wrong.empty(); ++event) {
    Act();
    if (world_->Desktop.QuitCalled() || !parts_->Companion.WindowLoaded()) break;
    wrong = WhatIsWrong();
    if (!wrong.empty()) wrong += " (event " + std::to_string(event) + ")";
  }
  if (wrong.empty()) wrong = WrongEnd();
  if (wrong.empty()) return wrong;
  for (const std::string& event : last_) wrong += "\n  " + event;
  return wrong;
}

}  // namespace corvelle::fuzz
