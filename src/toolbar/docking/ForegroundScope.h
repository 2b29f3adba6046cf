#pragma once

#include <memory>

namespace corvelle {

namespace forms {
class Form;
}
class Program;

/// Keeps the foreground with the program while the strip, or the menu, is hidden for a rebuild
/// though it is the active window. Windows would make another program active and need not give the
/// foreground back. A window that nobody can see has it instead, and keys that are typed meanwhile
/// are lost. At the end the strip is active, unless it is hidden or the user has gone elsewhere.
/// Does nothing while neither of the two is active.
class ForegroundScope {
 public:
  ForegroundScope(Program& program, forms::Form& strip);
  ForegroundScope(const ForegroundScope&) = delete;
  ForegroundScope& operator=(const ForegroundScope&) = delete;
  ~ForegroundScope();

 private:
  Program& program_;
  forms::Form& strip_;
  std::unique_ptr<forms::Form> keeper_;
};

}  // namespace corvelle
