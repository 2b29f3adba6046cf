#include "core/SpecialFolders.h"

#include <gtest/gtest.h>

namespace corvelle {
namespace {

TEST(CsidlValue, IsTheShellsNumberOfEachName) {
  struct Row {
    const char* Name;
    int Value;
  };
  const Row rows[] = {
      {"CSIDL_DESKTOP", 0},
      {"CSIDL_PROGRAMS", 2},
      {"CSIDL_CONTROLS", 3},
      {"CSIDL_PRINTERS", 4},
      {"CSIDL_PERSONAL", 5},
      {"CSIDL_FAVORITES", 6},
      {"CSIDL_STARTUP", 7},
      {"CSIDL_RECENT", 8},
      {"CSIDL_SENDTO", 9},
      {"CSIDL_BITBUCKET", 10},
      {"CSIDL_STARTMENU", 11},
      {"CSIDL_DESKTOPDIRECTORY", 16},
      {"CSIDL_DRIVES", 17},
      {"CSIDL_NETWORK", 18},
      {"CSIDL_NETHOOD", 19},
      {"CSIDL_FONTS", 20},
      {"CSIDL_TEMPLATES", 21},
      {"CSIDL_COMMON_STARTMENU", 22},
      {"CSIDL_COMMON_PROGRAMS", 23},
      {"CSIDL_COMMON_STARTUP", 24},
      {"CSIDL_COMMON_DESKTOPDIRECTORY", 25},
      {"CSIDL_APPDATA", 26},
      {"CSIDL_PRINTHOOD", 27},
  };
  for (const Row& row : rows) EXPECT_EQ(CsidlValue(row.Name), row.Value) << row.Name;
}

TEST(CsidlValue, TheCaseOfANameDoesNotCount) {
  EXPECT_EQ(CsidlValue("csidl_drives"), 17);
  EXPECT_EQ(CsidlValue("Csidl_Common_StartMenu"), 22);
}

TEST(CsidlValue, AnyOtherTextIsTheDesktop) {
  for (const char* name : {"", "CSIDL_", "CSIDL_DRIVE", "CSIDL_DRIVES2", "CSIDL_DRIVES/X",
                           " CSIDL_DRIVES", "DRIVES", "17", "CSIDL_\xD0\x96", "CSIDL_DRIVES\\C"}) {
    EXPECT_EQ(CsidlValue(name), 0) << name;
  }
}

}  // namespace
}  // namespace corvelle
