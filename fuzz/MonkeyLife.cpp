#include "MonkeyLife.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

#include "core/Main.h"
#include "core/MenuRecord.h"
#include "core/OptionFlags.h"
#include "forms/Types.h"

namespace corvelle::fuzz {
namespace {

constexpr char kApp[] = "C:\\Corvelle\\";
constexpr std::size_t kRemembered = 30;  // events

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
const std::array<std::string, 11> kCommands = {"C:\\Tools\\tool.exe",
                                               "",
                                               "?C:\\Tools\\tool.exe /x",
                                               "http://a.example/",
                                               "mailto:a@b.example",
                                               "FileFind",
                                               "C:\\Docs\\*.*/U",
                                               "CSIDL_PROGRAMS/UE",
                                               "C:\\Docs\\*.txt /X",
                                               "ClearTempFolder",
                                               "NetSearch"};

template <class List>
const auto& Pick(const List& list, std::mt19937_64& random) {
  return list[static_cast<std::size_t>(random() % list.size())];
}

}  // namespace

MonkeyLife::MonkeyLife(std::uint64_t seed, bool tell, MonkeyTally& tally, bool slowPlaces)
    : random_(seed), tell_(tell), tally_(tally), slowPlaces_(slowPlaces) {
  handlerBefore_ =
      sim::SetComplaintHandler([this](const std::string& what) { complaints_.push_back(what); });
}

MonkeyLife::~MonkeyLife() {
  parts_.reset();
  world_.reset();
  sim::SetComplaintHandler(std::move(handlerBefore_));
}

int MonkeyLife::Number(int below) {
  return static_cast<int>(random_() % static_cast<std::uint64_t>(below));
}

std::string MonkeyLife::MenuPath(int number) const {
  return std::string(kMenus) + "BMENU00" + std::to_string(number) + ".MNU";
}

std::string MonkeyLife::SinglePath(int number) const {
  return std::string(kMenus) + "BMENU00" + std::to_string(number) + ".BTN";
}

void MonkeyLife::Tell(std::string event) {
  if (tell_) {
    std::printf("%s\n", event.c_str());
    std::fflush(stdout);
  }
  last_.push_back(std::move(event));
  if (last_.size() > kRemembered) last_.pop_front();
}

bool MonkeyLife::StripStands() const { return parts_ && parts_->Toolbar.WindowLoaded(); }

bool MonkeyLife::MenuUp() const { return parts_->Menu.MenuVisible(); }

// ---- the world before the start ----

std::string MonkeyLife::RandomRecords(int count) {
  std::string bytes;
  for (int i = 0; i < count; ++i) {
    if (slowPlaces_ && Chance(20)) {
      const std::string far(kFarFolder);
      bytes += FormatRecord({"Far", "", far + (Chance(60) ? "*.*/U" : "far.txt")}, world_->Ansi);
      continue;
    }
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

void MonkeyLife::WriteSingle(int number) {
  world_->Files.Put(SinglePath(number), RandomRecords(1));
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
  if (slowPlaces_) FurnishSlowPlaces();
  world_->Files.MakeFolders(kMenus);
  OptionFlags flags;
  for (int position = 1; position <= 32; ++position) flags.Set(OptionAt(position), Chance(40));
  flags.Set(Option::FirstRunDone, true);
  flags.Set(Option::DefaultEntriesOffered, true);
  flags.Set(Option::UpgradeDone, true);
  // Hiding and being covered exclude each other; the program never writes both.
  if (flags.Is(Option::NotOnTop)) flags.Set(Option::AutoHide, false);
  world_->Files.Put(std::string(kApp) + std::string(kOptionFlagsFileName), flags.Text());
  for (int number = Number(kMenuFiles); number > 0; --number) WriteMenu(number);
  for (int number = Number(kSingles); number > 0; --number) WriteSingle(number);
  const int kind = Number(10);
  disk_ = kind < 4 ? Disk::Well : kind < 8 ? Disk::Stumbling : Disk::Failing;
  world_->Files.BeforeEachCall([this](const sim::SimFiles::Call& call) { BeforeDiskCall(call); });
  world_->Desktop.WhilePopupIsUp([this](const sim::Popup& popup) { ChooseFrom(popup); });
  world_->Desktop.WhileBoxIsUp([this](const sim::MessageBox& box) {
    tally_.Note("box: " + box.Text);
    if (box.Text.find("changed outside of this window") != std::string::npos) conflictAsked_ = true;
    if (Chance(30)) WhileUp("box");
  });
  world_->Desktop.AnswerAnyDialog(
      [this](const forms::FileQuestion& question) { return ChooseFiles(question); },
      [this](const forms::FolderQuestion&) { return ChooseFolder(); });
}

// ---- events ----

// A gesture of several steps, a world event, or a single gesture.
void MonkeyLife::Begin() {
  const int what = Number(100);
  if (what < 18) return PlanPull();
  if (what < 42) return PlanMainMenu();
  if (what < 60) return PlanPopup();
  if (what < 76) return PlanCarry();
  if (what < 82) return PlanSingle();
  if (what < 91) return PlanDrag();
  if (what < 95) return PlanHint();
  Rest();
}

void MonkeyLife::ActAtRandom() {
  const int what = Number(1000);
  if (what < 300) return MoveSomewhere();
  if (what < 440) return ClickSomewhere();
  if (what < 540) return PressOrRelease();
  if (what < 700) return UseKeys();
  if (what < 830) return LetTimePass();
  if (slowPlaces_ && what < 860) return ChangePlaces();
  if (what < 880) return ChangeFiles();
  if (what < 920) return ChangeWindows();
  if (what < 950) return ChangeSystem();
  if (what < 999) return ChangeBars();
  EndFromOutside();
}

void MonkeyLife::Act() {
  quiet_ = false;
  if (plan_.empty()) {
    if (parts_->TheProgram.Strip.ToolbarMinimized && Chance(20)) {
      PlanReturn();
    } else if (Chance(15)) {
      Begin();
      if (quiet_) return;
    }
  }
  if (forms::Form* const window = WindowInFront(); window != nullptr && Chance(45)) {
    plan_.clear();
    return UseWindow(*window);
  }
  // Now and then something comes between.
  if (plan_.empty() || Chance(8)) return ActAtRandom();
  const Step step = std::move(plan_.front());
  plan_.pop_front();
  step();
}

std::string MonkeyLife::Live(int events) {
  Furnish();
  TakeStock();
  if (disk_ != Disk::Well && Chance(40)) SpoilDisk();
  parts_ = std::make_unique<Parts>(world_->Services(), world_->Windows());
  const bool started = Main(parts_->TheProgram);
  if (!started && disk_ == Disk::Well) return "the program does not start";
  world_->Desktop.Pump();
  strip_ = parts_->Toolbar.WindowHandle();
  std::string wrong = started ? WhatIsWrong() : std::string();
  for (lived_ = 0; started && lived_ < events && wrong.empty(); ++lived_) {
    NoteTree();
    lossesAllowed_ = 0;
    deleting_.clear();
    windowUsed_ = TreeIsAtHand();
    filesChangedInside_ = false;
    conflictAsked_ = false;
    lost_ = new_ = {};
    moreEntries_ = moreRecords_ = 0;
    NoteMenu();
    propertiesUp_ = parts_->Properties.IsLoaded();
    Act();
    windowUsed_ = windowUsed_ || TreeIsAtHand();
    if (world_->Desktop.QuitCalled() || !parts_->Companion.WindowLoaded()) break;
    wrong = WhatIsWrong();
    if (!wrong.empty()) wrong += " (event " + std::to_string(lived_) + ")";
  }
  if (wrong.empty()) wrong = WrongEnd();
  if (wrong.empty()) return wrong;
  for (const std::string& event : last_) wrong += "\n  " + event;
  return wrong;
}

}  // namespace corvelle::fuzz
