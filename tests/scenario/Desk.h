#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Edge.h"
#include "base/Geometry.h"

namespace corvelle::scenario {

enum class Button { Left, Right };

// Virtual key codes.
inline constexpr int kKeyTab = 9;
inline constexpr int kKeyEnter = 13;
inline constexpr int kKeyShift = 16;
inline constexpr int kKeyControl = 17;
inline constexpr int kKeyAlt = 18;
inline constexpr int kKeyEscape = 27;
inline constexpr int kKeySpace = 32;
inline constexpr int kKeyPageUp = 33;
inline constexpr int kKeyPageDown = 34;
inline constexpr int kKeyEnd = 35;
inline constexpr int kKeyHome = 36;
inline constexpr int kKeyLeft = 37;
inline constexpr int kKeyUp = 38;
inline constexpr int kKeyRight = 39;
inline constexpr int kKeyDown = 40;
inline constexpr int kKeyDelete = 46;
inline constexpr int kKeyF1 = 112;
inline constexpr int kKeyF3 = 114;
inline constexpr int kKeyF5 = 116;
inline constexpr int kKeyF10 = 121;

// Message numbers.
inline constexpr std::uint32_t kMessageSize = 5;
inline constexpr std::uint32_t kMessageClose = 16;
inline constexpr std::uint32_t kMessageTray = 512;
inline constexpr std::uint32_t kMessageAppBar = 1174;

// Buttons of a message box, by the number that pressing them gives.
inline constexpr int kButtonOk = 1;
inline constexpr int kButtonYes = 6;
inline constexpr int kButtonNo = 7;

/// A window as another program sees it. Its class is the form's or the picture box's name.
struct SeenWindow {
  bool Visible = false;
  PixelRect Bounds;  // screen pixels
  std::string Title;
};

/// A message box that came up.
struct SeenMessage {
  std::string Title;
  std::string Text;
};

/// Something that was started: the program's path, the rest of its command line, the folder in
/// which it found itself (without a trailing backslash unless it is a root).
struct Launch {
  std::string Program;
  std::string Arguments;
  std::string Folder;
};

/// A desktop with the program's folder on it, and all that a person and other programs can do
/// there. A road is written once against it and runs on the simulated desktop and in a real one. A
/// desk begins with a folder that holds the program and its icons, and nothing else; it ends what
/// it started.
class Desk {
 public:
  virtual ~Desk() = default;

  // ---- the program ----

  /// Starts the program, a second copy too. Does not wait for a window.
  virtual void StartCorvelle() = 0;
  /// How many copies run.
  [[nodiscard]] virtual int RunningCopies() const = 0;

  // ---- the person ----

  /// Screen pixels. The pointer's moves and presses reach the program before the call returns or
  /// soon after: what follows from them is waited for with Wait.
  virtual void MovePointer(PixelPoint at) = 0;
  virtual void Press(Button button) = 0;
  virtual void Release(Button button) = 0;
  /// Two quick clicks of the left button at one place.
  virtual void DoubleClick(PixelPoint at) = 0;
  [[nodiscard]] virtual PixelPoint Pointer() const = 0;
  /// Presses and releases a key; it goes to the foreground window.
  virtual void Key(int virtualKey) = 0;
  /// Holds a key down, and lets it go.
  virtual void HoldKey(int virtualKey) = 0;
  virtual void LetKeyGo(int virtualKey) = 0;
  /// Types one letter.
  virtual void Type(char letter) = 0;

  // ---- time ----

  /// Lets time pass until the condition holds; false when it does not within so many milliseconds.
  virtual bool Wait(const std::function<bool()>& until, int milliseconds = 8000) = 0;
  /// Lets so many milliseconds pass.
  virtual void Pause(int milliseconds) = 0;

  // ---- windows ----

  [[nodiscard]] virtual PixelSize ScreenSize() const = 0;
  /// 15 at 96 dpi, 12 at 120.
  [[nodiscard]] virtual int TwipsPerPixel() const = 0;
  /// The window of that class, a top-level one or a child of one; nothing when there is none.
  [[nodiscard]] virtual std::optional<SeenWindow> Window(std::string_view className) const = 0;
  /// The class of the window in the foreground; empty when there is none.
  [[nodiscard]] virtual std::string ForegroundClass() const = 0;
  /// Makes the window the foreground one, as Alt+Tab would.
  virtual void BringToFront(std::string_view className) = 0;
  /// Another program's window, visible and in the foreground from then on.
  virtual void OpenOtherWindow(PixelRect bounds) = 0;
  /// Another program's bar keeps that many pixels of an edge. Gives the room that the shell let it
  /// have; empty when it gave none.
  virtual PixelRect OpenOtherBar(Edge at, int thickness) = 0;
  /// That bar gives up its edge again.
  virtual void CloseOtherBar() = 0;
  /// Another program's window, visible and in the foreground from then on, from which a press of
  /// either button drags these files (full paths), or the text when there are none. With a title
  /// the text is a web address, which is dragged as browsers do it.
  virtual void OpenDragSource(PixelRect bounds, const std::vector<std::string>& files,
                              std::string_view text, std::string_view title = {}) = 0;
  /// Sends a message and waits for its answer; posts it and does not wait. Both do nothing (and
  /// answer 0) when there is no such window.
  virtual std::intptr_t Send(std::string_view className, std::uint32_t message,
                             std::uintptr_t wParam, std::intptr_t lParam) = 0;
  virtual void Post(std::string_view className, std::uint32_t message, std::uintptr_t wParam,
                    std::intptr_t lParam) = 0;

