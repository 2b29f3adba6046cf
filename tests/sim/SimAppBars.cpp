#include "sim/SimAppBars.h"

#include <algorithm>
#include <utility>

#include "base/Numbers.h"
#include "sim/SimDesktop.h"

namespace corvelle::sim {
namespace {

constexpr std::uint32_t kLeft = 0;
constexpr std::uint32_t kTop = 1;
constexpr std::uint32_t kRight = 2;
constexpr std::uint32_t kBottom = 3;

constexpr std::uintptr_t kPositionChanged = 1;
constexpr std::uintptr_t kFullScreenProgram = 2;

std::uint32_t NumberOf(Edge at) {
  switch (at) {
    case Edge::Left:
      return kLeft;
    case Edge::Right:
      return kRight;
    case Edge::Bottom:
      return kBottom;
    case Edge::Top:
      break;
  }
  return kTop;
}

bool IsUpright(std::uint32_t edge) { return edge == kLeft || edge == kRight; }

/// Cuts off what lies outside of a bar at an edge.
void CutAt(std::uint32_t edge, const PixelRect& kept, PixelRect& rc) {
  switch (edge) {
    case kLeft:
      rc.left = std::max(rc.left, kept.right);
      break;
    case kTop:
      rc.top = std::max(rc.top, kept.bottom);
      break;
    case kRight:
      rc.right = std::min(rc.right, kept.left);
      break;
    default:
      rc.bottom = std::min(rc.bottom, kept.top);
  }
}

std::string Text(const PixelRect& r) {
  return std::to_string(r.left) + ',' + std::to_string(r.top) + ',' + std::to_string(r.right) +
         ',' + std::to_string(r.bottom);
}

}  // namespace

const SimAppBars::Bar* SimAppBars::Find(WindowId window) const {
  const auto found = std::find_if(bars_.begin(), bars_.end(),
                                  [window](const Bar& bar) { return bar.Window == window; });
  return found == bars_.end() ? nullptr : &*found;
}

SimAppBars::Bar* SimAppBars::Find(WindowId window) {
  return const_cast<Bar*>(std::as_const(*this).Find(window));
}

PixelRect SimAppBars::Screen() const {
  const forms::ScreenInfo screen = desktop_.Screen();
  return {0, 0, RoundToInt(static_cast<double>(screen.Width / screen.TwipsPerPixelX)),
          RoundToInt(static_cast<double>(screen.Height / screen.TwipsPerPixelY))};
}

PixelRect SimAppBars::WorkArea() const {
  PixelRect area = Screen();
  for (const Bar& bar : bars_) {
    if (!bar.Kept.IsEmpty()) CutAt(bar.Edge, bar.Kept, area);
  }
  return area;
}

PixelRect SimAppBars::KeptBy(WindowId window) const {
  const Bar* const bar = Find(window);
  return bar != nullptr ? bar->Kept : PixelRect{};
}

WindowId SimAppBars::HiddenBar(Edge at) const {
  const auto found = hidden_.find(NumberOf(at));
  // A window that is gone holds no edge.
  if (found == hidden_.end() || desktop_.Look(found->second) == nullptr) return kNoWindow;
  return found->second;
}

PixelRect SimAppBars::Settle(WindowId asking, std::uint32_t edge, PixelRect rc) const {
  rc = Intersect(rc, Screen());
  for (const Bar& bar : bars_) {
    // Those that come later make way themselves.
    if (bar.Window == asking && !bar.Kept.IsEmpty()) break;
    if (bar.Window == asking || bar.Kept.IsEmpty()) continue;
    const bool cuts = bar.Edge == edge || (IsUpright(edge) && !IsUpright(bar.Edge)) ||
                      (bar.IsTaskBar && IsUpright(edge) != IsUpright(bar.Edge));
    if (cuts) CutAt(bar.Edge, bar.Kept, rc);
  }
  return rc;
}

std::uintptr_t SimAppBars::Message(std::uint32_t message, AppBarRecord& data) {
  const std::string edge = std::to_string(data.uEdge);
  switch (message) {
    case abm::New:
      log_.emplace_back("new");
      return Register(data);
    case abm::Remove:
      log_.emplace_back("remove");
      return Remove(data.hWnd);
    case abm::QueryPos:
      log_.push_back("querypos " + edge);
      data.rc = Settle(data.hWnd, data.uEdge, data.rc);
      return 1;
    case abm::SetPos:
      return SetPos(data);
    case abm::Activate:
      log_.emplace_back("activate");
      return 1;
    case abm::GetAutoHideBar: {
      log_.push_back("getautohide " + edge);
      const auto found = hidden_.find(data.uEdge);
      const bool held = found != hidden_.end() && desktop_.Look(found->second) != nullptr;
      return held ? found->second : 0;
    }
    case abm::SetAutoHideBar:
      log_.push_back("setautohide " + edge + ' ' + std::to_string(data.lParam));
      return SetAutoHide(data);
    default:
      return 0;
  }
}

std::uintptr_t SimAppBars::Register(const AppBarRecord& data) {
  if (Find(data.hWnd) != nullptr) return 0;
  bars_.push_back({.Window = data.hWnd, .Callback = data.uCallbackMessage});
  return 1;
}

std::uintptr_t SimAppBars::Remove(WindowId window) {
  const Bar* const bar = Find(window);
  if (bar == nullptr) return 0;
  const bool kept = !bar->Kept.IsEmpty();
  std::erase_if(bars_, [window](const Bar& at) { return at.Window == window; });
  if (kept) TellBars();
  return 1;
}

std::uintptr_t SimAppBars::SetPos(AppBarRecord& data) {
  Bar* const bar = Find(data.hWnd);
  if (bar == nullptr) return 0;
  const PixelSize size = data.rc.Size();
  const PixelRect settled = Settle(data.hWnd, data.uEdge, data.rc);
  // Pushed away from its edge a bar keeps its thickness.
  switch (data.uEdge) {
    case kLeft:
      data.rc = {settled.left, settled.top, settled.left + size.width, settled.bottom};
      break;
    case kTop:
      data.rc = {settled.left, settled.top, settled.right, settled.top + size.height};
      break;
    case kRight:
      data.rc = {settled.right - size.width, settled.top, settled.right, settled.bottom};
      break;
    default:
      data.rc = {settled.left, settled.bottom - size.height, settled.right, settled.bottom};
  }
  log_.push_back("setpos " + std::to_string(data.uEdge) + ' ' + Text(data.rc));
  const bool changed = bar->Kept != data.rc || bar->Edge != data.uEdge;
  bar->Edge = data.uEdge;
  bar->Kept = data.rc;
  if (changed) TellBars();
  return 1;
}

std::uintptr_t SimAppBars::SetAutoHide(const AppBarRecord& data) {
  const auto found = hidden_.find(data.uEdge);
  const bool held = found != hidden_.end() && desktop_.Look(found->second) != nullptr;
  const bool own = held && found->second == data.hWnd;
  if (data.lParam == 0) {
    if (own) hidden_.erase(data.uEdge);
    return own ? 1 : 0;
  }
  if (held && !own) return 0;
  hidden_[data.uEdge] = data.hWnd;
  return 1;
}

void SimAppBars::Tell(std::uintptr_t what, std::intptr_t lParam) {
  const std::vector<Bar> all = bars_;
  for (const Bar& bar : all) {
    if (bar.Callback != 0) desktop_.Send(bar.Window, bar.Callback, what, lParam);
  }
}

void SimAppBars::TellBars() { Tell(kPositionChanged, 0); }

void SimAppBars::SetFullScreen(bool there) { Tell(kFullScreenProgram, there ? 1 : 0); }

// Other programs.

WindowId SimAppBars::AddBar(Edge at, int thickness, bool isTaskBar) {
  PixelRect rc = isTaskBar ? Screen() : Settle(kNoWindow, NumberOf(at), Screen());
  switch (at) {
    case Edge::Left:
      rc.right = rc.left + thickness;
      break;
    case Edge::Right:
      rc.left = rc.right - thickness;
      break;
    case Edge::Bottom:
      rc.top = rc.bottom - thickness;
      break;
    case Edge::Top:
      rc.bottom = rc.top + thickness;
      break;
  }
  const WindowId window =
      desktop_.AddOtherWindow({.Title = isTaskBar ? "" : "A bar",
                               .ClassName = isTaskBar ? "Shell_TrayWnd" : "OtherBar",
                               .Bounds = rc,
                               .Topmost = true});
  const Bar bar{.Window = window, .Edge = NumberOf(at), .Kept = rc, .IsTaskBar = isTaskBar};
  bars_.insert(isTaskBar ? bars_.begin() : bars_.end(), bar);
  return window;
}

WindowId SimAppBars::AddTaskBar(Edge at, int thickness) {
  const WindowId window = AddBar(at, thickness, true);
  TellBars();
  return window;
}

WindowId SimAppBars::AddOtherBar(Edge at, int thickness, BarPlacing placing) {
  if (placing == BarPlacing::Last) {
    const WindowId window = AddBar(at, thickness, false);
    TellBars();
    return window;
  }
  // It takes the outermost place that the task bar leaves.
  std::vector<Bar> later;
  for (auto bar = bars_.begin(); bar != bars_.end();) {
    if (bar->IsTaskBar) {
      ++bar;
    } else {
      later.push_back(*bar);
      bar = bars_.erase(bar);
    }
  }
  const WindowId window = AddBar(at, thickness, false);
  bars_.insert(bars_.end(), later.begin(), later.end());
  TellBars();
  return window;
}

void SimAppBars::RemoveOtherBar(WindowId bar) {
  std::erase_if(bars_, [bar](const Bar& at) { return at.Window == bar; });
  desktop_.CloseOther(bar);
  TellBars();
}

void SimAppBars::ClaimAutoHide(Edge at, WindowId window) {
  if (window == kNoWindow) {
    hidden_.erase(NumberOf(at));
  } else {
    hidden_[NumberOf(at)] = window;
  }
}

}  // namespace corvelle::sim
