#pragma once

#include <string>
#include <string_view>

#include "core/DragState.h"
#include "core/GuardFlags.h"
#include "core/IconState.h"
#include "core/MenuState.h"
#include "core/OptionFlags.h"
#include "core/ProgramPaths.h"
#include "core/RecordEdits.h"
#include "core/SlowQuestions.h"
#include "core/StripPlacement.h"
#include "core/WindowPorts.h"
#include "forms/WindowSystem.h"
#include "platform/Platform.h"

namespace corvelle {

/// One running program: the state that its windows share and the way to its windows and services.
/// It is passed to whoever needs it; a test makes as many as it likes.
class Program {
 public:
  Program(const Platform& services, forms::WindowSystem& windows)
      : Services(services), Windows(windows), Slow(services.SlowAnswers) {}
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  Platform Services;
  forms::WindowSystem& Windows;
  WindowPorts Ports;
  /// What disks and drives are asked without waiting for them.
  SlowQuestions Slow;

  /// Title of the application, which its message boxes bear.
  std::string Title = "Corvelle";

  ProgramPaths Paths;
  corvelle::OptionFlags OptionFlags;
  StripPlacement Strip;
  MenuState Menu;
  DragState Drag;
  IconState Icons;
  GuardFlags Guards;
  /// The entry that a menu or popup acted on last, the entry clipboard, the last deleted entry, and
  /// whether a menu item is being moved with the mouse.
  EntryEdit Entry;

  /// Lets waiting events run. Whoever calls it must be ready for anything to have happened. Called
  /// from what another call of it lets run, it only shows what waits to be painted: that other call
  /// goes on with the events, and however quickly they come, there is never a third.
  void DoEvents();

  /// True while another program's drag that came over the strip goes on: it decides which menu is
  /// up, and the source keeps the foreground.
  [[nodiscard]] bool DragHolds() const;
  /// Shows the hint, or closes it when the text is empty.
  void SetHint(std::string_view text);

  /// One more dot in the startup window, while the program starts and unless
  /// Option::NoStartupScreen is set.
  void ShowStartupProgress();

  /// Writes the flags to their file. A failure is quiet: the flags stay in force for this run, and
  /// the old file stays as it was.
  void SaveOptionFlags();

  /// The flags of the edge from the placement, and back. See core/OptionFlags.h.
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

 private:
  /// A call of DoEvents runs.
  bool eventsRunning_ = false;
};

}  // namespace corvelle
