#include <gtest/gtest.h>

#include <string>

#include "core/Program.h"
#include "launch/Browser.h"
#include "launch/CommandDoubles.h"
#include "launch/LaunchWiring.h"
#include "sim/World.h"

namespace corvelle {

namespace {

constexpr char kPageAddress[] = "http://a.example/";
constexpr char kBookmarks[] =
    "<TITLE>Bookmarks</TITLE>\r\n<A HREF=\"http://a.example/\">The bookmark</A>\r\n</DL><p>\r\n";
constexpr char kUsersKey[] = "SOFTWARE\\Netscape\\Netscape Navigator\\Users";

}  // namespace

class TitleDesk : public testing::Test {
 protected:
  TitleDesk() {
    world.Files.MakeFolders("C:\\Corvelle");
    program.Paths.AppPath = "C:\\Corvelle\\";
    world.Associations.Set(".htm", "C:\\IE\\iexplore.exe");
  }

  WindowId Open(const std::string& title) { return world.Desktop.AddOtherWindow({.Title = title}); }
  void HaveBookmarks() { world.Files.Put("C:\\Ann\\bookmark.htm", kBookmarks); }
  void NoteBookmarkFolder(const std::string& folder) {
    world.Files.Put("C:\\Corvelle\\openurl.ini", "user=" + folder + "\r\n");
  }

  sim::World world;
  Program program{world.Services(), world.Windows()};
  Browser browser{BrowserPartsOf(program)};
};

// ---- the window that the drag came from ----

struct DropSource : TitleDesk {};

TEST_F(DropSource, ItsCaptionWithoutTheBrowsersNameIsTheTitle) {
  browser.NoteDropSource(Open("A page - Any Browser"));
  EXPECT_EQ(browser.WindowTitle(kPageAddress), "A page ");
}

TEST_F(DropSource, AWholeCaptionWithoutADashIsTheTitle) {
  browser.NoteDropSource(Open("  A page  "));
  EXPECT_EQ(browser.WindowTitle(kPageAddress), "A page");
}

TEST_F(DropSource, ItsCaptionEndsAtTheFirstNul) {
  using std::string_literals::operator""s;
  browser.NoteDropSource(Open("A page\0 - Any Browser"s));
  EXPECT_EQ(browser.WindowTitle(kPageAddress), "A page");
}

TEST_F(DropSource, CountsForOneDropOnly) {
  browser.NoteDropSource(Open("A page"));
  EXPECT_EQ(browser.WindowTitle(kPageAddress), "A page");
  EXPECT_FALSE(browser.DropSourceKnown);
  EXPECT_EQ(browser.WindowTitle(kPageAddress), "");
}

TEST_F(DropSource, AWindowThatListsBookmarksGivesTheTitleOfTheBookmark) {
  HaveBookmarks();
  NoteBookmarkFolder("C:\\Ann");
  browser.NoteDropSource(Open("Bookmarks - Ann"));
  EXPECT_EQ(browser.WindowTitle(kPageAddress), "The bookmark");
}

TEST_F(DropSource, WithoutThatBookmarkItsCaptionServes) {
  HaveBookmarks();
  NoteBookmarkFolder("C:\\Ann");
  browser.NoteDropSource(Open("Bookmarks - Ann"));
  EXPECT_EQ(browser.WindowTitle("http://other.example/"), "Bookmarks ");
}

TEST_F(DropSource, TheBrowsersOwnBookmarkWindowIsAPageLikeAnyOther) {
  HaveBookmarks();
  NoteBookmarkFolder("C:\\Ann");
  browser.NoteDropSource(Open("Bookmarks - Netscape"));
  EXPECT_EQ(browser.WindowTitle(kPageAddress), "Bookmarks ");
}

TEST_F(DropSource, OwnedAndUnnamedAndVanishedWindowsTellNothing) {
  browser.NoteDropSource(world.Desktop.AddOtherWindow({.Title = "Owned - x", .HasOwner = true}));
  EXPECT_EQ(browser.WindowTitle(kPageAddress), "");
  EXPECT_TRUE(browser.DropSourceKnown);
  browser.NoteDropSource(Open("   "));
  EXPECT_EQ(browser.WindowTitle(kPageAddress), "");
  const WindowId gone = Open("Gone - x");
  world.Desktop.CloseOther(gone);
  browser.NoteDropSource(gone);
  EXPECT_EQ(browser.WindowTitle(kPageAddress), "");
  browser.NoteDropSource(kNoWindow);
  EXPECT_FALSE(browser.DropSourceKnown);
  EXPECT_EQ(browser.WindowTitle(kPageAddress), "");
}

TEST_F(DropSource, TheStripItselfTellsNothing) {
  CallLog log;
  LoggingToolbar strip(log);
  strip.LoadWindow();
  strip.Window = Open("Strip");
  strip.ButtonBox = Open("Buttons");
  strip.SingleBox = Open("Singles");
  program.Ports.Toolbar = &strip;
  for (const WindowId own : {strip.Window, strip.ButtonBox, strip.SingleBox}) {
    browser.NoteDropSource(own);
    EXPECT_EQ(browser.WindowTitle(kPageAddress), "");
  }
}

// ---- any browser on the desktop ----

struct OpenBrowsers : TitleDesk {};

TEST_F(OpenBrowsers, TheUppermostOneGivesTheTitle) {
  Open("Below - Netscape");
  Open("Above - Internet Explorer");
  Open("A text - Editor");
  EXPECT_EQ(browser.WindowTitle(kPageAddress), "Above ");
}

TEST_F(OpenBrowsers, WhatIsNotSeenDoesNotCount) {
  world.Desktop.AddOtherWindow({.Title = "Hidden - Netscape", .Visible = false});
  world.Desktop.AddOtherWindow({.Title = "Minimized - Netscape", .Minimized = true});
  world.Desktop.AddOtherWindow({.Title = "Owned - Netscape", .HasOwner = true});
  Open("Netscape");
  EXPECT_EQ(browser.WindowTitle(kPageAddress), "");
  Open("Seen - Netscape");
  EXPECT_EQ(browser.WindowTitle(kPageAddress), "Seen ");
}

TEST_F(OpenBrowsers, AWindowThatListsBookmarksGivesTheTitleOfTheBookmark) {
  HaveBookmarks();
  NoteBookmarkFolder("C:\\Ann");
  Open("Below - Netscape");
  Open("Bookmarks for Ann");
  EXPECT_EQ(browser.WindowTitle(kPageAddress), "The bookmark");
  EXPECT_EQ(browser.WindowTitle("http://other.example/"), "Below ");
}

TEST_F(OpenBrowsers, TheProgramItselfIsNone) {
  program.Title = "Explorer - by name";
  Open(program.Title);
  EXPECT_EQ(browser.WindowTitle(kPageAddress), "");
}

TEST_F(OpenBrowsers, TheBrowserIsLookedForOnce) {
  EXPECT_EQ(browser.WindowTitle(kPageAddress), "");
  EXPECT_EQ(browser.BrowserApplication, "IExplore");
  const std::size_t asked = world.Associations.Asked().size();
  EXPECT_EQ(browser.WindowTitle(kPageAddress), "");
  EXPECT_EQ(world.Associations.Asked().size(), asked);
}

TEST_F(OpenBrowsers, NoTitleWaitsForADiskThatDoesNotAnswer) {
  HaveBookmarks();
  NoteBookmarkFolder("C:\\Ann");
  Open("Below - Netscape");
  Open("Bookmarks for Ann");
  world.Starts.Hang();
  EXPECT_EQ(browser.WindowTitle(kPageAddress), "Below ");
  EXPECT_EQ(world.Starts.UnderWay(), 2) << "the browser and the bookmarks";
  EXPECT_EQ(browser.WindowTitle(kPageAddress), "Below ");
  EXPECT_EQ(world.Starts.UnderWay(), 2) << "each is asked once";
  world.Starts.Resume();
  EXPECT_EQ(browser.WindowTitle(kPageAddress), "The bookmark");
}

// ---- the bookmark file ----

struct BookmarkFolder : TitleDesk {
  BookmarkFolder() { HaveBookmarks(); }

