#pragma once

#include <string>
#include <vector>

#include "forms/Timer.h"

namespace corvelle {

class MessageBoxes;
namespace forms {
class Form;
}

/// The files of drops that were not taken: the user is told of them once the drop has returned. A
/// source that drags waits until then, and a message would hold it.
class RefusedFiles {
 public:
  /// All of it outlives this. The timer is its own.
  RefusedFiles(MessageBoxes& messages, forms::Form& window, forms::Timer& tmrRefused);
  RefusedFiles(const RefusedFiles&) = delete;
  RefusedFiles& operator=(const RefusedFiles&) = delete;

  /// Tells of these, once the current event is over.
  void Tell(std::vector<std::string> files);

 private:
  void tmrRefused_Timer();

  MessageBoxes& messages_;
  forms::Form& window_;
  forms::Timer& tmrRefused_;
  std::vector<std::string> files_;  // not told yet
};

}  // namespace corvelle
