#include "win32/Win32WindowSystem.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "win32/Wide.h"
#include "win32/Win32Canvas.h"
#include "win32/Win32Peer.h"

namespace corvelle::win32 {

namespace {

/// More events than ever wait at a time; whoever makes them faster must not hold up the program.
constexpr int kMostEventsAtOnce = 5000;

constexpr float kTwipsOfAnInch = 1440;

void Deliver(const MSG& message) {
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

/// The wish to end stays in the thread's queue and would end the next loop too.
void ForgetQuit() {
  MSG message{};
  PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
}

bool PointerIsOnOurs() {
  POINT at{};
  if (GetCursorPos(&at) == 0) return false;
  const HWND window = WindowFromPoint(at);
  return window != nullptr && GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId();
}

}  // namespace

// The scale stays what it is at the start of a process, and it is asked for all the time.
Win32WindowSystem::Win32WindowSystem() {
  const WindowDc screen(nullptr);
  const int dotsX = std::max(GetDeviceCaps(screen.Get(), LOGPIXELSX), 1);
  const int dotsY = std::max(GetDeviceCaps(screen.Get(), LOGPIXELSY), 1);
  scale_.TwipsPerPixelX = kTwipsOfAnInch / static_cast<float>(dotsX);
  scale_.TwipsPerPixelY = kTwipsOfAnInch / static_cast<float>(dotsY);
}

Win32WindowSystem::~Win32WindowSystem() {
  if (quit_) ForgetQuit();
}

std::unique_ptr<forms::WindowPeer> Win32WindowSystem::CreatePeer(const forms::PeerSpec& wanted,
                                                                 forms::WindowEvents& events) {
  auto window = std::make_shared<Win32Window>(*this, wanted.Kind);
  if (!window->Create(wanted)) return nullptr;
  window->Tell(&events);
  return std::make_unique<Win32Peer>(*this, std::move(window));
}

std::unique_ptr<Canvas> Win32WindowSystem::CreateCanvas(PixelSize size) {
  return std::make_unique<MemoryCanvas>(size, tools_);
}

PixelSize Win32WindowSystem::MeasureText(std::string_view text, const FontSpec& font) {
  return tools_->Fonts.Measure(text, font);
}

Rgb Win32WindowSystem::SystemColor(int index) const { return GetSysColor(index); }

forms::ScreenInfo Win32WindowSystem::Screen() const {
  forms::ScreenInfo info = scale_;
  info.Width = static_cast<float>(GetSystemMetrics(SM_CXSCREEN)) * info.TwipsPerPixelX;
  info.Height = static_cast<float>(GetSystemMetrics(SM_CYSCREEN)) * info.TwipsPerPixelY;
  return info;
}

HWND Win32WindowSystem::ToolOwner() {
  if (!toolOwner_) {
    toolOwner_.Reset(CreateWindowExW(WS_EX_TOOLWINDOW, L"Static", L"", WS_POPUP, 0, 0, 0, 0,
                                     nullptr, nullptr, Module(), nullptr));
  }
  return toolOwner_.Get();
}

void Win32WindowSystem::SetMousePointer(forms::MousePointer shape) {
  pointer_ = shape;
  if (PointerIsOnOurs()) ShowPointer();
}

void Win32WindowSystem::ShowPointer() const {
  const bool hourglass = pointer_ == forms::MousePointer::Hourglass;
  SetCursor(LoadCursorW(nullptr, hourglass ? IDC_WAIT : IDC_ARROW));
}

// A timer whose ticks take longer than its interval is always due: its second tick is the last
// event of one call.
void Win32WindowSystem::DoEvents() {
  std::vector<WPARAM> ticked;
  MSG message{};
  for (int count = 0; count < kMostEventsAtOnce; ++count) {
    if (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) == 0) return;
    if (message.message == WM_QUIT) {
      quit_ = true;
      return;
    }
    Deliver(message);
    if (message.message != WM_TIMER) continue;
    if (std::find(ticked.begin(), ticked.end(), message.wParam) != ticked.end()) return;
    ticked.push_back(message.wParam);
  }
}

void Win32WindowSystem::Run() {
  MSG message{};
  while (!quit_ && GetMessageW(&message, nullptr, 0, 0) > 0) Deliver(message);
  quit_ = true;
  ForgetQuit();
}

void Win32WindowSystem::Quit() {
  quit_ = true;
  // Wakes the loop, and ends that of a message box too; a popup menu has one of its own.
  EndMenu();
  PostQuitMessage(0);
}

forms::TimerId Win32WindowSystem::StartTimer(int milliseconds, std::function<void()> tick) {
  return timers_.Start(milliseconds, std::move(tick));
}

std::int64_t Win32WindowSystem::Now() const { return static_cast<std::int64_t>(GetTickCount64()); }

int Win32WindowSystem::ShowMessage(WindowId owner, std::string_view text, std::string_view title,
                                   unsigned flags) {
  return MessageBoxW(ToHwnd(owner), Wide(text).c_str(), Wide(title).c_str(), flags);
}

}  // namespace corvelle::win32
