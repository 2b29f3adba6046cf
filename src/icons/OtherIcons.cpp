#include "icons/OtherIcons.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

#include "base/Sort.h"
#include "base/Text.h"
#include "core/Program.h"
#include "icons/LibraryFile.h"
#include "platform/FileSystem.h"
#include "platform/Registry.h"
#include "platform/ShellIcons.h"
#include "platform/SystemInfo.h"

namespace corvelle {

namespace {

constexpr std::string_view kAppPaths = "Software\\Microsoft\\Windows\\CurrentVersion\\App Paths";

std::string OthersFile(const Program& program) { return program.Paths.IconsPath + "others.dat"; }

void AddOnce(std::vector<std::string>& rows, std::string_view path) {
  const bool known = std::any_of(rows.begin(), rows.end(), [&](const std::string& row) {
    return EqualNoCase(OtherFilePath(row), path);
  });
  if (!known) rows.push_back(OtherFileRow(path));
}

void AddShellFiles(Program& program, std::vector<std::string>& rows) {
  const SystemInfo& system = program.Services.System;
  for (const std::string& path : {EnsureBackslash(system.SystemFolder()) + "Shell32.dll",
                                  EnsureBackslash(system.WindowsFolder()) + "Explorer.exe"}) {
    if (program.Services.Files.FileExists(path)) AddOnce(rows, path);
  }
}

void AddRegisteredPrograms(Program& program, std::vector<std::string>& rows) {
  const Registry& keys = program.Services.Keys;
  for (const std::string& name : keys.SubKeys(RegistryRoot::LocalMachine, kAppPaths)) {
    const auto value =
        keys.Text(RegistryRoot::LocalMachine, std::string(kAppPaths) + "\\" + name, {});
    if (!value) continue;
    const std::string path = PlainCase(StripQuotes(StripAtNull(*value)));
    // A path with a "|" could not be told from its name again.
    if (path.empty() || path.find('|') != std::string::npos) continue;
    if (program.Services.Icons.IconCount(path) > 0) AddOnce(rows, path);
  }
}

}  // namespace

std::vector<std::string> ReadOthers(Program& program) {
  FileSystem& files = program.Services.Files;
  const std::string file = OthersFile(program);
  const auto length = files.Length(file);
  if (!length) return InitOthers(program);
  const auto bytes = files.Read(file, 0, static_cast<std::size_t>(*length));
  std::vector<std::string> rows;
  // A list that is there but cannot be read is left as it is.
  if (!bytes) return rows;
  for (const std::string& path : LibraryLines(*bytes, program.Services.Ansi)) {
    rows.push_back(OtherFileRow(path));
  }
  SortTexts(rows);
  return rows;
}

void SaveOthers(Program& program, const std::vector<std::string>& rows) {
  FileSystem& files = program.Services.Files;
  const std::string file = OthersFile(program);
  if (rows.empty()) {
    // One that cannot be removed is asked for again when it is read.
    static_cast<void>(files.Remove(file));
    return;
  }
  std::vector<std::string> paths;
  for (const std::string& row : rows) paths.push_back(OtherFilePath(row));
  // The old list stays when the new one cannot be stored.
  static_cast<void>(files.Replace(file, FormatLibraryLines(paths, program.Services.Ansi)));
}

std::vector<std::string> InitOthers(Program& program) {
  std::vector<std::string> rows;
  AddShellFiles(program, rows);
  AddRegisteredPrograms(program, rows);
  SortTexts(rows);
  SaveOthers(program, rows);
  return rows;
}

}  // namespace corvelle
