#include "win32/Win32WindowSystem.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "win32/MonitorScale.h"
#include "win32/Wide.h"
#include "win32/Win32Canvas.h"
#include "win32/Win32Cursor.h"
#include "win32/Win32Peer.h"

namespace corvelle::win32 {

namespace {

/// More events than ever wait at a time; whoever makes them faster must not hold up the program.
constexpr int kMostEventsAtOnce = 5000;

void Deliver(const MSG& message) {
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

BOOL CALLBACK PaintWindow(HWND window, LPARAM /*parameter*/) noexcept {
  RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  return TRUE;
}

/// Adds the monitors beside the primary one, whose corner alone is the desktop's origin.
BOOL CALLBACK AddMonitor(HMONITOR /*monitor*/, HDC /*dc*/, LPRECT place, LPARAM list) {
  if (place->left != 0 || place->top != 0) {
    reinterpret_cast<std::vector<PixelRect>*>(list)->push_back(FromRect(*place));
  }
  return TRUE;
}

/// The wish to end stays in the thread's queue and would end the next loop too.
void ForgetQuit() {
  MSG message{};
  PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
}

std::unique_ptr<Canvas> CopyOf(const Win32Canvas& source, const PixelRect& part,
                               const std::shared_ptr<DrawingTools>& tools) {
  auto copy = std::make_unique<MemoryCanvas>(part.Size(), tools);
  copy->DrawCanvas(source, part, {0, 0});
  return copy;
}

/// While one of ours holds a press, the pointer is ours wherever it is.
bool PointerIsOurs() {
  if (GetCapture() != nullptr) return true;
  POINT at{};
  if (GetCursorPos(&at) == 0) return false;
  const HWND window = WindowFromPoint(at);
  return window != nullptr && GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId();
}

}  // namespace

Win32WindowSystem::~Win32WindowSystem() {
  posts_->Close();
  if (quit_) ForgetQuit();
}

std::unique_ptr<forms::WindowPeer> Win32WindowSystem::CreatePeer(const forms::PeerSpec& wanted,
                                                                 forms::WindowEvents& events) {
  auto window = std::make_shared<Win32Window>(*this, wanted.Kind);
  if (!window->Create(wanted)) return nullptr;
  window->Tell(&events);
  return std::make_unique<Win32Peer>(*this, std::move(window));
}

forms::FrameMargins Win32WindowSystem::MarginsOf(forms::FrameStyle frame, bool menuBar,
                                                 int dpi) const {
  if (frame == forms::FrameStyle::None) return {};
  RECT rect{};
  AddFrame(rect, FrameStyleOf(frame), menuBar, dpi);
  return {static_cast<int>(-rect.left), static_cast<int>(-rect.top), static_cast<int>(rect.right),
          static_cast<int>(rect.bottom)};
}

std::unique_ptr<Canvas> Win32WindowSystem::CreateCanvas(PixelSize size) {
  return std::make_unique<MemoryCanvas>(size, tools_);
}

forms::WindowPicture Win32WindowSystem::PictureOfWindow(WindowId window) {
  const HWND handle = ToHwnd(window);
  RECT place{};
  if (IsWindowVisible(handle) == 0 || IsIconic(handle) != 0 || GetWindowRect(handle, &place) == 0) {
    return {};
  }
  const PixelRect bounds = FromRect(place);
  if (bounds.IsEmpty()) return {};
  // The inside of a form is its whole window.
  const ScreenCanvas shown(handle, bounds.Size(), tools_);
  return {CopyOf(shown, RectAt({0, 0}, bounds.Size()), tools_), bounds};
}

std::unique_ptr<Canvas> Win32WindowSystem::PictureOfScreen(const PixelRect& part) {
  if (part.IsEmpty()) return nullptr;
  const ScreenCanvas screen(nullptr, ScreenSize(), tools_);
  return CopyOf(screen, part, tools_);
}

PixelSize Win32WindowSystem::MeasureText(std::string_view text, const ScaledFont& font) {
  return tools_->Fonts.Measure(text, font);
}

Rgb Win32WindowSystem::SystemColor(int index) const { return GetSysColor(index); }

int Win32WindowSystem::DpiAt(const PixelRect& bounds) const { return DpiOfMonitorAt(bounds); }

std::vector<PixelRect> Win32WindowSystem::Monitors() const {
  std::vector<PixelRect> monitors = {RectAt({0, 0}, ScreenSize())};
  EnumDisplayMonitors(nullptr, nullptr, AddMonitor, reinterpret_cast<LPARAM>(&monitors));
  return monitors;
}

PixelSize Win32WindowSystem::ScreenSize() const {
  return {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
}

int Win32WindowSystem::ScreenBits() const {
  const HDC screen = GetDC(nullptr);
  const int bits = GetDeviceCaps(screen, BITSPIXEL);
  ReleaseDC(nullptr, screen);
  return bits;
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
  if (PointerIsOurs()) ShowPointer();
}

void Win32WindowSystem::SetMouseIcon(Picture picture, PixelPoint hotSpot) {
  UniqueCursor before(mouseIcon_.Release());
  if (picture) mouseIcon_ = MakeCursor(*picture, hotSpot);
  // What is on the screen must not be destroyed.
  if (pointer_ == forms::MousePointer::Custom && PointerIsOurs()) ShowPointer();
  if (before && GetCursor() == before.Get()) SetCursor(LoadCursorW(nullptr, IDC_ARROW));
}

void Win32WindowSystem::ShowPointer() const {
  switch (pointer_) {
    case forms::MousePointer::Hourglass:
      SetCursor(LoadCursorW(nullptr, IDC_WAIT));
      break;
    case forms::MousePointer::NoDrop:
      SetCursor(LoadCursorW(nullptr, IDC_NO));
      break;
    case forms::MousePointer::Custom:
      SetCursor(mouseIcon_ ? mouseIcon_.Get() : LoadCursorW(nullptr, IDC_ARROW));
      break;
    case forms::MousePointer::Default:
      SetCursor(LoadCursorW(nullptr, IDC_ARROW));
      break;
  }
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

// The paint messages go straight to the windows: the queue is not asked for anything.
void Win32WindowSystem::PaintWaiting() { EnumThreadWindows(GetCurrentThreadId(), &PaintWindow, 0); }

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
