#include "core/SettingsFiles.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "core/CoreTexts.h"
#include "sim/SimFiles.h"

namespace corvelle {
namespace {

using namespace std::string_literals;
using sim::SimFiles;

const std::string kPosition = kApp + "toolbarp.dat";
const std::string kIconIni = kApp + "httpicon.ini";
const std::string kPage = kApp + "httpicon.htm";
const std::string kBrowser = kApp + "openurl.ini";

TEST(ToolbarPosition, IsFourBytesOfAFloat) {
  SimFiles disk;
  disk.MakeFolders(kApp);
  ASSERT_TRUE(SaveToolbarPosition(disk, kApp, 1.0F));
  EXPECT_EQ(disk.Get(kPosition), "\x00\x00\x80\x3F"s);
  ASSERT_TRUE(SaveToolbarPosition(disk, kApp, -2.0F));
  EXPECT_EQ(disk.Get(kPosition), "\x00\x00\x00\xC0"s);
}

TEST(ToolbarPosition, ComesBackAsItWas) {
  SimFiles disk;
  disk.MakeFolders(kApp);
  for (const float left : {915.0F, 0.5F, -15.0F, 1.0e30F, std::numeric_limits<float>::min()}) {
    ASSERT_TRUE(SaveToolbarPosition(disk, kApp, left));
    EXPECT_EQ(LoadToolbarPosition(disk, kApp), left);
  }
}

TEST(ToolbarPosition, IsNoneWhereTheFileSaysNone) {
  struct Row {
    const char* name;
    std::string bytes;
  };
  const Row rows[] = {
      {"empty", ""},
      {"three bytes", "\x00\x00\x80"s},
      {"no number", "\x00\x00\xC0\x7F"s},
      {"infinity", "\x00\x00\x80\x7F"s},
      {"minus infinity", "\x00\x00\x80\xFF"s},
  };
  SimFiles disk;
  EXPECT_EQ(LoadToolbarPosition(disk, kApp), 0.0F);
  for (const Row& row : rows) {
    disk.Put(kPosition, row.bytes);
    EXPECT_EQ(LoadToolbarPosition(disk, kApp), 0.0F) << row.name;
  }
  disk.Put(kPosition, "\x00\x00\x80\x3Fmore"s);
  EXPECT_EQ(LoadToolbarPosition(disk, kApp), 1.0F);
}

TEST(ToolbarPosition, AFailureLeavesTheOldOne) {
  SimFiles disk;
  disk.MakeFolders(kApp);
  ASSERT_TRUE(SaveToolbarPosition(disk, kApp, 30.0F));
  for (int n = 1;; ++n) {
    disk.FailCall(n, FileError::DiskFull);
    const FileStatus status = SaveToolbarPosition(disk, kApp, 60.0F);
    if (!disk.Hit()) break;
    EXPECT_FALSE(status);
    EXPECT_EQ(LoadToolbarPosition(disk, kApp), 30.0F);
  }
  disk.StopFailing();
  EXPECT_EQ(LoadToolbarPosition(disk, kApp), 60.0F);
}

OptionFlags WithOwnIcon() {
  OptionFlags flags;
  flags.Set(Option::OwnWebLinkIcon, '1');
  return flags;
}

TEST(WebLinkIcon, IsTheUsersOwnWherePosition12Says) {
  SimFiles disk;
  disk.MakeFolders(kApp);
  ASSERT_TRUE(SaveWebLinkIcon(disk, kAnsi, kApp, "C:\\Icons\\\xC3\xA4.ico"));
  EXPECT_EQ(disk.Get(kIconIni), "C:\\Icons\\\xE4.ico\r\n");
  EXPECT_EQ(LoadWebLinkIcon(disk, kAnsi, kApp, WithOwnIcon()), "C:\\Icons\\\xC3\xA4.ico");
  EXPECT_FALSE(disk.Has(kPage));
  EXPECT_EQ(LoadWebLinkIcon(disk, kAnsi, kApp, OptionFlags()), kPage);
}

TEST(WebLinkIcon, TheFirstLineIsTrimmed) {
  SimFiles disk;
  disk.Put(kIconIni, "  C:\\a.ico  \r\nC:\\b.ico\r\n");
  EXPECT_EQ(LoadWebLinkIcon(disk, kAnsi, kApp, WithOwnIcon()), "C:\\a.ico");
}

TEST(WebLinkIcon, FallsBackToThePageWithoutAFirstLine) {
  struct Row {
    const char* name;
    std::optional<std::string> file;
  };
  const Row rows[] = {
      {"missing", std::nullopt},
      {"empty", ""},
      {"empty first line", "\r\nC:\\a.ico\r\n"},
      {"blank first line", "   \r\nC:\\a.ico\r\n"},
  };
  for (const Row& row : rows) {
    SimFiles disk;
    disk.MakeFolders(kApp);
    if (row.file) disk.Put(kIconIni, *row.file);
    EXPECT_EQ(LoadWebLinkIcon(disk, kAnsi, kApp, WithOwnIcon()), kPage) << row.name;
    EXPECT_EQ(disk.Get(kPage), "<HTML> </HTML>\r\n") << row.name;
  }
}

TEST(WebLinkIcon, APageThatIsThereStays) {
  SimFiles disk;
  disk.Put(kPage, "my own page");
  EXPECT_EQ(LoadWebLinkIcon(disk, kAnsi, kApp, OptionFlags()), kPage);
  EXPECT_EQ(disk.Get(kPage), "my own page");
}

TEST(WebLinkIcon, IsThePageEvenWhereItCannotBeMade) {
  SimFiles disk;
  EXPECT_EQ(LoadWebLinkIcon(disk, kAnsi, kApp, OptionFlags()), kPage);
  disk.MakeFolders(kApp);
  disk.FillDisk(0);
  EXPECT_EQ(LoadWebLinkIcon(disk, kAnsi, kApp, OptionFlags()), kPage);
  EXPECT_FALSE(disk.Has(kPage));
}

TEST(BrowserServiceName, IsKnownForTwoBrowsers) {
  struct Row {
    const char* path;
    std::optional<std::string> expected;
  };
  const Row rows[] = {
      {"C:\\Program Files\\Internet Explorer\\iexplore.exe", "IExplore"},
      {"C:\\IEXPLORE.EXE", "IExplore"},
      {"C:\\Netscape\\netscape.exe", "NSShell"},
      {"C:\\NETSCAPE\\x.exe", "NSShell"},
      {"C:\\Explorer\\netscape.exe", "IExplore"},
      {"C:\\other.exe", std::nullopt},
      {"", std::nullopt},
  };
  for (const Row& row : rows) EXPECT_EQ(BrowserServiceName(row.path), row.expected) << row.path;
}

TEST(BrowserChoice, IsTwoLines) {
  SimFiles disk;
  disk.MakeFolders(kApp);
  ASSERT_TRUE(SaveBrowserChoice(disk, kAnsi, kApp, {"C:\\IE\\iexplore.exe", "IExplore"}));
  EXPECT_EQ(disk.Get(kBrowser), "Command=C:\\IE\\iexplore.exe\r\nApplication=IExplore\r\n");
  EXPECT_EQ(LoadBrowserChoice(disk, kAnsi, kApp),
            (BrowserChoice{"c:\\ie\\iexplore.exe", "iexplore"}));
}

TEST(BrowserChoice, IsReadLineByLine) {
  struct Row {
    const char* name;
    std::string bytes;
    BrowserChoice expected;
  };
  const Row rows[] = {
      {"as written", "Command=C:\\A.exe\r\nApplication=IExplore\r\n", {"c:\\a.exe", "iexplore"}},
      {"other order, other case", "APPLICATION=X\ncommand=Y\n", {"y", "x"}},
      {"blanks", "  Command=  a b  \r\n Application= c \r\n", {"a b", "c"}},
      {"one line only", "Command=a\r\n", {"a", ""}},
      {"other lines", "user=me\r\nCommand=a\r\n;x\r\nApplication=b", {"a", "b"}},
      {"the value has a fixed place", "xCommand=abc\r\n", {"=abc", ""}},
      {"the last one counts", "Command=a\r\nCommand=b\r\n", {"b", ""}},
      {"no value", "Command=\r\nApplication=\r\n", {"", ""}},
      {"a path in another script",
       "Command=C:\\\xD0\x96.exe\r\nApplication=NSShell\r\n",
       {"c:\\\xD0\xB6.exe", "nsshell"}},
      {"nothing", "", {"", ""}},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(ParseBrowserChoice(row.bytes, kAnsi), row.expected) << row.name;
  }
}

TEST(BrowserChoice, CountsOnlyWithBothParts) {
  EXPECT_TRUE((BrowserChoice{"a", "b"}).IsComplete());
  EXPECT_FALSE((BrowserChoice{"a", ""}).IsComplete());
  EXPECT_FALSE((BrowserChoice{"", "b"}).IsComplete());
}

TEST(BrowserChoice, IsForgottenWithItsFile) {
  SimFiles disk;
  disk.Put(kBrowser, "Command=a\r\nApplication=b\r\n");
  EXPECT_TRUE(ForgetBrowserChoice(disk, kApp));
  EXPECT_FALSE(disk.Has(kBrowser));
  EXPECT_TRUE(ForgetBrowserChoice(disk, kApp));
  EXPECT_EQ(LoadBrowserChoice(disk, kAnsi, kApp), BrowserChoice());
  disk.Put(kBrowser, "x");
  disk.HoldOpen(kBrowser);
  EXPECT_FALSE(ForgetBrowserChoice(disk, kApp));
}

}  // namespace
}  // namespace corvelle
