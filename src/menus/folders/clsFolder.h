#pragma once

#include <string>
#include <vector>

namespace corvelle {

/// One folder item of a built menu.
struct clsFolder {
  std::string FolderName;     // the command with its options
  std::string FileTitle;      // the menu file that holds the item
  int RecStart = 0;           // the first record that it produced in the generated file
  int RecEnd = 0;             // how many records the generated file had after it
  int RecTotal = 0;           // how many entries it produced
  bool UpdateFolder = false;  // to be compared with the disk at each opening

  friend bool operator==(const clsFolder&, const clsFolder&) = default;
};

/// What the folder items of a menu listed last, so that a comparison need not read the generated
/// file.
struct clsFolderUpdate {
  /// For each clsFolder of the menu the full paths of its files in their order; empty for one that
  /// is not compared in this way.
  std::vector<std::vector<std::string>> FileList;
  std::string MenuKey;
};

}  // namespace corvelle
