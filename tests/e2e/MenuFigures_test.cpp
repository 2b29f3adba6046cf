// What a user waits for when a menu opens, from outside: from the press to the first caption, to
// all captions and to the last pixel, beside the longest time in which the strip did not answer and
// the memory of the program. One road prints one table:
// (tools/run_windows_tests.py with --tell; with --times 2 or more for all menus, else for one).

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <filesystem>
#include <limits>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include "core/MenuRecord.h"
#include "e2e/Heartbeat.h"
#include "e2e/Median.h"
#include "e2e/MenuLook.h"
#include "e2e/ProcessCounts.h"
#include "e2e/Times.h"
#include "e2e/WineDesk.h"
#include "scenario/Strip.h"

namespace corvelle::e2e {
namespace {

constexpr double kNotSeen = std::numeric_limits<double>::max();
constexpr int kItems = 20;
constexpr int kButton = 2;
constexpr double kSettled = 700;     // ms without a change: the pixels are at rest
constexpr double kLongest = 20'000;  // ms for one opening
constexpr int kKnocks = 60;          // ms of the processor that knocks take in that time
constexpr int kUpperEnd = 70;        // pixels, at least three captions
constexpr DWORD kBetweenLooks = 10;  // ms, at a menu whose captions are there
constexpr std::string_view kGenerated = "Menus\\BMENU001.mfd";
constexpr wchar_t kHere[] = L"C:\\many";
constexpr wchar_t kAway[] = L"C:\\elsewhere";

/// What one opening took, in milliseconds from the press.
struct OpeningTimes {
  double First = kNotSeen;     // a caption
  double Captions = kNotSeen;  // all
  double Rest = kNotSeen;      // the last change of a pixel
  double Gap = 0;              // the longest wait of a knock at the strip meanwhile
  double IdleGap = 0;          // and at a window that does nothing
};

/// The same of several openings, one value each.
struct Measured {
  void Add(const OpeningTimes& times) {
    First.push_back(times.First);
    Captions.push_back(times.Captions);
    Rest.push_back(times.Rest);
    Gap.push_back(times.Gap);
    IdleGap.push_back(times.IdleGap);
  }

  std::vector<double> First;
  std::vector<double> Captions;
  std::vector<double> Rest;
  std::vector<double> Gap;
  std::vector<double> IdleGap;
  std::vector<double> PrivateMegabytes;
};

double Least(const std::vector<double>& values) {
  return values.empty() ? 0 : *std::min_element(values.begin(), values.end());
}

double Most(const std::vector<double>& values) {
  return values.empty() ? 0 : *std::max_element(values.begin(), values.end());
}

void PrintHead(const char* title) {
  std::printf(
      "| %-28s | first caption | all captions | pixels at rest | longest gap | of no work | "
      "private |\n",
      title);
}

/// Medians, of the gaps the longest, and of the memory the most.
void PrintRow(const std::string& name, const Measured& of) {
  std::printf("| %-28s | %10.0f ms | %9.0f ms | %11.0f ms | %8.0f ms | %7.0f ms | %4.1f MB |\n",
              name.c_str(), MedianOf(of.First), MedianOf(of.Captions), MedianOf(of.Rest),
              Most(of.Gap), Most(of.IdleGap), Most(of.PrivateMegabytes));
  std::fflush(stdout);
}

/// A window of the test that comes up with its captions when a spot of the screen is pressed: what
/// the system itself takes for that.
class BareMenu {
 public:
  static constexpr char kClass[] = "CorvelleBareMenu";

  explicit BareMenu(PixelPoint spot) : thread_([this, spot] { Run(spot); }) {
    while (ready_ == 0) Sleep(1);
  }
  BareMenu(const BareMenu&) = delete;
  BareMenu& operator=(const BareMenu&) = delete;
  ~BareMenu() {
    PostThreadMessageW(ready_, WM_QUIT, 0, 0);
    thread_.join();
  }

  void Hide() const { PostMessageW(menu_, WM_APP, 0, 0); }

 private:
  static constexpr wchar_t kWideClass[] = L"CorvelleBareMenu";
  static constexpr int kLine = 20;

  static LRESULT CALLBACK OfMenu(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_APP) ShowWindow(window, SW_HIDE);
    if (message != WM_PAINT) return DefWindowProcW(window, message, wParam, lParam);
    PAINTSTRUCT paint = {};
    HDC dc = BeginPaint(window, &paint);
    SetBkMode(dc, TRANSPARENT);
    for (int i = 0; i < kItems; ++i) TextOutW(dc, 28, 5 + i * kLine, L"tool 10000.exe", 14);
    EndPaint(window, &paint);
    return 0;
  }
  static LRESULT CALLBACK OfSpot(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_LBUTTONDOWN) {
      HWND menu = reinterpret_cast<HWND>(GetWindowLongPtrW(window, GWLP_USERDATA));
      SetWindowPos(menu, HWND_TOPMOST, 100, 100, 116, 10 + kItems * kLine, SWP_SHOWWINDOW);
      UpdateWindow(menu);
    }
    return DefWindowProcW(window, message, wParam, lParam);
  }
  static HWND Make(const wchar_t* name, WNDPROC procedure, DWORD style) {
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = procedure;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = name;
    windowClass.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    RegisterClassW(&windowClass);
    return CreateWindowExW(WS_EX_TOPMOST | WS_EX_TOOLWINDOW, name, nullptr, WS_POPUP | style, 0, 0,
                           40, 40, nullptr, nullptr, windowClass.hInstance, nullptr);
  }

