#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/PostedWork.h"
#include "forms/WindowSystem.h"
#include "platform/DesktopWindows.h"
#include "platform/Input.h"
#include "sim/SimClock.h"
#include "sim/SimControlMaker.h"
#include "sim/SimDrag.h"
#include "sim/SimPopup.h"
#include "sim/SimWindow.h"

namespace corvelle::sim {

/// A monitor beside the primary one. Forms may lie on it and take its scale; what they show there
/// is on no picture of the screen.
struct OtherMonitor {
  PixelRect Bounds;
  int Dpi = forms::kPlainDpi;
};

struct DesktopOptions {
  float TwipsPerPixel = 15;  // of the primary screen: 15 at 96 dpi, 12 at 120 dpi
  PixelSize Screen{1024, 768};
  int ScreenBits = 32;
  std::vector<OtherMonitor> OtherMonitors;
};

/// A desktop without a screen: windows of this program and of others, a Z order, a pointer, a
/// keyboard and a clock, all of which a test moves and asks. As on Windows what is not visible is
/// not painted; what was covered needs no painting when it is uncovered.
///
/// User actions go through an event queue. In a test's own lines they are carried out at once;
/// inside a handler they arrive when the program next lets events through. When another window
/// comes under the pointer that stands still, it gets a mouse move, as on Windows. All points are
/// pixels of the screen; the pointer starts in the middle of it.
class SimDesktop final : public forms::WindowSystem, public Input, public DesktopWindows {
 public:
  explicit SimDesktop(const DesktopOptions& options = {});
  ~SimDesktop() override;

  // Time.
  /// Lets time pass; what falls due runs in its order.
  void Advance(int milliseconds);
  /// Moves the clock and runs nothing, as if the machine had slept.
  void Jump(int milliseconds);
  /// Runs what waits: posted events, paints, timers that are due. Moves no time.
  void Pump();
  /// Runs before the loop, or one inside it, takes each event.
  void WhenTurnBegins(std::function<void()> action) { turnBegins_ = std::move(action); }
  /// The most event loops that may run inside each other: that of the program, a yield in one of
  /// its events, a popup menu or a question in an event of that, and one question out of them. What
  /// goes deeper has no bound, and uses up the stack when events come quickly enough.
  static constexpr int kMostLoops = 4;
  /// The most that ran inside each other so far.
  [[nodiscard]] int DeepestLoops() const noexcept { return deepestLoops_; }
  SimClock& Clock() noexcept { return clock_; }

  // The user.
  void MovePointer(int x, int y);
  void Press(forms::MouseButton button = forms::MouseButton::Left);
  void Release(forms::MouseButton button = forms::MouseButton::Left);
  /// Press and release. Two clicks are never taken for a double click.
  void Click(forms::MouseButton button = forms::MouseButton::Left);
  void ClickAt(int x, int y, forms::MouseButton button = forms::MouseButton::Left);
  /// Another window takes the mouse from the one that was pressed, which is told so.
  void TakeCapture();
  /// `between` runs between the two, `held` while the second press is held.
  void DoubleClick(const std::function<void()>& between = {},
                   const std::function<void()>& held = {});
  /// A key goes down, or up again. Enter and Esc bring their characters with them.
  void KeyDown(int virtualKey);
  void KeyUp(int virtualKey);
  /// Down and up.
  void PressKey(int virtualKey);
  /// The wheel is turned; 120 is a notch, away from the user. The window with the focus gets it.
  void TurnWheel(int delta);
  /// Types characters: the key of each (letters and digits) and the character.
  void Type(std::string_view text);

  // Drags of other programs (SimDrag.cpp). While one is on, the pointer's moves and its button are
  // the drag's: MovePointer carries on, Release drops, the Esc key gives it up. As with OLE the
  // window under the pointer is told every 50 ms too, one that refused is left instead of dropped
  // on, and nothing is told to a window that is still busy with the last call.
  /// Starts at the pointer, with the source's button going down there.
  void StartDrag(const DragSource& source);
  /// The same with files and the left button, and straight to a point.
  void DragFilesOver(std::vector<std::string> files, PixelPoint at);
  /// The source's program ends in the middle of it: nobody is told anything any more. The button
  /// stays down until it is released.
  void KillDragSource();
  [[nodiscard]] bool Dragging() const noexcept { return drag_.has_value(); }
  /// What the window under the drag last said that a drop would do, or that the last drop did.
  [[nodiscard]] forms::DropEffect DragEffect() const noexcept { return dragEffect_; }

