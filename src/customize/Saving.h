#pragma once

#include <string>
#include <string_view>

#include "customize/Draft.h"
#include "customize/MenuSet.h"
#include "customize/MenuSetFiles.h"
#include "platform/FileSystem.h"

namespace corvelle {

class CodePage;

/// Folder below that of the menu files in which a save keeps a copy of them until it has succeeded.
inline constexpr std::string_view kBackupFolder = "Temp\\";

enum class SaveEnd {
  Saved,      // the files are the tree's
  Recovered,  // the disk refused, and the files are what they were: show the message, then close
  Conflict,   // someone else has changed the files since they were read; nothing was done
};

/// What a save came to, and what the window has to do about it.
struct SaveResult {
  SaveEnd End = SaveEnd::Recovered;
  /// Of Recovered the text of the message box, which bears an information icon.
  std::string Message;
  /// The drafts are written: of Recovered what was to be saved, of Saved those that go on.
  bool Kept = false;
  /// What the files hold. Of Saved it can differ from the tree: texts are cut to their fields, and
  /// from 1000 menus on the order is another. Nothing of Recovered.
  MenuFiles Now;
};

/// Replaces all menu files and single buttons' files in `menusPath` (with its trailing backslash)
/// by files of the tree, numbered without gaps, as one change: whatever ends the program meanwhile,
/// the next start finds all old files or all new ones. Files are made writable and stay so. `read`
/// is the stamp of the files that the tree was made from; the same stamp of a Conflict, given in a
/// second call, overrides what the others made.
///
/// What is to be saved lies in a draft until it is. `around` is what else is kept as drafts, before
/// the save and after it; whenever the program ends, all of that is there.
[[nodiscard]] SaveResult SaveMenus(FileSystem& files, const CodePage& ansi,
                                   std::string_view menusPath, const MenuSet& tree,
                                   const MenusStamp& read, const DraftsAround& around = {});

}  // namespace corvelle
