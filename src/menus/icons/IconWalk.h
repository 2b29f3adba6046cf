#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "menus/folders/mFolder.h"

namespace corvelle {

class CodePage;
class FileSystem;

/// The icon texts of a menu file.
struct IconTexts {
  std::string Button;  // of its first record; empty when there is none to fetch
  /// Of the other records in their order, each open folder item's followed by the full paths of the
  /// files that it holds now, which are the icon texts of its entries.
  std::vector<std::string> Items;
};

/// Reads a menu file; `list` says what its open folder items hold. A file that cannot be read has
/// no icons.
[[nodiscard]] IconTexts IconTextsOf(FileSystem& files, const CodePage& ansi,
                                    std::string_view menuFile, const FolderLister& list);

/// True for an icon text that is not fetched beforehand: "/h", in any case, follows its first
/// NUL.
[[nodiscard]] bool IsSkippedIcon(std::string_view icon);

}  // namespace corvelle
