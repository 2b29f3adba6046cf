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
// files. A draft belongs to the files that the changes were made on, by their stamp: over any
// others it is not offered.
//
// The file holds drafts one behind the other, the newest first, each with the values of
// base/ByteText.h: "CVDRAFT1"; the stamp's length and hash, 8 bytes each; how many menus, 4 bytes,
// and for each of them its head, how many items, 4 bytes, and the items; how many single buttons, 4
// bytes, and these; the digest of all that, 8 bytes. A record is three texts in UTF-8: title, icon,
// command. They are not cut to the width of their fields.

struct Draft {
  MenusStamp Files;  // of the files that it changes
  MenuSet Set;

  friend bool operator==(const Draft&, const Draft&) = default;
};

using Drafts = std::vector<Draft>;

[[nodiscard]] std::string FormatDraft(const MenusStamp& stamp, const MenuSet& set);
/// Nothing for bytes that are not a whole draft.
[[nodiscard]] std::optional<Draft> ParseDraft(std::string_view bytes);

[[nodiscard]] std::string FormatDrafts(const Drafts& drafts);
/// Those before the first bytes that are no whole draft.
[[nodiscard]] Drafts ParseDrafts(std::string_view bytes);

/// The drafts in the file; empty without one. The error of a file that cannot be read.
[[nodiscard]] FileResult<Drafts> ReadDrafts(FileSystem& files, std::string_view menusPath);

/// Puts these drafts in the place of those in the file, in one step: after a failure these are
/// there. With no drafts the file is deleted.
FileStatus WriteDrafts(FileSystem& files, std::string_view menusPath, const Drafts& drafts);

/// The drafts around a save, but that of the tree itself; the newest first.
struct DraftsAround {
  Drafts Before;  // kept until the files are saved, and if they cannot be
  Drafts Others;  // of other files, kept in any case
  /// Drafts of the files that the save makes.
  std::vector<MenuSet> After;
};

/// The drafts of one Customize window: the tree's own, which may be written as often as the window
/// likes, and those that are offered. None of them ever takes the place of another.
class DraftKeeper {
 public:
  /// Drafts of other files that are kept: their files may come back.
  static constexpr std::size_t kMostOfOtherFiles = 4;

  /// `files` lives as long as the keeper.
  DraftKeeper(FileSystem& files, std::string_view menusPath)
      : files_(files), menusPath_(menusPath) {}

  /// Reads what is kept, for a tree of these files. All of it that belongs to them is offered, the
  /// tree has no draft yet.
  void Open(const MenuFiles& now);
  /// What is offered, the newest first.
  [[nodiscard]] const std::vector<MenuSet>& Offered() const noexcept { return offered_; }

  /// Keeps the tree. What is written already is not written again.
  FileStatus Keep(const MenuSet& tree);
  /// Nothing of the tree is unsaved, or the user does not want it.
  FileStatus Forget();

  /// The first one that is offered, which is the tree's own from now on; not without one. What the
  /// tree held unsaved until then is offered last.
  [[nodiscard]] MenuSet Show(std::optional<MenuSet> unsaved);
  FileStatus ForgetOffered();
  /// Offers this one first, over files that hold `now`; it is not the tree's own any more.
  FileStatus Offer(MenuSet set, const MenuSet& now);
  /// Writes what could not be written, or was not yet.
  FileStatus Flush();

  /// Others have changed the files: what is offered are the same changes of these. The tree's own
  /// has to be kept again. Nothing is written before the next Keep or Flush.
  void FilesChanged(const MenuFiles& now);
  /// The files that drafts belong to.
  [[nodiscard]] const MenusStamp& Stamp() const noexcept { return stamp_; }

  /// For a save that makes `tree` of the files.
  [[nodiscard]] DraftsAround AroundSave(const MenuSet& tree);
  /// That save has succeeded.
  void Saved(DraftsAround around, const MenuFiles& now);

 private:
  [[nodiscard]] Drafts All() const;
  FileStatus ReadLate();
  FileStatus Write();
  [[nodiscard]] std::vector<MenuSet> Rebased(const MenuSet& now) const;
  void SetBase(const MenuSet& now);

  FileSystem& files_;
  std::string menusPath_;
  MenusStamp stamp_;
  std::optional<MenuSet> own_;
  std::vector<MenuSet> offered_;
  MenuSet base_;   // the files, where something is offered
  Drafts others_;  // of other files
  bool unread_ = false;
  bool late_ = false;                     // there is something to write
  std::optional<std::uint64_t> written_;  // digest of what lies there
};

}  // namespace corvelle
