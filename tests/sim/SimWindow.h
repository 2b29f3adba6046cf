#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "base/Geometry.h"
#include "forms/WindowSystem.h"
#include "platform/WindowId.h"
#include "sim/SimCanvas.h"
#include "sim/SimControl.h"

namespace corvelle::sim {

/// A window of the simulated desktop, of this or of another program.
struct SimWindow {
  WindowId Id = kNoWindow;
  WindowId Parent = kNoWindow;            // none: a top-level window
  WindowId Owner = kNoWindow;             // of a message box or a form that has one
  forms::WindowEvents* Events = nullptr;  // null for other programs' windows and message boxes
  bool Own = false;
  forms::PeerKind Kind = forms::PeerKind::Form;
  SimControl* Control = nullptr;  // of a window that the system works
  bool TabStop = false;           // a picture box that a press gives the focus
  std::string ClassName;
  std::string Text;
  std::string ToolTip;
  PixelRect Bounds;  // relative to the parent, or the screen
  PixelRect Told;    // the bounds that its events know
  forms::FrameStyle Frame = forms::FrameStyle::None;
  forms::FrameMargins Margins;  // of the frame
  bool MinimizeBox = false;
  int Dpi = forms::kPlainDpi;  // which its text is drawn for
  PixelSize LeastSize{1, 1};
  std::vector<forms::PopupItem> MenuBar;
  bool Visible = false;
  bool Enabled = true;
  bool Topmost = false;
  bool Minimized = false;
  bool Maximized = false;
  bool RestoresMaximized = false;
  bool InTaskbar = false;
  bool HasOwner = false;
  bool TakesDrops = false;
  bool Hangs = false;              // its program answers no message
  std::vector<WindowId> Children;  // from the front to the back
  WindowId Focus = kNoWindow;      // which of its windows had the focus last

  PixelRect Dirty;     // what it owes to paint
  int PaintCount = 0;  // times that it was asked to paint
  PixelRect LastPainted;
  std::shared_ptr<SimCanvas> Content;

  /// How another program's window answers messages; none: with 0.
  std::function<std::intptr_t(std::uint32_t, std::uintptr_t, std::intptr_t)> Answer;
};

/// True for a window that the system draws and works.
[[nodiscard]] inline bool IsSystemControl(const SimWindow& window) {
  return window.Control != nullptr;
}

/// What a test says of another program's window.
struct OtherWindow {
  std::string Title;
  std::string ClassName = "OtherWindow";
  PixelRect Bounds{100, 100, 500, 400};
  bool Visible = true;
  bool Topmost = false;
  bool Minimized = false;
  bool Maximized = false;
  bool RestoresMaximized = false;
  WindowId Parent = kNoWindow;  // of a child window
  bool HasOwner = false;
  bool Hangs = false;
};

/// A message that a window of another program got.
struct SentMessage {
  WindowId Window = kNoWindow;
  std::uint32_t Message = 0;
  std::uintptr_t WParam = 0;
  std::intptr_t LParam = 0;

  friend bool operator==(const SentMessage&, const SentMessage&) = default;
};

/// A message box that was shown.
struct MessageBox {
  WindowId Owner = kNoWindow;
  std::string Text;
  std::string Title;
  unsigned Flags = 0;
  int Answer = 0;
};

}  // namespace corvelle::sim
