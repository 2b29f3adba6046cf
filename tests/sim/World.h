#pragma once

#include <string>
#include <vector>

#include "base/CodePage.h"
#include "platform/Platform.h"
#include "sim/CallCosts.h"
#include "sim/SimAppBars.h"
#include "sim/SimClipboard.h"
#include "sim/SimCrashReports.h"
#include "sim/SimDde.h"
#include "sim/SimDesktop.h"
#include "sim/SimFileAssociations.h"
#include "sim/SimFiles.h"
#include "sim/SimKeySynthesis.h"
#include "sim/SimLookups.h"
#include "sim/SimRegistry.h"
#include "sim/SimShellExec.h"
#include "sim/SimShellFiles.h"
#include "sim/SimShellFolders.h"
#include "sim/SimShellIcons.h"
#include "sim/SimShellLinks.h"
#include "sim/SimStarter.h"
#include "sim/SimSystemInfo.h"
#include "sim/SimTrayIcons.h"

namespace corvelle::sim {

struct WorldOptions {
  float TwipsPerPixel = 15;  // of the primary screen: 15 at 96 dpi, 12 at 120 dpi
  PixelSize Screen{1024, 768};
  int CaptionHeight = 19;
  int CaptionButtonWidth = 18;
  std::vector<OtherMonitor> OtherMonitors;
};

/// All that a program runs on, made afresh for one test: the disk with drive C:, the desktop with
/// its user, the shell, the registry and the machine. The running test fails when a message box
/// came up that no answer was given for.
class World {
 public:
  explicit World(const WorldOptions& options = {});
  World(const World&) = delete;
  World& operator=(const World&) = delete;
  ~World();

  CallCosts Costs;
  SimFiles Files;
  Windows1252 Ansi;
  SimRegistry Keys;
  SimShellLinks Links;
  SimShellExec Shell;
  SimShellIcons Icons;
  SimShellFiles FileOps;
  SimKeySynthesis Keyboard;
  SimDde Dde;
  SimFileAssociations Associations;
  SimSystemInfo System;
  SimShellFolders Folders;
  SimTrayIcons Tray;
  SimClipboard Copies;
  SimDesktop Desktop;
  SimAppBars Bars{Desktop};
  SimLookups SlowAnswers{Desktop, {Files, Links, System, Icons, Folders}};
  SimStarter Starts{{Shell, Files, Links, Dde, Associations, Keys, Folders, Icons, Ansi}};
  SimCrashReports Crashes;

  /// The services, as the program takes them; with a shell, icons or a disk of the test's own if it
  /// has some.
  Platform Services(ShellExec* shell = nullptr, ShellIcons* icons = nullptr,
                    FileSystem* files = nullptr);
  forms::WindowSystem& Windows() noexcept { return Desktop; }

  /// Writes what the screen shows to a file of the host, as a PPM picture. False when it cannot.
  [[nodiscard]] bool SavePicture(const std::string& hostPath) const;
};

}  // namespace corvelle::sim
