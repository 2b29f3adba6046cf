#include "icons/IconForm.h"

#include <gtest/gtest.h>

#include <string>

namespace corvelle {

namespace {

constexpr IconPlaces kPlaces{.AppPath = "C:\\Corvelle\\",
                             .IconsPath = "C:\\Corvelle\\Icons\\",
                             .WebLinkIcon = "C:\\Corvelle\\httpicon.htm"};

constexpr IconCaller kAllCallers[] = {IconCaller::Toolbar, IconCaller::Tree, IconCaller::Menu,
                                      IconCaller::Properties};
constexpr IconCaller kCallersWithoutCase[] = {IconCaller::Toolbar, IconCaller::Tree,
                                              IconCaller::Menu};

IconForm Form(IconKind kind, std::string text = {}) {
  IconForm form;
  form.Kind = kind;
  form.Text = std::move(text);
  return form;
}

IconForm Indexed(IconKind kind, std::string text, std::string file, int index) {
  IconForm form = Form(kind, std::move(text));
  form.File = std::move(file);
  form.Index = index;
  return form;
}

IconForm Own(std::string text) {
  IconForm form = Form(IconKind::File, std::move(text));
  form.OwnIcon = true;
  return form;
}

std::string Told(const IconForm& form) {
  return "kind " + std::to_string(static_cast<int>(form.Kind)) + ", text \"" + form.Text +
         "\", file \"" + form.File + "\", index " + std::to_string(form.Index) +
         (form.OwnIcon ? ", own" : "");
}

std::string Meaning(std::string_view text, IconCaller caller) {
  return Told(ClassifyIcon(text, kPlaces, caller));
}

struct FormRow {
  const char* name;
  std::string text;
  IconForm expected;
};

}  // namespace

TEST(IconForms, MeanTheSameForAllCallers) {
  const FormRow rows[] = {
      {"nothing", "", Form(IconKind::Empty)},
      {"below the program's folder", "\\icons\\x.ico", Own("C:\\Corvelle\\icons\\x.ico")},
      {"web link", "http", Form(IconKind::File, "C:\\Corvelle\\httpicon.htm")},
      {"special folder", "CSIDL_DRIVES", Form(IconKind::SpecialFolder, "CSIDL_DRIVES")},
      {"special folder's path", "CSIDL_DRIVES\\x", Form(IconKind::File, "CSIDL_DRIVES\\x")},
      {"number", "37", Indexed(IconKind::SystemIndex, "37", "", 37)},
      {"third icon of a file", "c:\\file.exe|2",
       Indexed(IconKind::FileIndex, "c:\\file.exe|2", "c:\\file.exe", 2)},
      {"no number behind the bar", "c:\\file.exe|x", Form(IconKind::File, "c:\\file.exe|x")},
      {"a digit that ends no number", "c:\\file.exe|x2",
       Indexed(IconKind::FileIndex, "c:\\file.exe|x2", "", 0)},
      {"a file whose name ends in a digit", "c:\\a|b\\c1",
       Indexed(IconKind::FileIndex, "c:\\a|b\\c1", "", 0)},
      {"file", "c:\\file.exe", Form(IconKind::File, "c:\\file.exe")},
      {"address", "http://a.example", Form(IconKind::File, "http://a.example")},
      {"other folder called icons", "c:\\icons\\x.ico", Form(IconKind::File, "c:\\icons\\x.ico")},
      {"an own icon in any spelling", "c:\\CORVELLE\\icons\\x.ico",
       Own("c:\\CORVELLE\\icons\\x.ico")},
      {"number too large for any list", "99999999999", Form(IconKind::File, "99999999999")},
  };
  for (const FormRow& row : rows) {
    for (const IconCaller caller : kAllCallers) {
      EXPECT_EQ(Meaning(row.text, caller), Told(row.expected))
          << row.name << ", caller " << static_cast<int>(caller);
    }
  }
}

TEST(IconForms, InAnyCaseMeanTheSameForAllButThePreview) {
  const FormRow rows[] = {
      {"below the program's folder", "\\ICONS\\X.ICO", Own("C:\\Corvelle\\ICONS\\X.ICO")},
      {"web link", "HTTP", Form(IconKind::File, "C:\\Corvelle\\httpicon.htm")},
      {"special folder", "csidl_drives", Form(IconKind::SpecialFolder, "csidl_drives")},
  };
  for (const FormRow& row : rows) {
    for (const IconCaller caller : kCallersWithoutCase) {
      EXPECT_EQ(Meaning(row.text, caller), Told(row.expected))
          << row.name << ", caller " << static_cast<int>(caller);
    }
    EXPECT_EQ(Meaning(row.text, IconCaller::Properties), Told(Form(IconKind::File, row.text)))
        << row.name;
  }
}

TEST(IconForms, BuiltInWordsDependOnTheCaller) {
  struct WordRow {
    IconCaller caller;
    std::string text;
    IconForm expected;
  };
  const WordRow rows[] = {
      {IconCaller::Toolbar, "Button", Form(IconKind::BuiltIn, "button")},
      {IconCaller::Toolbar, "BUTTON", Form(IconKind::BuiltIn, "button")},
      {IconCaller::Toolbar, "New", Form(IconKind::File, "New")},
      {IconCaller::Tree, "menulineseparator", Form(IconKind::BuiltIn, "sep")},
      {IconCaller::Tree, "New", Form(IconKind::BuiltIn, "new")},
      {IconCaller::Tree, "Button", Form(IconKind::BuiltIn, "button")},
      {IconCaller::Tree, "Unknown", Form(IconKind::BuiltIn, "unknown")},
      {IconCaller::Menu, "xCircle", Form(IconKind::BuiltIn, "circle")},
      {IconCaller::Menu, "XCIRCLE", Form(IconKind::BuiltIn, "circle")},
      {IconCaller::Menu, "imgIcons cust", Form(IconKind::BuiltIn, "cust")},
      {IconCaller::Menu, "imgiconshelp", Form(IconKind::BuiltIn, "help")},
      {IconCaller::Menu, "imgIcons", Form(IconKind::File, "imgIcons")},
      {IconCaller::Menu, "New", Form(IconKind::BuiltIn, "new")},
      {IconCaller::Menu, "Button", Form(IconKind::File, "Button")},
      {IconCaller::Properties, "button", Form(IconKind::BuiltIn, "button")},
      {IconCaller::Properties, "Button", Form(IconKind::File, "Button")},
  };
  for (const WordRow& row : rows) {
    EXPECT_EQ(Meaning(row.text, row.caller), Told(row.expected))
        << row.text << ", caller " << static_cast<int>(row.caller);
  }
}

TEST(IconForms, CallersTakeTheTestsInTheirOwnOrder) {
  struct OrderRow {
    const char* name;
    std::string webLinkIcon;
    IconCaller caller;
    IconForm expected;
  };
  const OrderRow rows[] = {
      // Only the preview looks at the folder after the web link is replaced.
      {"folder", "\\icons\\w.ico", IconCaller::Toolbar, Form(IconKind::File, "\\icons\\w.ico")},
      {"folder", "\\icons\\w.ico", IconCaller::Tree, Form(IconKind::File, "\\icons\\w.ico")},
      {"folder", "\\icons\\w.ico", IconCaller::Menu, Form(IconKind::File, "\\icons\\w.ico")},
      {"folder", "\\icons\\w.ico", IconCaller::Properties, Own("C:\\Corvelle\\icons\\w.ico")},
      {"own icon", "C:\\Corvelle\\Icons\\w.ico", IconCaller::Toolbar,
       Form(IconKind::File, "C:\\Corvelle\\Icons\\w.ico")},
      {"own icon", "C:\\Corvelle\\Icons\\w.ico", IconCaller::Properties,
       Own("C:\\Corvelle\\Icons\\w.ico")},
      // The tree and the menu have looked for special folders before.
      {"special folder", "CSIDL_X", IconCaller::Toolbar, Form(IconKind::SpecialFolder, "CSIDL_X")},
      {"special folder", "CSIDL_X", IconCaller::Properties,
       Form(IconKind::SpecialFolder, "CSIDL_X")},
      {"special folder", "CSIDL_X", IconCaller::Tree, Form(IconKind::File, "CSIDL_X")},
      {"special folder", "CSIDL_X", IconCaller::Menu, Form(IconKind::File, "CSIDL_X")},
      {"icon in a file", "c:\\a.dll|4", IconCaller::Toolbar,
       Indexed(IconKind::FileIndex, "c:\\a.dll|4", "c:\\a.dll", 4)},
      {"none yet", "", IconCaller::Toolbar, Form(IconKind::File, "")},
  };
  for (const OrderRow& row : rows) {
    IconPlaces places = kPlaces;
    places.WebLinkIcon = row.webLinkIcon;
    EXPECT_EQ(Told(ClassifyIcon("http", places, row.caller)), Told(row.expected))
        << row.name << ", caller " << static_cast<int>(row.caller);
  }
}

TEST(IconForms, AnIconInsideAnOwnFileIsStillAnIndex) {
  IconForm expected =
      Indexed(IconKind::FileIndex, "C:\\Corvelle\\icons\\x.icl|3", "C:\\Corvelle\\icons\\x.icl", 3);
  expected.OwnIcon = true;
  EXPECT_EQ(Meaning("\\icons\\x.icl|3", IconCaller::Toolbar), Told(expected));
}

TEST(IconForms, NothingIsOwnBeforeThereIsAFolder) {
  IconPlaces places = kPlaces;
  places.IconsPath = "";
  EXPECT_FALSE(ClassifyIcon("c:\\a.ico", places, IconCaller::Toolbar).OwnIcon);
  EXPECT_FALSE(ClassifyIcon("c:\\a.ico", places, IconCaller::Properties).OwnIcon);
}

TEST(SplitIconRef, SplitsAtTheLastBar) {
  struct SplitRow {
    const char* name;
    std::string ref;
    int index;
    std::string file;
  };
  const SplitRow rows[] = {
      {"plain", "c:\\a.exe|2", 2, "c:\\a.exe"},
      {"blanks", " c:\\a.exe | 12 ", 12, "c:\\a.exe"},
      {"two bars", "c:\\a|b|7", 7, "c:\\a|b"},
      {"negative", "c:\\a.exe|-3", -3, "c:\\a.exe"},
      {"nothing before the bar", "|5", 5, ""},
      {"no number leaves the file alone", "c:\\a.exe|x", 0, "before"},
      {"nothing behind the bar", "c:\\a.exe|", 0, "before"},
      {"number too large", "c:\\a.exe|99999999999", 0, "before"},
      {"no bar", "c:\\a.exe", 0, "before"},
  };
  for (const SplitRow& row : rows) {
    std::string file = "before";
    EXPECT_EQ(SplitIconRef(row.ref, file), row.index) << row.name;
    EXPECT_EQ(file, row.file) << row.name;
  }
}

}  // namespace corvelle
