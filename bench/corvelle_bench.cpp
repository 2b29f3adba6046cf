// What a user waits for, each beside its floor: the same bytes read by plain calls, or the one call
// that cannot be spared. The windows are those of the simulated desktop, which draws every pixel
// into memory by itself; the files are real ones. The floor of "menu/built/20" is
// "menu/built/20/floor"; tools/bench_ratios.py prints both side by side.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "HostFiles.h"
#include "core/Main.h"
#include "core/MenuRecord.h"
#include "customize/CustEditor.h"
#include "customize/MenuSetFiles.h"
#include "customize/Saving.h"
#include "customize/TreeMerge.h"
#include "icons/AskedIcons.h"
#include "platform/ShellIcons.h"
#include "program/Parts.h"
#include "sim/Complain.h"
#include "sim/World.h"

namespace corvelle::bench {
namespace {

constexpr int kButtons = 200;
constexpr int kItems[] = {20, 200, 2000};
constexpr int kFiles[] = {100, 1000, 10000};
constexpr int kMenus[] = {10, 100, 999};

using Step = std::function<void()>;

[[noreturn]] void GiveUp(const std::string& why) {
  std::fprintf(stderr, "corvelle_bench: %s\n", why.c_str());
  std::exit(1);
}

/// Measures `run`; `prepare` goes before each run and is not measured.
void Repeat(benchmark::State& state, const Step& prepare, const Step& run) {
  for ([[maybe_unused]] auto turn : state) {
    state.PauseTiming();
    prepare();
    state.ResumeTiming();
    run();
  }
}

void Repeat(benchmark::State& state, const Step& run) {
  for ([[maybe_unused]] auto turn : state) run();
}

using Measurement = std::function<void(benchmark::State&)>;

/// Registers a measurement and its floor.
void Register(const std::string& name, const Measurement& time, const Measurement& floor) {
  benchmark::RegisterBenchmark(name.c_str(), time)->Unit(benchmark::kMicrosecond);
  benchmark::RegisterBenchmark((name + "/floor").c_str(), floor)->Unit(benchmark::kMicrosecond);
}

/// An object that several measurements share: made when the first of them runs, with the same
/// arguments each time.
template <class T, class... Arguments>
std::function<T&()> Shared(Arguments... arguments) {
  return [made = std::make_shared<std::unique_ptr<T>>(), arguments...]() -> T& {
    if (*made == nullptr) *made = std::make_unique<T>(arguments...);
    return **made;
  };
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
  std::optional<std::string> DisplayName(std::string_view path) override {
    const auto info = FileInfo(path, IconList::Small);
    if (!info) return std::nullopt;
    return info->DisplayName;
  }
  std::optional<IconPixels> PixelsOfFile(std::string_view path, IconList /*list*/) override {
    if (!files_.FileExists(path)) return std::nullopt;
    return IconPixels{16, 16, std::vector<std::uint32_t>(256, 0xFFFF0000U)};
  }
  std::optional<IconPixels> PixelsInFile(std::string_view /*file*/, int /*index*/,
                                         int /*size*/) override {
    return std::nullopt;
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

/// A disk with 200 menus, and the copies of the program that start on it.
class StartGround {
 public:
  StartGround() {
    for (int i = 1; i <= kButtons; ++i) desk_.PutMenu(i, 20);
  }

  /// Ends the last copy and makes one that has not started.
  void Prepare() {
    copy_.reset();
    copy_ = std::make_unique<Copy>(desk_);
    desk_.Files.ClearReads();
  }
  void Start() {
    copy_->Start();
    desk_.World.Desktop.Pump();
    if (copy_->Toolbar.Buttons.ButtonCount != kButtons + 1) GiveUp("the strip lacks buttons");
  }
  /// What a start reads.
  const std::vector<HostFiles::ReadCall>& Reads() {
    if (reads_.empty()) {
      Prepare();
      Start();
      reads_ = desk_.Files.Reads();
    }
    return reads_;
  }
  /// A started copy with the pointer on one of its buttons.
  Copy& Pointed() {
    if (Reads().empty()) GiveUp("a start reads nothing");
    sim::SimDesktop& desktop = desk_.World.Desktop;
    const PixelRect strip = desktop.BoundsOf(desktop.Find("picToolbar"));
    desktop.MovePointer(strip.left + 900, strip.top + 10);
    return *copy_;
  }
  Input& Pointer() { return desk_.World.Desktop; }

 private:
  Ground desk_;
  std::unique_ptr<Copy> copy_;
  std::vector<HostFiles::ReadCall> reads_;
};

Measurement ReadingBare(const std::function<const std::vector<HostFiles::ReadCall>&()>& reads) {
  return [reads](benchmark::State& state) {
    const std::vector<HostFiles::ReadCall>& calls = reads();
    Repeat(state, [&] {
      if (ReadBare(calls) == 0) GiveUp("nothing was read");
    });
  };
}

void RegisterStart() {
  const auto ground = Shared<StartGround>();
  Register(
      "start/200_buttons",
      [ground](benchmark::State& state) {
        StartGround& desk = ground();
        Repeat(
            state, [&] { desk.Prepare(); }, [&] { desk.Start(); });
      },
      ReadingBare([ground]() -> const auto& { return ground().Reads(); }));
  Register(
      "strip/hit_test",
      [ground](benchmark::State& state) {
        Copy& copy = ground().Pointed();
        Repeat(state, [&] { copy.Toolbar.Menus.GetCurButton(); });
        if (copy.TheProgram.Menu.CurButton < 2) GiveUp("no button was hit");
      },
      [ground](benchmark::State& state) {
        Input& pointer = ground().Pointer();
        Repeat(state, [&] { benchmark::DoNotOptimize(pointer.PointerPosition().x); });
      });
}

/// A copy of the program with one menu of so many items.
class MenuGround {
 public:
  explicit MenuGround(int items) : file_(desk_.PutMenu(1, items)), copy_(desk_), items_(items) {
    copy_.Start();
  }

  void Hide() {
    copy_.Menu.HideMenu();
    desk_.Files.ClearReads();
  }
  void Drop() {
    Hide();
    copy_.Menu.ForgetMenu("F2");
  }
  void Open() {
    copy_.Menu.ShowMenu("F2", file_);
    desk_.World.Desktop.Pump();
    if (copy_.Menu.Items().Count() != items_) GiveUp("the menu lacks items");
  }
  void OpenFromCache() {
    Open();
    if (!desk_.Files.Reads().empty()) GiveUp("a menu from the cache read its file");
  }
  /// What the building of the menu reads.
  const std::vector<HostFiles::ReadCall>& Reads() {
    if (reads_.empty()) {
      Drop();
      Open();
      reads_ = desk_.Files.Reads();
    }
    return reads_;
  }

 private:
  Ground desk_;
  std::string file_;
  Copy copy_;
  int items_;
  std::vector<HostFiles::ReadCall> reads_;
};

void RegisterMenu(int items) {
  const auto ground = Shared<MenuGround>(items);
  const Measurement floor = ReadingBare([ground]() -> const auto& { return ground().Reads(); });
  const std::string end = "/" + std::to_string(items);
  Register(
      "menu/built" + end,
      [ground](benchmark::State& state) {
        MenuGround& desk = ground();
        Repeat(
            state, [&] { desk.Drop(); }, [&] { desk.Open(); });
      },
      floor);
  Register(
      "menu/cached" + end,
      [ground](benchmark::State& state) {
        MenuGround& desk = ground();
        desk.Open();
        Repeat(
            state, [&] { desk.Hide(); }, [&] { desk.OpenFromCache(); });
      },
      floor);
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
    if (Program.Menu.Items().Count() != count_) GiveUp("the menu lacks files");
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
  void Paint() {
    Program.Menu.InvalidateAll();
    Desk.World.Desktop.Pump();
  }
  /// Types a letter that no title begins with.
  void TypeUnknownLetter() {
    const int beeps = Desk.World.Desktop.Beeps();
    Program.Menu.Form_KeyPress('z');
    if (Desk.World.Desktop.Beeps() != beeps + 1) GiveUp("a letter was found");
  }
  [[nodiscard]] bool OnLastPage() const {
    return Program.Menu.Pages().CurMenu() == Program.Menu.Pages().Slides();
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

void RegisterFolder(int files) {
  const std::string end = "/" + std::to_string(files);
  const auto ground = Shared<FolderGround>(files, "");
  const Measurement listing = [ground](benchmark::State& state) {
    FolderGround& desk = ground();
    Repeat(state, [&] { desk.ListBare(true); });
  };
  Register(
      "folder/first_opening" + end,
      [ground](benchmark::State& state) {
        FolderGround& desk = ground();
        Repeat(
            state, [&] { desk.Drop(); }, [&] { desk.Open(); });
      },
      listing);
  Register(
      "folder/cached" + end,
      [ground](benchmark::State& state) {
        FolderGround& desk = ground();
        desk.Open();
        Repeat(
            state, [&] { desk.Hide(); }, [&] { desk.Open(); });
      },
      listing);

  const auto followed = Shared<FolderGround>(files, "/u");
  Register(
      "folder/compared_with_the_disk" + end,
      [followed](benchmark::State& state) {
        FolderGround& desk = followed();
        desk.Open();
        Repeat(
            state, [&] { desk.Hide(); }, [&] { desk.Open(); });
      },
      [followed](benchmark::State& state) {
        FolderGround& desk = followed();
        Repeat(state, [&] { desk.ListBare(false); });
      });

  // The floor of a page is its picture alone.
  const Measurement painting = [ground](benchmark::State& state) {
    FolderGround& desk = ground();
    desk.Open();
    Repeat(state, [&] { desk.Paint(); });
  };
  Register(
      "folder/page_turn" + end,
      [ground](benchmark::State& state) {
        FolderGround& desk = ground();
        desk.Open();
        Repeat(
            state, [&] { desk.Key(forms::key::Home); }, [&] { desk.Key(forms::key::PageDown); });
      },
      painting);
  Register(
      "folder/last_page" + end,
      [ground](benchmark::State& state) {
        FolderGround& desk = ground();
        desk.Open();
        Repeat(
            state, [&] { desk.Key(forms::key::Home); }, [&] { desk.Key(forms::key::End); });
        if (!desk.OnLastPage()) GiveUp("End did not turn to the last page");
        desk.Key(forms::key::Home);
      },
      painting);
  Register(
      "folder/letter_without_a_hit" + end,
      [ground](benchmark::State& state) {
        FolderGround& desk = ground();
        desk.Open();
        Repeat(state, [&] { desk.TypeUnknownLetter(); });
      },
      [files](benchmark::State& state) {
        const std::vector<std::string> keys(static_cast<std::size_t>(files), "f0");
        Repeat(state, [&] {
          std::size_t seen = 0;
          for (const std::string& key : keys) seen += key[0] == 'z' ? 0 : 1;
          benchmark::DoNotOptimize(seen);
        });
      });
}

/// Icon texts of a thousand programs, drawn by the program and by the shell's calls alone.
class IconGround {
 public:
  IconGround() : copy_(Prepared(desk_)) {
    copy_.Start();
    for (int i = 0; i < kIcons; ++i) {
      files_.push_back("C:\\Tools\\tool" + std::to_string(i) + ".exe");
      desk_.PutFile(files_.back());
    }
    canvas_ = desk_.World.Desktop.CreateCanvas({kSize, kSize});
  }

  void Resolve() {
    constexpr int kAtOnce = 60;  // milliseconds
    AskedIcons icons(copy_.TheProgram.IconSources);
    for (const std::string& file : files_) {
      const IconLook look = icons.Ask(file, kSize, kAtOnce, [](const IconLook&) {});
      if (look.Pixels.IsEmpty() || !icons.Draw(*canvas_, look, kSize)) GiveUp("no icon");
    }
  }
  /// The calls of the shell that those texts cannot do without.
  void DrawBare() {
    ShellIcons& shell = desk_.Icons;
    for (const std::string& file : files_) {
      const auto info = shell.FileInfo(file, IconList::Small);
      if (!info || !shell.DrawSystemIcon(*canvas_, IconList::Small, info->SystemIndex, {0, 0},
                                         IconStyle::Normal)) {
        GiveUp("the shell has no icon");
      }
    }
  }

 private:
  static constexpr int kIcons = 1000;
  static constexpr int kSize = 16;

  static Ground& Prepared(Ground& desk) {
    desk.PutMenu(1, 1);
    return desk;
  }

  Ground desk_;
  Copy copy_;
  std::vector<std::string> files_;
  std::unique_ptr<Canvas> canvas_;
};

void RegisterIcons() {
  const auto ground = Shared<IconGround>();
  const Measurement bare = [ground](benchmark::State& state) {
    IconGround& desk = ground();
    Repeat(state, [&] { desk.DrawBare(); });
  };
  // A program that has seen none of the files: a new one for each turn.
  Register(
      "icons/1000_texts_first_time",
      [](benchmark::State& state) {
        std::unique_ptr<IconGround> fresh;
        Repeat(
            state, [&] { fresh = std::make_unique<IconGround>(); }, [&] { fresh->Resolve(); });
      },
      bare);
  Register(
      "icons/1000_texts_again",
      [ground](benchmark::State& state) {
        IconGround& desk = ground();
        desk.Resolve();
        Repeat(state, [&] { desk.Resolve(); });
      },
      bare);
}

/// A user who is asked nothing.
class NobodyHost final : public CustHost {
 public:
  void Beep() override {}
  int Say(std::string_view, unsigned) override { return 0; }
  bool FileExists(std::string_view) override { return false; }
  bool IsPlainFolder(std::string_view) override { return false; }
  std::vector<DroppedName> NamesOf(const std::vector<std::string>&) override { return {}; }
  std::string RecentFolder() override { return {}; }
};

/// All menus as the Customize window reads and saves them.
class CustomizeGround {
 public:
  explicit CustomizeGround(int menus) {
    for (int number = 1; number <= menus; ++number) desk_.PutMenu(number, kEntries);
    now_ = Read();
    desk_.Files.ClearReads();
    static_cast<void>(Read());
    calls_ = desk_.Files.Reads();
    for (const StoredFile& file : FormatMenus(now_.Set, desk_.World.Ansi).Menus) {
      paths_.push_back(kFolder + file.Name);
      bytes_.push_back(file.Bytes);
    }
  }

  MenuFiles Read() {
    auto read = ReadMenuFiles(desk_.Files, desk_.World.Ansi, kFolder);
    if (!read) GiveUp("the menus cannot be read");
    return *std::move(read);
  }
  std::size_t ReadFloor() { return ReadBare(calls_); }

  /// What the window does before it shows the tree.
  void Open() {
    editor_.InitMenuTree(Read().Set, "C:\\Corvelle\\corvelle.exe", kFolder);
    editor_.Expand(kMenusRoot);
  }
  /// Looks for what no entry has, through all of them.
  void Find() {
    if (editor_.Tree.InOrder().empty()) Open();
    if (editor_.Find("nowhere to be found") != kNoRef) GiveUp("it was found");
  }
  /// The same by one search of all the bytes.
  void FindFloor() {
    for (const std::string& bytes : bytes_) {
      if (bytes.find("nowhere to be found") != std::string::npos) GiveUp("it was found");
    }
  }

  /// Makes a tree in which every menu is another one than in its file.
  void ChangeAll() {
    ++turn_;
    for (Menu& menu : now_.Set.Menus) menu.Head.FName = std::to_string(turn_);
  }
  /// And one in which a single menu is.
  void ChangeOne() { now_.Set.Menus.front().Head.FName = std::to_string(++turn_); }
  void Save() {
    SaveResult result = SaveMenus(desk_.Files, desk_.World.Ansi, kFolder, now_.Set, now_.Stamp);
    if (result.End != SaveEnd::Saved) GiveUp("the menus cannot be saved");
    now_ = std::move(result.Now);
  }
  /// The same bytes by nothing but writes.
  void SaveFloor(std::size_t files) {
    for (std::size_t i = 0; i < files; ++i) {
      if (!desk_.Files.Write(paths_[i], bytes_[i])) GiveUp("a menu cannot be written");
    }
  }
  [[nodiscard]] std::size_t Size() const { return paths_.size(); }

  /// One edit made elsewhere into a tree with one of its own.
  void Merge() {
    MenuSet ours = now_.Set;
    ours.Menus.front().Items.pop_back();
    MenuSet theirs = now_.Set;
    theirs.Menus.back().Items.push_back(NewItemRecord());
    if (!MergeTrees(now_.Set, ours, theirs).Conflicts.empty()) GiveUp("a conflict");
  }
  /// The copies of the two sides and of the outcome.
  void MergeFloor() {
    for (int i = 0; i < 3; ++i) {
      MenuSet copy = now_.Set;
      benchmark::DoNotOptimize(copy.Menus.data());
    }
  }

 private:
  static constexpr int kEntries = 100;
  static constexpr const char* kFolder = "C:\\Corvelle\\Menus\\";

  Ground desk_;
  NobodyHost host_;
  CustEditor editor_{host_};
  MenuFiles now_;
  std::vector<HostFiles::ReadCall> calls_;
  std::vector<std::string> paths_;
  std::vector<std::string> bytes_;
  int turn_ = 0;
};

void RegisterCustomize(int menus) {
  const std::string end = "/" + std::to_string(menus);
  const auto ground = Shared<CustomizeGround>(menus);
  Register(
      "customize/read" + end,
      [ground](benchmark::State& state) {
        CustomizeGround& desk = ground();  // made by the first call
        Repeat(state, [&] { benchmark::DoNotOptimize(desk.Read().Set.Menus.data()); });
      },
      [ground](benchmark::State& state) {
        Repeat(state, [&] { benchmark::DoNotOptimize(ground().ReadFloor()); });
      });
  Register(
      "customize/open" + end,
      [ground](benchmark::State& state) { Repeat(state, [&] { ground().Open(); }); },
      [ground](benchmark::State& state) {
        Repeat(state, [&] { benchmark::DoNotOptimize(ground().ReadFloor()); });
      });
  Register(
      "customize/find" + end,
      [ground](benchmark::State& state) { Repeat(state, [&] { ground().Find(); }); },
      [ground](benchmark::State& state) { Repeat(state, [&] { ground().FindFloor(); }); });
  Register(
      "customize/save_all_changed" + end,
      [ground](benchmark::State& state) {
        Repeat(
            state, [&] { ground().ChangeAll(); }, [&] { ground().Save(); });
      },
      [menus](benchmark::State& state) {
        CustomizeGround desk(menus);
        Repeat(state, [&] { desk.SaveFloor(desk.Size()); });
      });
  Register(
      "customize/save_one_changed" + end,
      [ground](benchmark::State& state) {
        Repeat(
            state, [&] { ground().ChangeOne(); }, [&] { ground().Save(); });
      },
      [menus](benchmark::State& state) {
        CustomizeGround desk(menus);
        Repeat(state, [&] { desk.SaveFloor(desk.Size()); });
      });
  Register(
      "customize/merge" + end,
      [ground](benchmark::State& state) { Repeat(state, [&] { ground().Merge(); }); },
      [ground](benchmark::State& state) { Repeat(state, [&] { ground().MergeFloor(); }); });
}

}  // namespace
}  // namespace corvelle::bench

int main(int argc, char** argv) {
  using namespace corvelle;
  sim::SetComplaintHandler([](const std::string& what) { bench::GiveUp(what); });
  bench::RegisterStart();
  for (const int items : bench::kItems) bench::RegisterMenu(items);
  for (const int files : bench::kFiles) bench::RegisterFolder(files);
  bench::RegisterIcons();
  for (const int menus : bench::kMenus) bench::RegisterCustomize(menus);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  // A filter that meets nothing is a mistake, not a quick run.
  return benchmark::RunSpecifiedBenchmarks() == 0 ? 1 : 0;
}
