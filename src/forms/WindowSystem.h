#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Geometry.h"
#include "forms/DragDrop.h"
#include "forms/FileDialogs.h"
#include "forms/PopupMenu.h"
#include "forms/Types.h"
#include "platform/Canvas.h"
#include "platform/WindowId.h"

namespace corvelle::forms {

/// What a backend tells the portable object that is behind a window. Points are pixels from the
/// upper left corner of the window.
///
/// Any of these calls may destroy the peer that makes it, and other peers with it: the backend
/// keeps the call's arguments (the canvas too) until the call returns, and touches neither peer nor
/// events afterwards without asking whether they still exist. A peer whose destructor has begun
/// tells its events nothing more.
///
/// Mouse: the window that is pressed gets all moves and releases until every button is up, outside
/// its bounds too; hiding or destroying it ends that. A press first makes the window active. The
/// second press of a double click of the left button comes as OnDoubleClick instead of OnMouseDown,
/// its release as OnMouseUp; the other buttons know no double click.
class WindowEvents {
 public:
  virtual ~WindowEvents() = default;

  virtual void OnMouseDown(MouseButton button, ShiftState shift, PixelPoint at) = 0;
  virtual void OnMouseMove(MouseButton down, ShiftState shift, PixelPoint at) = 0;
  virtual void OnMouseUp(MouseButton button, ShiftState shift, PixelPoint at) = 0;
  virtual void OnDoubleClick(PixelPoint at) = 0;
  virtual void OnKeyDown(int keyCode, ShiftState shift) = 0;
  /// A typed character; control characters (Enter 13, Esc 27) come here too.
  virtual void OnKeyPress(char32_t character) = 0;
  /// A key went up while the window, or control of the system, had the focus.
  virtual void OnKeyUp(int /*keyCode*/, ShiftState /*shift*/) {}

  /// A key goes down in a control that the system works, which gets it only if the answer is false.
  /// What is typed with a key that was used up does not reach the control either.
  virtual bool OnControlKey(int /*keyCode*/, ShiftState /*shift*/) { return false; }
  /// Likewise a typed character, control characters too.
  virtual bool OnControlCharacter(char32_t /*character*/) { return false; }

  /// The window has the keyboard from now on, or has it no more. The one that loses it is told
  /// first. Nothing is told to a window that is destroyed or hidden with it.
  virtual void OnFocus(bool /*gained*/) {}
  /// The mouse was taken from a window that was pressed: by a message box, a menu, another window,
  /// or because it was hidden. No release will come.
  virtual void OnCaptureLost() {}
  /// The wheel was turned by `delta` (120 is a notch, away from the user) while this window, or one
  /// in it that had no use for it, has the focus. True uses it up.
  virtual bool OnWheel(int /*delta*/, ShiftState /*shift*/) { return false; }
  /// The right button asked for the context menu of a control that the system works, at a point of
  /// the window; told after the release. Keys that ask for it come as OnControlKey. True means that
  /// the system shows none of its own.
  virtual bool OnContextMenu(PixelPoint /*at*/) { return false; }

  /// Paints `dirty` (pixels of the window) onto `canvas`, whose origin is set so that the window's
  /// own coordinates can be used and is left as it is. All of `dirty` is painted over, the inside
  /// by one DrawCanvas, so that the backend needs no buffer against flicker.
  virtual void OnPaint(Canvas& canvas, const PixelRect& dirty) = 0;

  /// The window has another place (relative to its parent or the screen) or size, whoever moved it.
  virtual void OnMoved(const PixelRect& bounds) = 0;
  virtual void OnActivated(bool active) = 0;
  /// The user or another program asks the window to close; the form decides.
  virtual void OnClose() = 0;
  /// The user chose a line of the form's menu bar, with its number (see ShowPopup), or a menu of it
  /// comes up, with the number of its line; the lines may be changed then.
  virtual void OnMenuChosen(int /*line*/) {}
  virtual void OnMenuOpening(int /*line*/) {}
  /// The session of Windows ends now; all must be saved when this returns.
  virtual void OnSessionEnd() = 0;

  /// Another program drags something over a window that takes drops, or has just come over it; told
  /// again and again until the drag leaves or drops. `allowed` is what the source lets a drop do.
  /// Returns what a drop here would do; None refuses it.
  virtual DropEffect OnDragOver(DragData& /*data*/, DropEffect /*allowed*/,
                                const DragPoint& /*where*/) {
    return DropEffect::None;
  }
  /// The drag went elsewhere, was given up or was refused. A source that dies tells nothing.
  virtual void OnDragLeave() {}
  /// Dropped where the last OnDragOver did not refuse. The source waits until this returns. Returns
  /// what was done.
  virtual DropEffect OnDrop(DragData& /*data*/, DropEffect /*allowed*/,
                            const DragPoint& /*where*/) {
    return DropEffect::None;
  }
  /// Any message before the backend deals with it, for top-level windows. An answer ends the
  /// message there.
  virtual std::optional<std::intptr_t> OnMessage(std::uint32_t message, std::uintptr_t wParam,
                                                 std::intptr_t lParam) = 0;
};

/// The backend's side of one window: shows what the portable object says. Made hidden, destroyed
/// with its owner. All measures are pixels. SetBounds reports the new bounds through OnMoved before
/// it returns; so do Show, SetForeground and SetWindowPos a change of activation through
/// OnActivated.
class WindowPeer {
 public:
  virtual ~WindowPeer() = default;

