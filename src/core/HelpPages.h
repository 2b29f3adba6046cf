#pragma once

#include <array>
#include <string_view>

namespace corvelle {

/// The pages of the help. Each is a file of its own in the folder Help beside the program.
enum class HelpPage {
  Contents,
  FirstSteps,
  Strip,
  Menus,
  FolderItems,
  Customize,
  Properties,
  Icons,
  Options,
  NetSearch,
  About,
  Keys,
  Files,
  Questions
};

/// A page and its file.
struct HelpPageFile {
  HelpPage Page;
  std::string_view Name;
};

inline constexpr std::array<HelpPageFile, 14> kHelpPages = {{
    {HelpPage::Contents, "index.html"},
    {HelpPage::FirstSteps, "first-steps.html"},
    {HelpPage::Strip, "strip.html"},
    {HelpPage::Menus, "menus.html"},
    {HelpPage::FolderItems, "folder-items.html"},
    {HelpPage::Customize, "customize.html"},
    {HelpPage::Properties, "properties.html"},
    {HelpPage::Icons, "icons.html"},
    {HelpPage::Options, "options.html"},
    {HelpPage::NetSearch, "net-search.html"},
    {HelpPage::About, "about.html"},
    {HelpPage::Keys, "keys.html"},
    {HelpPage::Files, "files.html"},
    {HelpPage::Questions, "questions.html"},
}};

/// The name of a page's file.
[[nodiscard]] std::string_view HelpFileOf(HelpPage page) noexcept;

/// The page that explains a window, by the window's name; the contents for one that is not known.
[[nodiscard]] HelpPage HelpPageOf(std::string_view windowName) noexcept;

}  // namespace corvelle
