// The popup of right clicks: its lines and when each is enabled.

#include "toolbar/companion/PopupRules.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace corvelle {
namespace {

TEST(PopupRows, AreTheseInThisOrder) {
  struct Row {
    std::string Caption;
    std::string Tag;
    bool operator==(const Row&) const = default;
  };
  const std::vector<Row> expected = {{"Refresh", "Refresh"},
                                     {"-", "-"},
                                     {"Cut Item", "Cut"},
                                     {"Copy Item", "Copy"},
                                     {"Paste Item", "Paste"},
                                     {"-", "-"},
                                     {"Delete Item", "Delete"},
                                     {"Delete Separator", "DeleteSeparator"},
                                     {"Undo Delete", "Undo"},
                                     {"-", ""},
                                     {"Add Button", "AddButton"},
                                     {"Insert Menu Item", "MenuItem"},
                                     {"Insert Separator", "Separator"},
                                     {"-", ""},
                                     {"Open Folder", "OpenFolder"},
                                     {"Close Folder", "CloseFolder"},
                                     {"-", ""},
                                     {"Properties", "Properties"},
                                     {"Folder Properties", "FolderProperties"}};
  std::vector<Row> rows;
  for (const PopupRow& row : PopupRows()) {
    rows.push_back({std::string(row.Caption), std::string(row.Tag)});
  }
  EXPECT_EQ(rows, expected);
}

/// The captions of the enabled lines, each followed by a bar.
std::string Enabled(const PopupFacts& facts) {
  std::string all;
  for (const PopupRow& row : PopupRows()) {
    if (row.Caption != "-" && row.Enabled(facts)) all += std::string(row.Caption) + "|";
  }
  return all;
}

bool IsEnabled(std::string_view caption, const PopupFacts& facts) {
  return Enabled(facts).find(std::string(caption) + "|") != std::string::npos;
}

TEST(PopupRows, OfferWhatThePlaceOfTheEntryAllows) {
  struct Row {
    const char* name;
    PopupFacts facts;
    const char* enabled;
  };
  const Row rows[] = {
      {"a menu item",
       {.Tag = "F2", .Record = 3},
       "Refresh|Cut Item|Copy Item|Delete Item|Insert Menu Item|Insert Separator|Properties|"},
      {"the main menu button",
       {.Tag = "B1", .Record = 0, .ClipboardEmpty = false, .UndoTag = "B1"},
       "Refresh|Properties|"},
      {"an item of the main menu",
       {.Tag = "Q1",
        .Record = 3,
        .FollowsSeparator = true,
        .ClipboardEmpty = false,
        .UndoTag = "Q1"},
       "Refresh|Properties|"},
      {"a menu button",
       {.Tag = "B3", .Record = 1, .ClipboardEmpty = false},
       "Refresh|Delete Item|Add Button|Properties|"},
      {"the bare strip",
       {.Tag = "Toolbar", .Record = 0, .ClipboardEmpty = false},
       "Refresh|Add Button|Properties|"},
      {"a single button",
       {.Tag = "SingleButtons", .Record = 1, .ClipboardEmpty = false},
       "Refresh|Cut Item|Copy Item|Paste Item|Delete Item|Add Button|Properties|"},
      {"the bare row of single buttons, with a filled clipboard",
       {.Tag = "SingleButtons", .Record = 0, .ClipboardEmpty = false},
       "Refresh|Paste Item|Add Button|Properties|"},
      {"the bare row of single buttons, with an empty clipboard",
       {.Tag = "SingleButtons", .Record = 0},
       "Refresh|Add Button|Properties|"},
      {"a generated entry",
       {.Tag = "F2", .Record = 5004, .ClipboardEmpty = false},
       "Refresh|Copy Item|Paste Item|Insert Menu Item|Insert Separator|Close Folder|Properties|"
       "Folder Properties|"},
  };
  for (const Row& row : rows) EXPECT_EQ(Enabled(row.facts), row.enabled) << row.name;
}

TEST(PopupRows, ChangeWithOneFactAtATime) {
  const PopupFacts item{.Tag = "F2", .Record = 4, .ClipboardEmpty = false};
  const auto with = [&](auto change) {
    PopupFacts facts = item;
    change(facts);
    return facts;
  };
  struct Row {
    const char* name;
    const char* caption;
    PopupFacts facts;
    bool enabled;
  };
  using F = PopupFacts;
  const Row rows[] = {
      {"cut without a record", "Cut Item", with([](F& f) { f.Record = 0; }), false},
      {"cut of record 5000, a real one", "Cut Item", with([](F& f) { f.Record = 5000; }), true},
      {"cut of a generated one", "Cut Item", with([](F& f) { f.Record = 5001; }), false},
      {"copy without a record", "Copy Item", with([](F& f) { f.Record = 0; }), false},
      {"copy of a generated one", "Copy Item", with([](F& f) { f.Record = 5001; }), true},
      {"paste", "Paste Item", item, true},
      {"paste with an empty clipboard", "Paste Item", with([](F& f) { f.ClipboardEmpty = true; }),
       false},
      {"paste without a record", "Paste Item", with([](F& f) { f.Record = 0; }), false},
      {"paste on a button", "Paste Item", with([](F& f) { f.Tag = "B2"; }), false},
      {"paste on the bare row in other letters", "Paste Item",
       with([](F& f) { f.Tag = "SINGLEBUTTONS", f.Record = 0; }), true},
      {"delete without a record", "Delete Item", with([](F& f) { f.Record = 0; }), false},
      {"delete of a generated one", "Delete Item", with([](F& f) { f.Record = 5001; }), false},
      {"delete of record 5000", "Delete Item", with([](F& f) { f.Record = 5000; }), true},
      {"delete a separator below one", "Delete Separator",
       with([](F& f) { f.FollowsSeparator = true; }), true},
      {"delete a separator elsewhere", "Delete Separator", item, false},
      {"delete a separator on a button", "Delete Separator",
       with([](F& f) { f.FollowsSeparator = true, f.Tag = "B2"; }), false},
      {"undo in the same menu", "Undo Delete", with([](F& f) { f.UndoTag = "f2"; }), true},
      {"undo in another menu", "Undo Delete", with([](F& f) { f.UndoTag = "F3"; }), false},
      {"undo of nothing", "Undo Delete", item, false},
      {"undo among the single buttons", "Undo Delete",
       with([](F& f) { f.Tag = f.UndoTag = "SingleButtons"; }), true},
      {"undo on the main button", "Undo Delete", with([](F& f) { f.Tag = f.UndoTag = "B1"; }),
       false},
      {"undo in the main menu", "Undo Delete", with([](F& f) { f.Tag = f.UndoTag = "Q1"; }), false},
      {"a new button from a menu", "Add Button", item, false},
      {"a new item on a button", "Insert Menu Item", with([](F& f) { f.Tag = "B2"; }), false},
      {"a separator below another", "Insert Separator",
       with([](F& f) { f.FollowsSeparator = true; }), false},
      {"a separator above the first item", "Insert Separator", with([](F& f) { f.Record = 2; }),
       false},
      {"a separator above what the first item expands to", "Insert Separator",
       with([](F& f) { f.Record = 5002; }), false},
      {"a separator above what the second one expands to", "Insert Separator",
       with([](F& f) { f.Record = 5003; }), true},
      {"a separator on a single button", "Insert Separator",
       with([](F& f) { f.Tag = "SingleButtons"; }), false},
      {"open a closed folder", "Open Folder", with([](F& f) { f.Command = "C:\\Docs\\*.* /X"; }),
       true},
      {"open a closed folder with more options", "Open Folder",
       with([](F& f) { f.Command = "C:\\Docs\\*.*/ux"; }), true},
      {"open a folder that is open", "Open Folder", with([](F& f) { f.Command = "C:\\X\\*.*/u"; }),
       false},
      {"open a closed folder of the shell", "Open Folder",
       with([](F& f) { f.Command = "csidl_drives /X"; }), true},
      {"open a program with such a switch", "Open Folder",
       with([](F& f) { f.Command = "C:\\tool.exe /X"; }), false},
      {"open a closed folder on a single button", "Open Folder",
       with([](F& f) { f.Tag = "SingleButtons", f.Command = "C:\\Docs\\*.* /X"; }), false},
      {"close what a folder expands to", "Close Folder", with([](F& f) { f.Record = 5001; }), true},
      {"close a real record", "Close Folder", with([](F& f) { f.Record = 5000; }), false},
      {"close a single button", "Close Folder",
       with([](F& f) { f.Tag = "SingleButtons", f.Record = 5001; }), false},
      {"properties of the folder of a generated one", "Folder Properties",
       with([](F& f) { f.Record = 5001; }), true},
      {"properties of the folder of a real one", "Folder Properties",
       with([](F& f) { f.Record = 5000; }), false},
      {"properties of the folder of the bare strip", "Folder Properties",
       with([](F& f) { f.Record = 5001, f.Tag = "Toolbar"; }), false},
      {"properties of the folder of the main menu", "Folder Properties",
       with([](F& f) { f.Record = 5001, f.Tag = "Q1"; }), false},
      {"properties of the folder of the main button", "Folder Properties",
       with([](F& f) { f.Record = 5001, f.Tag = "B1"; }), false},
  };
  for (const Row& row : rows) EXPECT_EQ(IsEnabled(row.caption, row.facts), row.enabled) << row.name;
}

TEST(SourceMenuFile, IsTheMenusOwnFileForAGeneratedOne) {
  EXPECT_EQ(SourceMenuFile("C:\\Menus\\BMENU012.mfd"), "C:\\Menus\\BMENU012.MNU");
  EXPECT_EQ(SourceMenuFile("C:\\Menus\\BMENU012.MFD"), "C:\\Menus\\BMENU012.MNU");
  EXPECT_EQ(SourceMenuFile("C:\\Menus\\BMENU012.mnu"), "C:\\Menus\\BMENU012.mnu");
  EXPECT_EQ(SourceMenuFile("C:\\Menus\\BMENU001.BTN"), "C:\\Menus\\BMENU001.BTN");
  EXPECT_EQ(SourceMenuFile(""), "");
}

}  // namespace
}  // namespace corvelle
