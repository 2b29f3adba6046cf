#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

#include "Check.h"
#include "Input.h"
#include "base/CodePage.h"
#include "base/Text.h"
#include "base/Utf8.h"
#include "core/SettingsFiles.h"
#include "launch/BrowserRules.h"
#include "launch/CommandForm.h"

// Web links in files that others wrote: .url files, the browser file and lists of bookmarks with
// any bytes, and any address on its way to a browser.

namespace corvelle {
namespace {

const Windows1252 kAnsi;

bool IsOneLine(const std::string& text) {
  return text.find_first_of(std::string("\r\n\0", 3)) == std::string::npos;
}

void CheckUrlFile(const std::string& bytes) {
  const auto address = ParseUrlFile(bytes, kAnsi);
  if (!address) return;
  CORVELLE_CHECK(IsValidUtf8(*address));
  CORVELLE_CHECK(StartsWithNoCase(*address, "http://") || StartsWithNoCase(*address, "https://"));
  CORVELLE_CHECK(IsOneLine(*address));
  CORVELLE_CHECK(ClassifyAddress(*address) == CommandKind::WebAddress);
  // What the program writes for it says the same, but for what no address may hold.
  CORVELLE_CHECK(ParseUrlFile(FormatUrlFile(*address, kAnsi), kAnsi) == EscapeAddress(*address));
}

void CheckAddress(const std::string& url) {
  const std::string escaped = EscapeAddress(url);
  CORVELLE_CHECK(escaped.find_first_of("\" \t") == std::string::npos && IsOneLine(escaped));
  CORVELLE_CHECK(EscapeAddress(escaped) == escaped);
  const std::string item = BrowserItem(url);
  CORVELLE_CHECK(item.find('"', 1) == item.size() - std::string_view("\",,-1,0,,,,").size());
}

void CheckBookmarks(const std::string& bytes, const std::string& url) {
  const std::string title = ParseBookmarkTitle(bytes, url, kAnsi);
  CORVELLE_CHECK(IsValidUtf8(title));
  CORVELLE_CHECK(title.find('<') == std::string::npos);
  CORVELLE_CHECK(Trim(title) == title);
  // A bookmark put before all others is the one that is found.
  const std::string put = "<A HREF=\"" + url + "\">Title</A>" + bytes + "12345";
  // A file that is not UTF-8 as a whole is ANSI, and then so is the address in it.
  const bool plain = std::all_of(url.begin(), url.end(), [](char c) {
    return static_cast<signed char>(c) > 0 && c != '>' && c != '"';
  });
  if (plain) {
    CORVELLE_CHECK(ParseBookmarkTitle(put, url, kAnsi) == "Title");
  }
}

void CheckBrowserFile(const std::string& bytes) {
  CORVELLE_CHECK(IsValidUtf8(ParseBookmarkFolder(bytes, kAnsi)));
  const BrowserChoice choice = ParseBrowserChoice(bytes, kAnsi);
  // A line is known by a word anywhere in it. No service that the program writes has it in its
  // name.
  CORVELLE_CHECK(ParseBrowserChoice(FormatBrowserChoice(choice, kAnsi), kAnsi) == choice ||
                 choice.BrowserApplication.find("command=") != std::string::npos);
  for (const std::string& folder : UsersFolders(choice.BrowserCommand))
    CORVELLE_CHECK(folder.ends_with("\\Users\\"));
}

}  // namespace
}  // namespace corvelle

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  corvelle::fuzz::Input input(data, size);
  const std::string url = "http://" + input.Take(static_cast<std::size_t>(input.Byte() % 40));
  const std::string bytes = input.Rest();
  corvelle::CheckUrlFile(bytes);
  corvelle::CheckUrlFile("[InternetShortcut]\r\nurl=HTTP://" + bytes);
  corvelle::CheckAddress(url);
  corvelle::CheckAddress(bytes);
  corvelle::CheckBookmarks(bytes, url);
  corvelle::CheckBrowserFile(bytes);
  corvelle::CheckBrowserFile("Command=" + url + "\nApplication=" + bytes);
  return 0;
}
