#include <algorithm>
#include <list>

#include "base/Text.h"
#include "core/Main.h"
#include "icons/LibraryBytes.h"
#include "program/Parts.h"
#include "scenario/Desk.h"
#include "sim/World.h"

// The desk on the simulated desktop: the program's parts run in this process, and time is what the
// test lets pass.

namespace corvelle::scenario {
namespace {

constexpr std::string_view kAppFolder = "C:\\Corvelle\\";
constexpr std::string_view kWitness = "C:\\witness\\witness.exe";
constexpr std::string_view kLink = "C:\\documents\\a link.lnk";
constexpr std::string_view kDamagedLink = "C:\\documents\\damaged.lnk";
constexpr std::string_view kDamage = "L\x01 is no link";
constexpr std::string_view kStartup = "C:\\Start Menu\\Startup";
constexpr int kStartupFolder = 7;
constexpr std::string_view kPrograms = "C:\\Start Menu\\Programs\\";
constexpr int kProgramsFolder = 2;
constexpr std::string_view kDocument =
    "C:\\documents\\letter to Zo\u00eb, \u043f\u0438\u0441\u044c\u043c\u043e.wit";

/// An icon library of the files that scenarios ask for.
std::string SmallLibrary() {
  return Entry("folder.ico", "icon") + Entry("W95MBX02.ICO", "icon") +
         Entry("Folders.ini", "folder.ico\r\n") + End();
}

/// One copy of the program, as its entry point makes it.
class Copy {
 public:
  explicit Copy(sim::World& world) : parts_(world.Services(), world.Windows()) {
    world.System.OtherInstance = world.Desktop.Find("frmMinimize") != kNoWindow;
    runs_ = Main(parts_.TheProgram);
  }
  ~Copy() {
    if (parts_.Companion.WindowLoaded()) parts_.Companion.UnloadWindow();
  }
  Copy(const Copy&) = delete;
  Copy& operator=(const Copy&) = delete;

  [[nodiscard]] bool Runs() const { return runs_ && parts_.Companion.WindowLoaded(); }

 private:
  Parts parts_;
  bool runs_ = false;
};

forms::MouseButton ToForms(Button button) {
  return button == Button::Left ? forms::MouseButton::Left : forms::MouseButton::Right;
}

std::string WithoutBackslash(std::string folder) {
  if (folder.size() > 3 && folder.back() == '\\') folder.pop_back();
  return folder;
}

class SimDesk final : public Desk {
 public:
  SimDesk() {
    world_.Files.Put(std::string(kAppFolder) + "corvelle.exe", "x");
    world_.Icons.SetIconCount(std::string(kAppFolder) + "corvelle.exe", 1);
    world_.Files.Put(std::string(kAppFolder) + "icon.lib", SmallLibrary());
    world_.Files.Put(kWitness, "x");
    world_.Files.Put(kDocument, "A document.\r\n");
    world_.Shell.Associate(".wit", kWitness);
    world_.Shell.AddToPath("rundll32.exe");
    world_.Links.SetFolder(kStartupFolder, kStartup);
    world_.System.WorkFolder = kAppFolder;
  }

  void StartCorvelle() override {
    copies_.emplace_back(world_);
    world_.Desktop.Pump();
  }

  [[nodiscard]] int RunningCopies() const override {
    return static_cast<int>(std::count_if(copies_.begin(), copies_.end(),
                                          [](const Copy& copy) { return copy.Runs(); }));
  }

  void MovePointer(PixelPoint at) override { world_.Desktop.MovePointer(at.x, at.y); }
  void Press(Button button) override {
    const bool takes =
        source_.Window != kNoWindow && world_.Desktop.WindowAt(Pointer()) == source_.Window;
    if (!takes) return world_.Desktop.Press(ToForms(button));
    source_.Button = ToForms(button);
    world_.Desktop.StartDrag(source_);
  }
  void Release(Button button) override { world_.Desktop.Release(ToForms(button)); }
  void DoubleClick(PixelPoint at) override {
    MovePointer(at);
    world_.Desktop.DoubleClick();
  }
  [[nodiscard]] PixelPoint Pointer() const override { return world_.Desktop.PointerPosition(); }

  void Key(int virtualKey) override {
    // The codes of letters and digits are those of their characters, and the key types them.
    const bool types =
        (virtualKey >= '0' && virtualKey <= '9') || (virtualKey >= 'A' && virtualKey <= 'Z');
    if (types) {
      world_.Desktop.Type(LowerCase(std::string(1, static_cast<char>(virtualKey))));
    } else {
      world_.Desktop.PressKey(virtualKey);
    }
  }
  void HoldKey(int virtualKey) override { world_.Desktop.KeyDown(virtualKey); }
  void LetKeyGo(int virtualKey) override { world_.Desktop.KeyUp(virtualKey); }
  void Type(char letter) override { world_.Desktop.Type(std::string(1, letter)); }

