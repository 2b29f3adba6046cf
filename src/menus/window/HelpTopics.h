#pragma once

#include "core/LaunchParts.h"

namespace corvelle {

class DesktopWindows;
class FileSystem;
struct ProgramPaths;

/// What the help's topics are shown with. All of it lives as long as the program.
struct HelpTopicParts {
  const ProgramPaths& Paths;
  FileSystem& Files;
  DesktopWindows& Desktop;
  LaunchParts Launch;
};

/// The line "Help Topics" of the main menu.
class HelpTopics {
 public:
  explicit HelpTopics(const HelpTopicParts& with) : with_(with) {}

  /// Opens the help file, or brings it to the front where it is open. Without that file it shows
  /// the pages of the help, and says so when they are missing too.
  void Show() const;

 private:
  HelpTopicParts with_;
};

}  // namespace corvelle
