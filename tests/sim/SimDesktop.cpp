#include "sim/SimDesktop.h"

#include <algorithm>

#include "base/Numbers.h"
#include "sim/Complain.h"

namespace corvelle::sim {

namespace {

/// The colours of a classic desktop, by GetSysColor's index.
const std::map<int, Rgb> kClassicColours = {
    {0, 0x00C0C0C0},  {1, 0x00808000},  {2, 0x00800000},  {3, 0x00808080},  {4, 0x00C0C0C0},
    {5, 0x00FFFFFF},  {6, 0x00000000},  {7, 0x00000000},  {8, 0x00000000},  {9, 0x00FFFFFF},
    {10, 0x00C0C0C0}, {11, 0x00C0C0C0}, {12, 0x00808080}, {13, 0x00800000}, {14, 0x00FFFFFF},
    {15, 0x00C0C0C0}, {16, 0x00808080}, {17, 0x00808081}, {18, 0x00000000}, {19, 0x00C0C0C0},
    {20, 0x00FFFFFF}, {21, 0x00000000}, {22, 0x00DFDFDF}, {23, 0x00000000}, {24, 0x00E1FFFF}};

}  // namespace

SimDesktop::SimDesktop(const DesktopOptions& options)
    : options_(options), colours_(kClassicColours) {
  desktopWindow_ = AddOtherWindow({.Title = "Program Manager",
                                   .ClassName = "Progman",
                                   .Bounds = {0, 0, options.Screen.width, options.Screen.height}});
  Lower(desktopWindow_);
  foreground_ = desktopWindow_;
  pointer_ = {options.Screen.width / 2, options.Screen.height / 2};
}

SimDesktop::~SimDesktop() {
  for (const auto& [id, window] : windows_) {
    if (window.Own) Complain("the window " + window.ClassName + " outlives its desktop");
  }
}

// Facts.

std::unique_ptr<Canvas> SimDesktop::CreateCanvas(PixelSize size) {
  return std::make_unique<SimCanvas>(size);
}

PixelSize SimDesktop::MeasureText(std::string_view text, const ScaledFont& font) {
  return TextSize(text, font);
}

Rgb SimDesktop::SystemColor(int index) const {
  const auto found = colours_.find(index);
  if (found != colours_.end()) return found->second;
  Complain("no system colour " + std::to_string(index));
  return 0;
}

int SimDesktop::PrimaryDpi() const noexcept {
  return RoundToInt(1440.0 / static_cast<double>(options_.TwipsPerPixel));
}

int SimDesktop::DpiAt(const PixelRect& bounds) const {
  // An empty place is the pixel at its corner.
  const PixelRect place =
      RectAt(bounds.TopLeft(), {std::max(bounds.Width(), 1), std::max(bounds.Height(), 1)});
  const auto roomOn = [&](const PixelRect& monitor) {
    const PixelRect part = Intersect(place, monitor);
    return part.IsEmpty() ? 0 : part.Width() * part.Height();
  };
  int most = roomOn({0, 0, options_.Screen.width, options_.Screen.height});
  int dpi = PrimaryDpi();
  for (const OtherMonitor& monitor : options_.OtherMonitors) {
    if (roomOn(monitor.Bounds) <= most) continue;
    most = roomOn(monitor.Bounds);
    dpi = monitor.Dpi;
  }
  return dpi;
}

std::vector<PixelRect> SimDesktop::Monitors() const {
  std::vector<PixelRect> monitors = {RectAt({0, 0}, options_.Screen)};
  for (const OtherMonitor& other : options_.OtherMonitors) monitors.push_back(other.Bounds);
  return monitors;
}

forms::ScreenInfo SimDesktop::Screen() const {
  return {.TwipsPerPixelX = options_.TwipsPerPixel,
          .TwipsPerPixelY = options_.TwipsPerPixel,
          .Width = static_cast<float>(options_.Screen.width) * options_.TwipsPerPixel,
          .Height = static_cast<float>(options_.Screen.height) * options_.TwipsPerPixel};
}

// Asking.

SimWindow* SimDesktop::Get(WindowId window) {
  const auto found = windows_.find(window);
  return found == windows_.end() ? nullptr : &found->second;
}

const SimWindow* SimDesktop::Look(WindowId window) const {
  const auto found = windows_.find(window);
  return found == windows_.end() ? nullptr : &found->second;
}

WindowId SimDesktop::Find(std::string_view className) const {
  for (const auto& [id, window] : windows_) {
    if (window.Own && window.ClassName == className) return id;
  }
  return kNoWindow;
}

bool SimDesktop::IsShown(WindowId window) const {
  for (const SimWindow* at = Look(window); at != nullptr; at = Look(at->Parent)) {
    if (!at->Visible || at->Minimized) return false;
    if (at->Parent == kNoWindow) return true;
  }
  return false;
}

PixelRect SimDesktop::BoundsOf(WindowId window) const {
  const SimWindow* at = Look(window);
  if (at == nullptr) return {};
  PixelRect bounds = at->Bounds;
  for (at = Look(at->Parent); at != nullptr; at = Look(at->Parent)) {
    bounds = RectAt({bounds.left + at->Bounds.left + at->Margins.Left,
                     bounds.top + at->Bounds.top + at->Margins.Top},
                    bounds.Size());
  }
  return bounds;
}

int SimDesktop::PaintCount(WindowId window) const {
  const SimWindow* at = Look(window);
  return at != nullptr ? at->PaintCount : 0;
}

PixelRect SimDesktop::LastPainted(WindowId window) const {
  const SimWindow* at = Look(window);
  return at != nullptr ? at->LastPainted : PixelRect{};
}

bool SimDesktop::IsTopmost(WindowId window) const {
  const SimWindow* at = Look(window);
  return at != nullptr && at->Topmost;
}

WindowId SimDesktop::TopOf(WindowId window) const {
  const SimWindow* at = Look(window);
  while (at != nullptr && at->Parent != kNoWindow) at = Look(at->Parent);
  return at != nullptr ? at->Id : kNoWindow;
}

void SimDesktop::Note(std::string_view verb, const SimWindow& window, std::string_view rest) {
  if (!window.Own) return;
  std::string line(verb);
  line += ' ';
  line += window.ClassName;
  if (!rest.empty()) {
    line += ' ';
    line += rest;
  }
  log_.push_back(std::move(line));
}

// Windows of the desktop, for the program.

std::string SimDesktop::Text(WindowId window) const {
  const SimWindow* at = Look(window);
  return at != nullptr ? at->Text : std::string();
}

std::string SimDesktop::ClassName(WindowId window) const {
  const SimWindow* at = Look(window);
  return at != nullptr ? at->ClassName : std::string();
}

bool SimDesktop::IsVisible(WindowId window) const {
  for (const SimWindow* at = Look(window); at != nullptr; at = Look(at->Parent)) {
    if (!at->Visible) return false;
    if (at->Parent == kNoWindow) return true;
  }
  return false;
}

bool SimDesktop::IsMinimized(WindowId window) const {
  const SimWindow* at = Look(window);
  return at != nullptr && at->Minimized;
}

bool SimDesktop::HasOwner(WindowId window) const {
  const SimWindow* at = Look(window);
  return at != nullptr && at->HasOwner;
}

bool SimDesktop::RestoresMaximized(WindowId window) const {
  const SimWindow* at = Look(window);
  return at != nullptr && at->RestoresMaximized;
}

void SimDesktop::RestoreMinimized(WindowId window) {
  SimWindow* at = Get(window);
  if (at == nullptr) return;
  if (at->Hangs) Complain("a window is restored that hangs: the call does not return");
  at->Maximized = false;
  Show(window, forms::ShowKind::Restored);
}

void SimDesktop::ShowMaximized(WindowId window) {
  SimWindow* at = Get(window);
  if (at == nullptr) return;
  if (at->Hangs) Complain("a window is maximized that hangs: the call does not return");
  at->Maximized = true;
  Show(window, forms::ShowKind::Restored);
}

void SimDesktop::BringForward(WindowId window) {
  if (Get(window) == nullptr) return;
  Note("foreground", *Get(window));
  Activate(TopOf(window));
}

WindowId SimDesktop::TopLevelAt(PixelPoint at) const {
  for (const WindowId id : order_) {
    if (IsShown(id) && BoundsOf(id).Contains(at)) return id;
  }
  return kNoWindow;
}

WindowId SimDesktop::ChildAt(WindowId window, PixelPoint at) const {
  const SimWindow* parent = Look(window);
  if (parent == nullptr) return kNoWindow;
  for (const WindowId child : parent->Children) {
    if (IsShown(child) && BoundsOf(child).Contains(at)) return ChildAt(child, at);
  }
  return window;
}

WindowId SimDesktop::WindowAt(PixelPoint at) const noexcept {
  const WindowId top = TopLevelAt(at);
  return top != kNoWindow ? ChildAt(top, at) : kNoWindow;
}

WindowId SimDesktop::ActiveWindow() const noexcept {
  const SimWindow* at = Look(foreground_);
  return at != nullptr && at->Own ? foreground_ : kNoWindow;
}

// Other programs.

WindowId SimDesktop::AddOtherWindow(const OtherWindow& window) {
  return Add({.Parent = window.Parent,
              .ClassName = window.ClassName,
              .Text = window.Title,
              .Bounds = window.Bounds,
              .Visible = window.Visible,
              .Topmost = window.Topmost,
              .Minimized = window.Minimized,
              .Maximized = window.Maximized,
              .RestoresMaximized = window.RestoresMaximized,
              .HasOwner = window.HasOwner,
              .Hangs = window.Hangs});
}

void SimDesktop::MoveOther(WindowId window, const PixelRect& bounds) { SetBounds(window, bounds); }

void SimDesktop::ShowOther(WindowId window, bool visible) {
  Show(window, visible ? forms::ShowKind::NoActivate : forms::ShowKind::Hidden);
}

void SimDesktop::MinimizeOther(WindowId window) { Show(window, forms::ShowKind::Minimized); }

void SimDesktop::CloseOther(WindowId window) { Destroy(window); }

void SimDesktop::TakeForeground(WindowId window) {
  UserEvent([this, window] {
    if (Get(window) != nullptr) Activate(TopOf(window));
  });
}

void SimDesktop::SetAnswer(
    WindowId window,
    std::function<std::intptr_t(std::uint32_t, std::uintptr_t, std::intptr_t)> answer) {
  if (SimWindow* at = Get(window)) at->Answer = std::move(answer);
}

// Screen.

void SimDesktop::SetScreen(PixelSize size, int bits) {
  options_.Screen = size;
  options_.ScreenBits = bits;
  SetBounds(desktopWindow_, {0, 0, size.width, size.height});
  Broadcast(forms::message::DisplayChange, static_cast<std::uintptr_t>(bits),
            static_cast<std::intptr_t>((size.height << 16) | size.width));
}

void SimDesktop::UnplugOtherMonitors() {
  const std::vector<PixelRect> monitors = Monitors();
  for (const WindowId id : order_) {
    const SimWindow* window = Look(id);
    if (window == nullptr || !window->Own || !window->Visible || window->Parent != kNoWindow) {
      continue;
    }
    for (std::size_t i = 1; i < monitors.size(); ++i) {
      if (!Intersect(window->Bounds, monitors[i]).IsEmpty()) {
        Complain("a window is up on a monitor that is unplugged");
      }
    }
  }
  options_.OtherMonitors.clear();
  SetScreen(options_.Screen);
}

void SimDesktop::SetSystemColor(int index, Rgb colour) {
  colours_[index] = colour;
  Broadcast(forms::message::SysColorChange);
  for (const WindowId id : order_) InvalidateTree(id);
}

}  // namespace corvelle::sim
