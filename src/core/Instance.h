#pragma once

#include <string_view>

namespace corvelle {

class DesktopWindows;
class MessageBoxes;
class SystemInfo;

/// Wakes the window with this title: brings it back when it is minimized, sends the companion
/// window of a running Corvelle the message that brings its strip back, and brings any other window
/// to the foreground. False when no window has the title, or its program does not answer.
bool ActivatePrevInstance(DesktopWindows& desktop, std::string_view title);

/// True if this process may run. Otherwise the running copy has been woken, or the user has been
/// told that it could not be.
bool ClaimSession(std::string& title, SystemInfo& system, DesktopWindows& desktop,
                  MessageBoxes& messages);

}  // namespace corvelle
