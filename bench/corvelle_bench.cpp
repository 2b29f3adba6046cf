// What a user waits for, each beside its floor: the same bytes read by plain calls, or the one call
// that cannot be spared. The windows are those of the simulated desktop, which draws every pixel
// into memory by itself; the files are real ones.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
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
constexpr int kFiles[] = {100, 1000, 10000};

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

/// A shell that knows of a file what its name tells, once the disk has said that it is there.
class HostIcons final : public ShellIcons {
 public:
  explicit HostIcons(HostFiles& files) : files_(files) {}
  std::optional<ShellFileInfo> FileInfo(std::string_view path, IconList /*list*/) override {
    if (!files_.FileExists(path)) return std::nullopt;
    return ShellFileInfo{.SystemIndex = static_cast<int>(path.size() % 50),
                         .DisplayName = std::string(path.substr(path.rfind('\\') + 1)),
                         .TypeName = "File"};
  }
  int IconWidth(IconList /*list*/) override { return 16; }
  bool DrawSystemIcon(Canvas& canvas, IconList /*list*/, int /*index*/, PixelPoint at,
                      IconStyle /*style*/) override {
    canvas.FillBox(RectAt(at, {16, 16}), 0x00FF0000);
    return true;
  }
  bool DrawFileIcon(Canvas& /*canvas*/, std::string_view /*file*/, int /*index*/, PixelPoint /*at*/,
                    int /*size*/) override {
    return false;
  }
  int IconCount(std::string_view /*file*/) override { return 0; }

 private:
  HostFiles& files_;
};

/// A program's folder and a desktop.
class Ground {
 public:
  Ground() {
    for (const char* folder : {"C:\\Corvelle", "C:\\Corvelle\\Menus", "C:\\Corvelle\\Icons",
                               "C:\\Corvelle\\ShellLink", "C:\\Tools"}) {
      Must(Files.MakeFolder(folder), folder);
    }
    Must(Files.Write("C:\\Corvelle\\corvelle.exe", "x"), "corvelle.exe");
    // The usual flags of a program that has been started before and floats at the top.
    Must(Files.Write("C:\\Corvelle\\tmenu425.dat", "11000000000000000010000101000001"), "flags");
  }

  /// The services, with the real files.
  Platform Services() { return World.Services(nullptr, &Icons, &Files); }

  /// An empty program in an existing folder.
  void PutFile(const std::string& path) { Must(Files.Write(path, ""), path); }

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

  /// A folder with so many files, and a menu that shows them.
  std::string PutFolder(int files, const std::string& options) {
    Must(Files.MakeFolder("C:\\Many"), "C:\\Many");
    for (int i = 0; i < files; ++i) {
      const std::string path = "C:\\Many\\file number " + std::to_string(files - i) + ".txt";
      Must(Files.Write(path, ""), path);
    }
    std::string path = "C:\\Corvelle\\Menus\\" + MenuFileName(1);
    Must(Files.Write(
             path,
             FormatRecord({.FTitle = "Menu", .FIcon = "Button"}, World.Ansi) +
                 FormatRecord({.FTitle = "Files", .FIcon = "", .FName = "C:\\Many\\*.*" + options},
                              World.Ansi)),
         path);
    return path;
  }

  HostFiles Files;
  HostIcons Icons{Files};
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

/// One copy of the program with one menu, that of a folder.
class FolderGround {
 public:
  FolderGround(int files, const std::string& options)
      : File(Desk.PutFolder(files, options)), Program(Desk), count_(files) {
    Program.Start();
  }

  void Open() {
    Program.Menu.ShowMenu("F2", File);
    Desk.World.Desktop.Pump();
    if (Program.Menu.Labels != count_) GiveUp("the menu lacks files");
  }
  void Hide() { Program.Menu.HideMenu(); }
  void Drop() {
    Hide();
    Program.Menu.ForgetMenu("F2");
  }
  void Key(int key) {
    Program.Menu.Form_KeyDown(key, {});
    Desk.World.Desktop.Pump();
  }
  /// Enumerates the folder, and asks the shell for each file.
  void ListBare(bool ask) {
    const auto listed = Desk.Files.List("C:\\Many", "*.*");
    std::size_t known = 0;
    for (const FileEntry& entry : *listed) {
      known += !ask || Desk.Icons.FileInfo("C:\\Many\\" + entry.Name, IconList::Large) ? 1 : 0;
    }
    if (static_cast<int>(known) != count_) GiveUp("the folder lacks files");
  }

