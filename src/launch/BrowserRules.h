#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace corvelle {

class CodePage;

/// Where the DDE service name of a browser is noted.
struct ServiceSource {
  /// Keys below HKEY_CLASSES_ROOT, whose default values are asked in this order.
  std::vector<std::string_view> Keys;
  /// The name when none of them has one; may be empty.
  std::string_view Fallback;

  friend bool operator==(const ServiceSource&, const ServiceSource&) = default;
};

/// The places for the browser with that path.
[[nodiscard]] ServiceSource ServiceSourceOf(std::string_view browserCommand);

/// The address with whatever would end it inside a command line, a conversation or a file (double
/// quotes, blanks, control characters) written as addresses write it.
[[nodiscard]] std::string EscapeAddress(std::string_view url);

/// What a browser is told by DDE to open the address.
[[nodiscard]] std::string BrowserItem(std::string_view url);

/// The content of a .url file with that address.
[[nodiscard]] std::string FormatUrlFile(std::string_view url, const CodePage& ansi);

/// The caption of a browser's window without the browser's name: what stands before the last "-",
/// its blank included; the whole caption when it has none.
[[nodiscard]] std::string PageTitle(std::string_view caption);

/// True for the caption of a window that lists bookmarks and is not the browser's own.
[[nodiscard]] bool IsBookmarkCaption(std::string_view caption) noexcept;

/// The title of the address in the bytes of a bookmark file; empty when it is not there.
[[nodiscard]] std::string ParseBookmarkTitle(std::string_view bytes, std::string_view url,
                                             const CodePage& ansi);

/// The folder of the bookmark file that the content of the browser file names; empty without one.
[[nodiscard]] std::string ParseBookmarkFolder(std::string_view bytes, const CodePage& ansi);

/// The folders named "Users" beside the parts of a program's path, from its end up; each with a
/// trailing backslash.
[[nodiscard]] std::vector<std::string> UsersFolders(std::string_view programPath);

}  // namespace corvelle
