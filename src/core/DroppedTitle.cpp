#include "core/DroppedTitle.h"

#include "base/Text.h"
#include "core/CommandPorts.h"

namespace corvelle {

std::string TitleOfDrop(BrowserPort* browser, const forms::DragData& data,
                        std::string_view address) {
  std::string given = Trim(data.Title);
  if (!given.empty()) return given;
  return browser != nullptr ? Trim(browser->WindowTitle(address)) : std::string();
}

}  // namespace corvelle
