// Places that answer late, not at all, or only again after a while; and what must hold all the
// same.

#include <algorithm>
#include <array>
#include <utility>

#include "MonkeyLife.h"
#include "base/Text.h"
#include "core/MenuRecord.h"
#include "desk/LookupPlaces.h"

namespace corvelle::fuzz {
namespace {

// Milliseconds between two turns of the message loop: all that is asked in one turn may be waited
// for 60 ms together.
constexpr int kLongestTurn = 100;
constexpr int kNeverAnswers = 5000;    // what a call costs whoever waits for it
constexpr int kLongestRest = 310'000;  // milliseconds, after which every place is asked again
constexpr int kSettled = 2000;         // milliseconds, in which all that answers has done so
constexpr int kSoon = 400;             // the same for a place that answers at once

const std::array<std::string, 5> kLanes = {"D:", "D:*", "C:*", "shell", "shell*"};

bool IsIconCall(std::string_view call) {
  constexpr std::array<std::string_view, 6> kIconCalls = {
      "FileInfo", "DisplayName", "PixelsOfFile", "PixelsInFile", "DrawFileIcon", "IconCount"};
  return std::find(kIconCalls.begin(), kIconCalls.end(), call) != kIconCalls.end();
}

/// What the windows still ask themselves, each with its reason.
bool IsStillAsked(std::string_view call) {
  constexpr std::array<std::string_view, 6> kStillAsked = {
      // Menus of the shell, which the user has asked for, belong to a window of this process.
      "FileMenu", "FolderMenu", "EntryMenu",
      // Of files that the user adds to the library.
      "IconCount",
      // Paths of the shell's own folders, which it keeps in memory.
      "PathOf", "SpecialFolderLocation"};
  return std::find(kStillAsked.begin(), kStillAsked.end(), call) != kStillAsked.end();
}

}  // namespace

void MonkeyLife::FurnishSlowPlaces() {
  world_->Files.AddDrive('D');
  for (const char* name : {"far.txt", "further.txt"})
    world_->Files.Put(std::string(kFarFolder) + name, "x");
  wellSince_ = world_->Desktop.Now();
  world_->Costs.WhenCharged([this](int milliseconds) { world_->Desktop.Jump(milliseconds); });
  world_->Costs.SetPrice([this](std::string_view call, std::string_view about) {
    // The program's own folder is small and local.
    if (IsStillAsked(call) || StartsWithNoCase(about, "C:\\Corvelle")) return 0;
    std::string lane = desk::PlaceOfPath(about);
    if (IsIconCall(call)) lane += desk::kIconMark;
    const auto trouble = troubles_.find(lane);
    return trouble != troubles_.end() ? trouble->second : 0;
  });
}

void MonkeyLife::HealPlaces() {
  if (troubles_.empty()) return;
  Tell("all places answer again");
  for (const auto& [lane, milliseconds] : std::exchange(troubles_, {}))
    world_->SlowAnswers.Resume(lane);
  wellSince_ = world_->Desktop.Now();
  world_->Desktop.Pump();
}

void MonkeyLife::ChangePlaces() {
  if (Chance(10)) {
    world_->Files.Put(std::string(kFarFolder) + "n" + std::to_string(Number(9)) + ".txt", "x");
    farChangedAt_ = world_->Desktop.Now();
    return;
  }
  if (Chance(15)) return HealPlaces();
  const std::string& lane =
      kLanes[static_cast<std::size_t>(Number(static_cast<int>(kLanes.size())))];
  switch (Number(5)) {
    case 0:
    case 1: {
      const int milliseconds = 20 + Number(Chance(50) ? 200 : 6000);
      Tell(lane + " takes " + std::to_string(milliseconds) + " ms");
      world_->SlowAnswers.Delay(lane, milliseconds);
      troubles_[lane] = milliseconds;
      tally_.Note("a slow place");
      break;
    }
    case 2:
      Tell(lane + " does not answer");
      world_->SlowAnswers.Hang(lane);
      troubles_[lane] = kNeverAnswers;
      tally_.Note("a place that does not answer");
      break;
    case 3:
      Tell(lane + " dies");
      world_->SlowAnswers.HangForGood(lane);
      troubles_[lane] = kNeverAnswers;
      tally_.Note("a place that dies");
      break;
    default:
      Tell(lane + " answers again");
      world_->SlowAnswers.Resume(lane);
      if (troubles_.erase(lane) > 0) tally_.Note("a place that came back");
      if (troubles_.empty()) wellSince_ = world_->Desktop.Now();
  }
  world_->Desktop.Pump();
}

// Before an event: what is measured is that event.
void MonkeyLife::NoteMenu() {
  world_->Costs.Clear();
  if (!MenuUp()) {
    menuUpSince_ = -1;
  } else if (menuUpSince_ < 0) {
    menuUpSince_ = world_->Desktop.Now();
  }
}

std::string MonkeyLife::WrongTurns() const {
  const int longest = world_->Costs.LongestTurn();
  if (longest < kLongestTurn) return {};
  std::string wrong = "the message loop stood still for " + std::to_string(longest) + " ms:";
  for (const std::string& call : world_->Costs.Charged()) wrong += " [" + call + "]";
  return wrong;
}

// A dead place delays no other, and once all have answered the menu shows what there is.
std::string MonkeyLife::WrongRows() const {
  if (!slowPlaces_ || !MenuUp() || menuUpSince_ < 0) return {};
  if (IsDown(forms::MouseButton::Left) || IsDown(forms::MouseButton::Right)) return {};
  const std::int64_t now = world_->Desktop.Now();
  const ShownItems& items = parts_->Menu.Items();
  const std::int64_t up = now - menuUpSince_;
  const bool well = troubles_.empty() && menuUpSince_ - wellSince_ > kLongestRest;
  for (int i = 1; i <= items.Count(); ++i) {
    const MenuItem& item = items[i];
    const bool far = StartsWithNoCase(item.Command, "D:");
    const bool shell = StartsWithNoCase(item.Command, "CSIDL_");
    if (!far && !shell && item.Folder >= FolderState::BeingRead && up > kSoon)
      return "a folder that answers is said to be read: " + item.Command;
    if (!well || up < kSettled || farChangedAt_ >= menuUpSince_) continue;
    if (item.Folder != FolderState::Here) return "a folder is still being read: " + item.Command;
    const bool generated =
        far && item.Command.find('*') == std::string::npos && IsGenerated(item.Origin.Record);
    if (generated && !world_->Files.Has(item.Command)) return "a stale row: " + item.Command;
  }
  return {};
}

}  // namespace corvelle::fuzz
