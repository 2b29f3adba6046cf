#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "core/MenuFile.h"
#include "menus/MenuDesk.h"
#include "menus/folders/FolderMenus.h"

namespace corvelle {

using Strings = std::vector<std::string>;

/// A desktop whose program has folder items, and a folder with three files.
class FolderDesk : public MenuDesk {
 public:
  explicit FolderDesk(const sim::WorldOptions& options = {})
      : MenuDesk(options),
        Items(TheProgram.Services, TheProgram.Windows, TheProgram.Answers, TheProgram.Icons) {
    TheProgram.Ports.FolderMenus = &Items;
    for (const char* name : {"beta.txt", "Alpha.txt", "gamma.doc"}) {
      World.Files.Put("C:\\Docs\\" + std::string(name), "x");
    }
    World.Icons.SetIndex(".txt", 5);
    World.Icons.SetIndex(".doc", 6);
  }

  FolderMenus Items;

  Strings Captions() {
    Strings captions;
    for (int i = 1; i <= Menu.Items().Count(); ++i) captions.push_back(Menu.Lbl[i].Caption());
    return captions;
  }
  std::vector<int> Numbers() {
    std::vector<int> numbers;
    for (int i = 1; i <= Menu.Items().Count(); ++i) numbers.push_back(Menu.GetRecordNum(i));
    return numbers;
  }
  /// Opens a menu of these commands, each with the title "Item" and its place.
  void OpenCommands(const Strings& commands, int number = 1) {
    std::vector<MenuRecord> items;
    for (const std::string& command : commands) {
      items.push_back(Item("Item " + std::to_string(items.size() + 2), "", command));
    }
    Open(number, items);
  }
  void OpenAgain(int number = 1) {
    Menu.HideMenu();
    Reopen(number);
  }
  /// All records of the generated file.
  std::vector<MenuRecord> Generated(int number = 1) {
    std::string name = TheProgram.Paths.MenusPath + MenuFileName(number);
    name.replace(name.size() - 3, 3, "mfd");
    if (!World.Files.Has(name)) return {};
    return ReadAllRecords(World.Files, World.Ansi, name).ValueOr({});
  }
  int Built() { return static_cast<int>(World.Files.Count("Write")); }
  void SetBin(const std::string& icon) {
    World.Keys.Set(RegistryRoot::ClassesRoot,
                   "CLSID\\{645FF040-5081-101B-9F08-00AA002F954E}\\DefaultIcon", "", icon);
  }
};

}  // namespace corvelle
