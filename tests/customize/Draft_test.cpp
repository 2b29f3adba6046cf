#include "customize/Draft.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "base/ByteText.h"
#include "base/Digest.h"
#include "core/MenuFolder.h"
#include "customize/MenuFolderDesk.h"
#include "sim/SimFiles.h"

namespace corvelle {
namespace {

const std::string kDraft = InMenus(kDraftFileName);

const Folder kFiles = {{"BMENU001.MNU", Stored("Games", "Button") + Stored(Item("Chess"))},
                       {"BMENU001.BTN", Stored(Item("Clock"))}};

MenuFiles Now(sim::SimFiles& disk) {
  const auto read = ReadMenuFiles(disk, kCodePage, kMenus);
  EXPECT_TRUE(read.HasValue());
  return read ? *read : MenuFiles{};
}

MenuSet Changed() {
  return {{{{"Games", "Button", ""}, {Item("Chess"), Item("Draughts")}}, {{}, {}}},
          {Item("Clock"), {std::string(80, 't'), std::string("a\0b", 3), "\xC3\xA4 \xE2\x82\xAC"}}};
}

TEST(DraftFormat, ReadsBackAsItWasWithTextsOfAnyLength) {
  const Draft draft = {{12, 34}, Changed()};
  EXPECT_EQ(ParseDraft(FormatDraft(draft.Files, draft.Set)), draft);
  EXPECT_EQ(ParseDraft(FormatDraft({}, {})), Draft());
}

TEST(DraftFormat, WhatIsCutChangedOrLongerIsNoDraft) {
  const std::string bytes = FormatDraft({12, 34}, {{{Item("a"), {Item("b")}}}, {Item("c")}});
  for (std::size_t length = 0; length < bytes.size(); ++length) {
    EXPECT_FALSE(ParseDraft(bytes.substr(0, length))) << length;
  }
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    std::string changed = bytes;
    changed[at] = static_cast<char>(changed[at] ^ 0x11);
    EXPECT_FALSE(ParseDraft(changed)) << at;
  }
  EXPECT_FALSE(ParseDraft(bytes + "x"));
  EXPECT_FALSE(ParseDraft("another program's file"));
}

/// A body with the digest that it should have.
std::string Sealed(std::string body) {
  Digest digest;
  digest.Add(body);
  PutNumber(body, digest.Value(), 8);
  return body;
}

TEST(DraftFormat, NumbersThatLieAboutWhatFollowsAreNoDraft) {
  const std::string stamp(16, 'x');
  const std::string none(4, '\0');
  const std::string many(4, '\xFF');
  EXPECT_TRUE(ParseDraft(Sealed("CVDRAFT1" + stamp + none + none)));
  EXPECT_FALSE(ParseDraft(Sealed("CVDRAFT1" + stamp + none + many)));
  EXPECT_FALSE(ParseDraft(Sealed("CVDRAFT1" + stamp + many + none)));
  EXPECT_FALSE(ParseDraft(Sealed("CVDRAFT1" + stamp + none)));
  EXPECT_FALSE(ParseDraft(Sealed("CVDRAFT1" + stamp + none + none + "x")));
  EXPECT_FALSE(ParseDraft(Sealed("CVDRAFT1" + stamp + none + std::string("\1\0\0\0", 4) +
                                 std::string(8, '\xFF') + "text")));
  EXPECT_FALSE(ParseDraft(Sealed("CVDRAFT2" + stamp + none + none)));
}

TEST(Draft, IsOfferedOverTheFilesThatItBelongsTo) {
  sim::SimFiles disk;
  PutFolder(disk, kFiles);
  ASSERT_TRUE(WriteDraft(disk, kMenus, Now(disk).Stamp, Changed()));
  EXPECT_EQ(OfferDraft(disk, kMenus, Now(disk)), Changed());
  // To offer it is not to forget it.
  EXPECT_EQ(OfferDraft(disk, kMenus, Now(disk)), Changed());
}

TEST(Draft, OfOtherFilesIsNeverOfferedAndWaitsForItsOwn) {
  sim::SimFiles disk;
  PutFolder(disk, kFiles);
  ASSERT_TRUE(WriteDraft(disk, kMenus, Now(disk).Stamp, Changed()));
  disk.Put(InMenus("BMENU001.MNU"),
           Stored("Games", "Button") + Stored(Item("Chess")) + Stored(Item("Ludo")));
  EXPECT_FALSE(OfferDraft(disk, kMenus, Now(disk)));
  EXPECT_TRUE(disk.Has(kDraft));
  PutFolder(disk, kFiles);
  EXPECT_EQ(OfferDraft(disk, kMenus, Now(disk)), Changed());
}

TEST(Draft, ThatHoldsWhatTheFilesHoldIsNotOffered) {
  sim::SimFiles disk;
  PutFolder(disk, kFiles);
  const MenuFiles now = Now(disk);
  ASSERT_TRUE(WriteDraft(disk, kMenus, now.Stamp, now.Set));
  EXPECT_FALSE(OfferDraft(disk, kMenus, now));
}

TEST(Draft, OfAnEmptyTreeIsOffered) {
  sim::SimFiles disk;
  PutFolder(disk, kFiles);
  ASSERT_TRUE(WriteDraft(disk, kMenus, Now(disk).Stamp, {}));
  EXPECT_EQ(OfferDraft(disk, kMenus, Now(disk)), MenuSet());
}

TEST(Draft, ThatIsMissingDamagedOrHeldIsNotOffered) {
  sim::SimFiles disk;
  PutFolder(disk, kFiles);
  EXPECT_FALSE(OfferDraft(disk, kMenus, Now(disk)));
  ASSERT_TRUE(WriteDraft(disk, kMenus, Now(disk).Stamp, Changed()));
  disk.HoldOpen(kDraft);
  EXPECT_FALSE(OfferDraft(disk, kMenus, Now(disk)));
  disk.LetGo(kDraft);
  disk.Put(kDraft, "CVDRAFT1");
  EXPECT_FALSE(OfferDraft(disk, kMenus, Now(disk)));
}

TEST(Draft, OutlivesTheCleaningAtAStart) {
  sim::SimFiles disk;
  PutFolder(disk, kFiles);
  ASSERT_TRUE(WriteDraft(disk, kMenus, Now(disk).Stamp, Changed()));
  disk.Put(InMenus("stray.tmp"), "x");
  ASSERT_TRUE(PurgeMenus(disk, kMenus));
  EXPECT_FALSE(disk.Has(InMenus("stray.tmp")));
  EXPECT_EQ(OfferDraft(disk, kMenus, Now(disk)), Changed());
}

TEST(Draft, IsForgottenEvenReadOnly) {
  sim::SimFiles disk;
  PutFolder(disk, kFiles);
  EXPECT_TRUE(WriteDrafts(disk, kMenus, {}));
  ASSERT_TRUE(WriteDraft(disk, kMenus, Now(disk).Stamp, Changed()));
  disk.SetReadOnly(kDraft, true);
  EXPECT_TRUE(WriteDrafts(disk, kMenus, {}));
  EXPECT_FALSE(disk.Has(kDraft));
}

TEST(Draft, TakesThePlaceOfAReadOnlyOne) {
  sim::SimFiles disk;
  PutFolder(disk, kFiles);
  ASSERT_TRUE(WriteDraft(disk, kMenus, Now(disk).Stamp, {}));
  disk.SetReadOnly(kDraft, true);
  ASSERT_TRUE(WriteDraft(disk, kMenus, Now(disk).Stamp, Changed()));
  EXPECT_EQ(OfferDraft(disk, kMenus, Now(disk)), Changed());
}

TEST(Draft, AnEndOrAFailureAtAnyMomentOfWritingLeavesTheEarlierOneOrTheNew) {
  for (const bool ends : {false, true}) {
    for (int n = 1;; ++n) {
      sim::SimFiles disk;
      PutFolder(disk, kFiles);
      ASSERT_TRUE(WriteDraft(disk, kMenus, Now(disk).Stamp, {}));
      const MenuFiles now = Now(disk);
      if (ends) {
        disk.FailFrom(n, FileError::DiskFull);
      } else {
        disk.FailCall(n, FileError::DiskFull);
      }
      const bool written = WriteDraft(disk, kMenus, now.Stamp, Changed()).HasValue();
      const bool hit = disk.Hit();
      disk.StopFailing();
      EXPECT_EQ(OfferDraft(disk, kMenus, now), written ? Changed() : MenuSet()) << n;
      if (!hit) break;
      ASSERT_LT(n, 20);
    }
  }
}

// ---- the keeper ----

/// The files with one entry more.
MenuSet With(const std::string& title) {
  return {{{{"Games", "Button", ""}, {Item("Chess"), Item(title)}}}, {Item("Clock")}};
}

struct Desk {
  Desk() {
    PutFolder(disk, kFiles);
    keeper.Open(Now(disk));
  }
  /// What the next window would offer.
  std::vector<MenuSet> Next() { return OfferDrafts(disk, kMenus, Now(disk)); }

