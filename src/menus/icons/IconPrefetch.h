#pragma once

#include <string>

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

  Program& program_;
  MenuIcons& icons_;
};

}  // namespace corvelle
