#pragma once

#include <functional>
#include <map>
#include <memory>

#include "forms/WindowSystem.h"
#include "win32/Sys.h"

namespace corvelle::win32 {

/// The timers of the program, on a window that nobody sees.
class Win32Timers {
 public:
  Win32Timers();
  Win32Timers(const Win32Timers&) = delete;
  Win32Timers& operator=(const Win32Timers&) = delete;
  ~Win32Timers();

  /// See forms::WindowSystem. An interval below the system's shortest (10 ms) is made that long.
  forms::TimerId Start(int milliseconds, std::function<void()> tick);
  void Stop(forms::TimerId timer);

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam,
                                    LPARAM lParam) noexcept;
  void Tick(forms::TimerId timer);

  HWND window_ = nullptr;
  forms::TimerId lastId_ = 0;
  // Held by pointers, since a tick may stop its own timer.
  std::map<forms::TimerId, std::shared_ptr<const std::function<void()>>> ticks_;
};

}  // namespace corvelle::win32
