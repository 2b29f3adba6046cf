#pragma once

#include <gtest/gtest.h>

#include <string>

#include "core/CoreDoubles.h"
#include "core/Program.h"
#include "sim/World.h"

namespace corvelle {

/// A machine with a program folder, a Startup folder, a tool to link to and a strip that has a
/// window.
class ShellDesk : public testing::Test {
 protected:
  ShellDesk() {
    world.Files.Put("C:\\Corvelle\\corvelle.exe", "program");
    world.Files.Put("C:\\Tools\\tool.exe", "tool");
    world.Files.MakeFolders("C:\\Links");
    world.Links.SetFolder(7, "C:\\Start\\Startup");
    world.Links.SetVirtualFolder(17);
    program.Paths.AppPath = "C:\\Corvelle\\";
    program.Ports.Toolbar = &toolbar;
    toolbar.LoadWindow();
    log.clear();
  }

  sim::World world;
  CallLog log;
  LoggingToolbar toolbar{log};
  Program program{world.Services(), world.Windows()};
};

inline constexpr char kTool[] = "C:\\Tools\\tool.exe";
inline constexpr char kLink[] = "C:\\Links\\tool.lnk";
inline constexpr char kStartupLink[] = "C:\\Start\\Startup\\Corvelle.lnk";

}  // namespace corvelle
