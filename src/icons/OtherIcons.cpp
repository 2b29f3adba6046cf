#include "icons/OtherIcons.h"

#include <string_view>
#include <utility>

#include "base/CodePage.h"
#include "base/Sort.h"
#include "base/Text.h"
#include "core/ProgramPaths.h"
#include "icons/LibraryFile.h"
#include "platform/FileSystem.h"
#include "platform/Registry.h"
#include "platform/SystemInfo.h"

namespace corvelle {

namespace {

constexpr std::string_view kAppPaths = "Software\\Microsoft\\Windows\\CurrentVersion\\App Paths";

}  // namespace

std::string OtherIcons::OthersFile() const { return with_.Paths.IconsPath + "others.dat"; }

std::optional<std::vector<std::string>> OtherIcons::Read() const {
  const std::string file = OthersFile();
  const auto length = with_.Files.Length(file);
  if (!length) return std::nullopt;
  const auto bytes = with_.Files.Read(file, 0, static_cast<std::size_t>(*length));
  std::vector<std::string> rows;
  // A list that is there but cannot be read is left as it is.
  if (!bytes) return rows;
  for (const std::string& path : LibraryLines(*bytes, with_.Ansi)) {
    rows.push_back(OtherFileRow(path));
  }
  SortTexts(rows);
  return rows;
}

void OtherIcons::Save(const std::vector<std::string>& rows) const {
  const std::string file = OthersFile();
  if (rows.empty()) {
    // One that cannot be removed is asked for again when it is read.
    static_cast<void>(with_.Files.Remove(file));
    return;
  }
  std::vector<std::string> paths;
  for (const std::string& row : rows) paths.push_back(OtherFilePath(row));
  // The old list stays when the new one cannot be stored.
  static_cast<void>(with_.Files.Replace(file, FormatLibraryLines(paths, with_.Ansi)));
}

std::vector<Lookup> OtherIcons::FirstQuestions() const {
  std::vector<Lookup> questions = {
      {.Kind = LookupKind::IsThere,
       .Path = EnsureBackslash(with_.System.SystemFolder()) + "Shell32.dll"},
      {.Kind = LookupKind::IsThere,
       .Path = EnsureBackslash(with_.System.WindowsFolder()) + "Explorer.exe"}};
  for (const std::string& name : with_.Keys.SubKeys(RegistryRoot::LocalMachine, kAppPaths)) {
    const auto value =
        with_.Keys.Text(RegistryRoot::LocalMachine, std::string(kAppPaths) + "\\" + name, {});
    if (!value) continue;
    std::string path = PlainCase(StripQuotes(StripAtNull(*value)));
    // A path with a "|" could not be told from its name again.
    if (path.empty() || path.find('|') != std::string::npos) continue;
    questions.push_back({.Kind = LookupKind::IconCount, .Path = std::move(path)});
  }
  return questions;
}

}  // namespace corvelle
