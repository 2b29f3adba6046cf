#include <gtest/gtest.h>

#include "e2e/DeskFiles.h"
#include "e2e/WineDesk.h"
#include "e2e/contract/DdeServer.h"
#include "scenario/Strip.h"

// Web and mail entries, on a machine whose browser and mail program are made by the test: the
// browser is a witness of another name, which says of itself what it was started with, and while it
// "runs", a server of the test's own process takes its conversations.

namespace corvelle::e2e {
namespace {

using scenario::InstalledFlags;
using scenario::kButtonOk;
using scenario::kFlagsFile;
using scenario::StartAndWait;
using scenario::WriteMenu;
using Manner = LibraryServer::Manner;

constexpr wchar_t kClasses[] = L"Software\\Classes\\";
constexpr wchar_t kBrowser[] = L"C:\\witness\\iexplore.exe";
constexpr char kUrl[] = "http://a.example/page?x=1";
constexpr wchar_t kItem[] = L"\"http://a.example/page?x=1\",,-1,0,,,,";

void SetClass(const std::wstring& key, const std::wstring& text) {
  EXPECT_EQ(RegSetValueW(HKEY_LOCAL_MACHINE, (kClasses + key).c_str(), REG_SZ, text.c_str(), 0), 0);
}

void RemoveClass(const std::wstring& key) {
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, (kClasses + key).c_str());
}

/// A desk with one menu of links, and no browser and no mail program until the test makes them. Its
/// session, registry and all, is the test's own.
class Links : public ::testing::Test {
 protected:
  void SetUp() override {
    for (const wchar_t* key :
         {L"http", L"mailto", L"htmlfile", L".htm", L"pages", L".url", L"links"})
      RemoveClass(key);
    desk_.WriteFile(kFlagsFile, InstalledFlags());
    desk_.WriteFile("page.url", std::string("[InternetShortcut]\r\nURL=") + kUrl + "\r\n");
    WriteMenu(desk_, 1, "Links",
              {{.FTitle = "Page", .FIcon = "http", .FName = kUrl},
               {.FTitle = "Mail", .FIcon = "", .FName = "mailto:ann@a.example"},
               {.FTitle = "File", .FIcon = "", .FName = "C:\\Corvelle\\page.url"}});
    desk_.MovePointer(scenario::FarAway(desk_));
  }

  void InstallBrowser() {
    ASSERT_NE(CopyFileW(L"C:\\witness\\witness.exe", kBrowser, TRUE), FALSE);
    SetClass(L".htm", L"pages");
    SetClass(L"pages\\shell\\open\\command", std::wstring(L"\"") + kBrowser + L"\" \"%1\"");
  }
  static void InstallProtocol(const std::wstring& protocol, const std::wstring& command) {
    SetClass(protocol, L"URL:" + protocol);
    const wchar_t none[] = L"";
    RegSetKeyValueW(HKEY_LOCAL_MACHINE, (kClasses + protocol).c_str(), L"URL Protocol", REG_SZ,
                    none, sizeof(none));
    SetClass(protocol + L"\\shell\\open\\command", command);
  }

  void Choose(int item) {
    ASSERT_TRUE(StartAndWait(desk_));
    ASSERT_TRUE(scenario::OpenMenu(desk_, 2));
    const PixelPoint at = scenario::ItemMiddle(desk_, item, 3);
    scenario::ClickItem(desk_, at);
  }
  bool WaitForLaunch() {
    return desk_.Wait([this] { return !desk_.Launched().empty(); }, 8000);
  }
  void ExpectNoTempFiles() {
    EXPECT_FALSE(desk_.ReadFile("temphtml.htm").has_value());
    EXPECT_FALSE(desk_.ReadFile("tempurl.url").has_value());
  }

