#pragma once

#include <gtest/gtest.h>

#include <string>

#include "core/CoreDoubles.h"
#include "core/Program.h"
#include "launch/BuiltInCommands.h"
#include "launch/LaunchWiring.h"
#include "sim/World.h"

namespace corvelle {

inline constexpr int kOk = forms::msgbox::AnswerOk;
inline constexpr int kYes = forms::msgbox::AnswerYes;
inline constexpr int kNo = forms::msgbox::AnswerNo;

/// A program whose strip stands, with its words on the simulated machine.
class BuiltInDesk : public ::testing::Test {
 protected:
  BuiltInDesk() {
    program.Paths.AppPath = "C:\\Corvelle\\";
    program.Paths.IconsPath = "C:\\Corvelle\\Icons\\";
    program.Ports.Toolbar = &toolbar;
    program.Ports.Startup = &startup;
    program.Ports.BuiltInCommands = &words;
    toolbar.LoadWindow();
    log.clear();
  }

  /// The last message box.
  [[nodiscard]] const sim::MessageBox& Box() const { return world.Desktop.Boxes().back(); }
  [[nodiscard]] std::size_t BoxCount() const { return world.Desktop.Boxes().size(); }

  CallLog log;
  sim::World world;
  Program program{world.Services(), world.Windows()};
  LoggingToolbar toolbar{log};
  LoggingStartup startup{log};
  BuiltInCommands words{BuiltInPartsOf(program)};
};

}  // namespace corvelle
