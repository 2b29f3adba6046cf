#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/Geometry.h"
#include "platform/WindowId.h"

namespace corvelle {

/// The windows on the desktop, of all programs. A window can vanish between two calls: every
/// operation on one that is gone does nothing and answers as if it had no text and no size.
class DesktopWindows {
 public:
  virtual ~DesktopWindows() = default;

  /// All top-level windows, hidden ones too, from the top of the Z order down.
  [[nodiscard]] virtual std::vector<WindowId> TopLevel() const = 0;
  [[nodiscard]] virtual std::string Text(WindowId window) const = 0;
  [[nodiscard]] virtual std::string ClassName(WindowId window) const = 0;
  [[nodiscard]] virtual bool IsVisible(WindowId window) const = 0;
  [[nodiscard]] virtual bool IsMinimized(WindowId window) const = 0;
  /// True for a window that belongs to another one and stays above it.
  [[nodiscard]] virtual bool HasOwner(WindowId window) const = 0;

  /// True if a minimized window will come back maximized.
  [[nodiscard]] virtual bool RestoresMaximized(WindowId window) const = 0;
  /// Brings a minimized window back at its normal size.
  virtual void RestoreMinimized(WindowId window) = 0;
  virtual void ShowMaximized(WindowId window) = 0;

  /// Sends a message and waits for its answer, 2 s at most; nothing when none came.
  virtual std::optional<std::intptr_t> Send(WindowId window, std::uint32_t message,
                                            std::uintptr_t wParam, std::intptr_t lParam) = 0;

  /// Makes the window of another thread active and foremost: joins the two input queues for the
  /// length of the call, as the system wants it.
  virtual void BringForward(WindowId window) = 0;

  /// The innermost window at a point of the screen, child windows included; none outside.
  [[nodiscard]] virtual WindowId WindowAt(PixelPoint at) const noexcept = 0;
  /// The active window if it belongs to this program's thread, else none.
  [[nodiscard]] virtual WindowId ActiveWindow() const noexcept = 0;
  [[nodiscard]] virtual WindowId ForegroundWindow() const noexcept = 0;

  /// Makes every visible top-level window of the program paint what it still owes. Those of other
  /// programs are left alone.
  virtual void PaintVisibleWindows() = 0;
};

}  // namespace corvelle