  Ground Desk;
  std::string File;
  Copy Program;

 private:
  int count_;
};

void MeasureFolder(int files) {
  const std::string what = std::to_string(files) + " files";
  FolderGround ground(files, "");
  const double listed = Time(11, nullptr, [&] { ground.ListBare(true); });
  const double built = Time(
      11, [&] { ground.Drop(); }, [&] { ground.Open(); });
  Print("first opening of a folder of " + what, built, listed);
  const double cached = Time(
      21, [&] { ground.Hide(); }, [&] { ground.Open(); });
  Print("the same from the cache, " + what, cached, listed);

  FolderGround followed(files, "/u");
  followed.Open();
  const double looked = Time(11, nullptr, [&] { followed.ListBare(false); });
  const double compared = Time(
      11, [&] { followed.Hide(); }, [&] { followed.Open(); });
  Print("the same compared with the disk, " + what, compared, looked);

  // The floor of a page is its picture alone.
  Copy& copy = ground.Program;
  const double painted = Time(21, nullptr, [&] {
    copy.Menu.InvalidateAll();
    ground.Desk.World.Desktop.Pump();
  });
  if (copy.Menu.Slides > 0) {
    const double turned = Time(
        21, [&] { ground.Key(forms::key::Home); }, [&] { ground.Key(forms::key::PageDown); });
    Print("page turn, known page (floor: a paint), " + what, turned, painted);
    const double ended = Time(
        21, [&] { ground.Key(forms::key::Home); }, [&] { ground.Key(forms::key::End); });
    if (copy.Menu.CurMenu != copy.Menu.Slides) GiveUp("End did not turn to the last page");
    Print("the same to the last page, " + what, ended, painted);
    ground.Key(forms::key::Home);
  }
  const int beeps = ground.Desk.World.Desktop.Beeps();
  const double typed = Time(101, nullptr, [&] { copy.Menu.Form_KeyPress('z'); });
  if (ground.Desk.World.Desktop.Beeps() != beeps + 101) GiveUp("a letter was found");
  std::size_t seen = 0;
  const std::vector<std::string> keys(static_cast<std::size_t>(files), "f0");
  const double passed = Time(101, nullptr, [&] {
    for (const std::string& key : keys) seen += key[0] == 'z' ? 0 : 1;
  });
  if (seen == 0) GiveUp("nothing was passed over");
  Print("a letter that no title begins with, " + what, typed, passed);
}

/// Draws icons by their texts, first on a machine that has seen none of the files and then again,
/// beside the calls of the shell that those texts cannot do without.
void MeasureIcons() {
  constexpr int kIcons = 1000;
  constexpr int kSize = 16;
  Ground ground;
  ground.PutMenu(1, 1);
  ground.PutMenu(1, 1);
  Copy copy(ground);
  copy.Start();
  std::vector<std::string> files;
  for (int i = 0; i < kIcons; ++i) {
    files.push_back("C:\\Tools\\tool" + std::to_string(i) + ".exe");
    ground.PutFile(files.back());
  }
  const auto canvas = ground.World.Desktop.CreateCanvas({kSize, kSize});
  ShellIcons& shell = ground.Icons;
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

/// "quick" leaves the large folders out: in a checked build they take minutes.
int main(int argc, char** argv) {
  using namespace corvelle;
  sim::SetComplaintHandler([](const std::string& what) { bench::GiveUp(what); });
  std::printf("%-44s %15s %15s %9s\n", "", "time", "floor", "ratio");
  bench::MeasureStart();
  for (const int items : bench::kItems) bench::MeasureMenu(items);
  const bool quick = argc > 1 && std::string_view(argv[1]) == "quick";
  for (const int files : bench::kFiles) {
    if (!quick || files == bench::kFiles[0]) bench::MeasureFolder(files);
  }
  bench::MeasureIcons();
  return 0;
}
