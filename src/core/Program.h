#pragma once

#include <string>
#include <string_view>

#include "core/OptionFlags.h"
#include "core/RecordEdits.h"
#include "core/WindowPorts.h"
#include "desk/AnswerDesk.h"
#include "desk/SlowQuestions.h"
#include "forms/WindowSystem.h"
#include "platform/Platform.h"

namespace corvelle {

/// One running program: the state that its windows share and the way to its windows and services.
/// It is passed to whoever needs it; a test makes as many as it likes.
class Program {
 public:
  Program(const Platform& services, forms::WindowSystem& windows)
      : Services(services),
        Windows(windows),
        Slow(services.SlowAnswers),
        Answers(Slow, services.System, windows) {}
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  Platform Services;
  forms::WindowSystem& Windows;
  WindowPorts Ports;
  /// What disks and drives are asked without waiting for them.
  SlowQuestions Slow;
  /// The same with answers that are kept, what is on show first, and places that do not answer left
  /// to rest.
  desk::AnswerDesk Answers;

  /// Title of the application, which its message boxes bear.
  std::string Title = "Corvelle";

  // Folders, each with a trailing backslash. AppPath is where the user's data lies: the program's
  // own folder, or that of the user's programs (core/DataFolder.h).
  std::string AppPath;
  /// Where the program and what came with it lie; empty: in AppPath.
  std::string ShippedPath;
  std::string MenusPath;
  std::string IconsPath;
  std::string ShellLinkPath;

  corvelle::OptionFlags OptionFlags;

  /// From the moment the flags are read until Main ends.
  bool StartingUp = false;
  /// Option 23: other windows may cover the strip.
  bool NotOnTop = false;
  /// The strip's window procedure may act on its messages.
  bool ToolbarReady = false;
  /// Option 3 in force.
  bool AutoHide = false;

  // Placement of the strip. "TOP", "BOTTOM", "LEFT" or "RIGHT".
  bool AppBarDocked = false;
  bool AppBarRequested = false;
  bool ToolbarVertical = false;
  std::string ToolbarEdge = "TOP";
  /// The strip has stepped out of its edge for the moment and belongs back there.
  bool WasDocked = false;
  bool ToolbarMinimized = false;
  /// The strip is on its way into the task bar.
  bool ToolbarMinimizing = false;
  /// The edge that the strip left for the task bar, and its top then, twips.
  std::string WasEdge;
  float WasTop = 0;
  /// Where a strip at an edge belongs, twips.
  float PinnedLeft = 0;
  float PinnedTop = 0;

  // Guards against what arrives while a rebuild lets events through.
  bool AppBarBusy = false;
  bool PosChangeRunning = false;
  bool RestoreBusy = false;
  bool HideBusy = false;
  bool MenuBuilding = false;
  bool ChangingMode = false;
  bool IconsLoading = false;
  /// A popup command rewrites a menu file; a drop waits.
  bool ItemActionBusy = false;
  /// How many popups, messages and menus of the shell wait for the user's answer: until then no
  /// pointer that passes opens or closes a menu, and nothing is dropped.
  int OpenQuestions = 0;
  /// An edit of a menu from a window is under way; docking waits.
  bool MenuFormBusy = false;
  /// The outline of the strip is being moved to another edge.
  bool MovingToolbar = false;
  /// A call of DoEvents runs.
  bool EventsRunning = false;

  /// A full-screen program was last reported.
  bool FullScreenApp = false;

  /// 16, or the shell's large icon size. Pixels.
  int IconSize = 16;
  /// Index of the button under the pointer, 0 for none.
  int CurButton = 0;
  /// A menu is up, or a press on the strip is to open one.
  bool MenuOpen = false;
  /// Index of the menu item under selection, 0 for none.
  int SelectedItem = 0;
  /// The keyboard drives the strip rather than a menu.
  bool KeyboardOnToolbar = false;
  /// The pointer stands in the menu, but below the last item.
  bool PointerBelowItems = false;
  /// The current item follows a separator.
  bool ItemHasSeparator = false;
  /// Index of the single button under the pointer, 0 for none, kDateArea for the date.
  int CurSingle = 0;
  static constexpr int kDateArea = 1000;
  /// A carried entry is over the strip's buttons.
  bool ButtonDragging = false;
  /// A carried entry is being put down: nothing else ends the carry meanwhile.
  bool ItemDropping = false;
  /// Another program drags something over the strip or a menu that opened under the drag; it has
  /// come over the strip, and its end is not dealt with yet.
  bool DragOverButton = false;
  bool DragEntered = false;
  /// What it drags is a text that begins like a web address.
  bool DragIsUrl = false;
  /// The mouse buttons that it was last dragged with.
  forms::MouseButton DragButtons = forms::MouseButton::None;
  /// A dropped web address waits for its dialog.
  bool WebLinkPending = false;

  /// The entry that a menu or popup acted on last, the entry clipboard, the last deleted entry, and
  /// whether a menu item is being moved with the mouse.
  EntryEdit Entry;

  /// The Icon Library has built its lists in this run.
  bool LibraryBuilt = false;

  // Icons (web links, and whether the shell shows each icon file by its own picture).
  std::string WebLinkIcon;
  bool ShellDrawsIcons = false;
  /// The Recycle Bin's icon as it was last seen, and whether it has changed since the last look.
  std::string RecycleIconPath;
  int RecycleIconIndex = -1;
  bool RecycleIconChanged = false;

  /// Path of a file that came with the program.
  [[nodiscard]] std::string ShippedFile(std::string_view name) const;

  /// Lets waiting events run. Whoever calls it must be ready for anything to have happened. Called
  /// from what another call of it lets run, it only shows what waits to be painted: that other call
  /// goes on with the events, and however quickly they come, there is never a third.
  void DoEvents();

  /// True while another program's drag that came over the strip goes on: it decides which menu is
  /// up, and the source keeps the foreground.
  [[nodiscard]] bool DragHolds() const;
  /// False while the program works on a file or a menu, or waits for an answer: a drop waits, which
  /// OLE calls refusing it.
  [[nodiscard]] bool TakesDrops() const noexcept;
  /// True while a file or a menu is being worked on: nobody else rewrites one meanwhile.
  [[nodiscard]] bool IsWorking() const noexcept;

  /// Shows the hint, or closes it when the text is empty.
  void SetHint(std::string_view text);

  /// One more dot in the startup window, while the program starts and unless option 9 is "1".
  void ShowStartupProgress();

  /// Writes the flags to their file. A failure is quiet: the flags stay in force for this run, and
  /// the old file stays as it was.
  void SaveOptionFlags();

  /// Option 14 to 16 from the placement, and back. See core/OptionFlags.h.
  void SaveEdgeFlags();
  void ReadEdgeFlags();

  /// Message box with the application's title. `owner` may be none, for the desktop. Until it is
  /// answered neither the strip nor the menu window takes input; events run all the same, so that
  /// whoever asks works on copies.
  int Say(WindowId owner, std::string_view text, unsigned flags);
  /// The same with a title of its own.
  int SayAs(std::string_view title, WindowId owner, std::string_view text, unsigned flags);

  /// Tells Ports.MenuEdits of an edit. Whoever changes what a menu file or a single button's file
  /// holds, other than that port's own window, calls it as soon as the file is written.
  void TellMenusEdited() const;

  /// The strip's window, none before it is loaded.
  [[nodiscard]] WindowId ToolbarWindow() const;
  /// The window in which the user acts, to which what is asked belongs: the menu that is up, else
  /// the strip.
  [[nodiscard]] WindowId WindowInUse() const;
};

}  // namespace corvelle
