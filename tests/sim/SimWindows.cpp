// Making, showing, ordering and activating windows.

#include <algorithm>
#include <string>
#include <utility>

#include "sim/SimDesktop.h"
#include "sim/SimPeer.h"

namespace corvelle::sim {

namespace {

const char* NameOf(forms::ShowKind kind) {
  switch (kind) {
    case forms::ShowKind::Hidden:
      return "Hidden";
    case forms::ShowKind::Normal:
      return "Normal";
    case forms::ShowKind::NoActivate:
      return "NoActivate";
    case forms::ShowKind::Minimized:
      return "Minimized";
    case forms::ShowKind::Restored:
      return "Restored";
  }
  return "";
}

// What a size message says about the window in its first parameter.
constexpr std::uintptr_t kSizeRestored = 0;
constexpr std::uintptr_t kSizeMinimized = 1;

std::string Numbers(const PixelRect& r) {
  return std::to_string(r.left) + ',' + std::to_string(r.top) + ',' + std::to_string(r.right) +
         ',' + std::to_string(r.bottom);
}

}  // namespace

// Making and destroying.

WindowId SimDesktop::Add(SimWindow window) {
  const WindowId id = ++lastId_;
  window.Id = id;
  window.Told = window.Bounds;
  window.Margins = MarginsOf(window.Frame, !window.MenuBar.empty(), window.Dpi);
  if (window.Own) window.Content = std::make_shared<SimCanvas>(InsideOf(window));
  const WindowId parent = window.Parent;
  windows_.emplace(id, std::move(window));
  if (parent == kNoWindow) {
    order_.push_back(id);
    Raise(id);
  } else if (SimWindow* above = Get(parent)) {
    above->Children.insert(above->Children.begin(), id);
  }
  return id;
}

WindowId SimDesktop::AddOwn(const forms::PeerSpec& wanted, forms::WindowEvents& events) {
  if (std::exchange(refuseWindow_, false)) return kNoWindow;
  const WindowId id = Add({.Parent = wanted.Parent != nullptr ? wanted.Parent->Id() : kNoWindow,
                           .Owner = wanted.Owner != nullptr ? wanted.Owner->Id() : kNoWindow,
                           .Events = &events,
                           .Own = true,
                           .Kind = wanted.Kind,
                           .TabStop = wanted.TabStop,
                           .ClassName = wanted.ClassName,
                           .Bounds = wanted.Bounds,
                           .Frame = wanted.Frame,
                           .MinimizeBox = wanted.MinimizeBox,
                           .Dpi = wanted.Dpi,
                           .InTaskbar = wanted.InTaskbar,
                           .HasOwner = wanted.Owner != nullptr});
  Note("create", *Get(id));
  return id;
}

std::unique_ptr<forms::WindowPeer> SimDesktop::CreatePeer(const forms::PeerSpec& wanted,
                                                          forms::WindowEvents& events) {
  const WindowId id = AddOwn(wanted, events);
  return id != kNoWindow ? std::make_unique<SimPeer>(*this, id) : nullptr;
}

void SimDesktop::Destroy(WindowId window) {
  SimWindow* at = Get(window);
  if (at == nullptr) return;
  Note("destroy", *at);
  // From here on it is told nothing, and nobody finds it.
  at->Events = nullptr;
  at->Control = nullptr;
  at->Visible = false;
  while (!at->Children.empty()) Destroy(at->Children.back());
  WindowGone(window);
  std::erase(order_, window);
  if (SimWindow* above = Get(Get(window)->Parent)) std::erase(above->Children, window);
  windows_.erase(window);
}

/// A window is not visible any more: the press that it had and its place as the active one go.
void SimDesktop::WindowGone(WindowId window) {
  windowsMoved_ = true;
  ReleaseMouse(window);
  if (focus_ == window) focus_ = Look(window)->Parent;
  if (foreground_ == window) ActivateAnother(window);
}

// Bounds.

void SimDesktop::SetBounds(WindowId window, const PixelRect& bounds) {
  SimWindow* at = Get(window);
  if (at == nullptr) return;
  Note("bounds", *at, Numbers(bounds));
  if (at->Bounds == bounds) return;
  at->Bounds = bounds;
  windowsMoved_ = true;
  if (at->Content && at->Content->Size() != InsideOf(*at)) at->Content->Resize(InsideOf(*at));
  // A window in the task bar tells where it is when it comes back.
  if (!at->Minimized) TellBounds(window);
}

void SimDesktop::TellBounds(WindowId window) {
  SimWindow* at = Get(window);
  if (at->Events == nullptr || at->Told == at->Bounds) return;
  const PixelRect bounds = at->Bounds;
  const bool sized = at->Told.Size() != bounds.Size();
  const bool moved = at->Told.TopLeft() != bounds.TopLeft();
  at->Told = bounds;
  std::intptr_t answer = 0;
  if (moved) {
    const auto place =
        static_cast<std::intptr_t>((static_cast<std::uint32_t>(bounds.top) << 16) |
                                   (static_cast<std::uint32_t>(bounds.left) & 0xFFFF));
    FirstToProcedure(window, forms::message::Move, 0, place, answer);
  }
  if (sized) {
    const auto size =
        static_cast<std::intptr_t>((static_cast<std::uint32_t>(bounds.Height()) << 16) |
                                   (static_cast<std::uint32_t>(bounds.Width()) & 0xFFFF));
    FirstToProcedure(window, forms::message::Size, 0, size, answer);
  }
  at = Get(window);
  if (at != nullptr && at->Events != nullptr) at->Events->OnMoved(bounds);
}

// Showing.

void SimDesktop::Show(WindowId window, forms::ShowKind kind) {
  using forms::ShowKind;
  SimWindow* at = Get(window);
  if (at == nullptr) return;
  Note(kind == ShowKind::Hidden ? "hide" : "show", *at,
       kind == ShowKind::Hidden ? "" : NameOf(kind));
  if (kind == ShowKind::Hidden) {
    HideWindow(window);
    return;
  }
  const bool wasShown = IsShown(window);
  at->Visible = true;
  windowsMoved_ = true;
  if (at->Parent != kNoWindow) {
    if (!wasShown) InvalidateTree(window);
    return;
  }
  if (kind == ShowKind::Minimized) {
    at->Minimized = true;
    at->RestoresMaximized = at->RestoresMaximized || at->Maximized;
    TellSize(window, kSizeMinimized);
    if (Look(window) != nullptr) WindowGone(window);
    return;
  }
  if (kind == ShowKind::Restored) {
    at->RestoresMaximized = false;
    if (std::exchange(at->Minimized, false)) {
      TellSize(window, kSizeRestored);
      // What it does then may hide it again, or end it.
      at = Get(window);
      if (at == nullptr || !at->Visible) return;
    }
  }
  Raise(window);
  if (!wasShown) InvalidateTree(window);
  if (!at->Minimized) TellBounds(window);
  if (kind == ShowKind::Normal || kind == ShowKind::Restored) RequestForeground(window);
}

void SimDesktop::TellSize(WindowId window, std::uintptr_t how) {
  const SimWindow* at = Look(window);
  if (at == nullptr || at->Events == nullptr) return;
  const PixelSize size = how == kSizeMinimized ? PixelSize{} : at->Bounds.Size();
  const auto place = static_cast<std::intptr_t>((static_cast<std::uint32_t>(size.height) << 16) |
                                                (static_cast<std::uint32_t>(size.width) & 0xFFFF));
  std::intptr_t answer = 0;
  FirstToProcedure(window, forms::message::Size, how, place, answer);
}

void SimDesktop::HideWindow(WindowId window) {
  SimWindow* at = Get(window);
  if (at == nullptr || !at->Visible) return;
  at->Visible = false;
  at->Dirty = {};
  WindowGone(window);
}

void SimDesktop::SetWindowPos(WindowId window, forms::InsertAfter after, unsigned flags) {
  SimWindow* at = Get(window);
  if (at == nullptr) return;
  Note("setwindowpos", *at, std::to_string(static_cast<int>(after)) + ' ' + std::to_string(flags));
  switch (after) {
    case forms::InsertAfter::Top:
      Raise(window);
      break;
    case forms::InsertAfter::Bottom:
      Lower(window);
      break;
    case forms::InsertAfter::Topmost:
      at->Topmost = true;
      Raise(window);
      break;
    case forms::InsertAfter::NotTopmost:
      if (at->Topmost) {
        at->Topmost = false;
        Raise(window);
      }
      break;
  }
  if ((flags & forms::swp::HideBit) != 0) {
    HideWindow(window);
    return;
  }
  if ((flags & forms::swp::ShowBit) != 0 && !at->Visible) {
    at->Visible = true;
    InvalidateTree(window);
  }
  if ((flags & forms::swp::KeepActive) == 0 && at->Visible) RequestForeground(window);
}

// Order. The topmost windows come before all others.

void SimDesktop::Raise(WindowId window) {
  const SimWindow* at = Look(window);
  if (at == nullptr || at->Parent != kNoWindow) return;
  windowsMoved_ = true;
  std::erase(order_, window);
  auto place = order_.begin();
  if (!at->Topmost) {
    place = std::find_if(order_.begin(), order_.end(),
                         [this](WindowId other) { return !Look(other)->Topmost; });
  }
  order_.insert(place, window);
}

void SimDesktop::Lower(WindowId window) {
  SimWindow* at = Get(window);
  if (at == nullptr || at->Parent != kNoWindow) return;
  at->Topmost = false;
  windowsMoved_ = true;
  std::erase(order_, window);
  const bool aboveDesktop = !order_.empty() && order_.back() == desktopWindow_;
  order_.insert(aboveDesktop ? order_.end() - 1 : order_.end(), window);
}

void SimDesktop::SetZOrder(WindowId window, forms::ZPlace place) {
  SimWindow* at = Get(window);
  if (at == nullptr) return;
  const bool front = place == forms::ZPlace::Front;
  Note("zorder", *at, front ? "Front" : "Back");
  if (SimWindow* above = Get(at->Parent)) {
    std::erase(above->Children, window);
    above->Children.insert(front ? above->Children.begin() : above->Children.end(), window);
  } else if (front) {
    Raise(window);
  } else {
    Lower(window);
  }
}

// Activation.

void SimDesktop::RequestForeground(WindowId window) {
  const SimWindow* at = Look(window);
  if (at == nullptr) return;
  // Windows keeps a program that is not in the foreground from pushing in, when it thinks so.
  const SimWindow* front = Look(foreground_);
  const bool mayChange = !at->Own || !foregroundLocked_ || (front != nullptr && front->Own);
  if (mayChange) Activate(TopOf(window));
}

void SimDesktop::Activate(WindowId window) {
  if (window == kNoWindow) return;
  if (window != desktopWindow_) Raise(window);
  if (foreground_ == window) return;
  const WindowId before = foreground_;
  foreground_ = window;
  const SimWindow* at = Look(window);
  focus_ = at->Own && at->Enabled ? FocusOf(*at) : kNoWindow;
  TellActivation(before, false);
  if (foreground_ == window) TellActivation(window, true);
  TellFocus();
}

void SimDesktop::TellActivation(WindowId window, bool active) {
  const SimWindow* at = Look(window);
  if (at != nullptr && at->Events != nullptr) at->Events->OnActivated(active);
}

bool SimDesktop::CanBeActive(WindowId window) const {
  return IsShown(window) && Look(window)->Enabled;
}

/// The active window went away: its owner takes its place, else the next window below it that can,
/// else the first from the top. Whose program that is does not count.
void SimDesktop::ActivateAnother(WindowId than) {
  const auto may = [this, than](WindowId id) { return id != than && CanBeActive(id); };
  WindowId next = Look(than)->Owner;
  if (!may(next)) {
    auto found = std::find_if(std::find(order_.begin(), order_.end(), than), order_.end(), may);
    if (found == order_.end()) found = std::find_if(order_.begin(), order_.end(), may);
    next = found != order_.end() ? *found : kNoWindow;
  }
  if (next != kNoWindow) {
    Activate(next);
  } else {
    foreground_ = kNoWindow;
    focus_ = kNoWindow;
    TellActivation(than, false);
    TellFocus();
  }
}

/// A window that is disabled stays the active one, but has neither the keyboard nor the mouse.
void SimDesktop::SetEnabled(WindowId window, bool enabled) {
  Get(window)->Enabled = enabled;
  if (enabled) return;
  ReleaseMouse(window);
  if (focus_ == window) focus_ = kNoWindow;
  TellFocus();
}

/// Ends the hold of a window or its children on the mouse.
void SimDesktop::ReleaseMouse(WindowId window) {
  for (WindowId at = capture_; at != kNoWindow;
       at = Look(at) != nullptr ? Look(at)->Parent : kNoWindow) {
    if (at != window) continue;
    LoseCapture();
    return;
  }
}

}  // namespace corvelle::sim
