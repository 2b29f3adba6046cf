// What a user waits for, each beside its floor: the same bytes read by plain calls, or the one call
// that cannot be spared. The windows are those of the simulated desktop, which draws every pixel
// into memory by itself; the files are real ones.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "HostFiles.h"
#include "core/Main.h"
#include "core/MenuRecord.h"
#include "icons/IconResolution.h"
#include "platform/ShellIcons.h"
#include "program/Parts.h"
#include "sim/Complain.h"
#include "sim/World.h"

namespace corvelle::bench {
namespace {

constexpr int kButtons = 200;
constexpr int kItems[] = {20, 200, 2000};

[[noreturn]] void GiveUp(const std::string& why) {
  std::fprintf(stderr, "corvelle_bench: %s\n", why.c_str());
  std::exit(1);
}

/// Microseconds of one run: the middle one of many.
double Time(int runs, const std::function<void()>& prepare, const std::function<void()>& run) {
  std::vector<double> times;
  for (int i = 0; i < runs; ++i) {
    if (prepare) prepare();
    const auto start = std::chrono::steady_clock::now();
    run();
    const std::chrono::duration<double, std::micro> took = std::chrono::steady_clock::now() - start;
    times.push_back(took.count());
  }
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

void Print(const std::string& name, double time, double floor) {
  std::printf("%-44s %12.3f us %12.3f us %9.1f\n", name.c_str(), time, floor, time / floor);
}

/// A program's folder and a desktop.
class Ground {
 public:
  Ground() {
    for (const char* folder : {"C:\\Corvelle", "C:\\Corvelle\\Menus", "C:\\Corvelle\\Icons",
                               "C:\\Corvelle\\ShellLink"}) {
      Must(Files.MakeFolder(folder), folder);
    }
    Must(Files.Write("C:\\Corvelle\\corvelle.exe", "x"), "corvelle.exe");
    // The usual flags of a program that has been started before and floats at the top.
    Must(Files.Write("C:\\Corvelle\\tmenu425.dat", "11000000000000000010000101000001"), "flags");
  }

  /// The services, with the real files.
  Platform Services() { return World.Services(nullptr, nullptr, &Files); }

  std::string PutMenu(int number, int items) {
    // Every item has an icon of the shell's list, which no file is looked at for.
    std::string bytes = FormatRecord({.FTitle = "Menu", .FIcon = "Button"}, World.Ansi);
    for (int i = 1; i <= items; ++i) {
      bytes += FormatRecord({.FTitle = "Item number " + std::to_string(i),
                             .FIcon = std::to_string(i % 50),
                             .FName = "C:\\Tools\\tool.exe"},
                            World.Ansi);
    }
    std::string path = "C:\\Corvelle\\Menus\\" + MenuFileName(number);
    Must(Files.Write(path, bytes), path);
    return path;
  }

  HostFiles Files;
  sim::World World;

 private:
  static void Must(const FileStatus& status, const std::string& what) {
    if (!status) GiveUp("cannot write " + what);
  }
};

/// One copy of the program, as its entry point makes it.
class Copy : public Parts {
 public:
  explicit Copy(Ground& ground) : Parts(ground.Services(), ground.World.Windows()) {}
  ~Copy() {
    if (Companion.WindowLoaded()) Companion.UnloadWindow();
  }

  void Start() {
    if (!Main(TheProgram)) GiveUp("the program did not start");
  }
};

void MeasureStart() {
  Ground ground;
  for (int i = 1; i <= kButtons; ++i) ground.PutMenu(i, 20);
  std::unique_ptr<Copy> copy;
  const auto prepare = [&] {
    copy.reset();
    copy = std::make_unique<Copy>(ground);
    ground.Files.ClearReads();
  };
  const double time = Time(11, prepare, [&] {
    copy->Start();
    ground.World.Desktop.Pump();
  });
  if (copy->Toolbar.ButtonCount != kButtons + 1) GiveUp("the strip lacks buttons");
  const std::vector<HostFiles::ReadCall> reads = ground.Files.Reads();
  const double floor = Time(101, nullptr, [&] {
    if (ReadBare(reads) == 0) GiveUp("nothing was read");
  });
  Print("start until 200 buttons stand", time, floor);

  const PixelRect strip = ground.World.Desktop.BoundsOf(ground.World.Desktop.Find("picToolbar"));
  ground.World.Desktop.MovePointer(strip.left + 900, strip.top + 10);
  constexpr int kTimes = 10000;
  const double hit = Time(21, nullptr, [&] {
    for (int i = 0; i < kTimes; ++i) copy->Toolbar.GetCurButton();
  });
  if (copy->TheProgram.CurButton < 2) GiveUp("no button was hit");
  int seen = 0;
  Input& pointer = ground.World.Desktop;
  const double bare = Time(21, nullptr, [&] {
    for (int i = 0; i < kTimes; ++i) seen += pointer.PointerPosition().x;
  });
  if (seen == 0) GiveUp("the pointer was not read");
  Print("hit test on the strip (floor: pointer read)", hit / kTimes, bare / kTimes);
}

void MeasureMenu(int items) {
  Ground ground;
  const std::string file = ground.PutMenu(1, items);
  Copy copy(ground);
  copy.Start();
  const auto drop = [&] {
    copy.Menu.HideMenu();
    copy.Menu.ForgetMenu("F2");
    ground.Files.ClearReads();
  };
  const auto open = [&] {
    copy.Menu.ShowMenu("F2", file);
    ground.World.Desktop.Pump();
  };
  const double built = Time(21, drop, open);
  if (copy.Menu.Labels != items) GiveUp("the menu lacks items");
  const std::vector<HostFiles::ReadCall> reads = ground.Files.Reads();
  const double floor = Time(101, nullptr, [&] {
    if (ReadBare(reads) == 0) GiveUp("nothing was read");
  });
  const std::string what = std::to_string(items) + " items";
  Print("build of a menu of " + what, built, floor);

  const auto hide = [&] {
    copy.Menu.HideMenu();
    ground.Files.ClearReads();
  };
  const double reopened = Time(21, hide, open);
  if (!ground.Files.Reads().empty()) GiveUp("a menu from the cache read its file");
  Print("the same from the cache, " + what, reopened, floor);
}

/// Draws icons by their texts, first on a machine that has seen none of the files and then again,
/// beside the calls of the shell that those texts cannot do without.
void MeasureIcons() {
  constexpr int kIcons = 1000;
  constexpr int kSize = 16;
  Ground ground;
  ground.PutMenu(1, 1);
  Copy copy(ground);
  copy.Start();
  std::vector<std::string> files;
  for (int i = 0; i < kIcons; ++i) {
    files.push_back("C:\\Tools\\tool" + std::to_string(i) + ".exe");
    ground.World.Files.Put(files.back(), "x");
  }
  const auto canvas = ground.World.Desktop.CreateCanvas({kSize, kSize});
  ShellIcons& shell = ground.World.Icons;
  const auto resolve = [&] {
    for (const std::string& file : files) {
      if (!ResolveAndDraw(copy.TheProgram, *canvas, file, {0, 0}, kSize)) GiveUp("no icon");
    }
  };
  const auto bare = [&] {
    for (const std::string& file : files) {
      const auto info = shell.FileInfo(file, IconList::Small);
      if (!info || !shell.DrawSystemIcon(*canvas, IconList::Small, info->SystemIndex, {0, 0},
                                         IconStyle::Normal)) {
        GiveUp("the shell has no icon");
      }
    }
  };
  const double cold = Time(1, nullptr, resolve);
  const double floor = Time(21, nullptr, bare);
  Print("1000 icon texts, the first time", cold, floor);
  Print("the same again", Time(21, nullptr, resolve), floor);
}

}  // namespace
}  // namespace corvelle::bench

int main() {
  using namespace corvelle;
  sim::SetComplaintHandler([](const std::string& what) { bench::GiveUp(what); });
  std::printf("%-44s %15s %15s %9s\n", "", "time", "floor", "ratio");
  bench::MeasureStart();
  for (const int items : bench::kItems) bench::MeasureMenu(items);
  bench::MeasureIcons();
  return 0;
}
