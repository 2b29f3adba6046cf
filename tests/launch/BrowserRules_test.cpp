#include "launch/BrowserRules.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/CodePage.h"
#include "launch/CommandForm.h"

namespace corvelle {

namespace {

const Windows1252 kAnsi;

constexpr char kNetscapeMarkup[] = "NetscapeMarkup\\shell\\open\\ddeexec\\Application";
constexpr char kWeb[] = "http\\shell\\open\\ddeexec\\Application";
constexpr char kPage[] = "htmlfile\\shell\\open\\ddeexec\\Application";

std::string Bookmarks(const std::string& entries) {
  return "<TITLE>Bookmarks</TITLE>\r\n<DL><p>\r\n" + entries + "</DL><p>\r\n";
}

}  // namespace

TEST(ServiceSourceOf, EachBrowserHasItsPlaces) {
  struct Row {
    const char* name;
    const char* command;
    ServiceSource expected;
  };
  const Row rows[] = {
      {"netscape", "C:\\Netscape\\Program\\netscape.exe", {{kNetscapeMarkup, kPage}, "NSShell"}},
      {"netscape in capitals", "C:\\NETSCAPE.EXE", {{kNetscapeMarkup, kPage}, "NSShell"}},
      {"internet explorer", "C:\\IE\\iexplore.exe", {{kWeb, kPage}, "IExplore"}},
      {"another browser", "C:\\Other\\other.exe", {{kWeb, kPage}, ""}},
      {"the shell's own program", "C:\\windows\\explorer.exe", {{kWeb, kPage}, ""}},
      {"no path", "", {{kWeb, kPage}, ""}},
  };
  for (const Row& row : rows) EXPECT_EQ(ServiceSourceOf(row.command), row.expected) << row.name;
}

TEST(BrowserItem, StandsInQuotesWithTheBrowsersParameters) {
  EXPECT_EQ(BrowserItem("http://a.example/x"), "\"http://a.example/x\",,-1,0,,,,");
  EXPECT_EQ(BrowserItem(""), "\"\",,-1,0,,,,");
}

TEST(EscapeAddress, NothingInAnAddressCanEndIt) {
  struct Row {
    const char* name;
    std::string url;
    const char* expected;
  };
  const Row rows[] = {
      {"plain", "http://a.example/?x=1&y=%20,b;c#d", "http://a.example/?x=1&y=%20,b;c#d"},
      {"a quote", "http://a\" -flag", "http://a%22%20-flag"},
      {"a line end", "http://a\r\nIconFile=x", "http://a%0D%0AIconFile=x"},
      {"a NUL", std::string("http://a\0b", 10), "http://a%00b"},
      {"delete", "http://a\x7F", "http://a%7F"},
      {"other scripts stay", "http://\xC3\xA4.example", "http://\xC3\xA4.example"},
  };
  for (const Row& row : rows) EXPECT_EQ(EscapeAddress(row.url), row.expected) << row.name;
}

TEST(FormatUrlFile, IsReadBackAsTheAddress) {
  const std::string bytes = FormatUrlFile("http://a.example/\xC3\xA4", kAnsi);
  EXPECT_EQ(bytes, "[InternetShortcut]\r\nURL=http://a.example/\xE4\r\n");
  EXPECT_EQ(ParseUrlFile(bytes, kAnsi), "http://a.example/\xC3\xA4");
}

TEST(PageTitle, IsWhatStandsBeforeTheLastDash) {
  struct Row {
    const char* name;
    const char* caption;
    const char* expected;
  };
  const Row rows[] = {
      {"title and browser", "A page - Browser", "A page "},
      {"a dash in the title", "A-B - Browser", "A-B "},
      {"no dash", "A page", "A page"},
      {"dash at the end", "A page -", "A page "},
      {"only a dash", "-", ""},
      {"empty", "", ""},
  };
  for (const Row& row : rows) EXPECT_EQ(PageTitle(row.caption), row.expected) << row.name;
}

TEST(IsBookmarkCaption, TheBrowsersOwnWindowsAreNone) {
  EXPECT_TRUE(IsBookmarkCaption("Bookmarks for Ann"));
  EXPECT_TRUE(IsBookmarkCaption("my BOOKMARKS"));
  EXPECT_FALSE(IsBookmarkCaption("Bookmarks - Netscape"));
  EXPECT_FALSE(IsBookmarkCaption("bookmarks - Explorer"));
  EXPECT_FALSE(IsBookmarkCaption("A page"));
}

TEST(ParseBookmarkTitle, FindsTheTitleOfTheAddress) {
  struct Row {
    const char* name;
    std::string bytes;
    const char* url;
    const char* expected;
  };
  const Row rows[] = {
      {"a bookmark", Bookmarks("<DT><A HREF=\"http://a.example/\" ADD_DATE=\"9\"> One </A>\r\n"),
       "http://a.example/", "One"},
      {"another case", Bookmarks("<DT><A HREF=\"HTTP://A.example/\">One</A>\r\n"),
       "http://a.EXAMPLE/", "One"},
      {"the first that begins so",
       Bookmarks("<A HREF=\"http://a/b\">B</A><A HREF=\"http://a\">A</A>"), "http://a", "B"},
      {"not there", Bookmarks("<A HREF=\"http://b/\">B</A>"), "http://a", ""},
      {"not in quotes", Bookmarks("<A HREF=http://a>A</A>"), "http://a", ""},
      {"without an end", "<A HREF=\"http://a\">A title12345", "http://a", "A title"},
      {"without a beginning", "<A HREF=\"http://a\"12345", "http://a", ""},
      {"the last five bytes are not read", "<A HREF=\"http://a\">AB<CDE", "http://a", "A"},
      {"the address in the last five bytes", "<A HREF=\"http://a", "http://a", ""},
      {"ten bytes", "\"a\">b<1234", "a", ""},
      {"eleven bytes", "\"a\">b<12345", "a", "b"},
      {"no bytes", "", "a", ""},
      {"ANSI letters",
       Bookmarks("<A HREF=\"http://a\">Gr\xFC\xDF"
                 "e</A>"),
       "http://a",
       "Gr\xC3\xBC\xC3\x9F"
       "e"},
  };
  for (const Row& row : rows)
    EXPECT_EQ(ParseBookmarkTitle(row.bytes, row.url, kAnsi), row.expected) << row.name;
}

TEST(ParseBookmarkFolder, IsTheLineOfTheUser) {
  struct Row {
    const char* name;
    const char* bytes;
    const char* expected;
  };
  const Row rows[] = {
      {"a line", "Command=c:\\b.exe\r\nuser= C:\\Users\\Ann \r\n", "C:\\Users\\Ann"},
      {"in capitals", "USER=C:\\A", "C:\\A"},
      {"no such line", "Command=c:\\b.exe\r\n", ""},
      {"an empty one", "user=\r\n", ""},
      {"no bytes", "", ""},
  };
  for (const Row& row : rows)
    EXPECT_EQ(ParseBookmarkFolder(row.bytes, kAnsi), row.expected) << row.name;
}

TEST(UsersFolders, StandBesideEveryPartOfThePathFromItsEnd) {
  EXPECT_EQ(UsersFolders("C:\\N\\Program\\netscape.exe"),
            (std::vector<std::string>{"C:\\N\\Program\\Users\\", "C:\\N\\Users\\", "C:\\Users\\"}));
  EXPECT_TRUE(UsersFolders("netscape.exe").empty());
  EXPECT_TRUE(UsersFolders("").empty());
}

}  // namespace corvelle
