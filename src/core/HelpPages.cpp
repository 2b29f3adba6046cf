#include "core/HelpPages.h"

#include <algorithm>
#include <iterator>

namespace corvelle {

namespace {

struct WindowHelp {
  std::string_view Window;
  HelpPage Page;
};

constexpr WindowHelp kWindowHelp[] = {
    {"frmToolbar", HelpPage::Strip},       {"frmMinimize", HelpPage::Strip},
    {"frmTip", HelpPage::Strip},           {"frmQMenu", HelpPage::Menus},
    {"frmCust", HelpPage::Customize},      {"frmProperties", HelpPage::Properties},
    {"frmURL", HelpPage::Customize},       {"frmLibrary", HelpPage::Icons},
    {"frmNetSearch", HelpPage::NetSearch}, {"frmAbout", HelpPage::About},
};

}  // namespace

std::string_view HelpFileOf(HelpPage page) noexcept {
  const auto found = std::find_if(kHelpPages.begin(), kHelpPages.end(),
                                  [page](const HelpPageFile& file) { return file.Page == page; });
  return found != kHelpPages.end() ? found->Name : kHelpPages.front().Name;
}

HelpPage HelpPageOf(std::string_view windowName) noexcept {
  const auto* const found =
      std::find_if(std::begin(kWindowHelp), std::end(kWindowHelp),
                   [windowName](const WindowHelp& row) { return row.Window == windowName; });
  return found != std::end(kWindowHelp) ? found->Page : HelpPage::Contents;
}

}  // namespace corvelle
