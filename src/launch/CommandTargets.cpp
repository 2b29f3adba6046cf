#include "launch/CommandTargets.h"

#include "base/Text.h"
#include "core/RecordEdits.h"
#include "launch/CommandForm.h"

namespace corvelle {

namespace {

bool IsLetter(char c) noexcept { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

bool IsOnDisk(std::string_view path) noexcept {
  return path.starts_with("\\\\") || (path.size() > 2 && IsLetter(path[0]) && path[1] == ':');
}

/// "C:\Tools\*.exe /S" leads to "C:\Tools\".
std::string FolderOf(std::string_view item) {
  const std::string path = FolderWithoutOptions(item);
  return path.substr(0, path.rfind('\\') + 1);
}

}  // namespace

std::vector<std::string> TargetsOf(std::string_view command) {
  const CommandForm form = ClassifyCommand(command);
  const bool isFile = form.Kind == CommandKind::Other || form.Kind == CommandKind::ShellLink ||
                      form.Kind == CommandKind::UrlFile;
  if (!isFile) return {};
  const std::string& text = form.Text;
  if (IsOnDisk(text) && IsFolderItem(text)) return {FolderOf(text)};
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
