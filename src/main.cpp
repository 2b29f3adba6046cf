#include "core/Main.h"
#include "core/Program.h"
#include "icons/IconLibrary.h"
#include "icons/IconResolution.h"
#include "launch/Browser.h"
#include "launch/BuiltInCommands.h"
#include "menus/frmQMenu.h"
#include "shell/LinkFiles.h"
#include "shell/StartupLink.h"
#include "toolbar/frmMinimize.h"
#include "toolbar/frmStartup.h"
#include "toolbar/frmToolbar.h"
#include "win32/Win32Platform.h"

namespace {

using namespace corvelle;

/// Tells the icon rules of this program to look at the machine once.
class IconRule final : public IconRulePort {
 public:
  explicit IconRule(Program& program) : program_(program) {}
  void DetectShellIcons() override { corvelle::DetectShellIcons(program_); }

 private:
  Program& program_;
};

}  // namespace

// All parts of the program are made here, wired, and die here, after their windows.
int main() {
  win32::Win32Platform windows;
  Program program(windows.Services(), windows.Windows());
  frmToolbar toolbar(program);
  frmQMenu menu(program);
  frmMinimize companion(program);
  frmStartup startup(program);
  IconRule iconRule(program);
  IconLibrary iconLibrary(program);
  BuiltInCommands builtIns(program);
  Browser browser(program);
  LinkReader links(program);
  StartupLink startupLink(program);
  program.Ports.Toolbar = &toolbar;
  program.Ports.QMenu = &menu;
  program.Ports.Minimize = &companion;
  program.Ports.Startup = &startup;
  program.Ports.IconRule = &iconRule;
  program.Ports.IconLibrary = &iconLibrary;
  program.Ports.BuiltInCommands = &builtIns;
  program.Ports.Browser = &browser;
  program.Ports.ShellLinks = &links;
  program.Ports.StartupLink = &startupLink;
  if (Main(program)) program.Windows.Run();
  return 0;
}
