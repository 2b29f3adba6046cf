#include "customize/Draft.h"

#include <gtest/gtest.h>

#include <string>

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
  EXPECT_TRUE(ForgetDraft(disk, kMenus));
  ASSERT_TRUE(WriteDraft(disk, kMenus, Now(disk).Stamp, Changed()));
  disk.SetReadOnly(kDraft, true);
  EXPECT_TRUE(ForgetDraft(disk, kMenus));
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

TEST(DraftKeeper, WritesOnlyWhatIsNew) {
  sim::SimFiles disk;
  PutFolder(disk, kFiles);
  const MenusStamp stamp = Now(disk).Stamp;
  DraftKeeper keeper(disk, kMenus);
  disk.ClearLog();
  EXPECT_TRUE(keeper.Keep(stamp, Changed()));
  EXPECT_TRUE(keeper.Keep(stamp, Changed()));
  EXPECT_EQ(disk.Log().size(), 1U);
  EXPECT_TRUE(keeper.Keep(stamp, {}));
  EXPECT_TRUE(keeper.Keep({}, {}));
  EXPECT_EQ(disk.Count("Replace"), 3);
}

TEST(DraftKeeper, TriesAgainAfterAFailure) {
  sim::SimFiles disk;
  PutFolder(disk, kFiles);
  DraftKeeper keeper(disk, kMenus);
  disk.FailCall(1, FileError::DiskFull);
  EXPECT_FALSE(keeper.Keep({}, Changed()));
  EXPECT_TRUE(keeper.Keep({}, Changed()));
  EXPECT_TRUE(disk.Has(kDraft));
}

TEST(DraftKeeper, WritesAgainWhatWasForgotten) {
  sim::SimFiles disk;
  PutFolder(disk, kFiles);
  DraftKeeper keeper(disk, kMenus);
  EXPECT_TRUE(keeper.Keep({}, Changed()));
  EXPECT_TRUE(keeper.Forget());
  EXPECT_FALSE(disk.Has(kDraft));
  EXPECT_TRUE(keeper.Keep({}, Changed()));
  EXPECT_TRUE(disk.Has(kDraft));
}

}  // namespace
}  // namespace corvelle
