#pragma once

#include <functional>
#include <memory>

#include "platform/Starter.h"

namespace corvelle::win32 {

class Win32WindowSystem;

/// Each start on a thread with an apartment of its own. One that the system does not let go is
/// given up at the end of the program.
class Win32Starter final : public Starter {
 public:
  /// The window system outlives the starter.
  explicit Win32Starter(Win32WindowSystem& windows);

  void Start(Work work, std::function<void()> done) override;

 private:
  struct Home;
  std::shared_ptr<Home> home_;
};

}  // namespace corvelle::win32
