// What happens around the program without its user: the disk, other windows, bars, the system.

#include <array>

#include "MonkeyLife.h"
#include "base/Text.h"
#include "core/MenuRecord.h"
#include "forms/Types.h"

namespace corvelle::fuzz {
namespace {

Edge AnyEdge(int number) { return static_cast<Edge>(number % 4); }

}  // namespace

// ---- the disk ----

void MonkeyLife::ChangeMenuFile() {
  SettleFiles();
  filesChangedInside_ = filesChangedInside_ || insideUp_;
  const int number = 1 + Number(kMenuFiles);
  const std::string path = MenuPath(number);
  world_->Files.LetGo(path);
  switch (Number(4)) {
    case 0:
      Tell("write " + path);
      WriteMenu(number);
      break;
    case 1:
      Tell("vanish " + path);
      world_->Files.Vanish(path);
      break;
    case 2:
      Tell("damage " + path);
      world_->Files.Put(path, RandomRecords(Number(4)) + std::string(kDamage) +
                                  std::string(static_cast<std::size_t>(Number(500)), ' '));
      break;
    default:
      if (Chance(50)) {
        // Also one that stands in the row, which has read what was in it before.
        const int single = 1 + Number(kSingles + 2);
        Tell("write single button " + std::to_string(single));
        WriteSingle(single);
      } else {
        Tell("a single button vanishes");
        world_->Files.Vanish(SinglePath(1));
      }
  }
  NoteMonkeysChange();
  // The button that is about to be deleted may be this one.
  if (const auto bytes = world_->Files.Get(path); bytes && EqualNoCase(path, deleting_))
    lossesAllowed_ += static_cast<int>(bytes->size() / kRecordLength);
}

void MonkeyLife::SpoilDisk() {
  const std::string path = MenuPath(1 + Number(kMenuFiles));
  const FileError error = Chance(50) ? FileError::DiskFull : FileError::InUse;
  if (Chance(40) || disk_ == Disk::Well) {
    world_->Files.StopFailing();
    world_->Files.FreeDisk();
    world_->Files.LetGo(path);
    if (world_->Files.Has(kMenus)) world_->Files.Protect(kMenus, false);
    return;
  }
  if (disk_ == Disk::Stumbling) {
    const int n = 1 + Number(Chance(50) ? 12 : 60);
    Tell("call " + std::to_string(n) + " of the disk fails");
    world_->Files.FailCall(n, error);
    return;
  }
  switch (Number(4)) {
    case 0:
      Tell("the disk fails for good");
      world_->Files.FailFrom(1 + Number(40), error);
      break;
    case 1:
      Tell("hold " + path);
      if (world_->Files.Has(path)) world_->Files.HoldOpen(path);
      break;
    case 2:
      Tell("the disk is full");
      world_->Files.FillDisk(static_cast<std::uint64_t>(Number(3000)));
      break;
    default:
      Tell("the menus may not be changed");
      if (world_->Files.Has(kMenus)) world_->Files.Protect(kMenus);
  }
}

void MonkeyLife::ChangeFolders() {
  switch (Number(6)) {
    case 0:
      Tell("a listed folder goes");
      world_->Files.Vanish("C:\\Docs");
      break;
    case 1:
      Tell("a listed folder comes");
      world_->Files.Put("C:\\Docs\\letter.txt", "x");
      world_->Files.Put("C:\\Docs\\sub\\other.txt", "x");
      break;
    case 2:
      if (!Chance(15)) break;
      Tell("the folder of the menus goes");
      tally_.Note("the folder of the menus went");
      SettleFiles();
      world_->Files.Vanish("C:\\Corvelle\\Menus");
      NoteMonkeysChange();
      break;
    case 3:
      Tell("the folder of the menus is back");
      world_->Files.MakeFolders(kMenus);
      break;
    case 4:
      if (Chance(50)) {
        world_->Folders.Put(2, {{"Notepad", 3}, {"Paint", 4}, {"New", 5}});
      } else {
        world_->Folders.Break(2);
      }
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

void MonkeyLife::ChangeFiles() {
  switch (Number(4)) {
    case 0:
    case 1:
      return SpoilDisk();
    case 2:
      return ChangeMenuFile();
    default:
      return ChangeFolders();
  }
}

// ---- windows ----

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
  } else if (const WindowId strip = world_->Desktop.Find("frmToolbar");
             world_->Desktop.IsShown(strip)) {
    Tell("the strip comes to the foreground");
    world_->Desktop.TakeForeground(strip);
  }
  if (Chance(10)) world_->Desktop.LockForeground(Chance(50));
  world_->Desktop.Pump();
}

// ---- the system ----

void MonkeyLife::ChangeSystem() {
  switch (Number(6)) {
    case 0:
      Tell("another colour");
      world_->Desktop.SetSystemColor(15, static_cast<Rgb>(Number(0xFFFFFF)));
      break;
    case 1: {
      const std::array<PixelSize, 3> sizes = {{{1024, 768}, {800, 600}, {1280, 1024}}};
      const PixelSize size = sizes[static_cast<std::size_t>(Number(3))];
      Tell("screen " + std::to_string(size.width));
      tally_.Note("another resolution");
      world_->Desktop.SetScreen(size);
      if (Chance(80)) world_->Bars.TellBars();
      break;
    }
    case 2: {
      const bool there = Chance(50);
      Tell(there ? "a full-screen program comes" : "a full-screen program goes");
      world_->Bars.SetFullScreen(there);
      break;
    }
    case 3:
      Tell("another day");
      world_->System.Date =
          std::to_string(1 + Number(12)) + "/" + std::to_string(1 + Number(28)) + "/2026";
      if (Chance(70)) world_->Desktop.Broadcast(forms::message::TimeChange);
      break;
    case 4:
      Tell("the strip is asked to close");
      world_->Desktop.Post(world_->Desktop.Find(Chance(50) ? "frmToolbar" : "frmQMenu"),
                           forms::message::Close, 0, 0);
      break;
    default:
      Tell("the task bar is made anew");
      world_->Tray.Shown.clear();
      world_->Desktop.Broadcast(world_->Tray.TaskbarCreatedMessage());
  }
  world_->Desktop.Pump();
}

void MonkeyLife::ChangeBars() {
  const Edge at = AnyEdge(Number(4));
  switch (Number(5)) {
    case 0:
      if (bars_.size() >= 2) break;
      Tell("another bar at " + std::string(EdgeText(at)));
      tally_.Note("another bar");
      bars_.push_back(world_->Bars.AddOtherBar(
          at, 20 + Number(40), Chance(50) ? sim::BarPlacing::First : sim::BarPlacing::Last));
      break;
    case 1:
      if (bars_.empty()) break;
      Tell("a bar goes");
      world_->Bars.RemoveOtherBar(bars_.back());
      bars_.pop_back();
      break;
    case 2:
      if (others_.empty() || world_->Bars.HiddenBar(at) != kNoWindow) break;
      Tell("another window hides at " + std::string(EdgeText(at)));
      tally_.Note("an edge was taken for hiding");
      world_->Bars.ClaimAutoHide(at, others_.front());
      break;
    case 3: {
      const WindowId hidden = world_->Bars.HiddenBar(at);
      const sim::SimWindow* const window = world_->Desktop.Look(hidden);
      if (window == nullptr || window->Own) break;
      Tell("nobody hides any more at " + std::string(EdgeText(at)));
      world_->Bars.ClaimAutoHide(at, kNoWindow);
      break;
    }
    default:
      if (taskBar_) break;
      Tell("a task bar comes up");
      world_->Bars.AddTaskBar(at, 30);
      taskBar_ = true;
  }
  world_->Desktop.Pump();
}

// ---- the end ----

void MonkeyLife::EndFromOutside() {
  if (Chance(50)) {
    Tell("the session ends");
    tally_.Note("end: session");
    world_->Desktop.EndSession();
  } else {
    Tell("the task bar closes the program");
    tally_.Note("end: closed");
    world_->Desktop.Post(world_->Desktop.Find("frmMinimize"), forms::message::Close, 0, 0);
  }
  world_->Desktop.Pump();
}

}  // namespace corvelle::fuzz
