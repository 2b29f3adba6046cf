#include "core/MenuFolder.h"

#include "base/Sort.h"
#include "base/Text.h"
#include "core/FileTransaction.h"
#include "core/MenuRecord.h"

namespace corvelle {

namespace {

FileResult<std::vector<std::string>> ListByEnding(FileSystem& files, std::string_view menusPath,
                                                  std::string_view ending) {
  const auto entries = files.List(menusPath, "*" + std::string(ending));
  if (!entries) return entries.Error();
  std::vector<std::string> names;
  for (const FileEntry& entry : *entries) {
    if (!entry.IsFolder) names.push_back(UpperCase(entry.Name));
  }
  SortTexts(names);
  return names;
}

}  // namespace

FileStatus PurgeMenus(FileSystem& files, std::string_view menusPath) {
  const auto entries = files.List(menusPath, "*.*");
  if (!entries) return entries.Error();
  for (const FileEntry& entry : *entries) {
    if (entry.IsFolder || EndsWithNoCase(entry.Name, ".btn") ||
        EndsWithNoCase(entry.Name, ".mnu") || EqualNoCase(entry.Name, kJournalFileName) ||
        EqualNoCase(entry.Name, kDraftFileName)) {
      continue;
    }
    // What is held open or protected does no harm by staying until the next start.
    static_cast<void>(files.Remove(std::string(menusPath) + entry.Name));
  }
  return Done();
}

FileResult<std::vector<std::string>> ListMenuFiles(FileSystem& files, std::string_view menusPath) {
  return ListByEnding(files, menusPath, ".MNU");
}

FileResult<std::vector<std::string>> OrderedMenuFiles(FileSystem& files,
                                                      std::string_view menusPath) {
  FileResult<std::vector<std::string>> names = ListMenuFiles(files, menusPath);
  if (!names) return names;
  const std::string folder(menusPath);
  int place = 0;
  for (std::string& name : *names) {
    const std::string wanted = MenuFileName(++place);
    if (name == wanted || files.FileExists(folder + wanted)) continue;
    // Were the files behind it to go on, the next listing would show them before this one.
    if (!files.Rename(folder + name, folder + wanted)) break;
    name = wanted;
  }
  return names;
}

FileResult<std::vector<std::string>> OrderedSingleFiles(FileSystem& files,
                                                        std::string_view menusPath) {
  return ListByEnding(files, menusPath, ".BTN");
}

}  // namespace corvelle