  bool Wait(const std::function<bool()>& until, int milliseconds) override {
    constexpr int kStep = 10;
    world_.Desktop.Pump();
    for (int passed = 0; !until(); passed += kStep) {
      if (passed >= milliseconds) return false;
      world_.Desktop.Advance(kStep);
    }
    return true;
  }
  void Pause(int milliseconds) override { world_.Desktop.Advance(milliseconds); }

  [[nodiscard]] PixelSize ScreenSize() const override { return options_.Screen; }
  [[nodiscard]] int TwipsPerPixel() const override {
    return static_cast<int>(options_.TwipsPerPixel);
  }

  [[nodiscard]] std::optional<SeenWindow> Window(std::string_view className) const override {
    const WindowId window = world_.Desktop.Find(className);
    if (window == kNoWindow) return std::nullopt;
    return SeenWindow{.Visible = world_.Desktop.IsShown(window),
                      .Bounds = world_.Desktop.BoundsOf(window),
                      .Title = world_.Desktop.Text(window)};
  }
  [[nodiscard]] std::string ForegroundClass() const override {
    return world_.Desktop.ClassName(world_.Desktop.ForegroundWindow());
  }
  void BringToFront(std::string_view className) override {
    for (const WindowId window : world_.Desktop.TopLevel()) {
      if (world_.Desktop.ClassName(window) != className) continue;
      world_.Desktop.TakeForeground(window);
      break;
    }
    world_.Desktop.Pump();
  }
  void OpenOtherWindow(PixelRect bounds) override {
    const WindowId window = world_.Desktop.AddOtherWindow(
        {.Title = "Another program", .ClassName = "OtherProgram", .Bounds = bounds});
    world_.Desktop.TakeForeground(window);
    world_.Desktop.Pump();
  }
  PixelRect OpenOtherBar(Edge at, int thickness) override {
    bar_ = world_.Bars.AddOtherBar(at, thickness, sim::BarPlacing::Last);
    return world_.Bars.KeptBy(bar_);
  }
  void CloseOtherBar() override { world_.Bars.RemoveOtherBar(bar_); }
  void OpenDragSource(PixelRect bounds, const std::vector<std::string>& files,
                      std::string_view text, std::string_view title) override {
    source_.Window = world_.Desktop.AddOtherWindow(
        {.Title = "Page to drag - Browser", .ClassName = "DragSource", .Bounds = bounds});
    source_.Data = {};
    if (files.empty()) {
      source_.Data.Text = text;
      source_.Data.Title = title;
    } else {
      source_.Data.Files = files;
    }
    world_.Desktop.TakeForeground(source_.Window);
    world_.Desktop.Pump();
  }
  std::intptr_t Send(std::string_view className, std::uint32_t message, std::uintptr_t wParam,
                     std::intptr_t lParam) override {
    const WindowId window = world_.Desktop.Find(className);
    const std::intptr_t answer = world_.Desktop.Send(window, message, wParam, lParam).value_or(0);
    world_.Desktop.Pump();
    return answer;
  }
  void Post(std::string_view className, std::uint32_t message, std::uintptr_t wParam,
            std::intptr_t lParam) override {
    const WindowId window = world_.Desktop.Find(className);
    if (window != kNoWindow) world_.Desktop.Post(window, message, wParam, lParam);
  }
  bool EndSession() override {
    world_.Desktop.EndSession();
    world_.Desktop.Pump();
    return true;
  }

  void AnswerNext(int button) override { world_.Desktop.Answer(button); }
  [[nodiscard]] std::vector<SeenMessage> Messages() const override {
    std::vector<SeenMessage> messages;
    for (const sim::MessageBox& box : world_.Desktop.Boxes()) {
      messages.push_back({.Title = box.Title, .Text = box.Text});
    }
    return messages;
  }

