#pragma once

#include <map>
#include <string>
#include <string_view>

#include "base/CodePage.h"
#include "core/MenuRecord.h"
#include "customize/MenuSet.h"
#include "sim/SimFiles.h"

namespace corvelle {

inline constexpr const char* kMenus = "C:\\Corvelle\\Menus\\";

inline std::string InMenus(std::string_view name) { return kMenus + std::string(name); }

using Folder = std::map<std::string, std::string>;

/// What the files of a folder hold, by their names; nothing of a missing one.
inline Folder FolderOf(const sim::SimFiles& disk, const std::string& folder = kMenus) {
  Folder all;
  if (!disk.Has(folder)) return all;
  for (const std::string& name : disk.Names(folder.substr(0, folder.size() - 1))) {
    const auto bytes = disk.Get(folder + name);
    if (bytes) all[name] = *bytes;
  }
  return all;
}

inline void PutFolder(sim::SimFiles& disk, const Folder& files) {
  disk.MakeFolders(kMenus);
  for (const auto& [name, bytes] : files) disk.Put(InMenus(name), bytes);
}

inline const Windows1252 kCodePage;

/// The 570 bytes of a record.
inline std::string Stored(const std::string& title, const std::string& icon = {},
                          const std::string& name = {}) {
  return FormatRecord({title, icon, name}, kCodePage);
}

inline MenuRecord Item(const std::string& title) {
  return {title, "C:\\Icons\\" + title + ".ico", "C:\\Programs\\" + title + ".exe"};
}

inline std::string Stored(const MenuRecord& record) { return FormatRecord(record, kCodePage); }

}  // namespace corvelle
