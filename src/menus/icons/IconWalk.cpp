#include "menus/icons/IconWalk.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"
#include "core/MenuFile.h"
#include "core/MenuRecord.h"
#include "menus/folders/mFolder.h"

namespace corvelle {

namespace {

constexpr std::string_view kSkipMark = "/h";

std::string IconOf(const MenuRecord& record) {
  return IsSkippedIcon(record.FIcon) ? std::string() : StripAtNull(record.FIcon);
}

void AddFiles(const FolderLister& list, std::string_view folderItem,
              std::vector<std::string>& texts) {
  const FoundFiles found = ListFolderItem(list, ParseFolderItem(folderItem));
  // No menu shows more.
  const std::size_t most = std::min(found.Files.size(), static_cast<std::size_t>(kMaxRecords));
  texts.reserve(texts.size() + most);
  for (std::size_t i = 0; i < most; ++i) texts.push_back(found.PathOf(found.Files[i]));
}

}  // namespace

bool IsSkippedIcon(std::string_view icon) {
  const std::size_t end = icon.find('\0');
  return end != std::string_view::npos && StartsWithNoCase(Trim(icon.substr(end + 1)), kSkipMark);
}

IconTexts IconTextsOf(FileSystem& files, const CodePage& ansi, std::string_view menuFile,
                      const FolderLister& list) {
  IconTexts texts;
  const auto records = ReadAllRecords(files, ansi, menuFile);
  if (!records) return texts;
  for (std::size_t i = 0; i < records->size(); ++i) {
    const MenuRecord& record = (*records)[i];
    // The first record is the button, and no folder item whatever it holds.
    if (i == 0) {
      texts.Button = IconOf(record);
      continue;
    }
    texts.Items.push_back(IconOf(record));
    if (IsFolderItem(record.FName) && !IsClosedFolder(record.FName)) {
      AddFiles(list, record.FName, texts.Items);
    }
  }
  return texts;
}

}  // namespace corvelle
