#pragma once

#include <map>
#include <string>
#include <vector>

#include "base/Edge.h"
#include "platform/AppBars.h"

namespace corvelle::sim {

class SimDesktop;

/// Whether another program's bar stands outside or inside of those that are there.
enum class BarPlacing { First, Last };

/// The shell's service for bars on the simulated desktop: the program's own bar and those of other
/// programs, a task bar when a test puts one up, and the room that they leave. As on Windows a bar
/// that is told its place may be moved away from others at the same edge, those at the top and at
/// the bottom cut the room of those at the sides, and whoever keeps room makes the shell tell all
/// bars, the asking one too, before the message returns.
class SimAppBars final : public AppBars {
 public:
  explicit SimAppBars(SimDesktop& desktop) : desktop_(desktop) {}

  std::uintptr_t Message(std::uint32_t message, AppBarRecord& data) override;

  // Other programs.
  /// A task bar along the whole edge; it keeps its room before all bars. Its window is visible.
  WindowId AddTaskBar(Edge at, int thickness);
  /// Another program's bar that keeps room at an edge: outside of those that stand there, as one
  /// that came before them, or inside. Bars are told.
  WindowId AddOtherBar(Edge at, int thickness, BarPlacing placing = BarPlacing::First);
  void RemoveOtherBar(WindowId bar);
  /// Another program's window claims the edge for hiding; none: gives it up.
  void ClaimAutoHide(Edge at, WindowId window);
  /// Tells every bar that a full-screen program has come or gone.
  void SetFullScreen(bool there);
  /// Tells every bar that bars have moved.
  void TellBars();
  /// The shell ended and came up anew: it knows no bar and no claim any more.
  void StartAnew() {
    bars_.clear();
    hidden_.clear();
  }

  // Asking.
  /// The screen less what bars keep.
  [[nodiscard]] PixelRect WorkArea() const;
  [[nodiscard]] bool IsRegistered(WindowId window) const { return Find(window) != nullptr; }
  /// What the bar keeps of the screen; empty for nothing.
  [[nodiscard]] PixelRect KeptBy(WindowId window) const;
  /// The window that hides at an edge, none for none.
  [[nodiscard]] WindowId HiddenBar(Edge at) const;
  /// Messages of the program since the log was cleared, one line each: "new", "remove",
  /// "querypos 2", "setpos 2 976,0,1024,768" (as the shell settled it), "activate",
  /// "getautohide 2", "setautohide 2 1".
  [[nodiscard]] const std::vector<std::string>& Log() const noexcept { return log_; }
  void ClearLog() { log_.clear(); }

 private:
  struct Bar {
    WindowId Window = kNoWindow;
    std::uint32_t Callback = 0;
    std::uint32_t Edge = 0;
    PixelRect Kept;
    bool IsTaskBar = false;
  };

  [[nodiscard]] const Bar* Find(WindowId window) const;
  [[nodiscard]] Bar* Find(WindowId window);
  [[nodiscard]] PixelRect Screen() const;
  /// Moves a wished rectangle away from what others keep.
  [[nodiscard]] PixelRect Settle(WindowId asking, std::uint32_t edge, PixelRect rc) const;
  WindowId AddBar(Edge at, int thickness, bool isTaskBar);
  void Tell(std::uintptr_t what, std::intptr_t lParam);
  std::uintptr_t Register(const AppBarRecord& data);
  std::uintptr_t Remove(WindowId window);
  std::uintptr_t SetPos(AppBarRecord& data);
  std::uintptr_t SetAutoHide(const AppBarRecord& data);

  SimDesktop& desktop_;
  std::vector<Bar> bars_;  // in the order in which they took their places
  std::map<std::uint32_t, WindowId> hidden_;
  std::vector<std::string> log_;
};

}  // namespace corvelle::sim