  // Other programs.
  WindowId AddOtherWindow(const OtherWindow& window);
  void MoveOther(WindowId window, const PixelRect& bounds);
  void ShowOther(WindowId window, bool visible);
  void MinimizeOther(WindowId window);
  void CloseOther(WindowId window);
  /// Another program's window, or one of ours, comes to the foreground, as if the user had chosen
  /// it in the task bar.
  void TakeForeground(WindowId window);
  void SetAnswer(WindowId window,
                 std::function<std::intptr_t(std::uint32_t, std::uintptr_t, std::intptr_t)> answer);
  /// What other programs' windows were sent.
  const std::vector<SentMessage>& Sent() const noexcept { return sent_; }
  /// While it is locked, no window of ours that is not active yet takes the foreground by itself.
  void LockForeground(bool locked) noexcept { foregroundLocked_ = locked; }
  /// The desktop's own window, behind all others.
  WindowId DesktopWindow() const noexcept { return desktopWindow_; }

  // Messages from outside to our windows.
  /// Arrives when events are let through.
  void Post(WindowId window, std::uint32_t message, std::uintptr_t wParam, std::intptr_t lParam);
  /// To every top-level window of ours, now.
  void Broadcast(std::uint32_t message, std::uintptr_t wParam = 0, std::intptr_t lParam = 0);
  /// The session of Windows ends: every top-level window of ours is told.
  void EndSession();
  /// One window of ours alone is told so, as an installer does.
  void EndSession(WindowId window);
  /// Another resolution, or other colours; windows are told by a display change message.
  void SetScreen(PixelSize size) { SetScreen(size, options_.ScreenBits); }
  void SetScreen(PixelSize size, int bits);
  /// The monitors beside the primary one are taken away; none of our windows may be up on them.
  void UnplugOtherMonitors();
  /// Another system colour; windows are told by a message.
  void SetSystemColor(int index, Rgb colour);

  // Message boxes.
  /// The answer to the next box, whatever it says.
  void Answer(int button) { answers_.push_back({std::nullopt, button}); }
  /// The answer to the next box, which must have this text.
  void Answer(std::string text, int button) { answers_.push_back({std::move(text), button}); }
  /// The answer to every box that has none of its own, for runs in which boxes may come or not.
  void AnswerAnyOther(int button) { standingAnswer_ = button; }
  /// Runs while each box is up, with the box.
  void WhileBoxIsUp(std::function<void(const MessageBox&)> action) {
    boxAction_ = std::move(action);
  }
  const std::vector<MessageBox>& Boxes() const noexcept { return boxes_; }
  /// Boxes that no answer was given for.
  int UnexpectedBoxes() const noexcept { return unexpectedBoxes_; }
  int AnswersLeft() const noexcept { return static_cast<int>(answers_.size()); }

  // File and folder dialogs. The running test fails when one comes up that has no answer.
  void ChooseFiles(std::vector<std::string> paths) { fileChoices_.push_back({std::move(paths)}); }
  void ChooseFolder(std::string path) {
    folderChoices_.push_back({.Chosen = true, .Path = std::move(path)});
  }
  void ChooseFolder(forms::FolderChoice choice) { folderChoices_.push_back(std::move(choice)); }
  void CancelFiles() { fileChoices_.emplace_back(); }
  void CancelFolder() { folderChoices_.emplace_back(); }
  /// Answers every dialog that has no choice waiting for it, while it is up.
  void AnswerAnyDialog(std::function<forms::FileChoice(const forms::FileQuestion&)> files,
                       std::function<forms::FolderChoice(const forms::FolderQuestion&)> folders) {
    anyFiles_ = std::move(files);
    anyFolder_ = std::move(folders);
  }
  /// Runs while each file or folder dialog is up.
  void WhileDialogIsUp(std::function<void()> action) { dialogAction_ = std::move(action); }
  const std::vector<forms::FileQuestion>& FileQuestions() const noexcept { return fileQuestions_; }
  const std::vector<forms::FolderQuestion>& FolderQuestions() const noexcept {
    return folderQuestions_;
  }

