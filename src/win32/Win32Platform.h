#pragma once

#include <memory>

#include "forms/WindowSystem.h"
#include "platform/Platform.h"

namespace corvelle::win32 {

/// Windows itself: all services and the window system of this process, made once, on the thread
/// that runs the windows.
class Win32Platform {
 public:
  Win32Platform();
  Win32Platform(const Win32Platform&) = delete;
  Win32Platform& operator=(const Win32Platform&) = delete;
  ~Win32Platform();

  /// Both live as long as this object.
  [[nodiscard]] Platform Services() const;
  [[nodiscard]] forms::WindowSystem& Windows() const;

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace corvelle::win32