  WineDesk desk_;
};

TEST_F(Links, ARunningBrowserGetsThePageByDde) {
  InstallBrowser();
  LibraryServer server(L"IExplore", L"WWW_OpenURL", Manner::Takes);
  Choose(1);
  ASSERT_TRUE(desk_.Wait([&] { return !server.Told().empty(); }, 8000));
  EXPECT_EQ(server.Told(), std::vector<std::wstring>{kItem});
  desk_.Pause(1000);
  EXPECT_TRUE(desk_.Launched().empty());
  ExpectNoTempFiles();
}

TEST_F(Links, AUrlFileLeadsToThePageOfTheRunningBrowser) {
  InstallBrowser();
  LibraryServer server(L"IExplore", L"WWW_OpenURL", Manner::Takes);
  Choose(3);
  ASSERT_TRUE(desk_.Wait([&] { return !server.Told().empty(); }, 8000));
  EXPECT_EQ(server.Told(), std::vector<std::wstring>{kItem});
}

TEST_F(Links, AClosedBrowserIsStartedWithThePage) {
  InstallBrowser();
  Choose(1);
  ASSERT_TRUE(WaitForLaunch());
  EXPECT_EQ(desk_.Launched()[0].Program, Narrow(kBrowser));
  EXPECT_EQ(desk_.Launched()[0].Arguments, kUrl);
  EXPECT_EQ(desk_.Launched()[0].Folder, "C:\\witness");
  ExpectNoTempFiles();
}

TEST_F(Links, ABrowserThatRefusesLeavesThePageToTheShell) {
  InstallBrowser();
  LibraryServer server(L"IExplore", L"WWW_OpenURL", Manner::Refuses);
  Choose(1);
  ASSERT_TRUE(WaitForLaunch());
  EXPECT_EQ(server.Told().size(), 1U);
  EXPECT_EQ(desk_.Launched()[0].Program, Narrow(kBrowser));
  EXPECT_EQ(desk_.Launched()[0].Arguments, kUrl);
}

TEST_F(Links, ThePageGoesToTheUsersOwnBrowser) {
  ASSERT_NE(CopyFileW(L"C:\\witness\\witness.exe", kBrowser, TRUE), FALSE);
  desk_.WriteFile("openurl.ini", "Command=C:\\witness\\iexplore.exe\r\nApplication=IExplore\r\n");
  Choose(1);
  ASSERT_TRUE(WaitForLaunch());
  EXPECT_EQ(desk_.Launched()[0].Arguments, kUrl);
}

TEST_F(Links, WithoutAProgramForPagesTheAddressGoesToItsOwnHandler) {
  SetClass(L".url", L"links");
  SetClass(L"links\\shell\\open\\command", L"C:\\witness\\witness.exe file \"%1\"");
  InstallProtocol(L"http", L"C:\\witness\\witness.exe address \"%1\"");
  Choose(1);
  ASSERT_TRUE(WaitForLaunch());
  EXPECT_EQ(desk_.Launched()[0].Arguments, std::string("address \"") + kUrl + "\"");
  ExpectNoTempFiles();
}

TEST_F(Links, WithoutAnyProgramForLinksTheAddressGoesToItsHandlerToo) {
  InstallProtocol(L"http", L"C:\\witness\\witness.exe address \"%1\"");
  Choose(1);
  ASSERT_TRUE(WaitForLaunch());
  EXPECT_EQ(desk_.Launched()[0].Arguments, std::string("address \"") + kUrl + "\"");
  desk_.Pause(500);
  EXPECT_TRUE(desk_.Messages().empty());
  ExpectNoTempFiles();
}

TEST_F(Links, TheUsersChoiceComesBeforeABrowserThatOnlyLeftItsKeys) {
  InstallBrowser();
  SetClass(L"htmlfile\\shell\\open\\ddeexec\\Application", L"IExplore");
  InstallProtocol(L"http", L"C:\\witness\\witness.exe address \"%1\"");
  SetClass(L"Chosen\\shell\\open\\command", L"C:\\witness\\witness.exe address \"%1\"");
  const wchar_t chosen[] = L"Chosen";
  ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER,
                            L"Software\\Microsoft\\Windows\\Shell\\Associations\\"
                            L"UrlAssociations\\http\\UserChoice",
                            L"ProgId", REG_SZ, chosen, sizeof(chosen)),
            0);
  Choose(1);
  ASSERT_TRUE(WaitForLaunch());
  EXPECT_EQ(desk_.Launched()[0].Program, desk_.WitnessProgram());
  EXPECT_EQ(desk_.Launched()[0].Arguments, std::string("address \"") + kUrl + "\"");
}

TEST_F(Links, ASecureAddressGoesToTheRunningBrowserWhole) {
  desk_.WriteFile("page.url",
                  "[InternetShortcut]\r\nURL=https://a.example/?to=http://b.example\r\n");
  InstallBrowser();
  LibraryServer server(L"IExplore", L"WWW_OpenURL", Manner::Takes);
  Choose(3);
  ASSERT_TRUE(desk_.Wait([&] { return !server.Told().empty(); }, 8000));
  EXPECT_EQ(server.Told(),
            std::vector<std::wstring>{L"\"https://a.example/?to=http://b.example\",,-1,0,,,,"});
}

TEST_F(Links, AMailAddressGoesToTheMailProgram) {
  InstallProtocol(L"mailto", L"C:\\witness\\witness.exe \"%1\"");
  Choose(2);
  ASSERT_TRUE(WaitForLaunch());
  EXPECT_EQ(desk_.Launched()[0].Program, desk_.WitnessProgram());
  EXPECT_EQ(desk_.Launched()[0].Arguments, "\"mailto:ann@a.example\"");
}

}  // namespace
}  // namespace corvelle::e2e
