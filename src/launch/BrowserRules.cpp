#include "launch/BrowserRules.h"

#include "base/FieldText.h"
#include "base/Text.h"
#include "base/Utf8.h"

namespace corvelle {

namespace {

constexpr std::string_view kNetscapeKey = "NetscapeMarkup\\shell\\open\\ddeexec\\Application";
constexpr std::string_view kWebKey = "http\\shell\\open\\ddeexec\\Application";
constexpr std::string_view kPageKey = "htmlfile\\shell\\open\\ddeexec\\Application";
constexpr std::string_view kUserLine = "user=";
// The end of a bookmark file closes its last list and holds no title.
constexpr std::size_t kBookmarkTail = 5;
constexpr std::size_t kSmallestBookmarks = 11;
constexpr char kHexDigits[] = "0123456789ABCDEF";

bool MustBeEscaped(char character) noexcept {
  const auto code = static_cast<unsigned char>(character);
  return code <= 0x20 || code == 0x7F || character == '"';
}

}  // namespace

ServiceSource ServiceSourceOf(std::string_view browserCommand) {
  if (ContainsNoCase(browserCommand, "Netscape")) return {{kNetscapeKey, kPageKey}, "NSShell"};
  if (ContainsNoCase(browserCommand, "IExplore")) return {{kWebKey, kPageKey}, "IExplore"};
  return {{kWebKey, kPageKey}, {}};
}

std::string EscapeAddress(std::string_view url) {
  std::string escaped;
  escaped.reserve(url.size());
  for (const char character : url) {
    if (!MustBeEscaped(character)) {
      escaped += character;
      continue;
    }
    const auto code = static_cast<unsigned char>(character);
    escaped += '%';
    escaped += kHexDigits[code >> 4U];
    escaped += kHexDigits[code & 0xFU];
  }
  return escaped;
}

std::string BrowserItem(std::string_view url) { return "\"" + EscapeAddress(url) + "\",,-1,0,,,,"; }

std::string FormatUrlFile(std::string_view url, const CodePage& ansi) {
  return "[InternetShortcut]\r\nURL=" + EncodeText(EscapeAddress(url), ansi) + "\r\n";
}

std::string PageTitle(std::string_view caption) {
  return std::string(caption.substr(0, caption.rfind('-')));
}

bool IsBookmarkCaption(std::string_view caption) noexcept {
  return ContainsNoCase(caption, "bookmarks") && !ContainsNoCase(caption, "Netscape") &&
         !ContainsNoCase(caption, "Explorer");
}

std::string ParseBookmarkTitle(std::string_view bytes, std::string_view url, const CodePage& ansi) {
  if (bytes.size() < kSmallestBookmarks) return {};
  const std::string text = DecodeText(bytes.substr(0, bytes.size() - kBookmarkTail), ansi);
  const std::size_t at = FindNoCase(text, "\"" + std::string(url));
  if (at == std::string::npos) return {};
  const std::size_t open = text.find('>', at);
  if (open == std::string::npos) return {};
  const std::size_t start = open + 1;
  const std::size_t end = text.find('<', start);
  return Trim(std::string_view(text).substr(start, end == std::string::npos ? end : end - start));
}

std::string ParseBookmarkFolder(std::string_view bytes, const CodePage& ansi) {
  std::string folder;
  for (const std::string& stored : SplitLines(bytes)) {
    const std::string line = Trim(DecodeText(stored, ansi));
    if (ContainsNoCase(line, kUserLine)) folder = Trim(SkipCharacters(line, kUserLine.size()));
  }
  return folder;
}

std::vector<std::string> UsersFolders(std::string_view programPath) {
  std::vector<std::string> folders;
  for (std::size_t slash = programPath.rfind('\\'); slash != std::string_view::npos;
       slash = programPath.substr(0, slash).rfind('\\')) {
    folders.push_back(std::string(programPath.substr(0, slash + 1)) + "Users\\");
  }
  return folders;
}

}  // namespace corvelle
