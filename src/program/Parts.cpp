#include "program/Parts.h"

#include "icons/IconResolution.h"

namespace corvelle {

void IconRule::DetectShellIcons() { corvelle::DetectShellIcons(program_); }

Parts::Parts(const Platform& services, forms::WindowSystem& windows)
    : TheProgram(services, windows) {
  WindowPorts& ports = TheProgram.Ports;
  ports.Toolbar = &Toolbar;
  ports.QMenu = &Menu;
  ports.Minimize = &Companion;
  ports.Startup = &Startup;
  ports.IconRule = &TheIconRule;
  ports.IconLibrary = &TheIconLibrary;
  ports.BuiltInCommands = &TheBuiltIns;
  ports.Browser = &TheBrowser;
  ports.SpecialFolders = &TheSpecialFolders;
  ports.ShellLinks = &Links;
  ports.StartupLink = &TheStartupLink;
}

}  // namespace corvelle
