#include "launch/CommandForm.h"

#include "base/FieldText.h"
#include "base/Text.h"
#include "base/Utf8.h"
#include "base/WebAddress.h"
#include "core/RecordEdits.h"
#include "core/SpecialFolders.h"

namespace corvelle {

namespace {

constexpr std::string_view kSpecialStart = "CSIDL_";
constexpr std::string_view kMailStart = "mailto:";
constexpr std::string_view kUrlEnd = ".url";
constexpr std::string_view kLinkEnd = ".lnk";
constexpr std::string_view kBeforeAddress = " \t\"";
constexpr char kRawMarker = '?';

struct BuiltInWord {
  std::string_view Word;
  CommandKind Kind;
};

constexpr BuiltInWord kBuiltIns[] = {
    {"netsearch", CommandKind::NetSearch},
    {"findcomputer", CommandKind::FindComputer},
    {"MinimizeAllWindows", CommandKind::MinimizeAllWindows},
    {"UndoMinimizeAll", CommandKind::UndoMinimizeAll},
    {"ClearRecentDocs", CommandKind::ClearRecentDocs},
    {"ClearTempFolder", CommandKind::ClearTempFolder},
    {"filefind", CommandKind::FileFind},
};

/// True if what is at `at` of a line is a part of an address of another kind: the value before
/// it, back to a blank or a quote, is not empty.
bool IsInsideAddress(std::string_view line, std::size_t at) noexcept {
  const std::size_t equals = line.find('=');
  const std::size_t value = equals < at ? equals + 1 : 0;
  const std::string_view before = line.substr(value, at - value);
  return !before.empty() && kBeforeAddress.find(before.back()) == std::string_view::npos;
}

/// The meaning of a text that is neither empty nor a special folder, or raw.
CommandKind ClassifyRest(std::string_view text) noexcept {
  for (const BuiltInWord& word : kBuiltIns) {
    if (EqualNoCase(text, word.Word)) return word.Kind;
  }
  if (EndsWithNoCase(text, kUrlEnd)) return CommandKind::UrlFile;
  return ClassifyAddress(text);
}

bool IsLetter(char c) noexcept { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

bool IsOnDisk(std::string_view path) noexcept {
  return path.starts_with("\\\\") || (path.size() > 2 && IsLetter(path[0]) && path[1] == ':');
}

/// "C:\Tools\*.exe /S" leads to "C:\Tools\".
std::string FolderOfItem(std::string_view item) {
  const std::string path = FolderWithoutOptions(item);
  return path.substr(0, path.rfind('\\') + 1);
}

}  // namespace

CommandForm ClassifyCommand(std::string_view command) {
  std::string text = Trim(command);
  if (text.empty()) return {};
  if (StartsWithNoCase(text, kSpecialStart) || IsSpecialFolderEntry(text))
    return {CommandKind::SpecialFolder, std::move(text)};
  if (text.front() == kRawMarker) text = Trim(std::string_view(text).substr(1));
  const CommandKind kind = ClassifyRest(text);
  return {kind, std::move(text)};
}

CommandKind ClassifyAddress(std::string_view text) noexcept {
  if (IsWebAddress(text)) return CommandKind::WebAddress;
  if (StartsWithNoCase(text, kMailStart)) return CommandKind::MailAddress;
  if (EndsWithNoCase(text, kLinkEnd)) return CommandKind::ShellLink;
  return CommandKind::Other;
}

std::optional<std::string> ParseUrlFile(std::string_view bytes, const CodePage& ansi) {
  for (const std::string& line : SplitLines(bytes)) {
    if (!ContainsNoCase(line, "url=")) continue;
    const std::size_t start = FindWebAddress(line);
    if (start == std::string::npos || IsInsideAddress(line, start)) continue;
    return StripAtNull(DecodeText(std::string_view(line).substr(start), ansi));
  }
  return std::nullopt;
}

std::string GetItemWorkDir(std::string_view path) {
  if (!SkipCharacters(path, 1).starts_with(":\\")) return {};
  return std::string(path.substr(0, path.rfind('\\') + 1));
}

std::string LinkFolder(std::string_view target) {
  const std::string path = StripAtNull(target);
  return path.substr(0, path.rfind('\\') + 1);
}

CommandLineParts SplitCommandLine(std::string_view line,
                                  const std::function<bool(const std::string&)>& exists) {
  const std::string text = Trim(line);
  const auto splitAt = [&text](std::size_t from, std::size_t end) {
    if (end == std::string::npos) return CommandLineParts{text.substr(from), {}};
    return CommandLineParts{text.substr(from, end - from),
                            Trim(std::string_view(text).substr(end + 1))};
  };
  if (text.starts_with('"')) return splitAt(1, text.find('"', 1));
  for (std::size_t end = text.find(' ');; end = text.find(' ', end + 1)) {
    const std::string program = text.substr(0, end);
    if (exists(program) || exists(program + ".exe")) return splitAt(0, end);
    if (end == std::string::npos) return splitAt(0, text.find(' '));
  }
}

std::string Quoted(std::string_view text) { return "\"" + std::string(text) + "\""; }

std::vector<std::string> TargetsOf(std::string_view command) {
  if (Trim(command).starts_with(kRawMarker)) return {};
  const CommandForm form = ClassifyCommand(command);
  const bool isFile = form.Kind == CommandKind::Other || form.Kind == CommandKind::ShellLink ||
                      form.Kind == CommandKind::UrlFile;
  if (!isFile) return {};
  const std::string& text = form.Text;
  if (IsOnDisk(text) && IsFolderItem(text)) return {FolderOfItem(text)};
  if (text.starts_with('"')) {
    const std::string quoted =
        SplitCommandLine(text, [](const std::string&) { return false; }).Program;
    if (!IsOnDisk(quoted)) return {};
    return {quoted, quoted + ".exe"};
  }
  if (!IsOnDisk(text)) return {};
  // The whole first: most commands are a path and nothing else.
  std::vector<std::string> targets{text, text + ".exe"};
  for (std::size_t end = text.find(' '); end != std::string::npos; end = text.find(' ', end + 1)) {
    targets.push_back(text.substr(0, end));
    targets.push_back(text.substr(0, end) + ".exe");
  }
  return targets;
}

std::string DriveOf(std::string_view path) {
  return UpperCase(path.substr(0, path.find('\\', path.starts_with("\\\\") ? 2 : 0)));
}

}  // namespace corvelle
