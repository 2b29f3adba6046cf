#pragma once

#include <gtest/gtest.h>

#include <string_view>

#include "core/Program.h"
#include "sim/World.h"

namespace corvelle {

/// A program in its folder, with a blank document and a tool of four icons.
class IconDesk : public ::testing::Test {
 protected:
  static constexpr char kBlank[] = "C:\\Corvelle\\Icons\\W95MBX02.ICO";

  IconDesk() {
    program.Paths.AppPath = "C:\\Corvelle\\";
    program.Paths.IconsPath = "C:\\Corvelle\\Icons\\";
    program.Icons.WebLinkIcon = "C:\\Corvelle\\httpicon.htm";
    world.Files.Put("C:\\Corvelle\\corvelle.exe", "x");
    world.Files.Put("C:\\Corvelle\\httpicon.htm", "x");
    Put(kBlank, 41, 1);
    Put("C:\\Tools\\tool.exe", 12, 4);
  }

  /// A file with its index in the shell's list and so many icons in it.
  void Put(std::string_view path, int index, int icons) {
    world.Files.Put(path, "x");
    world.Icons.SetIndex(path, index);
    world.Icons.SetIconCount(path, icons);
  }

  sim::World world;
  Program program{world.Services(), world.Windows()};
};

}  // namespace corvelle
