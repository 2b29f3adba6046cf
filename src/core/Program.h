#pragma once

#include <string>

#include "core/Carry.h"
#include "core/DragState.h"
#include "core/EntryCommands.h"
#include "core/GuardFlags.h"
#include "core/IconSources.h"
#include "core/IconState.h"
#include "core/LaunchParts.h"
#include "core/MenuState.h"
#include "core/MessageBoxes.h"
#include "core/OptionFile.h"
#include "core/OptionFlags.h"
#include "core/ProgramPaths.h"
#include "core/RecordEdits.h"
#include "core/StartsUnderWay.h"
#include "core/StartupProgress.h"
#include "core/StripPlacement.h"
#include "core/WindowPorts.h"
#include "desk/AnswerDesk.h"
#include "desk/SlowQuestions.h"
#include "forms/EventPump.h"
#include "forms/WindowSystem.h"
#include "platform/Platform.h"

namespace corvelle {

/// One running program: the parts that its windows share, each by its owner. Whoever puts windows
/// together hands each of them the parts that it works with; a test makes as many programs as it
/// likes.
class Program {
 public:
  Program(const Platform& services, forms::WindowSystem& windows)
      : Services(services),
        Windows(windows),
        Slow(services.SlowAnswers),
        Answers(Slow, services.System, windows),
        Starts(services.Starts) {}
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  // The system and the windows.

  Platform Services;
  forms::WindowSystem& Windows;
  WindowPorts Ports;
  /// What disks and drives are asked without waiting for them.
  SlowQuestions Slow;
  /// The same with answers that are kept, what is on show first, and places that do not answer left
  /// to rest.
  desk::AnswerDesk Answers;

  // State.

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
  /// What is being started beside the windows.
  StartsUnderWay Starts;

  // What is done with them in more than one place.

  forms::EventPump Events{Windows};
  MessageBoxes Messages{Windows, Ports, Guards, Title};
  OptionFile Options{Services.Files, Paths, OptionFlags};
  StartupProgress Progress{Guards, OptionFlags, Ports};
  EntryCommands Commands{{.Files = Services.Files,
                          .Ansi = Services.Ansi,
                          .Paths = Paths,
                          .Ports = Ports,
                          .Messages = Messages,
                          .Entry = Entry}};
  EntryCarry Carry{{.Windows = Windows,
                    .Desktop = Services.Desktop,
                    .Ports = Ports,
                    .Guards = Guards,
                    .Entry = Entry,
                    .Drag = Drag}};
  corvelle::IconSources IconSources{.Windows = Windows,
                                    .Answers = Answers,
                                    .Shell = Services.Icons,
                                    .Paths = Paths,
                                    .Icons = Icons};
  LaunchParts Launch{.Windows = Windows, .Ports = Ports, .Messages = Messages, .Starts = Starts};
};

}  // namespace corvelle
