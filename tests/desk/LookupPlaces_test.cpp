#include "desk/LookupPlaces.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace corvelle::desk {
namespace {

TEST(LookupPlaces, OfPaths) {
  struct Row {
    const char* name;
    const char* path;
    const char* place;
  };
  const Row rows[] = {
      {"a drive", "c:\\Tools\\a.exe", "C:"},
      {"a drive alone", "D:", "D:"},
      {"a share", "\\\\Server\\share\\a.txt", "\\\\SERVER"},
      {"a server alone", "\\\\server", "\\\\SERVER"},
      {"a long path", "\\\\?\\e:\\x", "E:"},
      {"a long path of a server", "\\\\?\\UNC\\Server\\share\\x", "\\\\SERVER"},
      {"what is no path", "::{20D04FE0}", "shell"},
      {"a relative path", "notes.txt", "shell"},
      {"no letter before the colon", "1:\\x", "shell"},
      {"nothing", "", "shell"},
  };
  for (const Row& row : rows) EXPECT_EQ(PlaceOfPath(row.path), row.place) << row.name;
}

TEST(LookupPlaces, EachKindHasItsLane) {
  struct Row {
    LookupKind kind;
    const char* lane;
  };
  const Row rows[] = {
      {LookupKind::IsThere, "D:"},         {LookupKind::FolderEntries, "D:"},
      {LookupKind::Drive, "D:"},           {LookupKind::LinkTarget, "D:"},
      {LookupKind::FileName, "D:*"},       {LookupKind::FileIcon, "D:*"},
      {LookupKind::IconInFile, "D:*"},     {LookupKind::ShellFolder, "shell"},
      {LookupKind::ShellEntries, "shell"}, {LookupKind::ShellIcon, "shell*"},
      {LookupKind::ShortPaths, "D:"},      {LookupKind::IconTarget, "D:"},
      {LookupKind::IconCount, "D:*"},
  };
  for (const Row& row : rows) {
    const std::string lane = LaneOfLookup({.Kind = row.kind, .Path = "d:\\x"});
    EXPECT_EQ(lane, row.lane) << static_cast<int>(row.kind);
  }
  EXPECT_EQ(PlaceOfLane("D:*"), "D:");
  EXPECT_EQ(PlaceOfLane("D:"), "D:");
}

TEST(LookupPlaces, OnlyTheIconOfALinkDependsOnItsTarget) {
  EXPECT_TRUE(DependsOnTarget({.Kind = LookupKind::FileIcon, .Path = "C:\\a.LNK"}));
  EXPECT_FALSE(DependsOnTarget({.Kind = LookupKind::FileIcon, .Path = "C:\\a.txt"}));
  EXPECT_FALSE(DependsOnTarget({.Kind = LookupKind::FileName, .Path = "C:\\a.lnk"}));
}

TEST(LookupPlaces, EqualQuestionsHaveOneKeyAndOthersHaveNot) {
  const Lookup folder{.Kind = LookupKind::FolderEntries, .Path = "C:\\Tools\\"};
  const auto key = [](const Lookup& question) { return KeyOfLookup(question); };
  EXPECT_EQ(key(folder), key({.Kind = LookupKind::FolderEntries,
                              .Path = "c:\\TOOLS",
                              .Lane = "other",
                              .Generation = 7}));
  const Lookup others[] = {
      {.Kind = LookupKind::IsThere, .Path = "C:\\Tools\\"},
      {.Kind = LookupKind::FolderEntries, .Path = "C:\\Tool"},
      {.Kind = LookupKind::FolderEntries, .Path = "C:\\Tools\\", .Pattern = "*.exe"},
      {.Kind = LookupKind::FileIcon, .Path = "C:\\Tools\\"},
      {.Kind = LookupKind::FileIcon, .Path = "C:\\Tools\\", .List = IconList::Large},
      {.Kind = LookupKind::IconInFile, .Path = "C:\\Tools\\", .Number = 1},
      {.Kind = LookupKind::IconInFile, .Path = "C:\\Tools\\", .Number = 2},
      {.Kind = LookupKind::IconInFile, .Path = "C:\\Tools\\", .Number = 2, .Size = 32},
      {.Kind = LookupKind::ShellEntries, .Number = 3},
      {.Kind = LookupKind::ShellFolder, .Number = 3},
      {.Kind = LookupKind::ShellIcon, .Path = "a", .Number = 3},
      {.Kind = LookupKind::ShellIcon, .Path = "A", .Number = 3},
      {.Kind = LookupKind::ShellIcon, .Path = "A", .Number = 3, .List = IconList::Large},
      {.Kind = LookupKind::ShellIcon, .Path = "A", .Number = 4},
      folder,
  };
  std::set<std::string> keys;
  for (const Lookup& other : others) EXPECT_TRUE(keys.insert(key(other)).second) << key(other);
}

}  // namespace
}  // namespace corvelle::desk
