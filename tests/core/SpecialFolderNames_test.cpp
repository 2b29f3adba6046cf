#include "core/SpecialFolderNames.h"

#include <gtest/gtest.h>

namespace corvelle {
namespace {

TEST(SpecialFolderNames, EachNameHasTheNumberOfTheShell) {
  struct Row {
    const char* name;
    int value;
  };
  const Row rows[] = {{"CSIDL_DESKTOP", 0},
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
                      {"csidl_Drives", 17}};
  for (const Row& row : rows) {
    EXPECT_EQ(CsidlValue(row.name), row.value) << row.name;
    EXPECT_EQ(KnownCsidl(row.name), row.value) << row.name;
  }
}

TEST(SpecialFolderNames, AnyOtherTextIsTheDesktop) {
  for (const char* name :
       {"", "CSIDL_", "CSIDL_NOWHERE", "CSIDL_DRIVES /U", "DRIVES", "CSIDL_DRIVESX"}) {
    EXPECT_EQ(CsidlValue(name), kDesktopFolder) << name;
    EXPECT_FALSE(KnownCsidl(name)) << name;
  }
}

}  // namespace
}  // namespace corvelle
