#include "core/DroppedTitle.h"

#include "base/Text.h"
#include "core/Program.h"

namespace corvelle {

std::string TitleOfDrop(Program& program, const forms::DragData& data, std::string_view address) {
  std::string given = Trim(data.Title);
  if (!given.empty()) return given;
  BrowserPort* const browser = program.Ports.Browser;
  return browser != nullptr ? Trim(browser->WindowTitle(address)) : std::string();
}

}  // namespace corvelle
