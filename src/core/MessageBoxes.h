#pragma once

#include <string>
#include <string_view>

#include "platform/WindowId.h"

namespace corvelle {

struct GuardFlags;
struct WindowPorts;
namespace forms {
class WindowSystem;
}

/// The message boxes of the program. Until one is answered neither the strip nor the menu window
/// takes input; events run all the same, so that whoever asks works on copies.
class MessageBoxes {
 public:
  /// `title` is what the boxes bear; all of it outlives them.
  MessageBoxes(forms::WindowSystem& windows, const WindowPorts& ports, GuardFlags& guards,
               const std::string& title)
      : windows_(windows), ports_(ports), guards_(guards), title_(title) {}
  MessageBoxes(const MessageBoxes&) = delete;
  MessageBoxes& operator=(const MessageBoxes&) = delete;

  /// Shows a message with flags of forms::msgbox and returns the answer. `owner` may be none, for
  /// the desktop.
  int Say(WindowId owner, std::string_view text, unsigned flags);
  /// The same with a title of its own.
  int SayAs(std::string_view title, WindowId owner, std::string_view text, unsigned flags);

 private:
  forms::WindowSystem& windows_;
  const WindowPorts& ports_;
  GuardFlags& guards_;
  const std::string& title_;
};

}  // namespace corvelle
