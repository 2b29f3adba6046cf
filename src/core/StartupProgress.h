#pragma once

namespace corvelle {

class OptionFlags;
struct GuardFlags;
struct WindowPorts;

/// The dots in the startup window.
class StartupProgress {
 public:
  StartupProgress(const GuardFlags& guards, const OptionFlags& options, const WindowPorts& ports)
      : guards_(guards), options_(options), ports_(ports) {}

  /// One more dot, while the program starts and unless Option::NoStartupScreen is set.
  void ShowStartupProgress() const;

 private:
  const GuardFlags& guards_;
  const OptionFlags& options_;
  const WindowPorts& ports_;
};

}  // namespace corvelle
