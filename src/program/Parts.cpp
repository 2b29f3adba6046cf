#include "program/Parts.h"

#include <initializer_list>

namespace corvelle {

Parts::Parts(const Platform& services, forms::WindowSystem& windows)
    : TheProgram(services, windows) {
  WindowPorts& ports = TheProgram.Ports;
  ports.Toolbar = &Toolbar;
  ports.Docking = &Docking;
  ports.Capture = &StillPicture;
  ports.ImageWindow = &StillPicture;
  ports.SingleButtons = &Toolbar.RowDrops;
  ports.QMenu = &Menu;
  ports.Minimize = &Companion;
  ports.Startup = &Startup;
  ports.FolderMenus = &TheFolderMenus;
  ports.Popup = &ThePopup;
  ports.Hint = &Hint;
  ports.Tip = &Tip;
  ports.MainMenu = &TheMainMenu;
  ports.DefaultEntries = &TheDefaultEntries;
  ports.IconRule = &TheIconRule;
  ports.IconLibrary = &TheIconLibrary;
  ports.BuiltInCommands = &TheBuiltIns;
  ports.Browser = &TheBrowser;
  ports.SpecialFolders = &TheSpecialFolders;
  ports.ShellLinks = &Links;
  ports.StartupLink = &TheStartupLink;
  ports.DragImage = &Carried;
  ports.WebLink = &WebLink;
  ports.Library = &Library;
  ports.Help = &TheHelp;
  ports.NetSearch = &NetSearch;
  ports.About = &About;
  ports.Customize = &Customize;
  ports.CustomizeIcon = &Customize;
  ports.MenuEdits = &Customize;
  ports.Properties = &Properties;
  ports.PropertiesIcon = &Properties;
  WireHelp();
}

void Parts::WireHelp() {
  const std::initializer_list<forms::Form*> windows = {
      &Toolbar, &Companion, &Tip, &NetSearch, &About, &Library, &WebLink, &Customize, &Properties};
  for (forms::Form* const window : windows) {
    window->HelpAsked = [this, window] { TheHelp.ShowPageOf(window->Name()); };
  }
  // A menu that stays up would cover the page.
  Menu.HelpAsked = [this] {
    Toolbar.ResetMenu();
    TheHelp.ShowPageOf(Menu.Name());
  };
}

}  // namespace corvelle