  sim::SimFiles disk;
  DraftKeeper keeper{disk, kMenus};
};

using Sets = std::vector<MenuSet>;

TEST(DraftKeeper, WritesOnlyWhatIsNew) {
  Desk desk;
  EXPECT_TRUE(desk.keeper.Keep(Changed()));
  EXPECT_TRUE(desk.keeper.Keep(Changed()));
  EXPECT_EQ(desk.disk.Count("Replace"), 1);
  EXPECT_TRUE(desk.keeper.Keep({}));
  EXPECT_EQ(desk.disk.Count("Replace"), 2);
}

TEST(DraftKeeper, TriesAgainAfterAFailure) {
  Desk desk;
  desk.disk.FailCall(1, FileError::DiskFull);
  EXPECT_FALSE(desk.keeper.Keep(Changed()));
  EXPECT_TRUE(desk.keeper.Keep(Changed()));
  EXPECT_TRUE(desk.disk.Has(kDraft));
}

TEST(DraftKeeper, WritesAgainWhatWasForgotten) {
  Desk desk;
  EXPECT_TRUE(desk.keeper.Keep(Changed()));
  EXPECT_TRUE(desk.keeper.Forget());
  EXPECT_FALSE(desk.disk.Has(kDraft));
  EXPECT_TRUE(desk.keeper.Keep(Changed()));
  EXPECT_TRUE(desk.disk.Has(kDraft));
}

TEST(DraftKeeper, OffersTheNewestFirstAndEachOnce) {
  Desk desk;
  const MenusStamp stamp = Now(desk.disk).Stamp;
  ASSERT_TRUE(
      WriteDrafts(desk.disk, kMenus, {{stamp, With("a")}, {stamp, With("b")}, {stamp, With("a")}}));
  EXPECT_EQ(desk.Next(), (Sets{With("a"), With("b")}));
}

TEST(DraftKeeper, TheTreesOwnStandsBeforeThoseThatAreOffered) {
  Desk desk;
  ASSERT_TRUE(WriteDraft(desk.disk, kMenus, Now(desk.disk).Stamp, With("a")));
  desk.keeper.Open(Now(desk.disk));
  EXPECT_TRUE(desk.keeper.Keep(With("b")));
  EXPECT_EQ(desk.Next(), (Sets{With("b"), With("a")}));
  EXPECT_TRUE(desk.keeper.Keep(With("c")));
  EXPECT_EQ(desk.Next(), (Sets{With("c"), With("a")}));
  EXPECT_TRUE(desk.keeper.Forget());
  EXPECT_EQ(desk.Next(), (Sets{With("a")}));
}

TEST(DraftKeeper, ShowChangesTheTreesOwnWithTheFirst) {
  Desk desk;
  ASSERT_TRUE(WriteDraft(desk.disk, kMenus, Now(desk.disk).Stamp, With("a")));
  desk.keeper.Open(Now(desk.disk));
  EXPECT_EQ(desk.keeper.Show(With("b")), With("a"));
  EXPECT_EQ(desk.keeper.Offered(), (Sets{With("b")}));
  EXPECT_EQ(desk.Next(), (Sets{With("a"), With("b")}));
  EXPECT_EQ(desk.keeper.Show({}), With("b"));
  EXPECT_EQ(desk.keeper.Offered(), Sets());
}

TEST(DraftKeeper, OfOtherFilesKeepsTheNewestFew) {
  Desk desk;
  Drafts drafts;
  for (std::uint64_t i = 1; i <= 6; ++i) drafts.push_back({{i, i}, With("x")});
  ASSERT_TRUE(WriteDrafts(desk.disk, kMenus, drafts));
  desk.keeper.Open(Now(desk.disk));
  EXPECT_EQ(desk.keeper.Offered(), Sets());
  EXPECT_TRUE(desk.keeper.Keep(With("a")));
  const auto kept = ReadDrafts(desk.disk, kMenus);
  ASSERT_TRUE(kept.HasValue());
  ASSERT_EQ(kept->size(), 1 + DraftKeeper::kMostOfOtherFiles);
  EXPECT_EQ((*kept)[1], drafts[0]);
  EXPECT_EQ(kept->back(), drafts[3]);
}

TEST(DraftKeeper, FilesThatWereHeldWhenTheWindowOpenedAreNotWrittenOver) {
  Desk desk;
  ASSERT_TRUE(WriteDraft(desk.disk, kMenus, Now(desk.disk).Stamp, With("a")));
  desk.disk.HoldOpen(kDraft);
  desk.keeper.Open(Now(desk.disk));
  EXPECT_EQ(desk.keeper.Offered(), Sets());
  EXPECT_FALSE(desk.keeper.Keep(With("b")));
  desk.disk.LetGo(kDraft);
  EXPECT_TRUE(desk.keeper.Flush());
  EXPECT_EQ(desk.Next(), (Sets{With("b"), With("a")}));
}

TEST(DraftKeeper, WhatIsOfferedFollowsTheFiles) {
  Desk desk;
  ASSERT_TRUE(WriteDraft(desk.disk, kMenus, Now(desk.disk).Stamp, With("a")));
  desk.keeper.Open(Now(desk.disk));
  desk.disk.Put(InMenus("BMENU001.BTN"), Stored(Item("Bell")));
  desk.keeper.FilesChanged(Now(desk.disk));
  MenuSet both = With("a");
  both.Singles = {Item("Bell")};
  EXPECT_EQ(desk.keeper.Offered(), Sets{both});
  EXPECT_EQ(desk.Next(), Sets()) << "not written yet";
  EXPECT_TRUE(desk.keeper.Flush());
  EXPECT_EQ(desk.Next(), Sets{both});
  // Once the files hold it, it is no draft any more.
  desk.disk.Put(InMenus("BMENU001.MNU"),
                Stored("Games", "Button") + Stored(Item("Chess")) + Stored(Item("a")));
  desk.keeper.FilesChanged(Now(desk.disk));
  EXPECT_EQ(desk.keeper.Offered(), Sets());
}

TEST(DraftKeeper, ASaveTakesWhatIsOfferedAlong) {
  Desk desk;
  const Draft other = {{7, 7}, With("x")};
  ASSERT_TRUE(WriteDrafts(desk.disk, kMenus, {{Now(desk.disk).Stamp, With("a")}, other}));
  desk.keeper.Open(Now(desk.disk));
  MenuSet tree = Now(desk.disk).Set;
  tree.Singles.clear();
  const DraftsAround around = desk.keeper.AroundSave(tree);
  EXPECT_EQ(around.Before, (Drafts{{Now(desk.disk).Stamp, With("a")}}));
  EXPECT_EQ(around.Others, Drafts{other});
  MenuSet both = With("a");
  both.Singles.clear();
  EXPECT_EQ(around.After, Sets{both});
  ASSERT_TRUE(desk.disk.Remove(InMenus("BMENU001.BTN")));
  desk.keeper.Saved(around, Now(desk.disk));
  EXPECT_TRUE(desk.keeper.Flush());
  EXPECT_EQ(desk.Next(), Sets{both});
}

TEST(DraftFormat, ManyReadBackInTheirOrderUpToTheFirstDamage) {
  const Drafts drafts = {{{1, 2}, With("a")}, {{3, 4}, Changed()}, {{1, 2}, {}}};
  const std::string bytes = FormatDrafts(drafts);
  EXPECT_EQ(ParseDrafts(bytes), drafts);
  EXPECT_EQ(ParseDrafts(bytes + "x"), drafts);
  EXPECT_EQ(ParseDrafts(bytes.substr(0, bytes.size() - 1)), (Drafts{drafts[0], drafts[1]}));
  EXPECT_EQ(ParseDrafts(""), Drafts());
  EXPECT_FALSE(ParseDraft(bytes)) << "more than one";
}

}  // namespace
}  // namespace corvelle
