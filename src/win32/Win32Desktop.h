#pragma once

#include "platform/DesktopWindows.h"

namespace corvelle::win32 {

/// The windows on the user's desktop.
class Win32Desktop final : public DesktopWindows {
 public:
  std::vector<WindowId> TopLevel() const override;
  std::string Text(WindowId window) const override;
  std::string ClassName(WindowId window) const override;
  bool IsVisible(WindowId window) const override;
  bool IsMinimized(WindowId window) const override;
  bool HasOwner(WindowId window) const override;
  bool RestoresMaximized(WindowId window) const override;
  void RestoreMinimized(WindowId window) override;
  void ShowMaximized(WindowId window) override;
  std::optional<std::intptr_t> Send(WindowId window, std::uint32_t message, std::uintptr_t wParam,
                                    std::intptr_t lParam) override;
  void BringForward(WindowId window) override;
  WindowId WindowAt(PixelPoint at) const noexcept override;
  WindowId ActiveWindow() const noexcept override;
  WindowId ForegroundWindow() const noexcept override;
  void PaintVisibleWindows() override;
};

}  // namespace corvelle::win32