  void SetValue(const std::string& key, const char* name, const char* value) {
    world.Keys.Set(RegistryRoot::LocalMachine, key, name, value);
  }
};

TEST_F(BookmarkFolder, IsThatOfTheCurrentUserInTheRegistry) {
  SetValue(kUsersKey, "CurrentUser", "ann");
  SetValue(std::string(kUsersKey) + "\\ann", "DirRoot", "C:\\Ann");
  EXPECT_EQ(browser.BookmarkTitle(kPageAddress), "The bookmark");
  EXPECT_EQ(browser.BookmarkDir, "C:\\Ann\\");
}

TEST_F(BookmarkFolder, IsThatOfTheOnlyUserBesideTheBrowser) {
  world.Associations.Set(".htm", "C:\\N\\Program\\Netscape.exe");
  world.Files.Put("C:\\N\\Users\\ann\\bookmark.htm", kBookmarks);
  world.Files.Put("C:\\N\\Users\\readme.txt", "x");
  EXPECT_EQ(browser.BookmarkTitle(kPageAddress), "The bookmark");
  EXPECT_EQ(browser.BookmarkDir, "C:\\N\\Users\\ann\\");
}

TEST_F(BookmarkFolder, IsNoneOfTwoUsersBesideTheBrowser) {
  world.Associations.Set(".htm", "C:\\N\\Program\\netscape.exe");
  world.Files.Put("C:\\N\\Users\\ann\\bookmark.htm", kBookmarks);
  world.Files.MakeFolders("C:\\N\\Users\\bob");
  EXPECT_EQ(browser.BookmarkTitle(kPageAddress), "");
  EXPECT_EQ(browser.BookmarkDir, "");
}

TEST_F(BookmarkFolder, OfAnotherBrowserIsNotLookedForBesideIt) {
  world.Associations.Set(".htm", "C:\\N\\Program\\other.exe");
  world.Files.Put("C:\\N\\Users\\ann\\bookmark.htm", kBookmarks);
  EXPECT_EQ(browser.BookmarkTitle(kPageAddress), "");
}

TEST_F(BookmarkFolder, IsThatOfTheBrowserFileAtLast) {
  NoteBookmarkFolder("C:\\Ann\\");
  EXPECT_EQ(browser.BookmarkTitle(kPageAddress), "The bookmark");
  EXPECT_EQ(browser.BookmarkDir, "C:\\Ann\\");
}

TEST_F(BookmarkFolder, IsRemembered) {
  NoteBookmarkFolder("C:\\Ann");
  EXPECT_EQ(browser.BookmarkTitle(kPageAddress), "The bookmark");
  NoteBookmarkFolder("C:\\Nobody");
  EXPECT_EQ(browser.BookmarkTitle(kPageAddress), "The bookmark");
}

TEST_F(BookmarkFolder, MayHoldTheFileUnderItsLongName) {
  NoteBookmarkFolder("C:\\Ann");
  world.Files.Vanish("C:\\Ann\\bookmark.htm");
  EXPECT_EQ(browser.BookmarkTitle(kPageAddress), "");
  world.Files.Put("C:\\Ann\\bookmark.html", kBookmarks);
  EXPECT_EQ(browser.BookmarkTitle(kPageAddress), "The bookmark");
}

TEST_F(BookmarkFolder, NoFailureOfTheDiskIsMoreThanAMissingTitle) {
  NoteBookmarkFolder("C:\\Ann");
  for (int n = 1; n < 12; ++n) {
    browser.BookmarkDir.clear();
    world.Files.FailCall(n);
    const std::string title = browser.BookmarkTitle(kPageAddress);
    world.Files.StopFailing();
    EXPECT_TRUE(title.empty() || title == "The bookmark") << n;
  }
}

TEST_F(BookmarkFolder, WithoutOneThereIsNoTitle) {
  EXPECT_EQ(browser.BookmarkTitle(kPageAddress), "");
}

// ---- the other browser ----

struct NetscapeOnTop : TitleDesk {
  NetscapeOnTop() { world.Keys.Set(RegistryRoot::LocalMachine, kUsersKey, "CurrentUser", "ann"); }
};

TEST_F(NetscapeOnTop, AWindowOfItBesidesTheGivenOneIsAHit) {
  const WindowId given = Open("A page - Netscape");
  EXPECT_FALSE(browser.IsNetscapeOnTop(given));
  Open("Another page - Netscape");
  EXPECT_TRUE(browser.IsNetscapeOnTop(given));
}

TEST_F(NetscapeOnTop, AListOfBookmarksIsAHitUnlessMinimizedOrNoted) {
  const WindowId list = Open("Bookmarks for Ann");
  EXPECT_TRUE(browser.IsNetscapeOnTop(kNoWindow));
  world.Desktop.MinimizeOther(list);
  EXPECT_FALSE(browser.IsNetscapeOnTop(kNoWindow));
}

TEST_F(NetscapeOnTop, TheGivenWindowIsNotedAndIsNoHitWhenItListsBookmarks) {
  const WindowId given =
      world.Desktop.AddOtherWindow({.Title = "Bookmarks - Netscape", .Minimized = true});
  EXPECT_FALSE(browser.IsNetscapeOnTop(given));
  world.Desktop.RestoreMinimized(given);
  ASSERT_FALSE(world.Desktop.IsMinimized(given));
  EXPECT_FALSE(browser.IsNetscapeOnTop(given));
}

TEST_F(NetscapeOnTop, HiddenAndOwnedWindowsDoNotCount) {
  world.Desktop.AddOtherWindow({.Title = "A - Netscape", .Visible = false});
  world.Desktop.AddOtherWindow({.Title = "B - Netscape", .HasOwner = true});
  EXPECT_FALSE(browser.IsNetscapeOnTop(kNoWindow));
}

TEST_F(TitleDesk, WithoutThatBrowserThereIsNoHit) {
  Open("A page - Netscape");
  EXPECT_FALSE(browser.IsNetscapeOnTop(kNoWindow));
}

TEST_F(TitleDesk, ThatBrowserIsLookedForAtTheFirstCallOnly) {
  EXPECT_FALSE(browser.IsNetscapeOnTop(kNoWindow));
  EXPECT_EQ(world.Associations.Asked().size(), 1U);
  world.Keys.Set(RegistryRoot::LocalMachine, kUsersKey, "CurrentUser", "ann");
  Open("A page - Netscape");
  EXPECT_FALSE(browser.IsNetscapeOnTop(kNoWindow));
  EXPECT_EQ(world.Associations.Asked().size(), 1U);
}

TEST_F(TitleDesk, ThatBrowserIsKnownByTheProgramForPagesToo) {
  world.Associations.Set(".htm", "C:\\N\\netscape.exe");
  Open("A page - Netscape");
  EXPECT_TRUE(browser.IsNetscapeOnTop(kNoWindow));
}

}  // namespace corvelle