  [[nodiscard]] virtual WindowId Id() const noexcept = 0;

  virtual void SetBounds(const PixelRect& bounds) = 0;
  /// Coming up puts a top-level window before the others of its band. Normal, and Restored, make it
  /// active as well; for a child window all kinds but Hidden are one.
  virtual void Show(ShowKind kind) = 0;
  [[nodiscard]] virtual bool IsMinimized() const = 0;
  virtual void SetCaption(std::string_view caption) = 0;
  virtual void SetEnabled(bool enabled) = 0;
  /// What comes up beside the pointer when it rests on the window, from the next rest on; nothing
  /// when it is empty. A press takes it away until the pointer has been elsewhere.
  virtual void SetToolTip(std::string_view text) = 0;
  /// From now on drags of other programs are told to the window; at first they are not, and go to
  /// the next window around it that takes them. False when the system refuses.
  virtual bool SetTakesDrops(bool takesDrops) = 0;
  /// Notes that `part` must be painted; it is, once, at the next paint. Nothing is noted for a
  /// window that is not visible; coming up, it is painted whole.
  virtual void Invalidate(const PixelRect& part) = 0;
  /// Paints now what is noted, if the window is visible.
  virtual void PaintNow() = 0;

  /// For a window that can be seen, of a program in front. Behind others SetForeground comes first:
  /// what the focus does there is left to the system.
  virtual void SetFocus() = 0;
  /// Makes the window the foreground window of the whole desktop, if the system lets it.
  virtual void SetForeground() = 0;
  /// True for the foreground window of the whole desktop.
  [[nodiscard]] virtual bool IsForeground() const = 0;
  virtual void SetZOrder(ZPlace place) = 0;
  virtual void SetWindowPos(InsertAfter after, unsigned flags) = 0;
  /// Of a form that the user can size: he cannot make it smaller than this. The program can.
  virtual void SetLeastSize(PixelSize size) = 0;
  /// The menu bar of a form in a frame of the system; an empty list removes it.
  virtual void SetMenuBar(const std::vector<PopupItem>& items) = 0;
  /// The scale of the window is another one from now on (see PeerSpec::Dpi).
  virtual void SetDpi(int dpi) = 0;

  /// A canvas on the window's pixels on the screen, for drawing that the next paint wipes out;
  /// null while the window is not visible.
  virtual std::unique_ptr<Canvas> ScreenCanvas() = 0;
};

enum class PeerKind {
  Form,        // a top-level window without a frame of the system
  PictureBox,  // a child window
};

/// What a backend needs to make a window. On Windows the class of the window bears `ClassName`, so
/// that other programs can find it.
struct PeerSpec {
  PeerKind Kind = PeerKind::Form;
  std::string ClassName;
  WindowPeer* Parent = nullptr;  // of a child
  PixelRect Bounds;
  // A picture box that keys reach by the rules of dialogs: a press on it takes the focus.
  bool TabStop = false;
  bool InTaskbar = false;  // a form that shows a button in the task bar when it is visible
  int Dpi = kPlainDpi;     // which the text of a control is sized for
  FrameStyle Frame = FrameStyle::None;
  bool MinimizeBox = false;     // in the frame
  WindowPeer* Owner = nullptr;  // of a form with a frame: it stays in front of its owner
};

/// Pixels of a frame on each side of the inside.
struct FrameMargins {
  int Left = 0;
  int Top = 0;
  int Right = 0;
  int Bottom = 0;

  friend bool operator==(const FrameMargins&, const FrameMargins&) = default;
};

/// What a window shows, and its place on the screen.
struct WindowPicture {
  std::unique_ptr<Canvas> Pixels;
  PixelRect Bounds;
};

class ControlMaker;

using TimerId = std::uint32_t;

/// A home for forms: the real Windows or the simulated desktop. One thread.
class WindowSystem {
 public:
  virtual ~WindowSystem() = default;

  /// Makes a hidden window that reports to `events`, which outlives the peer. Null when the system
  /// refuses.
  virtual std::unique_ptr<WindowPeer> CreatePeer(const PeerSpec& wanted, WindowEvents& events) = 0;

  /// How wide the system's frame is around a window of this scale. Points of a window count from
  /// its inside, its bounds are those of the frame.
  [[nodiscard]] virtual FrameMargins MarginsOf(FrameStyle frame, bool menuBar, int dpi) const = 0;

