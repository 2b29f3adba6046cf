#pragma once

#include <memory>
#include <string>
#include <vector>

#include "menus/folders/FolderQuestions.h"

namespace corvelle {

class MenuIcons;
class Program;

/// Fetches icons before a menu asks for them. No window.
class IconPrefetch {
 public:
  IconPrefetch(Program& program, MenuIcons& icons) : program_(program), icons_(icons) {}

  /// Those of all menu files, of the files of their folder items, and of the links, each when
  /// nothing more urgent is asked. Does nothing while a menu is being built.
  void InitIcons();

 private:
  void LoadIconsOf(const std::string& menuFile);
  /// Those of the files of folder items whose listing has come.
  void FetchListed();
  /// False while it is not known what the folder item holds.
  [[nodiscard]] bool FetchFilesOf(const std::string& folderItem);

  Program& program_;
  MenuIcons& icons_;
  std::vector<std::string> folders_;  // folder items that are not listed yet
  std::unique_ptr<FolderQuestions> questions_;
};

}  // namespace corvelle
