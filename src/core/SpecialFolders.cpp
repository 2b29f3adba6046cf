#include "core/SpecialFolders.h"

#include "base/Text.h"

namespace corvelle {

namespace {

struct NamedFolder {
  std::string_view Name;
  int Value;
};

// The constants of the same names.
constexpr NamedFolder kFolders[] = {
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

}  // namespace

int CsidlValue(std::string_view name) noexcept {
  for (const NamedFolder& folder : kFolders) {
    if (EqualNoCase(name, folder.Name)) return folder.Value;
  }
  return 0;
}

}  // namespace corvelle
