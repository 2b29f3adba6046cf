#pragma once

namespace corvelle {

class MessageBoxes;
class StartsUnderWay;
struct WindowPorts;
namespace forms {
class WindowSystem;
}

/// What carrying out the command of an entry works with (launch/LaunchItem.h). All of it lives as
/// long as the program.
struct LaunchParts {
  forms::WindowSystem& Windows;
  const WindowPorts& Ports;
  MessageBoxes& Messages;
  StartsUnderWay& Starts;
};

}  // namespace corvelle
