#include "program/Parts.h"

#include "icons/IconResolution.h"

namespace corvelle {

void IconRule::DetectShellIcons() { corvelle::DetectShellIcons(program_); }

Parts::Parts(const Platform& services, forms::WindowSystem& windows)
    : TheProgram(services, windows) {
  WindowPorts& ports = TheProgram.Ports;
  ports.Toolbar = &Toolbar;
  ports.Docking = &Docking;
  ports.Capture = &StillPicture;
  ports.ImageWindow = &StillPicture;
  ports.SingleButtons = &Toolbar.Singles;
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
  ports.Properties = &Properties;
  ports.PropertiesIcon = &Properties;
}

}  // namespace corvelle
