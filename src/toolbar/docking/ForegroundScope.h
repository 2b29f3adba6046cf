#pragma once

#include <memory>

namespace corvelle {

namespace forms {
class Form;
}
class DesktopWindows;
struct WindowPorts;

/// Keeps the foreground with the program while the strip, or the menu, is hidden for a rebuild
/// though it is the active window. Windows would make another program active and need not give the
/// foreground back. A window that nobody can see has it instead, and keys that are typed meanwhile
/// are lost. At the end the strip is active, unless it is hidden or the user has gone elsewhere.
/// Does nothing while neither of the two is active.
class ForegroundScope {
 public:
  ForegroundScope(forms::Form& strip, const DesktopWindows& desktop, const WindowPorts& ports);
  ForegroundScope(const ForegroundScope&) = delete;
  ForegroundScope& operator=(const ForegroundScope&) = delete;
  ~ForegroundScope();

 private:
  forms::Form& strip_;
  const DesktopWindows& desktop_;
  std::unique_ptr<forms::Form> keeper_;
};

}  // namespace corvelle
