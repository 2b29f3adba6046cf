#include "desk/KeptAnswers.h"

#include <gtest/gtest.h>

#include <string>

namespace corvelle::desk {
namespace {

TEST(KeptAnswers, GiveWhatCameLastAndForgetWhatIsForgotten) {
  KeptAnswers kept(100'000);
  EXPECT_EQ(kept.Find("a"), nullptr);
  kept.Keep("a", true, 5);
  kept.Keep("a", false, 9);
  ASSERT_NE(kept.Find("a"), nullptr);
  EXPECT_EQ(kept.Find("a")->Value, LookupValue(false));
  EXPECT_EQ(kept.Find("a")->At, 9);
  EXPECT_EQ(kept.Count(), 1U);
  kept.Forget("a");
  kept.Forget("a");
  EXPECT_EQ(kept.Find("a"), nullptr);
  EXPECT_EQ(kept.Room(), 0U);
}

TEST(KeptAnswers, WithoutRoomTheLeastUsedGoesFirst) {
  const std::string kilobyte(1000, 'x');
  KeptAnswers kept(4000);
  for (const char* key : {"a", "b", "c"}) kept.Keep(key, kilobyte, 1);
  EXPECT_NE(kept.Find("a"), nullptr);  // used, so that "b" is the oldest
  kept.Keep("d", kilobyte, 2);
  EXPECT_EQ(kept.Find("b"), nullptr);
  for (const char* key : {"a", "c", "d"}) EXPECT_NE(kept.Find(key), nullptr) << key;
  EXPECT_LE(kept.Room(), 4000U);
}

TEST(KeptAnswers, OneThatIsLargerThanTheRoomIsNotKept) {
  KeptAnswers kept(4000);
  kept.Keep("small", true, 1);
  kept.Keep("large", std::string(5000, 'x'), 2);
  EXPECT_EQ(kept.Find("large"), nullptr);
  EXPECT_LE(kept.Room(), 4000U);
}

TEST(KeptAnswers, LargeValuesTakeTheirRoom) {
  const std::vector<FileEntry> files(100, {.Name = "some file.txt"});
  EXPECT_GE(RoomOf(files), 100 * (sizeof(FileEntry) + 13));
  const std::vector<ShellFolderEntry> entries(10, {.Name = "entry", .IconIndex = 1});
  EXPECT_GE(RoomOf(entries), 10 * sizeof(ShellFolderEntry));
  EXPECT_EQ(RoomOf(IconPixels{16, 16, std::vector<std::uint32_t>(256)}), 1024U);
}

}  // namespace
}  // namespace corvelle::desk
