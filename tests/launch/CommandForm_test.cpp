#include "launch/CommandForm.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "base/CodePage.h"

namespace corvelle {

namespace {

struct FormRow {
  const char* name;
  std::string command;
  CommandKind kind;
  std::string text;
};

void Check(const FormRow& row) {
  const CommandForm form = ClassifyCommand(row.command);
  EXPECT_EQ(form.Kind, row.kind) << row.name;
  EXPECT_EQ(form.Text, row.text) << row.name;
}

TEST(Targets, ArePathsOfTheDiskOnly) {
  using Paths = std::vector<std::string>;
  struct Row {
    const char* command;
    Paths expected;
  };
  const Row rows[] = {
      {"", {}},
      {"notepad.exe", {}},
      {"http://www.example.org", {}},
      {"mailto:someone@example.org", {}},
      {"CSIDL_DRIVES", {}},
      {"C:\\Tools\\tool.exe", {"C:\\Tools\\tool.exe", "C:\\Tools\\tool.exe.exe"}},
      {"  C:\\a.lnk ", {"C:\\a.lnk", "C:\\a.lnk.exe"}},
      {"C:\\a b c", {"C:\\a b c", "C:\\a b c.exe", "C:\\a", "C:\\a.exe", "C:\\a b", "C:\\a b.exe"}},
      {"\"C:\\a b\" /x", {"C:\\a b", "C:\\a b.exe"}},
      {"\"tool\" /x", {}},
      {"C:\\Tools\\*.exe /SU", {"C:\\Tools\\"}},
      {"\\\\server\\share\\x.doc", {"\\\\server\\share\\x.doc", "\\\\server\\share\\x.doc.exe"}},
      {"?C:\\x", {}},
      {" ? C:\\x /y", {}},
      {"?C:\\Tools\\*.exe /SU", {}},
  };
  for (const Row& row : rows) EXPECT_EQ(TargetsOf(row.command), row.expected) << row.command;
}

TEST(Targets, TheDriveOrTheServerIsWhatTheAnswerDependsOn) {
  EXPECT_EQ(DriveOf("c:\\Tools\\a.exe"), "C:");
  EXPECT_EQ(DriveOf("C:\\"), "C:");
  EXPECT_EQ(DriveOf("\\\\server\\share\\x"), "\\\\SERVER");
  EXPECT_EQ(DriveOf("\\\\server"), "\\\\SERVER");
}

}  // namespace

TEST(CommandForms, EachRowOfTheTableIsKnown) {
  const FormRow rows[] = {
      {"nothing", "", CommandKind::Empty, ""},
      {"special folder", "CSIDL_DRIVES", CommandKind::SpecialFolder, "CSIDL_DRIVES"},
      {"entry of one", "Fonts\\CSIDL_CONTROLS", CommandKind::SpecialFolder,
       "Fonts\\CSIDL_CONTROLS"},
      {"a file called so", "C:\\CSIDL_x.txt", CommandKind::Other, "C:\\CSIDL_x.txt"},
      {"raw text", "?c:\\a.exe /x", CommandKind::Other, "c:\\a.exe /x"},
      {"net search", "netsearch", CommandKind::NetSearch, "netsearch"},
      {"find computer", "findcomputer", CommandKind::FindComputer, "findcomputer"},
      {"minimize all", "MinimizeAllWindows", CommandKind::MinimizeAllWindows, "MinimizeAllWindows"},
      {"undo minimize", "UndoMinimizeAll", CommandKind::UndoMinimizeAll, "UndoMinimizeAll"},
      {"recent documents", "ClearRecentDocs", CommandKind::ClearRecentDocs, "ClearRecentDocs"},
      {"temporary files", "ClearTempFolder", CommandKind::ClearTempFolder, "ClearTempFolder"},
      {"find file", "filefind", CommandKind::FileFind, "filefind"},
      {"url file", "c:\\site.url", CommandKind::UrlFile, "c:\\site.url"},
      {"web address", "http://a.example", CommandKind::WebAddress, "http://a.example"},
      {"secure address", "https://a.example", CommandKind::WebAddress, "https://a.example"},
      {"secure address in capitals", "HTTPS://A.EXAMPLE", CommandKind::WebAddress,
       "HTTPS://A.EXAMPLE"},
      {"mail address", "mailto:a@b.example", CommandKind::MailAddress, "mailto:a@b.example"},
      {"link", "c:\\a.lnk", CommandKind::ShellLink, "c:\\a.lnk"},
      {"program", "c:\\a.exe", CommandKind::Other, "c:\\a.exe"},
  };
  for (const FormRow& row : rows) Check(row);
}

TEST(CommandForms, CaseDoesNotCount) {
  const FormRow rows[] = {
      {"special folder", "csidl_Drives", CommandKind::SpecialFolder, "csidl_Drives"},
      {"capitals", "NETSEARCH", CommandKind::NetSearch, "NETSEARCH"},
      {"mixed", "NetSearch", CommandKind::NetSearch, "NetSearch"},
      {"as samples write it", "FindComputer", CommandKind::FindComputer, "FindComputer"},
      {"as samples write it", "FileFind", CommandKind::FileFind, "FileFind"},
      {"small", "minimizeallwindows", CommandKind::MinimizeAllWindows, "minimizeallwindows"},
      {"small", "undominimizeall", CommandKind::UndoMinimizeAll, "undominimizeall"},
      {"small", "clearrecentdocs", CommandKind::ClearRecentDocs, "clearrecentdocs"},
      {"capitals", "CLEARTEMPFOLDER", CommandKind::ClearTempFolder, "CLEARTEMPFOLDER"},
      {"url file", "c:\\SITE.URL", CommandKind::UrlFile, "c:\\SITE.URL"},
      {"address in capitals", "HTTP://A.EXAMPLE", CommandKind::WebAddress, "HTTP://A.EXAMPLE"},
      {"mail in capitals", "MAILTO:A@B", CommandKind::MailAddress, "MAILTO:A@B"},
      {"link", "c:\\a.LnK", CommandKind::ShellLink, "c:\\a.LnK"},
  };
  for (const FormRow& row : rows) Check(row);
}

TEST(CommandForms, BlanksAroundTheTextDoNotCount) {
  const FormRow rows[] = {
      {"only blanks", "     ", CommandKind::Empty, ""},
      {"before and after", "  netsearch  ", CommandKind::NetSearch, "netsearch"},
      {"before a marker", "  ?  c:\\a.exe  ", CommandKind::Other, "c:\\a.exe"},
      {"a tab is no blank", "\tnetsearch", CommandKind::Other, "\tnetsearch"},
  };
  for (const FormRow& row : rows) Check(row);
}

TEST(CommandForms, TheRawMarkerGoesAndTheTestsBelowItGoOn) {
  const FormRow rows[] = {
      {"a word", "?netsearch", CommandKind::NetSearch, "netsearch"},
      {"a word after blanks", "? NetSearch", CommandKind::NetSearch, "NetSearch"},
      {"an address", "?http://a.example", CommandKind::WebAddress, "http://a.example"},
      {"a link", "?c:\\a.lnk", CommandKind::ShellLink, "c:\\a.lnk"},
      {"the marker alone is not empty", "?", CommandKind::Other, ""},
      {"a special folder is not tested again", "?CSIDL_DRIVES", CommandKind::Other, "CSIDL_DRIVES"},
      {"a second marker stays", "??netsearch", CommandKind::Other, "?netsearch"},
      {"only in front", "netsearch?", CommandKind::Other, "netsearch?"},
  };
  for (const FormRow& row : rows) Check(row);
}

TEST(CommandForms, TheFirstMatchWins) {
  const FormRow rows[] = {
      {"special folder before link", "CSIDL_X.lnk", CommandKind::SpecialFolder, "CSIDL_X.lnk"},
      {"url file before address", "http://a.example/b.url", CommandKind::UrlFile,
       "http://a.example/b.url"},
      {"address before link", "http://a.example/b.lnk", CommandKind::WebAddress,
       "http://a.example/b.lnk"},
      {"mail before link", "mailto:x.lnk", CommandKind::MailAddress, "mailto:x.lnk"},
  };
  for (const FormRow& row : rows) Check(row);
}

TEST(CommandForms, NearMissesAreFiles) {
  const FormRow rows[] = {
      {"word with more", "netsearch now", CommandKind::Other, "netsearch now"},
      {"word that no test knows", "RunDialog", CommandKind::Other, "RunDialog"},
      {"a longer word", "httpss://a", CommandKind::Other, "httpss://a"},
      {"one slash", "http:/a", CommandKind::Other, "http:/a"},
      {"link with arguments", "c:\\a.lnk /x", CommandKind::Other, "c:\\a.lnk /x"},
      {"url with more", "c:\\a.url.txt", CommandKind::Other, "c:\\a.url.txt"},
      {"special folder inside", "c:\\CSIDL_DRIVES", CommandKind::Other, "c:\\CSIDL_DRIVES"},
      {"special folder without its line", "CSIDL", CommandKind::Other, "CSIDL"},
      {"arguments", "explorer.exe /e,/root,,::{20D04FE0-3AEA-1069-A2D8-08002B30309D}",
       CommandKind::Other, "explorer.exe /e,/root,,::{20D04FE0-3AEA-1069-A2D8-08002B30309D}"},
  };
  for (const FormRow& row : rows) Check(row);
}

TEST(CommandForms, AnUnknownSpecialFolderIsOneAllTheSame) {
  Check({"unknown", "CSIDL_NOSUCHTHING", CommandKind::SpecialFolder, "CSIDL_NOSUCHTHING"});
  Check({"no name", "csidl_", CommandKind::SpecialFolder, "csidl_"});
}

TEST(CommandForms, WhatAUrlFileLedToIsNeverAnotherUrlFile) {
  EXPECT_EQ(ClassifyAddress("http://a.example/b.url"), CommandKind::WebAddress);
  EXPECT_EQ(ClassifyAddress("https://a.example/b.lnk"), CommandKind::WebAddress);
  EXPECT_EQ(ClassifyAddress("c:\\a.url"), CommandKind::Other);
  EXPECT_EQ(ClassifyAddress("MailTo:a@b"), CommandKind::MailAddress);
  EXPECT_EQ(ClassifyAddress("c:\\a.lnk"), CommandKind::ShellLink);
  EXPECT_EQ(ClassifyAddress("netsearch"), CommandKind::Other);
}

TEST(UrlFiles, GiveTheFirstAddress) {
  struct Row {
    const char* name;
    std::string bytes;
    std::optional<std::string> expected;
  };
  using std::string_literals::operator""s;
  const Row rows[] = {
      {"the usual one", "[InternetShortcut]\r\nURL=http://a.example/b\r\n", "http://a.example/b"},
      {"any case, and the address keeps its own", "uRl=HTTP://A.Example", "HTTP://A.Example"},
      {"blanks", "URL= http://a.example  \r\n", "http://a.example"},
      {"the first line that fits", "URL=x\r\nURL=http://a\r\nURL=http://b\r\n", "http://a"},
      {"a line whose end only is that word", "BASEURL=http://a\r\nURL=http://b\r\n", "http://a"},
      {"an address before the word", "http://a url=", "http://a url="},
      {"cut at a carriage return", "URL=http://a\rURL=http://b", "http://a"},
      {"cut at a line feed", "URL=http://a\nIconFile=x", "http://a"},
      {"cut at a NUL", "URL=http://a\0b\r\n"s, "http://a"},
      {"without a line end", "URL=http://a", "http://a"},
      {"in the code page", "URL=http://a/\xE9", "http://a/\xC3\xA9"},
      {"the word is missing", "http://a.example\r\n", std::nullopt},
      {"word and address on two lines", "URL=\r\nhttp://a.example\r\n", std::nullopt},
      {"another kind of address", "URL=ftp://a.example\r\n", std::nullopt},
      {"secure", "URL=https://a.example\r\n", "https://a.example"},
      {"secure in capitals", "URL=HTTPS://A.example\r\n", "HTTPS://A.example"},
      {"one address in another", "URL=https://a/?to=http://b/c", "https://a/?to=http://b/c"},
      {"two of a kind", "URL=http://a/http://b", "http://a/http://b"},
      {"secure in a plain one", "URL=http://a/https://b", "http://a/https://b"},
      {"its word in the address", "URL=https://a/?url=http://b", "https://a/?url=http://b"},
      {"in quotes", "URL=\"https://a\"", "https://a\""},
      {"inside another kind", "URL=ftp://a/?to=http://b", std::nullopt},
      {"behind another kind", "URL=view:https://b", std::nullopt},
      {"another kind, then a plain line", "URL=ftp://a/http://b\r\nURL=http://c", "http://c"},
      {"empty", "", std::nullopt},
  };
  const Windows1252 ansi;
  for (const Row& row : rows) EXPECT_EQ(ParseUrlFile(row.bytes, ansi), row.expected) << row.name;
}

TEST(ItemWorkDir, IsTheFolderOfAPathWithADrive) {
  struct Row {
    const char* name;
    std::string path;
    std::string expected;
  };
  const Row rows[] = {
      {"file in a folder", "c:\\tools\\a.exe", "c:\\tools\\"},
      {"file in the root runs there", "c:\\a.exe", "c:\\"},
      {"the root itself", "c:\\", "c:\\"},
      {"folder with its backslash", "c:\\tools\\", "c:\\tools\\"},
      {"relative name", "a.exe", ""},
      {"relative path", "tools\\a.exe", ""},
      {"network path", "\\\\server\\share\\a.exe", ""},
      {"drive without a backslash", "c:a.exe", ""},
      {"in quotes", "\"c:\\tools\\a.exe\"", ""},
      {"address", "http://a.example/", ""},
      {"last backslash, wherever it stands", "c:\\a.exe d:\\b\\c", "c:\\a.exe d:\\b\\"},
      {"a drive in any script", "\xC3\xA9:\\x\\y", "\xC3\xA9:\\x\\"},
      {"one character", "c", ""},
      {"nothing", "", ""},
  };
  for (const Row& row : rows) EXPECT_EQ(GetItemWorkDir(row.path), row.expected) << row.name;
}

TEST(LinkFolders, EndAtTheTargetsLastBackslash) {
  using std::string_literals::operator""s;
  EXPECT_EQ(LinkFolder("c:\\tools\\a.exe"), "c:\\tools\\");
  EXPECT_EQ(LinkFolder("\\\\server\\share\\a.exe"), "\\\\server\\share\\");
  EXPECT_EQ(LinkFolder("c:\\tools\\a.exe\0\\rest\\"s), "c:\\tools\\");
  EXPECT_EQ(LinkFolder("  c:\\a.exe  "), "c:\\");
  EXPECT_EQ(LinkFolder("a.exe"), "");
  EXPECT_EQ(LinkFolder(""), "");
}

TEST(CommandLineSplit, TheProgramEndsWhereTheSystemWouldEndIt) {
  struct Row {
    const char* name;
    std::string line;
    std::vector<std::string> files;
    CommandLineParts expected;
  };
  const Row rows[] = {
      {"in quotes", "\"c:\\a b\\c.exe\"  /x y", {}, {"c:\\a b\\c.exe", "/x y"}},
      {"quotes around nothing", "\"\" /x", {}, {"", "/x"}},
      {"quotes without an end", "\"c:\\a.exe", {}, {"c:\\a.exe", ""}},
      {"the first word", "c:\\a.exe /x", {"c:\\a.exe"}, {"c:\\a.exe", "/x"}},
      {"blanks in the path", "c:\\a b.exe /x", {"c:\\a b.exe"}, {"c:\\a b.exe", "/x"}},
      {"the shorter of two", "c:\\a b /x", {"c:\\a.exe", "c:\\a b"}, {"c:\\a", "b /x"}},
      {"without its ending", "c:\\a /x", {"c:\\a.exe"}, {"c:\\a", "/x"}},
      {"the whole line", "c:\\a b", {"c:\\a b"}, {"c:\\a b", ""}},
      {"a name that is looked up elsewhere", "regedit /s x", {}, {"regedit", "/s x"}},
      {"one word", "regedit", {}, {"regedit", ""}},
      {"blanks around it", "  a  b ", {}, {"a", "b"}},
      {"nothing", "", {}, {"", ""}},
  };
  for (const Row& row : rows) {
    const auto exists = [&row](const std::string& path) {
      return std::find(row.files.begin(), row.files.end(), path) != row.files.end();
    };
    EXPECT_EQ(SplitCommandLine(row.line, exists), row.expected) << row.name;
  }
}

TEST(Quotes, StandAroundTheText) {
  EXPECT_EQ(Quoted("c:\\a b.txt"), "\"c:\\a b.txt\"");
  EXPECT_EQ(Quoted(""), "\"\"");
}

}  // namespace corvelle
