#include "menus/folders/sFolder.h"

#include "base/CodePage.h"
#include "base/FieldText.h"
#include "base/Text.h"
#include "core/SpecialFolders.h"
#include "menus/folders/FolderRules.h"
#include "menus/folders/GeneratedMenu.h"
#include "platform/FileSystem.h"

namespace corvelle {

namespace {

void KeepList(FileSystem& files, const std::string& cache, const std::string& bytes) {
  // A list that is not kept makes the next comparison find a change, which is harmless; half a list
  // would as well.
  if (!files.Write(cache, bytes)) static_cast<void>(files.Remove(cache));
}

}  // namespace

std::string ListCacheBytes(const std::vector<std::string>& lines, const CodePage& ansi) {
  std::string bytes;
  for (const std::string& line : lines) {
    bytes += EncodeText(UpperCase(line), ansi);
    bytes += '\0';
    bytes += EncodeText(line, ansi) + "\r\n";
  }
  return bytes;
}

bool ShowsRecycleBin(std::string_view folderName) {
  const std::string command = FolderWithoutOptions(folderName);
  const int folder = CsidlValue(command);
  return folder == kDesktopFolder || folder == kRecycleBinFolder || IsDesktopFolder(command);
}

clsFolder ExpandSpecialFolder(FileSystem& files, const CodePage& ansi, GeneratedMenu& menu,
                              int record, const SpecialFolderLines& lines,
                              std::string_view menuFile) {
  clsFolder folder;
  folder.FolderName = menu.Source()[static_cast<std::size_t>(record) - 1].FName;
  const std::string command = FolderWithoutOptions(folder.FolderName);
  folder.UpdateFolder = FolderOptions(folder.FolderName).find('U') != std::string::npos;
  menu.BeginItem(record);
  folder.RecStart = menu.Count() + 1;
  const std::string cache = ListCacheName(menuFile, command);
  const bool here = lines.State == FolderState::Here;
  if (lines.Lines) {
    if (here) KeepList(files, cache, ListCacheBytes(*lines.Lines, ansi));
    for (const std::string& line : *lines.Lines) {
      const ShellFolderLine entry = ParseShellFolderLine(line);
      menu.AddEntry(record, {entry.Name, entry.Icon, command}, entry.Name);
    }
    folder.RecTotal = static_cast<int>(lines.Lines->size());
  } else if (here) {
    static_cast<void>(files.Remove(cache));
  }
  folder.RecEnd = menu.Count();
  return folder;
}

bool SpecialFolderChanged(FileSystem& files, const CodePage& ansi, std::string_view folderName,
                          const SpecialFolderLines& lines, std::string_view menuFile) {
  if (!lines.Lines) return false;
  const std::string now = ListCacheBytes(*lines.Lines, ansi);
  // One byte more than there should be tells a longer list.
  const auto kept =
      files.Read(ListCacheName(menuFile, FolderWithoutOptions(folderName)), 0, now.size() + 1);
  return !kept || *kept != now;
}

}  // namespace corvelle
