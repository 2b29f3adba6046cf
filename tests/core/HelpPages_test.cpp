#include "core/HelpPages.h"

#include <gtest/gtest.h>

#include <set>
#include <string_view>

namespace corvelle {

TEST(HelpPages, EachPageHasAFileOfItsOwn) {
  std::set<std::string_view> names;
  for (const HelpPageFile& file : kHelpPages) {
    EXPECT_EQ(HelpFileOf(file.Page), file.Name);
    EXPECT_TRUE(names.insert(file.Name).second) << file.Name;
    EXPECT_TRUE(file.Name.ends_with(".html"));
  }
  EXPECT_EQ(HelpFileOf(HelpPage::Contents), "index.html");
  EXPECT_EQ(HelpFileOf(HelpPage::Questions), "questions.html");
}

TEST(HelpPages, EachWindowHasItsPageAndAnUnknownOneTheContents) {
  struct Row {
    const char* window;
    HelpPage page;
  };
  const Row rows[] = {
      {"frmToolbar", HelpPage::Strip},
      {"frmMinimize", HelpPage::Strip},
      {"frmTip", HelpPage::Strip},
      {"frmQMenu", HelpPage::Menus},
      {"frmCust", HelpPage::Customize},
      {"frmURL", HelpPage::Customize},
      {"frmProperties", HelpPage::Properties},
      {"frmLibrary", HelpPage::Icons},
      {"frmNetSearch", HelpPage::NetSearch},
      {"frmAbout", HelpPage::About},
      {"frmOther", HelpPage::Contents},
      {"", HelpPage::Contents},
  };
  for (const Row& row : rows) EXPECT_EQ(HelpPageOf(row.window), row.page) << row.window;
}

}  // namespace corvelle
