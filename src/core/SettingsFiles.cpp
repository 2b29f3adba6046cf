#include "core/SettingsFiles.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <vector>

#include "base/FieldText.h"
#include "base/Text.h"
#include "base/Utf8.h"

namespace corvelle {

namespace {

constexpr std::string_view kPositionFile = "toolbarp.dat";
constexpr std::string_view kIconFile = "httpicon.ini";
constexpr std::string_view kIconPage = "httpicon.htm";
constexpr std::string_view kBrowserFile = "openurl.ini";
constexpr std::string_view kCommandLine = "Command=";
constexpr std::string_view kApplicationLine = "Application=";
constexpr std::string_view kEndOfLine = "\r\n";

// None of these files has a use for more.
constexpr std::size_t kTextLimit = 65536;

std::string PathOf(std::string_view appPath, std::string_view name) {
  return std::string(appPath) + std::string(name);
}

}  // namespace

float LoadToolbarPosition(FileSystem& files, std::string_view appPath) {
  const auto bytes = files.Read(PathOf(appPath, kPositionFile), 0, sizeof(float));
  if (!bytes || bytes->size() < sizeof(float)) return 0.0F;
  std::uint32_t bits = 0;
  for (std::size_t i = 0; i < sizeof(float); ++i) {
    bits |= static_cast<std::uint32_t>(static_cast<unsigned char>((*bytes)[i])) << (8U * i);
  }
  const float left = std::bit_cast<float>(bits);
  return std::isfinite(left) ? left : 0.0F;
}

FileStatus SaveToolbarPosition(FileSystem& files, std::string_view appPath, float left) {
  const auto bits = std::bit_cast<std::uint32_t>(left);
  std::string bytes;
  for (std::size_t i = 0; i < sizeof(float); ++i) {
    bytes.push_back(static_cast<char>(bits >> (8U * i) & 0xFFU));
  }
  return files.Replace(PathOf(appPath, kPositionFile), bytes);
}

std::string LoadWebLinkIcon(FileSystem& files, const CodePage& ansi, std::string_view appPath,
                            const OptionFlags& flags) {
  if (flags.Is(Option::OwnWebLinkIcon)) {
    const auto bytes = files.Read(PathOf(appPath, kIconFile), 0, kTextLimit);
    const auto lines = SplitLines(bytes ? std::string_view(*bytes) : std::string_view());
    std::string icon = lines.empty() ? std::string() : Trim(DecodeText(lines.front(), ansi));
    if (!icon.empty()) return icon;
  }
  std::string page = PathOf(appPath, kIconPage);
  // Without the page the icon is that of a missing file, which every entry can show.
  if (!files.FileExists(page)) static_cast<void>(WriteEmptyHtml(files, page));
  return page;
}

FileStatus SaveWebLinkIcon(FileSystem& files, const CodePage& ansi, std::string_view appPath,
                           std::string_view iconPath) {
  return files.Replace(PathOf(appPath, kIconFile),
                       EncodeText(iconPath, ansi) + std::string(kEndOfLine));
}

FileStatus WriteEmptyHtml(FileSystem& files, std::string_view path) {
  return files.Replace(path, kEmptyHtml);
}

std::optional<std::string> BrowserServiceName(std::string_view browserPath) {
  if (ContainsNoCase(browserPath, "Explore")) return "IExplore";
  if (ContainsNoCase(browserPath, "Netscape")) return "NSShell";
  return std::nullopt;
}

std::string FormatBrowserChoice(const BrowserChoice& choice, const CodePage& ansi) {
  std::string content;
  content += kCommandLine;
  content += EncodeText(choice.BrowserCommand, ansi);
  content += kEndOfLine;
  content += kApplicationLine;
  content += EncodeText(choice.BrowserApplication, ansi);
  content += kEndOfLine;
  return content;
}

BrowserChoice ParseBrowserChoice(std::string_view bytes, const CodePage& ansi) {
  BrowserChoice choice;
  for (const std::string& stored : SplitLines(bytes)) {
    const std::string line = Trim(LowerCase(DecodeText(stored, ansi)));
    // The value starts at a fixed place of the line, wherever in it the word stands.
    if (ContainsNoCase(line, kCommandLine)) {
      choice.BrowserCommand = Trim(SkipCharacters(line, kCommandLine.size()));
    }
    if (ContainsNoCase(line, kApplicationLine)) {
      choice.BrowserApplication = Trim(SkipCharacters(line, kApplicationLine.size()));
    }
  }
  return choice;
}

BrowserChoice LoadBrowserChoice(FileSystem& files, const CodePage& ansi, std::string_view appPath) {
  const auto bytes = files.Read(PathOf(appPath, kBrowserFile), 0, kTextLimit);
  return bytes ? ParseBrowserChoice(*bytes, ansi) : BrowserChoice();
}

FileStatus SaveBrowserChoice(FileSystem& files, const CodePage& ansi, std::string_view appPath,
                             const BrowserChoice& choice) {
  return files.Replace(PathOf(appPath, kBrowserFile), FormatBrowserChoice(choice, ansi));
}

FileStatus ForgetBrowserChoice(FileSystem& files, std::string_view appPath) {
  FileStatus removed = files.Remove(PathOf(appPath, kBrowserFile));
  if (!removed && removed.Error() == FileError::NotFound) return Done();
  return removed;
}

}  // namespace corvelle
