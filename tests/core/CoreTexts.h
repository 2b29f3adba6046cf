#pragma once

#include <string>

#include "base/CodePage.h"
#include "core/MenuRecord.h"

namespace corvelle {

// The folders, files and records that the tests of the core speak of.

inline const Windows1252 kAnsi;
inline const std::string kApp = "C:\\Corvelle\\";
inline const std::string kMenus = kApp + "Menus\\";
inline const std::string kFile = kMenus + "BMENU001.MNU";
inline const std::string kOther = kMenus + "BMENU002.MNU";

/// The bytes of a record whose fields all speak of its title.
inline std::string Record(const std::string& title) {
  return FormatRecord({title, "icon of " + title, "C:\\" + title + ".exe"}, kAnsi);
}

/// A menu's header and its three items.
inline const std::string kFour = Record("Button") + Record("One") + Record("Two") + Record("Three");

}  // namespace corvelle