  /// The session of Windows ends: every window of the program is asked and then told. False when
  /// one of them says no.
  virtual bool EndSession() = 0;

  /// Presses that button on the next message box that comes up and has no answer waiting for it
  /// yet. A box that nobody answers stays up, and the program with it.
  virtual void AnswerNext(int button) = 0;
  /// The message boxes that were answered so far, in order.
  [[nodiscard]] virtual std::vector<SeenMessage> Messages() const = 0;

  /// Chooses that line of the next popup menu of right clicks that comes up and has no choice
  /// waiting for it yet. One that nobody chooses from stays up until the person does something.
  virtual void ChooseFromPopup(std::string_view caption) = 0;
  /// True while a popup menu is up.
  [[nodiscard]] virtual bool PopupIsUp() const = 0;
  /// Clicks the program's icon in the tray. Does nothing when there is none.
  virtual void ClickTrayIcon() = 0;
  /// True if the task bar has a button for the program; a click on it, which brings a minimized
  /// window back.
  [[nodiscard]] virtual bool HasTaskBarButton() const = 0;
  virtual void ClickTaskBarButton() = 0;
  /// What the person does with the next context menu of the shell that comes up: presses that
  /// letter, which chooses a command, or Esc for 0.
  virtual void AnswerShellMenu(char letter) = 0;
  /// How many of them were answered so far.
  [[nodiscard]] virtual int ShellMenus() const = 0;

  // ---- files of the program's folder, named from there: "Menus\\BMENU001.MNU" ----

  [[nodiscard]] virtual std::optional<std::string> ReadFile(std::string_view name) const = 0;
  virtual void WriteFile(std::string_view name, std::string_view bytes) = 0;
  virtual void RemoveFile(std::string_view name) = 0;
  [[nodiscard]] virtual bool FolderExists(std::string_view name) const = 0;
  /// The names of a folder's files in upper case, sorted.
  [[nodiscard]] virtual std::vector<std::string> Files(std::string_view folder) const = 0;

  // ---- what was started ----

  /// A program that only writes down how it was started, and a document that it is registered for.
  [[nodiscard]] virtual std::string WitnessProgram() const = 0;
  [[nodiscard]] virtual std::string WitnessDocument() const = 0;
  /// Makes a link to the witness, with arguments and an existing working folder, as another program
  /// would make it, and gives its path. A damaged one: a file that is only named like a link.
  virtual std::string MakeWitnessLink(std::string_view arguments, std::string_view folder) = 0;
  virtual std::string MakeDamagedLink() = 0;
  /// Puts a link to the witness into the user's folder of programs, which shows it by that title.
  virtual void MakeProgramsEntry(std::string_view title, std::string_view arguments) = 0;
  /// The target of the program's link in the Startup folder; nothing when there is none.
  [[nodiscard]] virtual std::optional<std::string> StartupLinkTarget() const = 0;
  /// What was started so far, in order.
  [[nodiscard]] virtual std::vector<Launch> Launched() const = 0;

  /// Keeps a picture of the screen, where there is one.
  virtual void Picture(std::string_view name) = 0;

  // ---- the same in fewer words ----

  void Click(PixelPoint at, Button button = Button::Left) {
    MovePointer(at);
    Press(button);
    Release(button);
  }
  [[nodiscard]] bool IsVisible(std::string_view className) const {
    const std::optional<SeenWindow> window = Window(className);
    return window && window->Visible;
  }
  /// Takes what the window at `from` drags and brings it to a point in steps, as a hand does; the
  /// button stays down.
  void DragTo(PixelPoint from, PixelPoint to, Button button = Button::Left) {
    MovePointer(from);
    Press(button);
    CarryTo(to);
  }
  /// Goes on with a drag.
  void CarryTo(PixelPoint to) {
    constexpr int kSteps = 5;
    const PixelPoint from = Pointer();
    for (int step = 1; step <= kSteps; ++step) {
      Pause(60);
      MovePointer(
          {from.x + (to.x - from.x) * step / kSteps, from.y + (to.y - from.y) * step / kSteps});
    }
    Pause(150);
  }
  /// Where a window stands; empty when there is none.
  [[nodiscard]] PixelRect BoundsOf(std::string_view className) const {
    const std::optional<SeenWindow> window = Window(className);
    return window ? window->Bounds : PixelRect{};
  }
};

/// A fresh desk of the home that the tests run in.
std::unique_ptr<Desk> MakeDesk();

}  // namespace corvelle::scenario
