#pragma once

#include "EntryLedger.h"

namespace corvelle::fuzz {

/// The entries of the Customize window while it is up, beside those of the files: what went from
/// the files otherwise than by its saves, and what the user has taken out of its tree. Nothing else
/// may go from the tree, or with a save from the files.
class TreeLedger {
 public:
  /// The files have changed, by no save of the window.
  void ChangeFiles(const EntryLedger& before, const EntryLedger& after);

  /// The window is up with this tree.
  void Open(EntryLedger tree);
  /// It is gone, and all that was known with it.
  void Close() { *this = {}; }
  [[nodiscard]] bool IsOpen() const noexcept { return open_; }

  /// The tree is this now. What is missing in it without a reason: never anything when the user has
  /// changed it.
  [[nodiscard]] EntryLedger ChangeTree(const EntryLedger& tree, bool byUser);

  /// What a save lost.
  struct SaveLoss {
    EntryLedger FromTree;   // what was in the tree and is not saved
    EntryLedger FromFiles;  // what was in the files and is not saved
  };
  /// A save has replaced files that held `files` by the tree, which is `tree` by then. The user may
  /// have changed one entry since the last ChangeTree, of which each of the two may tell.
  [[nodiscard]] SaveLoss Save(const EntryLedger& files, const EntryLedger& tree);

 private:
  /// What either_ does not explain. What it does explain, it explains once.
  [[nodiscard]] EntryLedger WithoutEither(const EntryLedger& lost);

  bool open_ = false;
  EntryLedger tree_;
  EntryLedger gone_;       // from the files, and perhaps not yet from the tree
  EntryLedger goneTaken_;  // of those, what the user has taken out of the tree as well
  /// Of goneTaken_, what the tree then held more of than had gone. The user took out one that had
  /// gone, which is noted so, or else an equal one; then the one that had gone is still in the
  /// tree.
  EntryLedger either_;
  EntryLedger came_;      // into the files, and perhaps not yet into the tree
  EntryLedger takenOut_;  // of the tree, and perhaps still in the files
};

}  // namespace corvelle::fuzz
