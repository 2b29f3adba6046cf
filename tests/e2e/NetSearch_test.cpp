#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "e2e/DeskFiles.h"
#include "e2e/WineDesk.h"
#include "scenario/Strip.h"

// Net Search, About and the help on a desktop whose browser and whose program for pages are
// witnesses, which say of themselves what they were started with.

namespace corvelle::e2e {
namespace {

using scenario::InstalledFlags;
using scenario::kButtonOk;
using scenario::kFlagsFile;
using scenario::MainChoice;
using scenario::StartAndWait;
using scenario::WriteMenu;

constexpr char kEngines[] =
    "A list of engines\r\n\r\nNAME=One\r\nURL=http://one.example/?q=[x]&n=1\r\n"
    "NAME=Two\r\nURL=https://two.example/?q=[utf8]\r\n";

void WriteClass(const std::wstring& key, const std::wstring& text) {
  EXPECT_EQ(RegSetValueW(HKEY_LOCAL_MACHINE, (L"Software\\Classes\\" + key).c_str(), REG_SZ,
                         text.c_str(), 0),
            0);
}

/// A desk with one menu that holds the word of Net Search.
class Windows : public ::testing::Test {
 protected:
  void SetUp() override {
    for (const wchar_t* key : {L"http", L"https", L"htmlfile", L".htm", L".html", L".url"}) {
      RegDeleteTreeW(HKEY_LOCAL_MACHINE, (std::wstring(L"Software\\Classes\\") + key).c_str());
    }
    for (const std::wstring protocol : {L"http", L"https"}) {
      WriteClass(protocol, L"URL:" + protocol);
      const wchar_t none[] = L"";
      RegSetKeyValueW(HKEY_LOCAL_MACHINE, (L"Software\\Classes\\" + protocol).c_str(),
                      L"URL Protocol", REG_SZ, none, sizeof(none));
      WriteClass(protocol + L"\\shell\\open\\command", L"C:\\witness\\witness.exe address \"%1\"");
    }
    WriteClass(L".html", L"helppages");
    WriteClass(L"helppages\\shell\\open\\command", L"C:\\witness\\witness.exe page \"%1\"");
    desk_.WriteFile(kFlagsFile, InstalledFlags());
    desk_.WriteFile("netsrch.ini", kEngines);
    WriteMenu(desk_, 1, "Words", {{.FTitle = "Search", .FIcon = "", .FName = "NetSearch"}});
    desk_.MovePointer(scenario::FarAway(desk_));
  }

  bool OpenNetSearch() {
    if (!scenario::OpenMenu(desk_, 2)) return false;
    scenario::ClickItem(desk_, scenario::ItemMiddle(desk_, 1, 1));
    return desk_.Wait([this] {
      return desk_.IsVisible("frmNetSearch") && desk_.ForegroundClass() == "frmNetSearch";
    });
  }
  bool OpenAbout() {
    return scenario::ChooseInMainMenu(desk_, MainChoice::About) && desk_.Wait([this] {
      return desk_.IsVisible("frmAbout") && desk_.ForegroundClass() == "frmAbout";
    });
  }
  void Type(const std::string& text) {
    for (const char letter : text) desk_.Type(letter);
    desk_.Pause(300);
  }
  bool WaitForLaunches(std::size_t count) {
    return desk_.Wait([this, count] { return desk_.Launched().size() >= count; });
  }
  /// The arguments of the witness's last start.
  std::string LastArguments() {
    const auto all = desk_.Launched();
    return all.empty() ? "nothing" : all.back().Arguments;
  }
  void WithControl(int key) {
    desk_.HoldKey(scenario::kKeyControl);
    desk_.Key(key);
    desk_.LetKeyGo(scenario::kKeyControl);
  }

