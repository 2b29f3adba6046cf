#pragma once

#include <cstdint>

#include "platform/Canvas.h"

namespace corvelle::forms {

/// Mouse buttons as a press names them; a move carries all that are down.
enum class MouseButton : unsigned { None = 0, Left = 1, Right = 2, Middle = 4 };

constexpr MouseButton operator|(MouseButton a, MouseButton b) noexcept {
  return static_cast<MouseButton>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
}
constexpr bool Has(MouseButton all, MouseButton one) noexcept {
  return (static_cast<unsigned>(all) & static_cast<unsigned>(one)) != 0;
}

/// Keys held down with a press or a key.
struct ShiftState {
  bool Shift = false;
  bool Ctrl = false;
  bool Alt = false;

  friend bool operator==(const ShiftState&, const ShiftState&) = default;
};

/// Virtual-key codes that the program knows.
namespace key {
inline constexpr int Backspace = 8;
inline constexpr int Tab = 9;
inline constexpr int Enter = 13;
inline constexpr int Shift = 16;
inline constexpr int Ctrl = 17;
inline constexpr int Alt = 18;
inline constexpr int Escape = 27;
inline constexpr int Space = 32;
inline constexpr int PageUp = 33;
inline constexpr int PageDown = 34;
inline constexpr int End = 35;
inline constexpr int Home = 36;
inline constexpr int Left = 37;
inline constexpr int Up = 38;
inline constexpr int Right = 39;
inline constexpr int Down = 40;
inline constexpr int Insert = 45;
inline constexpr int Delete = 46;
inline constexpr int Menu = 93;
inline constexpr int F1 = 112;
inline constexpr int F2 = 113;
inline constexpr int F3 = 114;
inline constexpr int F4 = 115;
inline constexpr int F5 = 116;
inline constexpr int F10 = 121;
}  // namespace key

/// A colour of the program: 0x00BBGGRR, or 0x800000nn for the system colour nn, which is looked up
/// at the moment of painting.
using OleColor = std::uint32_t;

namespace color {
inline constexpr OleColor WindowGround = 0x80000005;
inline constexpr OleColor WindowText = 0x80000008;
inline constexpr OleColor Highlight = 0x8000000D;
inline constexpr OleColor HighlightText = 0x8000000E;
inline constexpr OleColor ButtonFace = 0x8000000F;
inline constexpr OleColor ButtonShadow = 0x80000010;
inline constexpr OleColor GrayText = 0x80000011;
inline constexpr OleColor ButtonText = 0x80000012;
inline constexpr OleColor Highlight3D = 0x80000014;
inline constexpr OleColor DarkShadow3D = 0x80000015;
inline constexpr OleColor TooltipText = 0x80000017;
inline constexpr OleColor TooltipFace = 0x80000018;
}  // namespace color

/// Shapes of the pointer. NoDrop says that what is carried cannot be put down here; Custom is the
/// picture given last to WindowSystem::SetMouseIcon.
enum class MousePointer { Default = 0, Hourglass = 11, NoDrop = 12, Custom = 99 };

/// The frame that the system puts around a form: none, one with a caption and a close box, or one
/// that can be sized too.
enum class FrameStyle { None, Fixed, Sizable };

enum class ZPlace { Front, Back };

/// Where SetWindowPos puts a window in the Z order.
enum class InsertAfter { Top = 0, Bottom = 1, Topmost = -1, NotTopmost = -2 };

/// Combinations of flags for SetWindowPos, by their numbers in Windows. None of them moves or
/// sizes.
namespace swp {
inline constexpr unsigned KeepActivation = 19;  // no size, no move, no activation
inline constexpr unsigned Show = 67;            // no size, no move, show
inline constexpr unsigned Hide = 131;           // no size, no move, hide
// The bits of them that matter apart.
inline constexpr unsigned KeepActive = 0x10;
inline constexpr unsigned ShowBit = 0x40;
inline constexpr unsigned HideBit = 0x80;
}  // namespace swp

/// How a window comes up.
enum class ShowKind { Hidden, Normal, NoActivate, Minimized, Restored };

/// Dots of an inch at the scale of 100 %.
inline constexpr int kPlainDpi = 96;

/// The twips of one pixel: 15 at 96 dpi, 12 at 120 dpi.
struct PixelScale {
  float TwipsPerPixelX = 15;
  float TwipsPerPixelY = 15;
};

/// The screen as a window sees it by its own scale: the twips of one pixel (15 at 96 dpi, 12 at 120
/// dpi), and the size of the primary screen in such twips.
struct ScreenInfo {
  float TwipsPerPixelX = 15;
  float TwipsPerPixelY = 15;
  float Width = 0;
  float Height = 0;

  // So that what asks for a scale alone takes a screen too.
  operator PixelScale() const noexcept { return {TwipsPerPixelX, TwipsPerPixelY}; }

  friend bool operator==(const ScreenInfo&, const ScreenInfo&) = default;
};

/// Flags of a message box, by their numbers in Windows, and its answers.
namespace msgbox {
inline constexpr unsigned Ok = 0;
inline constexpr unsigned YesNo = 4;
inline constexpr unsigned IconStop = 0x10;
inline constexpr unsigned IconQuestion = 0x20;
inline constexpr unsigned IconInformation = 0x40;
inline constexpr unsigned OnTop = 0x40000;
inline constexpr int AnswerOk = 1;
inline constexpr int AnswerYes = 6;
inline constexpr int AnswerNo = 7;
}  // namespace msgbox

/// Messages of Windows that other programs may send to our windows and that have a meaning here.
namespace message {
inline constexpr std::uint32_t Move = 3;
inline constexpr std::uint32_t Size = 5;
inline constexpr std::uint32_t Close = 16;
inline constexpr std::uint32_t SysColorChange = 21;
inline constexpr std::uint32_t TimeChange = 30;
inline constexpr std::uint32_t DisplayChange = 126;
inline constexpr std::uint32_t MouseMove = 512;
inline constexpr std::uint32_t AppBarCallback = 1174;
}  // namespace message

}  // namespace corvelle::forms
