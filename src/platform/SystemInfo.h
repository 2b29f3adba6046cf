#pragma once

#include <string>

#include "platform/WindowId.h"

namespace corvelle {

/// Facts about the machine, this process and the session.
class SystemInfo {
 public:
  virtual ~SystemInfo() = default;

  /// Folder of the running executable.
  [[nodiscard]] virtual std::string ApplicationFolder() const = 0;
  [[nodiscard]] virtual std::string CurrentFolder() const = 0;
  /// The folder of Windows, and that of its system files; empty when the system does not tell.
  [[nodiscard]] virtual std::string WindowsFolder() const = 0;
  [[nodiscard]] virtual std::string SystemFolder() const = 0;

  /// True if another process of this program runs in this session. The first question claims the
  /// session for this process; each later one gives the other a moment to end, and claims it then.
  [[nodiscard]] virtual bool AnotherInstanceRuns() = 0;

  /// Height of a window's caption (SM_CYCAPTION) and width of its buttons (SM_CXSIZE), in pixels; 0
  /// when the system does not tell.
  [[nodiscard]] virtual int CaptionHeight() const = 0;
  [[nodiscard]] virtual int CaptionButtonWidth() const = 0;

  /// Today's date as the user's settings write it, short and long; empty when the system does not
  /// tell.
  [[nodiscard]] virtual std::string ShortDate() const = 0;
  [[nodiscard]] virtual std::string LongDate() const = 0;
  /// The time of day in hours and minutes of two digits each, with the user's word for before or
  /// after noon; where there is none the hours go to 23. Empty when the system does not tell.
  [[nodiscard]] virtual std::string TimeOfDay() const = 0;

  /// Bits per pixel of the screen.
  [[nodiscard]] virtual int ColourDepth() const = 0;

  /// Opens a topic of a help file for `window` (none: the desktop). False when the system has no
  /// viewer for it.
  virtual bool ShowHelpTopic(WindowId window, const std::string& file, int topic) = 0;
};

}  // namespace corvelle