  /// Makes the controls that the system draws and works.
  virtual ControlMaker& Controls() = 0;

  /// A bitmap of this size in pixels (at least 1 by 1), all black.
  virtual std::unique_ptr<Canvas> CreateCanvas(PixelSize size) = 0;

  /// A copy of what a window of this program shows now, its child windows included. No pixels when
  /// it is not visible. What other windows cover, or lies off the screen, may be black.
  virtual WindowPicture PictureOfWindow(WindowId window) = 0;
  /// A copy of a part of the screen; what lies outside the screen is black. Null when `part` is
  /// empty.
  virtual std::unique_ptr<Canvas> PictureOfScreen(const PixelRect& part) = 0;

  /// Size in pixels of one line of text as DrawString draws it. The height does not depend on the
  /// text.
  [[nodiscard]] virtual PixelSize MeasureText(std::string_view text, const ScaledFont& font) = 0;

  /// The colour `index` of GetSysColor.
  [[nodiscard]] virtual Rgb SystemColor(int index) const = 0;

  /// The scale of the monitor on which most of `bounds` lies, or of the nearest one: dots of an
  /// inch. The place is in pixels of the desktop. A form asks when it is loaded and keeps the
  /// answer; everyone else asks the window (Window::Dpi, Window::Screen).
  [[nodiscard]] virtual int DpiAt(const PixelRect& bounds) const = 0;
  /// The monitors in pixels of the desktop, at least one; the first is the primary one, whose
  /// corner is the desktop's origin.
  [[nodiscard]] virtual std::vector<PixelRect> Monitors() const = 0;
  /// Size in pixels of the primary screen.
  [[nodiscard]] virtual PixelSize ScreenSize() const = 0;
  /// Bits of one pixel of that screen.
  [[nodiscard]] virtual int ScreenBits() const = 0;

  /// The pointer's shape over all windows of the program, until it is set again.
  virtual void SetMousePointer(MousePointer shape) = 0;
  [[nodiscard]] virtual MousePointer CurrentMousePointer() const = 0;

  /// The picture that MousePointer::Custom stands for, from now on; what has Image::kMask is
  /// see-through. `hotSpot` is the pixel of the picture that points. Without a picture, or where
  /// the system refuses it, Custom looks like Default.
  virtual void SetMouseIcon(corvelle::Picture picture, PixelPoint hotSpot) = 0;

  /// Runs the events that are waiting, timers that are due included, and returns.
  virtual void DoEvents() = 0;
  /// Runs `work` on the thread of the windows, by a later turn of the message loop and in the order
  /// of these calls: the one call that other threads may make. While posted work runs, no other
  /// does, even if it lets events through. What waits when the window system ends is dropped.
  virtual void Post(std::function<void()> work) = 0;
  /// Paints what the windows of the program owe to paint, and runs nothing else.
  virtual void PaintWaiting() = 0;
  /// Runs events until Quit. Returns at once if Quit was called before.
  virtual void Run() = 0;
  virtual void Quit() = 0;

  /// Calls `tick` each `milliseconds` (at least 1) until stopped. A timer that is late does not
  /// catch up. `tick` may stop its own timer.
  virtual TimerId StartTimer(int milliseconds, std::function<void()> tick) = 0;
  virtual void StopTimer(TimerId timer) = 0;

  /// Milliseconds since some moment before the program started; never goes back.
  [[nodiscard]] virtual std::int64_t Now() const = 0;

  /// A message box with the buttons and icon of `flags` (see msgbox), for `owner` (none: the
  /// desktop). Events run while it is up. Returns the button's number.
  virtual int ShowMessage(WindowId owner, std::string_view text, std::string_view title,
                          unsigned flags) = 0;

  /// The system's dialogs for files that are there, and for a folder. The owner takes no input, and
  /// events run, while one is up.
  virtual FileChoice AskFiles(WindowId owner, const FileQuestion& question) = 0;
  virtual FolderChoice AskFolder(WindowId owner, const FolderQuestion& question) = 0;

  /// Shows the visible ones of `items` as a popup menu, its upper left corner at a point of the
  /// screen (pixels) or beside it where there is no room. The owner, a top-level window of ours,
  /// comes to the foreground first, so that a click elsewhere closes the popup. Events run while it
  /// is up; the end of its owner or of the program closes it. Returns the number of what was
  /// chosen, counting all lines from 0, each before the lines of its own menu; popup::kNothing when
  /// nothing was or the popup could not be shown.
  virtual int ShowPopup(WindowId owner, const std::vector<PopupItem>& items, PixelPoint at,
                        unsigned flags) = 0;
};

/// The colour to paint with now.
[[nodiscard]] Rgb Resolve(const WindowSystem& windows, OleColor colour);

}  // namespace corvelle::forms
