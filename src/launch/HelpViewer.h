#pragma once

#include <string>
#include <string_view>

#include "core/CommandPorts.h"

namespace corvelle {

class Program;

/// Shows the pages of the folder Help in the user's browser.
class HelpViewer final : public HelpPort {
 public:
  explicit HelpViewer(Program& program) : program_(program) {}

  bool ShowPage(HelpPage page) override;
  void OfferPage(HelpPage page) override;
  void ShowPageOf(std::string_view windowName) override;

 private:
  [[nodiscard]] std::string PathOf(HelpPage page) const;

  Program& program_;
};

}  // namespace corvelle
