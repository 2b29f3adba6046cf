#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace corvelle {

/// Icon text of an entry with the picture of web links.
inline constexpr std::string_view kWebLinkIconText = "http";

/// True if the command says that a button is hidden.
[[nodiscard]] bool IsHiddenCommand(std::string_view command);

/// Gives a web address in a command its full form: "www." gets "http://" in front, and backslashes
/// become slashes. The icon text becomes that of web links when it is empty or names a file that
/// does not exist; one that begins with a backslash is not looked for. A command that is no address
/// stays, and its icon with it.
void NormaliseAddress(std::string& command, std::string& icon,
                      const std::function<bool(std::string_view)>& fileExists);

}  // namespace corvelle
