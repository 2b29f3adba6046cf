#pragma once

#include <string_view>

#include "platform/WindowId.h"

namespace corvelle {

/// What one program copies and another pastes.
class Clipboard {
 public:
  virtual ~Clipboard() = default;

  /// Makes the text the whole content, for `owner`, a top-level window of this program. Waits a
  /// fifth of a second for another program that has the clipboard open; false, and the content
  /// stays as it was, when it does not let go.
  [[nodiscard]] virtual bool PutText(WindowId owner, std::string_view text) = 0;
};

}  // namespace corvelle
