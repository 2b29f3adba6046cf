#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "customize/MenuSet.h"
#include "customize/MenuSetFiles.h"
#include "platform/FileSystem.h"

namespace corvelle {

// What was changed in the Customize window and not saved, kept in kDraftFileName among the menu
// files. It belongs to the files that the changes were made on, by their stamp: over any others it
// is not offered.
//
// The file, with the values of base/ByteText.h: "CVDRAFT1"; the stamp's length and hash, 8 bytes
// each; how many menus, 4 bytes, and for each of them its head, how many items, 4 bytes, and the
// items; how many single buttons, 4 bytes, and these; the digest of all that, 8 bytes. A record is
// three texts in UTF-8: title, icon, command. They are not cut to the width of their fields.

struct Draft {
  MenusStamp Files;  // of the files that it changes
  MenuSet Set;

  friend bool operator==(const Draft&, const Draft&) = default;
};

[[nodiscard]] std::string FormatDraft(const MenusStamp& stamp, const MenuSet& set);
/// Nothing for bytes that are not a whole draft.
[[nodiscard]] std::optional<Draft> ParseDraft(std::string_view bytes);

/// Puts the draft in the place of an earlier one, in one step: after a failure that one is there.
FileStatus WriteDraft(FileSystem& files, std::string_view menusPath, const MenusStamp& stamp,
                      const MenuSet& set);

/// The draft that belongs to these files and holds something else than they do; nothing without
/// one. A draft of other files stays where it is: they may come back.
[[nodiscard]] std::optional<MenuSet> OfferDraft(FileSystem& files, std::string_view menusPath,
                                                const MenuFiles& now);

/// Removes the draft, whosever it is; a missing one is fine.
FileStatus ForgetDraft(FileSystem& files, std::string_view menusPath);

/// Writes drafts of one window, which may ask for it as often as it likes: what is written already
/// is not written again.
class DraftKeeper {
 public:
  /// `files` lives as long as the keeper.
  DraftKeeper(FileSystem& files, std::string_view menusPath)
      : files_(files), menusPath_(menusPath) {}

  FileStatus Keep(const MenusStamp& stamp, const MenuSet& set);
  /// For an explicit No, after a save, and when nothing unsaved is left.
  FileStatus Forget();

 private:
  FileSystem& files_;
  std::string menusPath_;
  std::optional<std::uint64_t> written_;  // digest of what lies there
};

}  // namespace corvelle