  // Popup menus. One that nothing is chosen from goes away when its action is over, as by a click
  // elsewhere. While it is up it gets the mouse and the keyboard; a press outside of it, Esc,
  // another window in the foreground and the end of its owner close it.
  /// The user's choice in the next popup, which must have this caption, visible and enabled.
  void ChooseFromPopup(std::string caption) { choices_.push_back(std::move(caption)); }
  /// Runs while each popup is up, with the popup, before the choice is made.
  void WhilePopupIsUp(std::function<void(const Popup&)> action) {
    popupAction_ = std::move(action);
  }
  const std::vector<Popup>& Popups() const noexcept { return popups_; }
  int ChoicesLeft() const noexcept { return static_cast<int>(choices_.size()); }

  /// What the user does while the program is in Run; it must end the program. Without it, Run lets
  /// time pass until a timer has ended the program.
  void WhileRunning(std::function<void()> script) { runScript_ = std::move(script); }
  bool QuitCalled() const noexcept { return quit_; }

  /// For controls: runs after the user's action that is being carried out.
  void AfterEvent(std::function<void()> action) { afterEvent_.push_back(std::move(action)); }
  /// The text that was cut or copied last, by whichever program.
  std::string& Clipboard() noexcept { return clipboard_; }

  /// For peers: the menu bar of a form.
  void SetMenuBar(WindowId window, const std::vector<forms::PopupItem>& items);
  /// The user chooses a line of a form's menu bar: the captions on the way to it with ">" between
  /// them. The running test fails when it cannot be chosen.
  void ChooseFromMenuBar(WindowId window, std::string_view path);
  /// The user opens one menu of the bar and chooses among the lines that the bar has by then, in
  /// the same way; with an empty text nothing.
  void ChooseFromMenuBar(WindowId window, std::string_view menu,
                         const std::function<std::string(const Popup& bar)>& choose);

  // Asking.
  /// The first window of ours with this class, which is the name of its form or box; none if there
  /// is none.
  WindowId Find(std::string_view className) const;
  /// Null when there is no such window.
  const SimWindow* Look(WindowId window) const;
  /// True if it and its parents are visible and not minimized.
  bool IsShown(WindowId window) const;
  /// On the screen.
  PixelRect BoundsOf(WindowId window) const;
  int PaintCount(WindowId window) const;
  /// What of it was painted last. Pixels of its inside.
  PixelRect LastPainted(WindowId window) const;
  /// All that is painted by now, of all windows.
  int PaintCount() const noexcept { return paints_; }
  WindowId FocusWindow() const noexcept { return focus_; }
  WindowId CaptureWindow() const noexcept { return capture_; }
  bool IsTopmost(WindowId window) const;
  /// The tool tip that is up; empty for none.
  [[nodiscard]] std::string ToolTip() const;
  int Beeps() const noexcept { return beeps_; }
  /// The picture that a custom pointer shows, null when there is none, and the pixel that points.
  const corvelle::Picture& MouseIcon() const noexcept { return mouseIcon_; }
  PixelPoint MouseIconHotSpot() const noexcept { return hotSpot_; }
  /// The calls that made, showed, moved or ordered windows, one line each: "show frmX Normal",
  /// "hide frmX", "setwindowpos frmX -1 19", "bounds frmX 0,0,10,10", "caption frmX text",
  /// "foreground frmX", "create frmX", "destroy frmX", "zorder frmX Front", "focus frmX".
  const std::vector<std::string>& Log() const noexcept { return log_; }
  void ClearLog() { log_.clear(); }
  /// A picture of the whole screen as the user sees it now.
  SimCanvas Picture() const;

