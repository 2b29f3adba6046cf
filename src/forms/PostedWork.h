#pragma once

#include <functional>
#include <mutex>
#include <vector>

namespace corvelle::forms {

/// Work that waits for a turn of the message loop (see WindowSystem::Post). Any thread may add
/// some; the thread of the windows runs it. The owner wakes the loop when it is told to.
class PostedWork {
 public:
  using Work = std::function<void()>;

  /// True when the loop must be woken, so that Run is called. False when it will be anyway, or when
  /// the work was dropped because the queue is closed.
  [[nodiscard]] bool Add(Work work);

  /// Runs what waits now, in its order; called from within that work it runs nothing. True when the
  /// loop must be woken again: more has come meanwhile, and events go between.
  [[nodiscard]] bool Run();

  /// Drops what waits, and all that is added from now on.
  void Close();

 private:
  std::mutex mutex_;
  std::vector<Work> waiting_;
  bool woken_ = false;  // the loop has been woken and has not come to Run yet
  bool closed_ = false;
  bool running_ = false;  // on the thread of the windows only
};

}  // namespace corvelle::forms
