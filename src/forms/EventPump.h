#pragma once

namespace corvelle::forms {

class WindowSystem;

/// Lets events run from inside a routine, never inside itself.
class EventPump {
 public:
  explicit EventPump(WindowSystem& windows) : windows_(windows) {}
  EventPump(const EventPump&) = delete;
  EventPump& operator=(const EventPump&) = delete;

  /// Lets waiting events run. Whoever calls it must be ready for anything to have happened. Called
  /// from what another call of it lets run, it only shows what waits to be painted: that other call
  /// goes on with the events, and however quickly they come, there is never a third.
  void DoEvents();

 private:
  WindowSystem& windows_;
  bool running_ = false;
};

}  // namespace corvelle::forms