  // forms::WindowSystem
  std::unique_ptr<forms::WindowPeer> CreatePeer(const forms::PeerSpec& wanted,
                                                forms::WindowEvents& events) override;
  forms::FrameMargins MarginsOf(forms::FrameStyle frame, bool menuBar, int dpi) const override;
  forms::ControlMaker& Controls() override { return controls_; }
  std::unique_ptr<Canvas> CreateCanvas(PixelSize size) override;
  forms::WindowPicture PictureOfWindow(WindowId window) override;
  std::unique_ptr<Canvas> PictureOfScreen(const PixelRect& part) override;
  PixelSize MeasureText(std::string_view text, const ScaledFont& font) override;
  Rgb SystemColor(int index) const override;
  int DpiAt(const PixelRect& bounds) const override;
  std::vector<PixelRect> Monitors() const override;
  PixelSize ScreenSize() const override {
    ++screenSizesAsked_;
    return options_.Screen;
  }
  /// How often the program has asked for it: a call of the system that may take long.
  [[nodiscard]] int ScreenSizesAsked() const noexcept { return screenSizesAsked_; }
  /// The primary screen by its own scale, for a test that reckons with pixels.
  [[nodiscard]] forms::ScreenInfo Screen() const;
  [[nodiscard]] int PrimaryDpi() const noexcept;
  int ScreenBits() const override { return options_.ScreenBits; }
  void SetMousePointer(forms::MousePointer shape) override { pointerShape_ = shape; }
  forms::MousePointer CurrentMousePointer() const override { return pointerShape_; }
  void SetMouseIcon(corvelle::Picture picture, PixelPoint hotSpot) override {
    mouseIcon_ = std::move(picture);
    hotSpot_ = hotSpot;
  }
  void DoEvents() override { Pump(); }
  void Post(std::function<void()> work) override;
  void PaintWaiting() override { PaintVisibleWindows(); }
  void Run() override;
  void Quit() override { quit_ = true; }
  forms::TimerId StartTimer(int milliseconds, std::function<void()> tick) override;
  void StopTimer(forms::TimerId timer) override { clock_.Stop(timer); }
  std::int64_t Now() const override { return clock_.Now(); }
  int ShowMessage(WindowId owner, std::string_view text, std::string_view title,
                  unsigned flags) override;
  forms::FileChoice AskFiles(WindowId owner, const forms::FileQuestion& question) override;
  forms::FolderChoice AskFolder(WindowId owner, const forms::FolderQuestion& question) override;
  int ShowPopup(WindowId owner, const std::vector<forms::PopupItem>& items, PixelPoint at,
                unsigned flags) override;
  /// The system refuses the next window that is asked for.
  void RefuseNextWindow() noexcept { refuseWindow_ = true; }

  // Input
  PixelPoint PointerPosition() const noexcept override { return pointer_; }
  void SetPointerPosition(PixelPoint at) override;
  bool IsKeyDown(int virtualKey) const noexcept override { return keys_.contains(virtualKey); }
  void Beep() override { ++beeps_; }

  // DesktopWindows
  std::vector<WindowId> TopLevel() const override { return order_; }
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
  WindowId ForegroundWindow() const noexcept override { return foreground_; }
  void PaintVisibleWindows() override;

 private:
  friend class SimPeerCore;
  friend class SimControlMaker;
  void RunPostedWork();

  /// The pointer and what is held down at the moment of a user's action.
  struct Mouse {
    PixelPoint At;
    forms::MouseButton Down = forms::MouseButton::None;
    forms::ShiftState Shift;
  };
  struct ScriptedAnswer {
    std::optional<std::string> Text;
    int Button = 0;
  };

