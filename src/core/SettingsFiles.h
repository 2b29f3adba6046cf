#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/OptionFlags.h"
#include "platform/FileSystem.h"

namespace corvelle {

class CodePage;

// The small files of the program's folder. `appPath` ends in a backslash.

/// The strip's saved left edge in twips; 0, which is no position, when the file is missing, too
/// short, or holds what is no finite number.
[[nodiscard]] float LoadToolbarPosition(FileSystem& files, std::string_view appPath);
/// After a failure the file is what it was.
FileStatus SaveToolbarPosition(FileSystem& files, std::string_view appPath, float left);

/// The file whose icon the entries of web links show: the user's own with Option::OwnWebLinkIcon
/// and one noted, else a web page made for the purpose, so that the icon is that of the browser's
/// pages.
[[nodiscard]] std::string LoadWebLinkIcon(FileSystem& files, const CodePage& ansi,
                                          std::string_view appPath, const OptionFlags& flags);
/// Notes the user's own icon file for web links.
FileStatus SaveWebLinkIcon(FileSystem& files, const CodePage& ansi, std::string_view appPath,
                           std::string_view iconPath);

/// The smallest web page there is.
inline constexpr std::string_view kEmptyHtml = "<HTML> </HTML>\r\n";
/// Writes it to `path`.
FileStatus WriteEmptyHtml(FileSystem& files, std::string_view path);

/// The browser that the user chose instead of the system's.
struct BrowserChoice {
  std::string BrowserCommand;      // path of the executable
  std::string BrowserApplication;  // its DDE service name

  /// Only a choice with both parts counts.
  [[nodiscard]] bool IsComplete() const noexcept {
    return !BrowserCommand.empty() && !BrowserApplication.empty();
  }

  friend bool operator==(const BrowserChoice&, const BrowserChoice&) = default;
};

/// The DDE service name of a browser by its path; nothing for a browser that is not supported.
[[nodiscard]] std::optional<std::string> BrowserServiceName(std::string_view browserPath);

/// The content of the browser file, and what such a content says. Reading gives small letters.
[[nodiscard]] std::string FormatBrowserChoice(const BrowserChoice& choice, const CodePage& ansi);
[[nodiscard]] BrowserChoice ParseBrowserChoice(std::string_view bytes, const CodePage& ansi);

/// What the file says; both parts empty without a readable file.
[[nodiscard]] BrowserChoice LoadBrowserChoice(FileSystem& files, const CodePage& ansi,
                                              std::string_view appPath);
FileStatus SaveBrowserChoice(FileSystem& files, const CodePage& ansi, std::string_view appPath,
                             const BrowserChoice& choice);
/// Back to the system's browser. A missing file is no failure.
FileStatus ForgetBrowserChoice(FileSystem& files, std::string_view appPath);

}  // namespace corvelle
