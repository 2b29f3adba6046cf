#include "core/MessageBoxes.h"

#include "core/GuardFlags.h"
#include "core/WindowPorts.h"
#include "forms/Scopes.h"
#include "forms/WindowSystem.h"

namespace corvelle {

namespace {

/// Holds a window's input while a message is up.
class InputHold {
 public:
  InputHold(AskingWindow* window, WindowId owner) : window_(window) {
    if (window_ != nullptr) window_->HoldForMessage(window_->WindowHandle() == owner);
  }
  InputHold(const InputHold&) = delete;
  InputHold& operator=(const InputHold&) = delete;
  ~InputHold() {
    if (window_ != nullptr) window_->ReleaseAfterMessage();
  }

 private:
  AskingWindow* window_;
};

}  // namespace

int MessageBoxes::Say(WindowId owner, std::string_view text, unsigned flags) {
  return SayAs(title_, owner, text, flags);
}

int MessageBoxes::SayAs(std::string_view title, WindowId owner, std::string_view text,
                        unsigned flags) {
  const forms::CountScope asking(guards_.OpenQuestions);
  const InputHold strip(ports_.Toolbar, owner);
  const InputHold menu(ports_.QMenu, owner);
  return windows_.ShowMessage(owner, text, title, flags);
}

}  // namespace corvelle