  // Windows
  SimWindow* Get(WindowId window);
  WindowId TopOf(WindowId window) const;
  WindowId Add(SimWindow window);
  void Destroy(WindowId window);
  void SetBounds(WindowId window, const PixelRect& bounds);
  void TellBounds(WindowId window);
  void TellSize(WindowId window, std::uintptr_t how);
  void Show(WindowId window, forms::ShowKind kind);
  void HideWindow(WindowId window);
  void SetWindowPos(WindowId window, forms::InsertAfter after, unsigned flags);
  void SetZOrder(WindowId window, forms::ZPlace place);
  void SetFocusTo(WindowId window);
  void RequestForeground(WindowId window);
  void Raise(WindowId window);
  void Lower(WindowId window);
  void Activate(WindowId window);
  void TellActivation(WindowId window, bool active);
  [[nodiscard]] bool CanBeActive(WindowId window) const;
  void ActivateAnother(WindowId than);
  void SetEnabled(WindowId window, bool enabled);
  void ReleaseMouse(WindowId window);
  WindowId FocusOf(const SimWindow& form) const;
  void WindowGone(WindowId window);
  void Note(std::string_view verb, const SimWindow& window, std::string_view rest = {});
  WindowId ChildAt(WindowId window, PixelPoint at) const;
  WindowId TopLevelAt(PixelPoint at) const;
  std::intptr_t Dispatch(WindowId window, std::uint32_t message, std::uintptr_t wParam,
                         std::intptr_t lParam);
  bool FirstToProcedure(WindowId window, std::uint32_t message, std::uintptr_t wParam,
                        std::intptr_t lParam, std::intptr_t& answer);

  template <class Act>
  void WhileDialogIsUp(WindowId owner, std::string title, const Act& act);

  // Frames of forms (SimFrame.cpp)
  [[nodiscard]] PixelSize InsideOf(const SimWindow& window) const;
  /// A press on a frame: the close and minimize boxes act, the caption moves, the right and bottom
  /// sides size.
  bool FramePressed(WindowId target, PixelPoint at);
  bool FrameDragged(PixelPoint at);
  bool FrameReleased(PixelPoint at);
  void PaintFrame(SimCanvas& screen, const SimWindow& window) const;

  // Controls that the system works, and the focus (SimFocus.cpp)
  WindowId AddOwn(const forms::PeerSpec& wanted, forms::WindowEvents& events);
  void SetControl(WindowId window, SimControl* control);
  /// Tells who lost the focus and who has it now.
  void TellFocus();
  /// The press that is going on gets no release.
  void LoseCapture();
  [[nodiscard]] bool TakesFocus(const SimWindow& window) const;
  [[nodiscard]] WindowId FirstFocusIn(const SimWindow& container) const;
  void DeliverWheel(int delta, forms::ShiftState shift);
  /// True when the system's control has dealt with it, or the program has.
  bool ControlPressed(WindowId target, const Mouse& mouse, forms::MouseButton button, bool second);
  bool ControlReleased(WindowId target, const Mouse& mouse, forms::MouseButton button,
                       bool wasHeld);

  // Tool tips (SimToolTip.cpp)
  void SetToolTip(WindowId window, std::string_view text);
  [[nodiscard]] std::string ToolTipOf(WindowId window, PixelPoint at) const;
  /// The pointer has moved, to a window or in it.
  void FollowToolTip(WindowId target, PixelPoint at);

  // Popup menus
  [[nodiscard]] bool PopupStands(WindowId owner) const;
  /// True when the popup that is up takes the press, or closes because of it.
  bool PopupTakesPress(PixelPoint at);
  int ChoiceOf(const Popup& popup);

  // Painting
  void Invalidate(WindowId window, const PixelRect& part);
  void InvalidateTree(WindowId window);
  void PaintNow(WindowId window);
  bool PaintOne(WindowId window);
  bool PaintSomething();
  void Compose(SimCanvas& screen, const SimWindow& window) const;
  void ComposeAll(SimCanvas& screen) const;

  // Events
  void RunWaiting();
  void UserEvent(std::function<void()> event);
  Mouse MouseNow() const { return {pointer_, ButtonsDown(), Shift()}; }
  WindowId MouseTarget(PixelPoint at) const;
  PixelPoint InWindow(WindowId window, PixelPoint at) const;
  forms::ShiftState Shift() const;
  forms::MouseButton ButtonsDown() const;
  /// True if the pointer, though it stands still, is at another place of a window now.
  bool PointerUnsettled();
  void DeliverMove(const Mouse& mouse);
  void DeliverPress(const Mouse& mouse, forms::MouseButton button, bool second);
  void DeliverRelease(const Mouse& mouse, forms::MouseButton button);
  [[nodiscard]] const SimWindow* KeyTarget() const;
  void DeliverKeyUp(int virtualKey, forms::ShiftState shift);
  void DeliverKey(int virtualKey, forms::ShiftState shift);
  void DeliverCharacter(char32_t character);

