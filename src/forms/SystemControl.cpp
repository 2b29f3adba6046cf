#include "forms/SystemControl.h"

#include "base/Text.h"
#include "base/Utf8.h"

namespace corvelle::forms {

char32_t AccessKey(const std::string& caption) {
  for (std::size_t at = 0; at + 1 < caption.size(); ++at) {
    if (caption[at] != '&') continue;
    ++at;
    if (caption[at] != '&') return UpperCharacter(NextCharacter(caption, at).Character);
  }
  return 0;
}

bool SystemControl::MenuAsked(PixelPoint at, bool byKey) {
  // A copy, since the handler may destroy the control.
  const auto handler = ContextMenu;
  if (!handler) return false;
  const PixelScale scale = Scale();
  handler(static_cast<float>(at.x) * scale.TwipsPerPixelX,
          static_cast<float>(at.y) * scale.TwipsPerPixelY, byKey);
  return true;
}

}  // namespace corvelle::forms
