#pragma once

#include "base/Twips.h"

namespace corvelle {

/// The inside of the Customize window, in twips.
struct CustScene {
  float Width = 7930;
  float Height = 5500;
  float TwipsPerPixel = 15;
  bool Finding = false;   // the box to find in is up
  bool Offering = false;  // a draft is offered
};

/// Where the controls go, in twips of what holds them and on whole pixels.
struct CustLayout {
  // On the window.
  TwipRect MenuTree;  // the head of the tree
  TwipRect ShowDraft;
  TwipRect ForgetDraft;
  TwipRect Find;
  TwipRect Tree;
  TwipRect ToolBar;
  TwipRect PropertiesBox;
  TwipRect Save;
  TwipRect Exit;
  // In the box of the properties.
  TwipRect Properties;  // its head
  TwipRect Files;
  TwipRect Ok;
  TwipRect Add;
  TwipRect From;
  // In the box of the entry.
  TwipRect TitleLabel, IconLabel, FileLabel;
  TwipRect Title, Icon, File;
  TwipRect Library, AllFiles, SelectFile, SelectFolder;
  // In the frames.
  TwipRect BrowseFiles, BrowseFolders;
  TwipRect StartMenu, Desktop;
};

/// Size of the whole window as it opens, and the least that the user can make it; twips.
inline constexpr float kCustWidth = 8050;
inline constexpr float kCustHeight = 6300;
inline constexpr float kCustLeastWidth = 7450;
inline constexpr float kCustLeastHeight = 5700;

/// The tree takes three quarters of what the window is wider than at first, the boxes the rest.
[[nodiscard]] CustLayout ArrangeCustomize(const CustScene& scene);

}  // namespace corvelle
