#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "menus/items/MenuItem.h"
#include "platform/Canvas.h"

namespace corvelle {

/// One page of a menu.
struct clsMenu {
  int FirstLabel = 0;
  int LastLabel = 0;
  /// 1 once MenuPicture holds the finished page with its icons; page 0 gets it when the menu is
  /// built, the others when they are first shown.
  int Init = 0;
  /// Empty while Init is 0: a page is drawn when it is first shown, and a menu of ten thousand
  /// items keeps no picture of a page that nobody looked at.
  Picture MenuPicture;
};

/// Summary of a menu. Sizes are twips.
struct clsMenuInfo {
  int Labels = 0;
  int Slides = 0;
  std::string Key;
  std::string File;
  float Height = 0;
  float Width = 0;
  float MenuHeight = 0;
  /// The page last on show, to which a reopened menu returns.
  int CurMenu = 0;
};

/// All that is kept of one menu so that it opens again without its file.
struct BuiltMenu {
  clsMenuInfo MenuInfo;
  std::vector<clsMenu> SlideList;  // by page number
  std::vector<MenuItem> Items;     // item 1 first
  std::string Source;              // the file as it was given, before its folder items expanded
  std::string Stored;              // its records as they were stored then
  bool Whole = true;               // false while something is not known of its folders
  float Room = 0;                  // greatest height of the window when it was laid out, twips
  int Dpi = 0;                     // scale of the window then
};

/// The built menus by their keys. They outlive the window's contents.
class MenuCache {
 public:
  /// The menu with this key, ignoring case; null when it is not in the cache.
  [[nodiscard]] std::shared_ptr<BuiltMenu> Find(std::string_view menuKey) const;
  /// Takes a menu under its own key, in the place of an older one.
  void Add(std::shared_ptr<BuiltMenu> menu);
  void Remove(std::string_view menuKey);
  void Clear() { menus_.clear(); }
  /// Takes the pictures of all pages away, so that they are drawn again.
  void DropPictures();

 private:
  std::map<std::string, std::shared_ptr<BuiltMenu>, std::less<>> menus_;
};

/// Keeps no more than `most` pictures in a menu besides those of page 0 and page `current`: what is
/// farthest from `current` goes first and is drawn again when it is shown again.
void LimitPictures(BuiltMenu& menu, int current, int most);

}  // namespace corvelle
