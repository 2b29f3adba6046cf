#pragma once

namespace corvelle {

/// Guards against what arrives while something lets events through. Each is set by a scope object.
struct GuardFlags {
  /// From the moment the flags are read until Main ends.
  bool StartingUp = false;
  /// The strip's window procedure may act on its messages.
  bool ToolbarReady = false;
  bool AppBarBusy = false;
  bool PosChangeRunning = false;
  bool RestoreBusy = false;
  bool HideBusy = false;
  /// A message to the shell is on its way.
  bool TellingShell = false;
  bool MenuBuilding = false;
  bool ChangingMode = false;
  /// A popup command rewrites a menu file; a drop waits.
  bool ItemActionBusy = false;
  /// How many popups, messages and menus of the shell wait for the user's answer: until then no
  /// pointer that passes opens or closes a menu, and nothing is dropped.
  int OpenQuestions = 0;

  /// True while the strip is being placed, restored or led by its frame.
  [[nodiscard]] bool IsPlacing() const noexcept { return AppBarBusy || RestoreBusy; }
  /// True while the program starts or the strip follows other bars: hovering does nothing.
  [[nodiscard]] bool IsSettling() const noexcept { return StartingUp || PosChangeRunning; }
  /// True while a file or a menu is being worked on: nobody else rewrites one meanwhile.
  [[nodiscard]] bool IsWorking() const noexcept {
    return StartingUp || MenuBuilding || ItemActionBusy || AppBarBusy || PosChangeRunning;
  }
  /// False while the program works on a file or a menu, or waits for an answer: a drop waits, which
  /// OLE calls refusing it.
  [[nodiscard]] bool TakesDrops() const noexcept { return OpenQuestions == 0 && !IsWorking(); }
};

}  // namespace corvelle
