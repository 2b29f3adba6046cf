#pragma once

#include <vector>

#include "customize/MenuSet.h"

namespace corvelle {

// The tree of the Customize window and files that were edited elsewhere meanwhile, made into one.
// What was changed, added, deleted or moved there comes into the tree wherever the same entry was
// not changed here. Of an entry changed on both sides the tree keeps its own version; of one
// deleted on one side and changed on the other it keeps the changed one. Both are told as
// conflicts.

enum class MergeConflictKind {
  BothChanged,   // differently
  DeletedHere,   // and changed there: it is back, as it is there
  DeletedThere,  // and changed here: it stays, as it is here
};

/// No place in a row.
inline constexpr int kNotThere = -1;

/// An entry that both sides have touched, and where it is in the merged set.
struct MergeConflict {
  MergeConflictKind Kind = MergeConflictKind::BothChanged;
  int Menu = kNotThere;  // from 0; kNotThere for a single button
  int Item = kNotThere;  // or the single button, from 0; kNotThere for a menu as a whole
  /// The two versions; of a menu its button. That of the side that deleted it is blank.
  MenuRecord Ours;
  MenuRecord Theirs;

  friend bool operator==(const MergeConflict&, const MergeConflict&) = default;
};

/// Where the entries of a merged menu were in the tree, from 0; kNotThere for what is new in it.
struct MergedMenuOrigin {
  int Menu = kNotThere;
  std::vector<int> Items;  // one for each item, within the tree's menu

  friend bool operator==(const MergedMenuOrigin&, const MergedMenuOrigin&) = default;
};

struct MergedSet {
  MenuSet Set;
  std::vector<MergeConflict> Conflicts;
  std::vector<MergedMenuOrigin> Menus;  // one for each menu
  std::vector<int> Singles;             // one for each single button
};

/// Merges `ours`, the tree, and `theirs`, the files by now, which both come from `base`, the files
/// as they were read. Without a change of ours it is `theirs`, without one of theirs `ours`.
[[nodiscard]] MergedSet MergeTrees(const MenuSet& base, const MenuSet& ours, const MenuSet& theirs);

}  // namespace corvelle
