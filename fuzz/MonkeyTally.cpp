#include "MonkeyTally.h"

#include <algorithm>
#include <cstdio>
#include <fstream>

namespace corvelle::fuzz {

int MonkeyTally::Count(std::string_view deed) const {
  const auto found = counts_.find(deed);
  return found == counts_.end() ? 0 : found->second;
}

std::vector<std::string> MonkeyTally::Missing() const {
  static constexpr std::string_view kDeeds[] = {"strip at no edge",
                                                "strip at no edge, not on top",
                                                "strip at no edge, hiding",
                                                "strip at TOP",
                                                "strip at TOP, hiding",
                                                "strip at TOP, not on top",
                                                "strip at BOTTOM",
                                                "strip at BOTTOM, hiding",
                                                "strip at BOTTOM, not on top",
                                                "strip at LEFT",
                                                "strip at LEFT, hiding",
                                                "strip at LEFT, not on top",
                                                "strip at RIGHT",
                                                "strip at RIGHT, hiding",
                                                "strip at RIGHT, not on top",
                                                "strip in the task bar",
                                                "strip in the task bar, hiding",
                                                "came back from the task bar",
                                                "a hidden strip came out",
                                                "an edge was taken for hiding",
                                                "another bar",
                                                "another resolution",
                                                "a hint was up",
                                                "a single button was run",
                                                "rest",
                                                "main menu: Customize...",
                                                "main menu: Refresh All",
                                                "main menu: Large Icons",
                                                "main menu: Auto Hide",
                                                "main menu: Not On Top",
                                                "main menu: Help Topics",
                                                "main menu: About...",
                                                "main menu: Restore",
                                                "main menu: Maximize",
                                                "main menu: Minimize",
                                                "main menu: Exit",
                                                "end: session",
                                                "end: closed",
                                                "popup of the first button: Refresh",
                                                "popup of Q1: Refresh",
                                                "popup of Toolbar: Add Button",
                                                "popup of B: Delete Item",
                                                "popup of B: Add Button",
                                                "popup of F: Cut Item",
                                                "popup of F: Copy Item",
                                                "popup of F: Paste Item",
                                                "popup of F: Delete Item",
                                                "popup of F: Undo Delete",
                                                "popup of F: Insert Menu Item",
                                                "popup of F: Insert Separator",
                                                "popup of F: Open Folder",
                                                "popup of F: Close Folder",
                                                "popup of F: Properties",
                                                "popup of SingleButtons: Cut Item",
                                                "popup of SingleButtons: Copy Item",
                                                "popup of SingleButtons: Paste Item",
                                                "popup of SingleButtons: Delete Item",
                                                "popup of SingleButtons: Undo Delete",
                                                "popup of SingleButtons: Add Button",
                                                "carry from F to frmQMenu left",
                                                "carry from F to picToolbar left",
                                                "carry from F to picSingleButton left",
                                                "carry from F to picToolbar right",
                                                "carry from F to picSingleButton right",
                                                "carry from S to picToolbar left",
                                                "carry from S to picSingleButton left",
                                                "carry from S to picToolbar right",
                                                "carry from S to picSingleButton right",
                                                "drag left dropped on picToolbar",
                                                "drag left dropped on picSingleButton",
                                                "drag left dropped on frmQMenu",
                                                "drag right dropped on picSingleButton",
                                                "drag of text",
                                                "drag given up",
                                                "drag that left",
                                                "drag whose source died",
                                                "used frmCust",
                                                "used frmProperties",
                                                "used frmLibrary",
                                                "used frmURL",
                                                "used frmNetSearch",
                                                "used frmAbout",
                                                "dialog for a folder"};
  std::vector<std::string> missing;
  for (const std::string_view deed : kDeeds) {
    if (Count(deed) == 0) missing.emplace_back(deed);
  }
  return missing;
}

void MonkeyTally::Print() const {
  for (const auto& [deed, count] : counts_) std::printf("%8d  %s\n", count, deed.c_str());
}

bool MonkeyTally::Keep(const std::string& file) const {
  std::ofstream out(file);
  for (const auto& [deed, count] : counts_) {
    // The text of a message has several lines.
    std::string line = deed;
    std::replace(line.begin(), line.end(), '\n', ' ');
    out << line << '\n';
  }
  return out.flush().good();
}

bool MonkeyTally::Add(const std::string& file) {
  std::ifstream in(file);
  if (!in) return false;
  for (std::string deed; std::getline(in, deed);) Note(deed);
  return true;
}

}  // namespace corvelle::fuzz
