#pragma once

#include <cstdint>

#include "base/Geometry.h"
#include "platform/WindowId.h"

namespace corvelle {

/// Messages to the shell about application desktop toolbars, by their numbers in Windows.
namespace abm {
inline constexpr std::uint32_t New = 0;
inline constexpr std::uint32_t Remove = 1;
inline constexpr std::uint32_t QueryPos = 2;
inline constexpr std::uint32_t SetPos = 3;
inline constexpr std::uint32_t Activate = 6;
inline constexpr std::uint32_t GetAutoHideBar = 7;
inline constexpr std::uint32_t SetAutoHideBar = 8;
}  // namespace abm

/// What the program and the shell tell each other with such a message. The rectangle is pixels of
/// the screen.
struct AppBarRecord {
  WindowId hWnd = kNoWindow;
  std::uint32_t uCallbackMessage = 0;
  std::uint32_t uEdge = 0;  // 0 left, 1 top, 2 right, 3 bottom
  PixelRect rc;
  std::intptr_t lParam = 0;
};

/// The shell's service for bars at the edges of the screen.
class AppBars {
 public:
  virtual ~AppBars() = default;

  /// Sends a message and gives the shell's answer: 0 for no, or a window's handle. The shell may
  /// change `data`, and may send callback messages to the bars before this returns.
  virtual std::uintptr_t Message(std::uint32_t message, AppBarRecord& data) = 0;
};

}  // namespace corvelle
