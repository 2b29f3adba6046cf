#pragma once

#include <cstdint>
#include <string>

#include "platform/WindowId.h"

namespace corvelle {

/// An icon in the task bar's notification area. What the mouse does on it comes to `Window` as
/// message `CallbackMessage` with the mouse's message as its second parameter.
struct TrayIcon {
  WindowId Window = kNoWindow;
  std::uint32_t Id = 1;
  std::uint32_t CallbackMessage = 0;
  /// The file whose first small icon is shown. When it has none the running program's own icon is,
  /// and without that the system's icon for programs.
  std::string IconFile;
  std::string Tip;  // 63 characters of it are shown
};

/// The task bar's notification area.
class TrayIcons {
 public:
  virtual ~TrayIcons() = default;

  /// Keeps no handle. False when there is no task bar to show it, no such window, or when that
  /// icon of that window is there already.
  virtual bool Add(const TrayIcon& icon) = 0;
  /// Does nothing when there is no such icon.
  virtual void Remove(WindowId window, std::uint32_t id) = 0;

  /// The message that every top-level window gets when the task bar is started again, without the
  /// icons that it showed before. 0 when the system has none.
  [[nodiscard]] virtual std::uint32_t TaskbarCreatedMessage() const = 0;
};

}  // namespace corvelle