  void Run(PixelPoint spot) {
    menu_ = Make(kWideClass, &OfMenu, 0);
    HWND pad = Make(L"CorvelleBareSpot", &OfSpot, WS_VISIBLE);
    SetWindowLongPtrW(pad, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(menu_.load()));
    SetWindowPos(pad, nullptr, spot.x - 20, spot.y - 20, 40, 40, SWP_NOZORDER);
    ready_ = GetCurrentThreadId();
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
    DestroyWindow(pad);
    DestroyWindow(menu_);
  }

  std::atomic<HWND> menu_ = nullptr;
  std::atomic<DWORD> ready_ = 0;
  std::thread thread_;
};

class MenuFigures : public testing::Test {
 protected:
  void SetUp() override { desk_.WriteFile(scenario::kFlagsFile, scenario::InstalledFlags()); }

  /// All menus of a table: cold, fetched ahead and again.
  void MeasureAll(const char* title, std::vector<int> sizes) {
    PrintHead(title);
    if (Times() > 1) sizes = {kItems, 500, 1000, 10'000};
    MeasureBareMenu();
    for (const int size : sizes) MeasureMenu(size);
    std::printf("| start until the strip answers: %.0f ms, longest gap of it %.0f ms\n",
                MedianOf(starts_), Most(startGaps_));
  }

  /// Programs of their own, each with an icon to be fetched; all of them one file of the disk.
  void PutPrograms(int count) {
    const std::filesystem::path folder = kHere;
    std::filesystem::create_directory(folder);
    CopyFileW(Wide(desk_.WitnessProgram()).c_str(), (folder / "tool 10000.exe").c_str(), FALSE);
    for (int i = 1; i < count; ++i) {
      const std::wstring name = L"tool " + std::to_wstring(10'000 + i) + L".exe";
      ASSERT_NE(
          CreateHardLinkW((folder / name).c_str(), (folder / "tool 10000.exe").c_str(), nullptr),
          FALSE);
    }
  }

  /// A menu whose items are the programs, or that shows their folder.
  void WriteMenuOf(int count, bool fetchedAhead) {
    std::vector<MenuRecord> items;
    if (count > kItems) {
      items.push_back({.FTitle = "Tools", .FIcon = "", .FName = "C:\\many\\*.*"});
    } else {
      for (int i = 0; i < count; ++i) {
        const std::string path = "C:\\many\\tool " + std::to_string(10'000 + i) + ".exe";
        // A mark keeps an icon from being fetched before the menu is opened.
        const std::string icon = fetchedAhead ? path : path + std::string(1, '\0') + "/h";
        items.push_back({.FTitle = "Tool " + std::to_string(i), .FIcon = icon, .FName = path});
      }
    }
    scenario::WriteMenu(desk_, 1, "Tools", items);
  }

  void MeasureMenu(int count) {
    PutPrograms(count);
    Measured cold;
    Measured ahead;
    Measured again;
    for (int round = 0; round < Times(); ++round) {
      // While it starts and fetches beforehand, the folder is not there.
      if (desk_.ReadFile(kGenerated)) desk_.RemoveFile(kGenerated);
      WriteMenuOf(count, false);
      std::filesystem::rename(kHere, kAway);
      Start();
      std::filesystem::rename(kAway, kHere);
      Open(cold);
      for (int i = 0; i < 2; ++i) Open(again);
      ASSERT_TRUE(scenario::CloseAndWait(desk_));
      if (HasFatalFailure()) return;
      WriteMenuOf(count, true);
      Start();
      Open(ahead);
      ASSERT_TRUE(scenario::CloseAndWait(desk_));
      if (HasFatalFailure()) return;
    }
    const std::string name = std::to_string(count) + (count > kItems ? " files" : " items");
    PrintRow(name + ", cold", cold);
    PrintRow(name + ", fetched ahead", ahead);
    PrintRow(name + ", again", again);
    Judge(cold);
    Judge(ahead);
    Judge(again);
    std::filesystem::remove_all(kHere);
  }

  /// Nothing that is only hoped for: a busy machine is no fault of the program.
  static void Judge(const Measured& of) {
    EXPECT_LT(Least(of.Captions), 2000);
    EXPECT_LT(Most(of.Rest), kLongest);
    EXPECT_LT(Least(of.Gap), 2000);
    EXPECT_GT(Least(of.PrivateMegabytes), 0);
    EXPECT_LT(Most(of.PrivateMegabytes), 60);
  }

  /// Starts the program, and waits until it has nothing left to do.
  void Start() {
    desk_.MovePointer(scenario::FarAway(desk_));
    strip_.Forget();
    const double began = NowInMilliseconds();
    desk_.StartCorvelle();
    // Knocks begin as soon as there is a window; the strip stands when it shows itself.
    ASSERT_TRUE(desk_.Wait([&] { return strip_.Answers() > 0 && desk_.IsVisible("frmToolbar"); }));
    starts_.push_back(NowInMilliseconds() - began);
    int before = -1000;
    for (int pause = 0; pause < 30 && desk_.ProcessorTime() > before + kKnocks; ++pause) {
      before = desk_.ProcessorTime();
      desk_.Pause(static_cast<int>(kSettled));
    }
    startGaps_.push_back(strip_.Longest());
  }

  void Open(Measured& measured) {
    desk_.MovePointer(scenario::ButtonMiddle(desk_, kButton));
    desk_.Pause(static_cast<int>(kSettled));  // or the press is the second of a quick pair
    strip_.Forget();
    idle_.Forget();
    OpeningTimes times = Watch("frmQMenu");
    times.Gap = strip_.Longest();
    times.IdleGap = idle_.Longest();
    EXPECT_LT(times.Captions, kNotSeen);
    measured.Add(times);
    measured.PrivateMegabytes.push_back(MegabytesOf(desk_.Handle("frmToolbar")));
    desk_.Picture("menu-" + std::to_string(++pictures_));
    desk_.Key(scenario::kKeyEscape);
    ASSERT_TRUE(scenario::WaitForNoMenu(desk_));
  }

  /// Presses where the pointer is, and looks at the window that comes up until it is at rest.
  OpeningTimes Watch(const char* className) {
    OpeningTimes times;
    HWND menu = desk_.Handle(className);
    const double pressed = NowInMilliseconds();
    const auto now = [&] { return NowInMilliseconds() - pressed; };
    desk_.Press(scenario::Button::Left);
    desk_.Release(scenario::Button::Left);
    for (; times.Captions == kNotSeen && now() < kLongest; Sleep(1)) {
      if (menu == nullptr) menu = desk_.Handle(className);
      if (menu == nullptr || IsWindowVisible(menu) == FALSE) continue;
      const int captions = MenuLook(menu, kUpperEnd).Captions();
      if (captions >= 1) times.First = std::min(times.First, now());
      // While a folder is read there is but one.
      if (captions >= 3) times.Captions = now();
    }
    MenuLook last(menu);
    times.Rest = times.Captions;
    while (now() < times.Rest + kSettled && now() < kLongest) {
      Sleep(kBetweenLooks);
      MenuLook look(menu);
      if (look == last) continue;
      times.Rest = now();
      last = std::move(look);
    }
    return times;
  }

  /// The same of a window that does nothing but come up.
  void MeasureBareMenu() {
    const PixelPoint pad = scenario::FarAway(desk_);
    const BareMenu menu(pad);
    Measured measured;
    for (int i = 0; i < 1 + Times(); ++i) {
      desk_.MovePointer(pad);
      desk_.Pause(static_cast<int>(kSettled));
      measured.Add(Watch(BareMenu::kClass));
      menu.Hide();
      desk_.Pause(100);
    }
    measured.PrivateMegabytes.push_back(MegabytesOfBareProgram());
    PrintRow("a bare window with 20 lines", measured);
    EXPECT_LT(Most(measured.Captions), kNotSeen);
  }

  /// Private memory of a program that has a window, OLE, the shell's first icon, and nothing else.
  double MegabytesOfBareProgram() {
    STARTUPINFOW info = {};
    info.cb = sizeof(info);
    PROCESS_INFORMATION process = {};
    wchar_t command[] = L"C:\\e2e\\bareshell.exe";
    if (CreateProcessW(command, command, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &info,
                       &process) == FALSE) {
      return 0;
    }
    const auto window = [] { return FindWindowW(L"bareshell", nullptr); };
    desk_.Wait([&] { return IsWindowVisible(window()) != FALSE; });
    desk_.Pause(300);
    const double bytes = MegabytesOf(window());
    PostMessageW(window(), WM_CLOSE, 0, 0);
    WaitForSingleObject(process.hProcess, 10'000);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return bytes;
  }

  static double MegabytesOf(HWND window) {
    return static_cast<double>(CountsOf(window).PrivateBytes) / (1U << 20U);
  }

  WineDesk desk_;
  std::vector<double> starts_;
  std::vector<double> startGaps_;
  int pictures_ = 0;
  IdleWindow window_;
  Heartbeat strip_{L"frmToolbar"};
  Heartbeat idle_{IdleWindow::kClass};
};

TEST_F(MenuFigures, WithTheHelperProcess) { MeasureAll("with the helper process", {500}); }

TEST_F(MenuFigures, WithoutTheHelperProcess) {
  ASSERT_NE(DeleteFileW((std::wstring(kAppFolder) + L"corvelle-shell.exe").c_str()), FALSE);
  MeasureAll("without the helper process", {kItems});
}

}  // namespace
}  // namespace corvelle::e2e