  // Drags
  WindowId DropTargetAt(PixelPoint at) const;
  void TrackDrag();
  void EndDrag(bool drop);
  void FinishDrag(bool drop);
  forms::DragPoint DragPointIn(WindowId window) const;

  DesktopOptions options_;
  SimControlMaker controls_{*this};
  SimClock clock_;
  std::map<int, Rgb> colours_;
  std::map<WindowId, SimWindow> windows_;
  std::vector<WindowId> order_;  // top-level windows, from the top down
  WindowId lastId_ = 0x10000;
  WindowId desktopWindow_ = kNoWindow;
  WindowId foreground_ = kNoWindow;
  WindowId focus_ = kNoWindow;
  WindowId toldFocus_ = kNoWindow;  // who knows that it has the focus
  bool usedUp_ = false;             // the last key, and what it types with it
  WindowId capture_ = kNoWindow;
  enum class FramePart { None, Caption, Menu, Close, Minimize, Right, Bottom, Corner };
  [[nodiscard]] static FramePart FramePartAt(const SimWindow& window, PixelPoint at);
  FramePart framePart_ = FramePart::None;  // that is pressed
  WindowId framePressed_ = kNoWindow;
  PixelPoint framePoint_;
  PixelRect frameBounds_;
  bool foregroundLocked_ = false;
  bool refuseWindow_ = false;
  PixelPoint pointer_;
  bool windowsMoved_ = false;        // since the pointer was last looked at
  WindowId moveWindow_ = kNoWindow;  // who got the last mouse move, and where
  PixelPoint movePoint_;
  WindowId tipWindow_ = kNoWindow;        // under the pointer
  std::string tip_;                       // its tool tip
  std::optional<std::int64_t> tipSince_;  // how long the pointer has rested; none after a press
  std::set<int> keys_;
  forms::MousePointer pointerShape_ = forms::MousePointer::Default;
  corvelle::Picture mouseIcon_;
  PixelPoint hotSpot_;
  std::deque<std::function<void()>> events_;
  std::deque<std::function<void()>> afterEvent_;  // before the next of them
  forms::PostedWork postedWork_;
  int depth_ = 0;  // handlers that are running
  int loops_ = 0;  // loops that run inside each other
  int deepestLoops_ = 0;
  std::function<void()> runScript_;
  std::function<void()> turnBegins_;
  bool quit_ = false;
  std::deque<ScriptedAnswer> answers_;
  std::optional<int> standingAnswer_;
  std::function<void(const MessageBox&)> boxAction_;
  std::vector<MessageBox> boxes_;
  int unexpectedBoxes_ = 0;
  std::deque<forms::FileChoice> fileChoices_;
  std::deque<forms::FolderChoice> folderChoices_;
  std::vector<forms::FileQuestion> fileQuestions_;
  std::vector<forms::FolderQuestion> folderQuestions_;
  std::function<void()> dialogAction_;
  std::function<forms::FileChoice(const forms::FileQuestion&)> anyFiles_;
  std::function<forms::FolderChoice(const forms::FolderQuestion&)> anyFolder_;
  std::deque<std::string> choices_;
  std::function<void(const Popup&)> popupAction_;
  std::vector<Popup> popups_;
  WindowId popup_ = kNoWindow;  // the one that is up
  std::vector<SentMessage> sent_;
  std::string clipboard_;
  int paints_ = 0;
  mutable int screenSizesAsked_ = 0;
  int beeps_ = 0;
  std::optional<SimDrag> drag_;
  forms::DropEffect dragEffect_ = forms::DropEffect::None;
  std::vector<std::string> log_;
};

}  // namespace corvelle::sim