  void ChooseFromPopup(std::string_view caption) override {
    world_.Desktop.ChooseFromPopup(std::string(caption));
  }
  // Here a popup that nothing is chosen from goes away by itself.
  [[nodiscard]] bool PopupIsUp() const override {
    return world_.Desktop.Find("#32768") != kNoWindow;
  }
  void ClickTrayIcon() override {
    for (const TrayIcon& icon : world_.Tray.Shown) {
      for (const std::intptr_t mouse : {512, 513, 514}) {
        world_.Desktop.Post(icon.Window, icon.CallbackMessage, icon.Id, mouse);
      }
    }
    world_.Desktop.Pump();
  }
  [[nodiscard]] bool HasTaskBarButton() const override {
    return world_.Desktop.IsVisible(world_.Desktop.Find("frmMinimize"));
  }
  void ClickTaskBarButton() override {
    if (!HasTaskBarButton()) return;
    const WindowId window = world_.Desktop.Find("frmMinimize");
    world_.Desktop.RestoreMinimized(window);
    world_.Desktop.Pump();
  }
  void AnswerShellMenu(char letter) override {
    if (letter == 0) {
      world_.Folders.Dismiss();
    } else {
      world_.Folders.Choose(std::string(1, letter));
    }
  }
  [[nodiscard]] int ShellMenus() const override {
    return static_cast<int>(world_.Folders.Menus().size());
  }

  [[nodiscard]] std::optional<std::string> ReadFile(std::string_view name) const override {
    return world_.Files.Get(PathOf(name));
  }
  void WriteFile(std::string_view name, std::string_view bytes) override {
    world_.Files.Put(PathOf(name), bytes);
  }
  void RemoveFile(std::string_view name) override { world_.Files.Vanish(PathOf(name)); }
  [[nodiscard]] bool FolderExists(std::string_view name) const override {
    return world_.Files.Has(PathOf(name)) && !world_.Files.Get(PathOf(name));
  }
  [[nodiscard]] std::vector<std::string> Files(std::string_view folder) const override {
    std::vector<std::string> names;
    for (const std::string& name : world_.Files.Names(PathOf(folder)))
      names.push_back(UpperCase(name));
    std::sort(names.begin(), names.end());
    return names;
  }

  [[nodiscard]] std::string WitnessProgram() const override { return std::string(kWitness); }
  [[nodiscard]] std::string WitnessDocument() const override { return std::string(kDocument); }
  std::string MakeWitnessLink(std::string_view arguments, std::string_view folder) override {
    world_.Links.Put(kLink, {.Path = std::string(kWitness),
                             .WorkDir = std::string(folder),
                             .Arguments = std::string(arguments)});
    return std::string(kLink);
  }
  std::string MakeDamagedLink() override {
    world_.Files.Put(kDamagedLink, kDamage);
    return std::string(kDamagedLink);
  }
  void MakeProgramsEntry(std::string_view title, std::string_view arguments) override {
    const std::string link = std::string(kPrograms) + std::string(title) + ".lnk";
    world_.Links.Put(link, {.Path = std::string(kWitness), .Arguments = std::string(arguments)});
    world_.Folders.Put(kProgramsFolder, {{std::string(title), 1}});
    world_.Folders.WhenOpened(kProgramsFolder, std::string(title), [this, link] {
      static_cast<void>(world_.Shell.Open(link, std::nullopt, std::nullopt));
    });
  }
  [[nodiscard]] std::optional<std::string> StartupLinkTarget() const override {
    const auto link = world_.Links.Get(std::string(kStartup) + "\\Corvelle.lnk");
    if (!link) return std::nullopt;
    return link->Path;
  }

  // What the shell was asked for, as the program that it starts would see it.
  [[nodiscard]] std::vector<Launch> Launched() const override {
    std::vector<Launch> launches;
    for (const sim::Launch& asked : world_.Shell.Log()) {
      if (!asked.Started) continue;
      const std::string folder = WithoutBackslash(asked.Folder.value_or(world_.System.WorkFolder));
      if (const auto link = world_.Links.Get(asked.File)) {
        launches.push_back({link->Path, link->Arguments,
                            link->WorkDir.empty() ? folder : WithoutBackslash(link->WorkDir)});
      } else if (asked.How == sim::Launch::Kind::Run) {
        const std::size_t end = asked.File.find(' ');
        launches.push_back({asked.File.substr(0, end),
                            end == std::string::npos ? "" : asked.File.substr(end + 1), folder});
      } else if (EndsWithNoCase(asked.File, ".wit")) {
        launches.push_back({std::string(kWitness), "\"" + asked.File + "\"", folder});
      } else {
        launches.push_back({asked.File, asked.Parameters.value_or(""), folder});
      }
    }
    return launches;
  }

  void Picture(std::string_view) override {}

 private:
  static std::string PathOf(std::string_view name) {
    return std::string(kAppFolder) + std::string(name);
  }

  sim::WorldOptions options_;
  sim::World world_{options_};
  sim::DragSource source_;
  WindowId bar_ = kNoWindow;
  std::list<Copy> copies_;
};

}  // namespace

std::unique_ptr<Desk> MakeDesk() { return std::make_unique<SimDesk>(); }

}  // namespace corvelle::scenario
