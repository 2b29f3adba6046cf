#include "core/Upgrade.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include "base/Sort.h"
#include "base/Text.h"

namespace corvelle {
namespace {

constexpr std::string_view kOlderFlagFiles = "tmenu4*.dat";
constexpr std::string_view kFlagFileStart = "tmenu4";
constexpr std::string_view kDataEnd = ".dat";

// The program may have been unpacked among files of others, so that only its own names count.
constexpr std::string_view kDataFiles[] = {"toolbarp.dat", "mainmenu.dat", "sfdata.dat",
                                           "nsearch.dat",  "clrlib.dat",   "others.dat"};

/// "tmenu4", a number and ".dat": the option flags of one version or another.
bool IsFlagFile(std::string_view name) {
  if (!StartsWithNoCase(name, kFlagFileStart) || !EndsWithNoCase(name, kDataEnd)) return false;
  name.remove_prefix(kFlagFileStart.size());
  name.remove_suffix(std::min(name.size(), kDataEnd.size()));
  return !name.empty() &&
         std::all_of(name.begin(), name.end(), [](char c) { return c >= '0' && c <= '9'; });
}

bool IsOwnDataFile(std::string_view name) {
  return IsFlagFile(name) ||
         std::any_of(std::begin(kDataFiles), std::end(kDataFiles),
                     [name](std::string_view own) { return EqualNoCase(name, own); });
}

// The names of the older versions' flag files, sorted, so that the choice does not hang on the
// disk.
std::vector<std::string> OlderFlagFiles(FileSystem& files, const std::string& folder) {
  std::vector<std::string> names;
  // A folder that cannot be listed holds no older flags to take over.
  for (const FileEntry& entry : files.List(folder, kOlderFlagFiles).ValueOr({})) {
    if (!entry.IsFolder && IsFlagFile(entry.Name)) names.push_back(entry.Name);
  }
  SortTexts(names);
  return names;
}

void DeleteDataFiles(FileSystem& files, const std::string& folder) {
  const auto entries = files.List(folder, "*.dat");
  if (!entries) return;
  for (const FileEntry& entry : *entries) {
    // A locked file is left for the next time.
    if (!entry.IsFolder && IsOwnDataFile(entry.Name)) {
      static_cast<void>(files.Remove(folder + entry.Name));
    }
  }
}

}  // namespace

FileResult<OptionFlags> ReadFlagsAtStart(FileSystem& files, std::string_view appPath) {
  const std::string folder(appPath);
  const std::string current = folder + std::string(kOptionFlagsFileName);
  const FileResult<std::string> saved = files.Read(current, 0, OptionFlags::kLength);
  if (saved) return OptionFlags::Clean(*saved);
  if (saved.Error() != FileError::NotFound) return saved.Error();
  const std::vector<std::string> older = OlderFlagFiles(files, folder);
  if (older.empty()) return OptionFlags();
  const FileResult<std::string> bytes = files.Read(folder + older.front(), 0, OptionFlags::kLength);
  if (!bytes) return bytes.Error();
  OptionFlags flags = OptionFlags::Clean(*bytes);
  flags.Set(Option::FirstRunDone, false);
  flags.Set(Option::DefaultEntriesOffered, false);
  // Only once they are kept; should the old file stay then, this version's file outweighs it.
  if (SaveOptionFlags(files, appPath, flags)) {
    static_cast<void>(files.Remove(folder + older.front()));
  }
  return flags;
}

void CleanInstallation(FileSystem& files, std::string_view appPath, std::string_view engines) {
  const std::string folder(appPath);
  DeleteDataFiles(files, folder);
  const std::string icons = folder + "ICONS\\";
  if (files.FolderExists(icons)) DeleteDataFiles(files, icons);
  // A folder that came without the factory list stays without a list.
  if (!files.FileExists(folder + "netsrch.ini")) {
    static_cast<void>(files.Copy(engines, folder + "netsrch.ini"));
  }
}

}  // namespace corvelle
