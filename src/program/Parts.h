#pragma once

#include "about/DefaultEntries.h"
#include "about/frmAbout.h"
#include "core/Program.h"
#include "customize/CustomizeWiring.h"
#include "customize/frmCust.h"
#include "icons/IconsWiring.h"
#include "icons/ShellIconRule.h"
#include "launch/Browser.h"
#include "launch/BuiltInCommands.h"
#include "launch/HelpViewer.h"
#include "launch/LaunchWiring.h"
#include "library/LibraryWiring.h"
#include "library/frmLibrary.h"
#include "menus/folders/FolderMenus.h"
#include "menus/folders/SpecialFolders.h"
#include "menus/window/MainMenu.h"
#include "menus/window/MenuWiring.h"
#include "menus/window/frmQMenu.h"
#include "program/Wiring.h"
#include "properties/PropertiesWiring.h"
#include "properties/frmProperties.h"
#include "search/frmNetSearch.h"
#include "shell/LinkFiles.h"
#include "shell/ShellWiring.h"
#include "shell/StartupLink.h"
#include "toolbar/companion/DragImage.h"
#include "toolbar/companion/Popup.h"
#include "toolbar/companion/frmMinimize.h"
#include "toolbar/docking/frmImage.h"
#include "toolbar/docking/mAppBar.h"
#include "toolbar/notices/frmHelp.h"
#include "toolbar/notices/frmStartup.h"
#include "toolbar/notices/frmTip.h"
#include "toolbar/strip/StripWiring.h"
#include "toolbar/strip/frmToolbar.h"
#include "weblink/frmURL.h"

namespace corvelle {

/// One whole program: its state, its windows and what serves them, wired to each other. The
/// services and the window system outlive it. Nothing is shown or loaded until Main runs.
class Parts {
 public:
  Parts(const Platform& services, forms::WindowSystem& windows);
  Parts(const Parts&) = delete;
  Parts& operator=(const Parts&) = delete;

  Program TheProgram;
  frmToolbar Toolbar{TheProgram};
  mAppBar Docking{AppBarPartsOf(TheProgram), Toolbar};
  frmImage StillPicture{StillPicturePartsOf(TheProgram), Toolbar};
  frmQMenu Menu{TheProgram};
  FolderMenus TheFolderMenus{TheProgram.Services, TheProgram.Windows, TheProgram.Answers,
                             TheProgram.Icons};
  frmMinimize Companion{CompanionPartsOf(TheProgram)};
  frmStartup Startup{StartupPartsOf(TheProgram)};
  Popup ThePopup{PopupPartsOf(TheProgram)};
  frmHelp Hint{HintPartsOf(TheProgram)};
  frmTip Tip{TipPartsOf(TheProgram)};
  MainMenu TheMainMenu{MainMenuPartsOf(TheProgram), Menu};
  DefaultEntries TheDefaultEntries{DefaultEntryPartsOf(TheProgram)};
  ShellIconRule TheIconRule{TheProgram.Answers, TheProgram.Paths, TheProgram.Icons};
  IconLibrary TheIconLibrary{UnpackPartsOf(TheProgram)};
  BuiltInCommands TheBuiltIns{BuiltInPartsOf(TheProgram)};
  Browser TheBrowser{BrowserPartsOf(TheProgram)};
  SpecialFolders TheSpecialFolders{TheProgram.Services.Folders, TheProgram.Launch,
                                   TheProgram.Answers, TheProgram.Services.Pointer};
  LinkReader Links{TheProgram.Services.Links};
  StartupLink TheStartupLink{StartupLinkPartsOf(TheProgram)};
  DragImage Carried{DragImagePartsOf(TheProgram)};
  frmURL WebLink{WebLinkPartsOf(TheProgram)};
  frmCust Customize{CustPartsOf(TheProgram)};
  frmProperties Properties{PropertiesPartsOf(TheProgram)};
  frmLibrary Library{LibraryPartsOf(TheProgram)};  // belongs to one of the two above
  HelpViewer TheHelp{TheProgram.Paths, TheProgram.Services.Files, TheProgram.Launch};
  frmNetSearch NetSearch{NetSearchPartsOf(TheProgram)};
  frmAbout About{AboutPartsOf(TheProgram)};

 private:
  /// F1 opens the page of each window.
  void WireHelp();
};

}  // namespace corvelle
