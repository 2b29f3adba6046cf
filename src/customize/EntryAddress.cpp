#include "customize/EntryAddress.h"

#include <algorithm>

#include "base/Text.h"
#include "base/WebAddress.h"

namespace corvelle {

namespace {

/// The file that an icon text names: without the number of an icon inside it.
std::string_view FileOfIcon(std::string_view icon) {
  const std::size_t bar = icon.rfind('|');
  if (bar == std::string_view::npos || !ParseNumber(icon.substr(bar + 1))) return icon;
  return icon.substr(0, bar);
}

}  // namespace

bool IsHiddenCommand(std::string_view command) { return EqualNoCase(Trim(command), "/h"); }

void NormaliseAddress(std::string& command, std::string& icon,
                      const std::function<bool(std::string_view)>& fileExists) {
  if (StartsWithNoCase(command, "www.")) command.insert(0, "http://");
  if (StartsWithNoCase(command, "http")) std::replace(command.begin(), command.end(), '\\', '/');
  if (!IsWebAddress(command)) return;
  const bool missing =
      !icon.empty() && !icon.starts_with('\\') && !fileExists(Trim(FileOfIcon(icon)));
  if (icon.empty() || missing) icon = kWebLinkIconText;
}

}  // namespace corvelle
