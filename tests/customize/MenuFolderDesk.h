#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/CodePage.h"
#include "core/MenuRecord.h"
#include "customize/Draft.h"
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

/// Makes this the only draft.
inline FileStatus WriteDraft(FileSystem& files, std::string_view menusPath, const MenusStamp& stamp,
                             const MenuSet& set) {
  return WriteDrafts(files, menusPath, {{stamp, set}});
}

/// What a window over these files offers, the newest first.
inline std::vector<MenuSet> OfferDrafts(FileSystem& files, std::string_view menusPath,
                                        const MenuFiles& now) {
  DraftKeeper keeper(files, menusPath);
  keeper.Open(now);
  return keeper.Offered();
}

inline std::optional<MenuSet> OfferDraft(FileSystem& files, std::string_view menusPath,
                                         const MenuFiles& now) {
  const std::vector<MenuSet> offered = OfferDrafts(files, menusPath, now);
  if (offered.empty()) return std::nullopt;
  return offered.front();
}

}  // namespace corvelle
