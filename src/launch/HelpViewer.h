#pragma once

#include <string>
#include <string_view>

#include "core/CommandPorts.h"
#include "core/LaunchParts.h"

namespace corvelle {

class FileSystem;
struct ProgramPaths;

/// Shows the pages of the folder Help in the user's browser.
class HelpViewer final : public HelpPort {
 public:
  /// All of it lives as long as the program.
  HelpViewer(const ProgramPaths& paths, FileSystem& files, const LaunchParts& launch)
      : paths_(paths), files_(files), launch_(launch) {}

  bool ShowPage(HelpPage page) override;
  void OfferPage(HelpPage page) override;
  void ShowPageOf(std::string_view windowName) override;

 private:
  [[nodiscard]] std::string PathOf(HelpPage page) const;

  const ProgramPaths& paths_;
  FileSystem& files_;
  const LaunchParts& launch_;
};

}  // namespace corvelle
