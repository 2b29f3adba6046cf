#include "core/DataFolder.h"

#include <cstddef>

#include "base/Text.h"
#include "platform/FileSystem.h"
#include "platform/ShellFolders.h"

namespace corvelle {
namespace {

constexpr int kUserDataFolder = 26;  // CSIDL_APPDATA
constexpr std::string_view kOwnFolder = "Corvelle\\";
constexpr std::string_view kProbeName = "~corvelle.tmp";
// One program's folder a line.
constexpr std::string_view kToldFile = "readonly.txt";
constexpr std::string_view kLineEnd = "\r\n";
constexpr std::size_t kToldLimit = std::size_t{1} << 16U;

// Only a refusal counts: a disk that is full or busy at this moment is the user's folder all the
// same. Where Windows guards a folder against programs that it does not know, a new file is refused
// as one that is not found; the folder itself is there, since the program runs from it.
bool CanMakeFiles(FileSystem& files, const std::string& folder) {
  const std::string probe = folder + std::string(kProbeName);
  const FileStatus made = files.Write(probe, {});
  if (!made) {
    return made.Error() != FileError::AccessDenied && made.Error() != FileError::NotFound;
  }
  // What stays is written over by the next start.
  static_cast<void>(files.Remove(probe));
  return true;
}

/// The user's own folder, with a trailing backslash; empty when the system has none.
std::string UserFolder(const Platform& system) {
  const auto data = system.Folders.PathOf(kUserDataFolder);
  return data && !data->empty() ? EnsureBackslash(*data) + std::string(kOwnFolder) : std::string();
}

std::string ToldLines(const Platform& system, const std::string& dataFolder) {
  return system.Files.Read(dataFolder + std::string(kToldFile), 0, kToldLimit).ValueOr("");
}

}  // namespace

DataChoice ChooseDataFolder(const DataFacts& facts) noexcept {
  if (!facts.HasUserFolder) return {.BesideProgram = true, .Tell = false};
  if (!facts.Writable) return {.BesideProgram = false, .Tell = true};
  return {.BesideProgram = facts.Marked || facts.HoldsMenus, .Tell = false};
}

DataFolder FindDataFolder(const Platform& system, std::string_view programFolder) {
  FileSystem& files = system.Files;
  const std::string beside(programFolder);
  const std::string own = UserFolder(system);
  const std::string standIn = beside + std::string(kStandInMark);
  DataFacts facts{.HasUserFolder = !own.empty()};
  if (facts.HasUserFolder) {
    facts.Marked = files.FileExists(beside + std::string(kPortableMark));
    facts.HoldsMenus =
        files.FolderExists(beside + std::string(kMenusFolder)) && !files.FileExists(standIn);
    facts.Writable = CanMakeFiles(files, beside);
  }
  const DataChoice choice = ChooseDataFolder(facts);
  if (choice.BesideProgram) return {.Path = beside};
  if (files.FolderExists(own) || files.MakeFolder(own)) return {.Path = own, .Tell = choice.Tell};
  // If the mark cannot be written here, no menus can either.
  static_cast<void>(files.Replace(standIn, {}));
  return {.Path = beside, .StandsIn = true};
}

bool WasToldAbout(const Platform& system, const std::string& dataFolder,
                  std::string_view programFolder) {
  const std::string lines = ToldLines(system, dataFolder);
  std::string_view rest = lines;
  while (!rest.empty()) {
    const std::size_t end = rest.find(kLineEnd);
    if (EqualNoCase(rest.substr(0, end), programFolder)) return true;
    if (end == std::string_view::npos) break;
    rest.remove_prefix(end + kLineEnd.size());
  }
  return false;
}

void NoteToldAbout(const Platform& system, const std::string& dataFolder,
                   std::string_view programFolder) {
  const std::string lines =
      ToldLines(system, dataFolder) + std::string(programFolder) + std::string(kLineEnd);
  static_cast<void>(system.Files.Replace(dataFolder + std::string(kToldFile), lines));
}

}  // namespace corvelle