  WineDesk desk_;
};

class NetSearchAtEachScale : public Windows {};
class AboutAtEachScale : public Windows {};
class HelpPages : public Windows {};
class NetSearchFiles : public Windows {};

TEST_F(NetSearchAtEachScale, AQueryGoesToTheBrowserWithItsAddress) {
  ASSERT_TRUE(StartAndWait(desk_));
  ASSERT_TRUE(OpenNetSearch());
  desk_.Pause(500);
  desk_.Picture("empty");
  Type("ab");
  desk_.Key(' ');
  Type("c");
  desk_.Picture("typed");
  desk_.Key(scenario::kKeyEnter);
  ASSERT_TRUE(WaitForLaunches(1));
  EXPECT_EQ(LastArguments(), "address \"http://one.example/?q=ab+c&n=1\"");
  // It is in the task bar, and comes back with the query in its list.
  ASSERT_TRUE(OpenNetSearch());
  desk_.Key(scenario::kKeyTab);
  desk_.Key(scenario::kKeyDown);
  desk_.Pause(300);
  desk_.Picture("second engine");
  desk_.Key(scenario::kKeyEnter);
  ASSERT_TRUE(WaitForLaunches(2));
  EXPECT_EQ(LastArguments(), "address \"https://two.example/?q=ab+c\"");
  ASSERT_TRUE(scenario::CloseAndWait(desk_));
  EXPECT_EQ(desk_.ReadFile("nsearch.dat"), "ab c\r\n");
}

TEST_F(NetSearchFiles, TheHistoryIsThereAfterARestart) {
  ASSERT_TRUE(StartAndWait(desk_));
  ASSERT_TRUE(OpenNetSearch());
  Type("tea");
  desk_.Key(scenario::kKeyEnter);
  ASSERT_TRUE(WaitForLaunches(1));
  ASSERT_TRUE(scenario::CloseAndWait(desk_));
  ASSERT_TRUE(StartAndWait(desk_));
  ASSERT_TRUE(OpenNetSearch());
  desk_.Key(scenario::kKeyDown);
  desk_.Pause(300);
  desk_.Key(scenario::kKeyEnter);
  ASSERT_TRUE(WaitForLaunches(2));
  EXPECT_EQ(LastArguments(), "address \"http://one.example/?q=tea&n=1\"");
}

TEST_F(NetSearchFiles, ADamagedListOpensWithWhatCanBeRead) {
  std::string damaged = "\xFF\xFFNAME=no\r\n" + std::string(2000, '\0');
  desk_.WriteFile("netsrch.ini", damaged + "\r\nname=Good\nurl=http://good.example/[]\r\n\xC3");
  ASSERT_TRUE(StartAndWait(desk_));
  ASSERT_TRUE(OpenNetSearch());
  Type("tea");
  desk_.Picture("damaged list");
  desk_.Key(scenario::kKeyEnter);
  ASSERT_TRUE(WaitForLaunches(1));
  EXPECT_EQ(LastArguments(), "address \"http://good.example/tea\"");
}

TEST_F(NetSearchFiles, WithNoListTheMessageComesAndEscClosesTheWindow) {
  desk_.RemoveFile("netsrch.ini");
  desk_.RemoveFile("anetsrch.org");
  ASSERT_TRUE(StartAndWait(desk_));
  desk_.AnswerNext(kButtonOk);
  ASSERT_TRUE(OpenNetSearch());
  ASSERT_EQ(desk_.Messages().size(), 1U);
  EXPECT_EQ(desk_.Messages()[0].Text.find("The file netsrch.ini couldn't be found"), 0U);
  desk_.Key(scenario::kKeyEscape);
  EXPECT_TRUE(desk_.Wait([this] { return !desk_.Window("frmNetSearch"); }));
}

TEST_F(AboutAtEachScale, ShowsItsThreeTabsAndCopiesAPage) {
  ASSERT_TRUE(StartAndWait(desk_));
  ASSERT_TRUE(OpenAbout());
  desk_.Pause(500);
  desk_.Picture("corvelle");
  WithControl(scenario::kKeyTab);
  desk_.Pause(1000);
  desk_.Picture("drives");
  WithControl(scenario::kKeyTab);
  desk_.Pause(500);
  desk_.Picture("system");
  WithControl('C');
  desk_.Pause(300);
  ASSERT_NE(OpenClipboard(nullptr), 0);
  const HANDLE data = GetClipboardData(CF_UNICODETEXT);
  const std::string copied =
      data != nullptr ? Narrow(static_cast<const wchar_t*>(GlobalLock(data))) : "nothing";
  CloseClipboard();
  EXPECT_EQ(copied.find("  Operating System        :  "), 0U) << copied;
  const std::string processor = sizeof(void*) == 8 ? "x64 (64-bit)" : "Intel Pentium";
  EXPECT_NE(copied.find("  CPU Type        :  " + processor + "\r\n"), std::string::npos) << copied;
  EXPECT_NE(copied.find("  Windows Directory   :  C:\\windows\r\n"), std::string::npos) << copied;
  desk_.Key(scenario::kKeyEscape);
  EXPECT_TRUE(desk_.Wait([this] { return !desk_.Window("frmAbout"); }));
}

TEST_F(HelpPages, OpenFromTheMenuAndByF1) {
  ASSERT_TRUE(StartAndWait(desk_));
  ASSERT_TRUE(scenario::ChooseInMainMenu(desk_, MainChoice::HelpTopics));
  ASSERT_TRUE(WaitForLaunches(1));
  EXPECT_EQ(LastArguments(), "page \"C:\\Corvelle\\Help\\index.html\"");
  ASSERT_TRUE(OpenNetSearch());
  desk_.Key(scenario::kKeyF1);
  ASSERT_TRUE(WaitForLaunches(2));
  EXPECT_EQ(LastArguments(), "page \"C:\\Corvelle\\Help\\net-search.html\"");
  ASSERT_TRUE(OpenAbout());
  desk_.Key(scenario::kKeyF1);
  ASSERT_TRUE(WaitForLaunches(3));
  EXPECT_EQ(LastArguments(), "page \"C:\\Corvelle\\Help\\about.html\"");
}

}  // namespace
}  // namespace corvelle::e2e
